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

std::string_view paragraphTag(std::string_view lowerTag)
{
    constexpr std::string_view kPlain = "<p>";
    if (lowerTag == kPlain) return kPlain; // as nearly all are
    for (const auto& alignment : kAlignments) {
        if (lowerTag.find(alignment.word) != npos) return alignment.tag;
    }
    return kPlain;
}

void appendMarker(std::string& result, std::string_view tagBehindOpening)
{
    const auto last = tagBehindOpening.size() - 1;
    result.append(kMarkerBegin).append(tagBehindOpening.substr(0, last));
    result.append("--").append(tagBehindOpening.substr(last));
}

void appendTag(std::string& result, std::string_view marker)
{
    const auto tag = marker.substr(kMarkerBegin.size());
    result += '<';
    if (tag.ends_with(kMarkerEnd))
        result.append(tag.substr(0, tag.size() - kMarkerEnd.size())) += '>';
    else
        result.append(tag);
}

void appendAttribute(std::string& tag, std::string_view key, std::string_view value)
{
    tag.append(" ").append(key).append(value).append("\"");
}

} // namespace quillmere
