// All that may be refused is looked at first; the files are written then. Held by
// tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/frm_area.h"

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/images.h"
#include "document/platform/word_ids.h"
#include "editor/elements/jump_edit.h"
#include "editor/elements/typed_values.h"
#include "forms/text.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr const char* kNewTitle = "Nicht festgelegt";
constexpr const char* kNewId = "Bereich"; // and a number

QString typed(std::string_view markup)
{
    return QString::fromStdU16String(typedFrom(markup));
}

int wordFor(CardIdFault fault)
{
    switch (fault) {
    case CardIdFault::Empty:
        return word::kAreaNeedsName;
    case CardIdFault::BadCharacter:
        return word::kAreaNameBadCharacter;
    case CardIdFault::BadBegin:
        return word::kAreaNameBadBegin;
    case CardIdFault::None:
        break;
    }
    return word::kAreaNameTaken;
}

std::string valueOf(const QLineEdit& field)
{
    return valueMarkup(field.text().trimmed().toStdU16String());
}

} // namespace

frmArea::frmArea(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmArea", parent)
{
    setWindowTitle("Bereichseinstellungen");
    objFrmCurArea->setTitle("Titel");
    lblId->setText("&Name (Id):");
    lblTitle->setText("&Titel:");
    lblId->setBuddy(txtId);
    lblTitle->setBuddy(txtTitle);
    objFrmSelectButton->setTitle("Beschriftung des Auswahl-Buttons");
    txtJumpSelectionCaption->setAccessibleName("Beschriftung des Auswahl-Buttons");
    txtJumpSelectionCaption->setPlaceholderText("leer: kein Sprung");
    btnNew->setText("&OK");
    btnDelete->setText("&Löschen");
    layOut();
    onClick(btnNew, &frmArea::btnNew_Click);
    onClick(btnDelete, &frmArea::btnDelete_Click);
}

void frmArea::layOut()
{
    auto* grid = new QGridLayout(objFrmCurArea);
    grid->addWidget(lblId, 0, 0);
    grid->addWidget(txtId, 0, 1);
    grid->addWidget(lblTitle, 1, 0);
    grid->addWidget(txtTitle, 1, 1);
    (new QVBoxLayout(objFrmSelectButton))->addWidget(txtJumpSelectionCaption);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(objFrmCurArea);
    rows->addWidget(objFrmSelectButton);
    rows->addWidget(objFrmLink);
    rows->addStretch();
    rows->addLayout(buttonRow(btnNew, btnDelete));
    txtTitle->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
}

void frmArea::SetInitializations(bool newElement)
{
    loadTexts();
    NewElement = newElement;
    objFrmLink->fillAreas(formText(text_variant::kAreaText, "Bereich"));
    objFrmLink->setDefaults();
    btnDelete->setVisible(!NewElement);
    if (NewElement) {
        setWindowTitle(formText(text_variant::kNewText, "Bereich einfügen"));
        txtId->setText(typed(freeId()));
        txtTitle->setText(kNewTitle);
    } else {
        showArea();
    }
    txtTitle->selectAll();
    txtTitle->setFocus();
}

void frmArea::showArea()
{
    const auto card = GetCardAttributes(session().document, area());
    txtId->setText(typed(card.id));
    txtTitle->setText(typed(card.title));
    shownJump_ = GetJump(session().document, area());
    txtJumpSelectionCaption->setText(typed(shownJump_.label));
    if (!shownJump_.target.empty()) objFrmLink->setTarget(shownJump_.target);
}

/// The id that a new area gets.
std::string frmArea::freeId() const
{
    auto number = areaCount(session().document.deck);
    std::string id;
    do {
        id = kNewId + std::to_string(++number);
    } while (hasId(areaCount(session().document.deck), id));
    return id;
}

/// Whether an area other than `areaIndex` has the id.
bool frmArea::hasId(std::size_t areaIndex, const std::string& id) const
{
    for (std::size_t i = 0; i < areaCount(session().document.deck); ++i)
        if (i != areaIndex && GetCardAttributes(session().document, i).id == id) return true;
    return false;
}

bool frmArea::hasGoodId() const
{
    const auto id = coreText(txtId->text().trimmed());
    const auto index = NewElement ? areaCount(session().document.deck) : area();
    const bool isKept = !NewElement && id == GetCardAttributes(session().document, index).id;
    if (isKept) return true;
    const auto fault = cardIdFault(id);
    if (fault == CardIdFault::None && !hasId(index, id)) return true;
    complain(wordFor(fault), *txtId);
    return false;
}

/// AddArea links the last area to the id that it gives the new one. Where another area has that id,
/// as after one was deleted, the link is made here, to the id that the area is to get.
void frmArea::linkFromLast()
{
    auto& document = session().document;
    const auto count = areaCount(document.deck);
    const bool isTaken = hasId(count, kNewId + std::to_string(count + 1));
    if (!isTaken || !GetJump(document, count - 1).target.empty()) return;
    SetJump(document, count - 1,
        {{}, session().words.GetWord(word::kJumpLabel), "#" + coreText(txtId->text().trimmed())});
}

void frmArea::addArea()
{
    auto& document = session().document;
    const auto first = document.deck.front();
    linkFromLast();
    AddArea(document, false, first.deckFile, first.deckDir);
    document.currentArea = static_cast<int>(areaCount(document.deck)) - 1;
}

void frmArea::setIdAndTitle()
{
    auto& document = session().document;
    const auto card = GetCardAttributes(document, area());
    const auto id = coreText(txtId->text().trimmed());
    const auto title = valueOf(*txtTitle);
    if (card.id == id && card.title == title) return;
    SetCardAttributes(document, area(), id, title);
    if (card.id != id && !card.id.empty() && !hasId(area(), card.id)) renameTargets(card.id, id);
}

void frmArea::renameTargets(const std::string& oldId, const std::string& newId)
{
    const auto texts = designTexts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto renamed = withTargetsRenamed(texts[i], oldId, newId, rules());
        if (renamed != texts[i]) WriteDesignText(session().document, i, renamed);
    }
}

