#include "document/wml/wml_token.h"

#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

/// The tokens in a form that shows their parts: S(tag name=value), X for an empty tag, E, W, _, C,
/// D, I, !; a '?' behind those that are faulty.
std::string tokensOf(std::string_view text)
{
    constexpr std::string_view kKinds = "SXEW_CDI!";
    std::string all;
    for (const auto& token : readWmlTokens(text)) {
        all += kKinds[static_cast<std::size_t>(token.kind)];
        if (token.isFaulty) all += '?';
        const bool isTag = token.kind <= WmlToken::Kind::EndTag;
        all.append("(").append(isTag ? token.name : token.source);
        if (isTag)
            for (const auto& attribute : attributesOf(token.source))
                all.append(" ").append(attribute.name).append("=").append(attribute.value);
        all += ')';
    }
    return all;
}

TEST(WmlToken, KindsAndParts)
{
    const char* const rows[][2]
        = {{"<p align='a>b' id = \"c\">x  y</p >", "S(p align=a>b id=c)W(x)_(  )W(y)E(p)"},
            {"<br/><img src='a' />", "X(br)X(img src=a)"},
            {"<?a b?><!-- c > --><![CDATA[<d>]]>", "I(<?a b?>)C(<!-- c > -->)D(<![CDATA[<d>]]>)"},
            {"<!DOCTYPE a [<!ENTITY b ']>'><!-- ' -->]><c/>",
                "!(<!DOCTYPE a [<!ENTITY b ']>'><!-- ' -->]>)X(c)"},
            {"1 < 2 a<3 <", "W(1)_( )W?(<)_( )W(2)_( )W?(a<3)_( )W?(<)"},
            {"<a href=#x/><a href=#y z><td/ >", "X?(a href=#x)S?(a href=#y z=)X?(td)"},
            {"<a href=\"x>y</a> <b c=\"d\">", "S?(a href=x)W(y)E(a)_( )S(b c=d)"},
            {"<img src=\"a/><a href='b/>", "X?(img src=a)S?(a href=b/)"},
            {"<a b=\"c<d\"><a b=\"c <d>", "S?(a b=c<d)S?(a b=c)_( )S(d)"},
            {"<a b=\"c\"d e</a>", "S?(a b=c)W(d)_( )W(e)E(a)"}, {"<a <b", "S?(a)_( )S?(b)"},
            {"</ p></></3></p x>", "E?(p)E?()W?(</3>)E?(p x=)"},
            {"<!-- a <b>c<![CDATA[ d> <?e> <!f>",
                "C?(<!-- a <b>)W(c)D?(<![CDATA[ d>)_( )I?(<?e>)_( )!?(<!f>)"},
            {"<?xml version='1.0'> <?b?>", "I?(<?xml version='1.0'>)_( )I(<?b?>)"},
            {"a]]>b ]] >", "W?(a]]>b)_( )W(]])_( )W(>)"}};
    for (const auto& row : rows)
        EXPECT_EQ(tokensOf(row[0]), row[1]) << row[0];
}

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
