#pragma once

#include "cli/core_session.h"
#include "document/deck_store.h"

#include <string>
#include <vector>

namespace quillmere::test {

/// Every picture is 7 pixels high and 5 wide.
class SmallCopies final : public DisplayCopies {
public:
    std::vector<std::string> drawn; ///< "PATH|TEXT" of each picture
    std::int32_t ground = 0;

    [[nodiscard]] DisplayCopy draw(
        const std::string& path, std::string_view text, std::int32_t backgroundColour) override
    {
        drawn.push_back(std::string(path).append("|").append(text));
        ground = backgroundColour;
        return {"BM", 7, 5, 99};
    }
};

/// A session with all of its work files in memory.
struct SmallDeck {
    SmallCopies copies;
    cli::CoreSession core;
    DocumentSession& session = core.session;
    MemoryWorkFiles& files = core.workFiles;

    /// With so many areas, whose deck lies in "/decks/", and a spare one; 0: no deck at all.
    explicit SmallDeck(std::size_t areas = 0, bool standardOutput = false)
        : core(standardOutput, &copies)
    {
        session.deck.resize(areas == 0 ? 0 : areas + 1);
        for (auto& area : session.deck)
            area.deckDir = "/decks/";
    }
    /// A session of no deck with another person.
    [[nodiscard]] DocumentSession sessionWith(Prompter& person)
    {
        return {files, copies, person, core.settings, core.words, OutputRules(), {}};
    }
    /// Makes a deck of one area with this design work file.
    void giveArea(const std::string& designText)
    {
        session.deck.assign(2, {});
        session.deck.front().designFile = "Wml0.htm";
        files.write("Wml0.htm", designText);
    }
    /// Loads `text` as a deck that was generated before and stands in no file yet.
    void load(const std::string& text)
    {
        files.write("given.wml", text);
        LoadDeck(session, {"deck.wml", "/nowhere/", "given.wml", ""});
    }
    [[nodiscard]] std::string design(std::size_t area) const
    {
        return files.read(session.deck.at(area).designFile);
    }
    [[nodiscard]] std::string written()
    {
        WriteDeck(session);
        return files.read(session.deck.front().wmlFile);
    }
};

} // namespace quillmere::test
