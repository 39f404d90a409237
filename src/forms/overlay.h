#pragma once

#include "app/form_table.h"
#include "document/platform/settings_store.h"

#include <QString>
#include <QWidget>

#include <cstdint>

// The texts, lists and pictures of the resources, laid over forms and their controls, which are
// found by their object names. What a control has not is passed over.

namespace quillmere {

struct Session;

/// Lays the entry of the form's object name with this variant over it and its controls. Without an
/// entry the form keeps its texts. A control of an array has its place in the property
/// "arrayIndex".
void OverlayForm(QWidget& form, const Session& session, std::int16_t variant = kAtLoad);

/// The same for one control whose text changes with the form's state: gives it the text of the
/// control entry `id` of the form. False where there is none; the control is then as it was.
bool OverlayControlText(QWidget& form, QWidget& control, const QString& id, const Session& session);

} // namespace quillmere
