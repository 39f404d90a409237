#include "document/design_page.h"

#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(DesignPage, HasAFrameWithTheColourAndFontOfTheDevice)
{
    test::SmallDeck deck;
    auto& session = deck.session;
    const std::string links = "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" ";
    EXPECT_TRUE(designPageLines(session, 0, PageSection::Head).ends_with(">\r\n<P>\r\n"));
    EXPECT_EQ(designPageLines(session, 0, PageSection::Tail), "</P>\r\n</BODY>\r\n</HTML>\r\n");
    for (const int index : {-1, 0, 6})
        EXPECT_EQ(DesignPageLine(session, 0, PageSection::Head, index), "");
    for (const auto& [twips, size] : {std::pair(8, "size:22\""), std::pair(24, "size:8\"")}) {
        session.twipsPerPixel = twips; // in the middle the even size
        EXPECT_NE(DesignPageLine(session, 0, PageSection::Head, 4).find(size), links.npos) << size;
    }

    PageStyle device{0x0000FF, 8, "  Courier New   "};
    session.devices[1] = &device;
    session.twipsPerPixel = 12;
    EXPECT_EQ(DesignPageLine(session, 1, PageSection::Head, 4),
        links + "BGCOLOR=\"#FF\" STYLE=\"font-size:13\" STYLE=\"font-family:Courier New\">");
    EXPECT_EQ(device.fontFamily, "Courier New" + std::string(139, ' '));
    for (const int kind : {0, 2, -1}) // no device of that kind
        EXPECT_NE(DesignPageLine(session, kind, PageSection::Head, 4).find("size:15"), links.npos);
}

} // namespace
} // namespace quillmere
