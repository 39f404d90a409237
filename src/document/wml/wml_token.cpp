// One pass from left to right. What has no end of its own ends at the next '>'; after the first
// search for an end that finds none there is no further one, so that a thousand comments without
// end cost no thousand searches. Held by tests/document/wml/wml_token_test.cpp.

#include "document/wml/wml_token.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "document/wml/tag_reader.h"
#include "document/wml/wml_characters.h"

#include <algorithm>

namespace quillmere {

namespace {

using namespace wml;
using Kind = WmlToken::Kind;

class TokenReader {
public:
    explicit TokenReader(std::string_view text)
        : text_(text)
    {
    }

    std::vector<WmlToken> read()
    {
        tokens_.reserve(text_.size() / 5 + 8);
        while (at_ < text_.size()) {
            if (is(text_[at_], Space)) {
                readSpace();
            } else if (!beginsMarkup(text_, at_)) {
                readWord();
            } else if (text_[at_ + 1] == '!') {
                readDeclaration();
            } else if (text_[at_ + 1] == '?') {
                readInstruction();
            } else {
                readTag();
            }
        }
        return std::move(tokens_);
    }

private:
    WmlToken& add(Kind kind, std::size_t begin)
    {
        WmlToken& token = tokens_.emplace_back();
        token.kind = kind;
        token.source = text_.substr(begin, at_ - begin);
        return token;
    }

    void readSpace()
    {
        const auto begin = at_;
        while (at_ < text_.size() && is(text_[at_], Space))
            ++at_;
        add(Kind::Space, begin);
    }

    void readWord()
    {
        const auto begin = at_;
        std::uint8_t kinds = 0;
        for (; at_ < text_.size() && !is(text_[at_], Space); ++at_) {
            if (beginsMarkup(text_, at_)) break;
            kinds |= kindOf(text_[at_]);
        }
        WmlToken& word = add(Kind::Word, begin);
        word.needsLook = (kinds & kSuspicious) != 0;
        if ((kinds & Bracket) != 0)
            word.isFaulty = word.source.find('<') != npos || word.source.find("]]>") != npos;
    }

    void readTag()
    {
        noSubset_ = true; // a document type stands ahead of all tags
        const auto begin = at_;
        TagReader tag(text_, begin);
        while (tag.next()) { }
        at_ = tag.end();
        const Kind kind = tag.isEnd() ? Kind::EndTag
            : tag.isEmpty()           ? Kind::EmptyTag
                                      : Kind::StartTag;
        WmlToken& token = add(kind, begin);
        token.element = tag.element();
        token.name = tag.name();
        token.isFaulty = tag.isFaulty();
        token.needsLook = tag.needsLook();
        token.hasId = tag.hasId() && kind != Kind::EndTag;
    }

    void readDeclaration()
    {
        const auto rest = text_.substr(at_);
        if (rest.starts_with("<!--")) {
            readDelimited(Kind::Comment, 4, "-->", noComment_);
            WmlToken& comment = tokens_.back();
            const auto inner = comment.source.substr(4);
            comment.isFaulty = comment.isFaulty || inner.find("--") != inner.size() - 3;
        } else if (rest.starts_with("<![CDATA[")) {
            readDelimited(Kind::Section, 9, "]]>", noSection_);
        } else {
            readDoctype();
        }
    }

    void readInstruction()
    {
        const bool isDeclaration = standsAt(text_, at_, "<?xml") && !continuesNameAt(at_ + 5);
        if (isDeclaration) {
            readXmlDeclaration();
        } else {
            readDelimited(Kind::Instruction, 2, "?>", noInstruction_);
        }
        auto& token = tokens_.back();
        auto end = std::size_t{2};
        while (end < token.source.size() && is(token.source[end], ContinuesName))
            ++end;
        token.name = token.source.substr(2, end - 2);
    }

    [[nodiscard]] bool continuesNameAt(std::size_t at) const
    {
        return at < text_.size() && is(text_[at], ContinuesName);
    }

    /// No XML declaration has a '>' in it.
    void readXmlDeclaration()
    {
        const auto begin = at_;
        at_ = behindNext('>', begin);
        WmlToken& token = add(Kind::Instruction, begin);
        token.isFaulty = !token.source.ends_with("?>");
        token.needsLook = true;
    }

