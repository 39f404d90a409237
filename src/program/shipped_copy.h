#pragma once

#include <string>

namespace quillmere {

/// Brings a person's own copy of a folder up to what the program ships now. Files that the person
/// has not changed are replaced, new and missing ones are added, and those that the person changed
/// stay as they are, for which a list of what was copied lies in the copy. With a text of the
/// resources its compiled form goes. What cannot be written stays as it was.
///
/// Both directories have their separators and exist; `copy` may be one that was made without such
/// a list.
void renewShippedCopy(const std::string& shipped, const std::string& copy);

} // namespace quillmere
