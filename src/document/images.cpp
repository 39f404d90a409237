// Everything that can fail stands ahead of the first change of the deck. Held by images_test.cpp.

#include "document/images.h"

#include "document/design_page.h"
#include "document/design_text.h"
#include "document/image_tags.h"
#include "document/picture_name.h"
#include "document/platform/files.h"
#include "document/platform/paths.h"
#include "document/platform/word_ids.h"
#include "document/text/tag_attributes.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <array>
#include <filesystem>
#include <system_error>
#include <unordered_set>
#include <utility>

namespace quillmere {

namespace {

constexpr std::string_view kPictureEnd = "wbmp"; // with or without a dot ahead of it
constexpr std::size_t kShortestPath = 5;

bool isPicturePath(std::string_view path)
{
    return path.size() >= kShortestPath
        && equalIgnoringCase(path.substr(path.size() - kPictureEnd.size()), kPictureEnd);
}

std::int32_t groundOf(const DocumentSession& session)
{
    const auto kind = static_cast<std::size_t>(session.deck.front().surfaceKind);
    const PageStyle* const device
        = kind < session.devices.size() ? session.devices.at(kind) : nullptr;
    return device == nullptr ? kDefaultPageColour : device->backColour;
}

/// The place of the display copy: what was chosen, and else a free name among the work files.
DisplayCopyName displayName(DocumentSession& session, DisplayCopyName chosen)
{
    if (chosen.directory.empty()) chosen.directory = session.workFiles.directory();
    if (chosen.file.empty()) chosen.file = FindFreeBmpName(session);
    return chosen;
}

/// A picture in the deck's directory is named as the deck's `src` writes it, with folders, since
/// that is what comes back into the deck.
SplitPathResult splitSource(const std::string& path, const std::string& deckDirectory)
{
    if (!path.starts_with(deckDirectory)) return SplitPath(path);
    return {deckDirectory, path.substr(deckDirectory.size())};
}

ImageEntry newEntry(
    const DisplayCopyName& display, const SplitPathResult& source, const DisplayCopy& copy)
{
    ImageEntry entry;
    entry.displayFile = display.file;
    entry.displayDir = display.directory;
    entry.sourceFile = source.name;
    entry.sourceDir = source.directory;
    entry.pictureHeightPx = entry.heightPx = copy.heightPx;
    entry.pictureWidthPx = entry.widthPx = copy.widthPx;
    entry.alignment = "top";
    return entry;
}

/// The pictures that the surface shows in other areas than `areaIndex`, as lower-case paths.
std::unordered_set<std::string> shownElsewhere(DocumentSession& session, std::size_t areaIndex)
{
    std::unordered_set<std::string> paths;
    for (std::size_t i = 0; i < areaCount(session.deck); ++i) {
        if (i == areaIndex) continue;
        const std::string text = ReadDesignText(session, i);
        for (const auto tag : imageTags(text))
            paths.insert(shownPath(tag));
    }
    return paths;
}

void removeWorkFile(DocumentSession& session, const std::string& directory, const std::string& name)
{
    if (!name.empty()) session.workFiles.remove(directory + name);
}

void removeAreaFiles(DocumentSession& session, const DeckRecord& area, bool withDeckFiles)
{
    removeWorkFile(session, area.designDir, area.designFile);
    removeWorkFile(session, area.spareDesignDir, area.spareDesignFile);
    if (!withDeckFiles || areaCount(session.deck) != 1) return;
    removeWorkFile(session, area.wmlDir, area.wmlFile);
    removeWorkFile(session, area.pristineDir, area.pristineFile);
}

/// Takes the record out. What only the first record tells of the deck goes on to the next first
/// one.
void removeRecord(Deck& deck, std::size_t areaIndex)
{
    if (areaIndex == 0 && areaCount(deck) > 1) {
        deck[1].pristineFile = std::move(deck[0].pristineFile);
        deck[1].pristineDir = std::move(deck[0].pristineDir);
        deck[1].surfaceKind = deck[0].surfaceKind;
    }
    deck.erase(deck.begin() + static_cast<std::ptrdiff_t>(areaIndex));
    deck.back().images = std::vector<ImageEntry>(2);
}

/// Reads size and alignment from the tag; what the tag does not tell stays.
void readTag(std::string_view tag, ImageEntry& entry)
{
    if (const auto height = pixelsBehind(tag, "height:")) entry.heightPx = wholeNumber(*height);
    if (const auto width = pixelsBehind(tag, "width:")) entry.widthPx = wholeNumber(*width);
    if (const auto align = imageAttribute(tag, "align=")) entry.alignment = trimBlanks(*align);
}

bool isSameFile(const std::string& left, const std::string& right)
{
    std::error_code none; // what cannot be looked up is not the same
    return std::filesystem::equivalent(left, right, none);
}

void copyPicture(const std::string& name, const std::string& fromDirectory,
    const std::string& toDirectory, Prompter& prompter)
{
    const std::string file = nameOnDisk(fromDirectory, name);
    const std::string source = fromDirectory + file;
    const std::string target = toDirectory + file;
    const std::array<std::string, 1> gaps{name};
    if (!fileExists(source)) {
        prompter.show(word::kPictureNotCopied, gaps, MessageIcon::Warning);
        return;
    }
    if (isSameFile(source, target)) return;
    const std::string bytes = readFile(source);
    if (fileExists(target)) {
        if (readFile(target) == bytes) return;
        if (!prompter.ask(word::kReplacePicture, gaps, MessageIcon::Question)) return;
    }
    MakeDirectories(SplitPath(target).directory, false, prompter);
    replaceFile(target, bytes);
}

/// Pictures on other computers stay where they are.
bool isAddress(std::string_view name)
{
    return name.find("://") != npos;
}

} // namespace

std::string RegisterImage(DocumentSession& session, std::size_t areaIndex, const std::string& path,
    std::string_view alternativeText, const DisplayCopyName& chosen)
{
    DeckRecord& area = areaRecord(session, areaIndex);
    if (const auto* const known = area.imageIndex.find(area.images, path))
        return known->displayDir + known->displayFile;
    if (!isPicturePath(path)) return {};

    const auto source = splitSource(path, area.deckDir);
    DisplayCopy copy
        = session.displayCopies.draw(source.directory + nameOnDisk(source.directory, source.name),
            alternativeText, groundOf(session));
    const auto display = displayName(session, chosen);
    session.workFiles.write(display.directory + display.file, std::move(copy.bmp));
    session.imageColour = copy.imageColour;
    area.images.back() = newEntry(display, source, copy);
    area.images.emplace_back();
    return display.directory + display.file;
}

std::string FindFreeBmpName(DocumentSession& session)
{
    return session.workFiles.unusedName("Bmp", ".bmp");
}

std::string NewWbmpName(DocumentSession& session)
{
    return session.workFiles.unusedName("WBmp", ".wbmp");
}

void RemoveArea(DocumentSession& session, std::size_t areaIndex, bool withDeckFiles)
{
    const auto shown = shownElsewhere(session, areaIndex);
    const DeckRecord& area = areaRecord(session, areaIndex);
    removeAreaFiles(session, area, withDeckFiles);
    for (const auto& entry : area.images) {
        if (!shown.contains(lowerCase(entry.displayDir + entry.displayFile)))
            removeWorkFile(session, entry.displayDir, entry.displayFile);
    }
    removeRecord(session.deck, areaIndex);
}

void ReadImageTags(DocumentSession& session)
{
    const auto areaIndex = static_cast<std::size_t>(session.currentArea);
    if (areaIndex >= areaCount(session.deck)) return;
    DeckRecord& area = session.deck[areaIndex];
    if (area.imageCursor < 0) return; // none is chosen
    const auto cursor = static_cast<std::size_t>(area.imageCursor);
    if (cursor + 1 >= area.images.size()) return;

    ImageEntry changed = area.images[cursor];
    const std::string path = lowerCase(changed.displayDir + changed.displayFile);
    const std::string text = ReadDesignText(session, areaIndex);
    for (const auto tag : imageTags(text)) {
        if (!path.empty() && shownPath(tag) == path) readTag(tag, changed);
    }
    area.images[cursor] = std::move(changed);
}

void CopyDeckImages(std::string_view deckText, const std::string& fromDirectory,
    const std::string& toDirectory, DocumentSession& session)
{
    std::vector<std::string> names;
    for (const auto tag : imageTags(deckText))
        names.emplace_back(trimBlanks(quotedAttribute(tag, "src=").value_or("")));
    copyPictures(names, fromDirectory, toDirectory, session);
}

void copyPictures(std::span<const std::string> names, const std::string& fromDirectory,
    const std::string& toDirectory, DocumentSession& session)
{
    if (fromDirectory == toDirectory) return;
    std::unordered_set<std::string> copied;
    for (const auto& name : names) {
        if (name.empty() || isAddress(name) || !copied.insert(name).second) continue;
        copyPicture(name, fromDirectory, toDirectory, session.prompter);
    }
}

} // namespace quillmere
