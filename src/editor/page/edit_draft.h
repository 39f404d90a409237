#pragma once

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

    /// Puts text in: see typeText.
    void putText(std::u16string_view typed);
    /// Puts markup in, of which is not known what it shows.
    void putMarkup(std::string_view markup);

    /// The edit, with the caret behind what was put in.
    [[nodiscard]] SurfaceEdit finish() const;

private:
    [[nodiscard]] std::size_t firstItem() const { return parts_.front().run.firstItem; }
    [[nodiscard]] std::size_t endItem() const { return parts_.back().run.endItem; }
    [[nodiscard]] bool isAsWanted(const SurfacePage& after) const;
    [[nodiscard]] std::size_t itemsPutIn(const SurfacePage& after) const;
    [[nodiscard]] PagePlace caretOn(const SurfacePage& after) const;

    const SurfacePage& page_;
    std::vector<RunDeletion> parts_; // never empty
    SpliceList changes_;
    std::optional<std::u16string> shown_ = std::u16string(); // nullopt: not known
};

} // namespace quillmere
