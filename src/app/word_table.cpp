// The text form is read entry by entry, the binary one record by record, and gaps are filled while
// the text is copied once. Held by word_table_test.cpp.

#include "app/word_table.h"

#include "app/resource_text.h"
#include "document/text/record_fields.h"
#include "document/text/text_lines.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr std::size_t kTextWidth = 1000;
constexpr std::size_t kGroupWidth = 250;
constexpr std::size_t kRemWidth = 1000;
constexpr std::size_t kMaxArguments = 10;
constexpr std::string_view kGap = "<?>";
constexpr std::string_view kLineBreak = "<br>";

struct WordRecord {
    static constexpr std::size_t kSize = kWordRecordSize;
    std::int16_t id = 0;
    TextField<kTextWidth> text;
    TextField<kGroupWidth> group;
    TextField<kRemWidth> rem;
    static void eachField(auto& record, auto&& field)
    {
        field(0, record.id);
        field(2, record.text);
        field(1002, record.group);
        field(1252, record.rem);
    }
};

// An id has 16 bits, so a table is at most 32768 entries however large the file is.
void store(WordTable& table, std::int16_t id, WordEntry entry)
{
    if (id < 0) return;
    const auto index = static_cast<std::size_t>(id);
    if (table.size() <= index) table.resize(index + 1);
    table[index] = std::move(entry);
}

std::string_view argumentFor(std::size_t gap, const std::vector<std::string_view>& arguments)
{
    const auto index = std::min(gap, kMaxArguments - 1);
    if (index >= arguments.size() || arguments[index] == kGap) return {};
    return arguments[index];
}

} // namespace

WordTable wordsFromText(std::string_view text)
{
    WordTable table;
    const std::string joined = joinLines(text);
    ResourceEntries entries(joined, "<word", "</word");
    while (const auto entry = entries.next()) {
        const auto id = shortNumber(resourceAttribute(entry->tag, "id="));
        if (!id) continue;
        store(table, *id,
            {fieldText(entry->content, kTextWidth),
                fieldText(resourceAttribute(entry->tag, "group="), kGroupWidth),
                fieldText(resourceAttribute(entry->tag, "rem="), kRemWidth)});
    }
    return table;
}

WordTable wordsFromRecords(std::string_view bytes)
{
    WordTable table;
    for (; bytes.size() >= kWordRecordSize; bytes.remove_prefix(kWordRecordSize)) {
        WordRecord record;
        WordRecord::eachField(record, RecordReader(bytes));
        store(table, record.id,
            {std::string(record.text.text()), std::string(record.group.text()),
                std::string(record.rem.text())});
    }
    return table;
}

std::string recordsOfWords(const WordTable& table)
{
    std::string bytes;
    bytes.reserve(table.size() * kWordRecordSize);
    for (std::size_t id = 0; id < table.size(); ++id) {
        WordRecord record;
        record.id = static_cast<std::int16_t>(id);
        record.text.set(table[id].text);
        record.group.set(table[id].group);
        record.rem.set(table[id].rem);
        appendRecord(bytes, record);
    }
    return bytes;
}

std::string filledWord(
    const WordTable& table, int id, const std::vector<std::string_view>& arguments)
{
    if (id < 0 || static_cast<std::size_t>(id) >= table.size()) return {};
    const std::string_view text = table[static_cast<std::size_t>(id)].text;
    std::string filled;
    std::size_t gap = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto rest = text.substr(at);
        if (rest.starts_with(kGap)) {
            filled += argumentFor(gap++, arguments);
            at += kGap.size();
        } else if (rest.starts_with(kLineBreak)) {
            filled += "\r\n";
            at += kLineBreak.size();
        } else {
            filled += text[at++];
        }
    }
    return filled;
}

} // namespace quillmere
