// The pieces of the card as it is are written one after the other. Held by standard_road_test.cpp.

#include "document/standard/card_changes.h"

#include "document/standard/card_pieces.h"
#include "document/standard/piece_alignment.h"
#include "document/standard/shown_text.h"
#include "document/standard/tag_changes.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

bool isAction(WmlElement element)
{
    return element == WmlElement::Do || element == WmlElement::Go;
}

bool isOfList(WmlElement element)
{
    return element == WmlElement::Select || element == WmlElement::OptionGroup
        || element == WmlElement::Option;
}

/// Whether an element that comes into another one goes, and its text stays: "<a>x<b>y</b></a>".
bool dissolvesIn(WmlElement parent, WmlElement element)
{
    const bool isPlain = isOfList(parent) || parent == WmlElement::Link
        || parent == WmlElement::Anchor || parent == WmlElement::Pre;
    const bool mayGo = ruleOf(element).isFormat || element == WmlElement::Link
        || element == WmlElement::LineBreak;
    return isPlain && mayGo && !mayContain(parent, element);
}

/// The element that each piece stands in; Other outside of all.
std::vector<WmlElement> parentsOf(const std::vector<DesignPiece>& pieces)
{
    std::vector<WmlElement> parents;
    std::vector<WmlElement> open;
    for (const auto& piece : pieces) {
        parents.push_back(open.empty() ? WmlElement::Other : open.back());
        if (piece.kind == Kind::Start) open.push_back(piece.element);
        if (piece.kind == Kind::End && !open.empty()) open.pop_back();
    }
    return parents;
}

class CardWriter {
public:
    CardWriter(const DeckOfCards& deck, const CardPieces& card, TokenWriter& result)
        : deck_(deck)
        , card_(card)
        , result_(result)
    {
    }
    void write();

private:
    void writePiece(std::size_t now);
    void writeDissolved(std::size_t now);
    void keepListText(std::size_t now);
    void followNesting(const DesignPiece& piece);
    void noteAction(const DesignPiece& piece);
    void addNew(std::string_view text);
    void endAction();
    void writeKept(std::size_t now);
    void writeChanged(std::size_t now);
    void writeNew(std::size_t now);
    void writeBlanks(std::size_t now);
    void writeNewTag(const DesignPiece& piece);
    [[nodiscard]] bool isEmptyElement(std::size_t then) const;
    [[nodiscard]] bool endFollows(std::size_t now, std::size_t then) const;
    [[nodiscard]] bool startIsAhead(std::size_t now, std::size_t then) const;
    [[nodiscard]] bool isDropped(std::size_t now) const;
    [[nodiscard]] bool dissolves(std::size_t now);
    [[nodiscard]] bool isMoved(std::size_t now);
    [[nodiscard]] bool standsAlone(const DesignPiece& piece) const;
    [[nodiscard]] std::string sourceOf(const PieceTokens& tokens) const;
    [[nodiscard]] std::string sourceOfSame(const DesignPiece& piece);
    [[nodiscard]] WmlElement parent() const
    {
        const auto open
            = std::ranges::find(open_.rbegin(), open_.rend(), false, &Open::isDissolved);
        return open == open_.rend() ? WmlElement::Other : open->element;
    }
    [[nodiscard]] bool isInAction() const
    {
        return std::ranges::any_of(open_, isAction, &Open::element);
    }

    const DeckOfCards& deck_;
    const CardPieces& card_;
    TokenWriter& result_;
    struct Open {
        WmlElement element;
        bool isDissolved;
    };
    std::vector<Open> open_; ///< as far as written
    bool dissolves_ = false; ///< the piece at hand
    std::vector<WmlElement> parents_; ///< of the pieces of `then`, once they are asked for
    bool isInNewOption_ = false;
    bool goesOut_ = false; ///< the new piece at hand may not stand in its action
    std::string behindAction_;
    std::set<std::string> startNames_; ///< of elements that WML has not
    std::set<std::string> endNames_;
    std::unordered_map<std::uint64_t, std::uint32_t> sources_; ///< pieces of `then` by their keys
};

void CardWriter::write()
{
    for (const auto& piece : card_.now) {
        if (piece.element != WmlElement::Other) continue;
        if (piece.kind == Kind::Start) startNames_.insert(lowerCase(piece.name));
        if (piece.kind == Kind::End) endNames_.insert(lowerCase(piece.name));
    }
    for (std::size_t i = 0; i < card_.now.size(); ++i) {
        keepListText(i);
        noteAction(card_.now[i]);
        if (i + 1 == card_.now.size()) endAction();
        writePiece(i);
        followNesting(card_.now[i]);
    }
}

