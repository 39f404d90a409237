// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/deck_ids.h"

#include <algorithm>

namespace quillmere::wml {

DeckIds idsOf(const WmlTree& tree)
{
    DeckIds ids;
    for (std::uint32_t i = 0; i < tree.tokens.size(); ++i) {
        if (!tree.tokens[i].hasId) continue;
        if (const auto id = attributeValue(tree.textOf(i), "id")) ids.taken.emplace(*id);
    }
    return ids;
}

std::string freeId(DeckIds& ids, std::string_view wanted)
{
    std::string id(wanted);
    if (ids.taken.insert(id).second) return id;
    auto& number = ids.lastNumbers[id];
    number = std::max<std::size_t>(number, 1);
    do {
        id = std::string(wanted) + std::to_string(++number);
    } while (!ids.taken.insert(id).second);
    return id;
}

} // namespace quillmere::wml
