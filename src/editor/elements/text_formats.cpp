// The units of the region are gone through once: where the formats of two neighbours differ, those
// are ended that the second has not and those begun that the first has not. The order is the same
// everywhere, so that what stays open is always the outer part. Held by text_formats_test.cpp,
// which formats random selections of random texts.

#include "editor/elements/text_formats.h"

#include "document/text/failure.h"
#include "document/text/limits.h"
#include "editor/elements/format_units.h"
#include "editor/page/page_edits.h"
#include "editor/page/splice_list.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <span>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

/// The items that are marked; without blanks where there is something else.
std::vector<PageItem> markedItems(const SurfacePage& page, SourceRange marked)
{
    std::vector<PageItem> items;
    for (const auto& item : page.items)
        if (item.source.begin < marked.end && item.source.end > marked.begin) items.push_back(item);
    const auto isText = [](const PageItem& item) { return item.kind == ItemKind::Character; };
    if (std::ranges::any_of(items, isText)) std::erase_if(items, std::not_fn(isText));
    return items;
}

/// The value that all items have; nullopt where they differ.
template <typename Read>
auto commonOf(const SurfacePage& page, const std::vector<PageItem>& items, Read read)
    -> std::optional<decltype(read(TextStyle{}))>
{
    auto first = read(items.empty() ? TextStyle{} : page.styles[items.front().style]);
    for (const auto& item : items)
        if (read(page.styles[item.style]) != first) return std::nullopt;
    return first;
}

LetterSize sizeOf(const TextStyle& style)
{
    if (style.sizeStep == 0) return LetterSize::Normal;
    return style.sizeStep > 0 ? LetterSize::Big : LetterSize::Small;
}

void setFormat(int& tag, int& otherTag, bool isOn)
{
    if (!isOn) tag = otherTag = 0;
    if (isOn && otherTag == 0) tag = 1;
}

FormatFlags withFormats(const FormatUnit& unit, const TextFormats& wanted)
{
    auto flags = unit.flags;
    int none = 0;
    if (wanted.bold) setFormat(flags.bold, flags.strong, *wanted.bold);
    if (wanted.italic) setFormat(flags.italic, flags.emphasis, *wanted.italic);
    if (wanted.underlined) setFormat(flags.underlined, none, *wanted.underlined);
    if (wanted.size && unit.takesSizes) {
        flags.big = *wanted.size == LetterSize::Big ? 1 : 0;
        flags.small = *wanted.size == LetterSize::Small ? 1 : 0;
    }
    return flags;
}

/// What stays open between two units: tags are nested in the order of the flags.
FormatFlags commonFlags(const FormatUnit& one, const FormatUnit& other)
{
    constexpr std::array kFlags{&FormatFlags::big, &FormatFlags::small, &FormatFlags::emphasis,
        &FormatFlags::italic, &FormatFlags::strong, &FormatFlags::bold, &FormatFlags::underlined};
    FormatFlags common;
    for (std::size_t i = 0; i < kFlags.size(); ++i) {
        const auto flag = kFlags.at(i);
        const auto least = std::min(one.flags.*flag, other.flags.*flag);
        const bool areUnlike = least > 0 && one.starts.at(i) != other.starts.at(i);
        if (!areUnlike) common.*flag = least;
        if (areUnlike || one.flags.*flag != other.flags.*flag) break;
    }
    return common;
}

FormatFlags without(const FormatFlags& all, const FormatFlags& some)
{
    return {all.big - some.big, all.small - some.small, all.emphasis - some.emphasis,
        all.italic - some.italic, all.strong - some.strong, all.bold - some.bold,
        all.underlined - some.underlined};
}

/// The flags that each unit is to have. True where one that is no blank changes.
bool setFlags(std::vector<FormatUnit>& units, const TextFormats& wanted)
{
    bool changes = false;
    for (auto& unit : units) {
        const auto flags = unit.isMarked ? withFormats(unit, wanted) : unit.flags;
        changes |= unit.takesFormats && !unit.isBlank && !(flags == unit.flags);
        unit.flags = unit.takesFormats ? flags : FormatFlags{};
    }
    for (std::size_t i = units.size(); i-- > 0;) {
        if (!units[i].isBlank) continue;
        const bool isLast = i + 1 == units.size() || units[i + 1].startsPiece;
        units[i].flags = isLast ? FormatFlags{} : units[i + 1].flags;
        if (!isLast) units[i].starts = units[i + 1].starts;
    }
    return changes;
}

