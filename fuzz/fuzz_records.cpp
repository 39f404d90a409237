// Any bytes as profiles, skins, preview skins and outlines: all whole records come back as they
// were.

#include "fuzz_target.h"

#include "skins/skin_records.h"
#include "upload/profiles.h"

#include <string>

using namespace quillmere;

namespace {

template <typename Record> void requireSameBytes(const std::string& bytes)
{
    const auto records = readRecords<Record>(bytes);
    fuzz::require(records.size() == bytes.size() / Record::kSize + 1);
    std::string again;
    for (std::size_t i = 0; i + 1 < records.size(); ++i)
        appendRecord(again, records[i]);
    fuzz::require(again == bytes.substr(0, again.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    requireSameBytes<ProfileRecord>(bytes);
    requireSameBytes<SkinRecord>(bytes);
    requireSameBytes<PreviewSkinRecord>(bytes);
    requireSameBytes<DevicePoint>(bytes);
    fuzz::require(profileBytes(readProfiles(bytes)) == bytes.substr(0, bytes.size() / 1810 * 1810));
    return 0;
}
