// All moves are planned on the tags' offsets and made in one rewriting; only where a moved tag
// could leave a new one behind does one move at a time. Held by corrections_test.cpp.

#include "document/repair/format_overlap.h"

#include "document/text/text_edits.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillmere {
namespace {

void makeMoves(
    std::string& text, const TagPair& a, const TagPair& b, std::span<const TagMove> moves)
{
    TextEdits edits;
    for (const TagMove& move : moves) {
        const std::string_view tag = move.isA ? a.close : b.close;
        edits.insert(move.target, tag);
        edits.drop(move.source, move.source + tag.size());
    }
    edits.applyTo(text);
}

/// Plans anew after each move, from the beginning of A that comes next.
void moveOneByOne(std::string& text, const TagPair& a, const TagPair& b)
{
    const std::array keys{a.open, a.close, b.open, b.close};
    for (std::size_t resumeAt = 0;;) {
        const auto places = tagPlaces(text, keys);
        const auto next = std::lower_bound(places[0].begin(), places[0].end(), resumeAt);
        const auto moves
            = planOverlapMoves({{next, places[0].end()}, places[1], places[2], places[3]});
        if (moves.empty()) return;
        const auto first = std::min_element(moves.begin(), moves.end(),
            [](const TagMove& x, const TagMove& y) { return x.begunAt < y.begunAt; });
        resumeAt = first->begunAt + 1U;
        makeMoves(text, a, b, {&*first, 1});
    }
}

} // namespace

bool nestOverlaps(std::string& text, const TagPair& a, const TagPair& b, const OverlapTags& tags)
{
    if (tags.openA.empty() || tags.closeA.empty() || tags.closeB.empty()) return false;
    const auto moves = planOverlapMoves(tags);
    if (moves.empty()) return false;
    const std::array cut{a.close, b.close};
    const std::array others{a.open, b.open};
    if (cutsCanJoin(text, cut, others))
        moveOneByOne(text, a, b);
    else
        makeMoves(text, a, b, moves);
    return true;
}

} // namespace quillmere
