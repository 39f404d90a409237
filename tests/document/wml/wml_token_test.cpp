#include "document/wml/wml_token.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(WmlToken, SourcesAreTheTextAndTagsReadAlikeByThemselves)
{
    constexpr std::string_view kPieces[]
        = {"<", ">", "/", "\"", "'", "=", " ", "a", "!", "--", "?", "[", "]]", "&"};
    test::forEachSequence(
        kPieces, 4,
        [](const std::string& text) {
            std::string sources;
            for (const auto& token : readWmlTokens(text)) {
                sources += token.source;
                if (token.kind > WmlToken::Kind::EmptyTag) continue;
                const auto alone = readWmlTokens(token.source);
                ASSERT_EQ(alone.size(), 1U) << text;
                ASSERT_EQ(alone.front().kind, token.kind) << text;
            }
            ASSERT_EQ(sources, text);
        },
        "<a b=");
}

} // namespace
} // namespace quillmere
