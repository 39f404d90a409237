#pragma once

#include <QString>

#include <string_view>

// What the surface says of markers that are items of the page: atoms and groups.

namespace quillmere {

/// A short name: "Zeitgeber 10 s", "Kommentar", the title of a group. For an element that is not
/// known, and for a tag that is no marker, its name, shortened: "timer" for <timer value="10">.
[[nodiscard]] QString markerLabel(std::string_view source);

/// What it means, as rich text for a tool tip, with its source in the deck.
[[nodiscard]] QString markerToolTip(std::string_view source);

/// An <input> as the surface shows it.
struct InputField {
    QString text;
    bool isValue = false; ///< else it tells what is to be typed
    int columns = 0;
};
[[nodiscard]] bool isInputAtom(std::string_view source);
[[nodiscard]] InputField inputField(std::string_view source);

/// Which end of which group a marker is.
enum class GroupPart { None, Options, FieldsStart, FieldsEnd };
[[nodiscard]] GroupPart groupPart(std::string_view source);

} // namespace quillmere
