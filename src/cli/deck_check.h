#pragma once

#include "document/session.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere::cli {

/// Why the file `path` with the text `deck` is hardly a deck; nullopt where it looks like one. Any
/// bytes become a deck, with a card of its own where they have none, and that is worth a word.
[[nodiscard]] std::optional<std::string> doubtAbout(const std::string& path, std::string_view deck);

/// The deck as the conversion read it.
[[nodiscard]] std::string readDeckOf(const DocumentSession& session);

} // namespace quillmere::cli
