#pragma once

#include "document/session.h"
#include "document/tag_translation.h"
#include "document/text/tag_attributes.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmere {

/// Turns the image tags of one WML text into those of the surface, which show the display copy:
/// `<img src="PATH" alt="TEXT" align="VALUE" style="height: Hpx; width: Wpx" vspace="V"
/// hspace="H"></img>`, each attribute but the first only where the tag has it. The size and the
/// alignment go into the picture's entry. The text must outlive the object.
class WmlImageTags {
public:
    WmlImageTags(const CasedText& text, std::size_t areaIndex, DocumentSession& session);
    /// Puts the surface's tag in the place of `tag`, which `text` has in lower case. False, the tag
    /// stays, where it names no WBMP picture or the deck has no such area. Throws InvalidArgument,
    /// TypeMismatch, and what RegisterImage throws.
    [[nodiscard]] bool replace(Rewriter& result, const Tag& tag);

private:
    [[nodiscard]] std::optional<std::string> displayCopy(const Tag& tag, const TextRange& src);
    [[nodiscard]] ImageEntry* entryOf(std::string_view displayPath);
    void addAttributes(Rewriter& result, const Tag& tag, ImageEntry& entry);
    void addAlignment(Rewriter& result, const Tag& tag, ImageEntry& entry);
    void addSize(Rewriter& result, const Tag& tag, ImageEntry& entry);
    void addSpaces(Rewriter& result, const Tag& tag, ImageEntry& entry);
    [[nodiscard]] std::optional<std::string_view> lowerValue(
        const Tag& tag, std::string_view key) const;

    CasedText text_;
    std::size_t areaIndex_;
    DocumentSession& session_;
    AttributeReader src_;
    AttributeReader alt_;
    std::optional<std::size_t> refusedSrc_; // begin of the last value that is no picture's name
    std::unordered_map<std::string, std::size_t> entries_; // by lower-cased display path
    std::size_t knownEntries_ = 0;
};

} // namespace quillmere
