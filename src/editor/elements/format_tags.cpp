// Held by text_formats_test.cpp.

#include "editor/elements/format_tags.h"

#include "document/repair/crossing_formats.h"
#include "document/text/edited_text.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/page/attribute_values.h"
#include "editor/page/going_tags.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

struct FormatTag {
    std::string_view name;
    int FormatFlags::*flag;
};

// From the outermost to the innermost.
constexpr std::array kFormatTags{FormatTag{"big", &FormatFlags::big},
    FormatTag{"small", &FormatFlags::small}, FormatTag{"em", &FormatFlags::emphasis},
    FormatTag{"i", &FormatFlags::italic}, FormatTag{"strong", &FormatFlags::strong},
    FormatTag{"b", &FormatFlags::bold}, FormatTag{"u", &FormatFlags::underlined}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kCleanedPairs{
    {{"<big>", "</big>"}, {"<small>", "</small>"}, {"<i>", "</i>"}, {"<b>", "</b>"},
        {"<u>", "</u>"}}};

void appendTags(std::string& tags, const FormatTag& format, int count, std::string_view ahead)
{
    for (int i = 0; i < count; ++i)
        tags.append(ahead).append(format.name).append(">");
}

} // namespace

void GetInsertTextFormatTags(const FormatFlags& Flags, bool ends, std::string& Tags)
{
    if (!ends)
        for (const auto& format : kFormatTags)
            appendTags(Tags, format, Flags.*format.flag, "<");
    else
        std::for_each(kFormatTags.rbegin(), kFormatTags.rend(),
            [&](const FormatTag& format) { appendTags(Tags, format, Flags.*format.flag, "</"); });
}

void appendStartTags(const FormatFlags& flags, const FormatStarts& starts, std::string& tags,
    std::set<const char*>& written)
{
    for (std::size_t i = 0; i < kFormatTags.size(); ++i) {
        const auto& format = kFormatTags.at(i);
        const auto start = starts.at(i);
        if (start.empty()) appendTags(tags, format, flags.*format.flag, "<");
        for (int count = start.empty() ? 0 : flags.*format.flag; count > 0; --count)
            tags += written.insert(start.data()).second ? std::string(start)
                                                        : secondTag(start, OutputRules(true));
    }
}

bool addFormat(FormatFlags& flags, std::string_view startTag, FormatStarts* starts)
{
    const auto name = lowerCase(startTag.substr(1, startTag.find_first_of(" \t\r\n/>", 1) - 1));
    const auto* const format = std::ranges::find(kFormatTags, name, &FormatTag::name);
    if (format == kFormatTags.end()) return false;
    ++(flags.*format->flag);
    const bool hasAttributes = startTag.find('=') != std::string_view::npos;
    if (starts != nullptr && hasAttributes)
        starts->at(static_cast<std::size_t>(format - kFormatTags.begin())) = startTag;
    return true;
}

std::vector<std::size_t> formatsOpenAt(const SurfacePage& page, std::size_t offset)
{
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < page.elements.size(); ++i) {
        const auto& element = page.elements[i];
        const bool isOpen = element.start.end <= offset && element.end.begin >= offset;
        if (isOpen && element.kind == PageElement::Kind::Format) open.push_back(i);
    }
    return open;
}

FormatBorder formatBorder(const SurfacePage& page, const std::vector<std::size_t>& formats)
{
    FormatBorder border;
    for (const auto format : formats) {
        const auto tag = page.elements[format].start.in(page.text);
        border.starts += secondTag(tag, page.rules);
        border.ends.insert(0, endTagFor(tag));
    }
    return border;
}

void DeleteFormatTagsWhoArroundsNoText(std::string& Text, std::size_t limit)
{
    requireAddressable(Text, limit);
    EditedText text(std::move(Text));
    for (std::size_t length = 0; length != text.size();) {
        length = text.size();
        for (const auto& [open, close] : kCleanedPairs)
            dropFormatsWithoutText(text, SearchKey(open), SearchKey(close));
    }
    Text = std::move(text).take();
}

} // namespace quillmere
