// Where a deck is not well-formed, ends are mended in as a reader with good will would see them:
// an element that is never closed ends where something begins that may not stand in it and may
// stand around it. What surely has its end is not cut by the faults of others; formats are closed
// ahead of it and opened anew in it. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/text/windows1252.h"
#include "document/wml/token_pass.h"
#include "document/wml/tree_builder.h"

#include <algorithm>
#include <utility>

namespace quillmere::wml {

namespace {

using E = WmlElement;
using Kind = WmlToken::Kind;

/// How far is looked for a place, so that no depth makes it slow.
constexpr int kFarthestHolder = 16;
constexpr std::size_t kMostFormats = 8;

bool isContent(const WmlToken& token)
{
    switch (token.kind) {
    case Kind::Word:
    case Kind::Section:
        return true;
    case Kind::StartTag:
    case Kind::EmptyTag:
    case Kind::EndTag:
        return token.element != E::Wml;
    default:
        return false;
    }
}

bool isText(const WmlToken& token)
{
    return token.kind == Kind::Word || token.kind == Kind::Section;
}

/// Whether something may stand in an element, once a paragraph or card is put around it.
bool mayHold(E holder, E element, bool isText)
{
    if (holder == E::Card || holder == E::Wml)
        return isText || mayContain(E::Paragraph, element) || mayContain(E::Card, element)
            || mayContain(holder, element);
    return isText ? ruleOf(holder).holdsText : mayContain(holder, element);
}

/// An empty tag made of a start tag, or the other way round.
std::string withSlash(std::string_view tag, bool hasSlash)
{
    const auto end = tag.find_last_not_of("/>");
    return std::string(tag.substr(0, end + 1)) + (hasSlash ? "/>" : ">");
}

/// No two elements have one id.
std::string withoutId(std::string_view tag)
{
    std::string text(tag);
    for (const auto& attribute : attributesOf(tag)) {
        if (!equalIgnoringCase(attribute.name, "id")) continue;
        const auto begin = static_cast<std::size_t>(attribute.source.data() - tag.data());
        text.erase(begin, attribute.source.size());
        const auto space = text.find_last_not_of(" \t\r\n", begin - 1) + 1;
        text.erase(space, begin - space);
    }
    return text;
}

} // namespace

/// What must be known of the whole deck ahead of its first token.
void TreeBuilder::readBrokenDeck()
{
    for (const auto i : partners_.emptied) {
        const std::string before(tree_.textOf(i));
        setText(tree_, i, withSlash(before, true));
        tree_.tokens[i].kind = Kind::EmptyTag;
        offset_ = offsetIn(deck_, tree_.tokens[i]).value_or(offset_);
        note(MendRule::MissingEnd, before, std::string(tree_.textOf(i)));
    }
    for (std::uint32_t i = 0; i < tree_.tokens.size(); ++i) {
        const WmlToken& token = tree_.tokens[i];
        const bool isStart = token.kind == Kind::StartTag || token.kind == Kind::EmptyTag;
        if (isContent(token)) lastContent_ = i;
        if (isStart && token.element == E::Wml && deckToken_ == kNoToken) deckToken_ = i;
        if (token.kind == Kind::Declaration) doctype_ = i;
    }
    if (deckToken_ != kNoToken && tree_.tokens[deckToken_].kind == Kind::EmptyTag) {
        setText(tree_, deckToken_, withSlash(tree_.textOf(deckToken_), false));
        tree_.tokens[deckToken_].kind = Kind::StartTag;
    }
    hoistXmlDeclaration();
}

/// Nothing may stand ahead of it, not even a blank.
void TreeBuilder::hoistXmlDeclaration()
{
    const auto isDeclaration = [](const WmlToken& token) {
        return token.kind == Kind::Instruction && equalIgnoringCase(token.name, "xml");
    };
    const auto found = std::find_if(tree_.tokens.begin(), tree_.tokens.end(), isDeclaration);
    if (found == tree_.tokens.begin() || found == tree_.tokens.end()) return;
    hoisted_ = static_cast<std::uint32_t>(found - tree_.tokens.begin());
    offset_ = 0;
    note(MendRule::BadDeclaration, "", std::string(tree_.textOf(hoisted_)));
    addLeaf(WmlNode::Kind::Other, hoisted_);
    const auto behind = hoisted_ + 1;
    if (behind < tree_.tokens.size() && tree_.tokens[behind].kind == Kind::Space) {
        addLeaf(WmlNode::Kind::Text, addToken(Kind::Space, std::string(tree_.textOf(behind))));
        setText(tree_, behind, "");
    }
    for (std::uint32_t i = 0; i < hoisted_ && tree_.tokens[i].kind == Kind::Space; ++i)
        setText(tree_, i, "");
}

void TreeBuilder::addBrokenStart(std::uint32_t i)
{
    const WmlElement element = tree_.tokens[i].element;
    if (element == E::Wml) return startDeck(i);
    if (element == E::Card) return startCard(i);
    closeLooseFor(element, false);
    closeOverlappingFormats(i);
    addElement(i);
}

void TreeBuilder::startDeck(std::uint32_t i)
{
    if (i == deckToken_ && !hasDeck_) return openDeckWith(i, true);
    if (i == deckToken_) return; // it was put ahead of what stands here
    note(MendRule::MissingDeck, std::string(tree_.textOf(i)), "");
}

void TreeBuilder::startCard(std::uint32_t i)
{
    if (deckPosition_ != 0) closeDownTo(deckPosition_ + 1);
    reopened_.clear();
    addElement(i);
}

void TreeBuilder::addBrokenEnd(std::uint32_t i)
{
    const WmlToken& tag = tree_.tokens[i];
    if (tag.element == E::Wml) return endDeck(i);
    if (tag.element == E::Card) return endCard(i);
    const auto position = open_.last(numbers_.of(tag));
    if (partners_.of[i] != kNoPartner) return endPartnered(i, position);
    if (!position || open_.barrier() > *position) return strayEnd(i);
    closeDownTo(*position + 1);
    flushSpace();
    close(i);
}

/// The end of an element that was perhaps closed already, or that another one overlaps.
void TreeBuilder::endPartnered(std::uint32_t i, std::optional<std::size_t> position)
{
    const auto start = partners_.of[i];
    const auto waiting = std::find(reopened_.begin(), reopened_.end(), start);
    if (waiting != reopened_.end()) {
        reopened_.erase(waiting); // nothing came that it would have been opened for
        return;
    }
    if (!position || open_.at(*position).token != start) return strayEnd(i);
    if (open_.at(*position).isFormat() && open_.barrier() > *position) return strayEnd(i);
    closeDownTo(*position + 1);
    flushSpace();
    close(i);
}

void TreeBuilder::endDeck(std::uint32_t i)
{
    if (deckPosition_ == 0) return strayEnd(i);
    closeDownTo(deckPosition_ + 1);
    reopened_.clear();
    if (i < lastContent_) return strayEnd(i);
    flushSpace();
    close(i);
}

void TreeBuilder::endCard(std::uint32_t i)
{
    const auto position = open_.last(static_cast<std::uint32_t>(E::Card));
    if (!position) return strayEnd(i);
    closeDownTo(*position + 1);
    reopened_.clear();
    flushSpace();
    close(i);
}

void TreeBuilder::strayEnd(std::uint32_t i)
{
    note(MendRule::StrayEnd, std::string(tree_.textOf(i)), "");
}

/// Closes all that is open from a position on.
void TreeBuilder::closeDownTo(std::size_t position)
{
    while (open_.size() > std::max<std::size_t>(position, 1)) {
        const OpenElement element = open_.top();
        const bool comesBack
            = element.isFormat() && element.partner != kNoPartner && element.partner > now_;
        if (comesBack) keepForReopening(element);
        if (!comesBack && !element.isMendedIn()) noteUnended(element);
        closeWithoutTag();
    }
}

void TreeBuilder::noteUnended(const OpenElement& element)
{
    const bool isCard = element.element == E::Card;
    const auto name = ruleOf(element.element).name;
    const std::string end
        = "</" + std::string(name.empty() ? tree_.tokens[element.token].name : name) + ">";
    note(isCard ? MendRule::MissingCardEnd : MendRule::MissingEnd, "", end);
}

/// One of each kind is enough: what bold text in bold text looks like is bold.
void TreeBuilder::keepForReopening(const OpenElement& format)
{
    const bool isKept = std::any_of(reopened_.begin(), reopened_.end(),
        [&](std::uint32_t kept) { return tree_.tokens[kept].element == format.element; });
    if (isKept) return;
    reopened_.insert(reopened_.begin(), format.token);
    const auto tag = std::string(tree_.textOf(format.token));
    note(MendRule::OverlappingFormat, "",
        "</" + std::string(ruleOf(format.element).name) + "> ... " + tag);
}

/// Closes elements without a sure end that cannot hold what comes, if one around them can.
void TreeBuilder::closeLooseFor(WmlElement element, bool isText)
{
    if (element == E::Other && !isText) return;
    auto lowest = open_.size(); // of those to be closed
    auto position = open_.holder();
    for (int step = 0; step < kFarthestHolder && position != 0; ++step) {
        const OpenElement& holder = open_.at(position);
        if (mayHold(holder.element, element, isText)) return closeDownTo(lowest);
        if (!holder.isLoose() || holder.element == E::Card) return;
        lowest = position;
        position = open_.holderAhead(position);
    }
}

/// Formats that end within the element that begins are closed ahead of it.
void TreeBuilder::closeOverlappingFormats(std::uint32_t i)
{
    const auto end = partners_.of[i];
    if (end == kNoPartner || ruleOf(tree_.tokens[i].element).isFormat) return;
    auto first = open_.size();
    for (auto at = open_.size() - 1; at > 0 && open_.size() - at <= kMostFormats; --at) {
        if (!open_.at(at).isFormat()) break;
        if (open_.at(at).partner < end) first = at;
    }
    if (first < open_.size()) closeDownTo(first);
}

/// Opens formats anew ahead of what they are to show, where they may stand.
void TreeBuilder::reopenFormats(std::uint32_t i)
{
    if (reopened_.empty()) return;
    const WmlToken& token = tree_.tokens[i];
    const bool isLeaf = isText(token) || token.kind == Kind::EmptyTag;
    if (!isLeaf && !ruleOf(token.element).isFormat) return;
    if (!mayContain(open_.at(open_.holder()).element, E::Bold)) return;
    flushSpace();
    for (const auto format : std::exchange(reopened_, {}))
        reopen(format);
}

void TreeBuilder::reopen(std::uint32_t format)
{
    open(format);
    if (!tree_.tokens[format].hasId) return;
    const auto element = tree_.tokens[format].element;
    const auto token = addStartTag(element, withoutId(tree_.textOf(format)));
    tree_.nodes[open_.top().node].start = token;
}

} // namespace quillmere::wml
