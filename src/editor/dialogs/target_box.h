#pragma once

#include "forms/named.h"
#include "forms/session.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <optional>
#include <string>

namespace quillmere {

/// Where a link, an option or a jump leads to: an area of the deck, or an address. Typing an
/// address or choosing an area chooses its kind as well.
class TargetBox : public QGroupBox {
    Q_OBJECT

public:
    TargetBox(Session& session, QWidget* parent);

    /// The list of areas, each by `areaText` and its number. Its title stands beside it.
    void fillAreas(const QString& areaText);
    /// No address, and the area that is probably wanted: the next one from the first area, else the
    /// first one.
    void setDefaults();
    /// Shows a target as it stands in the design text. An area that the deck has not is shown as an
    /// address, so that it is not lost.
    void setTarget(const std::string& target);
    /// The target for the design text. An address is completed where the person assents; a file
    /// that is there in the deck's directory is no address, and is not asked about, nor is where
    /// nothing is lost the address that was shown. "" for an empty address.
    [[nodiscard]] std::string target();
    [[nodiscard]] QLineEdit& address() const { return *txtUrlJump; }

private:
    void layOut();
    void wire();
    void showTitle();
    void btnSearchUrl_Click();
    [[nodiscard]] std::string completed(const QString& typed);

    Session& session_;
    std::string shownTarget_; ///< as it stands in the design text
    const std::array<QRadioButton*, 2> optShowAreaOrder{
        named<QRadioButton>("optShowAreaOrder", this),
        named<QRadioButton>("optShowAreaOrder", this)};
    QComboBox* const cboLink = named<QComboBox>("cboLink", this);
    QLabel* const title_ = new QLabel(this); ///< of the chosen area
    QLineEdit* const txtUrlJump = named<QLineEdit>("txtUrlJump", this);
    QPushButton* const btnSearchUrl = named<QPushButton>("btnSearchUrl", this);
};

} // namespace quillmere
