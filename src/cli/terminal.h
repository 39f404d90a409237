#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Standard input and output. Texts are UTF-8 here and come out in the terminal's encoding; bytes
// pass as they are. A stream that cannot be read or written is FileFailure.

namespace quillmere::cli {

void print(std::string_view utf8);
/// Prints UTF-8 whatever the terminal's encoding, as formats with a prescribed encoding want it.
void printBytes(std::string_view bytes);
/// A line on standard error, with the program's name ahead of it.
void complain(std::string_view utf8);
/// All of standard input. Throws Overflow beyond `maxBytes`, of which no more is read.
[[nodiscard]] std::string readStandardInput(std::size_t maxBytes);
/// Makes sure that all that was printed has been taken.
void finishOutput();

} // namespace quillmere::cli
