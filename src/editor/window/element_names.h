#pragma once

#include <QString>

#include <string_view>

namespace quillmere {

/// Elements of this name as a person knows them: "Eingabefelder <input>". Others are unknown
/// elements: "Unbekannte Elemente <blink>".
[[nodiscard]] QString shownElement(std::string_view name);

} // namespace quillmere
