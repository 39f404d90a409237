// Any bytes as a deck file: read and written as they are, mended into a well-formed deck once, no
// letter lost. Decks with another encoding are so by their mark or declaration.

#include "fuzz_target.h"

#include "support/wml_checks.h"

#include <string>

using namespace quillmere;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::require(test::brokenPromise(std::string(data, data + size)).empty());
    return 0;
}
