// The pieces that both conversions write. Held by the tests of the two conversions.

#include "document/tag_translation.h"

#include <array>

namespace quillmere {

namespace {

struct Alignment {
    std::string_view word;
    std::string_view tag;
};

constexpr std::array<Alignment, 3> kAlignments{{
    {"left", "<p align=\"left\">"}, // the first match decides
    {"center", "<p align=\"center\">"},
    {"right", "<p align=\"right\">"},
}};

constexpr std::string_view kMarkerBegin = "<!--";
constexpr std::string_view kMarkerEnd = "-->";

} // namespace

std::string lowerBut(const CasedText& text, const Tag& tag, const TextRange& kept)
{
    std::string result(tag.in(text.lower));
    result.replace(kept.begin - tag.begin, kept.end - kept.begin, kept.in(text.source));
    return result;
}

std::string_view paragraphTag(LowerCaseTags& lower, const Tag& tag)
{
    constexpr std::string_view kPlain = "<p>";
    if (tag.end - tag.begin == kPlain.size()) return kPlain; // as nearly all are
    const auto words = lower.tag(tag);
    for (const auto& alignment : kAlignments) {
        if (words.find(alignment.word) != std::string_view::npos) return alignment.tag;
    }
    return kPlain;
}

void replaceByLink(Rewriter& result, const Tag& tag, std::string_view target)
{
    result.drop(tag.begin, tag.end);
    result.append("<a");
    appendAttribute(result, kHrefKey, target);
    result.append(">");
}

void appendMarker(Rewriter& result, std::string_view tagBehindOpening)
{
    const auto last = tagBehindOpening.size() - 1;
    result.append(kMarkerBegin);
    result.append(tagBehindOpening.substr(0, last));
    result.append(kMarkerEnd);
}

void appendTag(Rewriter& result, std::string_view marker)
{
    const auto tag = marker.substr(kMarkerBegin.size());
    const bool isWhole = tag.ends_with(kMarkerEnd);
    result.append("<");
    result.append(tag.substr(0, tag.size() - (isWhole ? kMarkerEnd.size() : 0)));
    if (isWhole) result.append(">");
}

void appendAttribute(Rewriter& result, std::string_view key, std::string_view value)
{
    result.append(" ");
    result.append(key);
    result.append(value);
    result.append("\"");
}

} // namespace quillmere
