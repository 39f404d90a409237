#pragma once

#include "support/small_random.h"

#include <functional>
#include <string>

// Edits of areas of decks that are opened without loss, held against what their files must be.

namespace quillmere::test {

struct StandardEdit {
    std::string name;
    std::string text; ///< of the area, edited
    bool mayBreakRules = false; ///< a valid deck may become invalid by it
};

/// Makes an edit at a random place of the design text of an area.
using EditArea = std::function<StandardEdit(SmallRandom& random, const std::string& text)>;

/// Edits an area of a generated deck and expects that the deck needs no mends, is well-formed, and
/// is valid if it was: one in `plainEvery` decks keeps the rules of WML, the others have all
/// elements, with values of any kind.
void expectGoodDecks(std::uint64_t decks, std::uint64_t plainEvery, const EditArea& edit);

} // namespace quillmere::test
