#pragma once

#include "editor/elements/element_edit.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

inline constexpr int kMaxTableRows = 30;
inline constexpr int kMaxTableColumns = 10;

struct TableSettings {
    std::string title; ///< as it stands between the quotes
    std::string align; ///< L, C or R; "" where the text in the list is none of the German ones
    int rows = 2; ///< 1 to 30
    int columns = 2; ///< 1 to 10
};

/// The code of an entry of the list: "Links", "Mittig", "Rechts". A text of another language has
/// none.
[[nodiscard]] std::string_view tableAlignCode(std::string_view listText);
/// The index in the list for a table's `align`: 0 where it holds an L, else 2 for an R, else 1 for
/// a C, else 0, in any case.
[[nodiscard]] int tableAlignIndex(std::string_view align);

/// What the first table at or behind the position is: its title and align, quoted or not, the <td>
/// of its first row and its rows, as many as there are. nullopt where there is no table.
[[nodiscard]] std::optional<TableSettings> GetTable(std::string_view text, int position);

/// Puts a table in behind the first valid place at the position; by the default with two comments
/// and a </br> behind it. The caret stands ahead of the text of its first cell.
[[nodiscard]] ElementEdit InsertTable(std::string_view text, int position,
    const TableSettings& wanted, const OutputRules& rules = OutputRules());

/// Makes the first table at or behind the position what is wanted. Attributes that the table has
/// not are put in; others than title, align and columns stay. Cells that stay keep their content;
/// what is beyond the wanted number goes. By the default rows and cells count as "<tr>" and "<td>"
/// in this spelling: a table without such rows keeps them, and new cells go in behind all. Where
/// nothing is lost all of them count, and what is wanted as GetTable told it stays as it is: an
/// align of several columns, a missing title, rows of unequal length.
/// Without a table the text stays as it is.
[[nodiscard]] ElementEdit SetTable(std::string_view text, int position, const TableSettings& wanted,
    const OutputRules& rules = OutputRules());

/// Takes out the first table at or behind the position, but not the line break that
/// InsertTable puts behind it. A table without its end stays.
[[nodiscard]] ElementEdit DeleteTable(
    std::string_view text, int position, const OutputRules& rules = OutputRules());

} // namespace quillmere
