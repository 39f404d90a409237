#include "document/design_to_wml.h"
#include "document/failure.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

ImageEntry entry(const std::string& displayFile, const std::string& sourceFile)
{
    ImageEntry result;
    result.displayDir = "/T/";
    result.displayFile = displayFile;
    result.sourceFile = sourceFile;
    result.alignment = "top";
    result.heightPx = 7;
    result.widthPx = 5;
    return result;
}

class DesignImageTagsTest : public testing::Test {
protected:
    /// Two areas; the second one holds Bmp0.bmp under another name and with layout.
    DesignImageTagsTest()
    {
        session().deck[0].images = {entry("Bmp0.bmp", "A/b.wbmp"), entry("Bmp1.bmp", "c.wbmp"),
            entry("Bmp1.bmp", "second.wbmp"), {}};
        session().deck[1].images = {entry("Bmp0.bmp", "last.wbmp"), {}};
        session().deck[1].images[0].hasLayout = true;
        session().deck[2].images = {entry("Bmp2.bmp", "spare.wbmp"), {}};
    }
    DocumentSession& session() { return open_.session; }
    std::string wml(std::string text)
    {
        DesignToWml(text, session());
        return text;
    }

private:
    test::ConversionSession open_{2};
};

TEST_F(DesignImageTagsTest, GivesThePictureItsNameBack)
{
    struct Row {
        std::string design;
        std::string wanted;
    };
    const std::vector<Row> rows{
        {R"(<IMG SRC="/t/bmp1.BMP">)", R"(<img src="c.wbmp"></img>)"},
        {R"(<img src="/t/bmp1.bmp" alt="Ein Bild"></img>)",
            R"(<img src="c.wbmp" alt="ein bild"></img>)"},
        {R"(<img src="/t/bmp1.bmp" hspace=2 vspace="1" align=left>)",
            R"(<img src="c.wbmp" vspace="1" hspace="2"></img>)"},
        {R"(<img src="/t/bmp0.bmp" alt=X>)",
            R"(<img src="last.wbmp" alt="x" align="top" height="7" width="5"></img>)"},
        {R"(<img src="/t/bmp2.bmp"><img src="">)", "</img></img>"}, // in the spare record
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.design);
        EXPECT_EQ(wml(row.design), row.wanted);
    }
    session().output = OutputRules(true);
    EXPECT_EQ(wml(R"(<img src="/t/bmp1.bmp" ALT="Ein Bild">)"),
        R"(<img src="c.wbmp" alt="Ein Bild"></img>)");
}

TEST_F(DesignImageTagsTest, KeepsTheSizeThatTheSurfaceShows)
{
    EXPECT_EQ(wml(R"(<IMG src="/t/Bmp0.bmp" style="HEIGHT: 20px; WIDTH: 30px"><IMG )"
                  R"(src="/t/bmp0.bmp">)"),
        R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)"
        R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)");
    for (std::size_t area = 0; area < 2; ++area) {
        EXPECT_EQ(session().deck[area].images[0].heightPx, 20);
        EXPECT_EQ(session().deck[area].images[0].widthPx, 30);
    }
}

TEST_F(DesignImageTagsTest, LeavesTheEntriesWhereItFails)
{
    const std::string sized = R"(<img src="/t/bmp0.bmp" style="height: 20px">)";
    EXPECT_THROW(
        wml(sized + R"(<img src="/t/bmp1.bmp" style="height: 2em; width: 3px">)"), TypeMismatch);
    EXPECT_THROW(wml(sized + R"(<img src="/t/bmp1.bmp" style="height: 2">)"), InvalidArgument);
    EXPECT_THROW(wml(sized + R"(<img src="/t/bmp1.bmp" alt="x>)"), InvalidArgument);
    EXPECT_EQ(session().deck[0].images[0].heightPx, 7);
}

} // namespace
} // namespace quillmere
