// What holds for all that a person can do, on documents of all kinds.

#include "editor/page/markup_tags.h"
#include "editor/page/page_places.h"
#include "editor/page_formats.h"
#include "editor/surface_fixture.h"
#include "support/area_texts.h"
#include "support/small_random.h"

#include <QClipboard>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quillmere {
namespace {

using test::ShownSurface;
using test::SmallRandom;

constexpr std::size_t kLongestText = 8000;
constexpr int kDeedsInATest = 14;

/// A key, what it types, and what it can reach where nothing is marked.
struct Deed {
    int key;
    Qt::KeyboardModifiers held;
    const char* text;
    bool reachesBlockAhead;
    bool reachesBlockBehind;
};

constexpr Deed kAllDeeds[] = {
    {Qt::Key_A, Qt::NoModifier, "a", false, false},
    {Qt::Key_Space, Qt::NoModifier, " ", false, false},
    {Qt::Key_Ampersand, Qt::NoModifier, "&", false, false},
    {Qt::Key_Less, Qt::NoModifier, "<", false, false},
    {Qt::Key_Return, Qt::NoModifier, "", false, false},
    {Qt::Key_Backspace, Qt::NoModifier, "", true, false},
    {Qt::Key_Delete, Qt::NoModifier, "", false, true},
    {Qt::Key_Backspace, Qt::ControlModifier, "", true, false},
    {Qt::Key_Delete, Qt::ControlModifier, "", false, true},
    {Qt::Key_X, Qt::ControlModifier, "", false, false},
    {Qt::Key_V, Qt::ControlModifier, "", false, false},
};

void markAtRandom(ShownSurface& surface, SmallRandom& random)
{
    const auto count = static_cast<std::size_t>(surface.document()->characterCount());
    auto cursor = surface.textCursor();
    const auto anchor = random.below(count);
    cursor.setPosition(static_cast<int>(anchor));
    if (random.chance(0.5)) {
        const auto way = random.chance(0.9) ? random.below(8) : random.below(count);
        const auto end = std::min(count - 1, anchor + way);
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    }
    surface.setTextCursor(cursor);
}

/// The blocks that a deed may change, the first and the last one.
std::pair<std::size_t, std::size_t> reach(const ShownSurface& surface, const Deed& deed)
{
    const auto cursor = surface.textCursor();
    const auto* document = surface.document();
    auto first
        = static_cast<std::size_t>(document->findBlock(cursor.selectionStart()).blockNumber());
    auto last = static_cast<std::size_t>(document->findBlock(cursor.selectionEnd()).blockNumber());
    if (!cursor.hasSelection() && deed.reachesBlockAhead && first > 0) --first;
    if (!cursor.hasSelection() && deed.reachesBlockBehind) ++last;
    return {first, std::min(last, surface.page().blocks.size() - 1)};
}

/// What of the text belongs to a block: its paragraph, or its cell and the tables round it where
/// cells are marked; and all of an option or a list that begins or ends in it.
SourceRange pieceOf(const SurfacePage& page, std::size_t first, std::size_t last)
{
    SourceRange piece{page.text.size(), 0};
    const auto add = [&](SourceRange range) {
        piece = {std::min(piece.begin, range.begin), std::max(piece.end, range.end)};
    };
    for (auto index = first; index <= last; ++index) {
        const auto& block = page.blocks[index];
        add(block.content);
        if (block.paragraph != kNone) add(page.elements[block.paragraph].whole());
        const bool crossesCells = page.blocks[first].cell != page.blocks[last].cell;
        if (block.cell != kNone && crossesCells)
            add(page.tables[page.cells[block.cell].table].source);
    }
    for (const auto& element : page.elements) {
        const bool isOfList = element.kind == PageElement::Kind::Select
            || element.kind == PageElement::Kind::Option;
        const auto whole = element.whole();
        if (isOfList && whole.begin < piece.end && whole.end > piece.begin) add(whole);
    }
    return piece;
}

bool isSameOutside(const std::string& before, const std::string& after, SourceRange piece)
{
    const auto behind = before.size() - piece.end;
    return after.size() >= piece.begin + behind
        && before.compare(0, piece.begin, after, 0, piece.begin) == 0
        && before.compare(piece.end, behind, after, after.size() - behind) == 0;
}

/// The markers but for atoms and those of blocks, which go as characters and paragraphs do.
std::vector<std::string> markersOf(const std::string& text)
{
    std::vector<std::string> markers;
    MarkupScanner tags(text);
    while (const auto tag = tags.next()) {
        const bool isPart = tag->name == TagName::Atom || tag->name == TagName::Preformatted;
        if (isComment(tag->name) && !isPart) markers.emplace_back(tag->source.in(text));
    }
    return markers;
}

/// Whether the widget shows the page that its text is.
bool showsItsText(const ShownSurface& surface)
{
    const auto page = readSurfacePage(surface.DocumentHTML(), surface.page().rules);
    const auto* document = surface.document();
    if (static_cast<std::size_t>(document->blockCount()) != page.blocks.size()) return false;
    for (std::size_t block = 0; block < page.blocks.size(); ++block) {
        QString wanted;
        for (auto i = page.blocks[block].firstItem; i < page.blocks[block].endItem; ++i)
            wanted += shownCharacter(page.items[i]);
        if (document->findBlockByNumber(static_cast<int>(block)).text() != wanted) return false;
    }
    return true;
}

/// What takes markers with it.
std::size_t endsOfMarkers(const SurfacePage& page)
{
    return static_cast<std::size_t>(std::ranges::count_if(page.items, [](const PageItem& item) {
        return item.kind == ItemKind::Radio || item.kind == ItemKind::Marker;
    }));
}

void doAndCheck(ShownSurface& surface, const Deed& deed, bool isGoodText)
{
    const auto page = surface.page();
    const auto [first, last] = reach(surface, deed);
    const bool isAtCaret = !surface.textCursor().hasSelection() && deed.held == Qt::NoModifier;
    surface.press(deed.key, deed.held, deed.text);
    const auto& after = surface.DocumentHTML();
    ASSERT_TRUE(showsItsText(surface));
    ASSERT_EQ(surface.caretOffset(), offsetAt(surface.page(), surface.caretPlace()));
    const bool isPaste = deed.key == Qt::Key_V; // it goes behind what may not hold it
    const bool mayGoFar = !isGoodText || (isPaste && page.rules.losesNothing());
    ASSERT_TRUE(mayGoFar || isSameOutside(page.text, after, pieceOf(page, first, last))) << after;
    // an option goes with its radio button, and in loose tags with all else that it shows
    const bool wholeElements = endsOfMarkers(page) != endsOfMarkers(surface.page())
        || (!isGoodText && (deed.reachesBlockAhead || deed.reachesBlockBehind));
    const bool mayTakeMarkers = !isAtCaret || wholeElements;
    ASSERT_TRUE(mayTakeMarkers || markersOf(page.text) == markersOf(after)) << after;
}

void liveWith(ShownSurface& surface, const std::string& text, std::uint64_t seed, bool isGoodText)
{
    SmallRandom random(seed);
    surface.setDocumentHTML(text);
    for (int i = 0; i < kDeedsInATest; ++i) {
        markAtRandom(surface, random);
        const auto& deed = kAllDeeds[random.below(std::size(kAllDeeds))];
        SCOPED_TRACE(testing::PrintToString(surface.told()) + "\nmarked "
            + std::to_string(surface.textCursor().selectionStart()) + " to "
            + std::to_string(surface.textCursor().selectionEnd()) + ", key "
            + std::to_string(deed.key) + " " + deed.text);
        doAndCheck(surface, deed, isGoodText);
        if (testing::Test::HasFatalFailure()) return;
    }
    for (int i = 0; i < kDeedsInATest; ++i)
        surface.undo();
    ASSERT_EQ(surface.DocumentHTML(), text);
    ASSERT_TRUE(showsItsText(surface));
}

TEST(SurfacePromises, HoldForAllKeysInAllKindsOfDocuments)
{
    ShownSurface surface;
    QApplication::clipboard()->setText("Wort <&>");
    std::uint64_t seed = 0;
    test::forEachAreaText([&](const std::string& name, const std::string& text) {
        if (text.size() > kLongestText || testing::Test::HasFatalFailure()) return;
        SCOPED_TRACE(name + ", seed " + std::to_string(seed + 1));
        const bool isGoodText = !name.starts_with("tags") && !name.starts_with("broken");
        liveWith(surface, text, ++seed, isGoodText);
    });
    EXPECT_TRUE(surface.failures.isEmpty());
}

TEST(SurfacePromises, HoldWhereNothingIsLost)
{
    ShownSurface surface;
    surface.setRules(OutputRules(true));
    std::uint64_t seed = 0;
    test::forEachFormText([&](const std::string& text) {
        if (++seed % 3 != 0 || testing::Test::HasFatalFailure()) return;
        SCOPED_TRACE("seed " + std::to_string(seed));
        liveWith(surface, text, seed, true);
    });
    EXPECT_TRUE(surface.failures.isEmpty());
}

} // namespace
} // namespace quillmere
