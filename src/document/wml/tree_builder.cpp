// Well-formed decks go this way alone: what has its end is taken as it stands, and only what stands
// outside of cards and paragraphs gets them (mended_places.cpp). Broken ones ask broken_tags.cpp
// ahead of each tag. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/tree_builder.h"

#include "document/wml/token_pass.h"
#include "document/wml/wml_characters.h"

#include <algorithm>

namespace quillmere::wml {

namespace {

using Kind = WmlToken::Kind;

bool hasWords(std::string_view section)
{
    section.remove_prefix(std::string_view("<![CDATA[").size());
    section.remove_suffix(std::string_view("]]>").size());
    return std::any_of(
        section.begin(), section.end(), [](char c) { return !is(c, CharacterKind::Space); });
}

} // namespace

TreeBuilder::TreeBuilder(WmlTree& tree, const DeckBytes& deck)
    : tree_(tree)
    , deck_(deck)
    , partners_(findTagPartners(tree.tokens, numbers_))
{
    tree_.nodes.reserve(tree_.tokens.size() + 1);
    tree_.nodes.emplace_back();
    open_.top().node = 0;
}

void TreeBuilder::build()
{
    if (!partners_.isWellFormed) readBrokenDeck();
    const auto count
        = static_cast<std::uint32_t>(partners_.of.size()); // further ones are mended in
    for (now_ = 0; now_ < count; ++now_) {
        offset_ = offsetIn(deck_, tree_.tokens[now_]).value_or(offset_);
        add(now_);
    }
    finish();
}

void TreeBuilder::finish()
{
    offset_ = deck_.text().size();
    now_ = static_cast<std::uint32_t>(tree_.tokens.size());
    if (!hasDeck_ && !partners_.isWellFormed) openDeck();
    closeDownTo(0);
    flushSpace();
    std::stable_sort(tree_.mends.begin(), tree_.mends.end(),
        [](const WmlMend& a, const WmlMend& b) { return a.offset < b.offset; });
}

void TreeBuilder::add(std::uint32_t i)
{
    const WmlToken& token = tree_.tokens[i];
    switch (token.kind) {
    case Kind::Space:
        flushSpace();
        space_ = i;
        return;
    case Kind::Word:
        return addText(i);
    case Kind::Section:
        if (hasWords(tree_.textOf(i)) || open_.size() == 1) return addText(i);
        return addLeaf(WmlNode::Kind::Other, i);
    case Kind::Comment:
        return addLeaf(WmlNode::Kind::Other, i);
    case Kind::Instruction:
        if (i != hoisted_) addLeaf(WmlNode::Kind::Other, i);
        return;
    case Kind::Declaration:
        if (!partners_.isWellFormed && doctype_ != i) return; // it went ahead already
        doctype_ = kNoToken;
        return addLeaf(WmlNode::Kind::Other, i);
    case Kind::StartTag:
    case Kind::EmptyTag:
        return addStart(i);
    case Kind::EndTag:
        return addEnd(i);
    }
}

void TreeBuilder::addText(std::uint32_t i)
{
    if (!partners_.isWellFormed) closeLooseFor(WmlElement::Other, true);
    openPlaceFor(i, WmlElement::Other, true);
    reopenFormats(i);
    const bool isWord = tree_.tokens[i].kind == Kind::Word;
    addLeaf(isWord ? WmlNode::Kind::Text : WmlNode::Kind::Other, i);
}

void TreeBuilder::addStart(std::uint32_t i)
{
    if (partners_.isWellFormed) {
        addElement(i);
    } else {
        addBrokenStart(i);
    }
}

/// An element at its place, with what must hold it.
void TreeBuilder::addElement(std::uint32_t i)
{
    const WmlElement element = tree_.tokens[i].element;
    closeMendedFor(i, element);
    openPlaceFor(i, element, false);
    reopenFormats(i);
    flushSpace();
    if (tree_.tokens[i].kind == Kind::StartTag) return open(i);
    addNode(WmlNode::Kind::Element, element, i);
}

void TreeBuilder::addEnd(std::uint32_t i)
{
    const auto partner = partners_.of[i];
    if (!partners_.isWellFormed && (partner == kNoPartner || open_.top().token != partner))
        return addBrokenEnd(i);
    while (open_.top().isMendedIn() && open_.size() > 1)
        closeWithoutTag();
    flushSpace();
    close(i);
}

std::uint32_t TreeBuilder::addNode(WmlNode::Kind kind, WmlElement element, std::uint32_t token)
{
    const auto index = static_cast<std::uint32_t>(tree_.nodes.size());
    OpenElement& parent = open_.top();
    WmlNode& node = tree_.nodes.emplace_back();
    node.kind = kind;
    node.element = element;
    node.start = token;
    node.parent = parent.node;
    if (parent.lastChild == kNoNode) {
        tree_.nodes[parent.node].firstChild = index;
    } else {
        tree_.nodes[parent.lastChild].next = index;
    }
    parent.lastChild = index;
    return index;
}

void TreeBuilder::addLeaf(WmlNode::Kind kind, std::uint32_t token)
{
    flushSpace();
    addNode(kind, WmlElement::Other, token);
}

void TreeBuilder::open(std::uint32_t i)
{
    const WmlToken& token = tree_.tokens[i];
    OpenElement element;
    element.element = token.element;
    element.token = i;
    element.partner = partners_.of[i];
    element.number = partners_.isWellFormed ? 0 : numbers_.of(token);
    element.node = addNode(WmlNode::Kind::Element, token.element, i);
    open_.push(element);
    if (token.element != WmlElement::Wml || deckPosition_ != 0) return;
    deckPosition_ = open_.size() - 1;
    hasDeck_ = true;
}

/// Without an end of its own. `isOfFile`: the tag is one of the file all the same.
void TreeBuilder::openMendedIn(WmlElement element, std::uint32_t token, bool isOfFile)
{
    OpenElement opened;
    if (isOfFile) opened.token = token;
    opened.element = element;
    opened.number = static_cast<std::uint32_t>(element);
    opened.node = addNode(WmlNode::Kind::Element, element, token);
    open_.push(opened);
}

void TreeBuilder::close(std::uint32_t endToken)
{
    tree_.nodes[open_.top().node].end = endToken;
    open_.pop();
    if (open_.size() <= deckPosition_) deckPosition_ = 0;
}

/// The frames of a deck have their ends on lines of their own, if the deck has lines.
void TreeBuilder::closeWithoutTag()
{
    const auto look = ruleOf(open_.top().element).look;
    const bool isFrame = look == SurfaceLook::Aside || open_.top().element == WmlElement::Card;
    if (isFrame && spaceHasLineEnd()) addNode(WmlNode::Kind::Text, WmlElement::Other, space_);
    close(kNoToken);
}

bool TreeBuilder::spaceHasLineEnd() const
{
    return space_ != kNoToken
        && tree_.textOf(space_).find_first_of("\r\n") != std::string_view::npos;
}

void TreeBuilder::flushSpace()
{
    if (space_ == kNoToken) return;
    addNode(WmlNode::Kind::Text, WmlElement::Other, space_);
    space_ = kNoToken;
}

std::uint32_t TreeBuilder::addToken(WmlToken::Kind kind, std::string text)
{
    const auto index = static_cast<std::uint32_t>(tree_.tokens.size());
    tree_.tokens.emplace_back().kind = kind;
    setText(tree_, index, std::move(text));
    return index;
}

std::uint32_t TreeBuilder::addStartTag(WmlElement element, std::string text)
{
    const auto index = addToken(Kind::StartTag, std::move(text));
    tree_.tokens[index].element = element;
    tree_.tokens[index].name = ruleOf(element).name;
    return index;
}

void TreeBuilder::note(MendRule rule, std::string before, std::string after)
{
    tree_.mends.push_back({rule, offset_, std::move(before), std::move(after)});
}

} // namespace quillmere::wml
