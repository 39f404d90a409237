// Held by standard_road_test.cpp.

#include "document/standard/design_tags.h"

#include "document/standard/design_pieces.h"
#include "document/standard/shown_text.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace quillmere {

namespace {

using Attributes = std::vector<DeckAttribute>;

struct FirstAttributes {
    WmlElement element;
    std::span<const std::string_view> names;
};
constexpr std::array<std::string_view, 2> kOfCard{"id", "title"};
constexpr std::array<std::string_view, 3> kOfDo{"type", "label", "name"};
constexpr std::array<std::string_view, 1> kOfLink{"href"};
constexpr std::array<std::string_view, 3> kOfTable{"title", "align", "columns"};
constexpr std::array<std::string_view, 3> kOfImage{"src", "alt", "align"};
constexpr std::array kFirstAttributes{FirstAttributes{WmlElement::Card, kOfCard},
    FirstAttributes{WmlElement::Do, kOfDo}, FirstAttributes{WmlElement::Go, kOfLink},
    FirstAttributes{WmlElement::Link, kOfLink}, FirstAttributes{WmlElement::Table, kOfTable},
    FirstAttributes{WmlElement::Image, kOfImage}};

constexpr std::string_view kBorder = "border";
constexpr std::string_view kStyle = "style";

std::size_t rankOf(WmlElement element, std::string_view name)
{
    const auto* const row = std::ranges::find(kFirstAttributes, element, &FirstAttributes::element);
    if (row == kFirstAttributes.end()) return 0;
    return static_cast<std::size_t>(std::ranges::find(row->names, name) - row->names.begin());
}

DeckAttribute* find(Attributes& attributes, std::string_view name)
{
    const auto found = std::ranges::find(attributes, name, &DeckAttribute::name);
    return found == attributes.end() ? nullptr : &*found;
}

/// As written in the deck; those that dialogs look for first.
Attributes shownAttributes(const WmlToken& tag, const DeckBytes& deck)
{
    Attributes attributes;
    for (const auto& attribute : attributesOf(tag.source))
        attributes.push_back(
            {deck.decoded(attribute.name), shownValue(deck.decoded(attribute.value))});
    std::ranges::stable_sort(attributes, {},
        [&](const DeckAttribute& attribute) { return rankOf(tag.element, attribute.name); });
    return attributes;
}

void appendAttributes(std::string& result, const Attributes& attributes)
{
    for (const auto& attribute : attributes)
        result.append(" ")
            .append(attribute.name)
            .append("=\"")
            .append(attribute.value)
            .append("\"");
}

std::optional<std::int32_t> pixels(std::string_view value)
{
    std::int32_t number = 0;
    const auto* const end = value.data() + value.size();
    const auto read = std::from_chars(value.data(), end, number);
    if (read.ec != std::errc{} || read.ptr != end || number < 0) return std::nullopt;
    return number;
}

DeckPicture pictureOf(Attributes& attributes)
{
    const auto value = [&](std::string_view name) -> std::optional<std::string> {
        const auto* const attribute = find(attributes, name);
        if (attribute == nullptr) return std::nullopt;
        return plainValue(attribute->value);
    };
    DeckPicture picture;
    picture.source = value("src").value_or("");
    picture.alternativeText = value("alt").value_or("");
    picture.alignment = value("align");
    if (const auto height = value("height")) picture.heightPx = pixels(*height);
    if (const auto width = value("width")) picture.widthPx = pixels(*width);
    return picture;
}

/// Puts the size into a style, in front of what is left.
void moveSizeIntoStyle(Attributes& attributes, const DeckPicture& picture)
{
    if (find(attributes, kStyle) != nullptr) return;
    std::string style;
    const auto move = [&](std::string_view name, std::optional<std::int32_t> size) {
        if (!size) return;
        style.append(style.empty() ? "" : "; ").append(name).append(": ");
        style.append(std::to_string(*size)).append("px");
        std::erase_if(attributes, [&](const DeckAttribute& a) { return a.name == name; });
    };
    move("height", picture.heightPx);
    move("width", picture.widthPx);
    if (style.empty()) return;
    const auto behindFirst = std::ranges::find_if(attributes, [](const DeckAttribute& attribute) {
        return rankOf(WmlElement::Image, attribute.name) == kOfImage.size();
    });
    attributes.insert(behindFirst, {std::string(kStyle), std::move(style)});
}

/// Takes the size out of a style, which goes.
void moveSizeOutOfStyle(Attributes& attributes)
{
    auto* const style = find(attributes, kStyle);
    if (style == nullptr) return;
    const auto text = lowerCase(style->value);
    bool isTaken = false;
    for (const std::string_view name : {"height", "width"}) {
        const auto at = text.find(std::string(name) + ":");
        const auto end = at == npos ? npos : text.find("px", at);
        if (end == npos) continue;
        const auto begin = at + name.size() + 1;
        const std::string size(trimBlanks(std::string_view(text).substr(begin, end - begin)));
        if (!pixels(size)) continue;
        isTaken = true;
        if (auto* const own = find(attributes, name))
            own->value = size;
        else
            attributes.push_back({std::string(name), size});
    }
    if (isTaken) std::erase_if(attributes, [](const auto& a) { return a.name == kStyle; });
}

/// The name of an attribute as WML has it; others keep their case.
std::string attributeName(WmlElement element, std::string_view name)
{
    auto lower = lowerCase(name);
    const auto known = ruleOf(element).attributes;
    const bool isKnown = std::ranges::find(known, lower) != known.end();
    return isKnown || isForSurfaceOnly(element, {lower, {}}) ? lower : std::string(name);
}

} // namespace

