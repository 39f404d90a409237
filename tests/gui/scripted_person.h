#pragma once

#include "forms/file_dialogs.h"
#include "forms/messages.h"

#include <gtest/gtest.h>

#include <QString>

#include <deque>
#include <functional>
#include <string>
#include <vector>

// The person at the windows of a test: gives answers in their order and remembers what was asked.

namespace quillmere::test {

/// Keeps what was asked and shown: "ask 42", "show 8: GAP|GAP", "note 5", "failure: TEXT",
/// "text: TEXT", "question: TEXT". A question that nobody expected fails the test and is answered
/// with No.
class ScriptedMessages final : public Messages {
public:
    std::deque<bool> answers;
    std::vector<std::string> log;
    std::function<void()> whileAsked; ///< runs while a question stands, when there is one

    [[nodiscard]] bool ask(int word, std::span<const std::string> gaps, MessageIcon) override
    {
        return answer(line("ask", word, gaps));
    }
    void show(int word, std::span<const std::string> gaps, MessageIcon) override
    {
        log.push_back(line("show", word, gaps));
    }
    [[nodiscard]] bool showNote(Note note) override
    {
        return answer("note " + std::to_string(static_cast<int>(note)));
    }
    void ShowCriticalError(const QString& text) override
    {
        log.push_back("failure: " + text.toStdString());
    }
    void showText(const QString& text, MessageIcon) override
    {
        log.push_back("text: " + text.toStdString());
    }
    [[nodiscard]] bool askText(const QString& text, MessageIcon) override
    {
        return answer("question: " + text.toStdString());
    }
    /// What was asked and shown since the last call.
    [[nodiscard]] std::vector<std::string> taken() { return std::exchange(log, {}); }

private:
    static std::string line(const char* kind, int word, std::span<const std::string> gaps)
    {
        auto text = std::string(kind) + " " + std::to_string(word);
        const char* divider = ": ";
        for (const auto& gap : gaps) {
            text.append(divider).append(gap);
            divider = "|";
        }
        return text;
    }
    bool answer(const std::string& question)
    {
        log.push_back(question);
        if (whileAsked) whileAsked();
        if (answers.empty()) {
            ADD_FAILURE() << "nobody expected " << question;
            return false;
        }
        const bool first = answers.front();
        answers.pop_front();
        return first;
    }
};

/// Hands out the paths in their order; "" cancels. A dialog that nobody expected fails the test and
/// is cancelled.
class ScriptedFileDialogs final : public FileDialogs {
public:
    std::deque<QString> paths;
    std::vector<FileQuestion> questions;

    [[nodiscard]] std::optional<QString> openFile(const FileQuestion& question) override
    {
        return next(question);
    }
    [[nodiscard]] std::optional<QString> saveFile(const FileQuestion& question) override
    {
        return next(question);
    }
    [[nodiscard]] std::optional<QString> chooseFolder(const FileQuestion& question) override
    {
        return next(question);
    }

private:
    std::optional<QString> next(const FileQuestion& question)
    {
        questions.push_back(question);
        if (paths.empty()) {
            ADD_FAILURE() << "nobody expected the dialog " << question.title.toStdString();
            return std::nullopt;
        }
        const auto path = paths.front();
        paths.pop_front();
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }
};

} // namespace quillmere::test