std::vector<std::string> frmArea::designTexts() const
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < areaCount(session().document.deck); ++i)
        texts.push_back(ReadDesignText(session().document, i));
    return texts;
}

void frmArea::setJump(const Jump& wanted)
{
    auto& document = session().document;
    const auto jump = GetJump(document, area());
    if (wanted.label.empty()) {
        const auto text = designText();
        const auto without = withoutDoBlock(text, rules());
        if (!jump.label.empty() && without != text) WriteDesignText(document, area(), without);
    } else if (wanted.label != jump.label || wanted.target != jump.target) {
        SetJump(document, area(), {{}, wanted.label, wanted.target});
    }
}

void frmArea::keepState()
{
    session().window->setDocChanged(true);
    session().window->RefreshSurface();
    PushUndo(session().document, -1, surface().DocumentHTML());
    if (session().afterStore) session().afterStore(true);
    accept();
}

void frmArea::btnNew_Click()
{
    if (!hasGoodId()) return;
    Jump wanted{{}, valueOf(*txtJumpSelectionCaption), {}};
    const auto address = objFrmLink->address().text().trimmed();
    const bool hasNewAddress = !address.isEmpty() && address != typed(shownJump_.target);
    if (wanted.label.empty() && hasNewAddress && shownJump_.label.empty())
        return complain(word::kJumpNeedsCaption, *txtJumpSelectionCaption);
    if (!wanted.label.empty()) wanted.target = objFrmLink->target();
    if (!wanted.label.empty() && wanted.target.empty())
        return complain(word::kTargetMissing, objFrmLink->address());
    const auto before = designTexts();
    const int shownArea = session().document.currentArea;
    const auto oldId = NewElement ? "" : GetCardAttributes(session().document, area()).id;
    try {
        write(wanted);
        if (!oldId.empty()) renameInHistories(oldId);
    } catch (...) {
        putBack(before, shownArea);
        throw;
    }
    keepState();
}

void frmArea::write(Jump wanted)
{
    auto& document = session().document;
    const auto oldId = NewElement ? std::string() : GetCardAttributes(document, area()).id;
    if (NewElement) addArea();
    setIdAndTitle();
    if (wanted.target == "#" + oldId) wanted.target = "#" + GetCardAttributes(document, area()).id;
    setJump(wanted);
}

void frmArea::renameInHistories(const std::string& oldId)
{
    auto& document = session().document;
    const auto newId = GetCardAttributes(document, area()).id;
    if (newId == oldId || hasId(area(), oldId)) return;
    std::vector<std::vector<std::string>> histories;
    for (std::size_t i = 0; i < areaCount(document.deck); ++i) {
        auto& history = histories.emplace_back(document.deck.at(i).history);
        for (auto& state : history)
            state = stateWithIdRenamed(state, oldId, newId, rules());
    }
    for (std::size_t i = 0; i < histories.size(); ++i)
        document.deck.at(i).history.swap(histories[i]);
}

/// The areas with the texts that they had.
void frmArea::putBack(const std::vector<std::string>& texts, int shownArea)
{
    auto& document = session().document;
    document.currentArea = shownArea;
    while (areaCount(document.deck) > texts.size())
        RemoveArea(document, areaCount(document.deck) - 1, false);
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (ReadDesignText(document, i) != texts[i]) WriteDesignText(document, i, texts[i]);
}

void frmArea::btnDelete_Click()
{
    if (!confirms(word::kDeleteArea)) return;
    auto& document = session().document;
    const bool isLast = areaCount(document.deck) < 2;
    const auto id = GetCardAttributes(document, area()).id;
    RemoveArea(document, area(), isLast);
    const int last = static_cast<int>(areaCount(document.deck)) - 1;
    document.currentArea = std::clamp(document.currentArea, 0, std::max(last, 0));
    session().window->setDocChanged(!isLast);
    session().window->RefreshSurface();
    if (session().afterStore) session().afterStore(!isLast);
    accept();
    tellWhatLeadsTo(id);
}

/// Names the areas from which something leads to an area that is gone.
void frmArea::tellWhatLeadsTo(const std::string& id)
{
    auto& document = session().document;
    QStringList areas;
    for (std::size_t i = 0; i < areaCount(document.deck); ++i)
        if (!id.empty() && !hasId(areaCount(document.deck), id)
            && leadsTo(ReadDesignText(document, i), id))
            areas.append(
                formText(text_variant::kAreaText, "Bereich") + ' ' + QString::number(i + 1));
    if (areas.isEmpty()) return;
    const std::array gaps{id, coreText(areas.join(", "))};
    session().messages.show(word::kStillLeadsTo, gaps, MessageIcon::Warning);
}

} // namespace quillmere
