#pragma once

#include "document/standard/design_pieces.h"
#include "document/standard/token_writer.h"
#include "document/standard/written_nesting.h"

#include <string>
#include <string_view>

namespace quillmere {

/// Takes what is new in a card and sees to it that it stands where it may. A list holds entries
/// only: new text between them becomes an entry. Actions hold no text: what is typed between their
/// parameters goes behind them.
class NewContent {
public:
    /// `result` must outlive it.
    explicit NewContent(TokenWriter& result)
        : result_(result)
    {
    }
    /// Gets ready for the next piece of the card, which may be new or not. `written` is what is
    /// open ahead of it.
    void prepareFor(const DesignPiece& piece, bool isNew, const WrittenNesting& written);
    /// Source that the piece gives.
    void add(std::string_view source);
    /// To be called where no action is open any more: what was put off is written.
    void endAction();

private:
    void followList(const DesignPiece& piece, bool isNew, WmlElement parent);

    TokenWriter& result_;
    bool isInNewOption_ = false;
    bool goesOut_ = false; ///< the piece at hand may not stand in its action
    std::string behindAction_;
};

} // namespace quillmere
