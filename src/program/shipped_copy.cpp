// Most starts find the stamp of the shipped folder as it was listed, and read no file. Held by
// settings_store_test.cpp.

#include "program/shipped_copy.h"

#include "document/platform/files.h"
#include "document/text/content_hash.h"
#include "document/text/failure.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr const char* kListName = ".shipped";

struct CompiledText {
    std::string_view text;
    std::string_view compiled;
};
constexpr CompiledText kCompiledTexts[] = {
    {"ResWords.ini", "ResWords.res"},
    {"ResForms.ini", "ResForms1.res"},
    {"ResForms.ini", "ResForms2.res"},
};

/// What was copied: contentHash() by the files' names, and the stamp of the folder it came from.
struct ShippedList {
    std::uint64_t stamp = 0;
    std::map<std::string, std::uint64_t, std::less<>> files;
};

std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(directory, error))
        if (entry.is_regular_file(error)) names.push_back(entry.path().filename().string());
    return names;
}

/// Differs as soon as a file has another name, size or time.
std::uint64_t stampOf(const std::string& directory, const std::vector<std::string>& names)
{
    std::uint64_t stamp = 0;
    std::error_code error;
    for (const auto& name : names) {
        const auto time = fs::last_write_time(directory + name, error).time_since_epoch().count();
        const auto size = fs::file_size(directory + name, error);
        stamp ^= contentHash(name + '\n' + std::to_string(size) + '\n' + std::to_string(time));
    }
    return stamp;
}

std::optional<std::uint64_t> hashOf(const std::string& path)
{
    return regularFileExists(path) ? std::optional(contentHash(readFile(path))) : std::nullopt;
}

// A line for each file, its number ahead of its name; the folder's stamp has no name.
ShippedList readList(const std::string& copy)
{
    ShippedList list;
    if (!regularFileExists(copy + kListName)) return list;
    const auto text = readFile(copy + kListName);
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        std::uint64_t number = 0;
        const auto* end = std::from_chars(line.data(), line.data() + line.size(), number).ptr;
        const auto name = line.substr(std::min(line.size(), std::size_t(end - line.data()) + 1));
        (name.empty() ? list.stamp : list.files[std::string(name)]) = number;
    }
    return list;
}

void writeList(const std::string& copy, const ShippedList& list)
{
    auto text = std::to_string(list.stamp) + '\n';
    for (const auto& [name, number] : list.files)
        text.append(std::to_string(number)).append(" ").append(name).append("\n");
    replaceFile(copy + kListName, text);
}

void removeCompiled(const std::string& copy, std::string_view text)
{
    for (const auto& row : kCompiledTexts)
        if (row.text == text) removeFile(copy + std::string(row.compiled));
}

/// Copies the file where the person's is not there or is as it was copied.
void renew(
    const std::string& shipped, const std::string& copy, const std::string& name, ShippedList& list)
{
    const auto bytes = readFile(shipped + name);
    const auto now = contentHash(bytes);
    const auto mine = hashOf(copy + name);
    const auto listed = list.files.find(name);
    const bool isUntouched = mine && listed != list.files.end() && *mine == listed->second;
    if (mine != now && mine && !isUntouched) return;
    if (mine != now) {
        replaceFile(copy + name, bytes);
        removeCompiled(copy, name);
    }
    list.files[name] = now;
}

} // namespace

void renewShippedCopy(const std::string& shipped, const std::string& copy)
{
    try {
        const auto names = namesIn(shipped);
        auto list = readList(copy);
        const auto stamp = stampOf(shipped, names);
        if (list.stamp == stamp) return;
        for (const auto& name : names)
            renew(shipped, copy, name, list);
        list.stamp = stamp;
        writeList(copy, list);
    } catch (const FileFailure&) { // NOLINT(bugprone-empty-catch)
        // the next start tries again; the program works with what is there
    }
}

} // namespace quillmere
