#pragma once

#include "document/settings_store.h"

#include <map>
#include <string>

namespace quillmere::test {

class SettingsInMemory final : public SettingsStore {
public:
    SettingsInMemory() = default;
    explicit SettingsInMemory(std::map<std::string, std::string, std::less<>> values)
        : values_(std::move(values))
    {
    }
    [[nodiscard]] std::string ReadSetting(std::string_view name) const override
    {
        const auto found = values_.find(name);
        return found == values_.end() ? std::string() : found->second;
    }
    void WriteSetting(std::string_view name, std::string_view value) override
    {
        values_.insert_or_assign(std::string(name), std::string(value));
    }

private:
    std::map<std::string, std::string, std::less<>> values_;
};

} // namespace quillmere::test
