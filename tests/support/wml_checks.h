#pragma once

#include <string>

namespace quillmere::test {

/// What a repair of the deck file `bytes` breaks of its promises, told by the readers of
/// document/changes, which share no code with it: the result is well-formed, no letter of the text
/// is lost or out of its order, a second repair changes nothing, and a well-formed deck without
/// mends stays as it is. "" if it keeps them all. Takes any bytes.
[[nodiscard]] std::string brokenPromise(const std::string& bytes);

} // namespace quillmere::test
