// An option and its end are a pair; the search goes on behind each end, so that an option within
// another has no button of its own. An option without an end has one that stays until the text is
// cleaned. Held by corrections_test.cpp, which compares with plain repeated searches.

#include "document/repair/radio_buttons.h"

#include "document/text/byte_words.h"
#include "document/text/edited_text.h"
#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
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
    for (auto at = findByte(text, '<', from); at != npos; at = findByte(text, '<', at + 1)) {
        const bool mayBegin = at + 1 < text.size() && lowerCase(text[at + 1]) == key[1];
        if (mayBegin && standsAt(text, at, key)) return at;
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

void appendButton(Rewriter& result, int number, std::string_view target)
{
    result.append("<input type=radio name=\"TempName");
    result.append(std::to_string(number));
    if (!target.empty()) {
        std::string path(target);
        std::replace(path.begin(), path.end(), '\\', '/');
        result.append("\" onclick=\"javascript:navigate('");
        result.append(path);
        result.append("')");
    }
    result.append("\">");
}

/// The text without the inputs that stand between an option, the first of which is at `option`, and
/// an end; nullopt where one of them does not stand right behind a '>', so that cutting it might
/// join the text around it to a tag.
std::optional<std::string> withoutPlainInputs(std::string_view text, std::size_t option)
{
    Rewriter result(text);
    while (option != npos) {
        auto end = findTag(text, kOptionEnd, option);
        if (end == npos) break; // what is not closed keeps its inputs
        for (auto at = findTag(text.substr(0, end), kInput, option); at != npos;
             at = findTag(text.substr(0, end), kInput, result.position())) {
            const auto tagEnd = text.find('>', at);
            if (tagEnd == npos) return result.take();
            if (text[at - 1] != '>') return std::nullopt;
            result.drop(at, tagEnd + 1);
            if (tagEnd > end) end = findTag(text, kOptionEnd, tagEnd);
        }
        option = end == npos ? npos : findTag(text, kOption, end);
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
        result.keepTo(end + 1);
        appendButton(result, ++number, targetOf(source.substr(option, end - option)));
        const auto close = findTag(source, kOptionEnd, end);
        const auto closed = close == npos ? npos : source.find('>', close);
        if (closed == npos) break;
        option = findTag(source, kOption, closed);
    }
    requireAddressableLength(result.length());
    text = result.take();
}

void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    const auto option = findTag(text, kOption, 0);
    if (option == npos) return;
    auto plain = withoutPlainInputs(text, option); // as they are inserted
    text = plain ? std::move(*plain) : withoutInputs(std::move(text));
}

} // namespace quillmere
