#pragma once

#include <cstddef>
#include <string>

// The radio buttons that stand ahead of the entries of selection lists while an area is edited.
// Both operations keep the text of the options as it is; no line breaks are placed.

namespace quillmere {

/// Puts a radio button behind each option marker, in place, numbered through the whole text:
/// `<input type=radio name="TempName1">`, with an `onclick` that tells the option's target.
/// Throws Overflow.
void InsertTemporaeryRadioButtons(std::string& text);
/// The same with another limit of the text's length.
void insertRadioButtons(std::string& text, std::size_t limit);

/// Takes the radio buttons out of all options that have an end, in place.
void DeleteAllTemporaeryRadioButtons(std::string& text);

} // namespace quillmere
