// One pass from left to right; each character is passed over once. After the first search for an
// end ("-->" and the like) that finds none there is no further one, so that a thousand unended
// comments cost no thousand searches. Tags are read by MarkupTagReader. Held by
// markup_document_test.cpp.

#include "document/changes/markup_document.h"

#include "document/changes/doctype_head.h"
#include "document/changes/markup_tag_reader.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using Kind = MarkupToken::Kind;
constexpr auto kNowhere = std::string_view::npos;
constexpr std::string_view kOpen = "<!DOCTYPE";

class MarkupReader {
public:
    explicit MarkupReader(std::string_view text)
        : in_(text)
    {
    }

    MarkupDocument read()
    {
        const auto opened = std::count(in_.text.begin(), in_.text.end(), '<');
        in_.document.tokens.reserve(static_cast<std::size_t>(opened) * 3 / 2 + 1);
        while (in_.at < in_.text.size()) {
            if (!beginsMarkup(in_.at)) {
                readText();
            } else if (in_.text[in_.at + 1] == '!') {
                readDeclaration();
            } else if (in_.text[in_.at + 1] == '?') {
                readInstruction();
            } else {
                tags_.readTag();
            }
        }
        return std::move(in_.document);
    }

private:
    [[nodiscard]] bool beginsMarkup(std::size_t at) const
    {
        if (in_.text[at] != '<' || at + 1 >= in_.text.size()) return false;
        const char next = in_.text[at + 1];
        return next == '/' || next == '!' || next == '?' || in_.beginsNameAt(at + 1);
    }

    void add(Kind kind, std::size_t begin, std::string_view name, std::string_view content)
    {
        in_.document.tokens.push_back({kind, begin, in_.at, name, content, 0, 0});
    }

    void readText()
    {
        const auto begin = in_.at;
        while (!in_.atEnd() && !beginsMarkup(in_.at)) {
            if (in_.text[in_.at] == '<') in_.note(MarkupFault::StrayLess, in_.at);
            in_.at = std::min(in_.text.find('<', in_.at + 1), in_.text.size());
        }
        add(Kind::Text, begin, {}, in_.text.substr(begin, in_.at - begin));
    }

    void readDeclaration()
    {
        const auto rest = in_.text.substr(in_.at);
        if (rest.starts_with("<!--")) {
            readDelimited(Kind::Comment, 4, "-->", MarkupFault::UnendedComment, noComment_);
            const auto& comment = in_.document.tokens.back();
            if (comment.content.find("--") != kNowhere || comment.content.ends_with('-'))
                in_.note(MarkupFault::DashesInComment, comment.begin);
        } else if (rest.starts_with("<![CDATA[")) {
            readDelimited(Kind::Section, 9, "]]>", MarkupFault::UnendedSection, noSection_);
        } else {
            readDoctype();
        }
    }

    void readInstruction()
    {
        readDelimited(Kind::Instruction, 2, "?>", MarkupFault::UnendedInstruction, noInstruction_);
        auto& token = in_.document.tokens.back();
        const auto end = in_.at;
        in_.at = token.begin + 2;
        token.name = in_.takeName();
        if (token.name.empty()) in_.note(MarkupFault::UnendedInstruction, token.begin);
        token.content.remove_prefix(std::min(token.name.size(), token.content.size()));
        in_.at = end;
    }

    /// Without its closing text the token ends at the next '>'.
    void readDelimited(Kind kind, std::size_t openLength, std::string_view close,
        MarkupFault missing, bool& noneLeft)
    {
        const auto begin = in_.at;
        const auto inner = begin + openLength;
        auto stop = noneLeft ? kNowhere : in_.text.find(close, inner);
        in_.at = stop + close.size();
        if (stop == kNowhere) {
            noneLeft = true;
            in_.note(missing, begin);
            stop = std::min(in_.text.find('>', std::min(inner, in_.text.size())), in_.text.size());
            in_.at = std::min(stop + 1, in_.text.size());
        }
        add(kind, begin, {}, in_.text.substr(inner, stop - inner));
    }

    /// "<!" up to its '>', which may stand in quotes or behind an internal subset.
    void readDoctype()
    {
        const auto begin = in_.at;
        auto stop = doctypeSeen_ ? kNowhere : doctypeEnd();
        if (!in_.text.substr(begin).starts_with(kOpen) || doctypeSeen_ || stop == kNowhere)
            in_.note(MarkupFault::BadDoctype, begin);
        doctypeSeen_ = true; // a further one is a fault and is not searched far
        if (stop == kNowhere) stop = std::min(in_.text.find('>', begin), in_.text.size());
        in_.at = std::min(stop + 1, in_.text.size());
        const auto inner = std::min(begin + kOpen.size(), stop);
        add(Kind::Doctype, begin, {}, in_.text.substr(inner, stop - inner));
    }

    [[nodiscard]] std::size_t doctypeEnd() const
    {
        bool inSubset = false;
        for (auto at = behindHead(); at < in_.text.size(); ++at) {
            const char character = in_.text[at];
            const bool isQuote = character == '"' || character == '\'';
            if (isQuote) at = literalEnd(at, inSubset);
            if (at == kNowhere) return kNowhere;
            if (character == '[' || character == ']') inSubset = character == '[';
            if (character == '>' && !inSubset) return at;
        }
        return kNowhere;
    }

    /// Behind the name and the literals of a declaration that is right so far, else its begin.
    [[nodiscard]] std::size_t behindHead() const
    {
        if (!in_.text.substr(in_.at).starts_with(kOpen)) return in_.at;
        MarkupCursor in(in_.text);
        in.at = in_.at + kOpen.size();
        const bool isRight = passDoctypeHead(in) && (in.peek() == '[' || in.peek() == '>');
        return isRight ? in.at : in_.at;
    }

    /// The closing quote. Outside of the subset one that is missing does not reach beyond the tag.
    [[nodiscard]] std::size_t literalEnd(std::size_t at, bool inSubset) const
    {
        const char stops[] = {in_.text[at], '<', '>', '\0'};
        if (inSubset) return in_.text.find(in_.text[at], at + 1);
        const auto end = in_.text.find_first_of(stops, at + 1);
        return end != kNowhere && in_.text[end] == in_.text[at] ? end : at;
    }

    MarkupCursor in_;
    MarkupTagReader tags_{in_};
    bool doctypeSeen_ = false;
    bool noComment_ = false; // none of these ends from here on
    bool noSection_ = false;
    bool noInstruction_ = false;
};

} // namespace

MarkupDocument readMarkup(std::string_view text)
{
    return MarkupReader(text).read();
}

} // namespace quillmere
