// Held by deck_files_test.cpp.

#include "project/deck_names.h"

#include "document/platform/path_checks.h"
#include "document/platform/paths.h"
#include "forms/text.h"

#include <QCollator>
#include <QDir>
#include <QLocale>

#include <algorithm>

namespace quillmere {
namespace {

constexpr std::string_view kDeckSuffix = ".wml";

} // namespace

DeckPlace deckPlace(const QString& path)
{
    // Not SplitPath(), which would cut a name with a backslash.
    const auto bytes = corePath(path);
    const auto nameAt = bytes.rfind(separator(kNativePathStyle)) + 1; // one behind not found is 0
    const auto directory = nameAt == 0 ? std::string("./") : bytes.substr(0, nameAt);
    return {bytes.substr(nameAt), NormalisePath(directory)};
}

std::optional<std::string> acceptedDeckName(std::string_view name)
{
    const auto accepted = CheckFileName(coreText(shownPath(name)));
    if (!accepted) return std::nullopt;
    return corePath(shownText(*accepted));
}

std::string pageName(std::string_view name)
{
    return std::string(name.substr(0, name.find('.'))).append(kDeckSuffix);
}

std::vector<std::string> deckFilesIn(const std::string& directory)
{
    auto names = QDir(shownPath(directory)).entryList({QStringLiteral("*.wml")}, QDir::Files);
    QCollator collator(QLocale::German); // that of the system may be none
    collator.setNumericMode(true); // seite2 ahead of seite10
    std::sort(names.begin(), names.end(), collator);
    std::vector<std::string> files;
    for (const auto& name : names)
        files.push_back(corePath(name));
    return files;
}

} // namespace quillmere
