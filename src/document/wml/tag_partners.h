#pragma once

#include "document/wml/wml_token.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmere::wml {

inline constexpr std::uint32_t kNoPartner = std::numeric_limits<std::uint32_t>::max();

/// A number for each name of an element: that of the WmlElement, or one of its own for others.
class ElementNumbers {
public:
    [[nodiscard]] std::uint32_t of(const WmlToken& tag);

private:
    std::unordered_map<std::string_view, std::uint32_t> others_;
};

/// Which end tag belongs to which start tag.
struct TagPartners {
    /// The tokens are one element with all nested as it should be, and what may stand around it.
    bool isWellFormed = false;
    std::vector<std::uint32_t> of; ///< by token, both ways; kNoPartner for those without
    std::vector<std::uint32_t> emptied; ///< start tags of empty elements that lack their "/"
};

/// In what is not well-formed, a start and an end have found each other where all tags of their
/// name between two tags of cards do; a fault of one name leaves those of the others alone. Tags of
/// <wml> and <card> have no partners there.
[[nodiscard]] TagPartners findTagPartners(
    std::span<const WmlToken> tokens, ElementNumbers& numbers);

} // namespace quillmere::wml
