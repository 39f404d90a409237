// Changes are sorted by their begin and those that touch are joined: what they take out is united,
// what they put in stands in their order. An insertion at the begin of a removal comes ahead of it,
// which is the same place. Held by edit_promises_test.cpp.

#include "editor/page/splice_list.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <utility>

namespace quillmere {

void SpliceList::insert(std::size_t offset, std::string text)
{
    if (!text.empty()) changes_.push_back({{offset, offset}, std::move(text)});
}

void SpliceList::replace(SourceRange piece, std::string text)
{
    changes_.push_back({piece, std::move(text)});
}

void SpliceList::append(const SpliceList& other)
{
    changes_.insert(changes_.end(), other.changes_.begin(), other.changes_.end());
}

std::vector<Splice> SpliceList::take() &&
{
    std::stable_sort(changes_.begin(), changes_.end(),
        [](const Splice& a, const Splice& b) { return a.removed.begin < b.removed.begin; });
    std::vector<Splice> splices;
    for (auto& change : changes_) {
        if (change.removed.empty() && change.inserted.empty()) continue;
        if (splices.empty() || change.removed.begin > splices.back().removed.end) {
            splices.push_back(std::move(change));
            continue;
        }
        auto& last = splices.back();
        last.removed.end = std::max(last.removed.end, change.removed.end);
        last.inserted += change.inserted;
    }
    return splices;
}

std::string spliced(std::string_view text, const std::vector<Splice>& splices)
{
    Rewriter result(text);
    for (const auto& splice : splices) {
        result.drop(splice.removed.begin, splice.removed.end);
        result.insert(splice.removed.end, splice.inserted);
    }
    return result.take();
}

std::string edited(std::string_view text, const SurfaceEdit& edit, const OutputRules& rules)
{
    std::string result = spliced(text, edit.splices);
    requireAddressable(result, rules.maxTextLength());
    return result;
}

SurfaceEdit reverse(std::string_view textBefore, const SurfaceEdit& edit, std::size_t caretBefore)
{
    SurfaceEdit back{{}, caretBefore};
    std::size_t inserted = 0; // by the splices so far, and what they took out
    std::size_t removed = 0;
    for (const auto& splice : edit.splices) {
        const std::size_t begin = splice.removed.begin + inserted - removed;
        back.splices.push_back(
            {{begin, begin + splice.inserted.size()}, std::string(splice.removed.in(textBefore))});
        inserted += splice.inserted.size();
        removed += splice.removed.end - splice.removed.begin;
    }
    return back;
}

} // namespace quillmere
