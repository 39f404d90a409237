#include "document/design_page.h"

#include "support/store_session.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(DesignPage, HasAFrameOfFiveAndThreeLines)
{
    test::StoreSession store;
    auto& session = store.session;
    const std::string body = "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" BGCOLOR=\"#247F07\" "
                             "STYLE=\"font-size:12\" STYLE=\"font-family:Arial\">";
    EXPECT_EQ(designPageLines(session, 0, PageSection::Head),
        "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n" + body + "\r\n<P>\r\n");
    EXPECT_EQ(designPageLines(session, 0, PageSection::Head, "<p"),
        "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n" + body + "\r\n");
    EXPECT_EQ(designPageLines(session, 0, PageSection::Tail), "</P>\r\n</BODY>\r\n</HTML>\r\n");
    EXPECT_EQ(designPageLines(session, 0, PageSection::Tail, "</p"), "</BODY>\r\n</HTML>\r\n");
    for (const int index : {-1, 0, 6})
        EXPECT_EQ(DesignPageLine(session, 0, PageSection::Head, index), "");
    EXPECT_EQ(DesignPageLine(session, 0, PageSection::Tail, 4), "");
    EXPECT_EQ(DesignPageLine(session, 0, static_cast<PageSection>(3), 1), "");
}

TEST(DesignPage, TakesColourAndFontFromTheDeviceOfItsKind)
{
    test::StoreSession store;
    auto& session = store.session;
    PageStyle device{0x0000FF, 8, "  Courier New   "};
    session.devices[1] = &device;
    session.twipsPerPixel = 12;
    EXPECT_EQ(DesignPageLine(session, 1, PageSection::Head, 4),
        "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" BGCOLOR=\"#FF\" STYLE=\"font-size:13\" "
        "STYLE=\"font-family:Courier New\">");
    EXPECT_EQ(device.fontFamily, "Courier New" + std::string(139, ' '));
    for (const int kind : {0, 2, -1}) { // no device of that kind
        EXPECT_EQ(DesignPageLine(session, kind, PageSection::Head, 4),
            "<BODY LINK=\"#0000ff\" VLINK=\"#800080\" BGCOLOR=\"#247F07\" STYLE=\"font-size:15\" "
            "STYLE=\"font-family:Arial\">");
    }
}

} // namespace
} // namespace quillmere
