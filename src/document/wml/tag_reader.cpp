// A value ends at its quote. Where a '<' comes first, the quote counts only if no '>' stands ahead
// of it, else it belongs to a later tag: `<a href="x>text</a> <a href="y">`. Each search for a
// quote ends at the next '<' or at the next quote of that kind, so that none is passed over often.
// Held by tests/document/wml/wml_token_test.cpp.

#include "document/wml/tag_reader.h"

#include "document/text/windows1252.h"
#include "document/wml/copied_characters.h"
#include "document/wml/wml_characters.h"

#include <algorithm>

namespace quillmere::wml {

namespace {

constexpr auto kNowhere = std::string_view::npos;

/// Whether "/>" behind a value without closing quote is the tag's end and not the value's.
bool endsWithSlashMostly(WmlElement element)
{
    return ruleOf(element).isEmpty || element == WmlElement::Go;
}

} // namespace

TagReader::TagReader(std::string_view text, std::size_t begin)
    : text_(text)
    , at_(begin + 1)
{
    isEnd_ = text[at_] == '/';
    if (isEnd_) {
        const auto slash = at_++;
        skipSpace();
        isFaulty_ = at_ != slash + 1;
    }
    name_ = takeName();
    element_ = wmlElement(name_);
    isFaulty_ = isFaulty_ || name_.empty();
    nameKinds_ = 0;
    for (const char character : name_)
        nameKinds_ |= kindOf(character);
}

bool TagReader::needsLook() const
{
    return (nameKinds_ & (UpperCase | BeyondAscii)) != 0 || (valueKinds_ & kSuspicious) != 0
        || attributes_ > names_.size();
}

void TagReader::skipSpace()
{
    while (at_ < text_.size() && is(text_[at_], Space))
        ++at_;
}

std::string_view TagReader::takeName()
{
    const auto begin = at_;
    while (at_ < text_.size() && is(text_[at_], ContinuesName) && hardBlankAt(text_, at_) == 0)
        ++at_;
    return text_.substr(begin, at_ - begin);
}

std::optional<WmlAttribute> TagReader::next()
{
    const auto behindLast = at_;
    if (!findAttribute()) return std::nullopt;
    WmlAttribute attribute;
    const auto begin = at_;
    attribute.name = takeName();
    takeValue(attribute);
    if (!attribute.hasValue && isText()) {
        at_ = behindLast;
        return std::nullopt;
    }
    noteName(attribute.name);
    attribute.source = text_.substr(begin, at_ - begin);
    return attribute;
}

/// Whether the tag has no '>', so that a name alone is rather a word behind it.
bool TagReader::isText()
{
    if (bracket_ < at_) bracket_ = nextBracket();
    return bracket_ == text_.size() || text_[bracket_] == '<';
}

/// That of a value is none: `<option selected title="1<2">`.
std::size_t TagReader::nextBracket() const
{
    auto at = text_.find_first_of("<>=", at_);
    while (at != kNowhere && text_[at] == '=')
        at = text_.find_first_of("<>=", behindValue(at));
    return std::min(at, text_.size());
}

/// Behind the closing quote of the value that a '=' begins; behind the '=' where there is none.
std::size_t TagReader::behindValue(std::size_t equals) const
{
    auto begin = equals + 1;
    while (begin < text_.size() && is(text_[begin], Space))
        ++begin;
    if (begin == text_.size() || (text_[begin] != '"' && text_[begin] != '\'')) return equals + 1;
    const char stops[] = {text_[begin], '>', '<', '\0'};
    auto end = text_.find_first_of(stops, begin + 1);
    bool mayPassScript = true; // ahead of another '<', as takeQuotedValue() does
    while (end != kNowhere && text_[end] == '<') {
        const auto script = mayPassScript ? serverCodeAt(text_, end) : 0;
        mayPassScript = script != 0;
        end = text_.find_first_of(stops, end + std::max<std::size_t>(script, 1));
    }
    return end != kNowhere && text_[end] == text_[begin] ? end + 1 : equals + 1;
}

/// Goes to the next attribute; false where the tag ends ahead of it.
bool TagReader::findAttribute()
{
    while (true) {
        const auto behindLast = at_;
        skipSpace();
        if (endsHere(behindLast)) return false;
        const auto blank = hardBlankAt(text_, at_);
        if (blank == 0 && is(text_[at_], BeginsName)) {
            isFaulty_ = isFaulty_ || at_ == behindLast || isEnd_;
            return true;
        }
        isFaulty_ = true;
        at_ += blank == 0 ? 1 : blank;
    }
}

bool TagReader::endsHere(std::size_t behindLast)
{
    if (at_ >= text_.size() || text_[at_] == '<') {
        isFaulty_ = true;
        at_ = behindLast; // white space behind it is text
        return true;
    }
    if (text_[at_] == '/') return endsWithSlash();
    if (text_[at_] != '>') return false;
    ++at_;
    return true;
}

bool TagReader::endsWithSlash()
{
    auto behind = at_ + 1;
    while (behind < text_.size() && is(text_[behind], Space))
        ++behind;
    if (behind >= text_.size() || text_[behind] != '>') return false;
    isFaulty_ = isFaulty_ || isEnd_ || behind != at_ + 1;
    isEmpty_ = true;
    at_ = behind + 1;
    return true;
}

void TagReader::noteName(std::string_view name)
{
    for (const char character : name)
        nameKinds_ |= kindOf(character);
    hasId_ = hasId_ || (name.size() == 2 && equalIgnoringCase(name, "id"));
    const auto kept = std::min(attributes_, names_.size());
    const auto* const end = names_.cbegin() + kept;
    isFaulty_ = isFaulty_ || std::find(names_.cbegin(), end, name) != end;
    if (kept < names_.size()) names_.at(kept) = name;
    ++attributes_;
}

void TagReader::takeValue(WmlAttribute& attribute)
{
    const auto behindName = at_;
    skipSpace();
    if (at_ >= text_.size() || text_[at_] != '=') {
        isFaulty_ = true;
        attribute.hasValue = false;
        at_ = behindName; // the blank parts it from the next attribute
        return;
    }
    ++at_;
    skipSpace();
    const bool isQuoted = at_ < text_.size() && (text_[at_] == '"' || text_[at_] == '\'');
    if (isQuoted) return takeQuotedValue(attribute);
    takeBareValue(attribute);
}

void TagReader::takeBareValue(WmlAttribute& attribute)
{
    isFaulty_ = true;
    if (const auto curly = curlyValueAt(text_, at_); curly.length != 0) {
        attribute.value = curly.value;
        at_ += curly.length;
        return;
    }
    const auto begin = at_;
    for (; at_ < text_.size() && !is(text_[at_], Space); ++at_) {
        const char character = text_[at_];
        if (character == '>' || character == '<') break;
        if (character == '/' && at_ + 1 < text_.size() && text_[at_ + 1] == '>') break;
        valueKinds_ |= kindOf(character);
    }
    attribute.value = text_.substr(begin, at_ - begin);
}

void TagReader::takeQuotedValue(WmlAttribute& attribute)
{
    attribute.quote = text_[at_];
    const auto begin = ++at_;
    auto tagEnd = kNowhere;
    for (; at_ < text_.size() && text_[at_] != attribute.quote; ++at_) {
        if (text_[at_] == '>' && tagEnd == kNowhere) tagEnd = at_;
        if (text_[at_] == '<' && (tagEnd != kNowhere || !passServerCode())) break;
        valueKinds_ |= kindOf(text_[at_]);
    }
    auto end = at_;
    if (end < text_.size() && text_[end] == '<' && tagEnd == kNowhere) {
        const char stops[] = {attribute.quote, '>', '\0'};
        const auto stop = text_.find_first_of(stops, end);
        if (stop != kNowhere && text_[stop] == attribute.quote) end = stop;
        isFaulty_ = true;
    }
    if (end >= text_.size() || text_[end] != attribute.quote)
        return takeUnendedValue(attribute, begin, std::min(tagEnd, end));
    attribute.value = text_.substr(begin, end - begin);
    at_ = end + 1;
}

/// Goes to the last character of a script that begins here.
bool TagReader::passServerCode()
{
    const auto length = serverCodeAt(text_, at_);
    if (length == 0) return false;
    at_ += length - 1;
    isFaulty_ = true;
    return true;
}

void TagReader::takeUnendedValue(WmlAttribute& attribute, std::size_t begin, std::size_t end)
{
    isFaulty_ = true;
    attribute.quote = '\0';
    const bool hasSlash = end > begin && end < text_.size() && text_[end] == '>'
        && text_[end - 1] == '/' && endsWithSlashMostly(element_);
    if (hasSlash) --end;
    while (end > begin && is(text_[end - 1], Space))
        --end;
    attribute.value = text_.substr(begin, end - begin);
    at_ = end;
}

} // namespace quillmere::wml
