#pragma once

#include "forms/session.h"
#include "program/recovery.h"

#include <string>

namespace quillmere {

/// Offers the decks of runs below `parent` that did not end by themselves, newest first, until one
/// was opened; it then is the open deck and counts as changed. A deck that the person does not want
/// is removed or kept for the next start, as the person likes. True where a deck was opened.
bool offerCrashedRuns(Session& session, const std::string& parent);

} // namespace quillmere
