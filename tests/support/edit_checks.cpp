#include "support/edit_checks.h"

#include "editor/page/markup_tags.h"
#include "editor/page/page_difference.h"
#include "editor/page/page_places.h"
#include "editor/page/splice_list.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace quillmere::test {

namespace {

using Operation = TriedEdit::Operation;
using Kind = PageElement::Kind;

constexpr std::u16string_view kLetter = u"Z"; // no reference has it, so it melts into none
constexpr auto kTyped
    = std::to_array<std::u16string_view>({u"a", kLetter, u" ", u" ", u"  ", u"x y", u"\n", u"&",
        u"<", u">", u"l", u"amp;", u"65", u";", u"#", u"\u00A0", u"\u20AC", u"\u2212"});
constexpr auto kMarkup = std::to_array<std::string_view>(
    {"<b>x</b>", "x", "<br/>", "<!--go/-->", "<a href=\"#\">x</a>",
        "<img src=\"x\" alt=\"y\"></img>", "<table columns=\"1\"><tr><td>x</td></tr></table>",
        "<!--option--><input type=radio>x<!--/option-->", "<!--#x y-->",
        "<!--fieldset--><!--/fieldset-->"});

bool covers(const SurfaceEdit& edit, SourceRange piece)
{
    return std::ranges::any_of(edit.splices, [piece](const Splice& splice) {
        return splice.removed.begin <= piece.begin && piece.end <= splice.removed.end;
    });
}

bool touches(const SurfaceEdit& edit, SourceRange piece)
{
    return std::ranges::any_of(edit.splices, [piece](const Splice& splice) {
        return splice.removed.begin < piece.end && piece.begin < splice.removed.end;
    });
}

class EditCheck {
public:
    EditCheck(const SurfacePage& page, const TriedEdit& tried)
        : page_(page)
        , tried_(tried)
        , edit_(tried.on(page))
        , after_(readSurfacePage(edited(page.text, edit_, page.rules), page.rules))
        , from_(std::min(tried.from, tried.to))
        , to_(std::max(tried.from, tried.to))
    {
    }

    std::string fault()
    {
        if (!splicesAscend()) return "splices touch or descend";
        if (spliced(after_.text, reverse(page_.text, edit_, 0).splices) != page_.text)
            return "not reversed";
        if (offsetAt(after_, placeAt(after_, edit_.caret)) != edit_.caret) return "caret nowhere";
        if (!elementsStayPaired()) return "half of an element is gone";
        if (!markersSurvive()) return "a marker is gone";
        if (!cutsNoItem()) return "an item is cut";
        if (!typedTextIsThere()) return "typed text is not there";
        return differenceFault();
    }

    std::string faultInGoodText()
    {
        if (!itemsOutsideStay()) return "items outside of the places changed";
        if (!isLocal()) return "text outside of the paragraph changed";
        return {};
    }

private:
    [[nodiscard]] bool splicesAscend() const
    {
        for (std::size_t i = 0; i < edit_.splices.size(); ++i) {
            const auto removed = edit_.splices[i].removed;
            if (removed.begin > removed.end || removed.end > page_.text.size()) return false;
            if (i > 0 && removed.begin <= edit_.splices[i - 1].removed.end) return false;
            if (removed.empty() && edit_.splices[i].inserted.empty()) return false;
        }
        return true;
    }

    [[nodiscard]] bool elementsStayPaired() const
    {
        if (tried_.keepsItems()) return true; // formats are put in anew
        return std::ranges::all_of(page_.elements, [this](const PageElement& element) {
            return element.kind == Kind::Paragraph || element.end.empty()
                || covers(edit_, element.start) == covers(edit_, element.end);
        });
    }

    [[nodiscard]] bool markersSurvive() const
    {
        const auto touched = touchedText();
        MarkupScanner tags(page_.text);
        while (const auto tag = tags.next()) {
            if (!isComment(tag->name) || !touches(edit_, tag->source)) continue;
            const bool isInside
                = tag->source.begin >= touched.begin && tag->source.end <= touched.end;
            if (!isInside && !goesWithList(tag->source) && !isOfParagraph(tag->source))
                return false;
        }
        return true;
    }

    [[nodiscard]] bool isOfParagraph(SourceRange tag) const
    {
        return std::ranges::any_of(page_.elements, [tag](const PageElement& element) {
            return element.kind == Kind::Paragraph && (element.start == tag || element.end == tag);
        });
    }

