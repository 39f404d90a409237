// An option and its end are a pair; the search goes on behind each end, so that an option within
// another has no button of its own. An option without an end has one that stays until the text is
// cleaned. Held by corrections_test.cpp, which compares with plain repeated searches.

#include "document/repair/radio_buttons.h"

#include "document/text/edited_text.h"
#include "document/text/limits.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace quillmere {
namespace {

constexpr std::string_view kOption = "<!--option";
constexpr std::string_view kOptionEnd = "<!--/option";
constexpr std::string_view kInput = "<input";

/// The first marker at or behind `from` that begins with `key`. Texts have few '!' beside their
/// markers, and many '<'.
std::size_t findMarker(std::string_view text, std::string_view key, std::size_t from)
{
    for (auto sign = text.find('!', from + 1); sign != npos; sign = text.find('!', sign + 1)) {
        if (text[sign - 1] == '<' && standsAt(text, sign - 1, key)) return sign - 1;
    }
    return npos;
}

/// What an option marker, without its ">", leads to. The first value in quotes counts, and else the
/// first one without. A value in quotes that holds a ">" is none: the button would end at it, and
/// its rest would stay as text. Of `onpick=#a--` without quotes the dashes of the marker's end are
/// part of the target.
std::string_view targetOf(std::string_view marker)
{
    constexpr std::string_view kKey = "onpick=";
    std::optional<std::string_view> bare;
    for (auto sign = marker.find('='); sign != npos; sign = marker.find('=', sign + 1)) {
        const auto behind = sign + 1;
        if (behind < kKey.size() || !standsAt(marker, behind - kKey.size(), kKey)) continue;
        const auto value = marker.substr(behind);
        if (value.starts_with('"')) {
            const auto close = value.find('"', 1);
            return close == npos ? std::string_view{} : value.substr(1, close - 1);
        }
        if (!bare) bare = value.substr(0, value.find(' '));
    }
    return bare.value_or(std::string_view{});
}

void appendButton(std::string& result, int number, std::string_view target)
{
    result.append("<input type=radio name=\"TempName").append(std::to_string(number)).append("\"");
    if (!target.empty()) {
        result.append(" onclick=\"javascript:navigate('");
        std::replace_copy(target.begin(), target.end(), std::back_inserter(result), '\\', '/');
        result.append("')\"");
    }
    result += '>';
}

/// The text without the inputs that stand between an option, the first of which is at `option`, and
/// an end; nullopt where one of them does not stand right behind a '>', so that cutting it might
/// join the text around it to a tag.
std::optional<std::string> withoutPlainInputs(std::string_view text, std::size_t option)
{
    const auto lastEnd = findLastIgnoringCase(text, kOptionEnd);
    if (lastEnd == npos) return std::string(text);
    Rewriter result(text);
    bool isInside = false;
    for (auto at = option; at < lastEnd; at = text.find('<', at + 1)) {
        if (text[at + 1] == '!') { // lastEnd lies behind
            if (standsAt(text, at, kOption)) isInside = true;
            if (standsAt(text, at, kOptionEnd)) isInside = false;
        } else if (isInside && standsAt(text, at, kInput)) {
            const auto tagEnd = text.find('>', at);
            if (tagEnd == npos) break;
            if (text[at - 1] != '>') return std::nullopt;
            result.drop(at, tagEnd + 1);
            at = tagEnd;
        }
    }
    return result.take();
}

/// Cuts the first input between the option marker and its end; false where there is none.
bool cutInput(EditedText& text, std::size_t option)
{
    const auto end = text.find(kOptionEnd, option);
    if (end == npos) return false;
    const auto input = text.find(kInput, option, end);
    return input < end && text.cutTag(input) != 0;
}

/// Cuts one input after the other, with all tags that come about by it counted in.
std::string withoutInputs(std::string text)
{
    EditedText edited(std::move(text));
    for (auto option = edited.find(kOption); option != npos;
         option = edited.find(kOption, option + 1)) {
        while (cutInput(edited, option)) { }
    }
    return std::move(edited).take();
}

} // namespace

void InsertTemporaeryRadioButtons(std::string& text)
{
    insertRadioButtons(text, kMaxTextLength);
}

void insertRadioButtons(std::string& text, std::size_t limit)
{
    requireAddressable(text, limit);
    const std::string_view source = text;
    auto option = findMarker(source, kOption, 0);
    if (option == npos) return;
    std::string result;
    std::size_t copied = 0;
    int number = 0;
    while (option != npos) {
        const auto end = source.find('>', option);
        if (end == npos) break;
        result.append(source, copied, end + 1 - copied);
        copied = end + 1;
        appendButton(result, ++number, targetOf(source.substr(option, end - option)));
        const auto close = findMarker(source, kOptionEnd, end);
        const auto closed = close == npos ? npos : source.find('>', close);
        if (closed == npos) break;
        option = findMarker(source, kOption, closed);
    }
    result.append(source, copied);
    requireAddressable(result, limit);
    text = std::move(result);
}

void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    const auto option = findMarker(text, kOption, 0);
    if (option == npos) return;
    auto plain = withoutPlainInputs(text, option); // as they are inserted
    text = plain ? std::move(*plain) : withoutInputs(std::move(text));
}

} // namespace quillmere
