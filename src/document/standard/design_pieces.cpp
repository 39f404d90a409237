// One walk from left to right. Surfaces write tags in upper case and values without quotes, so that
// the key of a tag is made of what it says and not of how it is written. Held by
// design_pieces_test.cpp.

#include "document/standard/design_pieces.h"

#include "document/standard/shown_text.h"
#include "document/text/content_hash.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

constexpr std::string_view kMarkerBegin = "<!--";
constexpr std::string_view kMarkerEnd = "-->";
// What some surfaces put behind a table, so that the caret finds a place there.
constexpr std::string_view kBehindTable = "<!--Test--> <!--Test2--></br>";
constexpr std::string_view kRadioButton = "radio";

constexpr bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

constexpr bool beginsName(char character)
{
    return isLetter(character) || character == '_' || character == ':'
        || static_cast<unsigned char>(character) >= 0x80;
}

bool beginsTag(std::string_view rest)
{
    if (rest.size() < 2 || rest.front() != '<') return false;
    const char next = rest[1];
    return isLetter(next) || next == '/' || next == '!' || next == '?';
}

std::uint64_t keyOf(const DesignPiece& piece)
{
    if (piece.kind == Kind::Word || piece.kind == Kind::Space || piece.kind == Kind::Atom)
        return contentHash(piece.text);
    std::uint64_t key
        = contentHash(lowerCase(piece.name)) * (static_cast<unsigned>(piece.kind) + 3);
    if (piece.kind == Kind::End) return key;
    if (piece.text.find('=') == npos) return key;
    for (const auto& attribute : attributesOf(piece)) // in any order
        key += contentHash(lowerCase(attribute.name)) * 31 + contentHash(attribute.value);
    return key;
}

/// A marker or tag without its end, "<!--go href="#a"" or "<br".
std::string_view inside(std::string_view written)
{
    const auto end = written.ends_with(kMarkerEnd) ? kMarkerEnd.size() : 1;
    written.remove_suffix(std::min(end, written.size()));
    const bool isClosed = written.ends_with("\"/") || written.ends_with("'/")
        || written.ends_with(" /") || written.find_first_of(" =") == npos;
    if (isClosed && written.ends_with('/')) written.remove_suffix(1);
    return written;
}

class Reader {
public:
    explicit Reader(std::string_view design)
        : text_(design)
        , tagEnd_(design, ">")
        , markerEnd_(design, kMarkerEnd)
        , headEnd_(design, "</head")
    {
    }
    std::vector<DesignPiece> read()
    {
        while (position_ < text_.size())
            readPiece();
        return std::move(pieces_);
    }

private:
    void readPiece();
    void readMarker(std::string_view written);
    void readTag(std::string_view written);
    void readElement(std::string_view written);
    void readImage(std::string_view written);
    void addMarker(std::string_view written, std::string_view name);
    void add(Kind kind, std::string_view written, std::string_view name = {});
    [[nodiscard]] std::string_view rest() const { return text_.substr(position_); }
    /// From here to behind the tag or comment that begins here; nothing where it has no end.
    [[nodiscard]] std::string_view markup();
    void readWord();

    std::string_view text_;
    std::size_t position_ = 0;
    ForwardFinder tagEnd_;
    ForwardFinder markerEnd_;
    ForwardFinder headEnd_;
    std::vector<DesignPiece> pieces_;
    bool hasCard_ = false;
};

void Reader::readPiece()
{
    if (isSpaceByte(text_[position_])) {
        const auto* const end = std::ranges::find_if_not(rest(), isSpaceByte);
        return add(Kind::Space, {rest().begin(), end});
    }
    if (rest().starts_with(kBehindTable)) {
        position_ += kBehindTable.size();
        return;
    }
    const auto written = markup();
    if (written.empty()) return readWord();
    if (written.starts_with(kMarkerBegin)) return readMarker(written);
    readTag(written);
}

void Reader::readWord()
{
    auto end = position_ + 1;
    while (end < text_.size() && !isSpaceByte(text_[end]) && !beginsTag(text_.substr(end)))
        ++end;
    add(Kind::Word, text_.substr(position_, end - position_));
}

std::string_view Reader::markup()
{
    if (!beginsTag(rest())) return {};
    const bool isMarker = rest().starts_with(kMarkerBegin);
    auto end = isMarker ? markerEnd_.next(position_ + 2) : npos;
    if (end != npos) return text_.substr(position_, end + kMarkerEnd.size() - position_);
    end = tagEnd_.next(position_);
    const bool isCut = text_.find('<', position_ + 1) < end; // "a<b and <i>c"
    return end == npos || isCut ? std::string_view{} : text_.substr(position_, end + 1 - position_);
}

