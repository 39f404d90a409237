#pragma once

#include "document/platform/settings_store.h"

#include <QSettings>

#include <string>
#include <string_view>

namespace quillmere {

/// The file of this person's settings.
[[nodiscard]] QString settingsFile();

/// The persistent settings of this person. Values are bytes, be they text in Windows-1252 or paths,
/// and come back as they were given. Where the file cannot be written every setting reads as "".
class clsRegistry final : public SettingsStore {
public:
    /// Makes the file with its folders where it is not there.
    explicit clsRegistry(const QString& file = settingsFile());

    /// The value without a zero byte at its end; "" for more than 1024 bytes.
    [[nodiscard]] std::string ReadSetting(std::string_view name) const override;
    void WriteSetting(std::string_view name, std::string_view value) override;

private:
    QSettings store_;
    bool isUsable_ = false;
};

} // namespace quillmere
