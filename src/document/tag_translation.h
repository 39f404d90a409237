#pragma once

#include "document/text/limits.h"
#include "document/text/tag_attributes.h"
#include "document/text/tag_scanner.h"
#include "document/text/text_search.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// What both conversions have in common.

namespace quillmere {

/// What takes a tag's place: "" deletes the tag, nullopt keeps it.
using Replacement = std::optional<std::string>;

/// A copy of `source` in which something else took the place of each tag:
/// `appendReplacement(result, tag)` puts it at the end of `result`, or nothing where the tag is
/// deleted, and is false, with nothing done, where the tag is kept. What was put in is not read
/// again; a tag that is kept is scanned again from its second character, since it may hide a second
/// '<'. Throws Overflow where the text is too long at its begin or after any replacement.
template <typename AppendReplacement>
[[nodiscard]] std::string translateTags(
    std::string_view source, AppendReplacement appendReplacement)
{
    requireAddressable(source);
    std::string result;
    result.reserve(source.size() + source.size() / 8);
    std::size_t copied = 0; // what stands before it is in `result`
    TagScanner tags(source);
    while (const auto tag = tags.next()) {
        result.append(source, copied, tag->begin - copied);
        copied = tag->begin;
        if (!appendReplacement(result, *tag)) {
            tags.resumeAt(tag->begin + 1);
            continue;
        }
        copied = tag->end;
        requireAddressableLength(result.size() + source.size() - copied);
    }
    return result.append(source, copied);
}

/// Puts the replacement at the end of `result`; false for one that keeps the tag.
inline bool append(std::string& result, const Replacement& replacement)
{
    if (replacement) result.append(*replacement);
    return replacement.has_value();
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

/// Puts the marker that stands for a tag at the end of `result`: `<go href="#a"/>` as
/// `<!--go href="#a"/-->`. `tagBehindOpening` is the tag without its '<'.
void appendMarker(std::string& result, std::string_view tagBehindOpening);

/// The same for the tag that a marker stands for. A marker that another '<' stands ahead of loses
/// its first four characters all the same.
void appendTag(std::string& result, std::string_view marker);

/// Puts ` name="value"` behind what `tag` holds so far; `key` is the name with `="`.
void appendAttribute(std::string& tag, std::string_view key, std::string_view value);

} // namespace quillmere