void addEnds(SpliceList& splices, std::size_t offset, const FormatFlags& flags)
{
    std::string tags;
    GetInsertTextFormatTags(flags, true, tags);
    splices.insert(offset, std::move(tags));
}

void addStarts(SpliceList& splices, const FormatUnit& unit, const FormatFlags& kept,
    std::set<const char*>& written)
{
    std::string tags;
    appendStartTags(without(unit.flags, kept), unit.starts, tags, written);
    splices.insert(unit.source.begin, std::move(tags));
}

std::string rewritten(std::string_view text, const FormatRegion& region)
{
    SpliceList splices;
    FormatUnit open;
    std::set<const char*> written;
    for (const auto& unit : region.units) {
        const auto kept = unit.startsPiece ? FormatFlags{} : commonFlags(open, unit);
        addEnds(splices, open.source.end, without(open.flags, kept));
        addStarts(splices, unit, kept, written);
        open = unit;
    }
    addEnds(splices, open.source.end, open.flags);
    for (const auto tag : region.oldTags)
        splices.remove(tag);
    return spliced(text, std::move(splices).take());
}

/// The items that are no blanks, which no format makes or takes.
std::vector<PageItem> firmItems(const SurfacePage& page)
{
    std::vector<PageItem> items;
    for (const auto& item : page.items)
        if (item.kind != ItemKind::Blank) items.push_back(item);
    return items;
}

void requireSameItems(const std::vector<PageItem>& before, const std::vector<PageItem>& now)
{
    const bool areSame = std::ranges::equal(before, now, {}, &PageItem::shown, &PageItem::shown);
    if (!areSame)
        throw RuntimeFailure("Der Text lässt sich an dieser Stelle nicht formatieren, weil ein "
                             "einzelnes „<“ darin steht. Er ist unverändert.");
}

/// The place in the changed text of what was marked. Throws where the text is not the same: a tag
/// that went may have kept a stray "<" ahead of it apart from what follows.
SourceRange markedIn(const std::string& changed, const SurfacePage& before, SourceRange marked)
{
    const auto firm = firmItems(before);
    const auto now = firmItems(readSurfacePage(changed, before.rules));
    requireSameItems(firm, now);
    const auto first = std::ranges::find_if(
        firm, [&](const PageItem& item) { return item.source.end > marked.begin; });
    const auto last = std::ranges::find_if(
        firm, [&](const PageItem& item) { return item.source.begin >= marked.end; });
    if (first >= last) return {marked.begin, marked.begin};
    return {now[static_cast<std::size_t>(first - firm.begin())].source.begin,
        now[static_cast<std::size_t>(last - firm.begin()) - 1].source.end};
}

bool holdsText(const SurfacePage& page, const FormatUnit& unit)
{
    const auto items = std::span(page.items).subspan(unit.firstItem, unit.endItem - unit.firstItem);
    return std::ranges::find(items, ItemKind::Character, &PageItem::kind) != items.end();
}

} // namespace

TextFormats formatsOf(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    const auto items = markedItems(page, marked);
    TextFormats formats;
    formats.bold = commonOf(page, items, [](const TextStyle& style) { return style.bold; });
    formats.italic = commonOf(page, items, [](const TextStyle& style) { return style.italic; });
    formats.underlined
        = commonOf(page, items, [](const TextStyle& style) { return style.underlined; });
    formats.size = commonOf(page, items, sizeOf);
    return formats;
}

bool takesNoFormats(std::string_view text, SourceRange marked, const OutputRules& rules)
{
    const auto page = readSurfacePage(std::string(text), rules);
    return std::ranges::none_of(formatRegion(page, marked).units, [&page](const FormatUnit& unit) {
        return unit.isMarked && unit.takesFormats && holdsText(page, unit);
    });
}

FormattedText formatText(
    std::string_view text, SourceRange marked, const TextFormats& wanted, const OutputRules& rules)
{
    requireAddressable(text, rules.maxTextLength());
    const auto page = readSurfacePage(std::string(text), rules);
    auto region = formatRegion(page, marked);
    if (!setFlags(region.units, wanted)) return {page.text, marked};
    auto changed = rewritten(page.text, region);
    requireAddressable(changed, rules.maxTextLength());
    if (!rules.losesNothing()) DeleteFormatTagsWhoArroundsNoText(changed, rules.maxTextLength());
    const auto now = markedIn(changed, page, marked);
    return {std::move(changed), now};
}

} // namespace quillmere
