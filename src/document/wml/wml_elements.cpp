// One row for each element, in the order of WmlElement; content and attributes are those of the
// document types of WML 1.1 to 1.3. Names are told apart by their length and letters packed into a
// number. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/wml_elements.h"

#include "document/text/windows1252.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

using E = WmlElement;
using enum SurfaceLook;
using Names = std::string_view;

constexpr std::uint64_t bit(E element)
{
    return std::uint64_t{1} << static_cast<unsigned>(element);
}

template <typename... Elements> constexpr std::uint64_t bits(Elements... elements)
{
    return (bit(elements) | ...);
}

constexpr auto kTasks = bits(E::Go, E::Prev, E::Noop, E::Refresh);
constexpr auto kFormats
    = bits(E::Emphasis, E::Strong, E::Bold, E::Italic, E::Underline, E::Big, E::Small);
constexpr auto kInCell = kFormats | bits(E::LineBreak, E::Image, E::Anchor, E::Link);
constexpr auto kFlow = kInCell | bit(E::Table);
constexpr auto kFields = kFlow | bits(E::Input, E::Select, E::FieldSet);
constexpr auto kInPre = bits(E::Link, E::Anchor, E::Do, E::Underline, E::LineBreak, E::Italic,
    E::Bold, E::Emphasis, E::Strong, E::Input, E::Select);

constexpr Names kWmlAttributes[] = {"id", "class", "xml:lang"};
constexpr Names kCoreAttributes[] = {"id", "class"};
constexpr Names kAccessAttributes[] = {"domain", "path", "id", "class"};
constexpr Names kMetaAttributes[]
    = {"name", "http-equiv", "forua", "content", "scheme", "id", "class"};
constexpr Names kTemplateAttributes[]
    = {"onenterforward", "onenterbackward", "ontimer", "id", "class"};
constexpr Names kCardAttributes[] = {"id", "title", "newcontext", "ordered", "onenterforward",
    "onenterbackward", "ontimer", "xml:lang", "class"};
constexpr Names kOnEventAttributes[] = {"type", "id", "class"};
constexpr Names kTimerAttributes[] = {"name", "value", "id", "class"};
constexpr Names kDoAttributes[] = {"type", "label", "name", "optional", "xml:lang", "id", "class"};
constexpr Names kGoAttributes[] = {"href", "sendreferer", "method", "enctype", "cache-control",
    "accept-charset", "type", "id", "class"};
constexpr Names kNamedValueAttributes[] = {"name", "value", "id", "class"};
constexpr Names kParagraphAttributes[] = {"align", "mode", "xml:lang", "id", "class"};
constexpr Names kPreAttributes[] = {"xml:space", "id", "class"};
constexpr Names kTableAttributes[] = {"title", "align", "columns", "xml:lang", "id", "class"};
constexpr Names kSelectAttributes[] = {
    "title", "name", "value", "iname", "ivalue", "multiple", "tabindex", "xml:lang", "id", "class"};
constexpr Names kTitledAttributes[] = {"title", "xml:lang", "id", "class"};
constexpr Names kOptionAttributes[] = {"value", "title", "onpick", "xml:lang", "id", "class"};
constexpr Names kInputAttributes[] = {"name", "type", "value", "format", "emptyok", "size",
    "maxlength", "tabindex", "title", "accesskey", "xml:lang", "id", "class"};
constexpr Names kLinkAttributes[] = {"href", "title", "accesskey", "xml:lang", "id", "class"};
constexpr Names kAnchorAttributes[] = {"title", "accesskey", "xml:lang", "id", "class"};
constexpr Names kImageAttributes[] = {"alt", "src", "localsrc", "vspace", "hspace", "align",
    "height", "width", "xml:lang", "id", "class"};

constexpr std::uint64_t kAnything = ~std::uint64_t{0};

