#pragma once

#include "document/text/tag_scanner.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// Attributes are found by plain search, so that "align" is found in "valign" as well: the first
// place in the tag where the name stands counts.

namespace quillmere {

/// A part of a text, by the offsets of its first character and behind its last one.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;
    [[nodiscard]] std::string_view in(std::string_view text) const
    {
        return text.substr(begin, end - begin);
    }
};

/// Finds one text, exactly as written, within tags. Tags that overlap are asked from left to
/// right, and then each of their parts is read once. Text and key must outlive the finder.
class TagTextFinder {
public:
    TagTextFinder(std::string_view text, std::string_view key);
    /// The first place at or behind `from` and ahead of `end`; npos where there is none.
    [[nodiscard]] std::size_t find(std::size_t from, std::size_t end);

private:
    std::string_view text_;
    std::string_view key_;
    std::size_t from_ = 0; // the last answer holds from here up to it
    std::size_t end_ = 0;
    std::size_t answer_ = 0;
};

/// Reads one attribute of many tags of a text; the case of the name counts. `key` is the name with
/// `="`. Text and key must outlive the reader.
class AttributeReader {
public:
    AttributeReader(std::string_view text, std::string_view key);

    /// The value of name="value"; nullopt where that is missing. Throws InvalidArgument for a
    /// value without its closing quote.
    [[nodiscard]] std::optional<TextRange> quoted(const Tag& tag);
    /// The same, and nullopt for a value without its closing quote.
    [[nodiscard]] std::optional<TextRange> quotedAndClosed(const Tag& tag);
    /// The value of name="value", or else of name=value, which ends at a blank or with the tag.
    /// Throws as quoted().
    [[nodiscard]] std::optional<TextRange> quotedOrBare(const Tag& tag);
    /// Takes the character behind "name=" for the opening quote, whichever it is. Throws as
    /// quoted().
    [[nodiscard]] std::optional<TextRange> behindName(const Tag& tag);

private:
    [[nodiscard]] std::optional<std::size_t> closingQuote(std::size_t from, const Tag& tag);
    [[nodiscard]] TextRange closed(std::size_t begin, const Tag& tag);

    std::string_view text_;
    std::size_t keyLength_;
    TagTextFinder key_;
    TagTextFinder name_; // with its '=', without the quote
    TagTextFinder quote_;
};

/// The whole number that `value` is, blanks around it or not. Throws TypeMismatch for what is no
/// number and Overflow for what 32 bits cannot hold.
[[nodiscard]] std::int32_t wholeNumber(std::string_view value);

} // namespace quillmere
