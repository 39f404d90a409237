#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// The elements of WML 1.1 (WAP-191 and its document type), with those that WML 1.2 and 1.3 added:
// one table that tells their content, their attributes, and how the surface shows them.

namespace quillmere {

enum class WmlElement : std::uint8_t {
    Other, ///< any that the table has not
    Wml,
    Head,
    Access,
    Meta,
    Template,
    Card,
    OnEvent,
    Timer,
    Do,
    Go,
    Prev,
    Refresh,
    Noop,
    SetVar,
    PostField,
    Paragraph,
    Pre,
    Table,
    Row,
    Cell,
    Select,
    OptionGroup,
    Option,
    Input,
    FieldSet,
    Link,
    Anchor,
    Image,
    LineBreak,
    Bold,
    Strong,
    Italic,
    Emphasis,
    Underline,
    Big,
    Small,
};

/// How an element travels in a design text.
enum class SurfaceLook : std::uint8_t {
    Tag, ///< as an HTML tag
    Marker, ///< as a pair of comment markers around what is shown
    Atom, ///< as one marker that holds the element whole
    Aside, ///< not at all: it belongs to the deck and to no card
};

// In the order in which the rows read best.
struct WmlElementRule { // NOLINT(clang-analyzer-optin.performance.Padding)
    WmlElement element = WmlElement::Other;
    std::string_view name;
    SurfaceLook look = SurfaceLook::Marker;
    bool isEmpty = false; ///< has no content at all
    bool isFormat = false; ///< may be closed and opened anew where it overlaps
    bool holdsText = false;
    std::uint64_t children = 0; ///< one bit for each WmlElement that may stand in it
    std::span<const std::string_view> attributes;
};

/// The element of a name, whose case does not matter; Other for one that there is not.
[[nodiscard]] WmlElement wmlElement(std::string_view name);
/// The rule of an element; that of Other allows everything.
[[nodiscard]] const WmlElementRule& ruleOf(WmlElement element);
/// The rules of all elements in the order of WmlElement, Other first.
[[nodiscard]] std::span<const WmlElementRule> wmlElementRules();
/// Whether the document type allows `child` directly in `parent`. Other may stand anywhere.
[[nodiscard]] bool mayContain(WmlElement parent, WmlElement child);
/// An attribute of an element as its table spells it, whatever the case of `name`; "" for one that
/// it has not.
[[nodiscard]] std::string_view knownAttribute(WmlElement element, std::string_view name);
/// Whether an attribute says "true" or "false".
[[nodiscard]] bool isFlagAttribute(std::string_view name);

} // namespace quillmere
