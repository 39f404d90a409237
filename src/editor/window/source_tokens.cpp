// One pass over the line; each state has its own step, which takes as much as it can. Held by
// source_edit_test.cpp.

#include "editor/window/source_tokens.h"

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array kElements = {u"a", u"access", u"anchor", u"b", u"big", u"br", u"card", u"do",
    u"em", u"fieldset", u"go", u"head", u"i", u"img", u"input", u"meta", u"noop", u"onevent",
    u"optgroup", u"option", u"p", u"postfield", u"prev", u"refresh", u"select", u"setvar", u"small",
    u"strong", u"table", u"td", u"template", u"timer", u"tr", u"u", u"wml"};

/// What ends with one text, wherever it began.
struct Span {
    SourceState state;
    QStringView begin;
    QStringView end;
};
constexpr Span kSpans[] = {
    {SourceState::Comment, u"<!--", u"-->"},
    {SourceState::Section, u"<![CDATA[", u"]]>"},
    {SourceState::Declaration, u"<!", u">"},
    {SourceState::Declaration, u"<?", u">"},
};

bool isName(QChar character)
{
    return character.isLetterOrNumber() || QStringView(u"_-.:").contains(character);
}

class LineReader {
public:
    LineReader(QStringView line, SourceState state, std::vector<SourceRun>& runs)
        : line_(line)
        , runs_(runs)
        , state_(state)
    {
    }
    SourceState read()
    {
        while (at_ < line_.size())
            step();
        return state_;
    }

private:
    void step()
    {
        switch (state_) {
        case SourceState::Text:
            return readText();
        case SourceState::Tag:
            return readInTag();
        case SourceState::SingleQuoted:
            return readValue(u'\'');
        case SourceState::DoubleQuoted:
            return readValue(u'"');
        case SourceState::Comment:
        case SourceState::Section:
        case SourceState::Declaration:
            return readSpan();
        }
    }

    [[nodiscard]] QStringView rest() const { return line_.mid(at_); }
    void take(qsizetype length, SourceToken token)
    {
        if (length > 0) runs_.push_back({static_cast<int>(at_), static_cast<int>(length), token});
        at_ += length;
    }
    template <class Test>
    [[nodiscard]] qsizetype lengthWhile(qsizetype from, const Test& test) const
    {
        const auto text = line_.mid(from);
        return std::find_if_not(text.begin(), text.end(), test) - text.begin();
    }

    void readText()
    {
        at_ += lengthWhile(at_, [](QChar c) { return c != u'<' && c != u'&'; });
        if (at_ == line_.size()) return;
        if (line_[at_] == u'&') return readEntity();
        for (const auto& span : kSpans)
            if (rest().startsWith(span.begin)) return openSpan(span);
        readTagStart(SourceToken::Tag);
    }

    void openSpan(const Span& span)
    {
        state_ = span.state;
        take(span.begin.size(), SourceToken::Comment);
    }

    void readSpan()
    {
        const auto* const span = std::ranges::find(kSpans, state_, &Span::state);
        const auto end = rest().indexOf(span->end);
        if (end >= 0) state_ = SourceState::Text;
        take(end < 0 ? rest().size() : end + span->end.size(), SourceToken::Comment);
    }

    void readTagStart(SourceToken bracket)
    {
        const qsizetype slash = rest().startsWith(u"</") ? 2 : 1;
        const auto length = lengthWhile(at_ + slash, isName);
        if (length == 0) return take(slash, SourceToken::Error); // a stray '<'
        const bool isKnown = isWmlElement(line_.mid(at_ + slash, length));
        take(slash, bracket);
        take(length, isKnown ? SourceToken::Tag : SourceToken::Error);
        state_ = SourceState::Tag;
    }

    void readEntity()
    {
        const auto length = lengthWhile(at_ + 1, [](QChar c) { return isName(c) || c == u'#'; });
        const bool isWhole = length > 0 && rest().mid(length + 1).startsWith(u';');
        if (isWhole) return take(length + 2, SourceToken::Entity);
        take(1, SourceToken::Error);
    }

    void readInTag()
    {
        const QChar next = line_[at_];
        if (next == u'>' || next == u'/' || next == u'?') return readTagEnd();
        if (next == u'<') {
            readTagStart(SourceToken::Error); // the tag ahead of it has no end
        } else if (isName(next)) {
            readAttribute();
        } else if (next == u'"' || next == u'\'') {
            state_ = next == u'"' ? SourceState::DoubleQuoted : SourceState::SingleQuoted;
            take(1, SourceToken::Value);
        } else {
            ++at_;
        }
    }

    void readTagEnd()
    {
        if (line_[at_] == u'>') state_ = SourceState::Text;
        take(1, SourceToken::Tag);
    }

    void readAttribute()
    {
        const bool isValue = at_ > 0 && line_[at_ - 1] == u'='; // one without quotes
        const auto length = lengthWhile(at_, isName);
        take(length, isValue ? SourceToken::Error : SourceToken::Attribute);
    }

    void readValue(QChar quote)
    {
        const auto length
            = lengthWhile(at_, [quote](QChar c) { return c != quote && c != u'&' && c != u'<'; });
        take(length, SourceToken::Value);
        if (at_ == line_.size()) return;
        if (line_[at_] == u'&') return readEntity();
        if (line_[at_] == u'<') return take(1, SourceToken::Error);
        state_ = SourceState::Tag;
        take(1, SourceToken::Value);
    }

    QStringView line_;
    std::vector<SourceRun>& runs_;
    SourceState state_;
    qsizetype at_ = 0;
};

} // namespace

SourceState readSourceLine(QStringView line, SourceState state, std::vector<SourceRun>& runs)
{
    return LineReader(line, state, runs).read();
}

bool isWmlElement(QStringView name)
{
    return std::ranges::any_of(kElements, [name](QStringView known) { return known == name; });
}

} // namespace quillmere
