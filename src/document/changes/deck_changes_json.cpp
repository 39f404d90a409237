// Texts stay Windows-1252 until the object is whole. Held by deck_changes_report_test.cpp.

#include "document/changes/deck_changes_json.h"

#include "document/changes/deck_change_counts.h"
#include "document/changes/markup_fault_texts.h"
#include "document/text/json_text.h"
#include "document/text/windows1252.h"

#include <array>

namespace quillmere {

namespace {

using Kind = DeckChange::Kind;
using Subject = DeckChange::Subject;

constexpr std::string_view kKinds[] = {"lost", "added", "changed", "moved"};
constexpr std::string_view kSubjects[]
    = {"element", "attribute", "endTag", "words", "comment", "doctype", "instruction"};

template <typename Enum> std::size_t row(Enum value)
{
    return static_cast<std::size_t>(value);
}

void addMember(std::string& json, std::string_view name, std::string_view value)
{
    if (!json.empty() && !json.ends_with('{')) json += ", ";
    json.append("\"").append(name).append("\": ").append(value);
}

std::string jsonPlace(const TextPlace& place)
{
    return '[' + std::to_string(place.line) + ", " + std::to_string(place.column) + ']';
}

std::string jsonChange(const DeckChange& change)
{
    std::string json = "{";
    addMember(json, "kind", jsonString(kKinds[row(change.kind)]));
    addMember(json, "subject", jsonString(kSubjects[row(change.subject)]));
    addMember(json, "element", jsonString(change.element));
    if (change.subject == Subject::Attribute)
        addMember(json, "attribute", jsonString(change.attribute));
    if (change.kind != Kind::Added) addMember(json, "before", jsonString(change.before));
    if (change.kind != Kind::Lost) addMember(json, "after", jsonString(change.after));
    addMember(json, "count", std::to_string(change.count));
    if (change.readAt) addMember(json, "readAt", jsonPlace(*change.readAt));
    if (change.writtenAt) addMember(json, "writtenAt", jsonPlace(*change.writtenAt));
    return json + '}';
}

std::string jsonCount(const DeckChangeCount& count)
{
    std::string json = "{";
    addMember(json, "subject", jsonString(kSubjects[row(count.subject)]));
    addMember(json, "name", jsonString(count.name));
    const auto values = std::array{count.lost, count.added, count.changed, count.moved};
    for (std::size_t i = 0; i < values.size(); ++i)
        addMember(json, kKinds[i], std::to_string(values[i]));
    return json + '}';
}

std::string jsonFault(const DeckFault& fault)
{
    std::string json = "{";
    addMember(json, "reason", jsonString(describeFault(fault.fault, fault.name)));
    addMember(json, "line", std::to_string(fault.writtenAt.line));
    addMember(json, "column", std::to_string(fault.writtenAt.column));
    return json + '}';
}

template <typename Items, typename Print> std::string jsonList(const Items& items, Print print)
{
    std::string json = "[";
    for (const auto& item : items)
        json.append(json.ends_with('[') ? "\n  " : ",\n  ").append(print(item));
    return json + ']';
}

} // namespace

std::string jsonReport(const DeckChangesReport& report, std::string_view deckName)
{
    std::string json;
    addMember(json, "wellFormed", report.wellFormed() ? "true" : "false");
    addMember(json, "fault", report.fault ? jsonFault(*report.fault) : "null");
    addMember(json, "stable", report.stable ? (*report.stable ? "true" : "false") : "null");
    addMember(json, "summary", jsonList(countChanges(report), jsonCount));
    addMember(json, "changes", jsonList(report.changes, jsonChange));
    return "{\"deck\": " + jsonString(validUtf8(deckName)) + ", " + toUtf8(json) + '}';
}

} // namespace quillmere
