#pragma once

#include "document/platform/paths.h"

#include <optional>
#include <string>
#include <string_view>

// Which names and paths a person may give. Names are Windows-1252 text; letters beyond a to z, ä, ö
// and ü are refused, since the rules are those of code page 850, where just these three are let
// through. Upper and lower case pass alike and are kept.

namespace quillmere {

/// The name of a deck's file as it is taken: cut at its point and with ".wml" behind it, so that
/// "seite.txt" gives "seite.wml". nullopt: refused, as an empty name, one with two points and one
/// with a sign other than "-", "_" and the blank.
[[nodiscard]] std::optional<std::string> CheckFileName(std::string_view name);

/// A path as it is taken: "C:daten" gives "C:\daten", and all from its first point on is cut.
/// nullopt: refused, as a path without drive ("/" at its begin), with "\\" ("//") or with a sign
/// that a file name may not have.
[[nodiscard]] std::optional<std::string> CheckPath(
    std::string_view path, PathStyle style = kNativePathStyle);

/// The same, but control characters and refused characters from code 123 on are taken out ahead of
/// the check. nullopt also where nothing is left.
[[nodiscard]] std::optional<std::string> CheckPathSpecial(
    std::string_view path, PathStyle style = kNativePathStyle);

} // namespace quillmere
