// Held by inline_objects_test.cpp.

#include "editor/picture_tag.h"

#include "document/text/text_search.h"
#include "editor/page/attribute_values.h"
#include "editor/page/surface_page.h"

#include <charconv>

namespace quillmere {
namespace {

constexpr int kMaxSidePx = 4096;

std::optional<int> leadingNumber(std::string_view text)
{
    const auto begin = text.find_first_not_of(" \t");
    if (begin == npos) return std::nullopt;
    text.remove_prefix(begin);
    int number = 0;
    const auto* const end = text.data() + text.size();
    if (std::from_chars(text.data(), end, number).ec != std::errc()) return std::nullopt;
    if (number < 0 || number > kMaxSidePx) return std::nullopt;
    return number;
}

/// The number behind "height:" in a style such as "height: 48px; width: 32px".
std::optional<int> styleNumber(std::string_view style, std::string_view property)
{
    const auto place = findIgnoringCase(style, property);
    if (place == npos) return std::nullopt;
    return leadingNumber(style.substr(place + property.size()));
}

std::optional<int> side(std::string_view tag, std::string_view property, std::string_view name)
{
    auto number = styleNumber(attributeOf(tag, "style"), property);
    if (!number) number = leadingNumber(attributeOf(tag, name));
    return number == 0 ? std::nullopt : number;
}

} // namespace

PictureTag readPictureTag(std::string_view tag)
{
    PictureTag picture;
    picture.path = picturePath(attributeOf(tag, "src"));
    picture.alternativeText = attributeOf(tag, "alt");
    picture.widthPx = side(tag, "width:", "width");
    picture.heightPx = side(tag, "height:", "height");
    picture.horizontalSpacePx = leadingNumber(attributeOf(tag, "hspace")).value_or(0);
    picture.verticalSpacePx = leadingNumber(attributeOf(tag, "vspace")).value_or(0);
    return picture;
}

} // namespace quillmere
