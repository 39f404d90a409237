// One walk over the text notes the pieces that nothing may go into, each by its begin: a tag, a
// comment, an entity. The piece of a start tag grows to the end of its element once that is seen.
// insert_position_test.cpp tries every position against the rules one by one.

#include "editor/page/hit_test.h"

#include "document/text/limits.h"
#include "document/text/text_search.h"
#include "editor/page/card_head.h"
#include "editor/page/character_entities.h"
#include "editor/page/markup_tags.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

struct ClosedElement {
    TagName name;
    bool nests; ///< else a start tag takes the place of one that was not ended
};

constexpr ClosedElement kClosedElements[] = {
    {TagName::Table, true},
    {TagName::Select, false},
    {TagName::Option, false},
    {TagName::Do, false},
    {TagName::Picture, false},
    {TagName::Link, false},
};

/// Behind the last '>' from `offset` on that no '<' stands ahead of; `offset` where there is none.
std::size_t behindStrayEnds(std::string_view text, std::size_t offset)
{
    const auto plain = text.substr(offset, text.find('<', offset) - offset);
    const auto last = plain.rfind('>');
    return last == npos ? offset : offset + last + 1;
}

/// Whether an element may not be put into another one. A card takes all: what needs a paragraph
/// gets one.
bool isClosedTo(WmlElement parent, WmlElement wanted)
{
    const auto& rule = ruleOf(parent);
    const bool isOpen = rule.isEmpty || rule.isFormat || parent == WmlElement::Card;
    return !isOpen && !mayContain(parent, wanted);
}

class ClosedPieces {
public:
    /// `wanted` is what is to go in, where the rules of WML decide as well.
    ClosedPieces(std::string_view text, std::optional<WmlElement> wanted)
        : text_(text)
        , wanted_(wanted)
        , open_(std::size(kClosedElements) + wmlElementRules().size())
    {
    }

    /// By their begins; they may lie in one another and overlap.
    std::vector<SourceRange> find()
    {
        MarkupScanner tags(text_);
        std::size_t passed = 0;
        while (const auto tag = tags.next()) {
            noteEntities({passed, tag->source.begin});
            noteTag(*tag);
            passed = tag->source.end;
        }
        noteEntities({passed, text_.size()});
        return std::move(pieces_);
    }

private:
    void noteEntities(SourceRange plain)
    {
        const auto text = plain.in(text_);
        for (auto at = text.find('&'); at != npos; at = text.find('&', at + 1)) {
            const auto length = shownReference(text.substr(at)).length;
            pieces_.push_back({plain.begin + at, plain.begin + at + length});
        }
    }

    void noteTag(const MarkupTag& tag)
    {
        pieces_.push_back({tag.source.begin, behindStrayEnds(text_, tag.source.end)});
        const auto* const element
            = std::ranges::find(kClosedElements, tag.name, &ClosedElement::name);
        if (element != std::end(kClosedElements))
            noteClosed(tag, static_cast<std::size_t>(element - std::begin(kClosedElements)),
                element->nests);
        else if (wanted_)
            noteByRules(tag);
    }

    void noteByRules(const MarkupTag& tag)
    {
        const auto element = wmlElement(tagName(tag.source.in(text_)));
        if (isClosedTo(element, *wanted_))
            noteClosed(tag, std::size(kClosedElements) + static_cast<std::size_t>(element), true);
    }

    void noteClosed(const MarkupTag& tag, std::size_t kind, bool nests)
    {
        auto& open = open_[kind];
        if (tag.isEnd) return end(open, tag.source.end);
        if (!nests) open.clear();
        open.push_back(pieces_.size() - 1);
    }

    void end(std::vector<std::size_t>& open, std::size_t offset)
    {
        if (open.empty()) return;
        auto& piece = pieces_[open.back()];
        piece.end = std::max(piece.end, offset);
        open.pop_back();
    }

    std::string_view text_;
    std::optional<WmlElement> wanted_;
    std::vector<SourceRange> pieces_;
    std::vector<std::vector<std::size_t>> open_; // their pieces, of each kind of element
};

std::size_t behindCardMarker(std::string_view text)
{
    const auto marker = findIgnoringCase(text, "<!--card");
    const auto end = marker == npos ? npos : text.find('>', marker);
    return end == npos ? 0 : end + 1;
}

int firstPlace(int position, std::string_view text, std::optional<WmlElement> wanted)
{
    if (position >= static_cast<int>(text.size())) return position;
    auto offset = std::max({static_cast<std::size_t>(std::max(position, 0)), behindCardMarker(text),
        behindStrayEnds(text, 0)});
    // A piece that holds the end of another one and begins ahead of it was met before it, so that
    // one round is enough.
    for (const SourceRange& piece : ClosedPieces(text, wanted).find())
        if (piece.begin < offset) offset = std::max(offset, piece.end);
    return static_cast<int>(offset);
}

} // namespace

int ValidInsertPosition(int position, std::string_view text, std::size_t limit)
{
    requireAddressable(text, limit);
    return firstPlace(position, text, std::nullopt);
}

int ValidInsertPosition(
    int position, std::string_view text, WmlElement wanted, const OutputRules& rules)
{
    requireAddressable(text, rules.maxTextLength());
    if (!rules.losesNothing()) return firstPlace(position, text, std::nullopt);
    const auto head = headOf(readSurfacePage(std::string(text), rules)).end;
    return firstPlace(std::max(position, static_cast<int>(head)), text, wanted);
}

} // namespace quillmere
