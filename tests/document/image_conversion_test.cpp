#include "document/design_to_wml.h"
#include "document/failure.h"
#include "document/wml_to_design.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

std::string design(test::SmallDeck& deck, std::string text)
{
    WmlToDesign(text, 0, deck.session);
    return text;
}

std::string wml(test::SmallDeck& deck, std::string text)
{
    DesignToWml(text, deck.session);
    return text;
}

/// The picture that was registered last; the entry behind it is a spare.
const ImageEntry& lastEntry(const test::SmallDeck& deck)
{
    const auto& images = deck.session.deck[0].images;
    return images.at(images.size() - 2);
}

TEST(ImagesToDesign, GetTheAttributesOfTheSurface)
{
    const struct {
        std::string attributes;
        std::string wanted;
        bool hasLayout;
    } rows[] = {
        {"", "", false},
        {R"( ALT="Ein Bild" align="Middle")", R"( alt="Ein Bild" align="middle")", false},
        {R"( width="9%")", "", false}, // not looked at without a height
        {R"( height="10")", R"( style="height: 10px; width: 5px")", true}, // 5: the picture's width
        {R"( width="9" height=" 10")", R"( style="height:  10px; width: 9px")", true},
        {R"( hspace="2%" vspace="1")", R"( vspace="1" hspace="2%")", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.attributes);
        test::SmallDeck deck(1);
        EXPECT_EQ(design(deck, R"(<IMG src=" Bild.WBMP ")" + row.attributes + "/>x"),
            R"(<img src="Bmp0.bmp")" + row.wanted + "></img>x");
        EXPECT_TRUE(deck.copies.drawn.at(0).starts_with("/decks/Bild.WBMP|"));
        EXPECT_EQ(lastEntry(deck).hasLayout, row.hasLayout);
    }
}

TEST(ImagesToDesign, KeepTheirLayoutInTheEntryAndStayWithoutAPicture)
{
    test::SmallDeck deck(1);
    design(deck, R"(<img src="a.wbmp"/><img src="b.wbmp" align=" Top " height="3" width="4"/>)");
    const auto pictures = deck.session.deck[0].images.size();
    EXPECT_EQ(lastEntry(deck).alignment, "top");
    EXPECT_EQ(lastEntry(deck).heightPx, 3);
    design(deck, R"(<img src="B.wbmp" height="8"/>)"); // the stored width goes with it
    EXPECT_EQ(design(deck, R"(<img src="b.wbmp" height="8"/>)"),
        R"(<img src="Bmp1.bmp" style="height: 8px; width: 4px"></img>)");
    design(deck, R"(<img src="b.wbmp"/>)");
    EXPECT_FALSE(lastEntry(deck).hasLayout);
    EXPECT_EQ(deck.session.deck[0].images.size(), pictures);

    for (const std::string text : {R"(<img alt="x"/>)", "<img src=x.wbmp/>",
             R"(<img src="x.gif"/>)", R"(<img <img src="x.gif" <img>)"})
        EXPECT_EQ(design(deck, text), text);
    for (const char* bad : {R"(height="50%")", R"(height="5" width="")"})
        EXPECT_THROW(design(deck, std::string("<img src=\"a.wbmp\" ") + bad + "/>"), TypeMismatch);
}

class ImagesToWml : public testing::Test {
protected:
    /// The second of the two areas holds Bmp0.bmp under another name and with layout.
    ImagesToWml()
    {
        areas()[0].images
            = {entry("Bmp0.bmp", "A/b.wbmp"), entry("Bmp1.bmp", "c.wbmp"), entry("", "")};
        areas()[1].images = {entry("Bmp0.bmp", "last.wbmp"), {}};
        areas()[1].images[0].hasLayout = true;
        areas()[2].images = {entry("Bmp2.bmp", "spare.wbmp"), {}};
    }
    Deck& areas() { return deck.session.deck; }
    static ImageEntry entry(const std::string& displayFile, const std::string& sourceFile)
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
    test::SmallDeck deck{2};
};

TEST_F(ImagesToWml, GetTheirNamesBack)
{
    const char* const rows[][2] = {
        {R"(<IMG SRC="/t/bmp1.BMP">)", R"(<img src="c.wbmp"></img>)"},
        {R"(<img src="/t/bmp1.bmp" alt="Ein Bild"></img>)",
            R"(<img src="c.wbmp" alt="ein bild"></img>)"},
        {R"(<img src="/t/bmp1.bmp" hspace=2 vspace="1" align=left>)",
            R"(<img src="c.wbmp" vspace="1" hspace="2"></img>)"},
        {R"(<img src="/t/bmp0.bmp" alt=X>)",
            R"(<img src="last.wbmp" alt="x" align="top" height="7" width="5"></img>)"},
        {R"(<img src="/t/bmp2.bmp"><img src="">)", "</img></img>"}, // in the spare record
        {R"(<img src="/t/Bmp0.bmp" style="HEIGHT: 20px; WIDTH: 30px"><IMG src="/t/bmp0.bmp">)",
            R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)"
            R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(wml(deck, row[0]), row[1]) << row[0];
    EXPECT_EQ(areas()[0].images[0].heightPx, 20);
    EXPECT_EQ(areas()[1].images[0].widthPx, 30);
    deck.session.output = OutputRules(true);
    EXPECT_EQ(wml(deck, R"(<img src="/t/bmp1.bmp" ALT="Ein Bild">)"),
        R"(<img src="c.wbmp" alt="Ein Bild"></img>)");
}

TEST_F(ImagesToWml, LeaveTheEntriesWhereItFails)
{
    const std::string sized = R"(<img src="/t/bmp0.bmp" style="height: 20px">)";
    EXPECT_THROW(wml(deck, sized + R"(<img src="/t/bmp1.bmp" style="height: 2em; width: 3px">)"),
        TypeMismatch);
    EXPECT_THROW(
        wml(deck, sized + R"(<img src="/t/bmp1.bmp" style="height: 2">)"), InvalidArgument);
    EXPECT_EQ(areas()[0].images[0].heightPx, 7);
}

} // namespace
} // namespace quillmere
