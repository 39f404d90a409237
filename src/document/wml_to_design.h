#pragma once

#include "document/session.h"

#include <cstddef>
#include <string>

namespace quillmere {

/// Turns WML 1.1 into design HTML, in place. Pictures are registered with the area `areaIndex`.
/// Returns whether a card tag became a card marker. Throws InvalidArgument for a value without its
/// closing quote (a link may do without), TypeMismatch for a size that is no number, Overflow. The
/// text is then as it was, while pictures that were registered so far stay.
/// Without a record for `areaIndex` all image tags stay as they are.
bool WmlToDesign(std::string& text, std::size_t areaIndex, DocumentSession& session);

} // namespace quillmere
