// Any bytes as "UserDef.ini": the list always ends in a spare entry.

#include "fuzz_target.h"

#include "document/text/failure.h"
#include "skins/user_devices.h"

#include <string>

using namespace quillmere;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        fuzz::require(!readUserDevices(std::string(data, data + size)).empty());
    } catch (const RuntimeFailure&) {
        // a size that is no number of 16 bits
    }
    return 0;
}
