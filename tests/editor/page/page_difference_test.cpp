#include "editor/page/page_difference.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

/// "block.offset -removed +first..end", "alike" or "anew".
std::string toldDifference(const std::string& shown, const std::string& wanted)
{
    const auto change = differenceOf(readSurfacePage(shown), readSurfacePage(wanted));
    if (!change) return "anew";
    if (change->removed == 0 && change->firstItem == change->endItem) return "alike";
    return std::to_string(change->place.block) + "." + std::to_string(change->place.offset) + " -"
        + std::to_string(change->removed) + " +" + std::to_string(change->firstItem) + ".."
        + std::to_string(change->endItem);
}

TEST(PageDifference, IsTheSmallestChangeOfOneBlock)
{
    const std::string rows[][4] = {
        {"the same", "<p>a</p>", "<p>a</p>", "alike"},
        {"tags that show nothing", "<p>a<!--go/--></p>", "<p  >a</p >", "alike"},
        {"a blank as another one", "<p>a b</p>", "<p>a\tb</p>", "alike"},
        {"a letter more", "<p>a</p><p>bc</p>", "<p>a</p><p>bxc</p>", "1.1 -0 +2..3"},
        {"one of equal letters more", "<p>aaa</p>", "<p>aaaa</p>", "0.3 -0 +3..4"},
        {"all letters", "<p>ab</p>", "<p></p>", "0.0 -2 +0..0"},
        {"another style of nothing", "<p></p>", "<p><b></b></p>", "anew"},
        {"the same link of another number", "<p><a>a</a><a href=\"x\">b</a>c</p>",
            "<p><a href=\"x\">b</a>c</p>", "0.0 -1 +0..0"},
        {"another picture", "<p><img src=\"x\">b</p>", "<p><img src=\"y\">b</p>", "0.0 -1 +0..1"},
        {"a border of a table", "<table><tr><td>a</table>", "<table border=1><tr><td>a</table>",
            "anew"},
    };
    for (const auto& [name, shown, wanted, difference] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(toldDifference(shown, wanted), difference);
    }
}

} // namespace
} // namespace quillmere
