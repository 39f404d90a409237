#pragma once

#include <QString>

#include <vector>

// Searching in a text. Positions are offsets in UTF-16, as those of a text document.

namespace quillmere {

struct SourceQuery {
    QString text; ///< empty: finds nothing
    bool matchesCase = false;
    bool wholeWords = false;

    [[nodiscard]] bool operator==(const SourceQuery&) const = default;
};

/// Where the query is found, from left to right; hits do not overlap. Each is as long as its text.
[[nodiscard]] std::vector<int> findAll(const QString& text, const SourceQuery& query);

/// The hit to go to from `position`: with `forward` the first that begins at or behind it, else the
/// last that begins ahead of it; at an end the search goes on from the other one. `hits` must not
/// be empty. Returns its index.
[[nodiscard]] std::size_t hitFrom(const std::vector<int>& hits, int position, bool forward);

/// The text with each hit replaced.
[[nodiscard]] QString replaceHits(
    const QString& text, const std::vector<int>& hits, int length, const QString& replacement);

} // namespace quillmere
