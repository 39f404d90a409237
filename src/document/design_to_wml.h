#pragma once

#include "document/picture_entries.h"
#include "document/session.h"

#include <string>

namespace quillmere {

/// Turns cleaned design HTML back into WML 1.1, in place; sizes of pictures go into their entries.
/// Throws InvalidArgument for a value without its closing quote, TypeMismatch, Overflow; text and
/// entries are then as they were.
void DesignToWml(std::string& text, DocumentSession& session);

/// The same with an index of the session's deck that serves one area after the other.
void DesignToWml(std::string& text, DocumentSession& session, DisplayCopyIndex& pictures);

} // namespace quillmere
