#include "editor/surface_undo.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using Kind = SurfaceUndo::Kind;

/// A text that is edited, with its steps.
struct Edited {
    std::string text;
    std::size_t caret = 0;
    SurfaceUndo undo;

    void insert(std::size_t at, const std::string& piece, Kind kind)
    {
        const SurfaceEdit edit{{{{at, at}, piece}}, at + piece.size()};
        undo.add(text, edit, caret, kind);
        text = edited(text, edit);
        caret = edit.caret;
    }
    bool goTo(const std::optional<SurfaceUndo::State>& state)
    {
        if (state) std::tie(text, caret) = std::tie(state->text, state->caret);
        return state.has_value();
    }
    bool back() { return goTo(undo.undo(text, caret)); }
    bool forth() { return goTo(undo.redo(text, caret)); }
};

TEST(SurfaceUndo, TakesWhatWasTypedInOneGoAsOneStep)
{
    Edited area{"<p></p>", 3, {}};
    area.insert(3, "a", Kind::Typing);
    area.insert(4, "b", Kind::Typing);
    area.caret = 3; // elsewhere
    area.insert(3, "x", Kind::Typing);
    area.undo.endTyping();
    area.insert(4, "y", Kind::Typing);
    area.insert(0, "1", Kind::Other);
    area.insert(1, "2", Kind::SameStep);
    EXPECT_EQ(area.text, "12<p>xyab</p>");
    for (const char* text : {"<p>xyab</p>", "<p>xab</p>", "<p>ab</p>", "<p></p>"}) {
        ASSERT_TRUE(area.back());
        EXPECT_EQ(area.text, text);
    }
    EXPECT_EQ(area.caret, 3U);
    EXPECT_FALSE(area.back());
    for (const char* text : {"<p>ab</p>", "<p>xab</p>", "<p>xyab</p>", "12<p>xyab</p>"}) {
        ASSERT_TRUE(area.forth());
        EXPECT_EQ(area.text, text);
    }
    EXPECT_FALSE(area.forth());
}

TEST(SurfaceUndo, ForgetsWhatWasUndoneOnceSomethingElseIsDone)
{
    Edited area{"", 0, {}};
    area.insert(0, "a", Kind::Other);
    ASSERT_TRUE(area.back());
    area.insert(0, "b", Kind::Typing);
    EXPECT_FALSE(area.forth());
    ASSERT_TRUE(area.back());
    area.undo.forgetUndone();
    EXPECT_FALSE(area.forth());
}

} // namespace
} // namespace quillmere
