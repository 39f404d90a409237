// One walk over the tokens of the card, with the open elements in a stack. Held by
// standard_edits_test.cpp, which reads the text again and compares the pieces.

#include "document/standard/opened_card.h"

#include "document/standard/own_entities.h"
#include "document/standard/shown_text.h"

#include <algorithm>
#include <optional>

namespace quillmere {

namespace {

using Kind = WmlToken::Kind;

bool isTag(const WmlToken& token)
{
    return token.kind == Kind::StartTag || token.kind == Kind::EmptyTag
        || token.kind == Kind::EndTag;
}

bool isBlock(WmlElement element)
{
    switch (element) {
    case WmlElement::Card:
    case WmlElement::OnEvent:
    case WmlElement::Timer:
    case WmlElement::Paragraph:
    case WmlElement::Pre:
    case WmlElement::Table:
    case WmlElement::Row:
    case WmlElement::Cell:
    case WmlElement::OptionGroup:
    case WmlElement::Option:
    case WmlElement::LineBreak:
        return true;
    default:
        return false;
    }
}

class CardOpener {
public:
    CardOpener(const DeckTokens& deck, const DeckBytes& bytes, const PictureRoads& roads)
        : deck_(deck)
        , bytes_(bytes)
        , roads_(roads)
    {
    }
    OpenedCard open(std::uint32_t card);

private:
    void openToken(std::uint32_t index);
    void openTag(std::uint32_t index);
    void openWord(std::uint32_t index);
    void openMarkup(std::uint32_t index);
    void openElement(std::uint32_t index);
    void addWhole(std::uint32_t index, const std::string& text);
    void add(std::uint32_t main, std::uint32_t behind, std::string_view text);
    void endElement(std::uint32_t index);

    [[nodiscard]] const WmlToken& token(std::uint32_t index) const { return deck_.tokens[index]; }
    [[nodiscard]] bool hasContent(std::uint32_t index) const
    {
        return deck_.partners[index] > index + 1;
    }
    [[nodiscard]] bool isAtom(std::uint32_t index) const;
    [[nodiscard]] bool isSimpleJump(std::uint32_t index) const;
    [[nodiscard]] bool isLayout(std::uint32_t index) const;
    [[nodiscard]] static bool isWordLike(const WmlToken& token);
    [[nodiscard]] bool isBlockLike(const WmlToken& token) const;
    [[nodiscard]] bool parentHoldsText() const
    {
        return open_.empty() || ruleOf(open_.back()).holdsText;
    }

