// Held by tests/cli/repair_test.cpp.

#include "document/standard/deck_file.h"

#include "document/platform/files.h"
#include "document/text/limits.h"

namespace quillmere {

std::string readStandardFile(const std::string& path)
{
    try {
        return readFile(path, kMaxLosslessDeckLength);
    } catch (const Overflow&) {
        throw DeckTooLong();
    }
}

} // namespace quillmere
