// A tag can hold many '<', and where it is kept, the next tag begins at the second of them and ends
// at the same '>'. So the openings of a tag are read once, from its end, each with the best rule of
// all behind it. Held by tag_rules_test.cpp, which tests every tag against every key.

#include "document/tag_rules.h"

#include <algorithm>

namespace quillmere {

RuleFinder::RuleFinder(std::string_view lowerText, std::span<const TagRule> rules)
    : text_(lowerText)
    , rules_(rules)
{
}

const TagRule* RuleFinder::find(const Tag& tag)
{
    if (tag.end != tagEnd_) readOpenings(tag);
    while (openings_.back().offset < tag.begin)
        openings_.pop_back();
    const auto rule = openings_.back().rule;
    return rule < rules_.size() ? &rules_[rule] : nullptr;
}

void RuleFinder::readOpenings(const Tag& tag)
{
    openings_.clear();
    tagEnd_ = tag.end;
    std::size_t best = rules_.size();
    for (auto at = tag.end; at-- > tag.begin;) {
        if (text_[at] != '<') continue;
        const auto rule = ruleAt(at);
        if (!openings_.empty() && rule >= best) continue; // the opening behind tells the same
        best = std::min(best, rule);
        openings_.push_back({at, best});
    }
}

std::size_t RuleFinder::ruleAt(std::size_t offset) const
{
    const auto rest = text_.substr(offset); // a key that ends in '>' ends where its tag ends
    const auto second = rest.size() > 1 ? rest[1] : '\0';
    const auto matches = [rest, second](const TagRule& rule) {
        return rule.key[1] == second && rest.starts_with(rule.key);
    };
    const auto found = std::find_if(rules_.begin(), rules_.end(), matches);
    return static_cast<std::size_t>(found - rules_.begin());
}

} // namespace quillmere
