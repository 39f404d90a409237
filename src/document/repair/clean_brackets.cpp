// One character goes for each bracket that is followed by another of its kind, and the walk goes on
// with what follows. So "<<p>" becomes "<p>", but "<<<p>" only "<<p>", and "<b<i>" loses its "b";
// this is wanted. Held by clean_passes_test.cpp.

#include "document/repair/clean_brackets.h"

#include "document/text/character_walk.h"
#include "document/text/text_search.h"

namespace quillmere {
namespace {

void thinOut(std::string& text, char bracket, char opposite)
{
    Rewriter rewriter(text);
    auto closed = text.find(opposite);
    auto at = text.find(bracket);
    while (at != npos && closed != npos) {
        if (closed < at) closed = text.find(opposite, at);
        const auto next = text.find(bracket, at + 1);
        const bool doubled = next < closed && closed != npos;
        if (doubled) rewriter.drop(at + 1, at + 2);
        at = doubled && next == at + 1 ? text.find(bracket, at + 2) : next;
    }
    if (rewriter.position() > 0) text = rewriter.take();
}

/// Whether '<' and '>' take turns, as nearly always.
bool areInPairs(std::string_view text)
{
    CharacterWalk openings(text, '<');
    CharacterWalk ends(text, '>');
    auto end = ends.next();
    for (auto at = openings.next(); at != npos; end = ends.next()) {
        if (end == npos || end < at) return false;
        at = openings.next();
        if (at < end) return false;
    }
    return end == npos;
}

} // namespace

void thinOutBrackets(EditedText& text)
{
    if (areInPairs(text.whole())) return;
    text.rework([](std::string& whole) {
        thinOut(whole, '<', '>');
        thinOut(whole, '>', '<');
    });
}

} // namespace quillmere
