#pragma once

#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"

#include <string>
#include <utility>

namespace quillmere::test {

/// A page given as its text with the caret '|' or the selection '[' ... ']' in it.
struct MarkedPage {
    SurfacePage page;
    PagePlace from;
    PagePlace to; ///< the caret: the same as `from`

    explicit MarkedPage(std::string marked, const OutputRules& rules = OutputRules())
    {
        const auto begin = take(marked, "[|");
        const auto end = take(marked, "]");
        page = readSurfacePage(std::move(marked), rules);
        from = placeAt(page, begin);
        to = end == std::string::npos ? from : placeAt(page, end);
    }

private:
    static std::size_t take(std::string& marked, const char* marks)
    {
        const auto offset = marked.find_first_of(marks);
        if (offset != std::string::npos) marked.erase(offset, 1);
        return offset;
    }
};

/// The text after an edit, with '|' at its caret.
[[nodiscard]] inline std::string editedWithCaret(const SurfacePage& page, const SurfaceEdit& edit)
{
    return edited(page.text, edit, page.rules).insert(edit.caret, "|");
}

} // namespace quillmere::test
