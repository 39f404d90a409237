#pragma once

#include "forms/messages.h"

#include <functional>

namespace quillmere {

/// Runs an event's routine. A failure ends it and is shown with the critical icon; false then.
bool trapped(Messages& messages, const std::function<void()>& routine);

} // namespace quillmere
