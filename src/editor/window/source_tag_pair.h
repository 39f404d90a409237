#pragma once

#include <QStringView>

#include <optional>

namespace quillmere {

/// A start tag and its end tag, each from its '<' to behind its '>'.
struct TagPair {
    struct Range {
        int begin = 0;
        int end = 0;
        [[nodiscard]] bool operator==(const Range&) const = default;
    };
    Range start;
    Range end;
    [[nodiscard]] bool operator==(const TagPair&) const = default;
};

/// The pair of the tag that the caret stands in or at, with elements of the same name between them
/// counted; nullopt where there is no tag, one of an empty element, or no partner. Tags in comments
/// do not count.
[[nodiscard]] std::optional<TagPair> tagPairAt(QStringView source, int caret);

} // namespace quillmere
