#pragma once

#include "editor/page/open_formats.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quillmere {

/// Makes the blocks of a page while its tags are read from left to right. Items are put into
/// `page.items` behind each other; this cuts them into blocks. Text outside of paragraphs makes a
/// block only where there is more than white space, next to a table that has no other neighbour,
/// and in a cell that has nothing else.
class BlockFlow {
public:
    /// The page and the formats must outlive this.
    BlockFlow(SurfacePage& page, OpenFormats& formats);

    /// The content begins, or a cell; its index in the page, kNone for the content.
    void enter(std::size_t cell, std::size_t offset);
    void leave(std::size_t offset);
    /// A <p>, or a pre marker, which ends the paragraph before it.
    void openParagraph(SourceRange startTag);
    /// The start tag of the paragraph that is open in this cell; nullopt for none.
    [[nodiscard]] std::optional<SourceRange> paragraph() const;
    /// False where no paragraph is open in this cell.
    [[nodiscard]] bool closeParagraph(SourceRange endTag);
    /// A table begins at `offset`; returns the index of the block ahead of it.
    [[nodiscard]] std::size_t breakAtTable(std::size_t offset);
    void resumeBehindTable(std::size_t table, std::size_t offset);

    /// Takes the text of a range as items.
    void addText(SourceRange range);
    void addObject(ItemKind kind, SourceRange source);
    /// The same for an atom, which makes no place for text.
    void addAtom(SourceRange source);
    /// A format was opened: what is typed into a block that begins with it has it.
    void formatOpened();
    /// A tag without item stands here that typed text has to stay ahead of.
    void tagPassed();

private:
    enum class Neighbour { None, Block, Table };
    struct Context {
        std::size_t cell = kNone;
        std::size_t paragraph = kNone; // index of the open one in the elements
        Alignment alignment = Alignment::Left;
        Neighbour last = Neighbour::None; // what was shown last
        std::size_t table = kNone; // the last one, while no block stands behind it
        std::size_t begin = 0; // of the block, and of its items
        std::size_t firstItem = 0;
        bool hasContent = false; // more than white space
        bool hasText = false; // more than white space and atoms
        bool mayOpenFormats = true; // nothing but format tags stood in the block so far
        std::uint16_t style = 0;
    };
    void beginBlock(std::size_t offset);
    void endBlock(std::size_t offset, bool isNeeded);
    void pushBlock(std::size_t offset);
    void dropLayoutAtEnd(std::size_t offset);
    void endParagraph(SourceRange endTag);
    void addItem(ItemKind kind, SourceRange source);

    SurfacePage& page_;
    OpenFormats& formats_;
    std::vector<Context> contexts_;
};

} // namespace quillmere
