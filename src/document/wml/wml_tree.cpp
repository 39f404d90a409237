// The tokens are mended one by one first, then hung into the tree. Held by
// tests/document/wml/wml_mends_test.cpp.

#include "document/wml/wml_tree.h"

#include "document/wml/token_pass.h"
#include "document/wml/tree_builder.h"

#include <utility>

namespace quillmere {

WmlTree buildWmlTree(std::vector<WmlToken> tokens, const DeckBytes& deck)
{
    WmlTree tree;
    tree.tokens = std::move(tokens);
    wml::mendTokens(tree, deck);
    wml::TreeBuilder(tree, deck).build();
    return tree;
}

} // namespace quillmere
