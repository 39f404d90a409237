// Each sweep plans its deletions on the tags' offsets and makes them in one rewriting; only where a
// deleted tag could leave a new one behind is one pair deleted at a time.
// Held by format_around_select_test.cpp, which repairs with plain searches.

#include "document/format_around_select.h"

#include "document/limits.h"
#include "document/select_format_plan.h"
#include "document/tag_places.h"
#include "document/text_edits.h"
#include "document/text_search.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillmere {
namespace {

constexpr std::array<std::string_view, 2> kSelectTags{"<select", "</select"};

/// In the order of the deletions, which is the opposite of that of the look for them.
constexpr std::array<TagPair, 5> kFormats{{
    {"<big>", "</big>"},
    {"<small>", "</small>"},
    {"<i>", "</i>"},
    {"<b>", "</b>"},
    {"<u>", "</u>"},
}};

using Plan = std::vector<SelectCut> (*)(
    std::span<const SelectList>, std::span<const std::size_t>, std::span<const std::size_t>);

void deleteTags(std::string& text, const TagPair& pair, std::span<const SelectCut> cuts)
{
    TextEdits edits;
    for (const SelectCut& cut : cuts) {
        if (cut.open != npos) edits.drop(cut.open, cut.open + pair.open.size());
        if (cut.close != npos) edits.drop(cut.close, cut.close + pair.close.size());
    }
    edits.applyTo(text);
}

/// Makes one sweep over the lists that begin at `from` or behind.
bool sweep(std::string& text, const TagPair& pair, Plan plan, std::size_t from = 0)
{
    const std::array cut{pair.open, pair.close};
    const std::array keys{pair.open, pair.close, kSelectTags[0], kSelectTags[1]};
    for (bool found = false;; found = true) {
        const auto places = tagPlaces(text, keys);
        auto lists = selectLists(places[2], places[3]);
        std::erase_if(lists, [from](const SelectList& list) { return list.begin < from; });
        const auto cuts = plan(lists, places[0], places[1]);
        if (cuts.empty()) return found;
        if (!cutsCanJoin(text, cut, kSelectTags)) {
            deleteTags(text, pair, cuts);
            return true;
        }
        const SelectCut& first = cuts.front();
        deleteTags(text, pair, {&first, 1});
        from = first.list - (first.open < first.list ? pair.open.size() : 0);
    }
}

/// Whether any of the pairs has to come off a list.
bool needsRepair(std::string_view text, std::span<const TagPair> pairs)
{
    std::vector<std::string_view> keys(kSelectTags.begin(), kSelectTags.end());
    for (const TagPair& pair : pairs)
        keys.insert(keys.end(), {pair.open, pair.close});
    const auto places = tagPlaces(text, keys);
    const auto lists = selectLists(places[0], places[1]);
    for (std::size_t i = 2; i < keys.size(); i += 2) {
        if (!planCutsInside(lists, places[i], places[i + 1]).empty()) return true;
        if (!planCutsAround(lists, places[i], places[i + 1]).empty()) return true;
    }
    return false;
}

bool isDeclined(DocumentSession& session)
{
    return isYes(session.settings, "ShowSelectTagCorrectMessage")
        && !session.prompter.showNote(Note::SelectRepair);
}

} // namespace

bool FormatAroundSelect(
    std::string& text, std::string_view openTag, std::string_view closeTag, bool apply)
{
    requireAddressable(text);
    const TagPair pair{openTag, closeTag};
    if (!apply) return needsRepair(text, {&pair, 1});
    const bool inside = sweep(text, pair, planCutsInside);
    const bool around = sweep(text, pair, planCutsAround);
    return inside || around;
}

void RepairFormatAroundSelect(std::string& text, DocumentSession& session)
{
    requireAddressable(text);
    if (findIgnoringCase(text, kSelectTags[0]) == npos || !needsRepair(text, kFormats)) return;
    if (isDeclined(session)) return;
    for (const TagPair& pair : kFormats)
        FormatAroundSelect(text, pair.open, pair.close, true);
}

} // namespace quillmere
