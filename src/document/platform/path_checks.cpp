// Each character is tested by its code in code page 850, lower-cased. Held by paths_test.cpp,
// which walks all 256 characters.

#include "document/platform/path_checks.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr int kFirstHighCode = 123;
constexpr int kUUmlaut = 129;
constexpr int kAUmlaut = 132;
constexpr int kOUmlaut = 148;
constexpr int kOtherHighCode = 255; // any code of code page 850 that no rule lets through

// Code page 850 has the codes below 128 in common with Windows-1252.
int codeInPage850(char character)
{
    switch (static_cast<unsigned char>(character)) {
    case 0xFC:
        return kUUmlaut;
    case 0xE4:
        return kAUmlaut;
    case 0xF6:
        return kOUmlaut;
    default:
        break;
    }
    const int code = static_cast<unsigned char>(character);
    return code < 128 ? code : kOtherHighCode;
}

bool isRefusedHigh(int code)
{
    return code >= kFirstHighCode && code != kUUmlaut && code != kAUmlaut && code != kOUmlaut;
}

// Control characters and the blank are in none of the refused ranges.
bool standsInNames(char character)
{
    const int code = codeInPage850(lowerCase(character));
    if (isRefusedHigh(code)) return false;
    if (code >= '!' && code <= '/') return code == '-' || code == '.';
    return code < ':' || code > '`' || code == '_';
}

bool standsInPaths(char character, PathStyle style)
{
    const bool isDriveMark = style == PathStyle::Windows && character == ':';
    return isDriveMark || character == separator(style) || standsInNames(character);
}

bool hasRoot(std::string_view path, PathStyle style)
{
    if (style == PathStyle::Posix) return path.starts_with('/');
    return path.find(':') != npos;
}

void separateDrive(std::string& path)
{
    const auto behind = path.find(':') + 1;
    if (behind < path.size() && path[behind] != '\\') path.insert(behind, 1, '\\');
}

} // namespace

std::optional<std::string> CheckFileName(std::string_view name)
{
    name = trimBlanks(name);
    if (name.empty() || !std::all_of(name.begin(), name.end(), standsInNames)) return std::nullopt;
    const auto point = name.find('.');
    if (point != npos && name.find('.', point + 1) != npos) return std::nullopt;
    return std::string(trimBlanks(name.substr(0, point))) + ".wml";
}

std::optional<std::string> CheckPath(std::string_view path, PathStyle style)
{
    const auto isRefused = [style](char character) { return !standsInPaths(character, style); };
    const std::string doubled(2, separator(style));
    if (!hasRoot(path, style) || path.find(doubled) != npos) return std::nullopt;
    if (std::any_of(path.begin(), path.end(), isRefused)) return std::nullopt;
    std::string accepted(path);
    if (style == PathStyle::Windows) separateDrive(accepted);
    accepted.resize(std::min(accepted.find('.'), accepted.size()));
    if (accepted.ends_with(':')) accepted += separator(style);
    return accepted;
}

std::optional<std::string> CheckPathSpecial(std::string_view path, PathStyle style)
{
    std::string kept;
    std::copy_if(path.begin(), path.end(), std::back_inserter(kept), [](char character) {
        const int code = codeInPage850(lowerCase(character));
        return (code == 0 || code >= ' ') && !isRefusedHigh(code);
    });
    return CheckPath(kept, style); // an empty one has no root
}

} // namespace quillmere
