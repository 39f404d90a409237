#pragma once

#include "document/session.h"

#include <cstddef>
#include <string>
#include <string_view>

// A card's id and title and its jump, which stand in the markers of its design work file. Values
// are taken as they stand between double quotes; what a value may hold is the dialogs' business.
// All throw InvalidArgument for an area that there is not, and FileFailure where its file cannot be
// read or written; those that set throw Overflow where the text would be longer than
// maxDesignLength(). The file is then as it was.

namespace quillmere {

struct CardAttributes {
    std::string id;
    std::string title;
};

/// A card's accept action; a part that is missing is empty.
struct Jump {
    std::string name;
    std::string label;
    std::string target; ///< "#" and a card id, or a URL
};

/// The attributes in the first line of the design work file that has a card marker.
[[nodiscard]] CardAttributes GetCardAttributes(DocumentSession& session, std::size_t areaIndex);

/// Sets id and title; a title that the marker lost is put in behind the id. An area without a card
/// marker stays as it is.
void SetCardAttributes(
    DocumentSession& session, std::size_t areaIndex, std::string_view id, std::string_view title);

/// The first do marker of type accept, as written.
[[nodiscard]] Jump GetJump(DocumentSession& session, std::size_t areaIndex);

/// Sets the jump of an area, and makes it behind the card marker where there is none. A do marker
/// without a go gets none. An empty name means "Sprung"; a name that the area uses already, be it
/// for this jump, gives way to the first of Sprung0, Sprung1, ... that it does not. In a deck
/// without loss a jump keeps with an empty name what it has, for by its name it takes the place of
/// an action of the template.
void SetJump(DocumentSession& session, std::size_t areaIndex, const Jump& jump);

/// Whether something in the area bears the name, in any case: loading lower-cases names of do
/// elements, so that "Sprung" comes back as "sprung".
[[nodiscard]] bool JumpNameInUse(
    DocumentSession& session, std::size_t areaIndex, std::string_view name);

} // namespace quillmere
