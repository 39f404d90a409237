#pragma once

#include "document/text/limits.h"
#include "document/text/tag_attributes.h"
#include "document/text/tag_scanner.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// What both conversions have in common.

namespace quillmere {

/// Puts something else in the place of each tag of `text`. `replace(result, tag)` drops the tag and
/// appends what it wants to, or keeps it: it is false where the tag is to be scanned again from its
/// second character, since it may hide a second '<'. What was put in is not read again. Throws
/// Overflow, with the text unchanged, where it is too long at its begin or after any replacement.
template <typename Replace> void translateTags(std::string& text, Replace replace)
{
    requireAddressable(text);
    Rewriter result(text);
    TagScanner tags(text);
    while (const auto tag = tags.next()) {
        if (replace(result, *tag))
            requireAddressableLength(result.length());
        else
            tags.resumeAt(tag->begin + 1);
    }
    if (!result.isUnchanged()) text = result.take();
}

/// The lower case of a text: tags are told by it and their values mostly taken from it. Only what
/// was asked for is there, at the same offsets. The text must outlive it.
class LowerCaseTags {
public:
    explicit LowerCaseTags(std::string_view source)
        : source_(source)
        , lower_(source.size(), '\0')
    {
    }
    LowerCaseTags(const LowerCaseTags&) = delete;
    LowerCaseTags& operator=(const LowerCaseTags&) = delete;
    LowerCaseTags(LowerCaseTags&&) = delete;
    LowerCaseTags& operator=(LowerCaseTags&&) = delete;
    ~LowerCaseTags() = default;

    /// All places; only those of the tags that were asked for are filled.
    [[nodiscard]] std::string_view all() const { return lower_; }
    /// The tag in lower case. Tags are asked for from left to right.
    std::string_view tag(const Tag& tag)
    {
        if (tag.end != end_) { // else it is a part of the last one
            end_ = tag.end;
            lowerCaseInto(lower_.data() + tag.begin, tag.in(source_));
        }
        return tag.in(lower_);
    }

private:
    std::string_view source_;
    std::string lower_;
    std::size_t end_ = 0;
};

/// A text and its copy in lower case, which holds the tag that is looked at.
struct CasedText {
    std::string_view source;
    std::string_view lower;
};

/// The tag in lower case but for the part `kept`.
[[nodiscard]] std::string lowerBut(const CasedText& text, const Tag& tag, const TextRange& kept);

/// The start tag of a paragraph that has the alignment of `tag` and nothing else. A word that names
/// a side counts wherever it stands: `<p id="leftside">` is aligned to the left.
[[nodiscard]] std::string_view paragraphTag(LowerCaseTags& lower, const Tag& tag);

/// Puts `text`, which is a constant, in the place of the tag.
inline void replaceTag(
    Rewriter& result, std::string_view source, const Tag& tag, std::string_view text)
{
    if (tag.in(source) == text) return; // as most are
    result.drop(tag.begin, tag.end);
    result.append(text);
}

inline constexpr std::string_view kHrefKey = "href=\"";

/// Puts a link to `target` with no other attribute in the place of the tag.
void replaceByLink(Rewriter& result, const Tag& tag, std::string_view target);

/// Puts the marker that stands for a tag at the end of `result`: `<go href="#a"/>` as
/// `<!--go href="#a"/-->`. `tagBehindOpening` is the tag without its '<'.
void appendMarker(Rewriter& result, std::string_view tagBehindOpening);

/// The same for the tag that a marker stands for. A marker that another '<' stands ahead of loses
/// its first four characters all the same.
void appendTag(Rewriter& result, std::string_view marker);

/// Puts ` name="value"` behind what `result` holds so far; `key` is the name with `="`.
void appendAttribute(Rewriter& result, std::string_view key, std::string_view value);

} // namespace quillmere
