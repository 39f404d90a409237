#pragma once

#include "document/drives.h"
#include "document/failure.h"
#include "document/file_system.h"
#include "document/prompter.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// A machine and a person made up by a test.

namespace quillmere::test {

/// Directories are kept without their separators. What was made is in `made`, in order.
class FakeDisk final : public FileSystem {
public:
    std::set<std::string> files;
    std::set<std::string> directories;
    std::vector<std::string> made;
    std::string readOnly; ///< a directory that cannot be made

    [[nodiscard]] bool fileExists(const std::string& path) const override
    {
        return files.contains(path);
    }
    [[nodiscard]] bool directoryExists(const std::string& path) const override
    {
        return directories.contains(plain(path));
    }
    void makeDirectory(const std::string& path) override
    {
        if (path == readOnly) throw FileFailure("read only");
        directories.insert(plain(path));
        made.push_back(path);
    }
    [[nodiscard]] std::vector<std::string> directoriesIn(const std::string& path) const override
    {
        std::vector<std::string> names;
        for (const auto& directory : directories) {
            if (!directory.starts_with(path)) continue;
            auto name = directory.substr(path.size());
            if (name.find_first_of("/\\") == std::string::npos) names.push_back(std::move(name));
        }
        return names;
    }

private:
    [[nodiscard]] static std::string plain(std::string path)
    {
        if (path.ends_with('/') || path.ends_with('\\')) path.pop_back();
        return path;
    }
};

class FakeDrives final : public Drives {
public:
    std::vector<std::pair<std::string, DriveKind>> kinds;
    std::string current;

    [[nodiscard]] std::vector<std::string> roots() const override
    {
        std::vector<std::string> roots;
        for (const auto& [root, kind] : kinds)
            roots.push_back(root);
        return roots;
    }
    [[nodiscard]] DriveKind kindOf(const std::string& directory) const override
    {
        for (const auto& [root, kind] : kinds)
            if (root == directory) return kind;
        return DriveKind::Missing;
    }
    [[nodiscard]] std::string personsRoot() const override { return current; }
};

/// Gives the answers in their order and keeps the questions as "NUMBER: GAP|GAP". A question that
/// nobody expected is a failure.
class ScriptedPrompter final : public Prompter {
public:
    explicit ScriptedPrompter(std::vector<bool> answers = {})
        : answers_(std::move(answers))
    {
    }
    std::vector<std::string> questions;

    [[nodiscard]] bool ask(int word, std::span<const std::string> gaps, MessageIcon) override
    {
        std::string question = std::to_string(word) + ":";
        for (const auto& gap : gaps)
            question.append(question.ends_with(':') ? " " : "|").append(gap);
        if (questions.size() == answers_.size())
            throw std::logic_error("nobody expected " + question);
        questions.push_back(std::move(question));
        return answers_[questions.size() - 1];
    }
    void show(int, std::span<const std::string>, MessageIcon) override
    {
        throw std::logic_error("nobody expected a message");
    }
    [[nodiscard]] bool showNote(Note) override { throw std::logic_error("nobody expected a note"); }

private:
    std::vector<bool> answers_;
};

} // namespace quillmere::test
