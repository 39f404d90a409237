#include "document/failure.h"
#include "document/wml_to_design.h"
#include "support/conversion_session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

/// Converts `text` in the first of two areas.
std::string design(test::ConversionSession& open, std::string text)
{
    WmlToDesign(text, 0, open.session);
    return text;
}

/// The picture that was registered last; the entry behind it is a spare.
const ImageEntry& lastEntry(const test::ConversionSession& open)
{
    const auto& images = open.session.deck[0].images;
    return images.at(images.size() - 2);
}

TEST(WmlImageTags, WritesTheAttributesOfTheSurface)
{
    struct Row {
        std::string attributes;
        std::string wanted;
        bool hasLayout;
    };
    const std::vector<Row> rows{
        {"", "", false},
        {R"( ALT="Ein Bild" align="Middle")", R"( alt="Ein Bild" align="middle")", false},
        {R"( width="9")", "", false},
        {R"( height="10")", R"( style="height: 10px; width: 5px")", true}, // 5: the picture's width
        {R"( width="9" height=" 10")", R"( style="height:  10px; width: 9px")", true},
        {R"( hspace="2%" vspace="1")", R"( vspace="1" hspace="2%")", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.attributes);
        test::ConversionSession open(1);
        EXPECT_EQ(design(open, R"(<IMG src=" Bild.WBMP ")" + row.attributes + "/>x"),
            R"(<img src="/t/Bmp0.bmp")" + row.wanted + "></img>x");
        EXPECT_EQ(open.copies.lastPath, "/decks/Bild.WBMP");
        EXPECT_EQ(lastEntry(open).hasLayout, row.hasLayout);
    }
}

TEST(WmlImageTags, StoresLayoutInTheEntry)
{
    test::ConversionSession open(1);
    design(open,
        R"(<img src="a.wbmp" alt="Wort"/><img src="b.wbmp" align=" Top " height="3" )"
        R"(width="4"/>)");
    const auto pictures = open.session.deck[0].images.size();
    EXPECT_EQ(open.copies.lastText, "");
    const auto& entry = lastEntry(open);
    EXPECT_EQ(entry.alignment, "top");
    EXPECT_EQ(entry.heightPx, 3);
    EXPECT_EQ(entry.widthPx, 4);

    design(open, R"(<img src="B.wbmp" height="8"/>)"); // the stored width goes with it
    EXPECT_EQ(design(open, R"(<img src="b.wbmp" height="8"/>)"),
        R"(<img src="/t/Bmp1.bmp" style="height: 8px; width: 4px"></img>)");
    design(open, R"(<img src="b.wbmp"/>)");
    EXPECT_FALSE(lastEntry(open).hasLayout);
    EXPECT_EQ(lastEntry(open).heightPx, 8);
    EXPECT_EQ(open.session.deck[0].images.size(), pictures);
}

TEST(WmlImageTags, KeepsTagsThatNameNoPicture)
{
    test::ConversionSession open(1);
    for (const std::string text : {R"(<img alt="x"/>)", "<img src=x.wbmp/>",
             R"(<img src="x.gif"/>)", R"(<img <img src="x.gif" <img>)"})
        EXPECT_EQ(design(open, text), text);
    EXPECT_EQ(design(open, R"(<img src="x.gif" <img src="x.wbmp">)"),
        R"(<img src="x.gif" <img src="/t/Bmp0.bmp"></img>)");
}

TEST(WmlImageTags, FailsOnSizesThatAreNone)
{
    test::ConversionSession open(1);
    EXPECT_THROW(design(open, R"(<img src="a.wbmp" height="50%"/>)"), TypeMismatch);
    EXPECT_THROW(design(open, R"(<img src="a.wbmp" height="5" width=""/>)"), TypeMismatch);
    EXPECT_THROW(design(open, R"(<img src="a.wbmp" height="5/>)"), InvalidArgument);
    EXPECT_NO_THROW(design(open, R"(<img src="a.wbmp" width="50%"/>)")); // without a height unread
}

} // namespace
} // namespace quillmere
