// The notes are the rows of kNotes. Held by tests/forms/messages_test.cpp.

#include "forms/frm_message.h"

#include "document/platform/word_ids.h"
#include "forms/message_icon.h"
#include "forms/text.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>

namespace quillmere {

namespace {

struct NoteRule {
    Note kind = Note::Plain;
    int text = 0; ///< a word
    int ok = 0; ///< the word on btnOk; 0 leaves what stands there, and no other answer
    std::string_view setting; ///< "" for a note that cannot be silenced
};

constexpr NoteRule kNotes[] = {
    {Note::Option, word::kNoteOption, 0, "ShowOptionMessage"},
    {Note::Image, word::kNoteImage, 0, "ShowImageMessage"},
    {Note::Plain, word::kNotePlain, 0, {}},
    {Note::ImageLayout, word::kNoteImageLayout, 0, "ShowImageMessage"},
    {Note::SelectRepair, word::kNoteSelectRepair, word::kNoteSelectRepairYes,
        "ShowSelectTagCorrectMessage"},
};

const NoteRule& ruleOf(Note kind)
{
    return *std::find_if(std::begin(kNotes), std::end(kNotes),
        [kind](const NoteRule& rule) { return rule.kind == kind; });
}

constexpr int kTextWidthPx = 380;

} // namespace

frmMessage::frmMessage(Session& session, QWidget* parent)
    : Form(session, "frmMessage", parent)
{
    chkShowNote->setText("Diesen Hinweis nicht mehr anzeigen");
    btnOk->setText("&OK");
    btnOk->setDefault(true);
    btnCancel->setText("&Nein");
    btnCancel->setAutoDefault(false);
    layOut();
    connect(btnOk, &QPushButton::clicked, this, [this] { trap([this] { btnOk_Click(); }); });
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmMessage::layOut()
{
    picOpenTemplate->setPixmap(
        messageIcon(MessageIcon::None, activeTheme(session().skins), devicePixelRatioF()));
    lblDescription->setTextFormat(Qt::PlainText);
    lblDescription->setWordWrap(true);
    lblDescription->setMinimumWidth(kTextWidthPx);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnCancel);
    buttons->addWidget(btnOk);
    auto* rows = new QGridLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->setHorizontalSpacing(16);
    rows->setVerticalSpacing(16);
    rows->addWidget(picOpenTemplate, 0, 0, Qt::AlignTop);
    rows->addWidget(lblDescription, 0, 1);
    rows->addWidget(chkShowNote, 1, 1, Qt::AlignLeft);
    rows->addLayout(buttons, 2, 0, 1, 2);
}

void frmMessage::SetInitializations(Note kind)
{
    loadTexts();
    Cancelled = true;
    MessageKind = kind;
    const auto& rule = ruleOf(kind);
    const auto& words = session().words;
    if (windowTitle().isEmpty()) setWindowTitle(shownText(words.GetWord(word::kNoteCaption)));
    lblDescription->setText(shownText(words.GetWord(rule.text)));
    chkShowNote->setChecked(false);
    chkShowNote->setHidden(rule.setting.empty());
    btnCancel->setHidden(rule.ok == 0);
    if (rule.ok != 0) btnOk->setText(shownText(words.GetWord(rule.ok)));
}

void frmMessage::btnOk_Click()
{
    Cancelled = false;
    const auto setting = ruleOf(MessageKind).setting;
    if (!setting.empty())
        session().settings.WriteSetting(setting, chkShowNote->isChecked() ? "No" : "Yes");
    accept();
}

} // namespace quillmere
