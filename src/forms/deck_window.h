#pragma once

#include <string>

namespace quillmere {

/// The main window as the dialogs see it. The shown area is DocumentSession::currentArea.
class DeckWindow {
public:
    DeckWindow() = default;
    DeckWindow(const DeckWindow&) = delete;
    DeckWindow& operator=(const DeckWindow&) = delete;
    DeckWindow(DeckWindow&&) = delete;
    DeckWindow& operator=(DeckWindow&&) = delete;
    virtual ~DeckWindow() = default;

    virtual void SetFocusToBrowser() = 0;
    /// Shows the current area as its design work file now stands, or that no deck is open.
    virtual void RefreshSurface() = 0;
    /// Takes the source view's text into the deck, where that view is on, and shows the area.
    virtual void SavePreparedDokumentAndShowArea(bool Show) = 0;
    /// Saves a changed deck to its file; with `Ask` only where the person assents.
    virtual void AskAndSaveTmpWmlDocToWmlDoc(bool Ask) = 0;
    virtual void SetScriptUndoFlagsBack() = 0;
    /// Shows the source view with a text that was never taken over.
    virtual void resumeSource(const std::string& wml) = 0;
    virtual void ShowHelp() = 0;
    /// Shows one of the four messages that guard the tools: 1 no deck is open, 2 not in the source
    /// view, 3 nothing to save, 4 nothing goes into a table.
    virtual void ShowMsg(int Index) = 0;
    /// Whether the deck, as the surface or the source view shows it, differs from its file.
    virtual void setDocChanged(bool changed) = 0;
    [[nodiscard]] virtual bool docChanged() const = 0;
};

} // namespace quillmere
