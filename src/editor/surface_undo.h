#pragma once

#include "editor/page/page_edits.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillmere {

/// The steps back and forth of the surface, as edits that take edits back.
class SurfaceUndo {
public:
    enum class Kind {
        Typing, ///< goes on the step of what was typed right ahead of it
        SameStep, ///< goes on the last step
        Other
    };

    /// Takes note of an edit of `textBefore`. What was undone can no longer come back.
    void add(
        std::string_view textBefore, const SurfaceEdit& edit, std::size_t caretBefore, Kind kind);
    /// The next typing begins a step of its own.
    void endTyping() { isTyping_ = false; }
    /// What was undone can no longer come back.
    void forgetUndone() { forth_.clear(); }
    void clear();

    /// A text with the caret in it.
    struct State {
        std::string text;
        std::size_t caret = 0;
    };
    /// One step back, or forth, from `text`; nullopt where there is none.
    [[nodiscard]] std::optional<State> undo(std::string_view text, std::size_t caret);
    [[nodiscard]] std::optional<State> redo(std::string_view text, std::size_t caret);

private:
    using Step = std::vector<SurfaceEdit>; // to be made from the last to the first
    static State make(const Step& step, State state, Step& opposite);

    std::vector<Step> back_;
    std::vector<Step> forth_;
    std::size_t typedTo_ = 0; // the caret behind what was typed last
    bool isTyping_ = false;
};

} // namespace quillmere
