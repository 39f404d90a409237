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

std::string asMarker(std::string_view tagBehindOpening)
{
    std::string marker(kMarkerBegin);
    marker.append(tagBehindOpening);
    marker.insert(marker.size() - 1, "--");
    return marker;
}

std::string asTag(std::string_view marker)
{
    std::string tag("<");
    tag.append(marker.substr(kMarkerBegin.size()));
    if (tag.ends_with(kMarkerEnd)) tag.erase(tag.size() - kMarkerEnd.size(), 2);
    return tag;
}

void appendAttribute(std::string& tag, std::string_view key, std::string_view value)
{
    tag.append(" ").append(key).append(value).append("\"");
}

} // namespace quillmere
