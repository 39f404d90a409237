// A tag can hold many '<', and where it is kept, the next tag begins at the second of them and ends
// at the same '>'. So the openings of such a tag are read once, from its end, each with the best
// rule of all behind it. Held by conversions_literal_test.cpp, which tests every tag against every
// key.

#include "document/tag_rules.h"

#include <algorithm>

namespace quillmere {

TagRules::Number RuleFinder::ruleOfSeveral(const Tag& tag)
{
    if (tag.end != tagEnd_) readOpenings(tag);
    while (openings_.back().offset < tag.begin)
        openings_.pop_back();
    return openings_.back().rule;
}

void RuleFinder::readOpenings(const Tag& tag)
{
    openings_.clear();
    tagEnd_ = tag.end;
    auto best = TagRules::kNone;
    for (auto at = tag.end; at-- > tag.begin;) {
        if (text_[at] != '<') continue;
        const auto rule = rules_.ruleFor(text_, at);
        if (!openings_.empty() && rule >= best) continue; // the opening behind tells the same
        best = std::min(best, rule);
        openings_.push_back({at, best});
    }
}

} // namespace quillmere
