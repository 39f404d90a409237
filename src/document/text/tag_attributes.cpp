// Each reader keeps the place that it found last, because tags that are kept are asked again from
// their second '<' on. Held by conversions_literal_test.cpp.

#include "document/text/tag_attributes.h"

#include "document/text/failure.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace quillmere {

TagTextFinder::TagTextFinder(std::string_view text, std::string_view key)
    : text_(text)
    , key_(key)
{
}

std::size_t TagTextFinder::find(std::size_t from, std::size_t end)
{
    const bool known = end == end_ && from >= from_ && from <= answer_;
    if (!known) {
        answer_ = text_.substr(0, end).find(key_, from);
        from_ = from;
        end_ = end;
    }
    return answer_;
}

AttributeReader::AttributeReader(std::string_view text, std::string_view key)
    : text_(text)
    , keyLength_(key.size())
    , key_(text, key)
    , name_(text, key.substr(0, key.size() - 1))
    , quote_(text, "\"")
{
}

std::optional<std::size_t> AttributeReader::closingQuote(std::size_t from, const Tag& tag)
{
    const auto quote = quote_.find(from, tag.end);
    if (quote == npos) return std::nullopt;
    return quote;
}

TextRange AttributeReader::closed(std::size_t begin, const Tag& tag)
{
    const auto end = closingQuote(begin, tag);
    if (!end) throw InvalidArgument();
    return {begin, *end};
}

std::optional<TextRange> AttributeReader::quoted(const Tag& tag)
{
    const auto key = key_.find(tag.begin, tag.end);
    if (key == npos) return std::nullopt;
    return closed(key + keyLength_, tag);
}

std::optional<TextRange> AttributeReader::quotedAndClosed(const Tag& tag)
{
    const auto key = key_.find(tag.begin, tag.end);
    if (key == npos) return std::nullopt;
    const auto end = closingQuote(key + keyLength_, tag);
    if (!end) return std::nullopt;
    return TextRange{key + keyLength_, *end};
}

std::optional<TextRange> AttributeReader::quotedOrBare(const Tag& tag)
{
    if (const auto value = quoted(tag)) return value;
    const auto name = name_.find(tag.begin, tag.end);
    if (name == npos) return std::nullopt;
    const auto begin = name + keyLength_ - 1;
    return TextRange{begin, std::min(text_.substr(0, tag.end).find(' ', begin), tag.end - 1)};
}

std::optional<TextRange> AttributeReader::behindName(const Tag& tag)
{
    const auto name = name_.find(tag.begin, tag.end);
    if (name == npos) return std::nullopt;
    return closed(name + keyLength_, tag);
}

std::int32_t wholeNumber(std::string_view value)
{
    const auto digits = trimBlanks(value);
    const char* const end = digits.data() + digits.size();
    std::int32_t number = 0;
    const auto [behind, error] = std::from_chars(digits.data(), end, number);
    if (error == std::errc::invalid_argument || behind != end) throw TypeMismatch();
    if (error != std::errc()) throw Overflow();
    return number;
}

} // namespace quillmere
