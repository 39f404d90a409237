// Held by tests/cli/repair_test.cpp.

#include "cli/repair_report.h"

#include "cli/terminal.h"
#include "document/changes/deck_changes_json.h"
#include "document/changes/deck_changes_report.h"
#include "document/text/json_text.h"
#include "document/text/windows1252.h"

namespace quillmere::cli {

namespace {

std::string jsonText(const std::string& bytes)
{
    return jsonString(validUtf8(bytes));
}

std::string jsonTexts(const std::vector<std::string>& texts)
{
    std::string json;
    for (const std::string& text : texts)
        json += (json.empty() ? "" : ", ") + jsonText(text);
    return "[" + json + "]";
}

std::string jsonPlan(const RepairPlan& plan, std::string_view written)
{
    return ", \"output\": " + jsonText(plan.output)
        + ", \"bytes\": " + std::to_string(written.size())
        + ", \"backup\": " + (plan.backup ? jsonText(*plan.backup) : "null")
        + ", \"workFiles\": " + jsonTexts(plan.workFiles);
}

std::string jsonMends(const std::vector<PlacedMend>& mends)
{
    std::string json;
    for (const auto& [mend, place] : mends) {
        json += json.empty() ? "\n" : ",\n";
        json += "  {\"rule\": " + jsonText(std::string(nameOf(mend.rule)))
            + ", \"text\": " + jsonText(std::string(germanText(mend.rule))) + ", \"line\": "
            + std::to_string(place.line) + ", \"column\": " + std::to_string(place.column)
            + ", \"before\": " + jsonString(toUtf8(mend.before))
            + ", \"after\": " + jsonString(toUtf8(mend.after)) + "}";
    }
    return ", \"mends\": [" + json + "]";
}

/// Each mend on a line: Berichtigt: Ein Wert bekam Anführungszeichen (Zeile 1, Spalte 2): a -> "a".
std::string mendsText(const std::vector<PlacedMend>& mends)
{
    std::string text;
    for (const auto& [mend, place] : mends) {
        text.append("Berichtigt: ").append(germanText(mend.rule));
        text += " (Zeile " + std::to_string(place.line) + ", Spalte " + std::to_string(place.column)
            + ")";
        if (!mend.before.empty()) text += ": " + inOneLine(toUtf8(mend.before));
        text += " -> " + (mend.after.empty() ? "nichts" : inOneLine(toUtf8(mend.after))) + "\n";
    }
    return text;
}

std::string quoted(const std::string& path)
{
    return "„" + inOneLine(path) + "“";
}

std::string outputText(const RepairPlan& plan, std::string_view written)
{
    const std::string bytes = std::to_string(written.size()) + " Byte";
    if (plan.output == "-") return "Auf die Standardausgabe kämen " + bytes + ".\n";
    if (!fileExists(plan.output))
        return quoted(plan.output) + " würde mit " + bytes + " angelegt.\n";
    if (!regularFileExists(plan.output))
        return "Nach " + quoted(plan.output) + " kämen " + bytes + ".\n";
    if (readFile(plan.output) == written)
        return quoted(plan.output) + " hat diesen Inhalt schon.\n";
    return quoted(plan.output) + " würde durch " + bytes + " ersetzt.\n";
}

std::string planText(const RepairPlan& plan, std::string_view written)
{
    std::string text = outputText(plan, written);
    if (plan.backup) text += "Das alte Deck bliebe als " + quoted(*plan.backup) + ".\n";
    if (plan.workFiles.size() == 1)
        text += "Arbeitsdatei: " + quoted(plan.workFiles.front()) + ".\n";
    if (plan.workFiles.size() > 1)
        text += "Arbeitsdateien: " + quoted(plan.workFiles.front()) + " bis "
            + quoted(plan.workFiles.back()) + ".\n";
    return text + "Geschrieben wurde nichts (--dry-run).\n";
}

} // namespace

RepairReport::RepairReport(const Arguments& arguments)
    : arguments_(arguments)
{
}

bool RepairReport::wanted() const
{
    return arguments_.report || arguments_.dryRun;
}

void RepairReport::begin() const
{
    if (arguments_.json) printBytes("[");
}

void RepairReport::tell(const ToldDeck& deck)
{
    if (arguments_.json) {
        std::string json = jsonReport(deck.changes, deck.input);
        json.pop_back(); // its "}" follows once it is known how the writing ended
        if (arguments_.standardOutput) json += jsonMends(deck.mends);
        printBytes((told_ == 0 ? "" : ",\n") + json + jsonPlan(deck.plan, deck.written));
        open_ = true;
    } else {
        print((told_ == 0 ? "" : "\n") + textReport(deck.changes, inOneLine(deck.input))
            + mendsText(deck.mends) + (arguments_.dryRun ? planText(deck.plan, deck.written) : ""));
    }
    ++told_;
    finishOutput();
}

void RepairReport::finishDeck(const std::string& input, const std::optional<Problem>& problem)
{
    if (!arguments_.json) return;
    const bool written = !problem && !arguments_.dryRun;
    if (!open_) printBytes((told_++ == 0 ? "" : ",\n") + ("{\"deck\": " + jsonText(input)));
    printBytes(std::string(", \"written\": ") + (written ? "true" : "false")
        + ", \"error\": " + (problem ? jsonText(problem->message) : "null") + "}");
    open_ = false;
}

void RepairReport::end() const
{
    if (arguments_.json) printBytes("]\n");
}

} // namespace quillmere::cli
