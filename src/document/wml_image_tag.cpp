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

bool WmlImageTags::replace(Rewriter& result, const Tag& tag)
{
    const auto src = src_.quoted(tag);
    const auto path = src ? displayCopy(tag, *src) : std::nullopt;
    if (!path) return false;
    result.drop(tag.begin, tag.end);
    result.append("<img");
    appendAttribute(result, kSrc, *path);
    if (auto* const entry = entryOf(trimBlanks(*path))) addAttributes(result, tag, *entry);
    result.append("></img>");
    return true;
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

void WmlImageTags::addAttributes(Rewriter& result, const Tag& tag, ImageEntry& entry)
{
    if (const auto alt = alt_.quoted(tag)) appendAttribute(result, kAlt, alt->in(text_.source));
    addAlignment(result, tag, entry);
    entry.hasLayout = false;
    addSize(result, tag, entry);
    addSpaces(result, tag, entry);
}

std::optional<std::string_view> WmlImageTags::lowerValue(const Tag& tag, std::string_view key) const
{
    const auto value = AttributeReader(text_.lower, key).quoted(tag);
    if (!value) return std::nullopt;
    return value->in(text_.lower);
}

void WmlImageTags::addAlignment(Rewriter& result, const Tag& tag, ImageEntry& entry)
{
    const auto align = lowerValue(tag, kAlign);
    if (!align) return;
    appendAttribute(result, kAlign, *align);
    entry.alignment = trimBlanks(*align);
}

/// The width alone is lost; a height alone goes with the width that the entry has.
void WmlImageTags::addSize(Rewriter& result, const Tag& tag, ImageEntry& entry)
{
    const auto height = lowerValue(tag, "height=\"");
    if (!height) return;
    entry.heightPx = wholeNumber(*height);
    const auto width = lowerValue(tag, "width=\"");
    if (width) entry.widthPx = wholeNumber(*width);
    result.append(" style=\"height: ");
    result.append(*height);
    result.append("px; width: ");
    result.append(width ? *width : std::string_view(std::to_string(entry.widthPx)));
    result.append("px\"");
    entry.hasLayout = true;
}

void WmlImageTags::addSpaces(Rewriter& result, const Tag& tag, ImageEntry& entry)
{
    for (const auto key : kSpaces) {
        const auto space = lowerValue(tag, key);
        if (!space) continue;
        appendAttribute(result, key, *space);
        entry.hasLayout = true;
    }
}

} // namespace quillmere
