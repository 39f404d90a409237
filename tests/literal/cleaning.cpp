#include "literal/cleaning.h"

#include "literal/corrections.h"
#include "literal/search.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace quillmere::literal {
namespace {

constexpr std::string_view kDo = "<!--do", kDoEnd = "<!--/do", kGo = "<!--go";
constexpr std::string_view kOption = "<!--option", kOptionEnd = "<!--/option";
constexpr std::string_view kSelect = "<!--select", kSelectEnd = "<!--/select";
constexpr std::string_view kCardEnd = "<!--/card"; // Always the first one in the text

std::string firstDoBlock(std::string text)
{
    const std::size_t a = find(text, kDo);
    const std::size_t g = find(text, kGo, a == npos ? 0 : a);
    const std::size_t c = find(text, kDoEnd, std::min(a, g) == npos ? 0 : std::min(a, g));
    if (a != npos) {
        if (c != npos && g == npos) deleteThrough(text, a, c);
        if (c == npos) deleteThrough(text, a, g == npos ? a : g);
    } else if (g != npos) {
        deleteThrough(text, g, c == npos ? g : c);
    } else {
        deleteTag(text, c);
    }
    return text;
}

std::string orphanOptionEnds(std::string text)
{
    while (find(text, kOptionEnd) < find(text, kOption)
        && deleteTag(text, find(text, kOptionEnd)) != 0) { }
    return text;
}

/// The end of a lone option: in front of the next tag that is no temporary radio button.
void endLoneOption(std::string& text, std::size_t o)
{
    std::size_t end = text.find('>', o);
    if (end == npos) return;
    std::size_t tag = text.find('<', end);
    while (tag != npos && find(text, "<input", tag) == tag) {
        end = text.find('>', tag);
        tag = text.find('<', end);
    }
    text.insert(std::min(tag, text.size()), "<!--/option-->"); // Else at the text's end
}

void completeOption(std::string& text, std::size_t o)
{
    const std::size_t c = find(text, kOptionEnd, o);
    const std::size_t n = find(text, kOption, o + 1);
    const std::size_t s = find(text, kSelectEnd, o);
    if (c != npos && c < n) return;
    if (c != npos) { // behind n
        if (s == npos) throw std::runtime_error("no end of the list");
        text.insert(std::min(n, s), "<!--/option-->");
    } else if (n == npos && s != npos) {
        text.insert(s, "<!--/option-->");
    } else if (n == npos) {
        endLoneOption(text, o);
    }
}

std::string optionPairs(std::string text)
{
    std::size_t last = npos;
    for (auto o = find(text, kOption); o != npos; o = find(text, kOption, o + 1)) {
        completeOption(text, o);
        last = o;
    }
    const std::size_t end = find(text, kOptionEnd, last);
    if (end != npos) deleteEvery(text, kOptionEnd, end + 1);
    return text;
}

std::string selectStart(std::string text)
{
    if (find(text, kOption) != npos && find(text, kSelect) == npos)
        text.insert(find(text, kOption), "<!--select-->");
    return text;
}

std::string selectEnd(std::string text)
{
    const std::size_t end = text.find('>', findLast(text, kOptionEnd));
    if (end != npos && find(text, kSelectEnd) == npos) text.insert(end + 1, "<!--/select-->");
    return text;
}

std::string emptySelect(std::string text)
{
    if (find(text, kSelect) == npos || find(text, kOption) != npos) return text;
    deleteEvery(text, kSelect);
    deleteEvery(text, kSelectEnd);
    return text;
}

std::string doBlockLast(std::string text)
{
    const std::size_t begin = find(text, kDo);
    if (find(text, kDoEnd, begin) != npos) {
        const std::size_t end = text.find('>', findLast(text, kDoEnd));
        const std::string block = text.substr(begin, end == npos ? 0 : end + 1 - begin);
        text.erase(begin, block.size()).append(block);
    }
    return text + "<!--/card-->";
}

std::string emptyParagraphs(std::string text)
{
    for (auto p = find(text, "<p>&nbsp"); p != npos; p = find(text, "<p>&nbsp", p + 1))
        if (deleteThrough(text, p, find(text, "</p", p)) != 0) text.insert(p, "<br/>");
    return text;
}

/// The table from `t` on, whose end stands at `e`. The end is carried along, not looked for again.
void cleanTable(std::string& text, std::size_t t, std::size_t e)
{
    for (auto p = find(text, "<p", t); p < e; p = find(text, "<p", p)) {
        const std::size_t length = deleteTag(text, p);
        if (length == 0) break; // no '>' is left
        e -= std::min(e, length); // a tag may end behind the table's end
    }
    for (auto p = find(text, "</p", t); p < e; p = find(text, "</p", p)) {
        if (deleteTag(text, p) == 0) break; // rows ahead of it may be complete
        text.insert(p, "<br/>");
        e += 1; // always, even where the tag was not "</p>"
    }
    for (auto r = find(text, "</tr", t); r < e; r = find(text, "</tr", r + 1)) {
        const std::size_t close = text.find('>', r);
        const std::size_t next = std::min(find(text, "<tr", close), e);
        if (close >= next) continue;
        text.erase(close + 1, next - close - 1);
        e -= next - close - 1;
    }
}

std::string tables(std::string text)
{
    for (auto t = find(text, "<table"); t != npos; t = find(text, "<table", t + 1)) {
        const std::size_t e = find(text, "</table", t);
        if (e != npos) {
            cleanTable(text, t, e);
            continue;
        }
        const std::size_t row = findLast(text, "</tr", find(text, "<table", t + 1));
        const std::size_t end = row == npos || row < t ? npos : text.find('>', row);
        if (end != npos) text.insert(end + 1, "</table>");
    }
    return text;
}

std::string paragraphRuns(std::string text)
{
    for (auto a = find(text, "<p"); a != npos;) {
        const std::size_t b = find(text, "<p", a + 1);
        const std::size_t bEnd = text.find('>', b);
        if (bEnd != npos && find(text, "</p", a) > b) {
            const std::string second = text.substr(b, bEnd + 1 - b);
            const std::size_t aEnd = std::min(text.find('>', a) + 1, b);
            text.erase(b, second.size());
            if (find(second, "align") != npos) text.replace(a, aEnd - a, second);
        } else if (find(text, "</p", a) != npos || deleteTag(text, a) == 0) {
            ++a;
        }
        a = find(text, "<p", a);
    }
    return text;
}

/// The anchor counts positions from 1, so that 0 stands ahead of the text.
std::string behindTheAnchor(std::string text)
{
    std::size_t s = 0;
    for (auto g = text.find('>'); g != npos; g = text.find('>', g + 1)) {
        const std::size_t l = text.find('<', g);
        if (l != npos && !trim(text.substr(g + 1, l - g - 1)).empty()) s = l; // the '<' less 1
    }
    for (const std::string_view key : {std::string_view("<img"), std::string_view("<a"), kSelect,
             std::string_view("<table"), std::string_view("</img"), std::string_view("</a"),
             kSelectEnd, std::string_view("</table"), kDoEnd}) {
        const std::size_t found = find(text, key, s);
        if (found != npos) s = found + 1;
    }
    for (const std::string_view key : {"<p", "</p", "<br"})
        deleteEvery(text, key, s == 0 ? 0 : s - 1);
    return text;
}

/// A position that is lowered below the first character stands ahead of the text.
std::string mergeParagraphs(std::string text)
{
    const auto length = [](std::size_t value) { return static_cast<std::ptrdiff_t>(value); };
    const auto from = [](std::ptrdiff_t a) { return static_cast<std::size_t>(std::max(a, {})); };
    std::ptrdiff_t behind = 0; // where the search goes on
    for (auto p = find(text, "<p"); p != npos; p = find(text, "<p", from(behind))) {
        const std::size_t b = find(text, "<p", p + 1);
        const std::size_t pEnd = text.find('>', p);
        const std::size_t bEnd = text.find('>', b);
        behind = length(p) + 1;
        if (bEnd == npos) return text;
        if (find(text.substr(p, pEnd - p), "align") != npos) continue;
        if (find(text.substr(b, bEnd - b), "align") != npos) continue;
        behind -= length(deleteTag(text, b)) - 1;
        const std::size_t end = deleteTag(text, find(text, "</p", from(behind - 1)));
        if (end != 0) behind -= length(end) - 1;
    }
    return text;
}

std::string paragraphEnds(std::string text)
{
    for (auto e = find(text, "</p"); e != npos; e = find(text, "</p", e)) {
        const std::size_t next = find(text, "</p", e + 1);
        if (next == npos || find(text, "<p", e) < next || deleteTag(text, e) == 0) ++e;
    }
    return text;
}

std::string unclosedParagraph(std::string text)
{
    for (auto a = find(text, "<p"); a != npos; a = find(text, "<p", a + 1)) {
        const std::size_t card = find(text, kCardEnd);
        if (find(text, "</p", a) != npos || card == npos) continue;
        text.insert(card, "</p>");
        if (card < a) a += 4;
    }
    return text;
}

/// Deletes each element from `open` through `close`, whole.
void deleteElements(std::string& text, std::string_view open, std::string_view close)
{
    for (auto a = find(text, open); a != npos; a = find(text, open, a))
        if (deleteThrough(text, a, find(text, close, a)) == 0) ++a;
}

/// Any character behind code 32 is text, and an element without end is none.
bool hasText(std::string content)
{
    deleteElements(content, "<table", "</table");
    deleteElements(content, kSelect, kSelectEnd);
    deleteElements(content, "<", ">");
    return std::any_of(
        content.begin(), content.end(), [](char c) { return static_cast<unsigned char>(c) > 32; });
}

/// A card without any paragraph: one around all of its content where there is text in it.
/// Without a body tag the content begins behind the card's marker, else with the text.
std::string emptyCard(std::string text)
{
    const std::size_t card = find(text, kCardEnd);
    if (find(text, "<p") != npos || card == npos) return text;
    std::size_t begin = text.find('>', find(text, "<body"));
    if (begin == npos) begin = text.find('>', find(text, "<!--card"));
    begin = begin == npos ? 0 : begin + 1;
    const std::size_t end = std::min(card, find(text, kDo, begin));
    if (begin <= end && hasText(text.substr(begin, end - begin)))
        return text.insert(end, "</p>").insert(begin, "<p>");
    return text.insert(card, "<p></p>");
}

std::string textAheadOfCardEnd(std::string text)
{
    const std::size_t card = find(text, kCardEnd);
    const std::size_t last = card == npos ? npos : findLast(text, "</p", card);
    // Any '>' from the last "</p" on, not only its own.
    for (auto g = text.find('>', last); g < card; g = text.find('>', g + 1)) {
        if (text.find('<', g) - g <= 2) continue;
        text.insert(card, "</p>");
        text.insert(text.find('>', last) + 1, "<p>");
        return text;
    }
    return text;
}

std::string breaks(std::string text)
{
    for (auto b = find(text, "<br"); b != npos; b = find(text, "<br", b)) {
        const std::size_t end = find(text, "</p", b);
        if ((end != npos && end < find(text, "<p", b)) || deleteTag(text, b) == 0) ++b;
    }
    return text;
}

std::string elementsOutside(std::string text)
{
    using Pair = std::pair<std::string_view, std::string_view>;
    for (const auto& [open, close] : {Pair("<img", "</img"), Pair("<a", "</a"),
             Pair(kSelect, kSelectEnd), Pair("<table", "</table"), Pair("<img", "</img"),
             Pair("<strong", "</strong"), Pair("<small", "</small"), Pair("<b>", "</b>"),
             Pair("<em>", "</em>"), Pair("<i>", "</i>"), Pair("<u>", "</u>")})
        WrapInParagraph(text, open, close);
    return text;
}

std::string formatsAcross(std::string text)
{
    for (const std::string tag : {"big>", "small>", "i>", "b>", "u>"})
        SplitAtParagraphs(text, "<" + tag, "</" + tag);
    return text;
}

std::string formatNesting(std::string text)
{
    RepairFormatNesting(text);
    return text;
}

/// One cut for each bracket, the next one is looked for behind it.
std::string doubledBrackets(std::string text)
{
    for (const auto& [bracket, other] : {std::pair('<', '>'), std::pair('>', '<')}) {
        for (auto a = text.find(bracket); a != npos; a = text.find(bracket, a + 1)) {
            const std::size_t end = text.find(other, a);
            if (end != npos && text.find(bracket, a + 1) < end) text.erase(a + 1, 1);
        }
    }
    return text;
}

constexpr auto kPasses = std::to_array<Pass>({
    {"1 first do block", firstDoBlock},
    {"2 orphan option ends", orphanOptionEnds},
    {"3 option pairs", optionPairs},
    {"4 select start", selectStart},
    {"5 select end", selectEnd},
    {"6 empty select", emptySelect},
    {"7 do block last", doBlockLast},
    {"8 empty paragraphs", emptyParagraphs},
    {"9 tables", tables},
    {"10 paragraph runs", paragraphRuns},
    {"11 and 12 behind the anchor", behindTheAnchor},
    {"12a paragraph merge", mergeParagraphs},
    {"13 paragraph ends", paragraphEnds},
    {"14 unclosed paragraph", unclosedParagraph},
    {"15 empty card", emptyCard},
    {"16 text ahead of the card's end", textAheadOfCardEnd},
    {"17 breaks", breaks},
    {"18 elements outside", elementsOutside},
    {"19 formats across", formatsAcross},
    {"20 format nesting", formatNesting},
    {"21 paragraph ends again", paragraphEnds},
    {"22 doubled brackets", doubledBrackets},
});

bool isBlank(const std::string& text)
{
    return trim(text).empty() || trim(text) == "\r\n";
}

} // namespace