void CardWriter::writePiece(std::size_t now)
{
    dissolves_ = dissolves(now);
    if (dissolves_)
        writeDissolved(now);
    else if (card_.places[now] != kNoPiece)
        writeKept(now);
    else if (card_.changedFrom[now] != kNoPiece)
        writeChanged(now);
    else if (!isDropped(now))
        writeNew(now);
}

/// Whether a tag goes, being put where its element may not stand, or the end of one that went.
bool CardWriter::dissolves(std::size_t now)
{
    const auto& piece = card_.now[now];
    if (piece.kind == Kind::Start || piece.kind == Kind::Single)
        return dissolvesIn(parent(), piece.element) && isMoved(now);
    if (piece.kind != Kind::End) return false;
    const auto start
        = std::ranges::find(open_.rbegin(), open_.rend(), piece.element, &Open::element);
    return start != open_.rend() && start->isDissolved;
}

/// Whether a piece is new where it stands now.
bool CardWriter::isMoved(std::size_t now)
{
    const auto kept = card_.places[now];
    const auto then = kept != kNoPiece ? kept : card_.changedFrom[now];
    if (then == kNoPiece) return true;
    if (parents_.empty()) parents_ = parentsOf(card_.then);
    return parents_[then] != parent();
}

/// The layout round a tag that goes, or the blank that a line break becomes.
void CardWriter::writeDissolved(std::size_t now)
{
    const bool isBreak = card_.now[now].element == WmlElement::LineBreak;
    if (isBreak) addNew(" ");
    if (card_.places[now] == kNoPiece) return;
    const auto& tokens = card_.tokens[card_.places[now]];
    result_.copy(tokens.first, tokens.main);
    result_.copy(tokens.behindMain, tokens.behind);
}

/// A list holds entries only: new text between them becomes an entry.
void CardWriter::keepListText(std::size_t now)
{
    const auto& piece = card_.now[now];
    const bool isText = piece.kind == Kind::Word || piece.kind == Kind::Space
        || piece.element == WmlElement::LineBreak;
    if (std::exchange(isInNewOption_, isInNewOption_ && isText) && !isInNewOption_)
        result_.addNew("</option>");
    const bool isInList = parent() == WmlElement::Select || parent() == WmlElement::OptionGroup;
    const bool isNewWord = piece.kind == Kind::Word && card_.places[now] == kNoPiece;
    if (isInNewOption_ || !isInList || !isNewWord) return;
    result_.addNew("<option>");
    isInNewOption_ = true;
}

void CardWriter::followNesting(const DesignPiece& piece)
{
    if (piece.kind == Kind::Start) open_.push_back({piece.element, dissolves_});
    if (piece.kind != Kind::End) return;
    const auto start
        = std::ranges::find(open_.rbegin(), open_.rend(), piece.element, &Open::element);
    if (start != open_.rend()) open_.erase(std::prev(start.base()), open_.end());
    if (!isInAction()) endAction();
}

/// Actions hold no text: what is typed between their parameters goes behind them.
void CardWriter::noteAction(const DesignPiece& piece)
{
    const bool isPart = piece.kind == Kind::Atom ? isAction(parent()) : isAction(piece.element);
    const bool isLayout = piece.kind == Kind::Space && behindAction_.empty();
    goesOut_ = isInAction() && !isPart && !isLayout;
}

void CardWriter::addNew(std::string_view text)
{
    if (goesOut_)
        behindAction_ += text;
    else
        result_.addNew(text);
}

void CardWriter::endAction()
{
    if (!behindAction_.empty()) result_.addNew(std::exchange(behindAction_, {}));
}

/// Whether the piece is the start of an element that was written as <p/>; its end follows it.
bool CardWriter::isEmptyElement(std::size_t then) const
{
    const auto& tokens = card_.tokens[then];
    return card_.then[then].kind == Kind::Start && tokens.main < tokens.behindMain
        && deck_.tokens.tokens[tokens.main].kind == WmlToken::Kind::EmptyTag;
}

bool CardWriter::endFollows(std::size_t now, std::size_t then) const
{
    return now + 1 < card_.now.size() && card_.places[now + 1] == then + 1;
}

bool CardWriter::startIsAhead(std::size_t now, std::size_t then) const
{
    if (now == 0 || then == 0 || !isEmptyElement(then - 1)) return false;
    return card_.places[now - 1] == then - 1 || card_.changedFrom[now - 1] == then - 1;
}

void CardWriter::writeKept(std::size_t now)
{
    const std::size_t then = card_.places[now];
    const auto& tokens = card_.tokens[then];
    const bool isEndOfEmpty
        = card_.then[then].kind == Kind::End && tokens.main == tokens.behindMain;
    if (isEmptyElement(then) && !endFollows(now, then)) {
        result_.copy(tokens.first, tokens.main);
        result_.put(openedTag(deck_.tokens.tokens[tokens.main].source));
        result_.copy(tokens.behindMain, tokens.behind);
    } else if (isEndOfEmpty && !startIsAhead(now, then)) {
        result_.put("</" + std::string(card_.then[then].name) + ">");
        result_.copy(tokens.behindMain, tokens.behind);
    } else {
        result_.copy(tokens.first, tokens.behind);
    }
}

