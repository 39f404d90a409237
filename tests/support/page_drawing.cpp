#include "support/page_drawing.h"

#include <array>
#include <sstream>

namespace quillmere::test {

namespace {

constexpr std::array kKinds{
    "Paragraph", "Format", "Link", "Table", "Row", "Cell", "Select", "Option", "Marker"};

std::string utf8(char16_t character)
{
    const auto byte = [](unsigned bits) { return static_cast<char>(bits); };
    const unsigned code = character;
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0U | (code >> 6U)), byte(0x80U | (code & 0x3FU))};
    return {byte(0xE0U | (code >> 12U)), byte(0x80U | ((code >> 6U) & 0x3FU)),
        byte(0x80U | (code & 0x3FU))};
}

std::string look(const TextStyle& style)
{
    std::string drawn = "|";
    if (style.bold) drawn += 'b';
    if (style.italic) drawn += 'i';
    if (style.underlined) drawn += 'u';
    if (style.fixedPitch) drawn += 'f';
    if (style.sizeStep > 0) drawn += '+';
    if (style.sizeStep != 0) drawn += std::to_string(style.sizeStep);
    if (style.link != kNone) drawn += 'a';
    return drawn + '|';
}

class Drawing {
public:
    explicit Drawing(const SurfacePage& page)
        : page_(page)
    {
    }
    std::string blocks(std::size_t block, std::size_t end, std::size_t cell);

private:
    void drawBlock(const PageBlock& block);
    void drawTable(std::size_t index);
    std::string item(const PageItem& item);
    std::size_t tableBehind(std::size_t block) const;

    const SurfacePage& page_;
    std::ostringstream out_;
};

std::string Drawing::item(const PageItem& item)
{
    switch (item.kind) {
    case ItemKind::Character:
        return utf8(item.shown);
    case ItemKind::Blank:
        return "_";
    case ItemKind::LineBreak:
        return "/";
    case ItemKind::Picture:
        return "@";
    case ItemKind::Radio:
        return "O";
    case ItemKind::Chip:
    case ItemKind::Marker:
        return std::string(item.source.in(page_.text));
    }
    return "?";
}

void Drawing::drawBlock(const PageBlock& block)
{
    constexpr std::array kAlignments{"", "c", "r"};
    out_ << (block.isAside             ? "A"
            : block.paragraph == kNone ? "-"
                                       : "P")
         << kAlignments.at(static_cast<std::size_t>(block.alignment)) << ':';
    TextStyle style;
    for (std::size_t i = block.firstItem; i < block.endItem; ++i) {
        const auto& next = page_.styles.at(page_.items[i].style);
        if (!(next == style)) out_ << look(next);
        style = next;
        out_ << item(page_.items[i]);
    }
}

std::size_t Drawing::tableBehind(std::size_t block) const
{
    for (std::size_t i = 0; i < page_.tables.size(); ++i)
        if (page_.tables[i].blockAhead == block) return i;
    return kNone;
}

void Drawing::drawTable(std::size_t index)
{
    const PageTable& table = page_.tables[index];
    out_ << (table.border ? " {#" : " {");
    int row = 0;
    for (std::size_t i = 0; i < page_.cells.size(); ++i) {
        const auto& cell = page_.cells[i];
        if (cell.table != index) continue;
        if (cell.row != row) out_ << ';';
        row = cell.row;
        if (cell.columnSpan != 1) out_ << 'x' << cell.columnSpan;
        out_ << '(' << Drawing(page_).blocks(cell.firstBlock, cell.endBlock, i) << ')';
    }
    out_ << "} ";
}

/// Draws the blocks of a cell, and between them the tables that stand in it.
std::string Drawing::blocks(std::size_t block, std::size_t end, std::size_t cell)
{
    while (block < end) {
        if (page_.blocks[block].cell != cell) return out_.str() + "(block of another cell)";
        drawBlock(page_.blocks[block]);
        const auto table = tableBehind(block);
        if (table != kNone)
            drawTable(table);
        else if (block + 1 < end)
            out_ << ' ';
        block = table == kNone ? block + 1 : page_.tables[table].blockBehind;
    }
    return out_.str();
}

} // namespace

std::string drawn(const SurfacePage& page)
{
    return Drawing(page).blocks(0, page.blocks.size(), kNone);
}

std::string drawnElements(const SurfacePage& page)
{
    std::string result;
    for (const auto& element : page.elements) {
        if (!result.empty()) result += ' ';
        result.append(kKinds.at(static_cast<std::size_t>(element.kind))).append("[");
        result.append(element.start.in(page.text)).append("..");
        result.append(element.end.in(page.text)).append("]");
    }
    return result;
}

} // namespace quillmere::test
