// An option and its end are a pair; the search goes on behind each end, so that an option within
// another has no button of its own. An option without an end has one that stays until the text is
// cleaned. Held by radio_buttons_test.cpp, which compares with plain repeated searches.

#include "document/radio_buttons.h"

#include "document/edited_text.h"
#include "document/limits.h"
#include "document/text_search.h"

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

/// The first tag at or behind `from` that begins with `key`.
std::size_t findTag(std::string_view text, std::string_view key, std::size_t from)
{
    auto at = text.find('<', from);
    while (at != npos && !standsAt(text, at, key))
        at = text.find('<', at + 1);
    return at;
}

/// What an option marker, without its ">", leads to. A value in quotes that holds a ">" is none:
/// the button would end at it, and its rest would stay as text. Of `onpick=#a--` without quotes
/// the dashes of the marker's end are part of the target.
std::string_view targetOf(std::string_view marker)
{
    constexpr std::string_view kKey = "onpick=";
    constexpr std::string_view kQuotedKey = "onpick=\"";
    const auto plain = findIgnoringCase(marker, kKey);
    if (plain == npos) return {};
    const auto quoted = findIgnoringCase(marker, kQuotedKey, plain);
    if (quoted != npos) {
        const auto value = marker.substr(quoted + kQuotedKey.size());
        const auto close = value.find('"');
        return close == npos ? std::string_view{} : value.substr(0, close);
    }
    const auto value = marker.substr(plain + kKey.size());
    return value.substr(0, value.find(' '));
}

std::string button(int number, std::string_view target)
{
    auto tag = "<input type=radio name=\"TempName" + std::to_string(number) + '"';
    if (!target.empty()) {
        tag.append(" onclick=\"javascript:navigate('");
        std::replace_copy(target.begin(), target.end(), std::back_inserter(tag), '\\', '/');
        tag.append("')\"");
    }
    return tag + '>';
}

/// The text without the inputs that stand between an option and an end; nullopt where one of them
/// does not stand right behind a '>', so that cutting it might join the text around it to a tag.
std::optional<std::string> withoutPlainInputs(std::string_view text)
{
    const auto lastEnd = findLastIgnoringCase(text, kOptionEnd);
    if (lastEnd == npos) return std::string(text);
    Rewriter result(text);
    bool isInside = false;
    for (auto at = text.find('<'); at < lastEnd; at = text.find('<', at + 1)) {
        if (standsAt(text, at, kOption)) isInside = true;
        if (standsAt(text, at, kOptionEnd)) isInside = false;
        if (!isInside || !standsAt(text, at, kInput)) continue;
        const auto tagEnd = text.find('>', at);
        if (tagEnd == npos) break;
        if (text[at - 1] != '>') return std::nullopt;
        result.drop(at, tagEnd + 1);
        at = tagEnd;
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
    requireAddressable(text);
    const std::string_view source = text;
    auto option = findTag(source, kOption, 0);
    if (option == npos) return;
    Rewriter result(source);
    int number = 0;
    while (option != npos) {
        const auto end = source.find('>', option);
        if (end == npos) break;
        result.insert(end + 1, button(++number, targetOf(source.substr(option, end - option))));
        const auto close = findTag(source, kOptionEnd, end);
        const auto closed = close == npos ? npos : source.find('>', close);
        if (closed == npos) break;
        option = findTag(source, kOption, closed);
    }
    auto changed = result.take();
    requireAddressable(changed);
    text = std::move(changed);
}

void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    if (findIgnoringCase(text, kInput) == npos) return;
    auto plain = withoutPlainInputs(text); // as inserted
    text = plain ? std::move(*plain) : withoutInputs(std::move(text));
}

} // namespace quillmere
