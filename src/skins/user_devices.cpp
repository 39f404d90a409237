// Each line is tested for each tag, wherever in the line it stands, and a value has no quotes
// around it: it ends at the next blank or '>'. Held by skin_files_test.cpp.

#include "skins/user_devices.h"

#include "document/platform/files.h"
#include "document/text/failure.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace quillmere {

namespace {

struct SizeTag {
    std::string_view tag;
    std::int16_t UserDevice::*height;
    std::int16_t UserDevice::*width;
};

constexpr std::array kSizeTags = {
    SizeTag{"<max", &UserDevice::MaxHeight, &UserDevice::MaxWidth},
    SizeTag{"<min", &UserDevice::MinHeight, &UserDevice::MinWidth},
    SizeTag{"<default", &UserDevice::DefaultHeight, &UserDevice::DefaultWidth},
};

constexpr std::string_view kDeviceTag = "<geraet";

/// The value of the attribute that is looked for from `from` on; "" where that is not in the line.
/// It starts behind the first blank or '=', whichever comes first: `Name=C35` gives "C35", and
/// `Name =C35` gives "=C35".
std::string_view valueFrom(std::string_view line, std::size_t from)
{
    if (from >= line.size()) return {};
    const auto delimiter = line.find_first_of(" =", from);
    if (delimiter == npos) return {};
    const auto value = line.substr(delimiter + 1);
    return value.substr(0, value.find_first_of(" >"));
}

std::string_view valueOf(std::string_view line, std::string_view attribute)
{
    return valueFrom(line, findIgnoringCase(line, attribute));
}

std::int16_t numberIn(std::string_view text)
{
    if (text.starts_with('+')) text.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument || end != text.data() + text.size())
        throw TypeMismatch();
    using Limits = std::numeric_limits<std::int16_t>;
    if (error != std::errc() || number < Limits::min() || number > Limits::max()) throw Overflow();
    return static_cast<std::int16_t>(number);
}

/// Takes from the line what it tells of `device`.
void readLine(std::string_view line, UserDevice& device)
{
    if (findIgnoringCase(line, "<representation") != npos) {
        device.Producer = valueOf(line, "producer");
        device.Group = valueOf(line, "group");
        device.Used = false;
    }
    for (const auto& row : kSizeTags) {
        if (findIgnoringCase(line, row.tag) == npos) continue;
        device.*row.height = numberIn(valueOf(line, "height"));
        device.*row.width = numberIn(valueOf(line, "width"));
    }
}

/// Cuts the next line off `text`; it ends at CR or LF, so that CR LF leaves an empty line behind.
std::string_view takeLine(std::string_view& text)
{
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

} // namespace

std::vector<UserDevice> readUserDevices(std::string_view text)
{
    std::vector<UserDevice> devices(1);
    while (!text.empty()) {
        const auto line = takeLine(text);
        const auto tag = findIgnoringCase(line, kDeviceTag);
        if (tag != npos) {
            devices.back().Name = valueFrom(line, tag + kDeviceTag.size() + 1);
            devices.emplace_back();
        }
        // What stands ahead of the first device belongs to none.
        if (devices.size() > 1) readLine(line, devices[devices.size() - 2]);
    }
    return devices;
}

void ReadUserDevices(std::vector<UserDevice>& devices, const SettingsStore& settings)
{
    const std::string directory = settings.ReadSetting("Skins");
    if (directory.empty()) return;
    devices = readUserDevices(readFile(directory + "UserDef.ini"));
}

} // namespace quillmere
