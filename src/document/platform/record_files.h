#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// The bytes of a file of records. A file that is not there is made, empty, as a file that is
/// opened for records always was. Throws FileFailure.
[[nodiscard]] std::string readRecordFile(const std::string& path);

/// Removes a file of records where it exists. Throws FileFailure; the file is then still there.
void removeRecordFile(const std::string& path);

} // namespace quillmere
