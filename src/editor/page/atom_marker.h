#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// What an atom <!--#NAME SOURCE--> holds, or <!--#entity SOURCE MEANING--> for an entity that the
/// deck declares.
struct Atom {
    std::string_view name; ///< of the element; or "comment", "cdata", "pi", "entity"
    std::string source; ///< as it stands in the deck
    std::string meaning; ///< what an entity stands for
    /// The part of it that attributes are looked for in: its first tag.
    [[nodiscard]] std::string_view startTag() const;
};

/// Reads an atom; name and source are empty for any other text. `atom` must outlive the name. Not
/// more than the first 4000 characters of the source are told.
[[nodiscard]] Atom readAtom(std::string_view atom);

} // namespace quillmere