void Reader::readMarker(std::string_view written)
{
    auto name = written.substr(kMarkerBegin.size());
    if (name.starts_with('/')) name.remove_prefix(1);
    const bool isNamed = !name.empty() && (beginsName(name.front()) || name.starts_with('#'));
    name = name.substr(0, name.find_first_of(" \t\r\n/>"));
    if (name.ends_with("--")) name.remove_suffix(2);
    if (!isNamed || name.size() < (name.starts_with('#') ? 2U : 1U))
        position_ += written.size();
    else
        addMarker(written, name);
}

void Reader::addMarker(std::string_view written, std::string_view name)
{
    if (name.starts_with('#')) return add(Kind::Atom, written, name.substr(1));
    const bool isEnd = written[kMarkerBegin.size()] == '/';
    const bool isCard = wmlElement(name) == WmlElement::Card;
    if (isCard && (isEnd || hasCard_)) {
        position_ += written.size();
        return;
    }
    hasCard_ |= isCard;
    const bool isSingle = written.ends_with("/-->")
        && inside(written).size() + std::string_view("/-->").size() == written.size();
    add(isEnd ? Kind::End : isSingle ? Kind::Single : Kind::Start, written, name);
}

void Reader::readTag(std::string_view written)
{
    auto name = written.substr(1);
    if (name.starts_with('/')) name.remove_prefix(1);
    name = name.substr(0, name.find_first_of(" \t\r\n/>"));
    if (equalIgnoringCase(name, "head") && written[1] != '/') {
        const auto end = headEnd_.next(position_);
        position_ = end == npos ? position_ + written.size() : end;
        return;
    }
    const auto element = wmlElement(name);
    const auto look = ruleOf(element).look;
    if (element == WmlElement::Other || look == SurfaceLook::Aside || element == WmlElement::Card)
        position_ += written.size();
    else
        readElement(written);
}

void Reader::readElement(std::string_view written)
{
    const bool isEnd = written[1] == '/';
    const auto name = written.substr(isEnd ? 2 : 1);
    const auto word = name.substr(0, name.find_first_of(" \t\r\n/>"));
    const auto& rule = ruleOf(wmlElement(word));
    const bool isButton
        = rule.element == WmlElement::Input && findIgnoringCase(written, kRadioButton) != npos;
    if (isButton || (isEnd && rule.isEmpty)) {
        position_ += written.size();
    } else if (rule.element == WmlElement::Image) {
        readImage(written);
    } else {
        const bool isSingle = rule.isEmpty || (written.ends_with("/>") && !isEnd);
        add(isEnd ? Kind::End : isSingle ? Kind::Single : Kind::Start, written, word);
    }
}

/// An image with an end tag that follows it at once.
void Reader::readImage(std::string_view written)
{
    constexpr std::string_view kEnd = "</img>";
    const bool hasEnd = standsAt(text_, position_ + written.size(), kEnd);
    const auto whole = text_.substr(position_, written.size() + (hasEnd ? kEnd.size() : 0));
    add(Kind::Single, whole, whole.substr(1, kEnd.size() - 3));
}

void Reader::add(Kind kind, std::string_view written, std::string_view name)
{
    pieces_.push_back({kind, wmlElement(name), written, name});
    pieces_.back().key = keyOf(pieces_.back());
    position_ += written.size();
}

} // namespace

std::vector<DesignPiece> readDesignPieces(std::string_view design)
{
    return Reader(design).read();
}

std::vector<DeckAttribute> attributesOf(const DesignPiece& piece)
{
    auto written = piece.text;
    if (piece.element == WmlElement::Image && piece.kind == Kind::Single)
        written = written.substr(0, written.find('>') + 1);
    written = inside(written);
    written.remove_prefix(written.starts_with(kMarkerBegin) ? kMarkerBegin.size() : 1);
    const auto tag = std::string("<").append(written).append(">");
    std::vector<DeckAttribute> attributes;
    for (const auto& attribute : attributesOf(tag))
        attributes.push_back({std::string(attribute.name), std::string(attribute.value)});
    return attributes;
}

std::string sourceOf(const DesignPiece& atom)
{
    auto source = inside(atom.text);
    const auto ahead = kMarkerBegin.size() + 1 + atom.name.size(); // "<!--#NAME"
    source.remove_prefix(std::min(source.size(), ahead));
    if (source.starts_with(' ')) source.remove_prefix(1);
    const bool isEntity = source.starts_with('&') && !source.starts_with("&lt;");
    return sourceOfHidden(isEntity ? source.substr(0, source.find(' ')) : source);
}

} // namespace quillmere
