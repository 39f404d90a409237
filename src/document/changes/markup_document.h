#pragma once

#include "document/changes/markup_names.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// A reader of XML 1.0 markup that judges what the conversions made of a deck. It shares nothing
// with them, so that a fault of theirs is not a fault of the judge as well.

namespace quillmere {

/// What keeps a text from being a well-formed XML 1.0 document.
enum class MarkupFault {
    StrayLess, ///< a '<' that begins nothing
    UnendedTag,
    BadTag, ///< a tag without name, or with characters that no tag has
    MissingBlank, ///< between two attributes
    MissingValue,
    UnquotedValue,
    UnendedValue,
    LessInValue,
    DoubleAttribute,
    UnendedComment,
    DashesInComment,
    UnendedSection,
    UnendedInstruction,
    BadDeclaration, ///< of the XML version
    BadDoctype,
    BadCharacter, ///< a control character
    CharacterBeyondEncoding, ///< 8-bit text where none is declared, and no UTF-8 either
    BadReference,
    UnknownEntity,
    SectionEndInText,
    TextOutsideRoot,
    SecondRoot,
    NoRoot,
    WrongEnd, ///< an end tag that does not end the element that is open
    UnendedElement,
};

struct MarkupFaultAt {
    MarkupFault fault = MarkupFault::StrayLess;
    std::size_t offset = 0;
    std::string name; ///< of the element, attribute or entity; "" where none is concerned
};

struct MarkupAttribute {
    std::string_view name; ///< as written
    std::string_view value; ///< between its quotes, as written
    std::size_t offset = 0; ///< of the name
};

struct MarkupToken {
    enum class Kind { Start, Empty, End, Text, Comment, Section, Instruction, Doctype };
    Kind kind = Kind::Text;
    std::size_t begin = 0; ///< offset of the first character
    std::size_t end = 0; ///< offset behind the last one
    std::string_view name; ///< of the element, the instruction's target; as written
    std::string_view content; ///< of text, comment, section, instruction and document type
    std::size_t firstAttribute = 0;
    std::size_t attributeCount = 0;
};

/// The tokens of a text, which must outlive them. Broken markup gives tokens as well, by the
/// nearest reading: a tag that never ends is cut ahead of the next '<', a value without its
/// closing quote at the next '>'.
struct MarkupDocument {
    std::vector<MarkupToken> tokens;
    std::vector<MarkupAttribute> attributes;
    std::optional<MarkupFaultAt> firstFault; ///< within tags, comments and the like
    MarkupBytes bytes = MarkupBytes::Utf8; ///< of the text

    [[nodiscard]] std::span<const MarkupAttribute> attributesOf(const MarkupToken& token) const
    {
        return std::span(attributes).subspan(token.firstAttribute, token.attributeCount);
    }
};

/// Reads any text; the time grows with its length only.
[[nodiscard]] MarkupDocument readMarkup(std::string_view text);

/// White space of XML: blank, tab, CR, LF.
[[nodiscard]] constexpr bool isMarkupSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

} // namespace quillmere
