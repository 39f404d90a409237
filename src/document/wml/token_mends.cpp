// Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/token_mends.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "document/wml/tag_mends.h"
#include "document/wml/wml_characters.h"

#include <algorithm>

namespace quillmere::wml {

namespace {

using Kind = WmlToken::Kind;

constexpr MendRule kCharacterRules[] = {
    MendRule::BareAmpersand, MendRule::BareLess, MendRule::UnknownEntity, MendRule::BadCharacter};

/// Each rule that was needed, with the whole of what was mended.
MendedToken byRules(std::string_view before, MendedText text)
{
    MendedToken token{std::move(text.text), {}, false};
    for (const MendRule rule : kCharacterRules)
        if (text.rules.has(rule)) token.faults.push_back({rule, std::string(before), token.text});
    return token;
}

/// What stands between the opening and the closing of a token, which may be missing.
std::string_view innerOf(std::string_view source, std::size_t openLength, std::string_view close)
{
    source.remove_prefix(std::min(openLength, source.size()));
    if (source.ends_with(close)) {
        source.remove_suffix(close.size());
    } else if (source.ends_with('>')) {
        source.remove_suffix(1);
    }
    return source;
}

std::string withBlankBetween(std::string_view text, std::string_view pair)
{
    std::string result;
    for (const char character : text) {
        if (character == pair[1] && result.ends_with(pair[0])) result += ' ';
        result += character;
    }
    return result;
}

} // namespace

std::string commentOf(std::string_view text)
{
    std::string comment = "<!--" + withBlankBetween(text, "--");
    if (text.ends_with('-')) comment += ' ';
    return comment + "-->";
}

TokenMender::TokenMender(const DeckBytes& deck, const DeckEntities& entities)
    : characters_(deck, entities)
{
}

std::optional<MendedToken> TokenMender::mend(const WmlToken& token) const
{
    if (!token.isFaulty && !token.needsLook) return std::nullopt;
    auto mended = [&] {
        switch (token.kind) {
        case Kind::StartTag:
        case Kind::EmptyTag:
            return mendedTag(token);
        case Kind::EndTag:
            return mendedEnd(token);
        case Kind::Comment:
            return mendedComment(token.source);
        case Kind::Section:
            return mendedSection(token);
        case Kind::Instruction:
            return mendedInstruction(token);
        case Kind::Declaration:
            return mendedComment(token.source);
        case Kind::Word:
        case Kind::Space:
            return mendedWord(token);
        }
        return MendedToken{};
    }();
    if (mended.faults.empty()) return std::nullopt;
    return mended;
}

MendedToken TokenMender::mendedWord(const WmlToken& word) const
{
    return byRules(word.source, characters_.content(word.source));
}

MendedToken TokenMender::mendedTag(const WmlToken& tag) const
{
    if (tag.element == WmlElement::Other && !characters_.isName(tag.name)) return tagAsText(tag);
    return mendedStartTag(tag, characters_);
}

MendedToken TokenMender::tagAsText(const WmlToken& tag) const
{
    auto token = byRules(tag.source, characters_.content(tag.source));
    token.isWord = true;
    return token;
}

MendedToken TokenMender::mendedEnd(const WmlToken& tag) const
{
    MendedToken token;
    const auto known = ruleOf(tag.element).name;
    if (known.empty() && !characters_.isName(tag.name)) {
        token.faults.push_back({MendRule::StrayEnd, std::string(tag.source), ""});
        return token;
    }
    token.text.append("</").append(known.empty() ? tag.name : known).append(">");
    const bool isOnlyCase = !tag.isFaulty && known != tag.name && !known.empty();
    if (!tag.isFaulty && !isOnlyCase) return {};
    if (isOnlyCase)
        token.text = "</" + std::string(known) + std::string(tag.source.substr(2 + known.size()));
    const auto rule = isOnlyCase ? MendRule::WrongCase : MendRule::BrokenTag;
    token.faults.push_back({rule, std::string(tag.source), token.text});
    return token;
}

MendedToken TokenMender::mendedComment(std::string_view source) const
{
    const bool isComment = source.starts_with("<!--");
    const auto inner = isComment ? innerOf(source, 4, "-->") : innerOf(source, 2, ">");
    auto text = characters_.plain(inner);
    text.text = commentOf(text.text);
    auto token = byRules(source, std::move(text));
    if (token.text != source && token.faults.empty())
        token.faults.push_back({MendRule::BadComment, std::string(source), token.text});
    return token;
}

/// In a section there are no references: where one is needed, it becomes text.
MendedToken TokenMender::mendedSection(const WmlToken& section) const
{
    const auto inner = innerOf(section.source, 9, "]]>");
    if (!characters_.plain(inner).rules.isEmpty()) {
        std::string escaped;
        for (const char character : inner) {
            if (character == '&') escaped += "&amp;";
            if (character == '<') escaped += "&lt;";
            if (character != '&' && character != '<') escaped += character;
        }
        auto token = byRules(section.source, characters_.content(escaped));
        token.isWord = true;
        return token;
    }
    if (!section.isFaulty) return {};
    MendedToken token{"<![CDATA[" + std::string(inner) + "]]>", {}, false};
    token.faults.push_back({MendRule::BadComment, std::string(section.source), token.text});
    return token;
}

MendedToken TokenMender::mendedInstruction(const WmlToken& instruction) const
{
    const auto& name = instruction.name;
    const auto inner = innerOf(instruction.source, 2, "?>");
    auto text = characters_.plain(inner);
    MendedToken token;
    if (!characters_.isName(name) || equalIgnoringCase(name, "xml")) {
        token.text = commentOf(text.text);
    } else {
        const auto rest = std::string_view(text.text).substr(name.size());
        const bool needsBlank = !rest.empty() && !is(rest.front(), Space);
        token.text = "<?" + std::string(name) + (needsBlank ? " " : "")
            + withBlankBetween(rest, "?>") + "?>";
    }
    if (token.text == instruction.source) return {};
    token.faults.push_back({MendRule::BadDeclaration, std::string(instruction.source), token.text});
    return token;
}

} // namespace quillmere::wml
