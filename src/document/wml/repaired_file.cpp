// Held by tests/document/wml/repaired_file_test.cpp.

#include "document/wml/repaired_file.h"

#include "document/text/limits.h"
#include "document/wml/wml_tree.h"

#include <utility>

namespace quillmere {

RepairedFile repairFile(std::string bytes)
{
    requireDeckLength(bytes.size());
    const DeckBytes deck(std::move(bytes));
    WmlTree tree = buildWmlTree(readWmlTokens(deck.text()), deck);
    if (tree.mends.empty()) return {deck.file(), {}};
    for (WmlMend& mend : tree.mends) {
        mend.before = deck.decoded(mend.before);
        mend.after = deck.decoded(mend.after);
    }
    return {deck.fileOf(writeWml(tree, deck)), std::move(tree.mends)};
}

} // namespace quillmere
