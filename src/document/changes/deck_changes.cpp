// Both decks are read as sequences of items that are matched; what has no match is lost or added,
// and what has one is compared. Words without a match in the same gap of the sequences are one
// change if they are as many or much alike. Held by deck_changes_test.cpp.

#include "document/changes/deck_changes.h"

#include "document/changes/deck_match.h"
#include "document/changes/deck_side.h"
#include "document/changes/plain_markup.h"
#include "document/changes/well_formedness.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace quillmere {

namespace {

using Kind = DeckChange::Kind;
using Subject = DeckChange::Subject;

Subject subjectOf(DeckItem::Kind kind)
{
    switch (kind) {
    case DeckItem::Kind::Start:
        return Subject::Element;
    case DeckItem::Kind::End:
        return Subject::EndTag;
    case DeckItem::Kind::Word:
        return Subject::Words;
    case DeckItem::Kind::Comment:
        return Subject::Comment;
    case DeckItem::Kind::Doctype:
        return Subject::Doctype;
    case DeckItem::Kind::Instruction:
        return Subject::Instruction;
    }
    return Subject::Element;
}

using Words = std::vector<std::size_t>;

/// Whether two texts have half of their characters in common, in the same order.
bool areAlike(std::string_view before, std::string_view after)
{
    const std::vector<int> left(before.begin(), before.end());
    const std::vector<int> right(after.begin(), after.end());
    return matchSequences(left, right).size() * 2 >= std::max(left.size(), right.size());
}

class ChangeLister {
public:
    ChangeLister(const DeckSide& read, const DeckSide& written, const DeckMatch& match)
        : read_(read)
        , written_(written)
        , match_(match)
    {
    }

    std::vector<DeckChange> run()
    {
        MatchedPair from;
        for (const auto& anchor : match_.anchors) {
            listGap(from, anchor);
            if (read_.item(anchor.left).kind == DeckItem::Kind::Start)
                compareAttributes(anchor.left, anchor.right);
            if (read_.item(anchor.left).kind == DeckItem::Kind::Word) compareBlanks(anchor);
            if (match_.moved[anchor.left]) listMoved(anchor.left);
            if (match_.written[anchor.left] == kNoItem) listLost(anchor.left);
            if (match_.read[anchor.right] == kNoItem) listAdded(anchor.right);
            from = {anchor.left + 1, anchor.right + 1};
        }
        listGap(from, {read_.deck.items.size(), written_.deck.items.size()});
        return std::move(changes_);
    }

private:
    void listGap(MatchedPair from, MatchedPair to)
    {
        const auto begin = static_cast<std::ptrdiff_t>(changes_.size());
        Words lost;
        Words added;
        for (auto i = from.left; i < to.left; ++i) {
            if (match_.moved[i]) {
                listMoved(i);
            } else if (match_.written[i] == kNoItem && !collect(read_, i, lost)) {
                listLost(i);
            }
        }
        for (auto j = from.right; j < to.right; ++j) {
            if (match_.read[j] == kNoItem && !collect(written_, j, added)) listAdded(j);
        }
        compareWords(lost, added);
        if (!std::is_sorted(changes_.begin() + begin, changes_.end(), standsAhead))
            std::stable_sort(changes_.begin() + begin, changes_.end(), standsAhead);
    }

    /// By their places in what was read, and then what was added.
    static bool standsAhead(const DeckChange& left, const DeckChange& right)
    {
        if (!left.readAt || !right.readAt) return left.readAt && !right.readAt;
        return std::tie(left.readAt->line, left.readAt->column)
            < std::tie(right.readAt->line, right.readAt->column);
    }

    static bool collect(const DeckSide& side, std::size_t at, Words& words)
    {
        if (side.item(at).kind != DeckItem::Kind::Word) return false;
        words.push_back(at);
        return true;
    }

    /// The end of an element that has gone with its start is not told twice.
    static bool goesWithStart(const DeckItem& item, const std::vector<std::size_t>& matches)
    {
        return item.kind == DeckItem::Kind::End && item.partner != kNoItem
            && matches[item.partner] == kNoItem;
    }

    void listLost(std::size_t i)
    {
        const auto& item = read_.item(i);
        if (goesWithStart(item, match_.written)) return;
        changes_.push_back({Kind::Lost, subjectOf(item.kind), read_.element(i), {}, read_.text(i),
            {}, 1, read_.place(i), {}});
    }

    void listAdded(std::size_t j)
    {
        const auto& item = written_.item(j);
        if (goesWithStart(item, match_.read)) return;
        changes_.push_back({Kind::Added, subjectOf(item.kind), written_.element(j), {}, {},
            written_.text(j), 1, {}, written_.place(j)});
    }

    /// What stands in an element that has moved goes with it.
    [[nodiscard]] bool movesWithParent(std::size_t i) const
    {
        const auto parent = read_.item(i).parent;
        return parent != kNoItem && match_.moved[parent]
            && match_.written[parent] == written_.item(match_.written[i]).parent;
    }

