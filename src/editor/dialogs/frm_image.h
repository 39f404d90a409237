#pragma once

#include "editor/dialogs/element_form.h"
#include "editor/dialogs/number_field.h"
#include "editor/elements/image_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace quillmere {

/// Inserts a WBMP picture or changes the marked one, and keeps the area's list of pictures in step.
/// - The size may be from 1 pixel to the picture's own, or to the one that it has already.
/// - A picture from outside of the deck's directory is copied there, so that the site has it; one
///   that would take the place of another is asked for.
/// - A picture that is not there is refused, unless it is the one that is changed.
/// - An empty alternative text stays empty.
class frmImage : public ElementForm {
    Q_OBJECT

public:
    frmImage(Session& session, DesignSurface& surface, QWidget* parent = nullptr);

    /// `hit` is that of the pictures of the stored area.
    void SetInitializations(bool NewElement, const Hit& hit);
    /// The picture that is proposed for a new element.
    void setImage(const std::string& path);

private:
    void layOut();
    void wire();
    void showFound();
    void showSize(const std::string& path);
    void chkCommitAll_Click();
    void enableLayout();
    void btnSearchImage_Click();
    void btnNew_Click();
    void btnDelete_Click();
    [[nodiscard]] std::string chosenPath() const;
    [[nodiscard]] QString shownName(const std::string& path) const;
    [[nodiscard]] std::optional<std::string> pathInProject();
    [[nodiscard]] bool isThere(const std::string& path) const;
    [[nodiscard]] ImageEntry* entryShownAs(const std::string& displayPath) const;
    ImageEntry& AddImageToList(const std::string& path, const std::string& caption);
    void SetImage(const std::string& path);
    void write(const std::string& path, ImageSettings wanted);

    QGroupBox* const objFrame = named<QGroupBox>("objFrame", this);
    QLabel* const lblImage = named<QLabel>("lblImage", this);
    QLineEdit* const txtImage = named<QLineEdit>("txtImage", this);
    QPushButton* const btnSearchImage = named<QPushButton>("btnSearchImage", this);
    QLabel* const lblCaption = named<QLabel>("lblCaption", this);
    QLineEdit* const txtCaption = named<QLineEdit>("txtCaption", this);
    QCheckBox* const chkCommitAll = named<QCheckBox>("chkCommitAll", this);
    QLabel* const lblHeight = named<QLabel>("lblHeight", this);
    QLineEdit* const txtHeight = named<QLineEdit>("txtHeight", this);
    QLabel* const lblWidth = named<QLabel>("lblWidth", this);
    QLineEdit* const txtWidth = named<QLineEdit>("txtWidth", this);
    QLabel* const lblAlign = named<QLabel>("lblAlign", this);
    QComboBox* const cboAlign = named<QComboBox>("cboAlign", this);
    QLabel* const lblDescExtendedInfo = named<QLabel>("lblDescExtendedInfo", this);
    QPushButton* const btnNew = named<QPushButton>("btnNew", this);
    QPushButton* const btnDelete = named<QPushButton>("btnDelete", this);
    NumberField* const height_ = new NumberField(session(), txtHeight, nullptr, {1, 1});
    NumberField* const width_ = new NumberField(session(), txtWidth, nullptr, {1, 1});

    bool NewElement = true;
    bool mImageFound = false;
    int mImagePos = 0;
    std::string foundPath_; ///< of the picture that is changed
};

/// Shows frmImage for a new element with a picture that was chosen elsewhere. One that is not there
/// is told, and nothing is done.
void InsertImageFile(Session& session, DesignSurface& surface, const std::string& path,
    const Hit& hit, QWidget* parent = nullptr);

/// Lets the person choose a WBMP file and inserts it by InsertImageFile.
void ChooseWbmpDialog(
    Session& session, DesignSurface& surface, const Hit& hit, QWidget* parent = nullptr);

} // namespace quillmere
