#include "editor/surface_fixture.h"

#include "document/text/limits.h"
#include "editor/page/page_places.h"
#include "editor/page_geometry.h"
#include "editor/surface_clipboard.h"

#include <QDropEvent>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include <tuple>

namespace quillmere {
namespace {

using test::ShownSurface;
using Type = SurfaceSelection::Type;

constexpr auto kArea = "<p>Wort <img src=\"a.bmp\" alt=\"x\"></img> "
                       "<a href=\"#x\">Ziel</a></p><!--select--><!--option--><input type=radio "
                       "name=\"TempName1\">eins<!--/option--><!--/select--><timer value=\"1\">"
                       "<table title=\"T\"><tr><td>Zelle</td><td><img "
                       "src=\"b.bmp\"></img></td></tr></table><p>Ende</p>";

/// A surface with a mouse.
class Moused : public ShownSurface {
public:
    std::vector<std::string> events;

    explicit Moused(const std::string& area = kArea)
    {
        give(area);
        const auto log = [this](const char* name) {
            return [this, name](const Element& source) {
                const auto told = selection();
                EXPECT_EQ(told.event.value_or(Element{}).tag, source.tag);
                events.push_back(std::string(name) + " " + source.startTag);
            };
        };
        connect(this, &DesignSurface::onmousedown, this, log("down"));
        connect(this, &DesignSurface::onmousemove, this, log("move"));
        connect(this, &DesignSurface::ondblclick, this, log("double"));
    }

    /// The middle of the item whose source begins at the first `source` of the text.
    [[nodiscard]] QPoint pointOf(const std::string& source) const
    {
        const auto offset = DocumentHTML().find(source);
        for (std::size_t block = 0; block < page().blocks.size(); ++block)
            for (std::size_t i = 0; i < itemCount(page().blocks[block]); ++i)
                if (itemBehind(page(), {block, i})->source.begin == offset)
                    return itemRect(*document(), {block, i}).center().toPoint();
        ADD_FAILURE() << "no item: " << source;
        return {};
    }
    [[nodiscard]] QPoint tableCorner() const
    {
        return tableRect(*document(), page(), 0).topLeft().toPoint();
    }

    void mouse(QEvent::Type type, QPoint point, Qt::MouseButtons held = Qt::LeftButton)
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(
            type, point, viewport()->mapToGlobal(point), button, held, Qt::NoModifier);
        QApplication::sendEvent(viewport(), &event);
    }
    void click(QPoint point)
    {
        mouse(QEvent::MouseButtonPress, point);
        mouse(QEvent::MouseButtonRelease, point, Qt::NoButton);
    }