    /// From the first place to the last one, the cells of a table in full.
    [[nodiscard]] SourceRange touchedText() const
    {
        auto from = from_;
        auto to = to_;
        if (from == to && tried_.operation == Operation::Backward && from.offset > 0)
            --from.offset;
        else if (from == to && tried_.operation == Operation::Backward && from.block > 0)
            from = {from.block - 1, itemCount(page_.blocks[from.block - 1])};
        if (from == to && tried_.operation == Operation::Forward) ++to.offset;
        if (to.offset > itemCount(page_.blocks[to.block]) && to.block + 1 < page_.blocks.size())
            to = {to.block + 1, 0};
        SourceRange touched{offsetAt(page_, from), offsetAt(page_, to)};
        const auto cellFrom = page_.blocks[from.block].cell;
        const auto cellTo = page_.blocks[to.block].cell;
        if (cellFrom == cellTo) return touched;
        for (auto cell = cellFrom; cell != kNone;
             cell = page_.tables[page_.cells[cell].table].outerCell)
            touched.begin = std::min(touched.begin, page_.cells[cell].content.begin);
        for (auto cell = cellTo; cell != kNone;
             cell = page_.tables[page_.cells[cell].table].outerCell)
            touched.end = std::max(touched.end, page_.cells[cell].content.end);
        return touched;
    }

    [[nodiscard]] bool goesWithList(SourceRange marker) const
    {
        return std::ranges::any_of(page_.elements, [&](const PageElement& element) {
            if (element.kind == Kind::Paragraph || element.kind == Kind::Format
                || element.kind == Kind::Table || element.kind == Kind::Cell)
                return false;
            return element.start.begin <= marker.begin && marker.end <= element.end.end
                && covers(edit_, element.start) && covers(edit_, element.end);
        });
    }

    [[nodiscard]] bool cutsNoItem() const
    {
        return std::ranges::all_of(page_.items, [this](const PageItem& item) {
            return !touches(edit_, item.source) || covers(edit_, item.source);
        });
    }

    [[nodiscard]] bool typedTextIsThere() const
    {
        if (tried_.operation != Operation::Type || from_ != to_) return true;
        if (standsAside()) return isInParagraph();
        const auto place = placeAt(after_, edit_.caret);
        const auto seen = std::count_if(tried_.typed.begin(), tried_.typed.end(),
            [](char16_t unit) { return unit >= u' ' || unit == u'\n'; });
        const auto count = static_cast<std::size_t>(seen);
        return after_.items.size() == page_.items.size() + count
            && place == PagePlace{from_.block, from_.offset + count} && itemsOutsideStay()
            && (tried_.typed != kLetter || letterChangesNothingElse());
    }

    /// All looks as before but for the letter, and lies in the same blocks.
    [[nodiscard]] bool letterChangesNothingElse() const
    {
        auto looks = looksOf(after_, 0, after_.items.size());
        const auto typed = page_.blocks[from_.block].firstItem + from_.offset;
        looks.erase(looks.begin() + static_cast<std::ptrdiff_t>(typed));
        return looks == looksOf(page_, 0, page_.items.size())
            && std::ranges::equal(page_.blocks, after_.blocks, {}, placeOf, placeOf);
    }

    [[nodiscard]] static std::tuple<std::size_t, std::size_t, Alignment> placeOf(
        const PageBlock& block)
    {
        return {block.cell, block.paragraph, block.alignment};
    }

    /// Whether what is put in gets a paragraph of its own.
    [[nodiscard]] bool standsAside() const
    {
        const bool putsIn
            = tried_.operation == Operation::Type || tried_.operation == Operation::Paste;
        return putsIn && page_.blocks[from_.block].isAside && page_.blocks[to_.block].isAside;
    }

    [[nodiscard]] bool isInParagraph() const
    {
        return after_.items.size() >= page_.items.size()
            && after_.blocks[placeAt(after_, edit_.caret).block].paragraph != kNone;
    }

    [[nodiscard]] static bool looksLike(const PageItem& one, const PageItem& other)
    {
        const auto isBlank = [](const PageItem& item) {
            return item.kind == ItemKind::Blank || item.shown == u'\u00A0';
        };
        if (isBlank(one) && isBlank(other)) return true;
        return one.kind == other.kind && one.shown == other.shown;
    }

