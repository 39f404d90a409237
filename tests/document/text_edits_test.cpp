#include "document/text_edits.h"

#include "document/failure.h"
#include "document/limits.h"
#include "document/text_cutter.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(TextEdits, KeepsTheOrderOfCallsAtOnePlace)
{
    std::string text = "0123456789";
    TextEdits edits;
    edits.insert(5, "a");
    edits.drop(7, 9);
    edits.insert(2, "b");
    edits.insert(5, "c");
    edits.replace(5, 6, "d");
    edits.insert(10, "e");
    edits.applyTo(text);
    EXPECT_EQ(text, "01b234acd69e");
}

TEST(TextEdits, LeavesATextThatWouldGetTooLong)
{
    const std::string before(kMaxTextLength, 'x');
    std::string text = before;
    TextEdits edits;
    edits.insert(0, "y");
    EXPECT_THROW(edits.applyTo(text), Overflow);
    EXPECT_EQ(text, before);
}

TEST(TextCutter, TakesBackNoMoreThanWasCut)
{
    std::string text = "abcdefgh";
    {
        TextCutter cutter(text);
        cutter.keepTo(3);
        cutter.takeBack(2, 0); // nothing is cut yet
        EXPECT_EQ(cutter.position(), 3U);
        cutter.dropTo(5);
        cutter.takeBack(9, 2); // "c" comes back in front of "fgh"
        EXPECT_EQ(cutter.position(), 4U);
        EXPECT_EQ(text.substr(cutter.position()), "cfgh");
        cutter.keepTo(6);
        cutter.dropTo(7);
    }
    EXPECT_EQ(text, "abcfh");
}

} // namespace
} // namespace quillmere