    const DeckTokens& deck_;
    const DeckBytes& bytes_;
    const PictureRoads& roads_;
    OpenedCard card_;
    std::vector<WmlElement> open_;
    int openPres_ = 0; ///< of which all white space is shown
    std::optional<std::uint32_t> layout_; ///< ahead of the next piece
    std::uint32_t next_ = 0; ///< the token that is opened next
};

OpenedCard CardOpener::open(std::uint32_t card)
{
    const auto end = deck_.partners[card];
    next_ = card + 1;
    add(card, next_, designTag(token(card), DesignForm::Marker, bytes_));
    card_.contentBegin = card_.text.size();
    open_.push_back(WmlElement::Card);
    while (next_ < end)
        openToken(next_);
    add(std::max(end, next_), end + 1, {});
    return std::move(card_);
}

void CardOpener::openToken(std::uint32_t index)
{
    next_ = index + 1;
    const auto& opened = token(index);
    if (isTag(opened)) return openTag(index);
    if (opened.kind == Kind::Word) return openWord(index);
    if (opened.kind != Kind::Space) return openMarkup(index);
    if (!isLayout(index)) return add(index, next_, std::string(opened.source.size(), ' '));
    const bool belongsToNext = isBlockLike(token(next_)) || !isBlockLike(token(index - 1));
    if (belongsToNext)
        layout_ = index;
    else
        card_.pieces.back().tokens.behind = next_;
}

void CardOpener::openWord(std::uint32_t index)
{
    const auto source = token(index).source;
    const auto meaning = deck_.entities.meaningOf(wml::entityAtBegin(source));
    if (meaning)
        add(index, next_, designEntity(source, *meaning, bytes_));
    else
        add(index, next_, shownText(bytes_.decoded(source)));
}

void CardOpener::openMarkup(std::uint32_t index)
{
    const auto& opened = token(index);
    const auto* const name = opened.kind == Kind::Comment ? "comment"
        : opened.kind == Kind::Section                    ? "cdata"
                                                          : "pi";
    add(index, next_, designAtom(name, opened.source, bytes_));
}

void CardOpener::openTag(std::uint32_t index)
{
    const auto& opened = token(index);
    if (opened.kind == Kind::EndTag) return endElement(index);
    if (isAtom(index)) {
        const auto last = deck_.partners[index];
        const auto& end = token(last);
        const auto* const from = opened.source.data();
        const auto length = static_cast<std::size_t>(end.source.data() + end.source.size() - from);
        const auto name = bytes_.decoded(opened.name);
        return addWhole(index, designAtom(name, {from, length}, bytes_));
    }
    const bool isBare = ruleOf(opened.element).isEmpty && !hasContent(index);
    if (isBare && opened.element == WmlElement::Image)
        return addWhole(index, designImage(opened, bytes_, roads_));
    if (isBare) return addWhole(index, designTag(opened, DesignForm::SingleTag, bytes_));
    openElement(index);
}

/// An element with content, or one that might have it.
void CardOpener::openElement(std::uint32_t index)
{
    const auto& opened = token(index);
    const bool isEmpty = opened.kind == Kind::EmptyTag;
    if (isEmpty && opened.element == WmlElement::Go)
        return add(index, next_, designTag(opened, DesignForm::SingleMarker, bytes_));
    const auto& rule = ruleOf(opened.element);
    const bool isShown = rule.look == SurfaceLook::Tag && !rule.isEmpty;
    add(index, next_, designTag(opened, isShown ? DesignForm::Tag : DesignForm::Marker, bytes_));
    open_.push_back(opened.element);
    if (opened.element == WmlElement::Pre) ++openPres_;
    if (isEmpty) endElement(index);
}

/// The end of an element, or of one that has no end tag: <p/>.
void CardOpener::endElement(std::uint32_t index)
{
    const auto& opened = token(index);
    const auto& rule = ruleOf(opened.element);
    const bool isShown = rule.look == SurfaceLook::Tag && !rule.isEmpty;
    std::string text = isShown ? "</" : "<!--/";
    text.append(bytes_.decoded(opened.name)).append(isShown ? ">" : "-->");
    const auto begin = opened.kind == Kind::EndTag ? index : next_;
    add(begin, next_, text);
    if (open_.size() <= 1) return; // the card's own end is no tag of its content
    if (open_.back() == WmlElement::Pre) --openPres_;
    open_.pop_back();
}

/// An element with all that is in it as one piece.
void CardOpener::addWhole(std::uint32_t index, const std::string& text)
{
    next_ = deck_.partners[index] + 1;
    add(index, next_, text);
}

void CardOpener::add(std::uint32_t main, std::uint32_t behind, std::string_view text)
{
    const auto begin = card_.text.size();
    card_.text += text;
    const auto first = layout_.value_or(main);
    layout_.reset();
    card_.pieces.push_back({begin, card_.text.size(), {first, main, behind, behind}});
}

bool CardOpener::isAtom(std::uint32_t index) const
{
    const auto& opened = token(index);
    if (opened.element == WmlElement::Do) return !isSimpleJump(index);
    if (opened.element == WmlElement::Other) return !hasContent(index);
    const auto look = ruleOf(opened.element).look;
    return look == SurfaceLook::Atom || look == SurfaceLook::Aside
        || opened.element == WmlElement::Card;
}

/// A do of type accept with one go and nothing else.
bool CardOpener::isSimpleJump(std::uint32_t index) const
{
    if (attributeValue(token(index).source, "type") != "accept") return false;
    int jumps = 0;
    for (auto i = index + 1; i < deck_.partners[index]; i = deck_.partners[i] + 1) {
        if (token(i).kind == Kind::Space) continue;
        if (!isTag(token(i)) || token(i).element != WmlElement::Go) return false;
        ++jumps;
    }
    return jumps == 1;
}

bool CardOpener::isLayout(std::uint32_t index) const
{
    if (openPres_ > 0) return false;
    const auto& ahead = token(index - 1);
    const auto& behind = token(index + 1);
    if (!parentHoldsText()) return !isWordLike(ahead) && !isWordLike(behind);
    const bool hasLineEnd = token(index).source.find_first_of("\r\n") != std::string_view::npos;
    return hasLineEnd && (isBlockLike(ahead) || isBlockLike(behind));
}

bool CardOpener::isWordLike(const WmlToken& token)
{
    return token.kind == Kind::Word || token.kind == Kind::Section;
}

bool CardOpener::isBlockLike(const WmlToken& token) const
{
    return isTag(token) ? isBlock(token.element) || !parentHoldsText()
                        : !parentHoldsText() && !isWordLike(token);
}

} // namespace

DeckTokens withPartners(std::vector<WmlToken> tokens)
{
    DeckTokens deck{{}, {}, entitiesOf(tokens)};
    deck.tokens = withOwnEntitiesApart(std::move(tokens), deck.entities);
    deck.partners.resize(deck.tokens.size());
    std::vector<std::uint32_t> open;
    for (std::uint32_t i = 0; i < deck.tokens.size(); ++i) {
        deck.partners[i] = i;
        if (deck.tokens[i].kind == Kind::StartTag) open.push_back(i);
        if (deck.tokens[i].kind != Kind::EndTag || open.empty()) continue;
        deck.partners[i] = open.back();
        deck.partners[open.back()] = i;
        open.pop_back();
    }
    return deck;
}

OpenedCard openCard(
    const DeckTokens& deck, std::uint32_t card, const DeckBytes& bytes, const PictureRoads& roads)
{
    return CardOpener(deck, bytes, roads).open(card);
}

} // namespace quillmere
