#pragma once

#include "document/text/output_rules.h"

#include <string>

namespace quillmere {

/// Writes all text in 7 bits, in place: German letters as plain ones and all else from code 127 on
/// as a blank; by the standard rules each such character as a numeric character reference.
void TransliterateGerman(std::string& text, const OutputRules& rules);

} // namespace quillmere
