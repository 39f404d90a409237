#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/elements/paragraph_alignment.h"

#include <QGroupBox>
#include <QRadioButton>

#include <array>

namespace quillmere {

/// Aligns the marked lines, or the line of the caret.
class frmJustify : public ElementForm {
    Q_OBJECT

public:
    frmJustify(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// Shows the alignment of what is marked. With a picture in the marked lines the note on
    /// these is shown first, unless it was silenced.
    void SetInitializations();

private:
    void layOut();
    [[nodiscard]] SourceRange marked() const;
    void btnOk_Click();
    void align(Alignment wanted);

    QGroupBox* const optFrame = named<QGroupBox>("optFrame", this);
    const std::array<QRadioButton*, 3> optSchrift{named<QRadioButton>("optSchrift", optFrame),
        named<QRadioButton>("optSchrift", optFrame), named<QRadioButton>("optSchrift", optFrame)};
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
};

} // namespace quillmere
