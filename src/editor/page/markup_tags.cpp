// One walk over the text; a name is packed into a number and looked up in a sorted table. What is
// not there ('>' or "-->") is searched in vain only once. Held by surface_page_test.cpp.

#include "editor/page/markup_tags.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillmere {

namespace {

constexpr std::string_view kCommentStart = "<!--";
constexpr std::string_view kCommentEnd = "-->";
constexpr std::size_t kLongestName = 8;

constexpr char lowered(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                : character;
}

/// A name of up to eight letters as a number, case ignored; 0 for a longer one.
constexpr std::uint64_t packed(std::string_view name)
{
    if (name.size() > kLongestName) return 0;
    std::uint64_t number = 0;
    for (const char character : name)
        number = (number << 8U) | static_cast<unsigned char>(lowered(character));
    return number;
}

struct NameRow {
    std::uint64_t key;
    TagName name;
};

template <std::size_t size> constexpr auto sorted(std::array<NameRow, size> rows)
{
    std::ranges::sort(rows, {}, &NameRow::key);
    return rows;
}

constexpr auto kElements = sorted(std::to_array<NameRow>({
    {packed("html"), TagName::Html},
    {packed("head"), TagName::Head},
    {packed("body"), TagName::Body},
    {packed("p"), TagName::Paragraph},
    {packed("br"), TagName::LineBreak},
    {packed("img"), TagName::Picture},
    {packed("input"), TagName::Input},
    {packed("table"), TagName::Table},
    {packed("tr"), TagName::Row},
    {packed("td"), TagName::Cell},
    {packed("th"), TagName::HeadCell},
    {packed("tbody"), TagName::RowGroup},
    {packed("thead"), TagName::RowGroup},
    {packed("tfoot"), TagName::RowGroup},
    {packed("colgroup"), TagName::RowGroup},
    {packed("col"), TagName::RowGroup},
    {packed("b"), TagName::Bold},
    {packed("strong"), TagName::Strong},
    {packed("i"), TagName::Italic},
    {packed("em"), TagName::Emphasis},
    {packed("u"), TagName::Underline},
    {packed("big"), TagName::Big},
    {packed("small"), TagName::Small},
    {packed("a"), TagName::Link},
}));

constexpr auto kMarkers = sorted(std::to_array<NameRow>({
    {packed("card"), TagName::Card},
    {packed("do"), TagName::Do},
    {packed("select"), TagName::Select},
    {packed("option"), TagName::Option},
    {packed("anchor"), TagName::Anchor},
    {packed("optgroup"), TagName::OptionGroup},
    {packed("fieldset"), TagName::FieldSet},
    {packed("pre"), TagName::Preformatted},
}));

TagName nameIn(std::span<const NameRow> rows, std::string_view name, TagName otherwise)
{
    const auto key = packed(name);
    const auto row = std::ranges::lower_bound(rows, key, {}, &NameRow::key);
    return row != rows.end() && row->key == key ? row->name : otherwise;
}

bool endsName(char character)
{
    return isWhite(character) || character == '/' || character == '>';
}

bool isLetter(char character)
{
    return lowered(character) >= 'a' && lowered(character) <= 'z';
}

bool isAtom(std::string_view comment)
{
    const auto name = comment.substr(kCommentStart.size());
    return name.front() == '#' && isLetter(name[1]); // "-->" stands behind them
}

MarkupTag comment(SourceRange source, std::string_view written)
{
    if (isAtom(written)) return {source, TagName::Atom};
    MarkupTag tag{source, TagName::Comment};
    const auto name = markerName(written);
    if (name.empty() || written.ends_with("/-->")) return tag;
    tag.name = nameIn(kMarkers, name, TagName::OtherMarker);
    tag.isEnd = written[kCommentStart.size()] == '/';
    return tag;
}

std::string_view elementName(std::string_view written)
{
    const auto* const begin = written.begin() + (written[1] == '/' ? 2 : 1);
    return {begin, std::find_if(begin, written.end(), endsName)};
}

MarkupTag element(SourceRange source, std::string_view written)
{
    MarkupTag tag{source};
    tag.isEnd = written[1] == '/';
    if (written[1] == '!' || written[1] == '?') {
        tag.name = TagName::Declaration;
        return tag;
    }
    tag.name = nameIn(kElements, elementName(written), TagName::Other);
    return tag;
}

} // namespace

std::string_view markerName(std::string_view comment)
{
    comment.remove_prefix(std::min(comment.size(), kCommentStart.size()));
    if (comment.starts_with('/')) comment.remove_prefix(1);
    const auto* const end = std::ranges::find_if_not(comment, isLetter);
    return {comment.begin(), end};
}

std::string_view tagName(std::string_view tag)
{
    return tag.starts_with(kCommentStart) ? markerName(tag) : elementName(tag);
}

std::optional<MarkupTag> MarkupScanner::next()
{
    const auto begin = text_.find('<', position_);
    if (begin == kNone) return std::nullopt;
    const bool isComment = text_.substr(begin).starts_with(kCommentStart);
    const auto end = isComment ? endOfComment(begin) : endBehind(">", begin);
    position_ = end;
    if (end == kNone) return std::nullopt;
    const SourceRange source{begin, end};
    return isComment ? comment(source, source.in(text_)) : element(source, source.in(text_));
}

/// The offset behind the first `key` from `from` on; kNone for none.
std::size_t MarkupScanner::endBehind(std::string_view key, std::size_t from) const
{
    const auto found = text_.find(key, from);
    return found == kNone ? kNone : found + key.size();
}

std::size_t MarkupScanner::endOfComment(std::size_t begin)
{
    const auto content = begin + 2; // the two dashes may be those of the end, as in "<!-->"
    if (commentEndsAreLeft_) {
        const auto end = endBehind(kCommentEnd, content);
        if (end != kNone) return end;
        commentEndsAreLeft_ = false;
    }
    return endBehind(">", content);
}

} // namespace quillmere
