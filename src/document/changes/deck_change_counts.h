#pragma once

#include "document/changes/deck_changes.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillmere {

/// How often one name is concerned.
struct DeckChangeCount {
    std::string name; ///< "do", "select name" for an attribute, "/b" for an end tag; else ""
    DeckChange::Subject subject = DeckChange::Subject::Element;
    std::size_t lost = 0;
    std::size_t added = 0;
    std::size_t changed = 0;
    std::size_t moved = 0;
};

/// The changes counted: elements, their attributes and end tags by name, then words and the rest.
[[nodiscard]] std::vector<DeckChangeCount> countChanges(const DeckChangesReport& report);

} // namespace quillmere
