// Each search for a closing quote ends at the next quote of its kind at the latest, so that a
// thousand values without it cost no thousand searches. Held by markup_document_test.cpp.

#include "document/changes/markup_tag_reader.h"

#include <algorithm>

namespace quillmere {

namespace {

using Kind = MarkupToken::Kind;
constexpr auto kNowhere = std::string_view::npos;

} // namespace

MarkupTagReader::MarkupTagReader(MarkupCursor& in)
    : in_(in)
{
}

void MarkupTagReader::readTag()
{
    const auto begin = in_.at;
    Kind kind = in_.peek(1) == '/' ? Kind::End : Kind::Start;
    in_.at += kind == Kind::End ? 2 : 1;
    const auto name = in_.takeName();
    if (name.empty()) in_.note(MarkupFault::BadTag, begin);
    const auto first = in_.document.attributes.size();
    while (readAttribute(kind, begin, name)) { }
    if (in_.peek() == '/') { // readAttribute stopped at "/>"
        ++in_.at;
        kind = Kind::Empty;
    }
    if (in_.peek() == '>') {
        ++in_.at;
    } else {
        in_.note(MarkupFault::UnendedTag, begin, name);
    }
    in_.document.tokens.push_back(
        {kind, begin, in_.at, name, {}, first, in_.document.attributes.size() - first});
    checkAttributes(in_.document.tokens.back());
}

bool MarkupTagReader::readAttribute(Kind kind, std::size_t tagBegin, std::string_view tag)
{
    const auto behindLast = in_.at;
    in_.skipSpace();
    if (in_.atEnd() || in_.peek() == '>' || in_.peek() == '<') return false;
    if (kind == Kind::Start && in_.peek() == '/' && in_.peek(1) == '>') return false;
    const bool isName = in_.beginsNameAt(in_.at);
    if (!isName || kind == Kind::End) in_.note(MarkupFault::BadTag, tagBegin, tag);
    if (!isName) {
        ++in_.at;
        return true;
    }
    if (in_.at == behindLast) in_.note(MarkupFault::MissingBlank, in_.at, tag);
    MarkupAttribute attribute{{}, {}, in_.at};
    attribute.name = in_.takeName();
    attribute.value = takeValue(attribute);
    in_.document.attributes.push_back(attribute);
    return true;
}

std::string_view MarkupTagReader::takeValue(const MarkupAttribute& attribute)
{
    const auto behindName = in_.at;
    in_.skipSpace();
    if (in_.peek() != '=') {
        in_.note(MarkupFault::MissingValue, attribute.offset, attribute.name);
        in_.at = behindName; // the blank parts it from the next attribute
        return {};
    }
    ++in_.at;
    in_.skipSpace();
    const char quote = in_.peek();
    return quote == '"' || quote == '\'' ? takeQuoted(quote, attribute) : takeBare(attribute);
}

std::string_view MarkupTagReader::takeBare(const MarkupAttribute& attribute)
{
    in_.note(MarkupFault::UnquotedValue, attribute.offset, attribute.name);
    const auto begin = in_.at;
    while (!in_.atEnd() && !isMarkupSpace(in_.peek()) && in_.peek() != '>' && in_.peek() != '<') {
        if (in_.peek() == '/' && in_.peek(1) == '>') break;
        ++in_.at;
    }
    return in_.text.substr(begin, in_.at - begin);
}

std::string_view MarkupTagReader::takeQuoted(char quote, const MarkupAttribute& attribute)
{
    const auto begin = ++in_.at;
    const char stops[] = {quote, '<', '\0'};
    auto stop = std::min(in_.text.find_first_of(stops, begin), in_.text.size());
    const auto tagEnd = in_.text.substr(begin, stop - begin).find('>');
    const bool closed = stop < in_.text.size() && in_.text[stop] == quote;
    const auto later = closed || tagEnd != kNowhere ? kNowhere : quoteInTag(quote, stop);
    if (!closed && later == kNowhere) {
        in_.note(MarkupFault::UnendedValue, attribute.offset, attribute.name);
        in_.at = tagEnd == kNowhere ? stop : begin + tagEnd;
        return in_.text.substr(begin, in_.at - begin);
    }
    if (!closed) {
        in_.note(MarkupFault::LessInValue, attribute.offset, attribute.name);
        stop = later;
    }
    in_.at = stop + 1;
    return in_.text.substr(begin, stop - begin);
}

/// The next quote, if no '>' stands ahead of it: behind that it is one of another tag.
std::size_t MarkupTagReader::quoteInTag(char quote, std::size_t from) const
{
    const char stops[] = {quote, '>', '\0'};
    const auto stop = in_.text.find_first_of(stops, from);
    return stop != kNowhere && in_.text[stop] == quote ? stop : kNowhere;
}

void MarkupTagReader::checkAttributes(const MarkupToken& token)
{
    if (token.attributeCount < 2 || in_.document.firstFault) return;
    names_.clear();
    for (const auto& attribute : in_.document.attributesOf(token))
        names_.push_back(attribute.name);
    std::sort(names_.begin(), names_.end());
    const auto twin = std::adjacent_find(names_.begin(), names_.end());
    if (twin != names_.end()) in_.note(MarkupFault::DoubleAttribute, token.begin, *twin);
}

} // namespace quillmere
