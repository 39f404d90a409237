// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/deck_entities.h"

#include "document/text/text_search.h"
#include "document/wml/wml_characters.h"

#include <algorithm>
#include <array>

namespace quillmere::wml {

namespace {

constexpr std::string_view kXmlEntities[] = {"amp", "lt", "gt", "quot", "apos"};
constexpr std::string_view kWmlEntities[] = {"nbsp", "shy"};

constexpr unsigned kFirstOfLatin1 = 160;
constexpr std::array<std::string_view, 96> kLatin1 = {"nbsp", "iexcl", "cent", "pound", "curren",
    "yen", "brvbar", "sect", "uml", "copy", "ordf", "laquo", "not", "shy", "reg", "macr", "deg",
    "plusmn", "sup2", "sup3", "acute", "micro", "para", "middot", "cedil", "sup1", "ordm", "raquo",
    "frac14", "frac12", "frac34", "iquest", "Agrave", "Aacute", "Acirc", "Atilde", "Auml", "Aring",
    "AElig", "Ccedil", "Egrave", "Eacute", "Ecirc", "Euml", "Igrave", "Iacute", "Icirc", "Iuml",
    "ETH", "Ntilde", "Ograve", "Oacute", "Ocirc", "Otilde", "Ouml", "times", "Oslash", "Ugrave",
    "Uacute", "Ucirc", "Uuml", "Yacute", "THORN", "szlig", "agrave", "aacute", "acirc", "atilde",
    "auml", "aring", "aelig", "ccedil", "egrave", "eacute", "ecirc", "euml", "igrave", "iacute",
    "icirc", "iuml", "eth", "ntilde", "ograve", "oacute", "ocirc", "otilde", "ouml", "divide",
    "oslash", "ugrave", "uacute", "ucirc", "uuml", "yacute", "thorn", "yuml"};

struct HtmlEntity {
    std::string_view name;
    unsigned point = 0;
};

constexpr HtmlEntity kFurther[] = {{"euro", 8364}, {"ndash", 8211}, {"mdash", 8212},
    {"hellip", 8230}, {"bull", 8226}, {"trade", 8482}, {"lsquo", 8216}, {"rsquo", 8217},
    {"sbquo", 8218}, {"ldquo", 8220}, {"rdquo", 8221}, {"bdquo", 8222}};

template <typename Rows> bool has(const Rows& rows, std::string_view name)
{
    return std::find(std::begin(rows), std::end(rows), name) != std::end(rows);
}

constexpr std::string_view kEntity = "<!ENTITY";

std::size_t behind(std::string_view text, std::string_view end)
{
    const auto at = text.find(end);
    return at == npos ? text.size() : at + end.size();
}

/// The declaration, comment or instruction that `text` begins with.
std::string_view declarationIn(std::string_view text)
{
    if (text.starts_with("<!--")) return text.substr(0, behind(text, "-->"));
    if (text.starts_with("<?")) return text.substr(0, behind(text, "?>"));
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '>') return text.substr(0, at + 1);
        const bool isQuote = text[at] == '"' || text[at] == '\'';
        if (isQuote) at = std::min(text.find(text[at], at + 1), text.size());
    }
    return text;
}

std::string_view withoutSpaceAhead(std::string_view text)
{
    const auto* const begin
        = std::ranges::find_if_not(text, [](char character) { return is(character, Space); });
    return {begin, text.end()};
}

std::string_view nameAhead(std::string_view text)
{
    const auto* const end = std::ranges::find_if_not(
        text, [](char character) { return is(character, ContinuesName); });
    return {text.begin(), end};
}

} // namespace

DeckEntities::DeckEntities(std::string_view doctype)
{
    const auto subset = std::min(doctype.find('['), doctype.size());
    const auto head = doctype.substr(0, subset);
    hasFile_ = head.find('"') != npos || head.find('\'') != npos;
    knowsAll_ = hasFile_ && findIgnoringCase(head, "wapforum") == npos;
    readSubset(doctype.substr(subset));
}

void DeckEntities::readSubset(std::string_view subset)
{
    for (auto at = subset.find('<'); at != npos; at = subset.find('<', at)) {
        const auto declaration = declarationIn(subset.substr(at));
        if (declaration.starts_with(kEntity)) readEntity(declaration);
        at += declaration.size();
    }
}

/// The first declaration of a name is the one that counts.
void DeckEntities::readEntity(std::string_view declaration)
{
    auto rest = withoutSpaceAhead(declaration.substr(kEntity.size()));
    const auto name = nameAhead(rest);
    if (name.empty()) { // '%': what it brings in is not read
        knowsAll_ = true;
        return;
    }
    rest = withoutSpaceAhead(rest.substr(name.size()));
    if (rest.ends_with('>')) rest.remove_suffix(1);
    const bool isQuoted = !rest.empty() && (rest.front() == '"' || rest.front() == '\'');
    const auto meaning = isQuoted ? rest.substr(1, rest.find(rest.front(), 1) - 1) : rest;
    declared_.emplace(name, meaning);
}

std::optional<std::string_view> DeckEntities::meaningOf(std::string_view name) const
{
    if (declared_.empty() || has(kXmlEntities, name) || has(kWmlEntities, name))
        return std::nullopt;
    const auto found = declared_.find(std::string(name));
    if (found == declared_.end()) return std::nullopt;
    return found->second;
}

bool DeckEntities::knows(std::string_view name) const
{
    if (knowsAll_ || has(kXmlEntities, name)) return true;
    if (hasFile_ && has(kWmlEntities, name)) return true;
    return !declared_.empty() && declared_.contains(std::string(name));
}

std::string_view entityAtBegin(std::string_view text)
{
    if (!text.starts_with('&')) return {};
    const auto name = nameAhead(text.substr(1));
    return text.substr(1 + name.size()).starts_with(';') ? name : std::string_view{};
}

unsigned htmlEntity(std::string_view name)
{
    const auto* const found = std::find(kLatin1.begin(), kLatin1.end(), name);
    if (found != kLatin1.end())
        return kFirstOfLatin1 + static_cast<unsigned>(found - kLatin1.begin());
    for (const auto& entity : kFurther)
        if (entity.name == name) return entity.point;
    return 0;
}

} // namespace quillmere::wml
