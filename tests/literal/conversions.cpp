#include "literal/conversions.h"

#include "literal/search.h"

#include <array>
#include <span>
#include <stdexcept>

namespace quillmere::literal {
namespace {

/// A tag as written and in lower case.
struct Source {
    std::string tag;
    std::string lower;
};

/// What a tag becomes: "" leaves it as it is, " " deletes it.
using Rule = std::string (*)(const Source&);

struct Row {
    std::string_view contains; // in lower case
    std::string_view result;
    Rule rule = nullptr; // in place of the result
};

/// The place of the '"' that closes the value from `begin` on.
std::size_t closingQuote(const std::string& text, std::size_t begin)
{
    const std::size_t end = text.find('"', begin);
    if (end == npos) throw std::runtime_error("no closing quote");
    return end;
}

std::string wrap(std::string tag)
{
    return tag.replace(0, 1, "<!--").insert(tag.find('>'), "--");
}

std::string unwrap(std::string tag)
{
    tag.erase(1, 3); // the first character of a tag is "<"
    if (const auto end = tag.find("-->"); end != npos) tag.erase(end, 2);
    return tag;
}

/// The lower tag with the value of `name`, which is 'label=' or 'title=', as it is written.
std::string lowerButFor(const Source& source, const std::string& name)
{
    const std::size_t begin = source.tag.find(name) + 7;
    const std::size_t end = closingQuote(source.tag, begin);
    return source.lower.substr(0, begin) + source.tag.substr(begin, end - begin)
        + source.lower.substr(end);
}

/// Puts the attribute in front of the tag's end.
void append(std::string& tag, const std::string& attribute)
{
    tag.insert(tag.size() - 1, attribute);
}

/// Reads `name` in `tag`: quoted, else up to the next blank or '>'. Whether it is there at all.
bool readAttribute(const std::string& tag, const std::string& name, std::string& value)
{
    std::size_t begin = tag.find(name + "=\"");
    if (begin != npos) {
        begin += name.size() + 2;
        value = tag.substr(begin, closingQuote(tag, begin) - begin);
        return true;
    }
    begin = tag.find(name + "=");
    if (begin == npos) return false;
    begin += name.size() + 1;
    const std::size_t blank = tag.find(' ', begin);
    value = tag.substr(begin, (blank == npos ? tag.find('>', begin) : blank) - begin);
    return true;
}

/// Appends `name` to `result` where `tag` has it.
void copyAttribute(std::string& result, const std::string& tag, const std::string& name)
{
    std::string value;
    if (readAttribute(tag, name, value)) append(result, " " + name + "=\"" + value + "\"");
}

std::string paragraph(const Source& source)
{
    for (const std::string align : {"left", "center", "right"})
        if (source.lower.find(align) != npos) return "<p align=\"" + align + "\">";
    return "<p>";
}

template <auto change> std::string ofSource(const Source& source)
{
    return change(source.tag);
}

template <auto change> std::string ofLower(const Source& source)
{
    return change(source.lower);
}

template <auto change> std::string ofDo(const Source& source)
{
    return source.tag.find("label=") == npos ? "" : change(lowerButFor(source, "label="));
}

std::string tableToDesign(const Source& source)
{
    std::string result = source.lower;
    if (source.tag.find("title=") != npos) result = lowerButFor(source, "title=");
    if (source.lower.find("border=") == npos) append(result, " border=\"1\"");
    return result;
}

std::string tableToWml(const Source& source)
{
    // The title is looked for as it is written, in lower case.
    std::string value;
    if (!readAttribute(source.tag, "title", value)) return "";
    std::string result = "<table title=\"" + value + "\">";
    copyAttribute(result, source.lower, "align");
    copyAttribute(result, source.lower, "columns");
    return result;
}

std::string linkToDesign(const Source& source)
{
    std::size_t begin = source.lower.find("href=\"");
    if (begin == npos) return "";
    begin += 6;
    const std::size_t end = source.tag.find('"', begin);
    return end == npos ? "" : "<a href=\"" + source.tag.substr(begin, end - begin) + "\">";
}

std::string linkToWml(const Source& source)
{
    // As with the title.
    std::string value;
    return readAttribute(source.tag, "href", value) ? "<a href=\"" + value + "\">" : "";
}

std::string imageToDesign(const Source& source)
{
    const std::size_t at = source.lower.find("src=\"");
    if (at == npos) return "";
    (void)closingQuote(source.lower, at + 5);
    const std::size_t text = source.lower.find("alt=\"");
    if (text != npos) (void)closingQuote(source.lower, text + 5);
    return "";
}

std::string imageToWml(const Source& source)
{
    const std::size_t at = source.lower.find("src=\"");
    if (at == npos) return "";
    (void)closingQuote(source.lower, at + 5);
    std::string unused; // without a picture the attributes are read for nothing
    for (const std::string name : {"vspace", "hspace"})
        (void)readAttribute(source.lower, name, unused);
    return "</img>";
}

constexpr auto kToDesign = std::to_array<Row>({{"<p", "", paragraph}, {"</p>", "</p>"},
    {"<b>", "<b>"}, {"</b>", "</b>"}, {"<big", "<big>"}, {"</big", "</big>"}, {"<small", "<small>"},
    {"</small", "</small>"}, {"<strong", "<strong>"}, {"</strong", "</strong>"}, {"<em", "<em>"},
    {"</em", "</em>"}, {"<i>", "<i>"}, {"</i>", "</i>"}, {"<u>", "<u>"}, {"</u>", "</u>"},
    {"<br", "<br/>"}, {"</br>", " "}, {"<table", "", tableToDesign}, {"<do type", "", ofDo<wrap>},
    {"</table>", "</table>"}, {"<tr>", "<tr>"}, {"</tr>", "</tr>"}, {"<td>", "<td>"},
    {"</td>", "</td>"}, {"</do", "<!--/do-->"}, {"<go", "", ofSource<wrap>}, {"</go", "<!--/go-->"},
    {"<a", "", linkToDesign}, {"</a>", "</a>"}, {"<img", "", imageToDesign}, {"</img>", " "},
    {"<option", "", ofSource<wrap>}, {"</option", "", ofLower<wrap>}, {"<select", "<!--select-->"},
    {"</select", "<!--/select-->"}, {"<wml>", " "}, {"</wml>", " "}});

constexpr auto kToWml = std::to_array<Row>({{"<p", "", paragraph}, {"</p>", "</p>"}, {"<b>", "<b>"},
    {"</b>", "</b>"}, {"<big", "<big>"}, {"</big", "</big>"}, {"<small", "<small>"},
    {"</small", "</small>"}, {"<strong", "<strong>"}, {"</strong", "</strong>"}, {"<em", "<i>"},
    {"</em", "</i>"}, {"<i>", "<i>"}, {"</i>", "</i>"}, {"<u>", "<u>"}, {"</u>", "</u>"},
    {"<br", "<br/>"}, {"</br>", " "}, {"<table", "", tableToWml}, {"</table>", "</table>"},
    {"<tr>", "<tr>"}, {"</tr>", "</tr>"}, {"<td>", "<td>"}, {"</td>", "</td>"},
    {"<!--do type", "", ofDo<unwrap>}, {"<!--/do", "</do>"}, {"<!--go", "", ofSource<unwrap>},
    {"<!--/go", "</go>"}, {"<a", "", linkToWml}, {"</a", "</a>"}, {"<img", "", imageToWml},
    {"</img>", " "}, {"<!--option", "", ofSource<unwrap>}, {"<!--/option", "", ofLower<unwrap>},
    {"<!--select", "<select>"}, {"<!--/select", "</select>"}, {"<html>", " "}, {"</html>", " "},
    {"<!--card", "", ofSource<unwrap>}, {"<!--/card", "", ofLower<unwrap>}});

/// The replacement by the first row that matches; `otherwise` where none does.
template <class Otherwise>
std::string replacement(const Source& source, std::span<const Row> rows, Otherwise otherwise)
{
    for (const Row& row : rows) {
        if (source.lower.find(row.contains) == npos) continue;
        return row.rule != nullptr ? row.rule(source) : std::string(row.result);
    }
    return otherwise(source);
}

/// The positions of 'id="' and of "card", from 1, have a bit in common. That is the test, although
/// `<card title="a" id="x">` fails it.
bool isCard(const Source& source)
{
    return ((source.lower.find("id=\"") + 1) & (source.lower.find("card") + 1)) != 0;
}

template <class Otherwise>
void convert(std::string& text, std::span<const Row> rows, Otherwise otherwise)
{
    std::size_t p = 0;
    for (;;) {
        const std::size_t s = text.find('<', p);
        const std::size_t e = text.find('>', p + 1);
        if (s == npos || e == npos) return;
        if (s > e) { // a stray '>'
            p = e + 1;
            continue;
        }
        const std::string tag = text.substr(s, e + 1 - s);
        std::string result = replacement({tag, lowerCase(tag)}, rows, otherwise);
        p = s + 1;
        if (result.empty()) continue;
        if (result == " ") result.clear();
        text.replace(s, tag.size(), result);
        p = s + result.size();
    }
}

} // namespace

bool WmlToDesign(std::string& text)
{
    bool card = false;
    convert(text, kToDesign, [&](const Source& source) -> std::string {
        if (!isCard(source)) return source.lower.find("/card") != npos ? "<!--/card-->" : " ";
        card = true;
        return wrap(std::string(source.tag).erase(1, source.lower.find("card") - 1));
    });
    return card;
}

void DesignToWml(std::string& text)
{
    convert(text, kToWml, [](const Source&) { return std::string(" "); });
}

} // namespace quillmere::literal
