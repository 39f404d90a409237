#pragma once

#include "document/wml/wml_elements.h"
#include "editor/page/markup_tags.h"
#include "editor/page/surface_page.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillmere {

/// An element that is open at a place that markup is put in at: one of the page, or one of the
/// markup itself.
struct Level {
    WmlElement element = WmlElement::Card;
    std::size_t parent = kNone; ///< the level that it stands in
    std::size_t sink = kNone; ///< the level behind which it is written; kNone: at the place
    SourceRange start{}; ///< its tags, in the text of the page or in the markup
    SourceRange end{};
    std::uint32_t endTag = kNoTag; ///< index of its end tag in the markup
    std::string reopened{}; ///< formats that begin again behind it
    std::string behind{}; ///< what else is to stand behind it
};

/// A place for an element: in a level, behind one of the levels in it or, with kNone, where the
/// innermost level is written.
struct MarkupPlace {
    std::size_t level = 0;
    std::size_t behind = kNone;
};

/// The levels at a place, from the card to the innermost one.
class OpenLevels {
public:
    /// `round`: the indices of the page's elements round the place, the outermost first.
    OpenLevels(const SurfacePage& page, const std::vector<std::size_t>& round);

    void open(Level level) { levels_.push_back(std::move(level)); }
    Level close();
    [[nodiscard]] std::size_t top() const { return levels_.size() - 1; }
    Level& operator[](std::size_t level) { return levels_[level]; }
    const Level& operator[](std::size_t level) const { return levels_[level]; }

    /// Whether a level is that element or stands in one.
    [[nodiscard]] bool isWithin(std::size_t level, WmlElement element) const;
    /// Text that stands in a card itself gets a paragraph, and so do the elements of one.
    [[nodiscard]] bool holdsText(std::size_t level) const;
    /// By the document type, and no table stands in a cell.
    [[nodiscard]] bool mayStand(std::size_t level, WmlElement element) const;
    /// The innermost place for an element; nullopt for none.
    [[nodiscard]] std::optional<MarkupPlace> placeFor(WmlElement element) const;
    /// The level behind which text goes that may not stand in the innermost one.
    [[nodiscard]] std::size_t closedToText() const;

private:
    std::vector<Level> levels_;
};

} // namespace quillmere
