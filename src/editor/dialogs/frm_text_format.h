#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/elements/text_formats.h"

#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace quillmere {

/// Gives what is marked formats of letters. A box of which only a part of the marked text is true
/// stands between, and its format then stays as it is; so does the size while no size is chosen.
class frmTextFormat : public ElementForm {
    Q_OBJECT

public:
    frmTextFormat(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// Whether what is marked can be formatted; if not, the reason is told, but for a place that
    /// cannot be found. The form must not be opened then.
    [[nodiscard]] bool CheckIfIsValidMarked();
    /// Shows the formats of what is marked.
    void SetInitializations();

private:
    void layOut();
    void wire();
    [[nodiscard]] std::optional<SourceRange> marked() const;
    [[nodiscard]] TextFormats shownFormats() const;
    void showPreview();
    void btnOk_Click();

    QGroupBox* const Frame1 = named<QGroupBox>("Frame1", this);
    QCheckBox* const chkBold = named<QCheckBox>("chkBold", Frame1);
    QCheckBox* const chkItalic = named<QCheckBox>("chkItalic", Frame1);
    QCheckBox* const chkUnderline = named<QCheckBox>("chkUnderline", Frame1);
    QGroupBox* const optFrame = named<QGroupBox>("optFrame", this);
    const std::array<QRadioButton*, 3> optSchrift{named<QRadioButton>("optSchrift", optFrame),
        named<QRadioButton>("optSchrift", optFrame), named<QRadioButton>("optSchrift", optFrame)};
    QLabel* const lblPreview = named<QLabel>("lblPreview", this);
    QFrame* const lblPrevBackground = named<QFrame>("lblPrevBackground", this);
    QLabel* const lblPreviour = named<QLabel>("lblPreviour", lblPrevBackground);
    QPushButton* const btnOk = named<QPushButton>("btnOk", this);
};

} // namespace quillmere
