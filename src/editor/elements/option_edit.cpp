// An edit is made on the text with its old radio buttons; these are then taken out of all options
// and put in anew, which moves all offsets. So the option is found again by its number. Held by
// option_edit_test.cpp.

#include "editor/elements/option_edit.h"

#include "document/repair/radio_buttons.h"
#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/elements/format_tags.h"
#include "editor/elements/typed_values.h"
#include "editor/page/attribute_values.h"
#include "editor/page/hit_test.h"
#include "editor/page/markup_tags.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::string_view kSelect = "<!--select";
constexpr std::string_view kSelectEnd = "<!--/select";
constexpr std::string_view kOption = "<!--option";
constexpr std::string_view kOptionEnd = "<!--/option";
constexpr std::string_view kBreak = "<br";

struct OptionParts {
    SourceRange marker;
    SourceRange caption;
    std::size_t end = 0; ///< behind its end marker, or where the caption ends without one
};

/// The first option at or behind `from`. One without its end ends at the next marker of its kind.
std::optional<OptionParts> optionFrom(std::string_view text, std::size_t from)
{
    const auto marker = findTagFrom(text, kOption, from);
    if (!marker) return std::nullopt;
    const auto limit = std::min({findIgnoringCase(text, kOption, marker->end),
        findIgnoringCase(text, kSelectEnd, marker->end), text.size()});
    const auto end = findTagFrom(text, kOptionEnd, marker->end);
    if (end && end->begin < limit) return OptionParts{*marker, {marker->end, end->begin}, end->end};
    return OptionParts{*marker, {marker->end, marker->end}, marker->end};
}

std::string optionMarkup(const OptionSettings& option)
{
    return "<!--option onpick=\"" + option.target + "\"-->" + option.caption + "<!--/option-->";
}

/// The same for an option that was there, with what the settings do not tell.
std::string changedMarkup(
    std::string_view text, const OptionParts& old, const OptionSettings& option)
{
    const auto marker = old.marker.in(text);
    const auto inner = old.caption.in(text);
    const bool hasTarget = !option.target.empty() || findAttribute(marker, "onpick");
    const bool isKept = typedFrom(textOutsideTags(inner)) == typedFrom(option.caption);
    return "<!--option" + (hasTarget ? " onpick=\"" + option.target + "\"" : "")
        + otherAttributes(marker, {"onpick"}) + "-->"
        + (isKept ? std::string(inner) : option.caption) + "<!--/option-->";
}

int countOptions(std::string_view text, std::size_t from, std::size_t end)
{
    int count = 0;
    for (auto at = findIgnoringCase(text, kOption, from); at < end;
         at = findIgnoringCase(text, kOption, at + 1))
        ++count;
    return count;
}

/// The list that an option belongs to, through its end marker.
std::optional<SourceRange> listAround(std::string_view text, std::size_t option)
{
    const auto begin = findLastIgnoringCase(text, kSelect, option);
    const auto end = findTagFrom(text, kSelectEnd, option);
    if (begin == npos || !end) return std::nullopt;
    return SourceRange{begin, end->end};
}

/// The end marker of the list that a new option joins.
std::size_t joinedListEnd(std::string_view text, std::size_t offset)
{
    const auto behind = findIgnoringCase(text, kSelectEnd, offset);
    return behind != npos ? behind : findLastIgnoringCase(text, kSelectEnd);
}

/// An option with the group round it that has no other: in WML a group has an entry.
SourceRange withEmptiedGroup(std::string_view text, SourceRange option, const OutputRules& rules)
{
    if (!rules.losesNothing()) return option;
    const auto page = readSurfacePage(std::string(text), rules);
    for (const auto& element : page.elements) { // the outermost first
        const auto group = element.whole();
        const bool holdsIt = group.begin < option.begin && group.end > option.end;
        const bool isGroup = wmlElement(tagName(element.start.in(text))) == WmlElement::OptionGroup;
        if (holdsIt && isGroup && countOptions(text, group.begin, group.end) == 1) return group;
    }
    return option;
}

std::size_t behindBreak(std::string_view text, std::size_t offset)
{
    if (!standsAt(text, offset, kBreak)) return offset;
    const auto end = text.find('>', offset);
    return end == npos ? offset : end + 1;
}

std::string renumbered(std::string text, const OutputRules& rules)
{
    DeleteAllTemporaeryRadioButtons(text);
    insertRadioButtons(text, rules.maxTextLength());
    return text;
}

std::optional<OptionParts> optionOfNumber(std::string_view text, int number)
{
    auto option = optionFrom(text, 0);
    for (int i = 0; i < number && option; ++i)
        option = optionFrom(text, option->marker.end);
    return option;
}

ElementEdit withCaretBehindList(std::string text, int number)
{
    const auto option = optionOfNumber(text, number);
    const auto list = option ? listAround(text, option->marker.begin) : std::nullopt;
    const auto caret = list ? behindBreak(text, list->end) : text.size();
    return {std::move(text), static_cast<int>(caret)};
}

