#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Markup that is put in at an offset of a page's text.
struct PlacedMarkup {
    std::size_t offset = 0;
    std::string markup;
};

/// Formats round a place that end in the markup that is put in there, and begin again in it.
struct FormatCut {
    std::string ends; ///< their tags; empty where nothing is cut
    std::string starts;
    std::size_t firstEnd = 0; ///< where in the markup they end for the first time
    std::size_t lastStart = 0; ///< and where they begin for the last time
};

/// The pieces of the markup, put in so that no format is left without text: in "<b>|x</b>" a list
/// goes ahead of the "<b>", and not between a "<b></b>" and another one.
[[nodiscard]] std::vector<PlacedMarkup> piecesOf(
    const std::string& markup, const FormatCut& cut, std::string_view text, std::size_t offset);

} // namespace quillmere
