#include "literal/radio_buttons.h"

#include "literal/search.h"

#include <algorithm>

namespace quillmere::literal {
namespace {

/// Reading: within the option's tag, ignoring case; a value without closing quote is no target.
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

void InsertTemporaeryRadioButtons(std::string& text)
{
    int number = 0; // Reading: one count for the whole area
    for (auto o = find(text, "<!--option"); o != npos; o = find(text, "<!--option", o)) {
        const std::size_t end = text.find('>', o);
        if (end == npos) return;
        const std::string placed = button(++number, targetOf(text.substr(o, end + 1 - o)));
        text.insert(end + 1, placed);
        // Reading: the option's end is looked for behind its button; without one the walk ends.
        o = text.find('>', find(text, "<!--/option", end + 1 + placed.size()));
    }
}

/// Reading: every button of an option goes, not only its first one.
void DeleteAllTemporaeryRadioButtons(std::string& text)
{
    for (auto o = find(text, "<!--option"); o != npos; o = find(text, "<!--option", o + 1)) {
        while (find(text, "<input", o) < find(text, "<!--/option", o)
            && find(text, "<!--/option", o) != npos
            && deleteTag(text, find(text, "<input", o)) != 0) { }
    }
}

} // namespace quillmere::literal
