// Where everything stands and how it looks. The skin's records place the controls; without a skin
// the places below hold, which are those of a design without pictures. Held by
// frm_prepare_tools_test.cpp.

#include "editor/window/frm_prepare.h"

#include "forms/overlay.h"
#include "forms/skin_application.h"
#include "forms/text.h"
#include "forms/theme.h"
#include "skins/skin_controls.h"

#include <QApplication>

namespace quillmere {
namespace {

struct Place {
    const char* control;
    int left;
    int top;
    int width;
    int height;
};

constexpr QSize kWindowSize(960, 700);

constexpr Place kPlaces[] = {
    {"lblDeckName", 152, 12, 280, 36},
    {"lblCurAreaCaption", 138, 160, 330, 32},
    {"lblCharCount", 476, 160, 144, 32},
    {"objBrowserCard", 138, 204, 782, 420},
    {"txtScript", 138, 204, 782, 420},
    {"lblToolTipForbtnAreaPrev", 138, 636, 275, 32},
    {"lblToolTipAreaNext", 645, 636, 275, 32},
    {"btnShowProjekt", 808, 160, 112, 32},
    {"btnScript", 636, 160, 164, 32},
    {"btnAreaPrev", 429, 636, 36, 32},
    {"btnAreaOne", 473, 636, 112, 32},
    {"btnAreaNext", 593, 636, 36, 32},
    {"lblButtonMove", 152, 8, 700, 44},
    {"lblButtonMinimize", 860, 12, 36, 36},
    {"lblButtonClose", 904, 12, 36, 36},
};

constexpr int kScrollBarWidth = 14;
constexpr int kNoteFontPx = 12;

struct DesignText {
    const char* control;
    const char* text;
    const char* toolTip;
};

constexpr DesignText kDesignTexts[] = {
    {"lblToolTipForbtnAreaPrev", "Erster Bereich erreicht. Weiter vorblättern nicht möglich!", ""},
    {"lblToolTipAreaNext", "Letzter Bereich erreicht. Weiter blättern nicht möglich!", ""},
    {"btnShowProjekt", "Projekt", "Dokumente des Projektverzeichnisses"},
    {"btnScript", "Quelltext", "Den WML-Text des Dokumentes zeigen"},
    {"btnAreaPrev", "", "Voriger Bereich (Strg+Bild auf)"},
    {"btnAreaNext", "", "Nächster Bereich (Strg+Bild ab)"},
    {"btnAreaOne", "", "Grafische Ansicht"},
    {"lblCharCount", "", "Zeichen des gezeigten Bereichs"},
};

const SkinItem& itemOf(const SkinRecord& skin, SkinPart part)
{
    return skin.items.at(static_cast<std::size_t>(part));
}

/// How the pages of new areas look: like the surface.
PageStyle pageStyleOf(const SkinItem& item)
{
    return {item.BackColor, item.FontSize, std::string(item.FontName.text())};
}

} // namespace

void frmPrepare::layOut()
{
    setFixedSize(kWindowSize);
    auto* scrollDummy = named<QWidget>("objScrollDummy", this);
    scrollDummy->resize(kScrollBarWidth, 0);
    scrollDummy->hide();
    for (const auto& place : kPlaces)
        findChild<QWidget*>(QLatin1String(place.control))
            ->setGeometry(place.left, place.top, place.width, place.height);
    for (const auto& text : kDesignTexts) {
        auto* control = findChild<QWidget*>(QLatin1String(text.control));
        if (*text.text != '\0') control->setProperty("text", QString::fromUtf8(text.text));
        control->setToolTip(QString::fromUtf8(text.toolTip));
    }
    for (auto* button : {btnAreaPrev, btnAreaNext}) // pictures alone; the others' texts tell more
        button->setAccessibleName(button->toolTip());
    for (auto* label : {lblDeckName, lblCurAreaCaption, lblCharCount, lblToolTipForbtnAreaPrev,
             lblToolTipAreaNext}) {
        label->setTextFormat(Qt::PlainText);
        label->setAttribute(Qt::WA_TransparentForMouseEvents, label == lblDeckName);
    }
    lblToolTipAreaNext->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblCharCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblToolTipAreaNext->setWordWrap(true);
    lblToolTipForbtnAreaPrev->setWordWrap(true);
    txtScript->hide();
    lblDeckName->raise();
}

QString frmPrepare::resourceText(std::int16_t number, const char* otherwise) const
{
    const auto* entry = findForm(session_.forms.table(), "frmPrepare", number);
    const bool isThere = entry != nullptr && !entry->Caption.empty();
    return isThere ? shownText(entry->Caption) : QString::fromUtf8(otherwise);
}

void frmPrepare::applySkin()
{
    applyTheme(*qobject_cast<QApplication*>(QApplication::instance()), activeTheme(session_.skins));
    ApplyEditorSkin(*this, session_.skins, session_.settings, [this](const PageLook& look) {
        objBrowserCard->setGeometry(look.place);
        skinLook_ = objBrowserCard->look();
        skinLook_->ink = look.fgColor;
        skinLook_->ground = look.bgColor;
        skinLook_->fontSizePx = look.fontSizePx;
        skinLook_->fontFamily = look.fontFamily;
    });
    if (const auto* skin = activeEditorSkin(session_.skins)) takeSkin(*skin);
    SetWindowOutline(*this, session_.settings, outline_);
    applySurfaceLook();
}

/// What no item of the skin is for.
void frmPrepare::takeSkin(const SkinRecord& skin)
{
    const auto places = freePlaces(skin);
    lblDeckName->setGeometry(places.fileName);
    lblCharCount->setGeometry(places.characters);
    lblToolTipForbtnAreaPrev->setGeometry(places.firstNote);
    lblToolTipAreaNext->setGeometry(places.lastNote);
    auto muted = palette();
    muted.setColor(QPalette::WindowText, themeOf(skin).muted);
    for (auto* label : {lblDeckName, lblCharCount, lblToolTipForbtnAreaPrev, lblToolTipAreaNext}) {
        auto font = lblCurAreaCaption->font();
        font.setPixelSize(kNoteFontPx);
        label->setFont(font);
        label->setPalette(muted);
    }
    pageStyle_ = pageStyleOf(itemOf(skin, SkinPart::Surface));
    session_.document.devices.front() = &pageStyle_;
}

void frmPrepare::applySurfaceLook()
{
    if (!mActivated || !skinLook_) return;
    const auto& shown = objBrowserCard->look();
    const bool isSame = shown.ink == skinLook_->ink && shown.ground == skinLook_->ground
        && shown.fontFamily == skinLook_->fontFamily && shown.fontSizePx == skinLook_->fontSizePx;
    if (!isSame) objBrowserCard->setLook(*skinLook_); // builds the page anew
}

void frmPrepare::popUp(QMenu& menu, const char* tool)
{
    session_.gSurfaceActive = false;
    const auto* label = findChild<ToolLabel*>(QLatin1String("lblButton") + QLatin1String(tool));
    menu.popup(label->mapToGlobal(QPoint(0, label->height())));
}

} // namespace quillmere
