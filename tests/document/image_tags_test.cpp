#include "document/image_tags.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillmere {
namespace {

TEST(ImageTags, EndAtTheNextBracket)
{
    EXPECT_EQ(imageTags("a<IMG x><b><img src=\"a<img>\">c<img y"),
        (std::vector<std::string_view>{"<IMG x>", "<img src=\"a<img>"}));
    std::string hostile;
    for (int i = 0; i < 20'000; ++i)
        hostile += "<img";
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(imageTags(hostile).size(), 0U);
    EXPECT_EQ(imageTags(hostile + ">").size(), 1U);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(100));
}

TEST(ImageTags, TellTheirAttributes)
{
    struct Row {
        const char* tag;
        const char* name;
        std::optional<std::string_view> value;
        std::optional<std::string_view> quoted;
    };
    const Row rows[] = {
        {"<IMG ALIGN=\"Top left\">", "align=", "Top left", "Top left"},
        {"<img align=top src=x>", "align=", "top", std::nullopt},
        {"<img align=top>", "align=", "top", std::nullopt},
        {"<img align=a align=\"b\">", "align=", "b", "b"}, // the quoted one comes first
        {"<img align=\"b>", "align=", "\"b", std::nullopt},
        {"<img src=x>", "align=", std::nullopt, std::nullopt},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(imageAttribute(row.tag, row.name), row.value);
        EXPECT_EQ(quotedAttribute(row.tag, row.name), row.quoted);
    }
    EXPECT_EQ(pixelsBehind("<img style=\"HEIGHT: 20PX; WIDTH: 3px\">", "width:"), " 3");
    EXPECT_EQ(pixelsBehind("<img style=\"height: 20\">", "height:"), std::nullopt);
}

TEST(ImageTags, ShowAPathWithOrWithoutScheme)
{
    EXPECT_EQ(shownPath("<img src=\" /t/Bmp0.bmp \">"), "/t/bmp0.bmp");
    EXPECT_EQ(shownPath("<IMG SRC=file:///t/Bmp0.bmp width=3>"), "/t/bmp0.bmp");
    EXPECT_EQ(shownPath("<img alt=\"x\">"), "");
}

} // namespace
} // namespace quillmere
