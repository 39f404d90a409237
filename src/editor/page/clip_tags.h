#pragma once

#include "document/wml/wml_elements.h"
#include "editor/page/markup_tags.h"

#include <string_view>
#include <vector>

namespace quillmere {

/// A tag, marker or atom of markup, with the element that it means.
struct ClipTag {
    MarkupTag tag; ///< its partner is the index of the other half, of tags as well
    WmlElement element = WmlElement::Other;

    /// Whether it has no content: an atom, a comment, a line break, a picture, a field.
    [[nodiscard]] bool isSingle() const
    {
        return tag.name == TagName::Atom || tag.name == TagName::Comment || ruleOf(element).isEmpty;
    }
};

/// The tags of markup with their partners, which lie in one another: an end belongs to the last
/// start of its element that is open, and starts between the two have no end then. A picture has
/// its end tag in it.
[[nodiscard]] std::vector<ClipTag> readClipTags(std::string_view markup);

} // namespace quillmere
