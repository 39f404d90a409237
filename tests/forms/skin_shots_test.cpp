// The main window as its skins dress it, with all states of its tools. QUILLMERE_SHOTS names a
// folder for pictures of it.

#include "forms/skinned_window.h"
#include "forms/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere {
namespace {

const std::string kSkins = QUILLMERE_SOURCE_DIR "/data/Skins/";

void giveTexts(SkinnedWindow& window)
{
    const QPair<const char*, const char*> kTools[]
        = {{"SeiteNew", "Neu"}, {"SeiteOpen", "Öffnen"}, {"SeiteSave", "Sichern"},
            {"Undo", "Zurück"}, {"Previour", "Vorschau"}, {"BildKonverter", "Konverter"},
            {"Upload", "Upload"}, {"System", "System"}, {"Help", "Hilfe"}, {"Area", "Bereich"},
            {"Table", "Tabelle"}, {"Image", "Bild"}, {"Link", "Link"}, {"Option", "Auswahl"},
            {"TextFormat", "Format"}, {"Justify", "Ausrichten"}, {"Morvane", "Quillmere"}};
    for (const auto& [name, text] : kTools)
        window.tool(name).setText(QString::fromUtf8(text));
    const QPair<const char*, const char*> kButtons[]
        = {{"btnScript", "Quelltext"}, {"btnShowProjekt", "Projekt"}, {"btnAreaOne", "1 von 4"}};
    for (const auto& [name, text] : kButtons)
        window.control<QPushButton>(name).setText(QString::fromUtf8(text));
    window.control<QLabel>("lblCurAreaCaption").setText("Bereich 1: Willkommen");
}

void addLabel(SkinnedWindow& window, const QRect& place, const QString& text, Qt::Alignment where,
    const QColor& ink)
{
    auto* label = new QLabel(text, &window);
    label->setGeometry(place);
    label->setAlignment(where | Qt::AlignVCenter);
    label->setWordWrap(true);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto palette = label->palette();
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
}

void addFreeTexts(SkinnedWindow& window, const SkinRecord& skin)
{
    const auto places = freePlaces(skin);
    const auto theme = themeOf(skin);
    addLabel(window, places.fileName, "index.wml", Qt::AlignLeft, theme.muted);
    addLabel(window, places.characters, "612 Zeichen", Qt::AlignRight, theme.muted);
    addLabel(window, places.firstNote,
        QString::fromUtf8("Erster Bereich erreicht. Weiter vorblättern nicht möglich!"),
        Qt::AlignLeft, theme.muted);
    addLabel(window, places.lastNote,
        QString::fromUtf8("Letzter Bereich erreicht. Weiter blättern nicht möglich!"),
        Qt::AlignRight, theme.muted);
}

TEST(SkinShots, EverySkinDressesTheWholeWindow)
{
    const SkinSettings store(kSkins);
    const auto& settings = store.settings;
    SkinTables tables;
    ReadEditorSkins(tables, settings);
    const auto shots = qEnvironmentVariable("QUILLMERE_SHOTS");
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i) {
        for (auto& skin : tables.EditorSkins)
            skin.Selected = 0;
        auto& skin = tables.EditorSkins[i];
        skin.Selected = SkinHead::kSelected;
        const auto name = std::string(skin.Model.text());
        SCOPED_TRACE(name);
        applyTheme(*qobject_cast<QApplication*>(QApplication::instance()), themeOf(skin));
        SkinnedWindow window;
        giveTexts(window);
        QRect page;
        ApplyEditorSkin(window, tables, settings, [&](const PageLook& look) { page = look.place; });
        addFreeTexts(window, skin);
        window.tool("Table").setEnabled(false);
        window.control("btnAreaPrev").setEnabled(false);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        window.tool("Undo").setFocus(Qt::TabFocusReason);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window.tool("Link"), &press);
        for (auto* child : window.findChildren<QWidget*>()) {
            EXPECT_TRUE(window.rect().contains(child->geometry()) || child->parent() != &window)
                << child->objectName().toStdString();
        }
        EXPECT_TRUE(window.rect().contains(page));
        if (!shots.isEmpty())
            window.grab().save(shots + "/" + QString::fromStdString(name) + ".png");
    }
}