std::span<const Pass> cleanPasses()
{
    return kPasses;
}

void TransliterateGerman(std::string& text)
{
    using Pair = std::pair<char, std::string_view>;
    for (const auto& [letter, plain] : {Pair('\xC4', "Ae"), Pair('\xD6', "Oe"), Pair('\xDC', "Ue"),
             Pair('\xE4', "ae"), Pair('\xF6', "oe"), Pair('\xFC', "ue"), Pair('\xDF', "ss")}) {
        for (auto a = text.find(letter); a != npos; a = text.find(letter))
            text.replace(a, 1, plain);
    }
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 127; }, ' ');
}

void cutBlankGaps(std::string& text)
{
    for (auto g = text.find('>'); g != npos; g = text.find('>', g + 1)) {
        const std::size_t l = text.find('<', g);
        if (l != npos && isBlank(text.substr(g + 1, l - g - 1))) text.erase(g + 1, l - g - 1);
    }
}

void cutBlanksAheadOfTags(std::string& text)
{
    for (auto b = text.find(' '); b != npos; b = text.find(' ', b)) {
        const std::size_t l = text.find('<', b);
        if (l == npos) return;
        const std::string between = text.substr(b, l - b);
        const bool real = std::any_of(
            between.begin(), between.end(), [](char c) { return c >= 33 && c <= 126; });
        if (real || !isBlank(between))
            ++b;
        else
            text.erase(b, l - b);
    }
}

void CleanDesignHtml(std::string& text)
{
    for (const Pass& pass : cleanPasses())
        text = pass.apply(std::move(text));
    TransliterateGerman(text);
    cutBlankGaps(text);
    cutBlanksAheadOfTags(text);
}

} // namespace quillmere::literal
