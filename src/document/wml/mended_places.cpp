// What stands outside of the deck, of all cards or of all paragraphs gets what holds it, in
// well-formed decks as well: nobody could see or edit it otherwise. An element with a paragraph in
// it stays where it is. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/token_pass.h"
#include "document/wml/tree_builder.h"

#include <utility>

namespace quillmere::wml {

namespace {

using E = WmlElement;
using Kind = WmlToken::Kind;

constexpr std::string_view kCardId = "Korrigiert";
constexpr std::string_view kCardTitle = "Nicht festgelegt";

bool isOfDeck(E element)
{
    return element == E::Head || element == E::Template || element == E::Card;
}

bool isBlock(E element)
{
    return mayContain(E::Card, element) && element != E::Other;
}

/// Whether an element belongs into paragraphs and nowhere else in a card.
bool isInline(E element)
{
    return element != E::Other && mayContain(E::Paragraph, element) && !isBlock(element);
}

/// Whether an element cannot stand between cards.
bool belongsInCard(E element)
{
    return element != E::Other && element != E::Wml && element != E::Access && element != E::Meta
        && !isOfDeck(element);
}

} // namespace

/// Opens what is missing around an element or, with `isText`, a word.
void TreeBuilder::openPlaceFor(std::uint32_t i, WmlElement element, bool isText)
{
    if (open_.size() == 1) {
        const bool isRoot = partners_.isWellFormed && element == E::Other && !isText;
        if (!isRoot && element != E::Wml) openDeck();
    }
    if (open_.top().element == E::Wml) {
        const bool needsCard = isText || (belongsInCard(element) && !holdsBlock(i, true));
        if (needsCard) openCard();
    }
    if (open_.top().element != E::Card) return;
    const bool needsParagraph = isText || (isInline(element) && !holdsBlock(i, false));
    if (needsParagraph) openParagraph();
}

/// Closes the card or paragraph that was mended in where `element` does not belong in it.
void TreeBuilder::closeMendedFor(std::uint32_t i, WmlElement element)
{
    const auto isMendedIn = [&](std::size_t position, E wanted) {
        return open_.at(position).isMendedIn() && open_.at(position).element == wanted;
    };
    const bool isBroken = !partners_.isWellFormed;
    const auto holder = isBroken ? open_.holder() : open_.size() - 1;
    if (isMendedIn(holder, E::Paragraph)) {
        const bool isDirect = holder == open_.size() - 1;
        const bool endsParagraph = isBlock(element) || isOfDeck(element)
            || (isDirect && isInline(element) && holdsBlock(i, false));
        if (endsParagraph) closeDownTo(holder);
    }
    if (isOfDeck(element) && isMendedIn(open_.size() - 1, E::Card)) closeWithoutTag();
}

/// Whether the element of a start tag has a paragraph, or with `ofCards` a card, within. Asked of
/// each only where it stands in a card or deck itself, so that no token is looked at often.
bool TreeBuilder::holdsBlock(std::uint32_t i, bool ofCards) const
{
    const auto end = partners_.of[i];
    if (end == kNoPartner || end < i) return false;
    for (auto within = i + 1; within < end; ++within) {
        const WmlToken& token = tree_.tokens[within];
        const bool isWhole = token.kind == Kind::EmptyTag
            || (token.kind == Kind::StartTag && partners_.of[within] < end);
        const bool isWanted = ofCards
            ? isOfDeck(token.element)
            : token.element == E::Paragraph || token.element == E::Pre || isOfDeck(token.element);
        if (isWhole && isWanted) return true;
    }
    return false;
}

void TreeBuilder::openDeck()
{
    if (deckToken_ != kNoToken) {
        note(MendRule::MisplacedElement, "", std::string(tree_.textOf(deckToken_)));
        openDeckWith(deckToken_, true);
    } else {
        note(MendRule::MissingDeck, "", "<wml>");
        openDeckWith(addStartTag(E::Wml, "<wml>"), false);
    }
}

/// The document type stands ahead of the deck.
void TreeBuilder::openDeckWith(std::uint32_t token, bool isOfFile)
{
    if (doctype_ != kNoToken) {
        note(MendRule::BadDeclaration, "", std::string(tree_.textOf(doctype_)));
        addLeaf(WmlNode::Kind::Other, std::exchange(doctype_, kNoToken));
    }
    const auto space = !isOfFile && spaceHasLineEnd() ? space_ : kNoToken;
    flushSpace();
    openMendedIn(E::Wml, token, isOfFile);
    deckPosition_ = open_.size() - 1;
    hasDeck_ = true;
    space_ = space; // once more, behind the tag
}

void TreeBuilder::openCard()
{
    if (ids_.empty()) ids_ = idsOf(tree_);
    const std::string tag
        = "<card id=\"" + freeId(ids_, kCardId) + "\" title=\"" + std::string(kCardTitle) + "\">";
    note(MendRule::MissingCard, "", tag);
    const auto space = spaceHasLineEnd() ? space_ : kNoToken;
    flushSpace();
    openMendedIn(E::Card, addStartTag(E::Card, tag), false);
    space_ = space;
}

void TreeBuilder::openParagraph()
{
    note(MendRule::TextOutsideParagraph, "", "<p>");
    flushSpace();
    openMendedIn(E::Paragraph, addStartTag(E::Paragraph, "<p>"), false);
}

} // namespace quillmere::wml
