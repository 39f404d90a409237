#pragma once

#include "document/text/output_rules.h"

#include <string>

namespace quillmere {

/// Normalises the text of one area as the editing surface left it: pairs are completed, orphans
/// removed, the do block and the card's end put last. In place.
/// Throws InvalidArgument for a list of options without any end, Overflow.
void CleanDesignHtml(std::string& text, const OutputRules& rules);

} // namespace quillmere
