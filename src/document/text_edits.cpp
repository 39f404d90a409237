// Edits are sorted by their place, those of one place keeping their order, and written in one pass.
// Held by text_edits_test.cpp.

#include "document/text_edits.h"

#include "document/limits.h"
#include "document/text_search.h"

#include <algorithm>
#include <utility>

namespace quillmere {

void TextEdits::replace(std::size_t begin, std::size_t end, std::string_view text)
{
    edits_.push_back({begin, end, text});
}

void TextEdits::applyTo(std::string& text)
{
    if (edits_.empty()) return;
    std::stable_sort(edits_.begin(), edits_.end(),
        [](const Edit& left, const Edit& right) { return left.begin < right.begin; });
    Rewriter rewriter(text);
    for (const Edit& edit : edits_) {
        rewriter.insert(edit.begin, edit.text);
        rewriter.drop(edit.begin, edit.end);
    }
    std::string result = rewriter.take();
    requireAddressable(result);
    text = std::move(result);
    edits_.clear();
}

} // namespace quillmere
