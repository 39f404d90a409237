#pragma once

#include "document/platform/settings_store.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// A telephone that a preview skin can be made from, with the bounds of its display in pixels.
struct UserDevice {
    std::int16_t MinHeight = 0;
    std::int16_t MinWidth = 0;
    std::int16_t MaxHeight = 0;
    std::int16_t MaxWidth = 0;
    std::int16_t DefaultHeight = 0;
    std::int16_t DefaultWidth = 0;
    std::string Name;
    std::string Producer;
    std::string Group;
    bool Used = false;
};

/// Reads the devices of UserDef.ini, Windows-1252 text of one tag a line, and a blank spare one at
/// the end. A line's tags and attributes are found in any case:
///
///     <Geraet Name=C35>
///     <Representation Producer=Siemens Group=35>
///     <Min Height=20 Width=40>
///     <Max Height=120 Width=200>
///     <Default Height=50 Width=101>
///
/// Throws TypeMismatch for a height or width that is no number and Overflow for one beyond 16 bits.
[[nodiscard]] std::vector<UserDevice> readUserDevices(std::string_view text);

/// Replaces `devices` by those of UserDef.ini in the directory that the setting `Skins` names;
/// without that setting they stay. Throws FileFailure and like readUserDevices; `devices` then
/// stay.
void ReadUserDevices(std::vector<UserDevice>& devices, const SettingsStore& settings);

} // namespace quillmere
