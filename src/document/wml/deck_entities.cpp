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

} // namespace

DeckEntities::DeckEntities(std::string_view doctype)
    : hasDoctype_(!doctype.empty())
{
    const auto subset = std::min(doctype.find('['), doctype.size());
    const auto head = doctype.substr(0, subset);
    const bool hasFile = head.find('"') != npos || head.find('\'') != npos;
    knowsAll_ = hasFile && findIgnoringCase(head, "wapforum") == npos;
    readSubset(doctype.substr(subset));
}

void DeckEntities::readSubset(std::string_view subset)
{
    constexpr std::string_view kEntity = "<!ENTITY";
    for (auto at = subset.find(kEntity); at != npos; at = subset.find(kEntity, at + 1)) {
        auto begin = std::min(at + kEntity.size(), subset.size());
        while (begin < subset.size() && is(subset[begin], Space))
            ++begin;
        auto end = begin;
        while (end < subset.size() && is(subset[end], ContinuesName))
            ++end;
        knowsAll_ = knowsAll_ || end == begin; // '%': what it brings in is not read
        declared_.emplace(subset.substr(begin, end - begin));
    }
}

bool DeckEntities::knows(std::string_view name) const
{
    if (knowsAll_ || has(kXmlEntities, name)) return true;
    if (hasDoctype_ && has(kWmlEntities, name)) return true;
    return !declared_.empty() && declared_.contains(std::string(name));
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
