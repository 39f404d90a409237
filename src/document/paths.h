#pragma once

#include "document/session.h"

#include <string>
#include <string_view>

// Paths and small texts, with the exact rules of what is taken. A directory ends in its separator.

namespace quillmere {

/// Which platform's paths a rule is about; the program runs with the native one.
enum class PathStyle { Windows, Posix };
inline constexpr PathStyle kNativePathStyle = PathStyle::Posix;

struct SplitPathResult {
    std::string directory; ///< with its separator; empty where the path has none
    std::string name;
};
[[nodiscard]] SplitPathResult SplitPath(std::string_view path);

/// The path made absolute, with a separator at its end.
[[nodiscard]] std::string NormalisePath(std::string_view path);

} // namespace quillmere
