#include "literal/corrections.h"

#include "literal/search.h"

#include <algorithm>
#include <array>

namespace quillmere::literal {
namespace {

struct Pair {
    std::string_view open;
    std::string_view close;
};

constexpr std::array<Pair, 5> kFormats{{{"<big>", "</big>"}, {"<small>", "</small>"},
    {"<i>", "</i>"}, {"<b>", "</b>"}, {"<u>", "</u>"}}};

/// The codes 48 to 90 and the lower-case letters, so that '<' of any tag counts as well.
bool holdsText(std::string_view text)
{
    return std::any_of(text.begin(), text.end(),
        [](char c) { return (c >= 48 && c <= 90) || (c >= 'a' && c <= 'z'); });
}

/// The last open tag ahead of `at` with no close tag between.
std::size_t openAhead(const std::string& text, Pair pair, std::size_t at)
{
    const std::size_t found = findLast(text, pair.open, at);
    return found != npos && find(text, pair.close, found) < at ? npos : found;
}

/// Deletes a pair of which one may be missing, and corrects the position of the list.
void deletePair(std::string& text, std::size_t open, std::size_t close, std::size_t& list)
{
    deleteTag(text, close);
    const std::size_t length = deleteTag(text, open);
    if (open < list) list -= length;
}

/// Whether one of the tags stands in the list at `s`; with `apply` one such pair is deleted.
bool takeInside(std::string& text, Pair pair, bool apply, std::size_t& s)
{
    const std::size_t e = find(text, "</select", s);
    const std::size_t inside = find(text, pair.open, s);
    if (e == npos || (inside > e && find(text, pair.close, s) > e)) return false;
    if (!apply) return true;
    // The open tag in the list goes first, else the one ahead of it; a tag that its pair
    // lacks is not deleted.
    const std::size_t open = inside < e ? inside : openAhead(text, pair, s);
    deletePair(text, open, find(text, pair.close, open == npos ? s : open), s);
    return true;
}

/// Whether a pair encloses the list at `s`; with `apply` the innermost one is deleted.
bool takeAround(std::string& text, Pair pair, bool apply, std::size_t& s)
{
    const std::size_t e = find(text, "</select", s);
    const std::size_t open = openAhead(text, pair, s);
    const std::size_t close = find(text, pair.close, s);
    if (e == npos || open == npos || close == npos || close < e) return false;
    if (apply) deletePair(text, open, close, s);
    return true;
}

using Take = bool (*)(std::string&, Pair, bool, std::size_t&);

bool sweepLists(std::string& text, Pair pair, bool apply, Take take)
{
    bool found = false;
    for (auto s = find(text, "<select"); s != npos; s = find(text, "<select", s + 1)) {
        while (take(text, pair, apply, s)) {
            found = true;
            if (!apply) return true;
        }
    }
    return found;
}

/// The position, counted from 1, says whether the tag there gets a line of its own.
bool getsOwnLine(const std::string& text, std::size_t position)
{
    constexpr std::array<std::string_view, 13> kInLine{"<br/", "<td", "</td", "<strong", "</strong",
        "<i>", "</i>", "<u>", "</u>", "<big", "</big", "<small", "</small"};
    return std::none_of(kInLine.begin(), kInLine.end(), [&](std::string_view key) {
        return text.size() > position + key.size()
            && text.compare(position - 1, key.size(), key) == 0;
    });
}

bool isWhite(char c)
{
    return static_cast<unsigned char>(c) < 33;
}

/// The gap `fresh` with the white space of the gap `old` at its ends.
std::string mergeGaps(const std::string& fresh, const std::string& old)
{
    const auto lead = std::find_if_not(old.begin(), old.end(), isWhite);
    const auto trail = std::find_if_not(old.rbegin(), old.rend(), isWhite).base();
    const auto first = std::find_if_not(fresh.begin(), fresh.end(), isWhite);
    const auto last = std::find_if_not(fresh.rbegin(), fresh.rend(), isWhite).base();
    std::string gap(old.begin(), lead);
    if (first < last) gap.append(first, last);
    if (lead < trail) gap.append(trail, old.end()); // white space only counts once
    return gap;
}

/// Within the option's tag, ignoring case; a value without closing quote is no target.
std::string targetOf(const std::string& tag)
{
    if (const std::size_t quoted = find(tag, "onpick=\""); quoted != npos) {
        const std::size_t end = tag.find('"', quoted + 8);
        return end == npos ? "" : tag.substr(quoted + 8, end - quoted - 8);
    }
    const std::size_t plain = find(tag, "onpick=");
    if (plain == npos) return "";
    const std::size_t end = std::min(tag.find(' ', plain), tag.find('>', plain));
    return tag.substr(plain + 7, end - plain - 7);
}

std::string button(int number, std::string target)
{
    const std::string result = "<input type=radio name=\"TempName" + std::to_string(number);
    if (target.empty()) return result + "\">";
    std::replace(target.begin(), target.end(), '\\', '/');
    return result + "\" onclick=\"javascript:navigate('" + target + "')\">";
}

} // namespace

void RepairOnePair(std::string& text, std::string_view open, std::string_view close)
{
    while (find(text, close) < find(text, open) && deleteTag(text, find(text, close)) != 0) { }
    for (auto a = find(text, open); a != npos; a = find(text, open, a + 1)) {
        if (find(text, close, a) == npos) return deleteEvery(text, open, a);
        while (find(text, open, a + 1) < find(text, close, a)
            && deleteTag(text, find(text, open, a + 1)) != 0) { }
    }
}

void RepairNesting(std::string& text)
{
    RepairOnePair(text, "<strong>", "</strong>");
    RepairOnePair(text, "<i>", "</i>");
    RepairOnePair(text, "<u>", "</u>");
    RepairOnePair(text, "<big>", "</big>");
    RepairOnePair(text, "<small>", "</small>");
}

bool FormatAroundSelect(
    std::string& text, std::string_view open, std::string_view close, bool apply)
{
    const bool inside = sweepLists(text, {open, close}, apply, takeInside);
    const bool around = sweepLists(text, {open, close}, apply, takeAround);
    return inside || around;
}

void RepairFormatAroundSelect(std::string& text)
{
    if (std::none_of(kFormats.begin(), kFormats.end(),
            [&](Pair pair) { return FormatAroundSelect(text, pair.open, pair.close, false); }))
        return;
    for (const Pair pair : kFormats)
        FormatAroundSelect(text, pair.open, pair.close, true);
}

void RepairParagraphs(std::string& text)
{
    // Without a "<p" behind the card tag the first step has nothing to look through.
    const std::size_t card = text.find('>', find(text, "<card"));
    const std::size_t first = find(text, "<p", card);
    if (first != npos && holdsText(std::string_view(text).substr(card + 1, first - card - 1)))
        text.insert(card + 1, "<p>");

    const std::size_t last = text.find('>', findLast(text, "</p"));
    const std::size_t end = find(text, "</card");
    if (last < end && end != npos
        && holdsText(std::string_view(text).substr(last + 1, end - last - 1)))
        text.insert(end, "</p>");

    for (auto a = find(text, "</p"); a != npos; a = find(text, "</p", a + 1)) {
        while (find(text, "</p", a + 1) < find(text, "<p", a)
            && deleteTag(text, find(text, "</p", a + 1)) != 0) { }
    }
}

void WrapInParagraph(std::string& text, std::string_view open, std::string_view close)
{
    for (auto o = find(text, open); o != npos; o = find(text, open, o + 1)) {
        const std::size_t paragraph = findLast(text, "<p", o);
        // A paragraph without end is open as well.
        if (paragraph != npos && find(text, "</p", paragraph) > o) continue;
        const std::size_t end = text.find('>', find(text, close, o));
        if (end == npos) return; // An element without end gets no paragraph
        text.insert(end + 1, "</p>");
        text.insert(o, "<p>");
        o += 3;
    }
}

void SplitAtParagraphs(std::string& text, std::string_view open, std::string_view close)
{
    for (auto a = find(text, open); a != npos; a = find(text, open, a + 1)) {
        const std::size_t end = find(text, "</p", a);
        const std::size_t behind = text.find('>', find(text, "<p", end));
        // Without a further paragraph the element is left as it is.
        if (end >= find(text, close, a) || find(text, close, a) == npos || behind == npos) continue;
        text.insert(behind + 1, open);
        text.insert(end, close);
    }
    for (auto a = find(text, open); a != npos; a = find(text, open, a)) {
        const std::size_t end = find(text, close, a);
        if (end == npos) return;
        std::string inner = text.substr(a, end - a);
        while (inner.find('<') != npos && deleteTag(inner, inner.find('<')) != 0) { }
        if (!trim(inner).empty()) {
            ++a;
            continue;
        }
        deleteTag(text, a);
        deleteTag(text, find(text, close, a));
    }
}

void RepairOverlap(std::string& text, std::string_view openA, std::string_view closeA,
    std::string_view openB, std::string_view closeB)
{
    if (find(openB, openA) != npos) return;
    for (auto a = find(text, openA); a != npos; a = find(text, openA, a + 1)) {
        const std::size_t x = find(text, closeA, a);
        const std::size_t y = find(text, openB, a);
        const std::size_t z = find(text, closeB, a);
        if (y < x && x < z && z != npos) {
            deleteTag(text, z);
            text.insert(x, closeB);
        } else if (z < x && x != npos && y > z) {
            deleteTag(text, x);
            text.insert(z, closeA);
        }
    }
}

void RepairFormatNesting(std::string& text)
{
    for (const Pair a : kFormats)
        for (const Pair b : kFormats)
            RepairOverlap(text, a.open, a.close, b.open, b.close);
}

std::string TakeDoBlock(std::string& text)
{
    const std::size_t card = find(text, "</card");
    const std::size_t begin = find(text, "<do");
    if (card == npos || begin >= card) return "";
    const std::size_t last = findLast(text, "</do", card);
    // An end ahead of the first do is none.
    if (last == npos || last < begin) return "";
    const std::size_t end = text.find('>', last);
    if (end >= card) return "";
    std::string block = text.substr(begin, end + 1 - begin);
    text.erase(begin, block.size());
    return block;
}

void BreakWmlLines(std::string& text)
{
    std::size_t p = find(text, "<wml"); // positions count from 1 here: this is the one ahead of it
    if (p == npos) return;
    int indent = 0;
    bool lastWasOpen = false;
    for (bool first = true;;) {
        const std::size_t close = text.find("</", p);
        const std::size_t open = text.find('<', p);
        if (open == npos) return;
        p = open + 1;
        const bool ownLine = getsOwnLine(text, p);
        if (open == close) {
            if (!ownLine) continue; // an end tag that is kept in the line changes nothing
            if (lastWasOpen && !first) indent -= 2;
            text.insert(p - 1, "\r\n");
            indent = std::max(indent, 0);
            p += 2 + static_cast<std::size_t>(indent);
            indent -= 2;
            lastWasOpen = false;
        } else if (ownLine) {
            if (!lastWasOpen && !first) indent += 2;
            text.insert(p - 1, "\r\n");
            indent = std::max(indent, 0);
            p += 2 + static_cast<std::size_t>(indent);
            indent += 2;
            lastWasOpen = true;
        }
        first = false;
        if (p >= text.size()) return;
    }
}

void RestoreWhitespace(std::string& text, std::string_view pristine)
{
    std::size_t from = 0; // Each search begins behind the key that was found last
    for (auto s = text.find('<'); s != npos; s = text.find('<', s + 1)) {
        const std::size_t end = text.find('>', s);
        if (end == npos) return;
        const std::string key = text.substr(s, end + 1 - s >= 4 ? 3 : end + 1 - s);
        const std::size_t tag = find(pristine, key, from);
        if (tag == npos) continue;
        from = tag + 1;
        const std::size_t fresh = text.rfind('>', s) + 1;
        const std::size_t old = pristine.rfind('>', tag) + 1;
        if (fresh == 0 || old == 0) continue; // no '>' ahead
        const std::string gap = mergeGaps(
            text.substr(fresh, s - fresh), std::string(pristine.substr(old, tag - old)));
        text.replace(fresh, s - fresh, gap);
        s = fresh + gap.size();
    }
}

void InsertTemporaeryRadioButtons(std::string& text)
{
    int number = 0; // One count for the whole area
    for (auto o = find(text, "<!--option"); o != npos; o = find(text, "<!--option", o)) {
        const std::size_t end = text.find('>', o);
        if (end == npos) return;
        const std::string placed = button(++number, targetOf(text.substr(o, end + 1 - o)));
        text.insert(end + 1, placed);
        // The option's end is looked for behind its button; without one the walk ends.
        o = text.find('>', find(text, "<!--/option", end + 1 + placed.size()));
    }
}

/// Every button of an option goes, not only its first one.
void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    for (auto o = find(text, "<!--option"); o != npos; o = find(text, "<!--option", o + 1)) {
        while (find(text, "<input", o) < find(text, "<!--/option", o)
            && find(text, "<!--/option", o) != npos
            && deleteTag(text, find(text, "<input", o)) != 0) { }
    }
}

} // namespace quillmere::literal
