// Any bytes as a file of words, in both forms: what is read compiles into records that read alike.

#include "fuzz_target.h"

#include "app/word_table.h"

#include <string>

using namespace quillmere;

namespace {

constexpr std::size_t kMaxCompiled = 300; // an id of 32767 compiles to 74 MB

void requireRoundTrip(const WordTable& table)
{
    for (int id = 0; id < 3; ++id)
        (void)filledWord(table, id, {"a", "<?>", "<br>"});
    if (table.size() > kMaxCompiled) return;
    fuzz::require(wordsFromRecords(recordsOfWords(table)) == table);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    requireRoundTrip(wordsFromText(bytes));
    requireRoundTrip(wordsFromRecords(bytes));
    return 0;
}
