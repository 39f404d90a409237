#pragma once

#include "editor/page/hit_test.h"

#include <QString>

#include <functional>
#include <map>
#include <string>

namespace quillmere {

/// What a tool hands over to its dialog.
struct FormCall {
    bool NewElement = true; ///< false: the element at `hit` is changed
    Hit hit{}; ///< of the hit test that the tool made, if it made one
    QString page{}; ///< of the help: the name of the window that it was wanted in
};

/// Loads a form, shows it modally and does what it was answered.
using FormOpener = std::function<void(const FormCall&)>;

/// The forms that tools open, by name. A form that is not registered is not part of this version.
using FormOpeners = std::map<std::string, FormOpener, std::less<>>;

} // namespace quillmere