/// A tag with other attributes, or an atom with another source.
void CardWriter::writeChanged(std::size_t now)
{
    const std::size_t then = card_.changedFrom[now];
    const auto& tokens = card_.tokens[then];
    const auto& piece = card_.now[now];
    result_.copy(tokens.first, tokens.main);
    if (piece.kind == Kind::Atom) {
        result_.put(deck_.bytes.encoded(quillmere::sourceOf(piece)));
    } else {
        const auto& tag = deck_.tokens.tokens[tokens.main];
        auto source
            = changedTag(tag.source, piece.element, deckAttributes(card_.then[then], deck_.roads),
                deckAttributes(piece, deck_.roads), deck_.bytes, deck_.manner);
        const bool isOpened = isEmptyElement(then) && !endFollows(now, then);
        result_.put(isOpened ? openedTag(source) : std::move(source));
        result_.copy(tokens.main + 1, tokens.behindMain);
    }
    result_.copy(tokens.behindMain, tokens.behind);
}

/// What the surface or a dialog puts in for its own sake: comments, and a break behind a list.
bool CardWriter::isDropped(std::size_t now) const
{
    const auto& piece = card_.now[now];
    const bool isBreak = piece.kind == Kind::Single && piece.element == WmlElement::LineBreak;
    const auto& ahead = card_.now[now == 0 ? 0 : now - 1];
    if (isBreak && ahead.kind == Kind::End && ahead.element == WmlElement::Select)
        return card_.places[now - 1] == kNoPiece;
    return piece.element == WmlElement::Other && standsAlone(piece);
}

/// Whether a marker of an element that WML has not lacks its other half.
bool CardWriter::standsAlone(const DesignPiece& piece) const
{
    if (piece.kind == Kind::Start) return !endNames_.contains(lowerCase(piece.name));
    return piece.kind == Kind::End ? !startNames_.contains(lowerCase(piece.name))
                                   : piece.kind == Kind::Single;
}

/// How the file writes a piece that means the same, for one that was moved or copied; "" for none.
std::string CardWriter::sourceOfSame(const DesignPiece& piece)
{
    if (sources_.empty())
        for (std::uint32_t i = 0; i < card_.then.size(); ++i)
            sources_.emplace(card_.then[i].key, i);
    const auto found = sources_.find(piece.key);
    if (found == sources_.end() || isEmptyElement(found->second)) return {};
    return sourceOf(card_.tokens[found->second]);
}

std::string CardWriter::sourceOf(const PieceTokens& tokens) const
{
    std::string source;
    for (auto i = tokens.main; i < tokens.behindMain; ++i)
        source += deck_.tokens.tokens[i].source;
    return source;
}

/// As many blanks, line ends and tabs as the surface has blanks.
void CardWriter::writeBlanks(std::size_t now)
{
    std::string blanks;
    const auto known = card_.blanksFrom.find(static_cast<std::uint32_t>(now));
    if (known != card_.blanksFrom.end())
        for (const auto then : known->second)
            blanks += sourceOf(card_.tokens[then]);
    blanks.resize(card_.now[now].text.size(), ' ');
    addNew(blanks);
}

void CardWriter::writeNew(std::size_t now)
{
    const auto& piece = card_.now[now];
    if (piece.kind == Kind::Space) return writeBlanks(now);
    if (const auto same = sourceOfSame(piece); !same.empty()) return addNew(same);
    if (piece.kind == Kind::Atom) return addNew(deck_.bytes.encoded(quillmere::sourceOf(piece)));
    if (piece.kind != Kind::Word) return writeNewTag(piece);
    const auto text = writtenText(shownText(piece.text), deck_.manner.knowsHardBlank);
    addNew(deck_.bytes.encoded(text));
}

void CardWriter::writeNewTag(const DesignPiece& piece)
{
    const auto known = ruleOf(piece.element).name;
    const std::string name(piece.element == WmlElement::Other ? piece.name : known);
    if (piece.kind == Kind::End) return addNew("</" + name + ">");
    const auto attributes = deckAttributes(piece, deck_.roads);
    addNew(newTag(
        name, piece.element, attributes, piece.kind == Kind::Single, deck_.bytes, deck_.manner));
}

} // namespace

bool writeCard(
    const DeckOfCards& deck, const OpenedCard* opened, std::string_view design, TokenWriter& result)
{
    const auto card = compareCard(opened, design);
    CardWriter(deck, card, result).write();
    return opened == nullptr || !isUnchanged(card);
}

} // namespace quillmere
