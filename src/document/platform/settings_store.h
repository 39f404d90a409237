#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// The persistent settings: texts by name. A name that is missing reads as "", and what cannot be
/// written is dropped in silence.
class SettingsStore {
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;
    SettingsStore(SettingsStore&&) = delete;
    SettingsStore& operator=(SettingsStore&&) = delete;
    virtual ~SettingsStore() = default;

    [[nodiscard]] virtual std::string ReadSetting(std::string_view name) const = 0;
    virtual void WriteSetting(std::string_view name, std::string_view value) = 0;
};

/// Whether a setting of the kind "Yes"/"No" is set: its lower-cased value is "yes".
[[nodiscard]] bool isYes(const SettingsStore& settings, std::string_view name);

} // namespace quillmere
