#pragma once

#include <string>

// Slow versions of the placing and taking out of the temporary radio buttons of selection lists.

namespace quillmere::literal {

void InsertTemporaeryRadioButtons(std::string& text);
void DeleteAllTemporaeryRadioButtons(std::string& text);

} // namespace quillmere::literal
