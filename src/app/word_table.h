#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The table of words and its two file forms. All functions take any bytes.

namespace quillmere {

struct WordEntry {
    std::string text; ///< "<br>" is a line break, "<?>" a gap
    std::string group; ///< for whoever writes the file
    std::string rem; ///< for whoever translates it
    bool operator==(const WordEntry&) const = default;
};

/// Words by their number, from 0 to the highest one that was stored; those between that were not
/// stored are empty.
using WordTable = std::vector<WordEntry>;

inline constexpr std::size_t kWordRecordSize = 2252;

/// Reads the text form: `<word id="5" group="..." rem="...">text</word>`. An entry whose id is no
/// number from 0 to 32767 is passed over, and of two entries with one id the later one stays. Texts
/// are cut to the widths that the binary form has.
[[nodiscard]] WordTable wordsFromText(std::string_view text);

/// Reads the binary form, records of 2252 bytes. A negative id and a part of a record at the end
/// are passed over.
[[nodiscard]] WordTable wordsFromRecords(std::string_view bytes);

/// The binary form of a table: one record for each number from 0 on.
[[nodiscard]] std::string recordsOfWords(const WordTable& table);

/// The text of the word `id` with each "<br>" as CR LF and its gaps filled from left to right; ""
/// for a word that there is not. A gap behind the last argument is filled with "", one behind the
/// tenth with the tenth. An argument that is "<?>" counts as "", and gaps within an argument are
/// text.
[[nodiscard]] std::string filledWord(
    const WordTable& table, int id, const std::vector<std::string_view>& arguments);

} // namespace quillmere
