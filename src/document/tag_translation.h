#pragma once

#include "document/limits.h"
#include "document/tag_attributes.h"
#include "document/tag_scanner.h"
#include "document/text_search.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// What both conversions have in common.

namespace quillmere {

/// What takes a tag's place: "" deletes the tag, nullopt keeps it.
using Replacement = std::optional<std::string>;

/// A copy of `source` in which `replacementFor(tag)` took the place of each tag. What was put in is
/// not read again; a tag that is kept is scanned again from its second character, since it may hide
/// a second '<'. Throws Overflow where the text is too long at its begin or after any replacement.
template <typename ReplacementFor>
[[nodiscard]] std::string translateTags(std::string_view source, ReplacementFor replacementFor)
{
    requireAddressable(source);
    std::string result;
    result.reserve(source.size() + source.size() / 8);
    std::size_t copied = 0; // what stands before it is in `result`
    std::size_t length = source.size(); // of the text as changed so far
    TagScanner tags(source);
    while (const auto tag = tags.next()) {
        const Replacement replacement = replacementFor(*tag);
        if (!replacement) {
            tags.resumeAt(tag->begin + 1);
            continue;
        }
        length = length + replacement->size() - (tag->end - tag->begin);
        requireAddressableLength(length);
        result.append(source, copied, tag->begin - copied).append(*replacement);
        copied = tag->end;
    }
    return result.append(source, copied);
}

/// A text and its copy in lower case: tags are told by the one and their values mostly taken from
/// the other.
struct CasedText {
    std::string_view source;
    std::string_view lower;
};

/// The tag in lower case but for the part `kept`.
[[nodiscard]] std::string lowerBut(const CasedText& text, const Tag& tag, const TextRange& kept);

/// The start tag of a paragraph that has the alignment of `lowerTag` and nothing else. A word that
/// names a side counts wherever it stands: `<p id="leftside">` is aligned to the left.
[[nodiscard]] std::string_view paragraphTag(std::string_view lowerTag);

/// The marker that stands for a tag: `<go href="#a"/>` as `<!--go href="#a"/-->`.
/// `tagBehindOpening` is the tag without its '<'.
[[nodiscard]] std::string asMarker(std::string_view tagBehindOpening);

/// The tag that a marker stands for. A marker that another '<' stands ahead of loses its first four
/// characters all the same.
[[nodiscard]] std::string asTag(std::string_view marker);

/// Puts ` name="value"` behind what `tag` holds so far; `key` is the name with `="`.
void appendAttribute(std::string& tag, std::string_view key, std::string_view value);

} // namespace quillmere
