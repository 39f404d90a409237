// Held by resource_files_test.cpp, on files in a directory of its own.

#include "app/word_resources.h"

#include "document/platform/files.h"
#include "document/text/failure.h"

#include <vector>

namespace quillmere {

namespace {

constexpr const char* kCompiledFile = "ResWords.res";
constexpr const char* kTextFile = "ResWords.ini";

/// A file that was cut off lacks words.
bool isWhole(const std::string& bytes)
{
    return !bytes.empty() && bytes.size() % kWordRecordSize == 0;
}

} // namespace

void WordResources::LoadWordResources(const SettingsStore& settings)
{
    const auto skins = settings.ReadSetting("Skins");
    if (skins.empty()) return;
    if (fileExists(skins + kCompiledFile)) {
        const auto bytes = readFile(skins + kCompiledFile);
        table_ = wordsFromRecords(bytes);
        if (isWhole(bytes)) return;
    }
    if (!fileExists(skins + kTextFile)) return;
    table_ = wordsFromText(readFile(skins + kTextFile));
    try {
        WriteWordResources(settings);
    } catch (const FileFailure&) { // NOLINT(bugprone-empty-catch)
        // a directory without write access: the text file is read again next time
    }
}

void WordResources::WriteWordResources(const SettingsStore& settings) const
{
    const auto skins = settings.ReadSetting("Skins");
    if (skins.empty() || table_.empty()) return;
    replaceFile(skins + kCompiledFile, recordsOfWords(table_));
}

std::string WordResources::GetWord(int id, std::initializer_list<std::string_view> arguments) const
{
    return filledWord(table_, id, std::vector<std::string_view>(arguments));
}

} // namespace quillmere