ElementEdit newList(std::string_view text, std::size_t offset, const OptionSettings& wanted,
    const OutputRules& rules)
{
    const int number = countOptions(text, 0, offset);
    const auto [start, end] = neededParagraphAt(readSurfacePage(std::string(text), rules), offset);
    auto list = std::string(start) + "<!--select-->" + optionMarkup(wanted) + "<!--/select-->";
    if (!rules.losesNothing()) list += "<br/>";
    const auto changed = withPiece(text, {offset, offset}, list.append(end), rules);
    const auto moved = MoveFormatTagsOutOfSelect(changed, offset + start.size(), rules);
    return withCaretBehindList(renumbered(moved, rules), number);
}

} // namespace

std::optional<OptionSettings> GetOption(std::string_view text, int position)
{
    const auto option = optionFrom(text, searchOffset(position));
    if (!option) return std::nullopt;
    OptionSettings settings;
    auto target = findAttribute(option->marker.in(text), "onpick").value_or(std::string_view{});
    // Of onpick=#a-- the dashes are the marker's end.
    const auto begin = option->marker.in(text).find(target);
    const bool isBare = begin != npos && begin > 0 && option->marker.in(text)[begin - 1] == '=';
    if (isBare && target.ends_with("--")) target.remove_suffix(2);
    settings.target = target;
    settings.caption = textOutsideTags(option->caption.in(text));
    return settings;
}

ElementEdit SetOption(std::string_view text, int position, bool optionFound,
    const OptionSettings& wanted, const OutputRules& rules)
{
    auto offset = std::min(static_cast<std::size_t>(std::max(position, 0)), text.size());
    if (!optionFound) {
        const auto listEnd = joinedListEnd(text, offset);
        if (listEnd == npos) {
            const auto valid = ValidInsertPosition(position, text, WmlElement::Select, rules);
            return newList(text, static_cast<std::size_t>(std::max(valid, 0)), wanted, rules);
        }
        offset = listEnd;
    }
    const int number = countOptions(text, 0, offset);
    return withCaretBehindList(
        renumbered(withPiece(text, {offset, offset}, optionMarkup(wanted), rules), rules), number);
}

int newOptionPosition(
    std::string_view text, int position, std::size_t caret, const OutputRules& rules)
{
    const auto option = optionFrom(text, searchOffset(position));
    const bool isBehind = option && rules.losesNothing() && !option->caption.empty()
        && caret >= option->caption.end;
    return isBehind ? static_cast<int>(option->end) : position;
}

ElementEdit ReplaceOption(
    std::string_view text, int position, const OptionSettings& wanted, const OutputRules& rules)
{
    const auto option = optionFrom(text, searchOffset(position));
    if (!option) return unchanged(text, position);
    const int number = countOptions(text, 0, option->marker.begin);
    const auto markup
        = rules.losesNothing() ? changedMarkup(text, *option, wanted) : optionMarkup(wanted);
    auto changed = withPiece(text, {option->marker.begin, option->end}, markup, rules);
    const auto list = listAround(changed, option->marker.begin);
    const bool isOnly = list && countOptions(changed, list->begin, list->end) == 1;
    if (isOnly && !rules.losesNothing())
        changed = withPiece(changed, {list->end, list->end}, "<br/>", rules);
    changed = renumbered(std::move(changed), rules);
    const auto now = optionOfNumber(changed, number);
    return {std::move(changed), static_cast<int>(now ? now->caption.end : option->marker.begin)};
}

ElementEdit DeleteOption(
    std::string_view text, int position, bool Replace, const OutputRules& rules)
{
    const auto option = optionFrom(text, searchOffset(position));
    if (!option) return unchanged(text, position);
    const auto list = listAround(text, option->marker.begin);
    const bool isOnly = list && countOptions(text, list->begin, list->end) == 1;
    const SourceRange whole{option->marker.begin, option->end};
    const auto gone = isOnly ? *list : withEmptiedGroup(text, whole, rules);
    auto changed = withPiece(text, gone, {}, rules);
    if (Replace) return {std::move(changed), static_cast<int>(gone.begin)};
    // All buttons ahead of the place keep their numbers, and with them their lengths.
    return {renumbered(std::move(changed), rules), static_cast<int>(gone.begin)};
}

std::string MoveFormatTagsOutOfSelect(
    std::string_view text, std::size_t list, const OutputRules& rules)
{
    const auto end = findTagFrom(text, kSelectEnd, list);
    if (!end) return std::string(text);
    const auto page = readSurfacePage(std::string(text), rules);
    std::vector<std::size_t> around;
    for (const auto format : formatsOpenAt(page, list))
        if (page.elements[format].end.begin >= end->end) around.push_back(format);
    if (around.empty()) return std::string(text);
    const auto border = formatBorder(page, around);
    Rewriter result(text);
    result.insert(list, border.ends);
    result.insert(behindBreak(text, end->end), border.starts);
    auto changed = result.take();
    requireAddressable(changed, rules.maxTextLength());
    const auto touched = rules.losesNothing() ? page.elements[around.front()].whole()
                                              : SourceRange{0, text.size()};
    const auto length = touched.end - touched.begin + changed.size() - text.size();
    auto piece = changed.substr(touched.begin, length);
    DeleteFormatTagsWhoArroundsNoText(piece, rules.maxTextLength());
    return changed.replace(touched.begin, length, piece);
}

} // namespace quillmere
