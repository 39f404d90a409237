// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/copied_characters.h"

#include "document/wml/wml_characters.h"

namespace quillmere::wml {

namespace {

constexpr auto kNowhere = std::string_view::npos;
constexpr std::size_t kLongestServerCode = 512; // so that no search is long
constexpr std::string_view kQuoteLeads = "\xE2\x80"; // of the quotes in UTF-8
constexpr std::string_view kQuoteEnds = "\x98\x99\x9A\x9C\x9D\x9E";
constexpr std::string_view kQuoteBytes = "\x82\x84\x91\x92\x93\x94"; // in Windows-1252

std::size_t curlyQuoteAt(std::string_view text, std::size_t at)
{
    const auto rest = text.substr(at, 3);
    if (rest.size() == 3 && rest.starts_with(kQuoteLeads))
        return kQuoteEnds.find(rest[2]) == kNowhere ? 0 : 3;
    return !rest.empty() && kQuoteBytes.find(rest.front()) != kNowhere ? 1 : 0;
}

bool endsValue(std::string_view text, std::size_t at)
{
    return at < text.size() && (is(text[at], Space) || text[at] == '>' || text[at] == '/');
}

} // namespace

std::size_t hardBlankAt(std::string_view text, std::size_t at)
{
    if (!is(text[at], BeyondAscii)) return 0;
    if (text.substr(at).starts_with("\xC2\xA0")) return 2;
    const bool isAlone = !is(text[at - 1], BeyondAscii); // else perhaps the end of a letter
    return text[at] == '\xA0' && isAlone ? 1 : 0;
}

/// The closing quote is one that the tag goes on behind.
CurlyValue curlyValueAt(std::string_view text, std::size_t at)
{
    const auto quote = curlyQuoteAt(text, at);
    if (quote == 0) return {};
    const auto begin = at + quote;
    for (auto end = begin; end < text.size(); ++end) {
        if (text[end] == '<' || text[end] == '>' || text[end] == '=') return {};
        if (curlyQuoteAt(text, end) != quote || !endsValue(text, end + quote)) continue;
        return {text.substr(begin, end - begin), end + quote - at};
    }
    return {};
}

std::size_t serverCodeAt(std::string_view text, std::size_t at)
{
    const auto script = text.substr(at, kLongestServerCode);
    if (!script.starts_with("<%") && !script.starts_with("<?")) return 0;
    const auto end = script.find(script[1] == '%' ? "%>" : "?>", 2);
    return end == kNowhere ? 0 : end + 2;
}

} // namespace quillmere::wml
