#pragma once

#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/platform/files.h"
#include "document/platform/word_ids.h"
#include "gui/window_session.h"

#include <string>
#include <vector>

namespace quillmere::test {

/// The main window of a test: saves as the real one does and shows nothing.
class ScriptedWindow final : public DeckWindow {
public:
    explicit ScriptedWindow(Session& session)
        : session_(session)
    {
        session.window = this;
    }

    bool isChanged = false;
    int shown = 0; ///< how often the surface was loaded
    int helps = 0; ///< how often the help was wanted
    std::string source; ///< that was to be gone on with

    void SetFocusToBrowser() override { }
    void RefreshSurface() override
    {
        ++shown;
        const auto& first = session_.document.deck.front();
        session_.deckFile.remember(first.deckDir + first.deckFile);
    }
    void SavePreparedDokumentAndShowArea(bool) override { }
    void AskAndSaveTmpWmlDocToWmlDoc(bool Ask) override
    {
        if (!isChanged) return;
        if (Ask && !session_.messages.ask(word::kSaveChanges, {}, MessageIcon::Question)) return;
        WriteDeck(session_.document);
        const auto& first = session_.document.deck.front();
        replaceFile(first.deckDir + first.deckFile,
            session_.document.workFiles.read(first.wmlDir + first.wmlFile));
        isChanged = false;
    }
    void SetScriptUndoFlagsBack() override { }
    void resumeSource(const std::string& wml) override { source = wml; }
    void ShowHelp() override { ++helps; }
    void ShowMsg(int) override { }
    void setDocChanged(bool changed) override { isChanged = changed; }
    [[nodiscard]] bool docChanged() const override { return isChanged; }

private:
    Session& session_;
};

/// A session with such a window.
struct DeckDesk : WindowSession {
    ScriptedWindow window{session};

    [[nodiscard]] const Deck& deck() const { return session.document.deck; }
    [[nodiscard]] std::string area(std::size_t index)
    {
        return ReadDesignText(session.document, index);
    }
    /// Types into the first area.
    void type(const std::string& text)
    {
        auto design = area(0);
        design.insert(design.find("</p>"), text);
        WriteDesignText(session.document, 0, design);
        window.isChanged = true;
    }
};

/// A deck of one card with this text.
inline std::string deckOf(const std::string& text)
{
    return "<?xml version=\"1.0\"?>\n<wml>\n<card id=\"a\">\n<p>" + text
        + "</p>\n</card>\n</wml>\n";
}

} // namespace quillmere::test
