// Edits are sorted by counting, since places are few, and written in one pass.
// Held by corrections_test.cpp.

#include "document/text/text_edits.h"

#include "document/text/limits.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillmere {

void TextEdits::replace(std::size_t begin, std::size_t end, std::string_view text)
{
    const auto insertedBegin = inserted_.size();
    inserted_.append(text);
    requireAddressable(inserted_); // all of it will stand in the result
    edits_.push_back({static_cast<Offset>(begin), static_cast<Offset>(end),
        static_cast<Offset>(insertedBegin), static_cast<Offset>(inserted_.size())});
}

bool TextEdits::isSorted() const
{
    return std::is_sorted(edits_.begin(), edits_.end(),
        [](const Edit& left, const Edit& right) { return left.begin < right.begin; });
}

std::vector<TextEdits::Offset> TextEdits::sortedByPlace(std::size_t textSize) const
{
    std::vector<Offset> next(textSize + 2); // by place: where its next edit goes
    for (const Edit& edit : edits_)
        ++next[edit.begin + 1U];
    std::partial_sum(next.begin(), next.end(), next.begin());
    std::vector<Offset> sorted(edits_.size());
    for (std::size_t i = 0; i < edits_.size(); ++i)
        sorted[next[edits_[i].begin]++] = static_cast<Offset>(i);
    return sorted;
}

void TextEdits::makeWith(Rewriter& rewriter, const Edit& edit) const
{
    rewriter.insert(edit.begin,
        std::string_view(inserted_).substr(
            edit.insertedBegin, static_cast<std::size_t>(edit.insertedEnd - edit.insertedBegin)));
    rewriter.drop(edit.begin, edit.end);
}

void TextEdits::applyTo(std::string& text)
{
    if (edits_.empty()) return;
    Rewriter rewriter(text);
    if (isSorted()) {
        for (const Edit& edit : edits_)
            makeWith(rewriter, edit);
    } else {
        for (const Offset index : sortedByPlace(text.size()))
            makeWith(rewriter, edits_[index]);
    }
    std::string result = rewriter.take();
    requireAddressable(result);
    text = std::move(result);
    edits_.clear();
    inserted_.clear();
}

} // namespace quillmere
