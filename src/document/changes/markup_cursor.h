#pragma once

#include "document/changes/markup_document.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quillmere {

/// A place in markup that is being read, and what was read of it.
struct MarkupCursor {
    explicit MarkupCursor(std::string_view markup)
        : text(markup)
    {
        document.bytes = markupBytesOf(markup);
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

    /// Whether a name begins at `offset`.
    [[nodiscard]] bool beginsNameAt(std::size_t offset) const
    {
        const auto rest = text.substr(std::min(offset, text.size()));
        if (rest.empty() || static_cast<unsigned char>(rest.front()) < 0x80)
            return !rest.empty() && beginsName(rest.front());
        return wideNameCharacter(rest, document.bytes, true) != 0;
    }

    /// Passes over a name; "" where none begins.
    std::string_view takeName()
    {
        const auto name = text.substr(at, nameLength(text.substr(at), document.bytes));
        at += name.size();
        return name;
    }

    /// Keeps a fault if it is the first one.
    void note(MarkupFault fault, std::size_t offset, std::string_view name = {})
    {
        if (document.firstFault) return;
        document.firstFault = MarkupFaultAt{fault, offset, std::string(name)};
    }
};

} // namespace quillmere
