#pragma once

#include "document/platform/prompter.h"

#include <QString>

namespace quillmere {

/// Messages and questions of the windows. Tests answer them in the place of a person.
class Messages : public Prompter {
public:
    /// Shows what could not be done, with the critical icon.
    virtual void ShowCriticalError(const QString& text) = 0;
    /// The same for a message that is no word of the resources.
    virtual void showText(const QString& text, MessageIcon icon) = 0;
    /// Puts a question that is no word of the resources; true for Yes.
    [[nodiscard]] virtual bool askText(const QString& text, MessageIcon icon) = 0;
};

} // namespace quillmere
