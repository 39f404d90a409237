// Held by standard_road_test.cpp.

#include "document/standard/token_writer.h"

#include <utility>

namespace quillmere {

void TokenWriter::copy(std::uint32_t first, std::uint32_t behind)
{
    endNew();
    const auto part = file_.subspan(first, behind - first);
    tokens_.insert(tokens_.end(), part.begin(), part.end());
}

void TokenWriter::put(std::string text)
{
    endNew();
    append(std::move(text), false);
}

void TokenWriter::endNew()
{
    if (!new_.empty()) append(std::exchange(new_, {}), true);
}

void TokenWriter::append(std::string text, bool isNew)
{
    texts_.push_back(std::move(text));
    for (auto token : readWmlTokens(texts_.back())) {
        token.isNew = isNew;
        tokens_.push_back(token);
    }
}

std::vector<WmlToken> TokenWriter::take()
{
    endNew();
    return std::exchange(tokens_, {});
}

} // namespace quillmere
