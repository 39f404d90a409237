// Held by surface_typing_test.cpp.

#include "editor/surface_undo.h"

#include "editor/page/splice_list.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

constexpr std::size_t kMaxSteps = 500;

} // namespace

void SurfaceUndo::add(
    std::string_view textBefore, const SurfaceEdit& edit, std::size_t caretBefore, Kind kind)
{
    const bool typesOn = kind == Kind::Typing && isTyping_ && caretBefore == typedTo_;
    if (back_.empty() || !(typesOn || kind == Kind::SameStep)) back_.emplace_back();
    back_.back().push_back(reverse(textBefore, edit, caretBefore));
    if (back_.size() > kMaxSteps) back_.erase(back_.begin());
    forth_.clear();
    isTyping_ = kind == Kind::Typing;
    typedTo_ = edit.caret;
}

void SurfaceUndo::clear()
{
    back_.clear();
    forth_.clear();
    isTyping_ = false;
}

SurfaceUndo::State SurfaceUndo::make(const Step& step, State state, Step& opposite)
{
    std::for_each(step.rbegin(), step.rend(), [&](const SurfaceEdit& edit) {
        opposite.push_back(reverse(state.text, edit, state.caret));
        state.text = spliced(state.text, edit.splices); // as it was, however long
        state.caret = edit.caret;
    });
    return state;
}

std::optional<SurfaceUndo::State> SurfaceUndo::undo(std::string_view text, std::size_t caret)
{
    if (back_.empty()) return std::nullopt;
    Step opposite;
    auto state = make(back_.back(), {std::string(text), caret}, opposite);
    back_.pop_back();
    forth_.push_back(std::move(opposite));
    isTyping_ = false;
    return state;
}

std::optional<SurfaceUndo::State> SurfaceUndo::redo(std::string_view text, std::size_t caret)
{
    if (forth_.empty()) return std::nullopt;
    Step opposite;
    auto state = make(forth_.back(), {std::string(text), caret}, opposite);
    forth_.pop_back();
    back_.push_back(std::move(opposite));
    isTyping_ = false;
    return state;
}

} // namespace quillmere
