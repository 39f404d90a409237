#pragma once

#include "document/session.h"

#include <optional>
#include <string>

namespace quillmere::cli {

/// Why the file `path` is hardly a deck; nullopt where it looks like one. Any bytes become a deck,
/// with a card of its own where they have none, and that is worth a word. `session` has it open.
[[nodiscard]] std::optional<std::string> doubtAbout(
    const std::string& path, const DocumentSession& session);

/// The deck as the conversion read it.
[[nodiscard]] std::string readDeckOf(const DocumentSession& session);

} // namespace quillmere::cli