    /// Without its closing text the token ends at the next '>'.
    void readDelimited(Kind kind, std::size_t openLength, std::string_view close, bool& noneLeft)
    {
        const auto begin = at_;
        const auto inner = std::min(begin + openLength, text_.size());
        const auto stop = noneLeft ? npos : text_.find(close, inner);
        const bool isEnded = stop != npos;
        noneLeft = !isEnded;
        at_ = isEnded ? stop + close.size() : behindNext('>', inner);
        WmlToken& token = add(kind, begin);
        token.isFaulty = !isEnded;
        token.needsLook = hasSuspicious(token.source) || kind == Kind::Instruction;
    }

    static bool hasSuspicious(std::string_view source)
    {
        return std::any_of(source.begin(), source.end(),
            [](char c) { return (kindOf(c) & (Control | BeyondAscii)) != 0; });
    }

    [[nodiscard]] std::size_t behindNext(char character, std::size_t from) const
    {
        return std::min(text_.find(character, from), text_.size() - 1) + 1;
    }

    /// "<!" up to its '>', which may stand behind an internal subset.
    void readDoctype()
    {
        const auto begin = at_;
        const auto end = standsAt(text_, begin, "<!doctype") ? doctypeEnd() : npos;
        at_ = end == npos ? behindNext('>', begin) : end;
        WmlToken& token = add(Kind::Declaration, begin);
        token.isFaulty = end == npos;
        token.needsLook = true;
    }

    /// npos where it has none ahead of the next tag.
    [[nodiscard]] std::size_t doctypeEnd()
    {
        auto stop = at_;
        do {
            stop = behindLiteral(text_.find_first_of("[<>\"'", stop + 1));
        } while (stop != npos && (text_[stop] == '"' || text_[stop] == '\''));
        if (stop == npos || text_[stop] == '<') return npos;
        if (text_[stop] == '>') return stop + 1;
        if (noSubset_) return npos;
        const auto end = subsetEnd(stop + 1);
        noSubset_ = end == npos;
        return end;
    }

    /// Where the quotes at `at` close within the tag, their closing one.
    [[nodiscard]] std::size_t behindLiteral(std::size_t at) const
    {
        if (at == npos || (text_[at] != '"' && text_[at] != '\'')) return at;
        const char stops[] = {text_[at], '<', '>', '\0'};
        const auto close = text_.find_first_of(stops, at + 1);
        return close != npos && text_[close] == text_[at] ? close : at;
    }

    /// The end of the document type whose internal subset begins at `at`.
    [[nodiscard]] std::size_t subsetEnd(std::size_t at) const
    {
        for (; at < text_.size(); ++at) {
            const auto rest = text_.substr(at);
            if (rest.starts_with("<!--")) at = text_.find("-->", at + 4);
            if (at == npos) return npos;
            const char character = text_[at];
            if (character == '"' || character == '\'') at = text_.find(character, at + 1);
            if (at == npos) return npos;
            if (character != ']') continue;
            const auto close = text_.find_first_not_of(" \t\r\n", at + 1);
            return close != npos && text_[close] == '>' ? close + 1 : npos;
        }
        return npos;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::vector<WmlToken> tokens_;
    bool noComment_ = false; // none of these ends from here on
    bool noSection_ = false;
    bool noInstruction_ = false;
    bool noSubset_ = false; // none ends, or none can be
};

} // namespace

std::vector<WmlToken> readWmlTokens(std::string_view text)
{
    return TokenReader(text).read();
}

std::vector<WmlAttribute> attributesOf(std::string_view tag)
{
    std::vector<WmlAttribute> attributes;
    if (!beginsMarkup(tag, 0)) return attributes;
    TagReader reader(tag, 0);
    while (const auto attribute = reader.next())
        attributes.push_back(*attribute);
    return attributes;
}

std::optional<std::string_view> attributeValue(std::string_view tag, std::string_view name)
{
    if (!beginsMarkup(tag, 0)) return std::nullopt;
    TagReader reader(tag, 0);
    while (const auto attribute = reader.next())
        if (equalIgnoringCase(attribute->name, name)) return attribute->value;
    return std::nullopt;
}

} // namespace quillmere
