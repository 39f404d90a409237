#pragma once

#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"
#include "support/row_file.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quillmere::test {

/// Takes the first of the marks out of a text and tells where it stood; npos for none.
inline std::size_t takeMark(std::string& text, const char* marks)
{
    const auto offset = text.find_first_of(marks);
    if (offset != std::string::npos) text.erase(offset, 1);
    return offset;
}

/// Takes the caret '|' or the marks '[' and ']' out of a text.
inline SourceRange takeMarks(std::string& text)
{
    const auto begin = takeMark(text, "[|");
    const auto end = takeMark(text, "]");
    return {begin, end == std::string::npos ? begin : end};
}

/// A page given as its text with the caret '|' or the selection '[' ... ']' in it.
struct MarkedPage {
    SurfacePage page;
    PagePlace from;
    PagePlace to; ///< the caret: the same as `from`

    explicit MarkedPage(std::string marked, const OutputRules& rules = OutputRules())
    {
        const auto range = takeMarks(marked);
        page = readSurfacePage(std::move(marked), rules);
        from = placeAt(page, range.begin);
        to = placeAt(page, range.end);
    }
};

/// A text with the marks '[' and ']' or the caret '|' put round what is marked.
[[nodiscard]] inline std::string withMarks(std::string text, SourceRange marked, bool isCaret)
{
    if (isCaret) return text.insert(marked.begin, "|");
    return text.insert(marked.end, "]").insert(marked.begin, "[");
}

/// The text after an edit, with '|' at its caret.
[[nodiscard]] inline std::string editedWithCaret(const SurfacePage& page, const SurfaceEdit& edit)
{
    return edited(page.text, edit, page.rules).insert(edit.caret, "|");
}

/// A text with the caret or what is marked in it, and what becomes of it.
struct EditRow {
    std::string name;
    std::string before;
    std::string after;
};

/// The rows of a file, each with its three fields.
inline std::vector<EditRow> editRowsOf(const std::string& file)
{
    std::vector<EditRow> rows;
    for (const auto& row : rowsOf(file))
        rows.push_back({row.at(0), row.at(1), row.at(2)});
    return rows;
}

/// Each row after `operation` between its two places.
template <class Operation>
void expectEdits(
    Operation operation, const std::vector<EditRow>& rows, const OutputRules& rules = OutputRules())
{
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const MarkedPage marked(row.before, rules);
        const SurfaceEdit edit = operation(marked.page, marked.from, marked.to);
        EXPECT_EQ(editedWithCaret(marked.page, edit), row.after);
    }
}

} // namespace quillmere::test
