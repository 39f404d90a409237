#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// What is mended in a broken deck: one table of rules. Nothing is mended that no rule names, and
// nothing is dropped that no mend tells.

namespace quillmere {

enum class MendRule : std::uint8_t {
    MissingEnd, ///< an element that is never closed
    StrayEnd, ///< an end tag that closes nothing; it goes
    OverlappingFormat, ///< closed and opened anew
    MissingCardEnd,
    MissingCard, ///< content outside of all cards gets one
    MissingDeck, ///< no <wml>, or more than one
    TextOutsideParagraph,
    MisplacedElement, ///< moved a step higher or lower
    UnquotedValue,
    MissingValue, ///< `selected` alone
    DoubledAttribute, ///< the second one goes
    BrokenTag, ///< without its end, or with characters that no tag has
    BareAmpersand,
    BareLess,
    UnknownEntity,
    BadCharacter, ///< a control character, or bytes that the encoding has not
    BadComment, ///< with two dashes in it, or without its end
    BadDeclaration, ///< of the document type or of XML
    DoubledId, ///< the second one gets a number
    WrongCase, ///< of an element or attribute that WML has
};

struct WmlMend {
    MendRule rule = MendRule::MissingEnd;
    std::size_t offset = 0; ///< in the text of the deck
    std::string before; ///< as it was written; "" where something was missing
    std::string after; ///< what is written in its place; "" where it goes
};

struct MendText {
    std::string_view name; ///< for programs: "stray-end"
    std::string_view german; ///< one short sentence, UTF-8
};

/// The rule in German (UTF-8), as one short sentence ("Ein Ende ohne Anfang wurde weggelassen").
[[nodiscard]] std::string_view germanText(MendRule rule);
/// The rule's name for programs ("stray-end").
[[nodiscard]] std::string_view nameOf(MendRule rule);
/// All rules in their order.
[[nodiscard]] std::span<const MendText> mendTexts();

} // namespace quillmere
