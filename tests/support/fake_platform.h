#pragma once

#include "document/platform/drives.h"
#include "document/platform/file_system.h"
#include "document/platform/prompter.h"
#include "document/text/failure.h"

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
            const bool isDirect = directory.starts_with(path)
                && directory.find_first_of("/\\", path.size()) == std::string::npos;
            if (isDirect) names.push_back(directory.substr(path.size()));
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

/// Gives the answers in their order and keeps what was asked and told as "NUMBER: GAP". A question
/// that nobody expected is a failure.
class ScriptedPrompter final : public Prompter {
public:
    explicit ScriptedPrompter(std::vector<bool> theAnswers = {})
        : answers(std::move(theAnswers))
    {
    }
    std::vector<bool> answers;
    std::vector<std::string> log;

    [[nodiscard]] bool ask(int word, std::span<const std::string> gaps, MessageIcon icon) override
    {
        show(word, gaps, icon);
        return answer();
    }
    void show(int word, std::span<const std::string> gaps, MessageIcon) override
    {
        log.push_back(std::to_string(word) + ": " + gaps.front());
    }
    [[nodiscard]] bool showNote(Note note) override
    {
        log.push_back("note " + std::to_string(static_cast<int>(note)));
        return answer();
    }

private:
    bool answer()
    {
        if (answers.empty()) throw std::logic_error("nobody expected " + log.back());
        const bool first = answers.front();
        answers.erase(answers.begin());
        return first;
    }
};

} // namespace quillmere::test
