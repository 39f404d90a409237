#pragma once

#include "editor/page/page_edits.h"
#include "support/small_random.h"

#include <string>

namespace quillmere::test {

/// One operation on a page at two places.
struct TriedEdit {
    enum class Operation { Type, Delete, Backward, Forward, Paste, RemoveFormats };
    Operation operation = Operation::Type;
    PagePlace from;
    PagePlace to;
    std::u16string typed;
    std::string markup;

    [[nodiscard]] SurfaceEdit on(const SurfacePage& page) const;
    [[nodiscard]] bool keepsItems() const { return operation == Operation::RemoveFormats; }
};

/// An operation at random places, next to each other more often than not.
[[nodiscard]] TriedEdit randomEdit(SmallRandom& random, const SurfacePage& page);

/// What is wrong with an edit of a page, "" for nothing. Holds for every text: the edit can be
/// taken back, no half of an element goes, no marker outside of the places goes but with an option
/// or list, what is typed at a caret shows up there, and the difference of the pages leads from one
/// to the other.
[[nodiscard]] std::string faultOf(const SurfacePage& page, const TriedEdit& tried);

/// The same, and what holds for texts without faults: no item outside of the places changes, and
/// no text outside of their paragraphs or cells.
[[nodiscard]] std::string faultInGoodText(const SurfacePage& page, const TriedEdit& tried);

} // namespace quillmere::test
