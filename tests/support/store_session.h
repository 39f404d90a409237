#pragma once

#include "document/deck_store.h"
#include "document/memory_work_files.h"
#include "support/conversion_session.h"

#include <string>

// A session over work files in memory, for decks that are loaded and written whole.

namespace quillmere::test {

/// Every word is its number.
class NumberWords : public Words {
public:
    [[nodiscard]] std::string GetWord(
        int id, std::initializer_list<std::string_view>) const override
    {
        return "Wort" + std::to_string(id);
    }
};

/// A surface that is busy a number of times and logs what it is asked for.
class LoggingSurface : public EditingSurface {
public:
    [[nodiscard]] bool Busy() const override { return busyTimes_ > 0; }
    void SaveDocument(const std::string& path) override { log += "save " + path + ";"; }
    void yieldToEvents() override
    {
        log += "yield;";
        --busyTimes_;
    }
    void beBusy(int times) { busyTimes_ = times; }
    std::string log;

private:
    int busyTimes_ = 0;
};

class StoreSession {
public:
    explicit StoreSession(OutputRules rules = OutputRules())
        : session{workFiles, copies, prompter_, settings_, words_, rules, {}}
    {
    }
    /// Makes a deck of one area with this design work file.
    void giveArea(const std::string& designText)
    {
        session.deck.assign(2, {});
        session.deck.front().designFile = "Wml0.htm";
        workFiles.write("Wml0.htm", designText);
    }

    /// Loads `text` as a deck that was generated before and stands in no file yet.
    void load(const std::string& text)
    {
        workFiles.write("given.wml", text);
        LoadDeck(session, {"deck.wml", "/nowhere/", "given.wml", ""});
    }
    [[nodiscard]] std::string design(std::size_t area) const
    {
        return workFiles.read(session.deck.at(area).designFile);
    }
    /// Writes the deck and returns it.
    [[nodiscard]] std::string written()
    {
        WriteDeck(session);
        return workFiles.read(session.deck.front().wmlFile);
    }

    MemoryWorkFiles workFiles;
    SmallCopies copies;
    DocumentSession session;

private:
    NobodyThere prompter_;
    NoSettings settings_;
    NumberWords words_;
};

} // namespace quillmere::test
