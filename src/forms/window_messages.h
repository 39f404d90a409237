#pragma once

#include "document/platform/words.h"
#include "forms/messages.h"

#include <QMessageBox>

namespace quillmere {

struct Session;

/// Messages and questions as boxes over the window that is in front. Captions of their buttons come
/// from the form resource "frmMessageBox" (btnYes, btnNo, btnOk).
class WindowMessages final : public Messages {
public:
    explicit WindowMessages(const Words& words)
        : words_(words)
    {
    }
    /// Notes and captions stand on the session; without one notes are declined.
    void useSession(Session& session) { session_ = &session; }

    [[nodiscard]] bool ask(int word, std::span<const std::string> gaps, MessageIcon icon) override;
    void show(int word, std::span<const std::string> gaps, MessageIcon icon) override;
    [[nodiscard]] bool showNote(Note note) override;
    void ShowCriticalError(const QString& text) override;
    void showText(const QString& text, MessageIcon icon) override;
    [[nodiscard]] bool askText(const QString& text, MessageIcon icon) override;

private:
    [[nodiscard]] QString wordText(int word, std::span<const std::string> gaps) const;
    [[nodiscard]] QMessageBox::StandardButton shown(
        const QString& text, MessageIcon icon, QMessageBox::StandardButtons buttons) const;

    const Words& words_;
    Session* session_ = nullptr;
};

} // namespace quillmere
