// Each sweep plans its deletions on the tags' offsets and makes them in one rewriting; only where a
// deleted tag could leave a new one behind is one pair deleted at a time.
// Held by corrections_test.cpp, which repairs with plain searches.

#include "document/format_around_select.h"

#include "document/repair/format_pairs.h"
#include "document/select_format_plan.h"
#include "document/tag_rules.h"
#include "document/text/character_walk.h"
#include "document/text/limits.h"
#include "document/text/tag_places.h"
#include "document/text/text_edits.h"
#include "document/text/text_search.h"

#include <array>
#include <iterator>
#include <span>
#include <vector>

namespace quillmere {
namespace {

void deleteTags(std::string& text, const TagPair& pair, std::span<const SelectCut> cuts)
{
    TextEdits edits;
    for (const SelectCut& cut : cuts) {
        if (cut.open != kNoTag) edits.drop(cut.open, cut.open + pair.open.size());
        if (cut.close != kNoTag) edits.drop(cut.close, cut.close + pair.close.size());
    }
    edits.applyTo(text);
}

constexpr std::size_t kFirstOpenKey = std::size(kSelectKeys);

/// What is looked for, in the order that plans expect; pair number i has the keys from
/// kFirstOpenKey + 2 * i on.
std::vector<std::string_view> keysOf(std::span<const TagPair> pairs)
{
    std::vector<std::string_view> keys(std::begin(kSelectKeys), std::end(kSelectKeys));
    for (const TagPair& pair : pairs)
        keys.insert(keys.end(), {pair.open, pair.close});
    return keys;
}

/// Makes one sweep over the lists; true where something had to go.
bool sweep(std::string& text, const TagPair& pair, SelectPlan plan)
{
    const auto keys = keysOf({&pair, 1});
    const std::array cut{pair.open, pair.close};
    std::size_t from = 0;
    for (bool found = false;; found = true) {
        const auto cuts = plan(findTags(text, keys), kFirstOpenKey, from);
        if (cuts.empty()) return found;
        if (!cutsCanJoin(text, cut, kSelectKeys)) {
            deleteTags(text, pair, cuts);
            return true;
        }
        const SelectCut& first = cuts.front();
        deleteTags(text, pair, {&first, 1});
        from = first.list - (first.open < first.list ? pair.open.size() : 0);
    }
}

/// The tags of lists, and of each format its open tag and its close tag.
constexpr TagRule kListsAndFormats[]
    = {{kSelectKeys[0]}, {kSelectKeys[1]}, // a number below 2 is a list's
        {"<big>"}, {"</big>"}, {"<small>"}, {"</small>"}, {"<i>"}, {"</i>"}, {"<b>"}, {"</b>"},
        {"<u>"}, {"</u>"}};
constexpr TagRules kTags{kListsAndFormats};

/// False where no format's tag stands in a list and no format is open where a list begins, as in
/// nearly all areas: then nothing has to come off.
bool touchesLists(std::string_view text)
{
    unsigned open = 0; // one bit for each format
    bool inList = false;
    CharacterWalk openings(text, '<');
    for (auto at = openings.next(); at != npos; at = openings.next()) {
        const auto tag = kTags.ruleFor(text, at);
        if (tag == TagRules::kNone) continue;
        if (tag < std::size(kSelectKeys)) {
            inList = tag == 0;
        } else {
            const unsigned format = 1U << (tag / 2U);
            open = tag % 2 == 0 ? open | format : open & ~format;
            if (inList) return true;
        }
        if (inList && open != 0) return true;
    }
    return false;
}

/// Whether any of the pairs has to come off a list.
bool needsRepair(std::string_view text, std::span<const TagPair> pairs)
{
    const auto tags = findTags(text, keysOf(pairs));
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto openKey = kFirstOpenKey + 2 * i;
        if (!touchesLists(tags, openKey)) continue;
        if (!planCutsInside(tags, openKey).empty()) return true;
        if (!planCutsAround(tags, openKey).empty()) return true;
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
    if (findIgnoringCase(text, kSelectKeys[0]) == npos || !touchesLists(text)) return;
    if (!needsRepair(text, kFormatPairs)) return;
    if (isDeclined(session)) return;
    for (const TagPair& pair : kFormatPairs)
        FormatAroundSelect(text, pair.open, pair.close, true);
}

} // namespace quillmere
