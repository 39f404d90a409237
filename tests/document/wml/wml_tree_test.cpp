#include "document/wml/wml_tree.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

/// The tree in a form that shows who stands in whom: wml(card(p("a")))
std::string shown(const WmlTree& tree, std::uint32_t at = 0)
{
    std::string text;
    for (auto child = tree.nodes[at].firstChild; child != kNoNode; child = tree.nodes[child].next) {
        const WmlNode& node = tree.nodes[child];
        EXPECT_EQ(node.parent, at);
        EXPECT_LT(at, child);
        if (!text.empty()) text += ' ';
        if (node.kind == WmlNode::Kind::Element) {
            text.append(tree.tokens[node.start].name).append("(") += shown(tree, child) + ")";
        } else {
            text.append("\"").append(tree.textOf(node.start)).append("\"");
        }
    }
    return text;
}

TEST(WmlTree, HangsTokensWhereTheyStandOrBelong)
{
    const char* const rows[][2]
        = {{"<wml><card><p>a <b>b</b></p></card></wml>", R"(wml(card(p("a" " " b("b")))))"},
            {"<wml><card>a\n<p/></card></wml>", "wml(card(p(\"a\") \"\n\" p()))"},
            {"a<card>b<!--c--></card>", R"(wml(card(p("a")) card(p("b" "<!--c-->"))))"}};
    for (const auto& row : rows) {
        const DeckBytes deck(row[0]);
        const auto tree = buildWmlTree(readWmlTokens(deck.text()), deck);
        EXPECT_EQ(shown(tree), row[1]);
    }
}

} // namespace
} // namespace quillmere
