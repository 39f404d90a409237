#pragma once

#include "document/tag_scanner.h"

#include <cstddef>
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

/// One line of a conversion's decision table. The rule takes each tag that contains `key`, which
/// begins with '<', has a second character and is lower case, anywhere and in any case.
struct TagRule {
    std::string_view key;
    TagAction action = TagAction::Drop;
    std::string_view text = {}; ///< for Emit only
};

/// Decides which rule of a table takes a tag: the first one whose key the tag contains. Tags that
/// overlap (a kept tag hides a second '<') are asked from left to right, and then each '<' of the
/// text is looked at once. The text, which is lower case, and the table must outlive the finder.
class RuleFinder {
public:
    RuleFinder(std::string_view lowerText, std::span<const TagRule> rules);
    /// The rule of the tag; null where there is none.
    [[nodiscard]] const TagRule* find(const Tag& tag);

private:
    struct Opening {
        std::size_t offset = 0;
        std::size_t rule = 0; // the first one of the part of the tag from here on
    };
    [[nodiscard]] std::size_t ruleAt(std::size_t offset) const;
    void readOpenings(const Tag& tag);

    std::string_view text_;
    std::span<const TagRule> rules_;
    std::vector<Opening> openings_; // of the last tag, from its end on, where the rule changes
    std::size_t tagEnd_ = 0;
};

} // namespace quillmere
