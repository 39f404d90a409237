#include "forms/overlay.h"

#include "gui/window_session.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

namespace quillmere {
namespace {

/// A form with one control of each kind, and the resources of a test.
struct Overlay : testing::Test {
    test::WindowSession program;
    QWidget form;
    QLabel* lblText = add<QLabel>("lblText");
    QPushButton* first = add<QPushButton>("btnChoice");
    QPushButton* second = add<QPushButton>("btnChoice");
    QPushButton* btnPlain = add<QPushButton>("btnPlain");
    QListWidget* lstItems = add<QListWidget>("lstItems");
    QComboBox* cboItems = add<QComboBox>("cboItems");
    QTabWidget* tabPages = add<QTabWidget>("tabPages");
    QLineEdit* txtValue = add<QLineEdit>("txtValue");

    Overlay()
    {
        form.setObjectName("frmProbe");
        form.setWindowTitle("Entwurf");
        lblText->setText("Entwurf");
        btnPlain->setText("Entwurf");
        first->setProperty("arrayIndex", 0);
        second->setProperty("arrayIndex", 1);
        lstItems->addItem("Entwurf");
        tabPages->addTab(new QWidget, "Entwurf");
        txtValue->setText("Wert");
    }
    template <class Control> Control* add(const char* name)
    {
        auto* control = new Control(&form);
        control->setObjectName(name);
        return control;
    }
    void read(const std::string& text)
    {
        const auto skins = program.settings.ReadSetting("Skins");
        for (const char* compiled : {"ResForms1.res", "ResForms2.res"})
            std::filesystem::remove(skins + compiled);
        (void)program.folder.put("Skins/ResForms.ini", text);
        program.forms.LoadFormResources(program.settings);
    }
    QStringList items() const
    {
        QStringList texts;
        for (int i = 0; i < lstItems->count(); ++i)
            texts << lstItems->item(i)->text();
        return texts;
    }
};

TEST_F(Overlay, GivesEachControlWhatItHasAPlaceFor)
{
    QImage(3, 2, QImage::Format_RGB32)
        .save(QString::fromStdString(program.folder.path()) + "Skins/bild.png");
    read("<Form id=FRMPROBE skip=-1 caption=\"Neuer Titel\" img=fehlt.png>"
         "<control id=LBLTEXT tooltip=\"ein Hinweis\">&Uuml;ber <b>alles</b></control>"
         "<control id=btnChoice index=1>zwei</control>"
         "<control id=btnChoice index=0 img=bild.png>eins</control>"
         "<control id=btnPlain img=fehlt.png></control>"
         "<control id=lstItems list=\"a;b;c\"></control>"
         "<control id=cboItems list=\"x;y;\"></control>"
         "<control id=tabPages list=\"Blatt;zu viel\"></control>"
         "<control id=txtValue>kein Titel</control>"
         "<control id=nobody>x</control>"
         "</Form>");
    OverlayForm(form, program.session);
    EXPECT_EQ(form.windowTitle(), "Neuer Titel");
    EXPECT_EQ(lblText->text(), "&Uuml;ber <b>alles</b>");
    EXPECT_EQ(lblText->toolTip(), "ein Hinweis");
    EXPECT_EQ(first->text() + second->text(), "einszwei");
    EXPECT_EQ(first->iconSize(), QSize(3, 2));
    EXPECT_TRUE(second->icon().isNull());
    EXPECT_EQ(btnPlain->text(), "Entwurf");
    EXPECT_EQ(items(), (QStringList{"Entwurf", "a", "b", "c"}));
    EXPECT_EQ(cboItems->count(), 2);
    EXPECT_EQ(tabPages->count(), 1);
    EXPECT_EQ(tabPages->tabText(0), "Blatt");
    EXPECT_EQ(txtValue->text(), "Wert");
}

TEST_F(Overlay, AFormKeepsItsTextsWithoutAnEntryOfItsVariant)
{
    read("<Form id=frmProbe skip=2 caption=anders><control id=lblText>anders</control></Form>"
         "<Form id=frmProbe2 skip=-1 caption=anders><control id=lblText>anders</control></Form>");
    OverlayForm(form, program.session);
    EXPECT_FALSE(OverlayControlText(form, *lblText, "lblText", program.session));
    EXPECT_EQ(form.windowTitle() + lblText->text(), "EntwurfEntwurf");
    OverlayForm(form, program.session, 2);
    EXPECT_EQ(form.windowTitle() + lblText->text(), "andersanders");
}

} // namespace
} // namespace quillmere
