#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/deck_check.h"
#include "cli/guarded.h"
#include "cli/terminal.h"
#include "document/card_attributes.h"
#include "document/deck_store.h"
#include "document/platform/paths.h"
#include "document/text/json_text.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere::cli {

namespace {

struct Row {
    std::size_t index = 0;
    CardAttributes card;
    Jump jump;
};

std::vector<Row> rowsOf(DocumentSession& session)
{
    std::vector<Row> rows;
    for (std::size_t area = 0; area < areaCount(session.deck); ++area)
        rows.push_back({area, GetCardAttributes(session, area), GetJump(session, area)});
    return rows;
}

// A tab in a value would read as the next column.
std::string column(std::string value)
{
    std::replace(value.begin(), value.end(), '\t', ' ');
    return "\t" + toUtf8(value);
}

std::string tabLine(const Row& row)
{
    return std::to_string(row.index) + column(row.card.id) + column(row.card.title)
        + column(row.jump.label) + column(row.jump.target) + "\n";
}

std::string jsonLine(const Row& row)
{
    return "{\"index\": " + std::to_string(row.index) + ", \"id\": " + jsonString(row.card.id)
        + ", \"title\": " + jsonString(row.card.title) + ", \"label\": "
        + jsonString(row.jump.label) + ", \"target\": " + jsonString(row.jump.target) + "}";
}

std::string jsonArray(const std::vector<Row>& rows)
{
    std::string text;
    for (const Row& row : rows)
        text += (text.empty() ? "[" : ",\n ") + jsonLine(row);
    return toUtf8(text + "]\n");
}

void printRows(const std::vector<Row>& rows, bool json)
{
    if (json) return printBytes(jsonArray(rows));
    for (const Row& row : rows)
        print(tabLine(row));
}

} // namespace

ExitStatus runAreas(const Arguments& arguments)
{
    if (arguments.operands.size() != 1) throw BadArguments{"„areas“ braucht genau ein Deck."};
    const std::string& path = arguments.operands.front();
    return guarded(path, [&] {
        const auto [directory, name] = SplitPath(path);
        CoreSession core(arguments.standardOutput);
        LoadDeck(core.session, {name, directory, {}, {}});
        if (const auto doubt = doubtAbout(path, readDeckOf(core.session))) complain(*doubt);
        printRows(rowsOf(core.session), arguments.json);
        return ExitStatus::Done;
    });
}

} // namespace quillmere::cli
