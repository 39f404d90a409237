#pragma once

#include "editor/page/markup_tags.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillmere {

/// The formats and links that are open at a place of the text, and how text looks there. An end tag
/// ends the last start tag of its name that is open in the same cell; what is never ended goes on
/// to the end of its cell, or of the content. Formats from around a table hold in its cells.
class OpenFormats {
public:
    /// Adds styles to `page` and sets the ends of elements in it. The page must outlive this.
    explicit OpenFormats(SurfacePage& page);

    /// A start tag; `element` is its index in the page.
    void open(TagName name, std::size_t element);
    /// The start and the end of a marker that changes how text looks: Anchor, Preformatted. The
    /// start marker tells which one ends.
    void openMarker(TagName name, std::size_t element) { open(name, element); }
    void closeMarker(TagName name, SourceRange startMarker);
    /// An end tag. False where nothing is open that it could end.
    [[nodiscard]] bool close(TagName name, SourceRange endTag);
    void enterCell(bool isHeading);
    /// Ends what is open in the innermost cell, or in the content, at `offset`.
    void leaveCell(std::size_t offset);
    /// The index of the style in the page.
    [[nodiscard]] std::uint16_t style();

private:
    using Stack = std::vector<std::size_t>; // indices of elements
    static constexpr std::size_t kStackCount = kFormatCount + 2; // those of the markers come last
    [[nodiscard]] static constexpr std::size_t slotOf(TagName name)
    {
        if (name == TagName::Anchor) return kFormatCount;
        if (name == TagName::Preformatted) return kFormatCount + 1;
        return static_cast<std::size_t>(name) - kFirstFormat;
    }
    struct Scope {
        std::array<std::size_t, kStackCount> base{}; // of each stack
        bool isHeading = false;
    };
    [[nodiscard]] const Stack& stackOf(TagName name) const;
    [[nodiscard]] TextStyle look() const;
    [[nodiscard]] std::uint16_t indexOf(const TextStyle& style);

    SurfacePage& page_;
    std::array<Stack, kStackCount> open_;
    std::vector<Scope> scopes_;
    std::size_t headings_ = 0; // heading cells around the place
    std::uint16_t style_ = 0;
    bool styleIsKnown_ = false;
    std::size_t indexedLink_ = kNone; // the styles of linkIndices_ are those within it
    static constexpr std::size_t kLooks = 80; // ways to look, apart from links
    std::array<std::uint16_t, kLooks> plainIndices_;
    std::array<std::uint16_t, kLooks> linkIndices_;
};

} // namespace quillmere
