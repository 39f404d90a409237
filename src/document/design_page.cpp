// Held by design_page_test.cpp.

#include "document/design_page.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace quillmere {
namespace {

constexpr int kBodyLine = 4; // of the head; made for the device
constexpr std::array<std::string_view, kHeadLineCount> kHeadLines{
    "<HTML>", "<HEAD>", "</HEAD>", "", "<P>"};
constexpr std::array<std::string_view, kTailLineCount> kTailLines{"</P>", "</BODY>", "</HTML>"};

constexpr int kDefaultFontTwips = 180;
constexpr int kTwipsPerPoint = 20;
constexpr std::string_view kDefaultFamily = "Arial";
constexpr std::size_t kFamilyFieldLength = 150;

PageStyle* deviceOf(const DocumentSession& session, int surfaceKind)
{
    const auto index = static_cast<std::size_t>(surfaceKind);
    return index < session.devices.size() ? session.devices.at(index) : nullptr;
}

// The digits stand in the order of the number, which has blue in front, though a page reads
// red there: 2391815 gives "247F07". So it has always been written.
std::string colourDigits(std::int32_t colour)
{
    std::array<char, 16> digits{};
    const int length
        = std::snprintf(digits.data(), digits.size(), "%X", static_cast<unsigned int>(colour));
    return {digits.data(), static_cast<std::size_t>(length)};
}

/// The nearest whole number, and of two equally near ones the even one. In whole numbers, so that
/// the program needs no library of mathematics.
int roundedQuotient(int dividend, int divisor)
{
    const int quotient = dividend / divisor;
    const int twiceRest = 2 * std::abs(dividend % divisor);
    const bool isTie = twiceRest == std::abs(divisor);
    if (twiceRest < std::abs(divisor) || (isTie && quotient % 2 == 0)) return quotient;
    return quotient + ((dividend < 0) == (divisor < 0) ? 1 : -1);
}

// Two attributes of the same name and a size without a unit: the page lies on the surface only.
std::string bodyLine(std::int32_t colour, int fontTwips, int twipsPerPixel, std::string_view family)
{
    const int size = roundedQuotient(fontTwips, twipsPerPixel);
    std::string line = R"(<BODY LINK="#0000ff" VLINK="#800080" BGCOLOR="#)";
    line.append(colourDigits(colour)).append(R"(" STYLE="font-size:)");
    line.append(std::to_string(size)).append(R"(" STYLE="font-family:)");
    return line.append(family).append("\">");
}

std::string bodyLine(const DocumentSession& session, int surfaceKind)
{
    auto* const device = deviceOf(session, surfaceKind);
    if (device == nullptr)
        return bodyLine(
            kDefaultPageColour, kDefaultFontTwips, session.twipsPerPixel, kDefaultFamily);
    const std::string family(trimBlanks(device->fontFamily));
    device->fontFamily = family;
    device->fontFamily.resize(kFamilyFieldLength, ' ');
    return bodyLine(
        device->backColour, device->fontSizePt * kTwipsPerPoint, session.twipsPerPixel, family);
}

} // namespace

std::string DesignPageLine(
    DocumentSession& session, int surfaceKind, PageSection section, int index)
{
    const auto row = static_cast<std::size_t>(index - 1); // 0 and less are beyond all rows
    if (section == PageSection::Tail)
        return std::string(row < kTailLines.size() ? kTailLines.at(row) : "");
    if (section != PageSection::Head || row >= kHeadLines.size()) return {};
    return index == kBodyLine ? bodyLine(session, surfaceKind) : std::string(kHeadLines.at(row));
}

std::string designPageLines(
    DocumentSession& session, int surfaceKind, PageSection section, std::string_view skipped)
{
    const int count = section == PageSection::Head ? kHeadLineCount : kTailLineCount;
    std::string lines;
    for (int index = 1; index <= count; ++index) {
        const auto line = DesignPageLine(session, surfaceKind, section, index);
        if (!skipped.empty() && findIgnoringCase(line, skipped) != npos) continue;
        lines.append(line).append("\r\n");
    }
    return lines;
}

} // namespace quillmere
