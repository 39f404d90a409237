#include "forms/overlay.h"

// The controls are found by walking the form's widgets once; each takes what it has a setter for.
// tests/forms/overlay_test.cpp holds this.

#include "forms/session.h"
#include "forms/skin_picture.h"
#include "forms/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTabWidget>
#include <QVariant>

#include <optional>

namespace quillmere {

namespace {

/// The picture file of the skins' directory; "" where it is not there.
QString pictureFile(const Session& session, const std::string& name)
{
    if (name.empty()) return {};
    const auto path = shownPath(session.settings.ReadSetting("Skins")) + shownText(name);
    return QFileInfo::exists(path) ? path : QString();
}

void setCaption(QWidget& control, const std::string& text)
{
    if (text.empty()) return;
    const auto shown = shownText(text);
    if (auto* button = qobject_cast<QAbstractButton*>(&control)) button->setText(shown);
    if (auto* label = qobject_cast<QLabel*>(&control)) label->setText(shown);
    if (auto* box = qobject_cast<QGroupBox*>(&control)) box->setTitle(shown);
    if (auto* menu = qobject_cast<QMenu*>(&control)) menu->setTitle(shown);
}

/// The tabs of a form are there before its texts.
void nameTabs(QTabWidget& tabs, const std::vector<std::string>& names)
{
    for (int i = 0; i < tabs.count() && i < int(names.size()); ++i)
        tabs.setTabText(i, shownText(names[std::size_t(i)]));
}

void addItems(QWidget& control, const std::string& list)
{
    if (auto* tabs = qobject_cast<QTabWidget*>(&control)) return nameTabs(*tabs, itemsOfList(list));
    for (const auto& item : itemsOfList(list)) {
        if (auto* combo = qobject_cast<QComboBox*>(&control)) combo->addItem(shownText(item));
        if (auto* box = qobject_cast<QListWidget*>(&control)) box->addItem(shownText(item));
    }
}

void setPicture(QWidget& control, const QString& file)
{
    if (file.isEmpty()) return;
    const auto picture = skinPicture(file, control.devicePixelRatioF());
    if (!picture.isNull()) showPicture(control, picture);
}

void overlay(QWidget& control, const ControlEntry& entry, const Session& session)
{
    setCaption(control, entry.Text);
    if (!entry.Tooltip.empty()) control.setToolTip(shownText(entry.Tooltip));
    const bool isPictureAlone = entry.Text.empty() && !entry.Tooltip.empty();
    if (isPictureAlone && qobject_cast<QAbstractButton*>(&control) != nullptr)
        control.setAccessibleName(shownText(entry.Tooltip));
    addItems(control, entry.List);
    setPicture(control, pictureFile(session, entry.Img));
}

std::optional<std::int16_t> arrayIndexOf(const QWidget& control)
{
    const auto index = control.property("arrayIndex");
    if (!index.isValid()) return std::nullopt;
    return static_cast<std::int16_t>(index.toInt());
}

} // namespace

void OverlayForm(QWidget& form, const Session& session, std::int16_t variant)
{
    const auto& table = session.forms.table();
    const auto* entry = findForm(table, coreText(form.objectName()), variant);
    if (entry == nullptr) return;
    if (!entry->Caption.empty()) form.setWindowTitle(shownText(entry->Caption));
    setPicture(form, pictureFile(session, entry->Img));
    for (auto* control : form.findChildren<QWidget*>()) {
        if (control->objectName().isEmpty()) continue;
        const auto name = coreText(control->objectName());
        if (const auto* texts = findControl(table, *entry, name, arrayIndexOf(*control)))
            overlay(*control, *texts, session);
    }
    for (auto* action : form.findChildren<QAction*>()) {
        if (action->objectName().isEmpty()) continue;
        const auto* texts = findControl(table, *entry, coreText(action->objectName()));
        if (texts != nullptr && !texts->Text.empty()) action->setText(shownText(texts->Text));
    }
}

bool OverlayControlText(QWidget& form, QWidget& control, const QString& id, const Session& session)
{
    const auto& table = session.forms.table();
    const auto* entry = findForm(table, coreText(form.objectName()));
    if (entry == nullptr) return false;
    const auto* texts = findControl(table, *entry, coreText(id), arrayIndexOf(control));
    if (texts == nullptr || texts->Text.empty()) return false;
    setCaption(control, texts->Text);
    return true;
}

} // namespace quillmere
