#pragma once

#include "document/session.h"

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>

// A session without disk, window and person, for the conversions.

namespace quillmere::test {

class MapWorkFiles : public WorkFiles {
public:
    [[nodiscard]] std::string directory() const override { return "/t/"; }
    [[nodiscard]] std::string unusedName(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] std::string createFile(std::string_view prefix, std::string_view suffix) override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] std::string read(const std::string& path) const override;
    void write(const std::string& path, std::string bytes) override;
    void remove(const std::string& path) override;

private:
    std::map<std::string, std::string> files_;
};

/// Every picture is 7 pixels high and 5 wide.
class SmallCopies : public DisplayCopies {
public:
    [[nodiscard]] DisplayCopy draw(const std::string& path, std::string_view alternativeText,
        std::int32_t backgroundColour) override;
    std::string lastPath;
    std::string lastText;
};

class NobodyThere : public Prompter {
public:
    [[nodiscard]] bool ask(
        int /*word*/, std::span<const std::string> /*gaps*/, MessageIcon /*icon*/) override
    {
        throw unexpected();
    }
    void show(int /*word*/, std::span<const std::string> /*gaps*/, MessageIcon /*icon*/) override
    {
        throw unexpected();
    }
    [[nodiscard]] bool showNote(Note /*note*/) override { throw unexpected(); }

private:
    static std::logic_error unexpected() { return std::logic_error("nobody expected a question"); }
};

class NoSettings : public SettingsStore {
public:
    [[nodiscard]] std::string ReadSetting(std::string_view /*name*/) const override { return {}; }
    void WriteSetting(std::string_view /*name*/, std::string_view /*value*/) override { }
};

class NoWords : public Words {
public:
    [[nodiscard]] std::string GetWord(
        int /*id*/, std::initializer_list<std::string_view> /*arguments*/) const override
    {
        return {};
    }
};

/// `areas` areas whose deck lies in "/decks/"; 0: no deck at all.
class ConversionSession {
public:
    explicit ConversionSession(std::size_t areas, OutputRules rules = OutputRules());
    MapWorkFiles workFiles;
    SmallCopies copies;
    DocumentSession session;

private:
    NobodyThere prompter_;
    NoSettings settings_;
    NoWords words_;
};

} // namespace quillmere::test
