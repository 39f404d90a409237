// One pass that proves each step and keeps nothing but the open elements. What it does not know,
// such as a comment or a value without quotes, ends it without a verdict. Held by
// markup_document_test.cpp, which compares it with the full reader.

#include "document/changes/plain_markup.h"

#include "document/changes/character_references.h"
#include "document/text/character_walk.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr auto kNowhere = std::string_view::npos;
constexpr std::size_t kMaxDepth = 32;
constexpr std::size_t kMaxAttributes = 16;

/// The document type declares entities, so that every reference with a name may be one.
constexpr std::string_view kHead[] = {"<?xml version=\"1.0\"?>",
    "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\""
    " \"http://www.wapforum.org/DTD/wml_1.1.xml\">"};

/// Wherever in markup a reference stands, its characters are those of one text or value.
bool hasBrokenReference(std::string_view text)
{
    for (auto at = text.find('&'); at != kNowhere; at = text.find('&', at + 1)) {
        if (decodeCharacter(text, at).form == DecodedCharacter::Form::Broken) return true;
    }
    return false;
}

bool isBlank(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), isMarkupSpace);
}

/// Reads a text behind whose last '>' only white space stands, so that no walk over a name or over
/// white space within a tag leaves it.
class PlainMarkup {
public:
    explicit PlainMarkup(std::string_view text)
        : text_(text)
        , openings_(text, '<')
    {
    }

    std::optional<MarkupVerdict> read()
    {
        if (!isBlank(text_.substr(text_.rfind('>') + 1)) || !passHead()) return std::nullopt;
        while (at_ < text_.size()) {
            tagBegin_ = at_;
            nextTag_ = std::min(openings_.nextFrom(at_ + 1), text_.size());
            const bool isEnd = text_[at_ + 1] == '/';
            if (!(isEnd ? passEndTag() : passStartTag())) return std::nullopt;
            if (isEnd && !close()) return verdict(MarkupFault::WrongEnd, {name_, tagBegin_});
            if (depth_ == 0 && !isBlank(text_.substr(at_, nextTag_ - at_))) return std::nullopt;
            at_ = nextTag_;
        }
        if (depth_ > 0) return verdict(MarkupFault::UnendedElement, open_[depth_ - 1]);
        return rootSeen_ ? std::optional(MarkupVerdict{}) : std::nullopt;
    }

private:
    struct Element {
        std::string_view name;
        std::size_t begin = 0;
    };

    static MarkupVerdict verdict(MarkupFault fault, const Element& element)
    {
        return {MarkupFaultAt{fault, element.begin, std::string(element.name)}};
    }

    bool passHead()
    {
        return std::all_of(std::begin(kHead), std::end(kHead),
            [this](std::string_view piece) { return passPiece(piece); });
    }

    /// With the white space behind it.
    bool passPiece(std::string_view piece)
    {
        if (!text_.substr(at_).starts_with(piece)) return false;
        const auto end = at_ + piece.size();
        at_ = std::min(text_.find('<', end), text_.size());
        return isBlank(text_.substr(end, at_ - end));
    }

    bool passStartTag()
    {
        ++at_;
        name_ = takeName();
        if (name_.empty() || (rootSeen_ && depth_ == 0) || !passAttributes()) return false;
        rootSeen_ = true;
        const bool isEmpty = text_[at_] == '/';
        if (isEmpty) ++at_;
        if (text_[at_++] != '>' || depth_ == kMaxDepth) return false;
        if (!isEmpty) open_[depth_++] = {name_, tagBegin_};
        return true;
    }

    bool passAttributes()
    {
        auto* end = names_.begin(); // of those of this tag
        while (isMarkupSpace(text_[at_])) {
            skipSpace();
            if (!beginsName(text_[at_])) return true;
            const auto name = takeName();
            if (end == names_.end() || std::find(names_.begin(), end, name) != end) return false;
            *end++ = name;
            if (!passValue()) return false;
        }
        return true;
    }

    /// The value has no '<' where it ends ahead of the next one.
    bool passValue()
    {
        if (text_[at_] != '=') return false;
        const char quote = text_[at_ + 1];
        if (quote != '"' && quote != '\'') return false;
        at_ = text_.find(quote, at_ + 2) + 1;
        return at_ != 0 && at_ <= nextTag_;
    }

    bool passEndTag()
    {
        at_ += 2;
        name_ = takeName();
        skipSpace();
        return !name_.empty() && text_[at_++] == '>';
    }

    /// False where another element than that of the end tag is open.
    bool close()
    {
        if (depth_ == 0 || open_[depth_ - 1].name != name_) return false;
        --depth_;
        return true;
    }

    std::string_view takeName()
    {
        const auto begin = at_;
        if (!beginsName(text_[at_])) return {};
        while (continuesName(text_[at_]))
            ++at_;
        return text_.substr(begin, at_ - begin);
    }

    void skipSpace()
    {
        while (isMarkupSpace(text_[at_]))
            ++at_;
    }

    std::string_view text_;
    CharacterWalk openings_;
    std::size_t at_ = 0;
    std::size_t tagBegin_ = 0;
    std::size_t nextTag_ = 0; // or the text's end
    std::string_view name_; // of the tag
    std::array<std::string_view, kMaxAttributes> names_;
    std::array<Element, kMaxDepth> open_;
    std::size_t depth_ = 0;
    bool rootSeen_ = false;
};

} // namespace

std::optional<MarkupVerdict> verdictOnPlainMarkup(std::string_view text)
{
    const bool isPlain = isPlainText(text) && text.find("]]>") == kNowhere;
    if (!isPlain || hasBrokenReference(text)) return std::nullopt;
    return PlainMarkup(text).read();
}

bool isPlainText(std::string_view text)
{
    using Byte = unsigned char;
    Byte faults = 0; // all in bytes and without a branch, so that many are looked at at a time
    for (const char character : text) {
        const auto code = static_cast<Byte>(character);
        const Byte space = code == '\t' || code == '\n' || code == '\r' ? 0xFF : 0;
        const Byte visible = code >= 0x20 && code < 0x80 ? 0xFF : 0;
        faults = static_cast<Byte>(faults | static_cast<Byte>(~(space | visible)));
    }
    return faults == 0;
}

} // namespace quillmere
