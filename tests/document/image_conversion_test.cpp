#include "document/design_to_wml.h"
#include "document/text/failure.h"
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

TEST(ImagesToDesign, GetTheAttributesOfTheSurfaceAndKeepTheirLayout)
{
    const struct {
        const char *wml, *design;
        bool hasLayout; // of the entry of Bmp0
    } rows[] = {{R"(<IMG src=" Bild.WBMP "/>x)", R"(<img src="Bmp0.bmp"></img>x)", false},
        {R"(<img src="bild.wbmp" ALT="Ein Bild" align="Middle" width="9%"/>)",
            R"(<img src="Bmp0.bmp" alt="Ein Bild" align="middle"></img>)", false},
        {R"(<img src="bild.wbmp" height="10"/>)", // 5: the picture's width
            R"(<img src="Bmp0.bmp" style="height: 10px; width: 5px"></img>)", true},
        {R"(<img src="bild.wbmp" width="9" height=" 10">)",
            R"(<img src="Bmp0.bmp" style="height:  10px; width: 9px"></img>)", true},
        {R"(<img src="bild.wbmp" height="8"/>)", // the stored width goes with it
            R"(<img src="Bmp0.bmp" style="height: 8px; width: 9px"></img>)", true},
        {R"(<img src="bild.wbmp" hspace="2%" vspace="1"/>)",
            R"(<img src="Bmp0.bmp" vspace="1" hspace="2%"></img>)", true},
        {R"(<img src="bild.wbmp"/>)", R"(<img src="Bmp0.bmp"></img>)", false},
        {R"(<img alt="x"/><img src=x.wbmp/><img <img src="x.gif" <img>)",
            R"(<img alt="x"/><img src=x.wbmp/><img <img src="x.gif" <img>)", false}};
    test::SmallDeck deck(1);
    for (const auto& row : rows) {
        EXPECT_EQ(design(deck, row.wml), row.design);
        EXPECT_EQ(deck.session.deck[0].images.size(), 3U); // a blank one, the picture, a spare one
        EXPECT_EQ(deck.session.deck[0].images[1].hasLayout, row.hasLayout);
    }
    EXPECT_EQ(deck.copies.drawn, std::vector<std::string>{"/decks/Bild.WBMP|"});
    for (const char* bad : {R"(height="50%")", R"(height="5" width="")"})
        EXPECT_THROW(design(deck, std::string("<img src=\"a.wbmp\" ") + bad + "/>"), TypeMismatch);
}

TEST(ImagesToWml, GetTheirNamesBack)
{
    // The second of the two areas holds Bmp0.bmp under another name and with layout.
    test::SmallDeck deck(2);
    auto& areas = deck.session.deck;
    areas[0].images = {{"Bmp0.bmp", "/T/", "A/b.wbmp", "", 7, 5, 7, 5, "top", false},
        {"Bmp1.bmp", "/T/", "c.wbmp", "", 7, 5, 7, 5, "top", false}, {}};
    areas[1].images = {{"Bmp0.bmp", "/T/", "last.wbmp", "", 7, 5, 7, 5, "top", true}, {}};
    areas[2].images = {{"Bmp2.bmp", "/T/", "spare.wbmp", "", 7, 5, 7, 5, "top", false}, {}};
    const std::string sized = R"(<img src="/t/bmp0.bmp" style="height: 20px">)";
    EXPECT_THROW(wml(deck, sized + R"(<img src="/t/bmp1.bmp" style="height: 2em; width: 3px">)"),
        TypeMismatch);
    EXPECT_THROW(
        wml(deck, sized + R"(<img src="/t/bmp1.bmp" style="height: 2">)"), InvalidArgument);
    EXPECT_EQ(areas[0].images[0].heightPx, 7) << "stays where it fails";

    const char* const rows[][2]
        = {{R"(<img src="/t/bmp1.BMP" alt="Ein Bild" hspace=2 vspace="1" align=left></img>)",
               R"(<img src="c.wbmp" alt="ein bild" vspace="1" hspace="2"></img>)"},
            {R"(<img src="/t/bmp0.bmp" alt=X>)",
                R"(<img src="last.wbmp" alt="x" align="top" height="7" width="5"></img>)"},
            {R"(<img src="/t/bmp2.bmp"><img src="">)", "</img></img>"}, // in the spare record
            {R"(<img src="/t/Bmp0.bmp" style="HEIGHT: 20px; WIDTH: 30px"><IMG src="/t/bmp0.bmp">)",
                R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)"
                R"(<img src="last.wbmp" align="top" height="20" width="30"></img>)"}};
    for (const auto& row : rows)
        EXPECT_EQ(wml(deck, row[0]), row[1]);
    EXPECT_EQ(areas[0].images[0].heightPx, 20);
    EXPECT_EQ(areas[1].images[0].widthPx, 30);
    deck.session.output = OutputRules(true);
    EXPECT_EQ(wml(deck, R"(<img src="/t/bmp1.bmp" ALT="Ein Bild">)"),
        R"(<img src="c.wbmp" alt="Ein Bild"></img>)");
}

} // namespace
} // namespace quillmere
