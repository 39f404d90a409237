#pragma once

#include <QString>
#include <QWidget>

namespace quillmere {

/// A control that its parent owns, with the name by which the texts of the resources find it.
template <class Control> [[nodiscard]] Control* named(const char* name, QWidget* parent)
{
    auto* control = new Control(parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

} // namespace quillmere
