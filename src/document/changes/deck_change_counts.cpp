// Held by deck_changes_report_test.cpp.

#include "document/changes/deck_change_counts.h"

#include <map>
#include <tuple>
#include <utility>

namespace quillmere {

namespace {

using Kind = DeckChange::Kind;
using Subject = DeckChange::Subject;

std::string countedName(const DeckChange& change)
{
    switch (change.subject) {
    case Subject::Element:
        return change.element;
    case Subject::EndTag:
        return '/' + change.element;
    case Subject::Attribute:
        return change.element + ' ' + change.attribute;
    default:
        return {};
    }
}

std::size_t& counter(DeckChangeCount& count, Kind kind)
{
    switch (kind) {
    case Kind::Lost:
        return count.lost;
    case Kind::Added:
        return count.added;
    case Kind::Changed:
        return count.changed;
    case Kind::Moved:
        break;
    }
    return count.moved;
}

} // namespace

std::vector<DeckChangeCount> countChanges(const DeckChangesReport& report)
{
    std::map<std::tuple<bool, std::string, Subject, std::string>, DeckChangeCount> rows;
    for (const auto& change : report.changes) {
        const auto name = countedName(change);
        auto& row
            = rows[{name.empty(), name.empty() ? name : change.element, change.subject, name}];
        row.name = name;
        row.subject = change.subject;
        counter(row, change.kind) += change.count;
    }
    std::vector<DeckChangeCount> counts;
    counts.reserve(rows.size());
    for (auto& [key, row] : rows)
        counts.push_back(std::move(row));
    return counts;
}

} // namespace quillmere
