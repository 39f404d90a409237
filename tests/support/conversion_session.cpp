#include "support/conversion_session.h"

namespace quillmere::test {

std::string MapWorkFiles::unusedName(std::string_view prefix, std::string_view suffix)
{
    for (int number = 0;; ++number) {
        auto name = std::string(prefix) + std::to_string(number) + std::string(suffix);
        if (!exists(directory() + name)) return name;
    }
}

std::string MapWorkFiles::createFile(std::string_view prefix, std::string_view suffix)
{
    auto name = unusedName(prefix, suffix);
    write(directory() + name, {});
    return name;
}

bool MapWorkFiles::exists(const std::string& path) const
{
    return files_.contains(path);
}

std::string MapWorkFiles::read(const std::string& path) const
{
    return files_.at(path);
}

void MapWorkFiles::write(const std::string& path, std::string bytes)
{
    files_[path] = std::move(bytes);
}

void MapWorkFiles::remove(const std::string& path)
{
    files_.erase(path);
}

DisplayCopy SmallCopies::draw(
    const std::string& path, std::string_view alternativeText, std::int32_t /*backgroundColour*/)
{
    lastPath = path;
    lastText = alternativeText;
    return {"BM", 7, 5, 0};
}

ConversionSession::ConversionSession(std::size_t areas, OutputRules rules)
    : session{workFiles, copies, prompter_, settings_, words_, rules, {}}
{
    if (areas == 0) return;
    session.deck.resize(areas + 1);
    for (auto& record : session.deck)
        record.deckDir = "/decks/";
}

} // namespace quillmere::test
