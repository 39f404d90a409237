#pragma once

#include "document/text/tag_scanner.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace quillmere {

/// What a conversion does with a tag.
enum class TagAction {
    Drop,
    Emit, ///< the rule's text takes the tag's place
    Paragraph, ///< a paragraph with its alignment and nothing else
    Table,
    Do,
    Link,
    Image,
    Marker, ///< a tag becomes a marker or a marker a tag, as it is written
    LowerMarker, ///< the same with all in lower case
};

/// One line of a conversion's decision table. The rule takes each tag that contains `key` anywhere
/// and in any case. A key is lower case: "<", "</", "<!--" or "<!--/" with a letter behind it and
/// what else there is.
struct TagRule {
    std::string_view key;
    TagAction action = TagAction::Drop;
    std::string_view text = {}; ///< for Emit only
};

/// A decision table in which rules are looked up by what their keys begin with. The rows must
/// outlive it.
class TagRules {
public:
    using Number = std::uint8_t; ///< place of a rule in the table
    static constexpr Number kNone = 255;

    constexpr explicit TagRules(std::span<const TagRule> rows)
        : rows_(rows)
    {
        first_.fill(kNone);
        for (auto i = rows.size(); i-- > 0;) { // from the end, so that the first rule comes first
            Number& first = first_.at(slotOf(rows[i].key));
            next_.at(i) = first;
            first = static_cast<Number>(i);
        }
    }

    [[nodiscard]] const TagRule& operator[](Number rule) const { return rows_[rule]; }
    /// The first rule whose key stands at the begin of `lowerText`; kNone where there is none.
    [[nodiscard]] Number ruleFor(std::string_view lowerText) const;

private:
    /// Keys with the same letter and the same characters ahead of it have the same slot.
    [[nodiscard]] static constexpr std::size_t slotOf(std::string_view text)
    {
        const auto at = [text](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
        const bool isMarker = at(1) == '!';
        std::size_t letter = isMarker ? 4 : 1;
        const bool isClose = at(letter) == '/';
        if (isClose) ++letter;
        return (static_cast<unsigned char>(at(letter)) & 31U) | (isClose ? 32U : 0U)
            | (isMarker ? 64U : 0U);
    }

    std::span<const TagRule> rows_;
    std::array<Number, 128> first_{};
    std::array<Number, 64> next_{}; // the rule behind in the same slot
};

/// Decides which rule of a table takes a tag: the first one whose key the tag contains. Tags that
/// overlap (a kept tag hides a second '<') are asked from left to right, and then each '<' of the
/// text is looked at once. The text, which is lower case, and the table must outlive the finder.
class RuleFinder {
public:
    RuleFinder(std::string_view lowerText, const TagRules& rules);
    /// The rule of the tag; null where there is none.
    [[nodiscard]] const TagRule* find(const Tag& tag);

private:
    struct Opening {
        std::size_t offset = 0;
        TagRules::Number rule = TagRules::kNone; // the first of the part of the tag from here on
    };
    [[nodiscard]] TagRules::Number ruleOf(const Tag& tag);
    void readOpenings(const Tag& tag);

    std::string_view text_;
    const TagRules& rules_;
    std::vector<Opening> openings_; // of the last tag with several, from its end on
    std::size_t tagEnd_ = 0;
};

} // namespace quillmere
