#pragma once

#include <string>

// Slow versions of the conversions between WML and design HTML, for areas without pictures, by the
// default rules. Limits of length are not looked at. Both throw std::runtime_error for a value
// without its closing quote.

namespace quillmere::literal {

/// Image tags stay as they are. Returns whether a card tag became a card marker.
bool WmlToDesign(std::string& text);

/// Image tags become "</img>".
void DesignToWml(std::string& text);

} // namespace quillmere::literal
