#pragma once

#include "document/text/output_rules.h"

#include <QMimeData>
#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <variant>

// What goes through the clipboard and through drag and drop.

namespace quillmere {

/// The design markup of an area's piece, Windows-1252.
inline constexpr auto kDesignMimeType = "application/x-quillmere-design";

/// A piece of an area in all its forms: as design markup, as HTML for others, and as text.
[[nodiscard]] std::unique_ptr<QMimeData> clipOf(const std::string& markup, const QString& text);

/// What an area can take: markup, or text to be typed.
using ClipContent = std::variant<std::monostate, std::string, QString>;

/// Whether contentOf() finds something.
[[nodiscard]] bool holdsContent(const QMimeData& clip);

/// The content of a clip: design markup as it is; HTML from elsewhere in the formats that an area
/// has, all else of it as its text; plain text with its line ends. Nothing where there is none of
/// them. Throws Overflow for a text that no area could take.
[[nodiscard]] ClipContent contentOf(
    const QMimeData& clip, const OutputRules& rules = OutputRules());

/// HTML from elsewhere as markup of an area: b, i, u, big, small, a, and a break for each block.
[[nodiscard]] std::string designMarkupOf(const QString& html);

} // namespace quillmere