TEST(SkinShots, EveryTelephoneLightsTheKeyThatIsHeld)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadPreviewSkins(tables, store.settings, false);
    const auto shots = qEnvironmentVariable("QUILLMERE_SHOTS");
    for (std::size_t i = 0; i + 1 < tables.PreviewSkins.size(); ++i) {
        for (auto& skin : tables.PreviewSkins)
            skin.Selected
                = &skin == &tables.PreviewSkins[i] ? SkinHead::kSelected : std::int16_t(0);
        SkinnedPreview window;
        ApplyPreviewSkin(window, tables, store.settings, nullptr);
        const auto* body = window.findChild<QLabel*>("picSkin");
        for (const auto* caption : {"lblCardCaption", "lblTaskCaption"}) {
            auto* label = window.findChild<QLabel*>(caption);
            label->setAutoFillBackground(true);
            label->setAlignment(Qt::AlignCenter);
            label->setText(caption == QLatin1String("lblCardCaption") ? "Willkommen" : "Auswahl");
        }
        window.findChild<QLabel*>("lblAddress")->setText("Adresse:");
        window.findChild<QLineEdit*>("txtAdress")->setText("~/cafe/index.wml");
        window.resize(std::max(body->geometry().right() + 20, 399), body->geometry().bottom() + 20);
        window.show();
        const auto rest = window.grab().toImage();
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.findChild<ToolLabel*>("lblButtonCommit"), &press);
        const auto held = window.grab();
        EXPECT_NE(held.toImage(), rest);
        if (!shots.isEmpty()) held.save(shots + QString("/telephone-%1.png").arg(i));
    }
}

/// One of each control, for the pictures: at rest, chosen, disabled, deleting, accepting.
class SampleDialog : public QDialog {
public:
    SampleDialog()
    {
        setWindowTitle("Tabelle");
        auto* rows = new QFormLayout(this);
        auto* field = new QLineEdit(QString::fromUtf8("Öffnungszeiten"), this);
        rows->addRow("&Titel:", field);
        auto* list = new QComboBox(this);
        list->addItems({"Links", "Mittig", "Rechts"});
        rows->addRow("&Ausrichtung:", list);
        auto* off = new QLineEdit("45", this);
        off->setEnabled(false);
        rows->addRow("&Breite:", off);
        for (const bool on : {true, false}) {
            auto* box = new QCheckBox(QString::fromUtf8("Seitenverhältnis"), this);
            box->setChecked(on);
            rows->addRow(box);
            auto* choice = new QRadioButton("Bereich dieses Dokuments", this);
            choice->setAutoExclusive(false);
            choice->setChecked(on);
            rows->addRow(choice);
        }
        auto* text = new QPlainTextEdit(QString("Zeile\n").repeated(40), this);
        text->setMaximumHeight(90);
        rows->addRow(text);
        rows->addRow(buttons());
    }

private:
    QHBoxLayout* buttons()
    {
        auto* row = new QHBoxLayout;
        auto* remove = new QPushButton(QString::fromUtf8("&Löschen"), this);
        markAsDanger(*remove);
        auto* cancel = new QPushButton("Abbrechen", this);
        auto* accept = new QPushButton("OK", this);
        accept->setDefault(true);
        row->addWidget(remove);
        row->addStretch();
        row->addWidget(cancel);
        row->addWidget(accept);
        return row;
    }
};

TEST(SkinShots, ADialogTakesTheColoursOfEverySkin)
{
    const SkinSettings store(kSkins);
    SkinTables tables;
    ReadEditorSkins(tables, store.settings);
    const auto shots = qEnvironmentVariable("QUILLMERE_SHOTS");
    for (std::size_t i = 0; i + 1 < tables.EditorSkins.size(); ++i) {
        const auto theme = themeOf(tables.EditorSkins[i]);
        applyTheme(*qobject_cast<QApplication*>(QApplication::instance()), theme);
        SampleDialog dialog;
        dialog.show();
        QApplication::processEvents();
        const auto picture = dialog.grab();
        EXPECT_EQ(picture.toImage().pixelColor(3, 3), theme.shell);
        if (!shots.isEmpty()) picture.save(shots + QString("/dialog-%1.png").arg(i));
    }
}

} // namespace
} // namespace quillmere
