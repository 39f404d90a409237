#pragma once

#include "document/changes/markup_document.h"
#include "document/text/text_place.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// One thing that a deck lost, got, or has in another form or at another place than before. All
/// texts are Windows-1252.
struct DeckChange {
    enum class Kind { Lost, Added, Changed, Moved };
    enum class Subject { Element, Attribute, EndTag, Words, Comment, Doctype, Instruction };
    Kind kind = Kind::Lost;
    Subject subject = Subject::Element;
    std::string element; ///< lower-case name: the element itself, or the one that it stands in
    std::string attribute; ///< lower-case name, of an attribute only
    std::string before; ///< as it was read: the tag, value, words or text; "" if added
    std::string after; ///< as it was written; "" if lost
    std::size_t count = 1; ///< how many words of what was read, or of what was added
    std::optional<TextPlace> readAt; ///< place in what was read; none if added
    std::optional<TextPlace> writtenAt; ///< place in what was written; none if lost
};

/// What keeps the written deck from being well-formed.
struct DeckFault {
    MarkupFault fault = MarkupFault::StrayLess;
    std::string name; ///< of the element, attribute or entity; may be ""
    TextPlace writtenAt;
};

struct DeckChangesReport {
    /// In the order of the deck; between two places that have not changed, what was there first.
    std::vector<DeckChange> changes;
    /// Nothing where the written text is a well-formed XML 1.0 document.
    std::optional<DeckFault> fault;
    /// Whether a further repair of the written deck leaves it as it is. DeckChanges cannot know
    /// it; who repairs sets it.
    std::optional<bool> stable;

    [[nodiscard]] bool wellFormed() const { return !fault; }
};

/// The first thing that keeps `written` from being well-formed; nullopt where nothing does.
[[nodiscard]] std::optional<DeckFault> deckFault(std::string_view written);

/// Compares two decks, both as Windows-1252 text, by elements, attributes, comments and the words
/// of their text. No change are: case of the names of elements and attributes, order and quotes of
/// attributes, "<br></br>" for "<br/>", white space that does not show, and a reference for its
/// character or the other way round. White space between words shows, also where a format or link
/// begins or ends between them. What left its place is told as moved, not as lost, if it is in its
/// card still. An attribute of an element that is lost or added as a whole is told with that
/// element only. Any text can be compared, and the time grows in proportion to its length.
[[nodiscard]] DeckChangesReport DeckChanges(std::string_view read, std::string_view written);

} // namespace quillmere
