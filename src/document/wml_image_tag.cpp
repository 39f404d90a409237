// A tag that is kept is asked again from its second '<' on with the same value, so that a refused
// name is kept in mind, and the entries of the area are looked up by path, not walked.
// Held by image_conversion_test.cpp.

#include "document/wml_image_tag.h"

#include "document/images.h"
#include "document/text/windows1252.h"

#include <array>

namespace quillmere {

namespace {

constexpr std::string_view kSrc = "src=\"";
constexpr std::string_view kAlt = "alt=\"";
constexpr std::string_view kAlign = "align=\"";
constexpr std::array<std::string_view, 2> kSpaces{"vspace=\"", "hspace=\""};

} // namespace

WmlImageTags::WmlImageTags(const CasedText& text, std::size_t areaIndex, DocumentSession& session)
    : text_(text)
    , areaIndex_(areaIndex)
    , session_(session)
    , src_(text.lower, kSrc)
    , alt_(text.lower, kAlt)
{
}

Replacement WmlImageTags::designTag(const Tag& tag)
{
    const auto src = src_.quoted(tag);
    if (!src) return std::nullopt;
    const auto path = displayCopy(tag, *src);
    if (!path) return std::nullopt;
    return tagFor(tag, *path);
}

/// The path of the picture's display copy, which is made where there is none yet.
std::optional<std::string> WmlImageTags::displayCopy(const Tag& tag, const TextRange& src)
{
    const auto alt = alt_.quoted(tag);
    if (areaIndex_ >= session_.deck.size() || refusedSrc_ == src.begin) return std::nullopt;
    std::string path = session_.deck[areaIndex_].deckDir;
    path += trimBlanks(src.in(text_.source));
    const auto words = alt ? alt->in(text_.source) : std::string_view();
    std::string display = RegisterImage(session_, areaIndex_, path, words);
    if (!display.empty()) return display;
    refusedSrc_ = src.begin;
    return std::nullopt;
}

/// The first entry of the area with this display copy, in any case; the last entry is a spare.
ImageEntry* WmlImageTags::entryOf(std::string_view displayPath)
{
    auto& images = session_.deck[areaIndex_].images;
    for (; knownEntries_ + 1 < images.size(); ++knownEntries_) {
        const auto& entry = images[knownEntries_];
        entries_.emplace(lowerCase(entry.displayDir + entry.displayFile), knownEntries_);
    }
    const auto found = entries_.find(lowerCase(displayPath));
    return found == entries_.end() || displayPath.empty() ? nullptr : &images[found->second];
}

std::string WmlImageTags::tagFor(const Tag& tag, const std::string& displayPath)
{
    std::string result("<img");
    appendAttribute(result, kSrc, displayPath);
    if (auto* const entry = entryOf(trimBlanks(displayPath))) {
        if (const auto alt = alt_.quoted(tag)) appendAttribute(result, kAlt, alt->in(text_.source));
        addAlignment(result, tag, *entry);
        entry->hasLayout = false;
        addSize(result, tag, *entry);
        addSpaces(result, tag, *entry);
    }
    return result += "></img>";
}

std::optional<std::string_view> WmlImageTags::lowerValue(const Tag& tag, std::string_view key) const
{
    const auto value = AttributeReader(text_.lower, key).quoted(tag);
    if (!value) return std::nullopt;
    return value->in(text_.lower);
}

void WmlImageTags::addAlignment(std::string& result, const Tag& tag, ImageEntry& entry)
{
    const auto align = lowerValue(tag, kAlign);
    if (!align) return;
    appendAttribute(result, kAlign, *align);
    entry.alignment = trimBlanks(*align);
}

/// The width alone is lost; a height alone goes with the width that the entry has.
void WmlImageTags::addSize(std::string& result, const Tag& tag, ImageEntry& entry)
{
    const auto height = lowerValue(tag, "height=\"");
    if (!height) return;
    entry.heightPx = wholeNumber(*height);
    result.append(" style=\"height: ").append(*height).append("px;");
    const auto width = lowerValue(tag, "width=\"");
    if (width) entry.widthPx = wholeNumber(*width);
    result.append(" width: ");
    result.append(width ? std::string(*width) : std::to_string(entry.widthPx)).append("px\"");
    entry.hasLayout = true;
}

void WmlImageTags::addSpaces(std::string& result, const Tag& tag, ImageEntry& entry)
{
    for (const auto key : kSpaces) {
        const auto space = lowerValue(tag, key);
        if (!space) continue;
        appendAttribute(result, key, *space);
        entry.hasLayout = true;
    }
}

} // namespace quillmere
