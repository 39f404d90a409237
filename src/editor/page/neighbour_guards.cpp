// Only the items of the run's own blocks are changed, and of these only those that stand next to
// it, but for a '<' without '>', behind which no tag can follow: the rest of the text is its block.
// Held by type_edits_test.cpp and delete_edits_test.cpp.

#include "editor/page/neighbour_guards.h"

#include <string>
#include <string_view>

namespace quillmere {

namespace {

bool isOfReference(char character)
{
    const auto lowered = static_cast<unsigned char>(character) | 0x20U;
    return (character >= '0' && character <= '9') || character == '#'
        || (lowered >= 'a' && lowered <= 'z');
}

class Guards {
public:
    Guards(SpliceList& changes, const SurfacePage& page, const CoveredRun& run)
        : changes_(changes)
        , page_(page)
        , run_(run)
        , begin_(page.blocks[run.from.block].firstItem)
        , end_(page.blocks[run.to.block].endItem)
    {
    }

    void references()
    {
        for (std::size_t i = run_.firstItem; i > begin_; --i) {
            const auto source = sourceOf(i - 1);
            if (source == "&") return changes_.replace(page_.items[i - 1].source, "&amp;");
            if (source.starts_with('&') && source.back() != ';')
                return changes_.replace(page_.items[i - 1].source, std::string(source) + ";");
            if (source.size() != 1 || !isOfReference(source.front())) return;
        }
    }

    void blanks()
    {
        if (run_.endItem < end_ && harden(run_.endItem)) return;
        if (run_.firstItem > begin_) harden(run_.firstItem - 1);
    }

    void brackets()
    {
        for (std::size_t i = begin_; i < run_.firstItem; ++i)
            if (sourceOf(i) == "<") changes_.replace(page_.items[i].source, "&lt;");
    }

private:
    [[nodiscard]] std::string_view sourceOf(std::size_t item) const
    {
        return page_.items[item].source.in(page_.text);
    }

    bool harden(std::size_t item)
    {
        const bool isBlank = page_.items[item].kind == ItemKind::Blank;
        if (isBlank) changes_.replace(page_.items[item].source, "&nbsp;");
        return isBlank;
    }

    SpliceList& changes_;
    const SurfacePage& page_;
    const CoveredRun& run_;
    std::size_t begin_; // the items of the run's blocks
    std::size_t end_;
};

} // namespace

void addGuard(SpliceList& changes, const SurfacePage& page, const CoveredRun& run, Guard guard)
{
    Guards guards(changes, page, run);
    const bool all = guard == Guard::All;
    if (all || guard == Guard::References) guards.references();
    if (all || guard == Guard::Blanks) guards.blanks();
    if (all || guard == Guard::Brackets) guards.brackets();
}

} // namespace quillmere
