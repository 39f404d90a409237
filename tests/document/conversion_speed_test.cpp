#include "document/design_to_wml.h"
#include "document/failure.h"
#include "document/wml_to_design.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace quillmere {
namespace {

constexpr std::size_t kLength = 30000;
constexpr std::chrono::milliseconds kLimit{100}; // work that grows with the square takes more

std::string repeated(std::string_view part, std::size_t length = kLength)
{
    std::string text;
    while (text.size() + part.size() <= length)
        text.append(part);
    return text;
}

void expectFast(const char* name, const std::function<void()>& convert)
{
    SCOPED_TRACE(name);
    const auto start = std::chrono::steady_clock::now();
    try {
        convert();
    } catch (const RuntimeFailure&) { // an answer as well, as long as it comes in time
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, kLimit);
}

TEST(Conversions, TakeNoLongerForTagsThatAreKept)
{
    const std::string closedFarAway = std::string(kLength / 2, 'x') + R"(">)";
    struct Row {
        const char* name;
        std::string text;
    };
    const std::vector<Row> rows{
        {"openings, never an end", repeated("<")},
        {"openings, one end", repeated("<") + ">"},
        {"links", repeated("<a") + ">"},
        {"links without closing quote",
            repeated("<a", kLength / 2) + R"(href=")" + repeated("x", kLength / 2) + ">"},
        {"a picture's name far away", repeated("<img ", kLength / 2) + R"(src=")" + closedFarAway},
        {"refused pictures", repeated(R"(<img src="a.gif" )") + ">"},
        {"do elements", repeated("<do type") + ">"},
        {"do markers", repeated("<!--do type") + ">"},
        {"tables", repeated("<table ") + ">"},
        {"tags never closed", repeated("<p><b><td>")},
        {"empty pairs", repeated("<u></u>")},
        {"ends without openings", repeated(">")},
    };
    for (const auto& row : rows) {
        test::ConversionSession open(1);
        std::string wml = row.text;
        expectFast(row.name, [&] { WmlToDesign(wml, 0, open.session); });
        std::string design = row.text;
        expectFast(row.name, [&] { DesignToWml(design, open.session); });
    }
}

TEST(Conversions, LookUpPicturesWithoutWalkingThem)
{
    test::ConversionSession open(400);
    std::string text;
    for (std::size_t area = 0; area < 400; ++area) {
        const auto name = "Bmp" + std::to_string(area) + ".bmp";
        open.session.deck[area].images.assign(
            20, ImageEntry{name, "/t/", name, "", 0, 0, 0, 0, "", false});
        text += R"(<img src="/t/)" + name + R"(">)";
    }
    expectFast("one area", [&] { DesignToWml(text, open.session); });
    DisplayCopyIndex pictures(open.session.deck);
    expectFast("many areas", [&] {
        for (std::size_t area = 0; area < 400; ++area) {
            std::string own = R"(<img src="/t/Bmp)" + std::to_string(area) + R"(.bmp">)";
            DesignToWml(own, open.session, pictures);
        }
    });
}

} // namespace
} // namespace quillmere
