// A stack of elements for each name; how deep they are is how text looks. Held by
// surface_page_test.cpp.

#include "editor/page/open_formats.h"

#include <algorithm>
#include <limits>

namespace quillmere {

namespace {

constexpr auto kNoStyle = std::numeric_limits<std::uint16_t>::max();
constexpr int kMaxSizeStep = 2;

std::size_t lookNumber(const TextStyle& style)
{
    const int sizeNumber = style.sizeStep + kMaxSizeStep;
    const auto size = static_cast<std::size_t>(sizeNumber);
    return size * 16 + (style.fixedPitch ? 8U : 0U) + (style.bold ? 4U : 0U)
        + (style.italic ? 2U : 0U) + (style.underlined ? 1U : 0U);
}

} // namespace

OpenFormats::OpenFormats(SurfacePage& page)
    : page_(page)
    , scopes_(1)
{
    plainIndices_.fill(kNoStyle);
    linkIndices_.fill(kNoStyle);
}

void OpenFormats::open(TagName name, std::size_t element)
{
    open_[slotOf(name)].push_back(element);
    styleIsKnown_ = false;
}

void OpenFormats::closeMarker(TagName name, SourceRange startMarker)
{
    auto& stack = open_[slotOf(name)];
    const bool isOpen = stack.size() > scopes_.back().base[slotOf(name)]
        && page_.elements[stack.back()].start == startMarker;
    if (isOpen) stack.pop_back();
    if (isOpen) styleIsKnown_ = false;
}

bool OpenFormats::close(TagName name, SourceRange endTag)
{
    auto& stack = open_[slotOf(name)];
    if (stack.size() == scopes_.back().base[slotOf(name)]) return false;
    page_.elements[stack.back()].end = endTag;
    stack.pop_back();
    styleIsKnown_ = false;
    return true;
}

void OpenFormats::enterCell(bool isHeading)
{
    Scope scope{{}, isHeading};
    std::ranges::transform(open_, scope.base.begin(), &Stack::size);
    scopes_.push_back(scope);
    headings_ += isHeading ? 1 : 0;
    styleIsKnown_ = false;
}

void OpenFormats::leaveCell(std::size_t offset)
{
    const Scope& scope = scopes_.back();
    for (std::size_t slot = 0; slot < kStackCount; ++slot) {
        auto& stack = open_[slot];
        for (; stack.size() > scope.base[slot]; stack.pop_back())
            if (slot < kFormatCount) page_.elements[stack.back()].end = {offset, offset};
    }
    headings_ -= scope.isHeading ? 1 : 0;
    scopes_.pop_back();
    styleIsKnown_ = false;
}

const OpenFormats::Stack& OpenFormats::stackOf(TagName name) const
{
    return open_[slotOf(name)];
}

TextStyle OpenFormats::look() const
{
    const auto isOpen = [this](TagName name) { return !stackOf(name).empty(); };
    const auto steps = static_cast<std::ptrdiff_t>(stackOf(TagName::Big).size())
        - static_cast<std::ptrdiff_t>(stackOf(TagName::Small).size());
    TextStyle style;
    style.bold = headings_ > 0 || isOpen(TagName::Bold) || isOpen(TagName::Strong);
    style.italic = isOpen(TagName::Italic) || isOpen(TagName::Emphasis);
    style.underlined = isOpen(TagName::Underline);
    style.sizeStep
        = static_cast<std::int8_t>(std::clamp<std::ptrdiff_t>(steps, -kMaxSizeStep, kMaxSizeStep));
    style.fixedPitch = isOpen(TagName::Preformatted);
    if (isOpen(TagName::Anchor)) style.link = stackOf(TagName::Anchor).back();
    if (isOpen(TagName::Link)) style.link = stackOf(TagName::Link).back();
    return style;
}

std::uint16_t OpenFormats::indexOf(const TextStyle& style)
{
    if (style.link != kNone && style.link != indexedLink_) {
        linkIndices_.fill(kNoStyle);
        indexedLink_ = style.link;
    }
    auto& index = (style.link == kNone ? plainIndices_ : linkIndices_)[lookNumber(style)];
    const bool isFull = page_.styles.size() >= kNoStyle; // of text far beyond any real area
    if (index == kNoStyle && isFull) return 0;
    if (index == kNoStyle) {
        index = static_cast<std::uint16_t>(page_.styles.size());
        page_.styles.push_back(style);
    }
    return index;
}

std::uint16_t OpenFormats::style()
{
    if (!styleIsKnown_) style_ = indexOf(look());
    styleIsKnown_ = true;
    return style_;
}

} // namespace quillmere