std::string designTag(const WmlToken& tag, DesignForm form, const DeckBytes& deck)
{
    auto attributes = shownAttributes(tag, deck);
    if (tag.element == WmlElement::Card && find(attributes, "id") == nullptr)
        attributes.insert(attributes.begin(), {"id", ""});
    if (tag.element == WmlElement::Table && find(attributes, kBorder) == nullptr)
        attributes.push_back({std::string(kBorder), "1"});
    const bool isMarker = form == DesignForm::Marker || form == DesignForm::SingleMarker;
    std::string result = isMarker ? "<!--" : "<";
    result += deck.decoded(tag.name);
    appendAttributes(result, attributes);
    if (form == DesignForm::SingleTag || form == DesignForm::SingleMarker) result += "/";
    return result += isMarker ? "-->" : ">";
}

std::string designImage(const WmlToken& tag, const DeckBytes& deck, const PictureRoads& roads)
{
    auto attributes = shownAttributes(tag, deck);
    const auto picture = pictureOf(attributes);
    const auto display = picture.source.empty() ? std::string() : roads.show(picture);
    if (!display.empty()) {
        find(attributes, "src")->value = shownValue(display);
        moveSizeIntoStyle(attributes, picture);
    }
    std::string result = "<img";
    appendAttributes(result, attributes);
    return result += "></img>";
}

std::string designAtom(std::string_view name, std::string_view source, const DeckBytes& deck)
{
    std::string result = "<!--#";
    result.append(name).append(" ").append(hiddenSource(deck.decoded(source)));
    return result.append("-->");
}

Attributes deckAttributes(const DesignPiece& piece, const PictureRoads& roads)
{
    Attributes attributes;
    for (const auto& attribute : attributesOf(piece))
        attributes.push_back(
            {attributeName(piece.element, attribute.name), shownValue(attribute.value)});
    if (piece.element != WmlElement::Image) return attributes;
    moveSizeOutOfStyle(attributes);
    auto* const source = find(attributes, "src");
    if (source == nullptr) return attributes;
    if (const auto name = roads.name(plainValue(source->value))) source->value = shownValue(*name);
    return attributes;
}

bool isForSurfaceOnly(WmlElement element, const DeckAttribute& attribute)
{
    const bool isBorder = element == WmlElement::Table && attribute.name == kBorder;
    return isBorder || attribute.name == kStyle || attribute.name == "onclick";
}

} // namespace quillmere
