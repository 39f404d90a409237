#include "document/platform/settings_store.h"

#include "document/text/windows1252.h"

namespace quillmere {

bool isYes(const SettingsStore& settings, std::string_view name)
{
    return lowerCase(settings.ReadSetting(name)) == "yes";
}

} // namespace quillmere
