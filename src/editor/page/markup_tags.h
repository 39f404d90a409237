#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillmere {

/// What the surface has a use for. Enumerators of one kind stand together; see the functions below.
enum class TagName : std::uint8_t {
    Other,
    Declaration, ///< <!x> or <?x>
    Html,
    Head,
    Body,
    Paragraph,
    LineBreak,
    Picture,
    Input,
    Table,
    Row,
    Cell, ///< td
    HeadCell, ///< th
    RowGroup, ///< tbody and its like, which show nothing between the rows of a table
    Bold,
    Strong,
    Italic,
    Emphasis,
    Underline,
    Big,
    Small,
    Link,
    Comment, ///< one that is no marker, or a marker without content such as <!--go href="#a"/-->
    Atom, ///< <!--#NAME SOURCE-->, which holds an element whole
    Card,
    Do,
    Select,
    Option,
    Anchor,
    OptionGroup,
    FieldSet,
    Preformatted,
    OtherMarker,
};

inline constexpr std::size_t kFirstFormat = static_cast<std::size_t>(TagName::Bold);
inline constexpr std::size_t kFormatCount
    = static_cast<std::size_t>(TagName::Link) + 1 - kFirstFormat;

/// The formats and the link: what takes no place where it stands in text.
[[nodiscard]] constexpr bool isFormat(TagName name)
{
    return name >= TagName::Bold && name <= TagName::Link;
}
[[nodiscard]] constexpr bool isTablePart(TagName name)
{
    return name >= TagName::Table && name <= TagName::RowGroup;
}
[[nodiscard]] constexpr bool isComment(TagName name)
{
    return name >= TagName::Comment;
}

inline constexpr std::uint32_t kNoTag = 0xFFFFFFFF;

/// A tag or a comment in a design text.
struct MarkupTag {
    SourceRange source;
    TagName name = TagName::Other;
    bool isEnd = false;
    std::uint32_t partner = kNoTag; ///< of a marker: the index of its end, or of its start
    std::uint32_t table = kNoTag; ///< of a part of a table that fits: the index of its outline
};

/// Walks the tags of a text from left to right. A tag ends at the first '>' behind its '<', quoted
/// or not, a comment at its "-->", or at the first '>' where no "-->" is left. The text must
/// outlive the scanner.
class MarkupScanner {
public:
    explicit MarkupScanner(std::string_view text, std::size_t from = 0)
        : text_(text)
        , position_(from)
    {
    }
    /// The next tag; nullopt where none is left.
    [[nodiscard]] std::optional<MarkupTag> next();

private:
    [[nodiscard]] std::size_t endBehind(std::string_view key, std::size_t from) const;
    [[nodiscard]] std::size_t endOfComment(std::size_t begin);

    std::string_view text_;
    std::size_t position_;
    bool commentEndsAreLeft_ = true;
};

/// The name of a marker, "go" of <!--go href="#a"--> and of <!--/go-->, as written; "" for a
/// comment that is no marker.
[[nodiscard]] std::string_view markerName(std::string_view comment);

/// The name of a whole tag or marker, as written; "" for an atom and a plain comment.
[[nodiscard]] std::string_view tagName(std::string_view tag);

[[nodiscard]] constexpr bool isWhite(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

} // namespace quillmere
