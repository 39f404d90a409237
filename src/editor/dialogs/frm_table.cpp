// Held by tests/editor/dialogs/element_forms_test.cpp.

#include "editor/dialogs/frm_table.h"

#include "document/platform/word_ids.h"
#include "editor/elements/typed_values.h"
#include "forms/text.h"

#include <QRandomGenerator>
#include <QTextCursor>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double kLeastTitleNumber = 10;
constexpr double kTitleNumbers = 990;

QString typed(std::string_view markup)
{
    return QString::fromStdU16String(typedFrom(markup));
}

} // namespace

frmTable::frmTable(Session& session, DesignSurface& surface, QWidget* parent)
    : ElementForm(session, surface, "frmTable", parent)
{
    setWindowTitle("Tabelle");
    lblTitel->setText("&Titel:");
    lblAlign->setText("A&usrichten:");
    lblRows->setText("&Zeilen:");
    lblColumns->setText("&Spalten:");
    lblTitel->setBuddy(txtTitle);
    lblAlign->setBuddy(cboAlign);
    lblRows->setBuddy(txtRows);
    lblColumns->setBuddy(txtColumns);
    btnNew->setText("&OK");
    btnDelete->setText("&Löschen");
    layOut();
    onClick(btnNew, &frmTable::btnNew_Click);
    onClick(btnDelete, &frmTable::btnDelete_Click);
}

void frmTable::layOut()
{
    auto* grid = new QGridLayout(objFrame);
    grid->addWidget(lblTitel, 0, 0);
    grid->addWidget(txtTitle, 0, 1, 1, 2);
    grid->addWidget(lblAlign, 1, 0);
    grid->addWidget(cboAlign, 1, 1, 1, 2);
    int row = 2;
    for (auto [label, field, scroll] : {std::tuple{lblRows, txtRows, objScrollRows},
             std::tuple{lblColumns, txtColumns, objScrollColumns}}) {
        scroll->setFixedHeight(field->sizeHint().height());
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(scroll, row++, 2);
    }
    grid->setColumnStretch(1, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(objFrame);
    rows->addStretch();
    rows->addLayout(buttonRow(btnNew, btnDelete));
    rows->setSizeConstraint(QLayout::SetFixedSize);
    txtTitle->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
}

void frmTable::SetInitializations(bool newElement, const Hit& hit)
{
    loadTexts();
    if (cboAlign->count() == 0) cboAlign->addItems({"Links", "Mittig", "Rechts"});
    mTableFound = hit.Inside;
    mTablePos = searchPosition(hit);
    NewElement = newElement || !mTableFound;
    setWindowTitle(NewElement ? formText(text_variant::kNewText, "Tabelle einfügen")
                              : formText(text_variant::kEditText, "Tabelle bearbeiten"));
    const double number = QRandomGenerator::global()->generateDouble() * kTitleNumbers;
    TableSettings table;
    table.title = session().words.GetWord(word::kTableTitle)
        + std::to_string(std::lround(number + kLeastTitleNumber));
    show(table);
    btnDelete->setEnabled(!NewElement);
    if (NewElement) return hideForNewElement();
    if (const auto found = GetTable(designText(), mTablePos)) show(*found);
    txtTitle->selectAll();
    txtTitle->setFocus();
}

void frmTable::show(const TableSettings& table)
{
    txtTitle->setText(typed(table.title));
    cboAlign->setCurrentIndex(tableAlignIndex(table.align));
    // A larger table of another program is shown with what it has, so that it is not cut unseen.
    rows_->setLimits({1, std::max(kMaxTableRows, table.rows)});
    columns_->setLimits({1, std::max(kMaxTableColumns, table.columns)});
    if (table.rows > 0) rows_->setValue(table.rows);
    if (table.columns > 0) columns_->setValue(table.columns);
}

void frmTable::hideForNewElement()
{
    for (QWidget* control :
        std::initializer_list<QWidget*>{btnDelete, lblTitel, txtTitle, lblAlign, cboAlign})
        control->hide();
    txtRows->setFocus();
}

std::optional<TableSettings> frmTable::settings()
{
    const auto rows = rows_->checkedValue();
    if (!rows) return std::nullopt;
    const auto columns = columns_->checkedValue();
    if (!columns) return std::nullopt;
    return TableSettings{valueMarkup(txtTitle->text().toStdU16String()),
        std::string(tableAlignCode(coreText(cboAlign->currentText()))), *rows, *columns};
}

void frmTable::btnNew_Click()
{
    const auto wanted = settings();
    if (!wanted) return;
    const auto text = designText();
    if (!NewElement)
        return applyToFound(
            SetTable(text, mTablePos, *wanted, rules()), GetTable(text, mTablePos).has_value());
    apply(InsertTable(text, mTablePos, *wanted, rules()));
    surface().moveCursor(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
}

void frmTable::btnDelete_Click()
{
    if (confirms(word::kDeleteTable)) applyDeletion(DeleteTable(designText(), mTablePos, rules()));
}

} // namespace quillmere
