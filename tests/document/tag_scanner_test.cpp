#include "document/tag_scanner.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

using Places = std::vector<std::pair<std::size_t, std::size_t>>;

/// Whether a tag is kept, so that the next one may begin within it.
bool keeps(std::string_view tag)
{
    return tag.ends_with("a>");
}

Places scan(std::string_view text)
{
    Places places;
    TagScanner tags(text);
    while (const auto tag = tags.next()) {
        places.emplace_back(tag->begin, tag->end);
        if (keeps(tag->in(text))) tags.resumeAt(tag->begin + 1);
    }
    return places;
}

/// Both characters are searched anew for each tag.
Places scanBySearching(std::string_view text)
{
    Places places;
    for (std::size_t from = 0;;) {
        const auto begin = text.find('<', from);
        const auto end = text.find('>', from + 1);
        if (begin == std::string_view::npos || end == std::string_view::npos) return places;
        from = end + 1;
        if (begin > end) continue;
        places.emplace_back(begin, end + 1);
        if (keeps(text.substr(begin, end + 1 - begin))) from = begin + 1;
    }
}

TEST(TagScanner, FindsTheTagsThatSearchingFinds)
{
    constexpr std::array<std::string_view, 4> kTokens{"<", ">", "a", "b"};
    test::forEachSequence(kTokens, 8,
        [](const std::string& text) { ASSERT_EQ(scan(text), scanBySearching(text)) << text; });
}

} // namespace
} // namespace quillmere
