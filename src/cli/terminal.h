#pragma once

#include "document/text/failure.h"

#include <cstddef>
#include <string>
#include <string_view>

// Standard input and output. Texts are UTF-8 here and come out in the terminal's encoding; names of
// files, which have it already, may stand in them, and bytes pass as they are. An input that cannot
// be read is FileFailure, an output that cannot be written LostOutput.

namespace quillmere::cli {

/// Standard output takes nothing more, so that there is no use in going on.
class LostOutput : public FileFailure {
public:
    LostOutput();
};

/// The text with each control character as "?", as names of files may have them.
[[nodiscard]] std::string inOneLine(std::string_view utf8);

void print(std::string_view utf8);
/// Prints UTF-8 whatever the terminal's encoding, as formats with a prescribed encoding want it.
void printBytes(std::string_view bytes);
/// One line on standard error, with the program's name ahead of it.
void complain(std::string_view utf8);
/// All of standard input. Throws Overflow beyond `maxBytes`, of which no more is read.
[[nodiscard]] std::string readStandardInput(std::size_t maxBytes);
/// Makes sure that all that was printed has been taken; else LostOutput.
void finishOutput();

} // namespace quillmere::cli
