#pragma once

#include "document/text/failure.h"

#include <string>
#include <system_error>

namespace quillmere {

/// The failure to read `path`, with the system's reason in words.
[[nodiscard]] FileFailure cannotRead(const std::string& path, std::error_code reason);

/// The failure to write or make `path`, which is then as it was.
[[nodiscard]] FileFailure cannotWrite(const std::string& path, std::error_code reason);

/// The failure to make the directory `path`.
[[nodiscard]] FileFailure cannotMakeDirectory(const std::string& path, std::error_code reason);

} // namespace quillmere
