// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/prolog_mends.h"

#include "document/text/text_search.h"
#include "document/wml/wml_characters.h"

#include <algorithm>
#include <array>

namespace quillmere::wml {

namespace {

/// Passes over a text from left to right, as far as it is what is asked for.
class Matcher {
public:
    explicit Matcher(std::string_view text)
        : text_(text)
    {
    }
    [[nodiscard]] bool isAtEnd() const { return at_ == text_.size(); }
    [[nodiscard]] std::string_view rest() const { return text_.substr(at_); }
    bool word(std::string_view wanted)
    {
        if (!rest().starts_with(wanted)) return false;
        at_ += wanted.size();
        return true;
    }
    bool space() { return !run(Space).empty(); }
    bool name()
    {
        return at_ < text_.size() && is(text_[at_], BeginsName) && !run(ContinuesName).empty();
    }
    /// A value in quotes; nullopt where none stands.
    std::optional<std::string_view> literal()
    {
        if (isAtEnd() || (text_[at_] != '"' && text_[at_] != '\'')) return std::nullopt;
        const auto end = text_.find(text_[at_], at_ + 1);
        if (end == npos) return std::nullopt;
        const auto value = text_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        return value;
    }
    /// White space, a name, '=' and a value; all or nothing.
    std::optional<std::string_view> setting(std::string_view name)
    {
        const auto begin = at_;
        if (space() && word(name)) {
            space();
            if (word("=")) {
                space();
                if (const auto value = literal()) return value;
            }
        }
        at_ = begin;
        return std::nullopt;
    }

private:
    std::string_view run(CharacterKind kind)
    {
        const auto begin = at_;
        while (at_ < text_.size() && is(text_[at_], kind))
            ++at_;
        return text_.substr(begin, at_ - begin);
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

bool consistsOf(std::string_view text, std::string_view further)
{
    return std::all_of(text.begin(), text.end(), [&](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
            || further.find(c) != npos;
    });
}

bool isVersion(std::string_view version)
{
    return version.starts_with("1.") && version.size() > 2
        && version.find_first_not_of("0123456789", 2) == npos;
}

bool isEncodingName(std::string_view name)
{
    return !name.empty() && consistsOf(name, "._-") && consistsOf(name.substr(0, 1), "")
        && (name.front() < '0' || name.front() > '9');
}

bool isXmlDeclaration(std::string_view source)
{
    Matcher in(source);
    if (!in.word("<?xml")) return false;
    const auto version = in.setting("version");
    if (!version || !isVersion(*version)) return false;
    const auto encoding = in.setting("encoding");
    if (encoding && !isEncodingName(*encoding)) return false;
    const auto standalone = in.setting("standalone");
    if (standalone && *standalone != "yes" && *standalone != "no") return false;
    in.space();
    return in.word("?>") && in.isAtEnd();
}

std::string xmlDeclaration(std::string_view source, const DeckBytes& deck, bool keepsEncoding)
{
    std::string text = "<?xml version=\"1.0\"";
    const auto encoding = declaredEncoding(source);
    if (!encoding.empty()) {
        const bool isKept = keepsEncoding && isEncodingName(encoding);
        const bool isUtf16 = deck.encoding() == DeckEncoding::Utf16BigEndian
            || deck.encoding() == DeckEncoding::Utf16LittleEndian;
        text += " encoding=\"" + (isKept ? std::string(encoding) : isUtf16 ? "UTF-16" : "UTF-8");
        text += '"';
    }
    if (findIgnoringCase(source, "standalone") != npos)
        text += source.find("yes") != npos ? " standalone=\"yes\"" : " standalone=\"no\"";
    return text + "?>";
}

bool isPublicId(std::string_view text)
{
    return consistsOf(text, " \r\n-'()+,./:=?;!*#@$_%");
}

/// References in it must be complete; what they bring in is not looked at.
bool isEntityValue(std::string_view value)
{
    if (value.find('%') != npos) return false;
    for (auto at = value.find('&'); at != npos; at = value.find('&', at + 1)) {
        const auto end = value.find_first_not_of("#abcdefghijklmnopqrstuvwxyz"
                                                 "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789",
            at + 1);
        if (end == npos || end == at + 1 || value[end] != ';') return false;
    }
    return true;
}

/// The rest of a declaration up to its '>', which may stand in quotes.
bool passToEnd(Matcher& in)
{
    while (!in.isAtEnd() && !in.word(">")) {
        const char next = in.rest().front();
        const bool isPassed = next == '"' || next == '\'' ? in.literal().has_value()
                                                          : in.word(in.rest().substr(0, 1));
        if (next == '<' || !isPassed) return false;
    }
    return true;
}

bool passEntity(Matcher& in)
{
    if (!in.space()) return false;
    const bool isParameter = in.word("%") && in.space();
    if (!in.name() || !in.space()) return false;
    const auto value = in.literal();
    if (!value) return (in.word("SYSTEM") || in.word("PUBLIC")) && passToEnd(in);
    in.space();
    return (isParameter || isEntityValue(*value)) && in.word(">");
}

bool passUpTo(Matcher& in, std::string_view end)
{
    const auto length = in.rest().find(end);
    return length != npos && in.word(in.rest().substr(0, length + end.size()));
}

/// One of the declarations that an internal subset may have, or white space between them.
bool passDeclaration(Matcher& in)
{
    if (in.space()) return true;
    if (in.word("<!ENTITY")) return passEntity(in);
    for (const std::string_view keyword : {"<!ELEMENT", "<!ATTLIST", "<!NOTATION"})
        if (in.word(keyword)) return in.space() && in.name() && passToEnd(in);
    if (in.word("<!--")) return passUpTo(in, "--") && in.word(">");
    if (in.word("<?")) return !standsAt(in.rest(), 0, "xml") && in.name() && passUpTo(in, "?>");
    return in.word("%") && in.name() && in.word(";");
}

bool isDoctype(std::string_view source)
{
    Matcher in(source);
    if (!in.word("<!DOCTYPE") || !in.space() || !in.name()) return false;
    if (in.space()) {
        const bool isPublic = in.word("PUBLIC");
        if (isPublic) {
            const bool hasSpace = in.space();
            const auto id = in.literal();
            if (!hasSpace || !id || !isPublicId(*id)) return false;
        }
        if ((isPublic || in.word("SYSTEM")) && (!in.space() || !in.literal())) return false;
        in.space();
    }
    if (in.word("[")) {
        while (passDeclaration(in)) { }
        if (!in.word("]")) return false;
        in.space();
    }
    return in.word(">") && in.isAtEnd();
}

struct WmlDoctype {
    std::string_view version;
    std::string_view file;
};

constexpr WmlDoctype kWmlDoctypes[] = {
    {"1.2", "http://www.wapforum.org/DTD/wml12.dtd"},
    {"1.3", "http://www.wapforum.org/DTD/wml13.dtd"},
    {"1.1", "http://www.wapforum.org/DTD/wml_1.1.xml"},
};

std::string wmlDoctype(std::string_view source)
{
    const auto* row = std::find_if(std::begin(kWmlDoctypes), std::end(kWmlDoctypes),
        [&](const WmlDoctype& type) { return source.find(type.version) != npos; });
    if (row == std::end(kWmlDoctypes)) --row;
    return "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML " + std::string(row->version) + "//EN\" \""
        + std::string(row->file) + "\">";
}

/// With the words in upper case and white space where it belongs, all else as it was.
std::string respelled(std::string_view source)
{
    std::string text = "<!DOCTYPE wml ";
    const auto begin = source.find_first_of("\"'");
    const auto publicAt = findIgnoringCase(source, "public");
    Matcher in(source.substr(std::min(begin, source.size())));
    const auto first = in.literal();
    in.space();
    const auto second = in.literal();
    const auto quoted = [](std::string_view value) { return "\"" + std::string(value) + "\""; };
    if (!first || !second || publicAt > begin) return wmlDoctype(source);
    if (second->find_first_of("<>") != npos) return wmlDoctype(source); // a tag might end there
    text += "PUBLIC " + quoted(*first) + " " + quoted(*second) + ">";
    return isDoctype(text) && !text.empty() ? text : wmlDoctype(source);
}

std::optional<MendedToken> replaced(
    std::string_view source, std::string text, MendRule rule = MendRule::BadDeclaration)
{
    MendedToken token{std::move(text), {}, false};
    token.faults.push_back({rule, std::string(source), token.text});
    return token;
}

/// A right document type with its name spelled as the element of the deck is: `<!DOCTYPE WML>`.
std::string withLowerName(std::string_view source)
{
    std::string text(source);
    const auto name = std::string_view("<!DOCTYPE ").size();
    const auto at = text.find_first_not_of(" \t\r\n", name - 1);
    const auto behind = at + std::string_view("wml").size();
    const bool isWhole = behind < text.size() && !is(text[behind], ContinuesName);
    if (isWhole && standsAt(text, at, "wml")) text.replace(at, behind - at, "wml");
    return text;
}

} // namespace

std::optional<MendedToken> mendXmlDeclaration(
    std::string_view source, const DeckBytes& deck, bool isFirst)
{
    const bool keepsEncoding = isFirst && !deck.declaresWrongly();
    const bool isRight = isXmlDeclaration(source);
    if (isRight && (keepsEncoding || declaredEncoding(source).empty())) return std::nullopt;
    auto text = xmlDeclaration(source, deck, keepsEncoding);
    if (text == source) return std::nullopt;
    return replaced(source, std::move(text));
}

std::optional<MendedToken> mendDoctype(std::string_view source, const DeckBytes& deck)
{
    if (isDoctype(source) && deck.isValid(source)) {
        auto text = withLowerName(source);
        if (text == source) return std::nullopt;
        return replaced(source, std::move(text), MendRule::WrongCase);
    }
    auto text = respelled(source);
    if (!deck.isValid(text)) text = wmlDoctype(source);
    return replaced(source, std::move(text));
}

} // namespace quillmere::wml
