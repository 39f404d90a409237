#include "document/settings_store.h"

#include "document/windows1252.h"

namespace quillmere {

bool isYes(const SettingsStore& settings, std::string_view name)
{
    return lowerCase(settings.ReadSetting(name)) == "yes";
}

} // namespace quillmere
