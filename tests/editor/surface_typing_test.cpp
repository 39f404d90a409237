#include "editor/surface_fixture.h"

#include "document/text/limits.h"
#include "editor/page/page_places.h"
#include "support/area_texts.h"
#include "support/row_file.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMimeData>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::ShownSurface;

constexpr auto kControl = Qt::ControlModifier;

void putIntoClipboard(const QString& text)
{
    QApplication::clipboard()->setText(text);
}

/// Presses keys by their names, each with the text that it brings along.
void pressKeys(ShownSurface& surface, const std::string& names)
{
    for (const auto& name : QString::fromStdString(names).split(u' ')) {
        const auto key = QKeySequence::fromString(name)[0];
        const auto held = key.keyboardModifiers();
        const bool isAltGr = held == (kControl | Qt::AltModifier);
        QString text = name.size() == 1 || isAltGr ? name.right(1) : QString();
        if (held == kControl) text = QChar(key.key() & 0x1F);
        if (key.key() == Qt::Key_Escape) text = "\x1b";
        surface.press(key.key(), held, text);
    }
}

TEST(SurfaceTyping, PutsIntoTheTextWhatKeysMean)
{
    for (const auto& row : test::rowsOf("typed_keys.txt")) {
        SCOPED_TRACE(row.at(0));
        ShownSurface surface;
        surface.give(row.at(1));
        pressKeys(surface, row.at(2));
        EXPECT_EQ(surface.told(), row.at(3));
        EXPECT_TRUE(surface.failures.isEmpty());
    }
}

TEST(SurfaceTyping, TakesFromAnInputMethodWhatIsDecidedAndNothingElse)
{
    ShownSurface surface;
    surface.give("<p>a|b</p>");
    QInputMethodEvent composing("\u00a8", {});
    QApplication::sendEvent(&surface, &composing);
    EXPECT_EQ(surface.told(), "<p>a|b</p>");
    QInputMethodEvent decided;
    decided.setCommitString("\u00fc");
    QApplication::sendEvent(&surface, &decided);
    EXPECT_EQ(surface.told(), "<p>a\xfc|b</p>");
    QInputMethodEvent corrected;
    corrected.setCommitString("ue", -1, 1);
    QApplication::sendEvent(&surface, &corrected);
    EXPECT_EQ(surface.told(), "<p>aue|b</p>");
    EXPECT_EQ(surface.document()->toPlainText(), "aueb");
}

TEST(SurfaceTyping, RefusesWhatIsTooLongAndLosesNothing)
{
    ShownSurface surface;
    const std::string full = "<p>" + std::string(kMaxTextLength - 7, 'x') + "</p>";
    surface.give(full);
    surface.type("y");
    EXPECT_EQ(surface.failures.size(), 1);
    EXPECT_EQ(surface.DocumentHTML(), full);
    EXPECT_EQ(surface.document()->characterCount(), static_cast<int>(kMaxTextLength - 7) + 1);
    putIntoClipboard(QString(40000, u'z'));
    surface.press(Qt::Key_V, kControl);
    EXPECT_EQ(surface.failures.size(), 2);
    EXPECT_EQ(surface.DocumentHTML(), full);
    surface.press(Qt::Key_Delete);
    EXPECT_EQ(surface.DocumentHTML().size(), full.size() - 1);
}

TEST(SurfaceTyping, TypesAtEveryPlaceWhereTheOffsetTells)
{
    ShownSurface surface;
    test::forEachAreaText([&](const std::string& name, const std::string& text) {
        if (text.size() > 1200) return;
        SCOPED_TRACE(name);
        const auto page = readSurfacePage(text);
        for (std::size_t block = 0; block < page.blocks.size(); ++block)
            for (std::size_t i = 0; i <= itemCount(page.blocks[block]); i += 3) {
                surface.setDocumentHTML(text);
                const auto offset = offsetAt(page, {block, i});
                surface.setCaretOffset(offset);
                ASSERT_EQ(surface.caretPlace(), (PagePlace{block, i}));
                surface.type("x");
                ASSERT_EQ(surface.DocumentHTML(), std::string(text).insert(offset, 1, 'x'));
                surface.press(Qt::Key_Z, kControl);
                ASSERT_EQ(surface.DocumentHTML(), text);
            }
    });
}

TEST(SurfaceTyping, StepsOverAtomsWhole)
{
    ShownSurface surface;
    test::forEachAreaText([&](const std::string& name, const std::string& text) {
        if (text.size() > 1200) return;
        SCOPED_TRACE(name);
        surface.setDocumentHTML(text);
        std::size_t places = 0;
        for (auto ahead = surface.textCursor().position() - 1;
             ahead < surface.textCursor().position(); ++places) {
            const auto offset = surface.caretOffset();
            for (const auto& item : surface.page().items)
                ASSERT_FALSE(item.source.begin < offset && offset < item.source.end);
            ahead = surface.textCursor().position();
            surface.press(Qt::Key_Right);
        }
        EXPECT_GE(places, surface.page().items.size() / 2);
        EXPECT_EQ(surface.DocumentHTML(), text);
    });
}

TEST(SurfaceTyping, TellsOfKeysAheadOfTheirEditAndBehindIt)
{
    ShownSurface surface;
    surface.give("<p>|</p>");
    std::vector<std::string> seen;
    QObject::connect(&surface, &DesignSurface::onkeypress, &surface,
        [&] { seen.push_back("press " + surface.DocumentHTML()); });
    QObject::connect(&surface, &DesignSurface::onkeyup, &surface,
        [&] { seen.push_back("up " + surface.DocumentHTML()); });
    surface.type("x");
    EXPECT_EQ(seen, (std::vector<std::string>{"press <p></p>", "up <p>x</p>"}));
}

} // namespace
} // namespace quillmere
