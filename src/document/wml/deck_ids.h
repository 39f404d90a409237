#pragma once

#include "document/wml/wml_tree.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace quillmere::wml {

/// The ids of a deck, with those that were given anew.
struct DeckIds {
    std::unordered_set<std::string> taken;
    std::unordered_map<std::string, std::size_t> lastNumbers; ///< by the id that got them

    [[nodiscard]] bool empty() const { return taken.empty(); }
};

[[nodiscard]] DeckIds idsOf(const WmlTree& tree);

/// `wanted`, or if it is taken with the first number from 2 that is free; taken from now on.
[[nodiscard]] std::string freeId(DeckIds& ids, std::string_view wanted);

} // namespace quillmere::wml
