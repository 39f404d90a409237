#pragma once

#include "document/text/output_rules.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What the editing surface shows of an area: its design text, read into blocks, tables and items,
// each of which knows the piece of the text that it stands for. The text itself stays as it is and
// is never made anew out of the page: an edit is a change of the text, after which the page is read
// again. So what is not touched is not changed, whatever was in it.

namespace quillmere {

inline constexpr std::size_t kNone = std::string_view::npos;

/// A piece of a design text: offsets in bytes, 0-based, `end` behind its last character.
struct SourceRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    [[nodiscard]] std::string_view in(std::string_view text) const
    {
        return text.substr(begin, end - begin);
    }
    [[nodiscard]] bool empty() const { return begin == end; }
    friend bool operator==(const SourceRange&, const SourceRange&) = default;
};

enum class ItemKind : std::uint8_t {
    Character, ///< a character, or the entity that stands for it
    Blank, ///< a run of white space, shown as one blank
    LineBreak, ///< <br>, and </br>, which each new table has behind it
    Picture, ///< <img>, with the </img> behind it
    Radio, ///< <input type=radio>
    Chip, ///< a tag that the surface cannot show, or that does not fit where it stands; or an atom
    Marker, ///< the start of a group of options, the start or the end of a group of fields
};

/// One that is drawn as a whole, in a way that its source tells.
[[nodiscard]] constexpr bool isObject(ItemKind kind)
{
    return kind >= ItemKind::Picture;
}

/// One place of the page that the caret can stand ahead of or behind: a character or an object.
struct PageItem {
    SourceRange source;
    char16_t shown = 0; ///< U+2028 for a line break, U+FFFC for an object
    ItemKind kind = ItemKind::Character;
    std::uint16_t style = 0; ///< index in SurfacePage::styles
};

/// How text looks. Two items of equal style look alike.
struct TextStyle {
    bool bold = false; ///< b, strong, th
    bool italic = false; ///< i, em
    bool underlined = false; ///< u
    std::int8_t sizeStep = 0; ///< one up for each big, one down for each small, from -2 to 2
    bool fixedPitch = false; ///< a pre marker
    std::size_t link = kNone; ///< index of the <a>, or the anchor marker, in SurfacePage::elements
    friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

enum class Alignment : std::uint8_t { Left, Center, Right };

/// A paragraph of the display: what stands between two breaks that no <br> makes. A block without a
/// paragraph holds text outside of <p>, or is the empty line ahead of, between or behind tables,
/// where text can be typed.
struct PageBlock {
    std::size_t firstItem = 0;
    std::size_t endItem = 0;
    SourceRange content; ///< from behind its start tag to ahead of its end tag, tables not included
    Alignment alignment = Alignment::Left;
    /// Index of the <p>, or the pre marker, in `elements`; a table splits a <p> into blocks.
    std::size_t paragraph = kNone;
    std::size_t cell = kNone; ///< index in `cells`; kNone: outside of tables
    std::uint16_t style = 0; ///< of text that is typed into the block while it is empty
    bool isAside = false; ///< holds atoms only, outside of paragraphs and tables: no place for text
};

/// A cell of a table: <td> or <th>. It has at least one block.
struct PageCell {
    std::size_t table = 0; ///< index in `tables`
    int row = 0;
    int column = 0;
    int columnSpan = 1; ///< the last cell of a short row takes the rest of the row
    std::size_t firstBlock = 0;
    std::size_t endBlock = 0;
    SourceRange content;
};

/// A table. A block stands ahead of each table and one behind it, in the same cell or outside. So a
/// <table> whose last cell has no end at all, behind which nothing could stand, is a chip.
struct PageTable {
    SourceRange source; ///< from '<' of <table> to behind </table>, or its last tag without that
    SourceRange startTag;
    std::size_t outerCell = kNone; ///< of a table within a table
    int rows = 0;
    int columns = 0;
    bool border = false;
    std::size_t blockAhead = 0;
    std::size_t blockBehind = 0;
};

/// An element of the text: a pair of tags, or of markers, that belong together. Its tags take no
/// place on the page unless they are a table, a picture or a chip.
struct PageElement {
    enum class Kind : std::uint8_t {
        Paragraph, ///< p, or a pre marker that is a block of its own
        Format,
        Link,
        Table,
        Row,
        Cell,
        Select,
        Option,
        Marker
    };
    Kind kind = Kind::Marker; ///< Marker: card, do, go and any other marker that comes in pairs
    SourceRange start;
    SourceRange end; ///< empty where the element has no end tag: it ends there

    [[nodiscard]] SourceRange whole() const { return {start.begin, end.end}; }
};

/// A place for the caret: ahead of the item `offset` of a block, or behind its last one.
struct PagePlace {
    std::size_t block = 0;
    std::size_t offset = 0; ///< 0 to the number of items of the block
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the comparison's own 0 for a pointer
    friend auto operator<=>(const PagePlace&, const PagePlace&) = default;
};

/// A design text and what is shown of it.
struct SurfacePage {
    std::string text;
    OutputRules rules; ///< those that it was read by
    SourceRange content; ///< what lies between the frame: card marker, do block, HTML, HEAD, BODY
    std::vector<PageItem> items; ///< in the order of the text; those of a block stand together
    std::vector<TextStyle> styles;
    std::vector<PageBlock>
        blocks; ///< in the order of the text, those of cells among them; never empty
    std::vector<PageTable> tables; ///< by their start
    std::vector<PageCell> cells; ///< by their start
    std::vector<PageElement> elements; ///< by their start
};

/// Reads a design text (Windows-1252, any length, however broken). The frame, comments and the tags
/// of elements that fit take no place among the items. A tag that is not known or that fits nowhere
/// (a stray end, a <td> outside of a table) is a Chip; a '<' without '>' and a '&' that begins no
/// entity are characters.
/// Where the rules lose nothing, atoms are Chips as well (but for those between the cells of a
/// table and in a do block, which show nothing), the text of an anchor looks like a link, pre makes
/// a block, and groups of options and fields begin with an item of their own. Else all of these are
/// comments.
/// White space between blocks and between the parts of a table shows nothing, nor does the layout
/// of the file: white space with a line end in it, directly at the start or end of a block. All
/// other white space of a block is seen. So no character that is typed makes other items come or
/// go.
[[nodiscard]] SurfacePage readSurfacePage(
    std::string text, const OutputRules& rules = OutputRules());

/// The value of an attribute of a start tag, quoted by " or ' or not at all, entities as written;
/// "" where the tag has no such attribute. `name` is lower case; case in the tag does not matter.
[[nodiscard]] std::string_view attributeOf(std::string_view tag, std::string_view name);

/// Whether a block is a pre marker's.
[[nodiscard]] bool isPreformatted(const SurfacePage& page, const PageBlock& block);

/// The number of items of a block.
[[nodiscard]] inline std::size_t itemCount(const PageBlock& block)
{
    return block.endItem - block.firstItem;
}

} // namespace quillmere
