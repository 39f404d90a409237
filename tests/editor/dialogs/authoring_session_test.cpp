#include "editor/dialogs/author.h"
#include "support/wml_validity.h"

#include <QRadioButton>
#include <QCheckBox>
#include <iostream>

namespace quillmere::test {
namespace {

const std::string kPicture("\x00\x00\x08\x03\xFF\x81\xFF\x00", 8);
void ok(QWidget& form) { Author::key(form, Qt::Key_Return); }
QRadioButton& choice(QWidget& form, const char* name, int index)
{
    return *form.findChildren<QRadioButton*>(QLatin1String(name)).at(index);
}

TEST(AuthoringSession, X)
{
    Author author;
    const auto show = [&](const char* w) {
        std::cout << "== " << w << ": " << author.window.CurArea() << ": " << author.contentWithCaret() << "\n";
        for (const auto& l : author.messages.taken()) std::cout << "   ! " << l << "\n";
    };
    author.folder.put("haus.wbmp", kPicture);
    author.settings.WriteSetting("ShowOptionMessage", "No");
    author.settings.WriteSetting("ShowImageMessage", "No");
    author.dialogs.paths = {QString::fromStdString(author.folder.path() + "index.wml")};
    author.key(Qt::Key_N, Qt::ControlModifier);
    author.write("Ferienhof Müller");
    author.key(Qt::Key_Return);
    author.write("Urlaub auf dem Land");
    author.key(Qt::Key_Return);
    show("typed");
    author.markWithMouse("Ferienhof Müller");
    author.tool("TextFormat", [](QWidget& form) {
        Author::clickOn(control(form, "chkBold"));
        Author::clickOn(choice(form, "optSchrift", 1));
        ok(form);
    });
    show("bold");
    author.tool("Justify", [](QWidget& form) {
        Author::clickOn(choice(form, "optSchrift", 1));
        ok(form);
    });
    show("centred");
    author.clickBehind("dem Land");
    author.key(Qt::Key_Return);
    show("return");
    author.dialogs.paths = {QString::fromStdString(author.folder.path() + "haus.wbmp")};
    author.menuOfTool("Image", {"Aus anderer Quelle"}, [](QWidget& form) {
        Author::fill(form, "txtCaption", "Haus & Hof");
        ok(form);
    });
    author.key(Qt::Key_Return);
    show("image");
    for (const auto& [id, title] : {std::pair{"zimmer", "Unsere Zimmer"}, {"weg", "Der Weg zu uns"}})
        author.tool("Area", [id = id, title = title](QWidget& form) {
            Author::fill(form, "txtId", id);
            Author::fill(form, "txtTitle", title);
            ok(form);
        });
    show("areas");
    author.write("Wohin?");
    author.key(Qt::Key_Return);
    for (int i = 0; i < 2; ++i)
        author.tool("Option", [i](QWidget& form) {
            Author::fill(form, "txtCaption", i == 0 ? "Start" : "Zimmer");
            Author::pick(form, "cboLink", i);
            ok(form);
        });
    author.tool("Option", [](QWidget& form) {
        Author::fill(form, "txtCaption", "Karte");
        Author::fill(form, "txtUrlJump", "http://karte.example/hof");
        ok(form);
    });
    show("options");
    author.window.grab().save("/tmp/dlg/a.png");
    author.doubleClickOn("Zimmer", [&](QWidget& form) {
        std::cout << textOf(form, "txtCaption").toStdString() << author.surface().selectedText().toStdString() << author.contentWithCaret() << std::endl;
        Author::fill(form, "txtCaption", "Alle Zimmer");
        ok(form);
    });
    show("edited option");
    author.messages.answers = {true};
    author.doubleClickOn("Karte", [](QWidget& form) { Author::clickOn(control(form, "btnDelete")); });
    show("deleted option");
    Author::clickOn(author.control<QWidget>("lblButtonUndo"));
    show("undone");
    author.key(Qt::Key_PageUp, Qt::ControlModifier);
    author.write("Was ein Zimmer kostet:");
    author.key(Qt::Key_Return);
    author.tool("Table", [](QWidget& form) {
        Author::key(form, Qt::Key_Tab);
        Author::write(form, "2");
        ok(form);
    });
    show("table");
    for (const char* cell : {"Einzel", "30 Euro", "Doppel", "50 Euro"}) {
        author.markWithMouse("Zelle");
        author.write(cell);
    }
    show("cells");
    author.doubleClickOn("30 Euro", [](QWidget& form) {
        Author::fill(form, "txtTitle", "Preise");
        Author::fill(form, "txtRows", "3");
        Author::pick(form, "cboAlign", 2);
        ok(form);
    });
    show("edited table");
    author.messages.answers = {true};
    author.doubleClickOn("Doppel", [](QWidget& form) { Author::clickOn(control(form, "btnDelete")); });
    show("deleted table");
    Author::clickOn(author.control<QWidget>("lblButtonUndo"));
    show("undone");
    author.key(Qt::Key_PageUp, Qt::ControlModifier);
    show("first area");
    author.markWithMouse("Land");
    author.tool("Link", [](QWidget& form) { ok(form); });
    show("link");
    author.key(Qt::Key_End, Qt::ControlModifier);
    author.tool("Link", [](QWidget& form) {
        Author::fill(form, "txtCaption", "Weg");
        Author::pick(form, "cboLink", 2);
        ok(form); });
    show("link2");
    author.messages.answers = {true};
    author.tool("Link", [](QWidget& form) {
        Author::fill(form, "txtCaption", "Verband <Land & Hof>");
        Author::fill(form, "txtUrlJump", "www.verband.example?a=1&b=\"2\"");
        ok(form); });
    show("link3");
    author.doubleClickOn("Weg", [](QWidget& form) {
        Author::fill(form, "txtCaption", "Der Weg");
        ok(form); });
    show("edit link");
    author.messages.answers = {true};
    author.doubleClickOn("Verband", [](QWidget& form) { Author::clickOn(control(form, "btnDelete")); });
    show("deleted link");
    author.key(Qt::Key_Z, Qt::ControlModifier);
    show("undone");
    author.menuOn("Urlaub", {"Bereichseinstellungen"}, [](QWidget& form) {
        Author::fill(form, "txtJumpSelectionCaption", "Zimmer");
        Author::fill(form, "txtId", "start");
        Author::fill(form, "txtTitle", "Ferienhof Müller");
        ok(form); });
    show("jump");
    author.key(Qt::Key_S, Qt::ControlModifier);
    std::cout << author.folder.get("index.wml") << "\n";
    std::cout << wmlFaults(author.folder.get("index.wml")) << "\n";
    for (auto& l : author.messages.log) std::cout << l << "\n";
}
}
}
