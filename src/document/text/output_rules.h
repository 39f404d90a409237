#pragma once

#include "document/text/limits.h"

#include <cstddef>

namespace quillmere {

/// What the setting `StandardOutput` decides: whether pictures and decks are written as this
/// program has always written them, or as the public standards of WBMP (WAP-237) and WML 1.1
/// have it. Every place where it matters asks one of these, never the setting.
class OutputRules {
public:
    explicit OutputRules(bool standardOutput = false)
        : standard_(standardOutput)
    {
    }

    /// WBMP pictures have no byte behind full rows, their real sizes, integers of any length, and
    /// a header that is checked.
    [[nodiscard]] bool standardWbmp() const { return standard_; }
    /// Characters outside of 7 bits become numeric character references and not plain letters or
    /// blanks.
    [[nodiscard]] bool writesCharacterReferences() const { return standard_; }
    /// Alternative texts of pictures keep their case.
    [[nodiscard]] bool keepsAlternativeTextCase() const { return standard_; }
    /// A table without a title is written as a WML table and not as the surface left it.
    [[nodiscard]] bool writesUntitledTables() const { return standard_; }
    /// Decks go to the surface and back with all that is in them: what HTML cannot show travels as
    /// markers that hold it whole.
    [[nodiscard]] bool losesNothing() const { return standard_; }
    /// How long a deck may be: in characters, and where nothing is lost in bytes of its file.
    [[nodiscard]] std::size_t maxDeckLength() const
    {
        return standard_ ? kMaxLosslessDeckLength : kMaxTextLength;
    }
    /// How many characters the text of an area may have.
    [[nodiscard]] std::size_t maxTextLength() const
    {
        return standard_ ? kMaxLosslessDesignLength : kMaxTextLength;
    }
    friend bool operator==(const OutputRules&, const OutputRules&) = default;

private:
    bool standard_;
};

} // namespace quillmere
