#include "forms/frm_about_quillmere.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr int kLogoPx = 64;
constexpr int kTextWidthPx = 360;

} // namespace

frmAboutQuillmere::frmAboutQuillmere(Session& session, QWidget* parent)
    : Form(session, "frmAboutQuillmere", parent)
{
    setWindowTitle("\u00dcber Quillmere");
    lblName->setText("MORVANE Quillmere");
    lblVersion->setText(QApplication::applicationVersion());
    lblDescription->setText("Quillmere ist ein Autorenwerkzeug f\u00fcr WAP-Seiten: WML-Dokumente "
                            "werden so bearbeitet, wie ein Telefon sie zeigt.");
    lblLicences->setText("Die Oberfl\u00e4che nutzt Qt (LGPL) und Zeichen von Lucide (ISC).");
    btnOk->setText("&OK");
    btnOk->setDefault(true);
    layOut();
    connect(btnOk, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAboutQuillmere::layOut()
{
    auto large = font();
    large.setWeight(QFont::DemiBold);
    large.setPointSizeF(large.pointSizeF() * 1.4);
    lblName->setFont(large);
    picLogo->setPixmap(QApplication::windowIcon().pixmap(kLogoPx));
    auto* texts = new QVBoxLayout;
    for (auto* label : {lblName, lblVersion, lblDescription, lblLicences}) {
        label->setWordWrap(true);
        label->setMinimumWidth(kTextWidthPx);
        texts->addWidget(label);
    }
    texts->setSpacing(8);
    texts->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnOk);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(picLogo, 0, Qt::AlignTop);
    top->addLayout(texts);
    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addLayout(top);
    rows->addSpacing(8);
    rows->addLayout(buttons);
}

} // namespace quillmere
