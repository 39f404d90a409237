// An option and its end are a pair; the search goes on behind each end, so that an option within
// another has no button of its own. An option without an end has one that stays until the text is
// cleaned. Held by radio_buttons_test.cpp, which compares with plain repeated searches.

#include "document/radio_buttons.h"

#include "document/limits.h"
#include "document/text_search.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quillmere {
namespace {

    constexpr std::string_view kOption = "<!--option";
    constexpr std::string_view kOptionEnd = "<!--/option";

    /// What an option marker without its ">" leads to. A value in quotes that holds a ">" is none:
    /// the button would end at it, and its rest would stay as text.
    std::string_view targetOf(std::string_view marker)
    {
        constexpr std::string_view kKey = "onpick=";
        constexpr std::string_view kMarkerEnd = "--";
        const auto key = findIgnoringCase(marker, kKey);
        if (key == npos) return {};
        auto value = marker.substr(key + kKey.size());
        if (value.starts_with('"')) {
            const auto close = value.find('"', 1);
            return close == npos ? std::string_view {} : value.substr(1, close - 1);
        }
        if (value.ends_with(kMarkerEnd)) value.remove_suffix(kMarkerEnd.size());
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

    /// Drops the inputs that begin between `from` and `to`.
    void dropInputs(
        Rewriter& result, std::string_view source, std::size_t from, std::size_t to)
    {
        const auto searched = source.substr(0, to);
        auto input = findIgnoringCase(searched, "<input", from);
        while (input != npos) {
            const auto end = source.find('>', input);
            if (end == npos) return;
            result.drop(input, end + 1);
            input = findIgnoringCase(searched, "<input", end + 1);
        }
    }

} // namespace

void InsertTemporaeryRadioButtons(std::string& text)
{
    requireAddressable(text);
    const std::string_view source = text;
    Rewriter result(source);
    int number = 0;
    for (auto option = findIgnoringCase(source, kOption); option != npos;) {
        const auto end = source.find('>', option);
        if (end == npos) break;
        result.insert(end + 1, button(++number, targetOf(source.substr(option, end - option))));
        const auto close = findIgnoringCase(source, kOptionEnd, option);
        const auto closed = close == npos ? npos : source.find('>', close);
        if (closed == npos) break;
        option = findIgnoringCase(source, kOption, closed);
    }
    auto changed = result.take();
    requireAddressable(changed);
    text = std::move(changed);
}

void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    const std::string_view source = text;
    Rewriter result(source);
    auto option = findIgnoringCase(source, kOption);
    while (option != npos) {
        const auto close = findIgnoringCase(source, kOptionEnd, option);
        if (close == npos) break;
        dropInputs(result, source, option, close);
        option = findIgnoringCase(source, kOption, std::max(close, result.position()));
    }
    text = result.take();
}

} // namespace quillmere
