// Both look for table tags behind a place and ask which comes first, an end or a begin.
// Held by hit_test_test.cpp.

#include "editor/page/hit_test.h"

#include "document/text/limits.h"
#include "document/text/tag_scanner.h"
#include "document/text/text_search.h"
#include "editor/page/attribute_values.h"

namespace quillmere {

namespace {

/// Answers for places that do not go back.
class TableTest {
public:
    explicit TableTest(std::string_view text)
        : begins_(text, "<table")
        , ends_(text, "</table")
    {
    }
    /// Whether the next end of a table from `offset` on comes ahead of the next begin.
    bool holds(std::size_t offset)
    {
        const auto end = ends_.next(offset);
        return end != npos && begins_.next(offset) > end; // npos is behind all
    }
    /// Whether the next begin comes ahead of the next end.
    bool opensAgain(std::size_t offset)
    {
        const auto begin = begins_.next(offset);
        const auto end = ends_.next(offset);
        return begin != npos && end != npos && begin < end;
    }

private:
    ForwardFinder begins_;
    ForwardFinder ends_;
};

/// What tells pictures, or radio buttons, apart.
std::string_view keyOf(std::string_view tag, bool isPicture)
{
    return isPicture ? picturePath(attributeOf(tag, "src")) : attributeOf(tag, "onclick");
}

int countInTables(std::string_view text, bool isPicture, std::string_view key)
{
    int count = 0;
    TableTest table(text);
    TagScanner tags(text);
    while (const auto tag = tags.next()) {
        if (!standsAt(text, tag->begin, isPicture ? "<img" : "<input")) continue;
        if (keyOf(tag->in(text), isPicture) == key && table.holds(tag->end)) ++count;
    }
    return count;
}

/// The tables that another one begins in.
int countTablesAroundTables(std::string_view text)
{
    constexpr std::string_view kTable = "<table";
    int count = 0;
    TableTest table(text);
    ForwardFinder begins(text, kTable);
    for (auto at = begins.next(0); at != npos; at = begins.next(at + 1))
        if (table.opensAgain(at + 1)) ++count;
    return count;
}

} // namespace

bool IsInsideTable(std::string_view text, int position, std::size_t limit)
{
    requireAddressable(text, limit);
    return position >= 1 && TableTest(text).holds(static_cast<std::size_t>(position) - 1);
}

bool movedIntoTable(std::string_view textAtPress, std::string_view textNow,
    const SurfaceSelection::Element& element, std::size_t limit)
{
    requireAddressable(textAtPress, limit);
    requireAddressable(textNow, limit);
    if (element.tag == "table")
        return countTablesAroundTables(textNow) > countTablesAroundTables(textAtPress);
    const bool isPicture = element.tag == "img";
    if (!isPicture && element.tag != "input") return false;
    if (element.source.end > textAtPress.size()) return false;
    const auto key = keyOf(element.source.in(textAtPress), isPicture);
    return countInTables(textNow, isPicture, key) > countInTables(textAtPress, isPicture, key);
}

} // namespace quillmere
