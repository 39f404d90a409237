#pragma once

#include "document/text/byte_words.h"
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
    Card, ///< what no rule takes, on the way in
    Marker, ///< a tag becomes a marker or a marker a tag, as it is written
    LowerMarker, ///< the same with all in lower case
};

/// One line of a conversion's decision table. The rule takes each tag that contains `key` anywhere
/// and in any case. A key is lower case: "<", "</", "<!--" or "<!--/" with a letter behind it and
/// what else there is, eight characters behind "<" or "<!--" at most.
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
            keys_.at(i) = Key(rows[i].key);
            Number& first = first_.at(Name(rows[i].key, 0).slot());
            next_.at(i) = first;
            first = static_cast<Number>(i);
        }
    }

    [[nodiscard]] const TagRule& operator[](Number rule) const { return rows_[rule]; }
    /// The first rule whose key stands at the '<' at `offset`, in any case; kNone where there is
    /// none.
    [[nodiscard]] Number ruleFor(std::string_view text, std::size_t offset) const
    {
        const Name name(text, offset);
        auto rule = first_[name.slot()];
        while (rule != kNone && (name.word & keys_[rule].mask) != keys_[rule].word)
            rule = next_[rule];
        return rule;
    }

private:
    static constexpr std::string_view kMarkerBegin = "<!--";

    /// What a tag begins with: whether it is a marker, and eight characters behind that.
    struct Name {
        bool isMarker;
        std::uint64_t word;

        constexpr Name(std::string_view text, std::size_t offset)
            : isMarker(offset + 1 < text.size() && text[offset + 1] == '!'
                && text.substr(offset).starts_with(kMarkerBegin))
            , word(wordAt(text, offset + (isMarker ? kMarkerBegin.size() : 1)))
        {
        }
        /// Names with the same letter and the same characters ahead of it have the same slot.
        [[nodiscard]] constexpr std::size_t slot() const
        {
            const std::uint64_t slash = (word & 0xFFU) == '/' ? 1 : 0;
            const auto letter = (word >> 8 * slash) & 31U;
            return letter | 32U * slash | (isMarker ? 64U : 0U);
        }
    };

    /// A key as names are compared with it: all of its characters at once, letters in both cases.
    struct Key {
        std::uint64_t mask = 0; // the bits of a name that count
        std::uint64_t word = 0;

        constexpr Key() = default;
        constexpr explicit Key(std::string_view key)
        {
            const Name name(key, 0);
            const auto ahead = name.isMarker ? kMarkerBegin.size() : 1;
            for (std::size_t i = 0; ahead + i < key.size(); ++i) {
                const bool isLetter = key[ahead + i] >= 'a' && key[ahead + i] <= 'z';
                mask |= (isLetter ? std::uint64_t{0xDF} : std::uint64_t{0xFF}) << (8 * i);
            }
            word = name.word & mask;
        }
    };

    std::span<const TagRule> rows_;
    std::array<Key, 64> keys_{};
    std::array<Number, 64> next_{}; // the rule behind in the same slot
    std::array<Number, 128> first_{};
};

/// Decides which rule of a table takes a tag: the first one whose key the tag contains. Tags that
/// overlap (a kept tag hides a second '<') are asked from left to right, and then each '<' of the
/// text is looked at once. The text and the table must outlive the finder.
class RuleFinder {
public:
    RuleFinder(std::string_view text, const TagRules& rules)
        : text_(text)
        , rules_(rules)
    {
    }
    /// The rule of the tag; null where there is none.
    [[nodiscard]] const TagRule* find(const Tag& tag)
    {
        const auto rule = tag.hidesAnother ? ruleOfSeveral(tag) : rules_.ruleFor(text_, tag.begin);
        return rule == TagRules::kNone ? nullptr : &rules_[rule];
    }

private:
    struct Opening {
        std::size_t offset = 0;
        TagRules::Number rule = TagRules::kNone; // the first of the part of the tag from here on
    };
    [[nodiscard]] TagRules::Number ruleOfSeveral(const Tag& tag);
    void readOpenings(const Tag& tag);

    std::string_view text_;
    const TagRules& rules_;
    std::vector<Opening> openings_; // of the last tag with several, from its end on
    std::size_t tagEnd_ = 0;
};

} // namespace quillmere