    void listMoved(std::size_t i)
    {
        const auto j = match_.written[i];
        if (read_.item(i).kind == DeckItem::Kind::Start) compareAttributes(i, j);
        if (movesWithParent(i)) return;
        changes_.push_back({Kind::Moved, subjectOf(read_.item(i).kind), read_.element(i), {},
            read_.text(i), written_.text(j), 1, read_.place(i), written_.place(j)});
    }

    void compareWords(const Words& lost, const Words& added)
    {
        const auto before = read_.words(lost);
        const auto after = written_.words(added);
        if (before == after) return; // only tags between the letters have changed
        if (!lost.empty() && (lost.size() == added.size() || areAlike(before, after))) {
            changes_.push_back(
                {Kind::Changed, Subject::Words, read_.element(lost.front()), {}, before, after,
                    lost.size(), read_.place(lost.front()), written_.place(added.front())});
            return;
        }
        for (const auto& run : runs(lost))
            changes_.push_back({Kind::Lost, Subject::Words, read_.element(run.front()), {},
                read_.words(run), {}, run.size(), read_.place(run.front()), {}});
        for (const auto& run : runs(added))
            changes_.push_back({Kind::Added, Subject::Words, written_.element(run.front()), {}, {},
                written_.words(run), run.size(), {}, written_.place(run.front())});
    }

    /// Tells where a word has grown together with the one ahead of it, or come apart.
    void compareBlanks(MatchedPair word)
    {
        if (read_.item(word.left).joined == written_.item(word.right).joined) return;
        const auto before = read_.wordAheadInLine(word.left);
        const auto after = written_.wordAheadInLine(word.right);
        if (before == kNoItem || after == kNoItem || match_.written[before] != after) return;
        changes_.push_back({Kind::Changed, Subject::Words, read_.element(word.left), {},
            read_.words({before, word.left}), written_.words({after, word.right}), 2,
            read_.place(before), written_.place(after)});
    }

    /// Words that follow each other without a tag between.
    static std::vector<Words> runs(const Words& words)
    {
        std::vector<Words> result;
        for (const auto at : words) {
            if (result.empty() || result.back().back() + 1 != at) result.emplace_back();
            result.back().push_back(at);
        }
        return result;
    }

    void compareAttributes(std::size_t i, std::size_t j)
    {
        const auto before = read_.attributes(i);
        const auto after = written_.attributes(j);
        auto left = before.begin();
        auto right = after.begin();
        while (left != before.end() || right != after.end()) {
            const bool leftEnds = left == before.end();
            const bool rightEnds = right == after.end();
            const auto leftName = leftEnds ? std::string() : lowerCase(left->name);
            const auto rightName = rightEnds ? std::string() : lowerCase(right->name);
            const bool lost = rightEnds || (!leftEnds && leftName < rightName);
            const bool added = leftEnds || (!rightEnds && rightName < leftName);
            listAttribute(i, added ? nullptr : &*left, lost ? nullptr : &*right);
            if (!added) ++left;
            if (!lost) ++right;
        }
    }

    void listAttribute(
        std::size_t start, const MarkupAttribute* before, const MarkupAttribute* after)
    {
        DeckChange change;
        change.kind = Kind::Changed;
        change.subject = Subject::Attribute;
        change.element = read_.item(start).name;
        if (before != nullptr) {
            change.before = withReferences(plainValue(*before));
            change.readAt = read_.places.at(before->offset);
        }
        if (after != nullptr) {
            change.after = withReferences(plainValue(*after));
            change.writtenAt = written_.places.at(after->offset);
        }
        const bool isChanged = before != nullptr && after != nullptr;
        if (isChanged && plainValue(*before) == plainValue(*after)) return;
        if (before == nullptr) change.kind = Kind::Added;
        if (after == nullptr) change.kind = Kind::Lost;
        // One of the two is there. NOLINTNEXTLINE(clang-analyzer-core.*): which is not seen here
        change.attribute = lowerCase(before != nullptr ? before->name : after->name);
        changes_.push_back(std::move(change));
    }

    const DeckSide& read_;
    const DeckSide& written_;
    const DeckMatch& match_;
    std::vector<DeckChange> changes_;
};

DeckFault placed(const MarkupFaultAt& fault, const TextPlaces& places)
{
    return {fault.fault, fault.name, places.at(fault.offset)};
}

} // namespace

std::optional<DeckFault> deckFault(std::string_view written)
{
    const auto verdict = verdictOnPlainMarkup(written);
    const auto fault = verdict ? verdict->fault : firstFault(written, readMarkup(written));
    if (!fault) return std::nullopt;
    return placed(*fault, TextPlaces(written.substr(0, fault->offset + 1)));
}

DeckChangesReport DeckChanges(std::string_view read, std::string_view written)
{
    const DeckSide before(read);
    const DeckSide after(written);
    const auto match = matchItems(before.deck, after.deck);
    DeckChangesReport report;
    report.changes = ChangeLister(before, after, match).run();
    if (const auto fault = firstFault(written, after.deck.document))
        report.fault = placed(*fault, after.places);
    return report;
}

} // namespace quillmere
