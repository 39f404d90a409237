// Held by tests/editor/dialogs/frm_text_format_test.cpp.

#include "editor/dialogs/frm_text_format.h"

#include "document/platform/word_ids.h"
#include "editor/elements/crossed_pairs.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace quillmere {

namespace {

constexpr double kBigFactor = 1.35;
constexpr double kSmallFactor = 0.75;
constexpr int kPreviewHeightPx = 48;
constexpr qsizetype kPreviewLength = 24;

int wordFor(CrossedPair pair)
{
    if (pair == CrossedPair::Select) return word::kSelectionCrossesSelect;
    return pair == CrossedPair::Option ? word::kSelectionCrossesOption
                                       : word::kSelectionCrossesTable;
}

void setBox(QCheckBox& box, const std::optional<bool>& isOn)
{
    box.setTristate(!isOn);
    box.setCheckState(!isOn ? Qt::PartiallyChecked : *isOn ? Qt::Checked : Qt::Unchecked);
}

std::optional<bool> boxState(const QCheckBox& box)
{
    if (box.checkState() == Qt::PartiallyChecked) return std::nullopt;
    return box.isChecked();
}

} // namespace

frmTextFormat::frmTextFormat(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmTextFormat", parent)
{
    setWindowTitle("Text formatieren");
    Frame1->setTitle("Schriftstil");
    chkBold->setText("&Fett");
    chkItalic->setText("&Kursiv");
    chkUnderline->setText("&Unterstrichen");
    optFrame->setTitle("Schriftgröße");
    optSchrift[0]->setText("&Normal");
    optSchrift[1]->setText("&Groß");
    optSchrift[2]->setText("K&lein");
    for (int i = 0; i < 3; ++i)
        optSchrift.at(static_cast<std::size_t>(i))->setProperty("arrayIndex", i);
    lblPreview->setText("Vorschau:");
    lblPreviour->setText("AaBbÄäÖö");
    btnOk->setText("&OK");
    layOut();
    wire();
}

void frmTextFormat::layOut()
{
    auto* boxes = new QVBoxLayout(Frame1);
    for (auto* box : {chkBold, chkItalic, chkUnderline})
        boxes->addWidget(box, 0, Qt::AlignLeft);
    auto* sizes = new QVBoxLayout(optFrame);
    for (auto* button : optSchrift)
        sizes->addWidget(button, 0, Qt::AlignLeft);
    lblPrevBackground->setFrameShape(QFrame::StyledPanel);
    lblPrevBackground->setAutoFillBackground(true);
    lblPrevBackground->setBackgroundRole(QPalette::Base);
    lblPrevBackground->setMinimumHeight(kPreviewHeightPx);
    lblPreviour->setAlignment(Qt::AlignCenter);
    lblPreviour->setTextFormat(Qt::PlainText);
    (new QVBoxLayout(lblPrevBackground))->addWidget(lblPreviour);
    auto* grid = new QGridLayout(this);
    grid->addWidget(Frame1, 0, 0);
    grid->addWidget(optFrame, 0, 1);
    grid->addWidget(lblPreview, 1, 0, 1, 2);
    grid->addWidget(lblPrevBackground, 2, 0, 1, 2);
    grid->addLayout(buttonRow(btnOk, nullptr), 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
}

void frmTextFormat::wire()
{
    onClick(btnOk, &frmTextFormat::btnOk_Click);
    for (auto* box : {chkBold, chkItalic, chkUnderline})
        connect(box, &QCheckBox::stateChanged, this, &frmTextFormat::showPreview);
    for (auto* button : optSchrift)
        connect(button, &QRadioButton::toggled, this, &frmTextFormat::showPreview);
}

std::optional<SourceRange> frmTextFormat::marked() const
{
    const auto range = FindMarkedRange(designText(), surface().selection());
    if (!range || range->End < range->Start) return std::nullopt;
    return SourceRange{
        static_cast<std::size_t>(range->Start) - 1, static_cast<std::size_t>(range->End)};
}

bool frmTextFormat::CheckIfIsValidMarked()
{
    const auto range = marked();
    if (!range) return false;
    const auto text = designText();
    if (const auto pair = crossedPair(text, *range)) {
        session().messages.show(wordFor(*pair), {}, MessageIcon::Critical);
        return false;
    }
    if (!takesNoFormats(text, *range, rules())) return true;
    session().messages.show(word::kTakesNoFormat, {}, MessageIcon::Warning);
    return false;
}

void frmTextFormat::SetInitializations()
{
    loadTexts();
    const auto range = marked();
    const auto formats = range ? formatsOf(designText(), *range, rules()) : TextFormats{};
    setBox(*chkBold, formats.bold);
    setBox(*chkItalic, formats.italic);
    setBox(*chkUnderline, formats.underlined);
    if (formats.size) optSchrift.at(static_cast<std::size_t>(*formats.size))->setChecked(true);
    const auto text = surface().selectedText().simplified();
    if (!text.isEmpty() && text.size() <= kPreviewLength) lblPreviour->setText(text);
    showPreview();
    chkBold->setFocus();
}

TextFormats frmTextFormat::shownFormats() const
{
    TextFormats formats{
        boxState(*chkBold), boxState(*chkItalic), boxState(*chkUnderline), std::nullopt};
    for (std::size_t i = 0; i < optSchrift.size(); ++i)
        if (optSchrift.at(i)->isChecked()) formats.size = static_cast<LetterSize>(i);
    return formats;
}

void frmTextFormat::showPreview()
{
    const auto formats = shownFormats();
    auto font = this->font();
    font.setBold(formats.bold.value_or(false));
    font.setItalic(formats.italic.value_or(false));
    font.setUnderline(formats.underlined.value_or(false));
    const auto size = formats.size.value_or(LetterSize::Normal);
    const double factor = size == LetterSize::Big ? kBigFactor
        : size == LetterSize::Small               ? kSmallFactor
                                                  : 1;
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    lblPreviour->setFont(font);
}

void frmTextFormat::btnOk_Click()
{
    const auto range = marked();
    if (!range) return reject();
    const auto text = designText();
    const auto formatted = formatText(text, *range, shownFormats(), rules());
    if (formatted.text == text) return accept();
    apply(formatted.text, formatted.marked);
}

} // namespace quillmere
