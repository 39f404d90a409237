// Held by standard_road_test.cpp.

#include "document/standard/piece_writer.h"

#include "document/standard/piece_alignment.h"
#include "document/standard/shown_text.h"
#include "document/standard/tag_changes.h"

#include <utility>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

} // namespace

PieceWriter::PieceWriter(const DeckOfCards& deck, const CardPieces& card, CardTarget target)
    : deck_(deck)
    , card_(card)
    , target_(target)
{
}

void PieceWriter::write(std::size_t now)
{
    if (card_.places[now] != kNoPiece)
        writeKept(now);
    else if (card_.changedFrom[now] != kNoPiece)
        writeChanged(now);
    else
        writeNew(now);
}

void PieceWriter::writeDissolved(std::size_t now)
{
    if (card_.now[now].element == WmlElement::LineBreak) target_.added.add(" ");
    if (card_.places[now] == kNoPiece) return;
    const auto& tokens = card_.tokens[card_.places[now]];
    target_.tokens.copy(tokens.first, tokens.main);
    target_.tokens.copy(tokens.behindMain, tokens.behind);
}

/// Whether the piece is the start of an element that was written as <p/>; its end follows it.
bool PieceWriter::isEmptyElement(std::size_t then) const
{
    const auto& tokens = card_.tokens[then];
    return card_.then[then].kind == Kind::Start && tokens.main < tokens.behindMain
        && deck_.tokens.tokens[tokens.main].kind == WmlToken::Kind::EmptyTag;
}

bool PieceWriter::endFollows(std::size_t now, std::size_t then) const
{
    return now + 1 < card_.now.size() && card_.places[now + 1] == then + 1;
}

bool PieceWriter::startIsAhead(std::size_t now, std::size_t then) const
{
    if (now == 0 || then == 0 || !isEmptyElement(then - 1)) return false;
    return card_.places[now - 1] == then - 1 || card_.changedFrom[now - 1] == then - 1;
}

/// An element that was written as <p/> becomes two tags once something stands in it.
void PieceWriter::writeKept(std::size_t now)
{
    const std::size_t then = card_.places[now];
    const auto& tokens = card_.tokens[then];
    const bool isEndOfEmpty
        = card_.then[then].kind == Kind::End && tokens.main == tokens.behindMain;
    const bool isOpened = isEmptyElement(then) && !endFollows(now, then);
    const bool isClosed = isEndOfEmpty && !startIsAhead(now, then);
    if (!isOpened && !isClosed) return target_.tokens.copy(tokens.first, tokens.behind);
    if (isOpened) target_.tokens.copy(tokens.first, tokens.main);
    target_.tokens.put(isOpened ? openedTag(deck_.tokens.tokens[tokens.main].source)
                                : "</" + std::string(card_.then[then].name) + ">");
    target_.tokens.copy(tokens.behindMain, tokens.behind);
}

/// A tag with other attributes, or an atom with another source.
void PieceWriter::writeChanged(std::size_t now)
{
    const auto& tokens = card_.tokens[card_.changedFrom[now]];
    const auto& piece = card_.now[now];
    target_.tokens.copy(tokens.first, tokens.main);
    if (piece.kind == Kind::Atom)
        target_.tokens.put(deck_.bytes.encoded(quillmere::sourceOf(piece)));
    else
        writeChangedTag(now);
    target_.tokens.copy(tokens.behindMain, tokens.behind);
}

void PieceWriter::writeChangedTag(std::size_t now)
{
    const std::size_t then = card_.changedFrom[now];
    const auto& tokens = card_.tokens[then];
    const auto& piece = card_.now[now];
    auto source = changedTag(deck_.tokens.tokens[tokens.main].source, piece.element,
        deckAttributes(card_.then[then], deck_.roads), deckAttributes(piece, deck_.roads),
        deck_.bytes, deck_.manner);
    const bool isOpened = isEmptyElement(then) && !endFollows(now, then);
    target_.tokens.put(isOpened ? openedTag(source) : std::move(source));
    target_.tokens.copy(tokens.main + 1, tokens.behindMain);
}

void PieceWriter::writeNew(std::size_t now)
{
    const auto& piece = card_.now[now];
    if (piece.kind == Kind::Space) return writeBlanks(now);
    if (const auto same = sourceOfSame(piece); !same.empty()) return target_.added.add(same);
    if (piece.kind == Kind::Atom)
        return target_.added.add(deck_.bytes.encoded(quillmere::sourceOf(piece)));
    if (piece.kind != Kind::Word) return writeNewTag(piece);
    const auto text = writtenText(shownText(piece.text), deck_.manner.knowsHardBlank);
    target_.added.add(deck_.bytes.encoded(text));
}

void PieceWriter::writeNewTag(const DesignPiece& piece)
{
    const auto known = ruleOf(piece.element).name;
    const std::string name(piece.element == WmlElement::Other ? piece.name : known);
    if (piece.kind == Kind::End) return target_.added.add("</" + name + ">");
    const auto attributes = deckAttributes(piece, deck_.roads);
    target_.added.add(newTag(
        name, piece.element, attributes, piece.kind == Kind::Single, deck_.bytes, deck_.manner));
}

/// As many blanks, line ends and tabs as the surface has blanks.
void PieceWriter::writeBlanks(std::size_t now)
{
    std::string blanks;
    const auto known = card_.blanksFrom.find(static_cast<std::uint32_t>(now));
    if (known != card_.blanksFrom.end())
        for (const auto then : known->second)
            blanks += sourceOf(card_.tokens[then]);
    blanks.resize(card_.now[now].text.size(), ' ');
    target_.added.add(blanks);
}

/// How the file writes a piece that means the same, for one that was moved or copied; "" for none.
std::string PieceWriter::sourceOfSame(const DesignPiece& piece)
{
    if (sources_.empty())
        for (std::uint32_t i = 0; i < card_.then.size(); ++i)
            sources_.emplace(card_.then[i].key, i);
    const auto found = sources_.find(piece.key);
    if (found == sources_.end() || isEmptyElement(found->second)) return {};
    return sourceOf(card_.tokens[found->second]);
}

std::string PieceWriter::sourceOf(const PieceTokens& tokens) const
{
    std::string source;
    for (auto i = tokens.main; i < tokens.behindMain; ++i)
        source += deck_.tokens.tokens[i].source;
    return source;
}

} // namespace quillmere
