// Of a picture that stands in several areas the last one counts, as its name and its layout may
// differ there, while the size is kept in all of them. Held by image_conversion_test.cpp.

#include "document/design_image_tag.h"

#include "document/repair/transliteration.h"
#include "document/text/failure.h"
#include "document/text/text_search.h"

#include <array>

namespace quillmere {

namespace {

constexpr std::string_view kSrc = "src=\"";
constexpr std::string_view kAlt = "alt=\"";
constexpr std::string_view kAlign = "align=\"";
constexpr std::string_view kHeight = "height=\"";
constexpr std::string_view kWidth = "width=\"";
constexpr std::array<std::string_view, 2> kSpaces{"vspace=\"", "hspace=\""};

/// The size behind `name` in a style such as "height: 20px"; nullopt where the name is missing.
std::optional<std::int32_t> sizeBehind(std::string_view tag, std::string_view name)
{
    const auto at = tag.find(name);
    if (at == npos) return std::nullopt;
    const auto begin = at + name.size();
    const auto unit = tag.find("px", begin);
    if (unit == npos) throw InvalidArgument();
    return wholeNumber(tag.substr(begin, unit - begin));
}

void appendLayout(Rewriter& result, const ImageEntry& entry)
{
    appendAttribute(result, kAlign, entry.alignment);
    appendAttribute(result, kHeight, std::to_string(entry.heightPx));
    appendAttribute(result, kWidth, std::to_string(entry.widthPx));
}

} // namespace

DesignImageTags::DesignImageTags(
    const CasedText& text, DisplayCopyIndex& index, PictureEdits& edits, const OutputRules& rules)
    : text_(text)
    , index_(index)
    , edits_(edits)
    , rules_(rules)
    , src_(text.lower, kSrc)
{
}

bool DesignImageTags::replace(Rewriter& result, const Tag& tag)
{
    const auto src = src_.quoted(tag);
    if (!src) return false;
    const auto& places = index_.find(src->in(text_.lower));
    result.drop(tag.begin, tag.end);
    if (!places.empty()) appendOpenTag(result, tag, places);
    for (const auto key : kSpaces) {
        const auto space = AttributeReader(text_.lower, key).quotedOrBare(tag);
        if (space && !places.empty()) appendAttribute(result, key, space->in(text_.lower));
    }
    result.append(places.empty() ? "</img>" : "></img>");
    return true;
}

/// The tag up to its layout.
void DesignImageTags::appendOpenTag(
    Rewriter& result, const Tag& tag, const std::vector<PicturePlace>& places)
{
    const auto alt = AttributeReader(text_.lower, kAlt).quotedOrBare(tag);
    for (const auto& place : places)
        readSize(tag, edits_.at(place));
    const ImageEntry& last = edits_.at(places.back());
    result.append("<img");
    appendSource(result, last);
    // The words come out in lower case, unless the standard rules hold.
    const auto words = rules_.keepsAlternativeTextCase() ? text_.source : text_.lower;
    if (alt) appendAttribute(result, kAlt, alt->in(words));
    if (last.hasLayout) appendLayout(result, last);
}

void DesignImageTags::appendSource(Rewriter& result, const ImageEntry& entry) const
{
    if (!rules_.writesCharacterReferences()) return appendAttribute(result, kSrc, entry.sourceFile);
    std::string source = entry.sourceFile;
    TransliterateGerman(source, rules_);
    appendAttribute(result, kSrc, source);
}

void DesignImageTags::readSize(const Tag& tag, ImageEntry& entry) const
{
    const auto lower = tag.in(text_.lower);
    if (const auto height = sizeBehind(lower, "height:")) entry.heightPx = *height;
    if (const auto width = sizeBehind(lower, "width:")) entry.widthPx = *width;
}

} // namespace quillmere
