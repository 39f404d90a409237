// White space is looked up first, once for the whole tree; then it is put ahead of the tags that
// lack it. Only elements that hold no text have white space that means nothing. Held by
// standard_road_test.cpp.

#include "document/standard/new_layout.h"

#include <array>
#include <string>
#include <string_view>

namespace quillmere {

namespace {

constexpr std::size_t kElementCount = static_cast<std::size_t>(WmlElement::Small) + 1;

/// The white space in the elements of one kind, "" for none.
struct Layout {
    std::string_view aheadOfChild;
    std::string_view aheadOfEnd;
};

class NewLayout {
public:
    NewLayout(WmlTree& tree, std::uint32_t firstMended, bool isBegun)
        : tree_(tree)
        , firstMended_(firstMended)
    {
        if (!isBegun) return;
        layouts_.at(static_cast<std::size_t>(WmlElement::Wml)) = {"\r\n", "\r\n"};
        layouts_.at(static_cast<std::size_t>(WmlElement::Card)) = {"\r\n", "\r\n"};
    }
    void run()
    {
        forEachParent([this](const WmlNode& parent) { learn(parent); });
        forEachParent([this](const WmlNode& parent) { layOut(parent); });
    }

private:
    template <class Action> void forEachParent(const Action& action)
    {
        for (const auto& node : tree_.nodes) {
            const bool isParent = node.kind == WmlNode::Kind::Element && node.start != kNoToken
                && node.firstChild != kNoNode && node.element != WmlElement::Other;
            if (isParent && !ruleOf(node.element).holdsText) action(node);
        }
    }
    void learn(const WmlNode& parent);
    void layOut(const WmlNode& parent);
    [[nodiscard]] std::string_view spaceBesideIn(const WmlNode& parent) const;
    [[nodiscard]] std::string_view lineOf(std::uint32_t node) const;
    [[nodiscard]] bool isNew(std::uint32_t token) const
    {
        return token != kNoToken && (token >= firstMended_ || tree_.tokens[token].isNew);
    }
    [[nodiscard]] bool isElement(std::uint32_t node) const
    {
        return node != kNoNode && tree_.nodes[node].kind == WmlNode::Kind::Element;
    }
    void write(std::uint32_t token, std::string text);
    Layout& layoutOf(const WmlNode& parent)
    {
        return layouts_.at(static_cast<std::size_t>(parent.element));
    }

    WmlTree& tree_;
    std::uint32_t firstMended_;
    std::array<Layout, kElementCount> layouts_{};
};

/// The white space that a node is, if it has a line end; else "".
std::string_view NewLayout::lineOf(std::uint32_t node) const
{
    if (node == kNoNode || tree_.nodes[node].kind != WmlNode::Kind::Text) return {};
    const auto text = tree_.textOf(tree_.nodes[node].start);
    const bool isSpace = text.find_first_not_of(" \t\r\n") == std::string_view::npos;
    return isSpace && text.find_first_of("\r\n") != std::string_view::npos ? text
                                                                           : std::string_view{};
}

/// The first white space in the element that stands ahead of a child of the file.
std::string_view NewLayout::spaceBesideIn(const WmlNode& parent) const
{
    for (auto child = parent.firstChild; child != kNoNode; child = tree_.nodes[child].next) {
        const auto behind = tree_.nodes[child].next;
        const auto line = lineOf(child);
        if (!line.empty() && isElement(behind) && !isNew(tree_.nodes[behind].start)) return line;
    }
    return {};
}

void NewLayout::learn(const WmlNode& parent)
{
    auto& layout = layoutOf(parent);
    if (isNew(parent.start)) return;
    if (layout.aheadOfChild.empty()) layout.aheadOfChild = spaceBesideIn(parent);
    if (!layout.aheadOfEnd.empty()) return;
    auto last = parent.firstChild;
    while (tree_.nodes[last].next != kNoNode)
        last = tree_.nodes[last].next;
    layout.aheadOfEnd = lineOf(last);
}

void NewLayout::layOut(const WmlNode& parent)
{
    auto ahead = kNoNode;
    std::string_view space = isNew(parent.start) ? std::string_view{} : spaceBesideIn(parent);
    if (space.empty()) space = layoutOf(parent).aheadOfChild;
    if (space.empty()) return;
    const std::string line(space);
    for (auto child = parent.firstChild; child != kNoNode; child = tree_.nodes[child].next) {
        const auto start = tree_.nodes[child].start;
        if (isElement(child) && isNew(start) && lineOf(ahead).empty())
            write(start, line + std::string(tree_.textOf(start)));
        ahead = child;
    }
    const auto end = layoutOf(parent).aheadOfEnd;
    if (isNew(parent.end) && lineOf(ahead).empty() && !end.empty())
        write(parent.end, std::string(end) + std::string(tree_.textOf(parent.end)));
}

void NewLayout::write(std::uint32_t token, std::string text)
{
    tree_.texts.push_back(std::move(text));
    tree_.tokens[token].mended = static_cast<std::uint32_t>(tree_.texts.size() - 1);
}

} // namespace

void layOutNewElements(WmlTree& tree, std::uint32_t firstMended, bool isBegun)
{
    NewLayout(tree, firstMended, isBegun).run();
}

} // namespace quillmere
