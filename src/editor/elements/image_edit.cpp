// Held by link_edit_test.cpp.

#include "editor/elements/image_edit.h"

#include "document/image_tags.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "editor/page/attribute_values.h"
#include "editor/page/hit_test.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr std::string_view kImage = "<img";
constexpr std::string_view kImageEnd = "</img>";
constexpr std::string_view kScheme = "file://";

constexpr std::array<std::string_view, 3> kAligns{"top", "middle", "bottom"};
constexpr std::array<std::string_view, 3> kOldAligns{"left", "center", "right"};

int indexIn(const std::array<std::string_view, 3>& aligns, std::string_view align)
{
    for (std::size_t i = 0; i < aligns.size(); ++i)
        if (equalIgnoringCase(aligns.at(i), trimBlanks(align))) return static_cast<int>(i);
    return 0;
}

std::string valueOf(std::string_view tag, std::string_view name)
{
    return std::string(findAttribute(tag, name).value_or(std::string_view{}));
}

std::string pixels(std::string_view tag, std::string_view name)
{
    return std::string(trimBlanks(pixelsBehind(tag, name).value_or(std::string_view{})));
}

std::string sourceOf(std::string_view tag)
{
    auto source = valueOf(tag, "src");
    const auto scheme = findIgnoringCase(source, kScheme);
    if (scheme != npos) source.erase(0, scheme + kScheme.size());
    return source;
}

std::string imageMarkup(const ImageSettings& image, std::string_view otherAttributes = {})
{
    auto markup = "<img src=\"" + image.source + "\" alt=\"" + image.caption + "\"";
    if (image.hasLayout && !image.align.empty()) markup += " align=\"" + image.align + "\"";
    if (image.hasLayout)
        markup += " style=\"height: " + image.height + "px; width: " + image.width + "px\"";
    return markup.append(otherAttributes) + ">";
}

/// The tag with an end tag that follows it at once.
std::optional<SourceRange> wholeImage(std::string_view text, int position)
{
    auto tag = findTagFrom(text, kImage, searchOffset(position));
    if (tag && standsAt(text, tag->end, kImageEnd)) tag->end += kImageEnd.size();
    return tag;
}

bool hasSize(std::string_view tag)
{
    const auto has = [tag](std::string_view name) { return findAttribute(tag, name).has_value(); };
    return has("style") || has("height") || has("width");
}

/// A picture in the place of another one, of which stays what its dialog does not show: other
/// attributes, its alignment where no layout is shown, and that it has none where it is the first.
std::string changedMarkup(std::string_view tag, ImageSettings wanted)
{
    auto others = otherAttributes(tag, {"src", "alt", "align", "style", "height", "width"});
    const auto align = findAttribute(tag, "align");
    if (!align && wanted.align == imageAlign(0)) wanted.align.clear();
    if (align && !wanted.hasLayout && !hasSize(tag))
        others.append(" align=\"").append(*align).append("\"");
    return imageMarkup(wanted, others);
}

std::optional<ImageSettings> startOf(std::string_view tag)
{
    ImageSettings image;
    image.source = sourceOf(tag);
    image.caption = valueOf(tag, "alt");
    return image;
}

} // namespace

std::string_view imageAlign(int index)
{
    return kAligns.at(static_cast<std::size_t>(std::clamp(index, 0, 2)));
}

int imageAlignIndex(std::string_view align)
{
    return indexIn(kAligns, align);
}

std::optional<int> FindImage(std::string_view text, int from)
{
    const auto image = findIgnoringCase(text, kImage, searchOffset(from));
    if (image == npos) return std::nullopt;
    return static_cast<int>(image);
}

std::optional<ImageSettings> GetImage(std::string_view text, int position)
{
    const auto source = findTagFrom(text, kImage, searchOffset(position));
    if (!source) return std::nullopt;
    const auto tag = source->in(text);
    auto image = startOf(tag);
    image->height = pixels(tag, "height:");
    image->width = pixels(tag, "width:");
    image->hasLayout = !image->height.empty() || !image->width.empty();
    image->align = imageAlign(imageAlignIndex(valueOf(tag, "align")));
    return image;
}

std::optional<ImageSettings> löschen_GetImage(std::string_view text, int position)
{
    const auto source = findTagFrom(text, kImage, searchOffset(position));
    if (!source) return std::nullopt;
    const auto tag = source->in(text);
    auto image = startOf(tag);
    image->height = valueOf(tag, "height");
    image->width = valueOf(tag, "width");
    image->hasLayout = !image->height.empty() || !image->width.empty();
    image->align = imageAlign(indexIn(kOldAligns, valueOf(tag, "align")));
    return image;
}

ElementEdit SetImage(
    std::string_view text, int position, const ImageSettings& wanted, const OutputRules& rules)
{
    const auto place = static_cast<std::size_t>(
        std::max(ValidInsertPosition(position, text, WmlElement::Image, rules), 0));
    const auto [start, end] = neededParagraphAt(readSurfacePage(std::string(text), rules), place);
    const auto markup = std::string(start) + imageMarkup(wanted);
    return {withPiece(text, {place, place}, markup + std::string(end), rules),
        static_cast<int>(place + markup.size())};
}

ElementEdit ReplaceImage(
    std::string_view text, int position, const ImageSettings& wanted, const OutputRules& rules)
{
    const auto old = wholeImage(text, position);
    if (!old) return unchanged(text, position);
    const auto tag = findTagFrom(text, kImage, old->begin)->in(text);
    const auto markup = rules.losesNothing() ? changedMarkup(tag, wanted) : imageMarkup(wanted);
    return {withPiece(text, *old, markup, rules), static_cast<int>(old->begin + markup.size())};
}

ElementEdit DeleteImage(std::string_view text, int position, const OutputRules& rules)
{
    const auto old = wholeImage(text, position);
    if (!old) return unchanged(text, position);
    return {withPiece(text, *old, {}, rules), static_cast<int>(old->begin)};
}

} // namespace quillmere
