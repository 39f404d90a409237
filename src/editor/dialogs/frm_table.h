#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/dialogs/number_field.h"
#include "editor/dialogs/step_bar.h"
#include "editor/elements/table_edit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace quillmere {

/// Inserts a table, of which it then asks the size only, or changes the marked one. The text of a
/// new table's first cell is marked afterwards, so that typing replaces it.
class frmTable : public ElementForm {
    Q_OBJECT

public:
    frmTable(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the tables of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);

private:
    void layOut();
    void show(const TableSettings& table);
    void hideForNewElement();
    [[nodiscard]] std::optional<TableSettings> settings();
    void btnNew_Click();
    void btnDelete_Click();

    QGroupBox* const objFrame = named<QGroupBox>("objFrame", this);
    QLabel* const lblTitel = named<QLabel>("lblTitel", this);
    QLineEdit* const txtTitle = named<QLineEdit>("txtTitle", this);
    QLabel* const lblAlign = named<QLabel>("lblAlign", this);
    QComboBox* const cboAlign = named<QComboBox>("cboAlign", this);
    QLabel* const lblRows = named<QLabel>("lblRows", this);
    QLineEdit* const txtRows = named<QLineEdit>("txtRows", this);
    StepBar* const objScrollRows = named<StepBar>("objScrollRows", this);
    QLabel* const lblColumns = named<QLabel>("lblColumns", this);
    QLineEdit* const txtColumns = named<QLineEdit>("txtColumns", this);
    StepBar* const objScrollColumns = named<StepBar>("objScrollColumns", this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);
    NumberField* const rows_
        = new NumberField(session(), txtRows, objScrollRows, {1, kMaxTableRows});
    NumberField* const columns_
        = new NumberField(session(), txtColumns, objScrollColumns, {1, kMaxTableColumns});

    bool NewElement = true;
    bool mTableFound = false;
    int mTablePos = 0;
};

} // namespace quillmere
