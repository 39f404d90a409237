#pragma once

#include "document/session.h"

#include <string>

namespace quillmere {

/// Turns cleaned design HTML back into WML 1.1, in place; sizes of pictures go into their entries.
/// Throws InvalidArgument for a value without its closing quote, TypeMismatch, Overflow.
void DesignToWml(std::string& text, DocumentSession& session);

} // namespace quillmere
