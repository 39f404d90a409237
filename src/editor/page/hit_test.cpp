// The marked place is held against the nearest start tag ahead of it, by name and without looking
// at what stands between: "<b" finds a <big> or the <body> as well. Held by hit_test_test.cpp.

#include "editor/page/hit_test.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>

namespace quillmere {

namespace {

/// Whether the element that begins at `begin` reaches beyond position `place`.
bool reaches(std::string_view text, std::size_t begin, const std::string& endTag, int place)
{
    const auto end
        = endTag.empty() ? text.find('<', begin + 1) : findIgnoringCase(text, endTag, begin);
    if (end == npos) return false;
    const auto endPosition = static_cast<int>(end) + 1;
    return endTag.empty() ? endPosition > place + 1 : endPosition > place;
}

/// The offset of the element around the character behind position `place`; that may be its '<'.
std::optional<std::size_t> elementAround(
    std::string_view text, std::string_view startTag, std::string_view endTag, int place)
{
    const auto before = static_cast<std::size_t>(std::max(place + 1, 0));
    const auto begin = findLastIgnoringCase(text, lowerCase(startTag), before);
    if (begin == npos || !reaches(text, begin, lowerCase(endTag), place)) return std::nullopt;
    return begin;
}

} // namespace

void HitTester::lookAt(std::string_view text, const SurfaceSelection& selection)
{
    const auto range = FindMarkedRange(text, selection);
    found_ = range.has_value();
    isImage_ = range && range->IsImage;
    if (!range) return;
    gMarkStart_ = range->Start;
    gMarkEnd_ = range->End;
}

Hit HitTester::HitTest(std::string_view startTag, std::string_view endTag, std::string_view text,
    const SurfaceSelection& selection, bool refresh)
{
    requireAddressable(text, selection.limit);
    if (refresh) lookAt(text, selection);
    if (findIgnoringCase(startTag, "img") != npos) return {gMarkStart_, isImage_};
    if (!found_) return {gMarkStart_, false};
    // A caret has nothing of its own; the character ahead of it tells where it is, so that one
    // directly ahead of a link, as in "x|<a>", is not in it.
    const bool isCaret = gMarkEnd_ < gMarkStart_;
    const auto begin = elementAround(text, startTag, endTag, gMarkStart_ - (isCaret ? 2 : 1));
    if (!begin) return {gMarkStart_, false};
    return {static_cast<int>(*begin) + 1, true};
}

} // namespace quillmere
