#pragma once

#include "cli/guarded.h"
#include "cli/repair_plan.h"
#include "cli/standard_repair.h"
#include "document/changes/deck_changes.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::cli {

/// A deck that is to be written. All must outlive it.
struct ToldDeck {
    const std::string& input;
    const DeckChangesReport& changes;
    const std::vector<PlacedMend>& mends;
    const RepairPlan& plan;
    std::string_view written;
};

/// What is told of the decks of one call: nothing, text (with `--report` or `--dry-run`), or with
/// `--json` one JSON document, an array with an object for each deck. That is the object of
/// jsonReport() with these members behind it, or "deck", "written" and "error" alone where the deck
/// could not be repaired:
///
///     "output": PATH or "-", "bytes": N, "backup": null or PATH, "workFiles": [PATH],
///     "mends": [{"rule", "text", "line", "column", "before", "after"}] with --standard-output,
///     "written": BOOL, "error": null or TEXT
class RepairReport {
public:
    explicit RepairReport(const Arguments& arguments);

    /// Whether anything is told.
    [[nodiscard]] bool wanted() const;
    void begin() const;
    /// Tells of a deck ahead of its being written, and makes sure that this is taken, so that no
    /// deck is replaced whose report is lost.
    void tell(const ToldDeck& deck);
    /// Tells how it ended with the deck `input`.
    void finishDeck(const std::string& input, const std::optional<Problem>& problem);
    void end() const;

private:
    const Arguments& arguments_;
    std::size_t told_ = 0; // decks
    bool open_ = false; // the deck's object has no end yet
};

} // namespace quillmere::cli
