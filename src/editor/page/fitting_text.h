#pragma once

#include "editor/page/format_cut.h"
#include "editor/page/open_levels.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// What is written of markup that is made to fit a place: at the place itself, and behind elements
/// that it may not stand in.
class FittingText {
public:
    /// The page and the markup must outlive this. `round`: see OpenLevels.
    FittingText(
        const SurfacePage& page, const std::vector<std::size_t>& round, std::string_view markup);

    [[nodiscard]] const OpenLevels& levels() const { return levels_; }
    /// Whether nothing is written at the place.
    [[nodiscard]] bool isEmpty() const { return here_.empty(); }

    /// Writes where the innermost level is written.
    void write(std::string_view text) { textOf(levels_[levels_.top()].sink) += text; }
    void writeBehind(std::size_t level, std::string_view text) { levels_[level].behind += text; }
    /// Writes an element without content. Formats that alone keep it from its level end ahead of it
    /// and begin again behind it.
    void put(std::string_view source, MarkupPlace place);
    /// The same for one that is open until close(); its parent and its sink are not asked.
    void open(Level level, MarkupPlace place);
    void close();

    /// What is to go in at the place, and behind elements round it.
    [[nodiscard]] std::vector<PlacedMarkup> here(std::size_t offset) const;
    [[nodiscard]] std::vector<PlacedMarkup> elsewhere() const;

private:
    std::string endFormats(MarkupPlace& place);
    void beginFormats(std::string& text, const std::string& starts);
    [[nodiscard]] std::string_view written(const Level& level, SourceRange tag) const;
    [[nodiscard]] std::size_t sinkOf(MarkupPlace place) const;
    std::string& textOf(std::size_t sink) { return sink == kNone ? here_ : levels_[sink].behind; }

    const SurfacePage& page_;
    std::string_view markup_;
    OpenLevels levels_;
    std::string here_;
    FormatCut cut_;
};

} // namespace quillmere
