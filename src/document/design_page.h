#pragma once

#include "document/session.h"

#include <cstdint>
#include <string>
#include <string_view>

// The frame of a design work file: the lines of a page round the content of an area.

namespace quillmere {

/// The ground of pages without a current device, red in the low byte.
inline constexpr std::int32_t kDefaultPageColour = 2391815;

enum class PageSection { Head = 1, Tail = 2 };
inline constexpr int kHeadLineCount = 5; ///< of a design work file
inline constexpr int kTailLineCount = 3; ///< of a design work file

/// Line `index`, from 1, of a design work file's frame; "" for any other index. The font family of
/// the current device is trimmed in its field.
[[nodiscard]] std::string DesignPageLine(
    DocumentSession& session, int surfaceKind, PageSection section, int index);

/// All lines of a section, each with CR LF; a line that contains `skipped` (lower case, "": none)
/// in any case is left out.
[[nodiscard]] std::string designPageLines(
    DocumentSession& session, int surfaceKind, PageSection section, std::string_view skipped = {});

} // namespace quillmere