    /// Drops a clip ahead of an item; true where it was taken. A drag from inside moves.
    bool drop(const QMimeData& clip, const std::string& target, bool fromInside)
    {
        fromInside_ = fromInside;
        QDropEvent event(pointOf(target) - QPointF(3, 0), Qt::CopyAction | Qt::MoveAction, &clip,
            Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        dropEvent(&event);
        return event.isAccepted() && event.dropAction() != Qt::IgnoreAction;
    }
    void dragTo(const std::string& target)
    {
        const std::unique_ptr<QMimeData> clip(createMimeDataFromSelection());
        drop(*clip, target, true);
    }

protected:
    [[nodiscard]] bool comesFromHere(const QDropEvent&) const override { return fromInside_; }

private:
    bool fromInside_ = false; // drops know their source while the desktop drags only
};

TEST(SurfaceMouse, SelectsObjectsWholeByAClick)
{
    const std::tuple<const char*, const char*, bool> rows[] = {{"<img src=\"a", "img", true},
        {"<input", "input", false}, {"<timer", "timer", false}, {"<img src=\"b", "img", true}};
    for (const auto& [source, tag, isImage] : rows) {
        SCOPED_TRACE(source);
        Moused surface;
        surface.click(surface.pointOf(source));
        const auto told = surface.selection();
        EXPECT_EQ(told.type, Type::Control);
        EXPECT_EQ(told.control->tag, tag);
        EXPECT_EQ(surface.QueryStatus(surface_command::kItalic), 1);
        const auto range = FindMarkedRange(surface.DocumentHTML(), told);
        if (range) {
            EXPECT_EQ(range->IsImage, isImage);
            EXPECT_EQ(range->Start, static_cast<int>(surface.DocumentHTML().find(source)) + 1);
        }
        surface.press(Qt::Key_Delete);
        EXPECT_EQ(surface.DocumentHTML().find(source), std::string::npos);
        EXPECT_EQ(surface.selection().type, Type::None);
    }
}

TEST(SurfaceMouse, SelectsATableByItsBorder)
{
    Moused surface;
    surface.click(surface.tableCorner());
    const auto told = surface.selection();
    ASSERT_EQ(told.type, Type::Control);
    EXPECT_EQ(attributeOf(told.control->startTag, "title"), "T");
    surface.press(Qt::Key_Backspace);
    EXPECT_EQ(surface.DocumentHTML().find("<table"), std::string::npos);
    surface.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(surface.DocumentHTML(), kArea);
}

TEST(SurfaceMouse, LeavesASelectedObjectByTheArrowKeys)
{
    for (const auto& [key, item] :
        {std::pair{Qt::Key_Left, "<img src=\"a"}, std::pair{Qt::Key_Right, " \n"}}) {
        Moused surface("<p>Wort<img src=\"a.bmp\"></img> \n</p>");
        surface.click(surface.pointOf("<img"));
        surface.press(key);
        EXPECT_EQ(surface.selection().type, Type::None);
        EXPECT_EQ(surface.caretOffset(), surface.DocumentHTML().find(item));
    }
}

TEST(SurfaceMouse, TellsItsEventsWithTheElementUnderThem)
{
    Moused surface;
    surface.click(surface.pointOf("<img src=\"a"));
    surface.mouse(QEvent::MouseMove, surface.pointOf("Ziel"), Qt::NoButton);
    surface.mouse(QEvent::MouseButtonDblClick, surface.pointOf("Zelle"));
    surface.mouse(QEvent::MouseButtonDblClick, surface.tableCorner());
    EXPECT_EQ(surface.events,
        (std::vector<std::string>{"down <img src=\"a.bmp\" alt=\"x\">", "move <a href=\"#x\">",
            "double <td>", "double <table title=\"T\">"}));
    EXPECT_FALSE(surface.selection().event) << "only while one is handled";
}

TEST(SurfaceMouse, DoubleClickSelectsAWordAndFindsTheLinkRoundIt)
{
    Moused surface;
    Hit hit;
    QObject::connect(&surface, &DesignSurface::ondblclick, &surface,
        [&] { hit = HitTester().HitTest("<a", "</a", kArea, surface.selection(), true); });
    surface.mouse(QEvent::MouseButtonDblClick, surface.pointOf("Ziel"));
    EXPECT_EQ(surface.selectedText(), "Ziel");
    EXPECT_TRUE(hit.Inside);
    EXPECT_EQ(hit.position, static_cast<int>(std::string_view(kArea).find("<a ")) + 1);

    Moused list("<!--select--><!--option--><input type=radio name=\"TempName1\">eins<!--/option-->"
                "<!--option--><input type=radio name=\"TempName2\">zwei<!--/option-->"
                "<!--option--><input type=radio name=\"TempName3\">drei<!--/option-->");
    for (const char* option : {"eins", "zwei", "drei"}) {
        list.mouse(QEvent::MouseButtonDblClick, list.pointOf(option));
        EXPECT_EQ(list.selectedText(), option); // the radio buttons are no letters of the word
    }
}

TEST(SurfaceMouse, MovesMarkedTextInOneStep)
{
    Moused surface("<p>eins |<b>zwei</b> |drei</p><p>vier</p>");
    surface.dragTo("vier");
    EXPECT_EQ(surface.DocumentHTML(), "<p>eins drei</p><p><b>zwei</b> vier</p>");
    surface.undo();
    EXPECT_EQ(surface.DocumentHTML(), "<p>eins <b>zwei</b> drei</p><p>vier</p>");
    surface.redo();
    EXPECT_EQ(surface.DocumentHTML(), "<p>eins drei</p><p><b>zwei</b> vier</p>");
}

TEST(SurfaceMouse, PutsAnElementBackThatWasMovedIntoATable)
{
    for (const char* source : {"<img src=\"a", "<input"}) {
        Moused surface;
        int told = 0;
        QObject::connect(
            &surface, &DesignSurface::elementMovedIntoTable, &surface, [&] { ++told; });
        surface.click(surface.pointOf(source));
        surface.dragTo("Zelle");
        EXPECT_EQ(surface.DocumentHTML(), kArea);
        EXPECT_EQ(told, 1);
        surface.redo();
        EXPECT_EQ(surface.DocumentHTML(), kArea) << "nor does it come back";
        EXPECT_FALSE(surface.CheckElementMovedIntoTable());
    }
    Moused surface;
    surface.click(surface.pointOf("<img src=\"b"));
    surface.dragTo("Zelle");
    EXPECT_NE(surface.DocumentHTML(), kArea) << "it was in the table before";
}

TEST(SurfaceMouse, TakesADropFromOutsideAndLeavesToTheSourceWhatItRefuses)
{
    Moused surface("<p>ab</p>");
    QMimeData clip;
    clip.setHtml("<b>x</b>");
    EXPECT_TRUE(surface.drop(clip, "b", false));
    EXPECT_EQ(surface.told(), "<p>a<b>x|</b>b</p>");
    QMimeData tooLong;
    tooLong.setText(QString(kMaxTextLength, u'x'));
    EXPECT_FALSE(surface.drop(tooLong, "b</p", false));
    EXPECT_EQ(surface.failures.size(), 1);
    QMimeData junk;
    junk.setData("image/png", "x");
    EXPECT_FALSE(surface.drop(junk, "b</p", false));
    EXPECT_EQ(surface.DocumentHTML(), "<p>a<b>x</b>b</p>");
}

} // namespace
} // namespace quillmere
