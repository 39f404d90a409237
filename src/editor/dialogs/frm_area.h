#pragma once

#include "document/card_attributes.h"
#include "editor/dialogs/element_form.h"
#include "editor/dialogs/target_box.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace quillmere {

/// Changes the shown area's id, title and jump, deletes the area, or adds one behind the last.
/// - An id that no link could lead to, or that another area has, is refused.
/// - All is written or nothing: where a later step fails, what was written is put back.
/// - With a new id, all that leads to the area within the deck leads there still. An undo does not
///   take the new id back.
/// - The jump is one by its caption: without one the do block goes, and an address without a
///   caption is asked for it. A jump that was not changed is not written.
/// - Which areas still lead to one that was deleted is told.
/// - A new area is linked to by the area ahead of it, as AddArea does it.
class frmArea : public ElementForm {
    Q_OBJECT

public:
    frmArea(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    void SetInitializations(bool NewElement);

private:
    void layOut();
    void showArea();
    [[nodiscard]] std::string freeId() const;
    [[nodiscard]] bool hasGoodId() const;
    [[nodiscard]] bool hasId(std::size_t areaIndex, const std::string& id) const;
    void linkFromLast();
    void addArea();
    void setIdAndTitle();
    void renameTargets(const std::string& oldId, const std::string& newId);
    void setJump(const Jump& wanted);
    [[nodiscard]] std::vector<std::string> designTexts() const;
    void keepState();
    void write(Jump wanted);
    void renameInHistories(const std::string& oldId);
    void putBack(const std::vector<std::string>& texts, int shownArea);
    void btnNew_Click();
    void btnDelete_Click();
    void tellWhatLeadsTo(const std::string& id);

    QGroupBox* const objFrmCurArea = named<QGroupBox>("objFrmCurArea", this);
    QLabel* const lblId = named<QLabel>("lblId", this);
    QLineEdit* const txtId = named<QLineEdit>("txtId", this);
    QLabel* const lblTitle = named<QLabel>("lblTitle", this);
    QLineEdit* const txtTitle = named<QLineEdit>("txtTitle", this);
    QGroupBox* const objFrmSelectButton = named<QGroupBox>("objFrmSelectButton", this);
    QLineEdit* const txtJumpSelectionCaption
        = named<QLineEdit>("txtJumpSelectionCaption", objFrmSelectButton);
    TargetBox* const objFrmLink = new TargetBox(session(), this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);

    bool NewElement = true;
    Jump shownJump_;
};

} // namespace quillmere
