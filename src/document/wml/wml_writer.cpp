// One walk over the nodes, without recursion: decks may be as deep as they are long. Held by
// tests/document/wml/wml_mends_test.cpp.

#include "document/wml/wml_tree.h"

namespace quillmere {

namespace {

class WmlWriter {
public:
    WmlWriter(const WmlTree& tree, std::size_t length)
        : tree_(tree)
    {
        text_.reserve(length + length / 16);
    }

    std::string run()
    {
        std::uint32_t at = 0;
        do {
            begin(at);
            if (tree_.nodes[at].firstChild != kNoNode) {
                at = tree_.nodes[at].firstChild;
            } else {
                at = endUpwards(at);
            }
        } while (at != 0);
        return std::move(text_);
    }

private:
    void begin(std::uint32_t at)
    {
        const WmlNode& node = tree_.nodes[at];
        if (node.start == kNoToken) return;
        if (node.kind == WmlNode::Kind::Text) {
            writeWord(tree_.textOf(node.start));
        } else {
            text_ += tree_.textOf(node.start);
        }
    }

    /// Between "]]" and ">" something may have stood that went.
    void writeWord(std::string_view word)
    {
        const auto brackets = word.starts_with('>') ? 0U : word.starts_with("]>") ? 1U : 2U;
        if (brackets == 2 || !text_.ends_with(brackets == 0 ? "]]" : "]")) {
            text_ += word;
            return;
        }
        text_.append(word.substr(0, brackets)).append("&gt;").append(word.substr(brackets + 1));
    }

    /// Ends a node and those around it that have no further child; returns what comes then.
    std::uint32_t endUpwards(std::uint32_t at)
    {
        while (true) {
            const WmlNode& node = tree_.nodes[at];
            if (node.kind == WmlNode::Kind::Element) end(node);
            if (node.next != kNoNode) return node.next;
            if (node.parent == kNoNode) return 0;
            at = node.parent;
        }
    }

    void end(const WmlNode& node)
    {
        if (node.start == kNoToken) return;
        const WmlToken& start = tree_.tokens[node.start];
        if (node.end != kNoToken) {
            text_ += tree_.textOf(node.end);
        } else if (start.kind == WmlToken::Kind::StartTag) {
            const auto name = ruleOf(start.element).name;
            text_.append("</").append(name.empty() ? start.name : name).append(">");
        }
    }

    const WmlTree& tree_;
    std::string text_;
};

} // namespace

std::string writeWml(const WmlTree& tree, const DeckBytes& deck)
{
    return WmlWriter(tree, deck.text().size()).run();
}

} // namespace quillmere
