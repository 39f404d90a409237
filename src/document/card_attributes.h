#pragma once

#include "document/session.h"

#include <cstddef>
#include <string>
#include <string_view>

// A card's id and title and its jump, which stand in the markers of its design work file.

namespace quillmere {

struct CardAttributes {
    std::string id;
    std::string title;
};

/// A card's accept action; a part that is missing is empty.
struct Jump {
    std::string name;
    std::string label;
    std::string target; ///< "#" and a card id, or a URL
};

[[nodiscard]] CardAttributes GetCardAttributes(DocumentSession& session, std::size_t areaIndex);
void SetCardAttributes(
    DocumentSession& session, std::size_t areaIndex, std::string_view id, std::string_view title);
[[nodiscard]] Jump GetJump(DocumentSession& session, std::size_t areaIndex);
/// Sets the jump of an area. An empty name means "Sprung", with a number where that is taken.
void SetJump(DocumentSession& session, std::size_t areaIndex, const Jump& jump);
[[nodiscard]] bool JumpNameInUse(
    DocumentSession& session, std::size_t areaIndex, std::string_view name);

} // namespace quillmere
