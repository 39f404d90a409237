#pragma once

#include "document/changes/markup_document.h"

#include <cstddef>
#include <string_view>

namespace quillmere {

/// A place in markup that is being read, and what was read of it.
struct MarkupCursor {
    explicit MarkupCursor(std::string_view markup)
        : text(markup)
    {
    }

    std::string_view text;
    std::size_t at = 0;
    MarkupDocument document;

    [[nodiscard]] bool atEnd() const { return at >= text.size(); }
    /// The character at the cursor or some behind it; 0 behind the end.
    [[nodiscard]] char peek(std::size_t ahead = 0) const
    {
        return at + ahead < text.size() ? text[at + ahead] : '\0';
    }

    void skipSpace()
    {
        while (isMarkupSpace(peek()))
            ++at;
    }

    /// Passes over a name; "" where none begins.
    std::string_view takeName()
    {
        const auto begin = at;
        if (!beginsName(peek())) return {};
        while (continuesName(peek()))
            ++at;
        return text.substr(begin, at - begin);
    }

    /// Keeps a fault if it is the first one.
    void note(MarkupFault fault, std::size_t offset, std::string_view name = {})
    {
        if (document.firstFault) return;
        document.firstFault = MarkupFaultAt{fault, offset, std::string(name)};
    }
};

} // namespace quillmere
