#pragma once

#include "document/picture_entries.h"
#include "document/tag_translation.h"
#include "document/text/output_rules.h"
#include "document/text/tag_attributes.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// Turns the surface's image tags of one text back into those of WML. The picture's name comes from
/// its entry; the size that the surface shows goes into the entry, and from there into the tag
/// where the entry says so. Text, index and edits must outlive the object.
class DesignImageTags {
public:
    DesignImageTags(const CasedText& text, DisplayCopyIndex& index, PictureEdits& edits,
        const OutputRules& rules);
    /// Puts the tag of WML in the place of `tag`, which `text` has in lower case; a lone "</img>"
    /// for a picture that no area has. False, the tag stays, for one without `src="`. Throws
    /// InvalidArgument and TypeMismatch.
    [[nodiscard]] bool replace(Rewriter& result, const Tag& tag);

private:
    void appendOpenTag(Rewriter& result, const Tag& tag, const std::vector<PicturePlace>& places);
    void appendSource(Rewriter& result, const ImageEntry& entry) const;
    void readSize(const Tag& tag, ImageEntry& entry) const;

    CasedText text_;
    DisplayCopyIndex& index_;
    PictureEdits& edits_;
    OutputRules rules_;
    AttributeReader src_;
};

} // namespace quillmere
