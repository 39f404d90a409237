#include "editor/surface_fixture.h"

#include "document/text/limits.h"
#include "editor/page/page_places.h"
#include "support/area_texts.h"

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
void pressKeys(ShownSurface& surface, const char* names)
{
    for (const auto& name : QString(names).split(u' ')) {
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
    const char* const rows[][4] = {
        {"Return twice", "<p>a|b</p>", "Return Num+Enter", "<p>a<br/><br/>|b</p>"},
        {"Ctrl and Backspace", "<p>eins zwei|</p>", "Ctrl+Backspace", "<p>eins |</p>"},
        {"Ctrl and Delete", "<p>|eins zwei</p>", "Ctrl+Del", "<p>|zwei</p>"},
        {"Shift, arrows and Delete", "<p>a|bcd</p>", "Shift+Right Shift+Right Del", "<p>a|d</p>"},
        {"End and Home", "<p>a|b</p>", "End x Home y", "<p>y|abx</p>"},
        {"keys that are no text", "<p>a|b</p>", "Esc Ctrl+K F5 Ctrl+B", "<p>a|b</p>"},
        {"AltGr", "<p>|</p>", "Ctrl+Alt+@", "<p>@|</p>"},
        {"undo of all, then redo", "<p>a|b|</p>", "x y z Ctrl+Z Ctrl+Z Ctrl+Shift+Z",
            "<p>axyz|</p>"},
        {"what is typed elsewhere is a step of its own", "<p>a|b</p>", "x End y Ctrl+Z",
            "<p>axb|</p>"},
        {"no redo behind another edit", "<p>a|b</p>", "x Ctrl+Z y Ctrl+Shift+Z", "<p>ay|b</p>"},
        {"cut and paste", "<p>a|b|<b>c</b></p>", "Ctrl+X End Ctrl+V", "<p>a<b>cb|</b></p>"},
        {"all", "<p>a|b</p><p>c</p>", "Ctrl+A x", "<p>x|</p>"},
    };
    for (const auto& [name, before, keys, after] : rows) {
        SCOPED_TRACE(name);
        ShownSurface surface;
        surface.give(before);
        pressKeys(surface, keys);
        EXPECT_EQ(surface.told(), after);
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
