#pragma once

#include <string>

// The radio buttons that stand ahead of the entries of selection lists while an area is edited.

namespace quillmere {

/// Puts a numbered radio button behind each option marker, in place.
void InsertTemporaeryRadioButtons(std::string& text);

/// Takes the radio buttons out of all options, in place.
void DeleteAllTemporaeryRadioButtons(std::string& text);

} // namespace quillmere