    [[nodiscard]] bool itemsOutsideStay() const
    {
        if (tried_.keepsItems()) return std::ranges::equal(page_.items, after_.items, looksLike);
        if (standsAside()) return true;
        const auto touched = touchedText();
        std::size_t ahead = 0;
        while (ahead < page_.items.size() && page_.items[ahead].source.end <= touched.begin)
            ++ahead;
        std::size_t behind = 0;
        while (behind < page_.items.size() - ahead
            && page_.items[page_.items.size() - 1 - behind].source.begin >= touched.end)
            ++behind;
        return mayComeElsewhere() ? comeInOrder(ahead, behind)
                                  : startsAlike(ahead) && endsAlike(behind);
    }

    /// Markup that may not stand at the place goes behind elements round it.
    [[nodiscard]] bool mayComeElsewhere() const
    {
        return tried_.operation == Operation::Paste && page_.rules.losesNothing();
    }

    [[nodiscard]] bool comeInOrder(std::size_t ahead, std::size_t behind) const
    {
        auto now = after_.items.begin();
        for (std::size_t i = 0; i < page_.items.size(); ++i) {
            if (i >= ahead && i < page_.items.size() - behind) continue;
            now = std::find_if(now, after_.items.end(),
                [&](const PageItem& item) { return looksLike(item, page_.items[i]); });
            if (now == after_.items.end()) return mayTakeOptions();
            ++now;
        }
        return true;
    }

    /// Of the items ahead of the places, those of an option may go with its radio button, and one
    /// end of a group with the other one.
    [[nodiscard]] bool startsAlike(std::size_t count) const
    {
        if (after_.items.size() < count) return mayTakeOptions();
        for (std::size_t i = 0; i < count; ++i)
            if (!looksLike(page_.items[i], after_.items[i])) return mayTakeOptions();
        return true;
    }

    [[nodiscard]] bool endsAlike(std::size_t count) const
    {
        if (after_.items.size() < count) return mayTakeOptions();
        for (std::size_t i = 1; i <= count; ++i)
            if (!looksLike(
                    page_.items[page_.items.size() - i], after_.items[after_.items.size() - i]))
                return mayTakeOptions();
        return true;
    }

    [[nodiscard]] bool mayTakeOptions() const
    {
        return takesGroup()
            || std::ranges::any_of(page_.elements, [this](const PageElement& element) {
                   return element.kind == Kind::Option && covers(edit_, element.start);
               });
    }

    [[nodiscard]] bool takesGroup() const
    {
        return std::ranges::any_of(page_.items, [this](const PageItem& item) {
            return item.kind == ItemKind::Marker && covers(edit_, item.source);
        });
    }

    [[nodiscard]] bool isLocal() const
    {
        // a format may reach beyond the paragraph, and a group of fields as well
        if (tried_.keepsItems() || takesGroup() || mayComeElsewhere()) return true;
        if (page_.blocks[from_.block].cell != page_.blocks[to_.block].cell) return true;
        const auto first = frameOf(blockBefore(from_.block)).begin;
        const auto last = frameOf(blockBehind(to_.block)).end;
        return std::ranges::all_of(edit_.splices, [&](const Splice& splice) {
            return splice.removed.begin >= first && splice.removed.end <= last;
        });
    }

    [[nodiscard]] std::size_t blockBefore(std::size_t block) const
    {
        const bool reaches = tried_.operation == Operation::Backward && from_ == to_
            && from_.offset == 0 && block > 0;
        return reaches ? block - 1 : block;
    }

    [[nodiscard]] std::size_t blockBehind(std::size_t block) const
    {
        const bool reaches = tried_.operation == Operation::Forward && from_ == to_
            && from_.offset == itemCount(page_.blocks[block]) && block + 1 < page_.blocks.size();
        return reaches ? block + 1 : block;
    }

    /// The paragraph of a block, its tags as well where it is joined with another one.
    [[nodiscard]] SourceRange frameOf(std::size_t index) const
    {
        const auto& block = page_.blocks[index];
        if (block.paragraph == kNone) return block.content;
        const auto& paragraph = page_.elements[block.paragraph];
        const bool isJoined = blockBefore(from_.block) != blockBehind(to_.block);
        return isJoined ? paragraph.whole() : SourceRange{paragraph.start.end, paragraph.end.begin};
    }

