#pragma once

#include <span>
#include <string>

namespace quillmere {

enum class MessageIcon { None, Question, Warning, Critical };

/// The notes with a box "do not show again", by their number.
enum class Note { Option = 1, Image = 2, Plain = 3, ImageLayout = 4, SelectRepair = 5 };

/// Questions and messages to the person at the program. The core shows nothing itself; texts are
/// named by their number in the word table and given with what fills their gaps.
class Prompter {
public:
    Prompter() = default;
    Prompter(const Prompter&) = delete;
    Prompter& operator=(const Prompter&) = delete;
    Prompter(Prompter&&) = delete;
    Prompter& operator=(Prompter&&) = delete;
    virtual ~Prompter() = default;

    /// Puts a question with the answers Yes and No; true for Yes.
    [[nodiscard]] virtual bool ask(int word, std::span<const std::string> gaps, MessageIcon icon)
        = 0;
    virtual void show(int word, std::span<const std::string> gaps, MessageIcon icon) = 0;
    /// Shows a note; true where the person assents, false where the person declines.
    [[nodiscard]] virtual bool showNote(Note note) = 0;
};

} // namespace quillmere