//   element, name, look, empty, format, text, children, attributes
constexpr WmlElementRule kRules[] = {
    {E::Other, "", Marker, false, false, true, kAnything, {}},
    {E::Wml, "wml", Aside, false, false, false, bits(E::Head, E::Template, E::Card),
        kWmlAttributes},
    {E::Head, "head", Aside, false, false, false, bits(E::Access, E::Meta), kCoreAttributes},
    {E::Access, "access", Atom, true, false, false, 0, kAccessAttributes},
    {E::Meta, "meta", Atom, true, false, false, 0, kMetaAttributes},
    {E::Template, "template", Aside, false, false, false, bits(E::Do, E::OnEvent),
        kTemplateAttributes},
    {E::Card, "card", Marker, false, false, false,
        bits(E::OnEvent, E::Timer, E::Do, E::Paragraph, E::Pre), kCardAttributes},
    {E::OnEvent, "onevent", Atom, false, false, false, kTasks, kOnEventAttributes},
    {E::Timer, "timer", Atom, true, false, false, 0, kTimerAttributes},
    {E::Do, "do", Marker, false, false, false, kTasks, kDoAttributes},
    {E::Go, "go", Marker, false, false, false, bits(E::PostField, E::SetVar), kGoAttributes},
    {E::Prev, "prev", Atom, false, false, false, bit(E::SetVar), kCoreAttributes},
    {E::Refresh, "refresh", Atom, false, false, false, bit(E::SetVar), kCoreAttributes},
    {E::Noop, "noop", Atom, true, false, false, 0, kCoreAttributes},
    {E::SetVar, "setvar", Atom, true, false, false, 0, kNamedValueAttributes},
    {E::PostField, "postfield", Atom, true, false, false, 0, kNamedValueAttributes},
    {E::Paragraph, "p", Tag, false, false, true, kFields | bit(E::Do), kParagraphAttributes},
    {E::Pre, "pre", Marker, false, false, true, kInPre, kPreAttributes},
    {E::Table, "table", Tag, false, false, false, bit(E::Row), kTableAttributes},
    {E::Row, "tr", Tag, false, false, false, bit(E::Cell), kCoreAttributes},
    {E::Cell, "td", Tag, false, false, true, kInCell, kWmlAttributes},
    {E::Select, "select", Marker, false, false, false, bits(E::OptionGroup, E::Option),
        kSelectAttributes},
    {E::OptionGroup, "optgroup", Marker, false, false, false, bits(E::OptionGroup, E::Option),
        kTitledAttributes},
    {E::Option, "option", Marker, false, false, true, bit(E::OnEvent), kOptionAttributes},
    {E::Input, "input", Atom, true, false, false, 0, kInputAttributes},
    {E::FieldSet, "fieldset", Marker, false, false, true, kFields | bit(E::Do), kTitledAttributes},
    {E::Link, "a", Tag, false, false, true, bits(E::LineBreak, E::Image), kLinkAttributes},
    {E::Anchor, "anchor", Marker, false, false, true,
        bits(E::LineBreak, E::Image, E::Go, E::Prev, E::Refresh), kAnchorAttributes},
    {E::Image, "img", Tag, true, false, false, 0, kImageAttributes},
    {E::LineBreak, "br", Tag, true, false, false, 0, kWmlAttributes},
    {E::Bold, "b", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Strong, "strong", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Italic, "i", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Emphasis, "em", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Underline, "u", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Big, "big", Tag, false, true, true, kFlow, kWmlAttributes},
    {E::Small, "small", Tag, false, true, true, kFlow, kWmlAttributes},
};

constexpr std::size_t kLongestName = 9; // postfield

/// Letters in six bits each, so that nine of them and nothing else fit; 0 for what is no name.
constexpr std::uint64_t packedName(std::string_view name)
{
    if (name.size() > kLongestName) return 0;
    std::uint64_t packed = 0;
    for (const char character : name) {
        const auto letter = static_cast<unsigned char>(character) | 0x20U;
        if (letter < 'a' || letter > 'z') return 0;
        packed = (packed << 6U) | (letter - 'a' + 1);
    }
    return packed;
}

struct PackedRow {
    std::uint64_t name = 0;
    E element = E::Other;
};

constexpr std::size_t kBuckets = 128;

constexpr std::size_t bucketOf(std::uint64_t packed)
{
    return static_cast<std::size_t>((packed * 0x9E3779B97F4A7C15U) >> 57U);
}

constexpr auto kPacked = [] {
    std::array<PackedRow, kBuckets> table{};
    for (const auto& rule : kRules) {
        if (rule.name.empty()) continue;
        auto place = bucketOf(packedName(rule.name));
        while (table.at(place).name != 0)
            place = (place + 1) % kBuckets;
        table.at(place) = {packedName(rule.name), rule.element};
    }
    return table;
}();

} // namespace

WmlElement wmlElement(std::string_view name)
{
    const auto packed = packedName(name);
    if (packed == 0) return E::Other;
    for (auto place = bucketOf(packed); kPacked.at(place).name != 0; place = (place + 1) % kBuckets)
        if (kPacked.at(place).name == packed) return kPacked.at(place).element;
    return E::Other;
}

const WmlElementRule& ruleOf(WmlElement element)
{
    return kRules[static_cast<std::size_t>(element)];
}

std::span<const WmlElementRule> wmlElementRules()
{
    return kRules;
}

bool mayContain(WmlElement parent, WmlElement child)
{
    return child == E::Other || (ruleOf(parent).children & bit(child)) != 0;
}

std::string_view knownAttribute(WmlElement element, std::string_view name)
{
    for (const auto& known : ruleOf(element).attributes)
        if (equalIgnoringCase(known, name)) return known;
    return {};
}

bool isFlagAttribute(std::string_view name)
{
    constexpr std::string_view kFlags[]
        = {"newcontext", "ordered", "multiple", "emptyok", "optional", "sendreferer", "forua"};
    return std::find(std::begin(kFlags), std::end(kFlags), name) != std::end(kFlags);
}

} // namespace quillmere
