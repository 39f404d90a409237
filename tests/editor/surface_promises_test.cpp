// What holds for all that a person can do, on documents of all kinds: the widget shows its text,
// and all can be taken back. What an edit may change of the text is held by
// page/edit_promises_test.cpp.

#include "editor/page/page_places.h"
#include "editor/page_formats.h"
#include "editor/surface_fixture.h"
#include "support/area_texts.h"
#include "support/small_random.h"

#include <QClipboard>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere {
namespace {

using test::ShownSurface;
using test::SmallRandom;

constexpr std::size_t kLongestText = 8000;
constexpr int kDeedsInATest = 14;

/// A key and what it types.
struct Deed {
    int key;
    Qt::KeyboardModifiers held;
    const char* text;
};

constexpr Deed kAllDeeds[] = {{Qt::Key_A, Qt::NoModifier, "a"},
    {Qt::Key_Space, Qt::NoModifier, " "}, {Qt::Key_Ampersand, Qt::NoModifier, "&"},
    {Qt::Key_Less, Qt::NoModifier, "<"}, {Qt::Key_Return, Qt::NoModifier, ""},
    {Qt::Key_Backspace, Qt::NoModifier, ""}, {Qt::Key_Delete, Qt::NoModifier, ""},
    {Qt::Key_Backspace, Qt::ControlModifier, ""}, {Qt::Key_Delete, Qt::ControlModifier, ""},
    {Qt::Key_X, Qt::ControlModifier, ""}, {Qt::Key_V, Qt::ControlModifier, ""}};

void markAtRandom(ShownSurface& surface, SmallRandom& random)
{
    const auto count = static_cast<std::size_t>(surface.document()->characterCount());
    auto cursor = surface.textCursor();
    const auto anchor = random.below(count);
    cursor.setPosition(static_cast<int>(anchor));
    if (random.chance(0.5)) {
        const auto way = random.chance(0.9) ? random.below(8) : random.below(count);
        const auto end = std::min(count - 1, anchor + way);
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    }
    surface.setTextCursor(cursor);
}

/// Whether the widget shows the page that its text is.
bool showsItsText(const ShownSurface& surface)
{
    const auto page = readSurfacePage(surface.DocumentHTML(), surface.page().rules);
    const auto* document = surface.document();
    if (static_cast<std::size_t>(document->blockCount()) != page.blocks.size()) return false;
    for (std::size_t block = 0; block < page.blocks.size(); ++block) {
        QString wanted;
        for (auto i = page.blocks[block].firstItem; i < page.blocks[block].endItem; ++i)
            wanted += shownCharacter(page.items[i]);
        if (document->findBlockByNumber(static_cast<int>(block)).text() != wanted) return false;
    }
    return true;
}

void liveWith(ShownSurface& surface, const std::string& text, std::uint64_t seed)
{
    SmallRandom random(seed);
    surface.setDocumentHTML(text);
    for (int i = 0; i < kDeedsInATest; ++i) {
        markAtRandom(surface, random);
        const auto& deed = kAllDeeds[random.below(std::size(kAllDeeds))];
        SCOPED_TRACE(testing::PrintToString(surface.told()) + "\nmarked "
            + std::to_string(surface.textCursor().selectionStart()) + " to "
            + std::to_string(surface.textCursor().selectionEnd()) + ", key "
            + std::to_string(deed.key) + " " + deed.text);
        surface.press(deed.key, deed.held, deed.text);
        ASSERT_TRUE(showsItsText(surface));
        ASSERT_EQ(surface.caretOffset(), offsetAt(surface.page(), surface.caretPlace()));
    }
    for (int i = 0; i < kDeedsInATest; ++i)
        surface.undo();
    ASSERT_EQ(surface.DocumentHTML(), text);
    ASSERT_TRUE(showsItsText(surface));
}

TEST(SurfacePromises, HoldForAllKeysInAllKindsOfDocuments)
{
    ShownSurface surface;
    QApplication::clipboard()->setText("Wort <&>");
    std::uint64_t seed = 0;
    test::forEachAreaText([&](const std::string& name, const std::string& text) {
        if (text.size() > kLongestText || testing::Test::HasFatalFailure()) return;
        SCOPED_TRACE(name + ", seed " + std::to_string(seed + 1));
        liveWith(surface, text, ++seed);
    });
    EXPECT_TRUE(surface.failures.isEmpty());
}

TEST(SurfacePromises, HoldWhereNothingIsLost)
{
    ShownSurface surface;
    surface.setRules(OutputRules(true));
    std::uint64_t seed = 0;
    test::forEachFormText([&](const std::string& text) {
        if (++seed % 3 != 0 || testing::Test::HasFatalFailure()) return;
        SCOPED_TRACE("seed " + std::to_string(seed));
        liveWith(surface, text, seed);
    });
    EXPECT_TRUE(surface.failures.isEmpty());
}

} // namespace
} // namespace quillmere
