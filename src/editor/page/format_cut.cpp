// Where the formats begin or end at the place, the tags that stand there serve for the markup's
// own. Held by fitting_markup_test.cpp.

#include "editor/page/format_cut.h"

namespace quillmere {

std::vector<PlacedMarkup> piecesOf(
    const std::string& markup, const FormatCut& cut, std::string_view text, std::size_t offset)
{
    const auto beginsHere = text.substr(0, offset).ends_with(cut.starts) && cut.firstEnd == 0;
    const auto endsHere = text.substr(offset).starts_with(cut.ends);
    if (cut.ends.empty() || (!beginsHere && !endsHere)) return {{offset, markup}};
    const auto behindEnds = cut.firstEnd + cut.ends.size();
    if (beginsHere)
        return {{offset - cut.starts.size(), markup.substr(behindEnds, cut.lastStart - behindEnds)},
            {offset, markup.substr(cut.lastStart + cut.starts.size())}};
    auto behind = markup.substr(behindEnds);
    if (behind.ends_with(cut.starts))
        behind.resize(behind.size() - cut.starts.size());
    else
        behind += cut.ends;
    return {{offset, markup.substr(0, cut.firstEnd)}, {offset + cut.ends.size(), behind}};
}

} // namespace quillmere