    [[nodiscard]] static std::string lookOf(const SurfacePage& page, std::size_t index)
    {
        const auto& item = page.items[index];
        const auto& style = page.styles[item.style];
        std::string look = std::to_string(static_cast<int>(item.shown)) + ","
            + std::to_string(static_cast<int>(item.kind));
        look += style.bold ? "b" : "";
        look += style.italic ? "i" : "";
        look += style.underlined ? "u" : "";
        look += std::to_string(style.sizeStep);
        if (style.link != kNone) look += page.elements[style.link].start.in(page.text);
        if (item.kind > ItemKind::LineBreak) look += item.source.in(page.text);
        return look;
    }

    [[nodiscard]] static std::vector<std::string> looksOf(
        const SurfacePage& page, std::size_t first, std::size_t end)
    {
        std::vector<std::string> looks;
        looks.reserve(end - first);
        for (; first < end; ++first)
            looks.push_back(lookOf(page, first));
        return looks;
    }

    [[nodiscard]] std::string differenceFault() const
    {
        const auto change = differenceOf(page_, after_);
        const bool isInBlock
            = tried_.operation == Operation::Type && from_ == to_ && !standsAside();
        if (!change) return isInBlock ? "typing builds the page anew" : "";
        auto looks = looksOf(page_, 0, page_.items.size());
        const auto first = page_.blocks[change->place.block].firstItem + change->place.offset;
        const auto anew = looksOf(after_, change->firstItem, change->endItem);
        const auto at = looks.begin() + static_cast<std::ptrdiff_t>(first);
        const auto behind = looks.erase(at, at + static_cast<std::ptrdiff_t>(change->removed));
        looks.insert(behind, anew.begin(), anew.end());
        return looks == looksOf(after_, 0, after_.items.size()) ? "" : "wrong difference";
    }

    const SurfacePage& page_;
    const TriedEdit& tried_;
    SurfaceEdit edit_;
    SurfacePage after_;
    PagePlace from_;
    PagePlace to_;
};

PagePlace randomPlace(SmallRandom& random, const SurfacePage& page)
{
    const auto block = random.below(page.blocks.size());
    return {block, random.below(itemCount(page.blocks[block]) + 1)};
}

PagePlace placeNear(SmallRandom& random, const SurfacePage& page, PagePlace place)
{
    if (random.chance(0.4)) return place;
    if (random.chance(0.2)) return randomPlace(random, page);
    const auto items = itemCount(page.blocks[place.block]);
    if (random.chance(0.7)) return {place.block, std::min(items, place.offset + random.below(6))};
    const auto block = std::min(page.blocks.size() - 1, place.block + 1);
    return {block, random.below(itemCount(page.blocks[block]) + 1)};
}

} // namespace

SurfaceEdit TriedEdit::on(const SurfacePage& page) const
{
    switch (operation) {
    case Operation::Type:
        return typeText(page, from, to, typed);
    case Operation::Delete:
        return deleteRange(page, from, to);
    case Operation::Backward:
        return deleteBackward(page, from);
    case Operation::Forward:
        return deleteForward(page, from);
    case Operation::Paste:
        return pasteMarkup(page, from, to, markup);
    case Operation::RemoveFormats:
        break;
    }
    return removeFormats(page, from, to);
}

TriedEdit randomEdit(SmallRandom& random, const SurfacePage& page)
{
    TriedEdit tried;
    tried.operation = static_cast<Operation>(random.below(6));
    tried.from = randomPlace(random, page);
    tried.to = placeNear(random, page, tried.from);
    const bool isAtCaret
        = tried.operation == Operation::Backward || tried.operation == Operation::Forward;
    if (isAtCaret) tried.to = tried.from;
    tried.typed = kTyped[random.below(kTyped.size())];
    tried.markup = kMarkup[random.below(kMarkup.size())];
    return tried;
}

std::string faultOf(const SurfacePage& page, const TriedEdit& tried)
{
    return EditCheck(page, tried).fault();
}

std::string faultInGoodText(const SurfacePage& page, const TriedEdit& tried)
{
    EditCheck check(page, tried);
    auto fault = check.fault();
    return fault.empty() ? check.faultInGoodText() : fault;
}

} // namespace quillmere::test
