// The texts of failures with files. Held by files_test.cpp.

#include "document/platform/file_failures.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere {
namespace {

struct Reason {
    std::errc code;
    std::string_view text;
};
// A file is replaced by a new one, so that a folder can refuse it as well.
constexpr std::string_view kRefused
    = "der Zugriff darauf oder auf den übergeordneten Ordner ist verweigert";
constexpr std::array kReasons{
    Reason{std::errc::no_such_file_or_directory, "Datei oder Ordner gibt es nicht"},
    Reason{std::errc::permission_denied, kRefused},
    Reason{std::errc::operation_not_permitted, kRefused},
    Reason{std::errc::is_a_directory, "es ist ein Ordner"},
    Reason{std::errc::file_exists, "es gibt schon eine Datei mit diesem Namen"},
    Reason{std::errc::not_a_directory, "ein Teil des Pfades ist kein Ordner"},
    Reason{std::errc::no_space_on_device, "der Datenträger ist voll"},
    Reason{std::errc::file_too_large, "die Datei wird zu groß"},
    Reason{std::errc::read_only_file_system, "der Datenträger ist schreibgeschützt"},
    Reason{std::errc::filename_too_long, "der Name ist zu lang"},
    Reason{std::errc::too_many_symbolic_link_levels, "die Verknüpfungen führen im Kreis"},
    Reason{std::errc::too_many_files_open, "es sind zu viele Dateien offen"},
    Reason{std::errc::io_error, "der Datenträger meldet einen Fehler"},
};

std::string describe(std::error_code reason)
{
    const auto* const found = std::find_if(kReasons.begin(), kReasons.end(),
        [&](const Reason& row) { return reason == std::make_error_condition(row.code); });
    if (found != kReasons.end()) return std::string(found->text);
    return "Systemfehler " + std::to_string(reason.value());
}

FileFailure failureOf(const std::string& path, std::string_view action, std::error_code reason)
{
    const auto text = "Die Datei „" + path + "“ kann nicht " + std::string(action)
        + " werden: " + describe(reason) + ". Es wurde nichts geändert.";
    return FileFailure{text};
}

} // namespace

FileFailure cannotRead(const std::string& path, std::error_code reason)
{
    return failureOf(path, "gelesen", reason);
}

FileFailure cannotWrite(const std::string& path, std::error_code reason)
{
    return failureOf(path, "geschrieben", reason);
}

FileFailure cannotMakeDirectory(const std::string& path, std::error_code reason)
{
    const auto text
        = "Der Ordner „" + path + "“ kann nicht angelegt werden: " + describe(reason) + ".";
    return FileFailure{text};
}

} // namespace quillmere
