// Held by tests/editor/dialogs/frm_text_format_test.cpp.

#include "editor/dialogs/frm_justify.h"

#include "document/platform/word_ids.h"

#include <QIcon>
#include <QPainter>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr std::array kCaptions{"&Linksbündig", "&Zentriert", "&Rechtsbündig"};
constexpr std::array kLineLengths{18, 10, 16, 8}; // of 20
constexpr int kPictureSizePx = 20;
constexpr int kLineStepPx = 4;

/// Lines of text that are aligned so.
QIcon alignmentPicture(const QWidget& form, Alignment alignment)
{
    const qreal ratio = form.devicePixelRatioF();
    QPixmap picture(QSize(kPictureSizePx, kPictureSizePx) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    int top = 3;
    for (const int length : kLineLengths) {
        const int rest = kPictureSizePx - length;
        const int left = alignment == Alignment::Left ? 0
            : alignment == Alignment::Center          ? rest / 2
                                                      : rest;
        painter.fillRect(left, top, length, 2, form.palette().windowText());
        top += kLineStepPx;
    }
    return {picture};
}

} // namespace

frmJustify::frmJustify(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmJustify", parent)
{
    setWindowTitle("Ausrichten");
    optFrame->setTitle("Ausrichtung");
    for (std::size_t i = 0; i < optSchrift.size(); ++i) {
        optSchrift.at(i)->setText(QString::fromUtf8(kCaptions.at(i)));
        optSchrift.at(i)->setIcon(alignmentPicture(*this, static_cast<Alignment>(i)));
        optSchrift.at(i)->setProperty("arrayIndex", static_cast<int>(i));
    }
    btnOk->setText("&OK");
    layOut();
    onClick(btnOk, &frmJustify::btnOk_Click);
}

void frmJustify::layOut()
{
    auto* buttons = new QVBoxLayout(optFrame);
    for (auto* button : optSchrift)
        buttons->addWidget(button);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(optFrame);
    rows->addStretch();
    rows->addLayout(buttonRow(btnOk, nullptr));
}

SourceRange frmJustify::marked() const
{
    const auto range = FindMarkedRange(designText(), surface().selection());
    if (!range || range->Start < 1) return {surface().caretOffset(), surface().caretOffset()};
    const auto begin = static_cast<std::size_t>(range->Start) - 1;
    return {begin, std::max(begin, static_cast<std::size_t>(range->End))};
}

void frmJustify::SetInitializations()
{
    loadTexts();
    const bool isNoted = holdsPicture(designText(), marked(), rules())
        && isYes(session().settings, "ShowImageMessage");
    if (isNoted) static_cast<void>(session().messages.showNote(Note::ImageLayout));
    const auto alignment = alignmentOf(designText(), marked(), rules());
    auto* shown = optSchrift.at(static_cast<std::size_t>(alignment));
    shown->setChecked(true);
    shown->setFocus();
}

void frmJustify::btnOk_Click()
{
    for (std::size_t i = 0; i < optSchrift.size(); ++i) {
        if (!optSchrift.at(i)->isChecked()) continue;
        return align(static_cast<Alignment>(i));
    }
}

void frmJustify::align(Alignment wanted)
{
    const auto text = designText();
    const auto aligned = alignLines(text, marked(), wanted, rules());
    if (aligned.text != text) return apply(aligned.text, aligned.marked);
    if (wanted != Alignment::Left && takesNoAlignment(text, marked(), rules()))
        session().messages.show(word::kTakesNoAlignment, {}, MessageIcon::Warning);
    accept();
}

} // namespace quillmere
