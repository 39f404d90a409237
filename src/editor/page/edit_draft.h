#pragma once

#include "editor/page/fitting_markup.h"
#include "editor/page/going_tags.h"
#include "editor/page/run_deletion.h"
#include "editor/page/splice_list.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// What lies between two places of a page, in either order, gives way to something. The edit is
/// made so that the page shows then what it should: no item that stays is changed or lost because
/// of its new neighbour.
class EditDraft {
public:
    /// The page must outlive the draft. `Stay` is for text that is put in.
    EditDraft(const SurfacePage& page, PagePlace from, PagePlace to, FirstFormats formats);

    /// Puts text in: see typeText. Where no text may stand it gets a paragraph of its own, behind
    /// all that is there.
    void putText(std::u16string_view typed);
    /// Puts markup in, of which is not known what it shows; in a paragraph as text is, unless it
    /// is atoms. Where nothing is lost it is made to fit the place.
    void putMarkup(std::string_view markup);

    /// The edit, with the caret behind what was put in.
    [[nodiscard]] SurfaceEdit finish() const;

private:
    [[nodiscard]] std::size_t firstItem() const { return parts_.front().run.firstItem; }
    [[nodiscard]] std::size_t endItem() const { return parts_.back().run.endItem; }
    [[nodiscard]] bool standsAside() const;
    void putAsParagraph(const std::string& markup);
    [[nodiscard]] SurfaceEdit withElsewhere(SpliceList changes, std::size_t caret) const;
    [[nodiscard]] std::vector<ItemSpan> stayingItems() const;
    [[nodiscard]] std::size_t stayingCount() const;
    [[nodiscard]] std::size_t outsideAhead(std::size_t item) const;
    [[nodiscard]] std::size_t firstPutIn() const;
    [[nodiscard]] bool isAsWanted(const SurfacePage& after) const;
    [[nodiscard]] std::size_t itemsPutIn(const SurfacePage& after) const;
    [[nodiscard]] PagePlace caretOn(const SurfacePage& after) const;

    const SurfacePage& page_;
    std::vector<RunDeletion> parts_; // never empty
    SpliceList changes_;
    std::vector<PlacedMarkup> elsewhere_; // put in away from the places
    std::vector<std::size_t> itemsOutside_; // that go with those between the places
    std::size_t putAt_ = 0; // the item of the page ahead of which something is put in
    std::optional<std::u16string> shown_ = std::u16string(); // nullopt: not known
};

} // namespace quillmere
