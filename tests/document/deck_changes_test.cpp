#include "document/changes/deck_change_counts.h"
#include "document/changes/deck_changes.h"
#include "document/changes/sequence_match.h"
#include "generator/deck_generator.h"
#include "support/longest_common.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

namespace quillmere {
namespace {

/// A short form of a change: kind, what it concerns, texts, place in what was read and written.
std::string shortForm(const DeckChange& change)
{
    constexpr char kKinds[] = {'-', '+', '~', '>'};
    std::string form(1, kKinds[static_cast<int>(change.kind)]);
    if (change.subject == DeckChange::Subject::Attribute)
        form += change.element + '.' + change.attribute + ' ';
    form += change.before;
    if (!change.after.empty() && change.after != change.before) form += "=>" + change.after;
    for (const auto& place : {change.readAt, change.writtenAt}) {
        if (place) form += ' ' + std::to_string(place->line) + ':' + std::to_string(place->column);
    }
    return form;
}

std::string changesOf(std::string_view read, std::string_view written)
{
    std::string all;
    for (const auto& change : DeckChanges(read, written).changes)
        all += (all.empty() ? "" : " | ") + shortForm(change);
    return all;
}

TEST(DeckChanges, ToldWithTheirPlaces)
{
    const char* const rows[][3] = {{"<p>a b</p>", "<p>a b</p>", ""},
        {"<P class='x' id=\"1\">a&#228;<BR></BR><img src='i'></img></p>",
            "<p id=\"1\" class=\"x\">a\xE4<br/><img src=\"i\"/></p>", ""},
        {"<p>\r\n a\tb </p>", "<p>a b</p>", ""},
        {"<p>&amp;amp; &#8722; &vdata; </p>", "<p>&amp; &amp;#8722; &amp;vdata;</p>",
            "~&amp; &#8722; &vdata;=>& &#8722; &vdata; 1:4 1:4"},
        {"<p>a<fieldset>b</fieldset>c</p>", "<p>abc</p>", "-<fieldset> 1:5"},
        {"<p><do type='x'></do></p>\n<p>a</p><do type='a'/><p>b</p>",
            "<p></p><p>a</p><do type='a'/><p>b</p>", "-<do type='x'> 1:4"},
        {"<p><img src='a' alt='Ab' vspace='1'/></p>",
            "<p><img src='a' alt='ab' align='top'></img></p>",
            "+img.align =>top 1:26 | ~img.alt Ab=>ab 1:17 1:17 | -img.vspace 1 1:26"},
        {"<p><img src='a'/><img src='b'/></p>", "<p><img src='b'/></p>", "-<img src='a'/> 1:4"},
        {"<p>a b c</p><p>d</p>", "<p>a c</p><p>d e f</p>", "-b 1:6 | +=>e f 1:16"},
        {"<p>f\xFCr M\xFCller da</p>", "<p>fuer Mueller da</p>",
            "~f\xFCr M\xFCller=>fuer Mueller 1:4 1:4"},
        {"<p>eins\nzwei</p>", "<p>einszwei</p>", "~eins zwei=>einszwei 1:4 1:4"},
        {"<p>eins <b>zwei</b><br/> drei</p>", "<p>eins<b>zwei</b><br/>drei</p>",
            "~eins zwei=>einszwei 1:4 1:4"},
        {"<p>Te<b>xt</b></p>", "<p>Text</p>", "-<b> 1:6"},
        {"<p>a<p>b", "<p>a</p><p>b</p>", "+=></p> 1:5 | +=></p> 1:13"},
        {"<p>a</b></p>", "<p>a</p>", "-</b> 1:5"},
        {"<p><b>a</b></p>", "<p>a</b></p>", "-<b> 1:4 | +=></b> 1:5"},
        {"</p>a</p><p>b</p></p>", "<p>a</p><p>b</p>",
            "-</p> 1:1 | +=><p> 1:1 | -</p> 1:6 | -</p> 1:18"},
        {"<p><b>a<b>c</b></p>", "<p><b>ac</b></p>", "-<b> 1:8 | +=></b> 1:9"},
        {"<b>x<i>y</b></i>", "<b>x<i>y</i></b>", "></b> 1:9 1:13"},
        {"<card id='a'><do><go href='#b'/></do><p>a b</p></card>",
            "<card id='a'><p>a b</p><do><go href='#b'/></do></card>", "><do> 1:14 1:24"},
        {"<card id='a'><do/>x</card><card id='b'>y</card>",
            "<card id='a'>x</card><card id='b'><do/>y</card>", "-<do/> 1:14 | +=><do/> 1:35"},
        {"<?php x?><!DOCTYPE a><!-- c --><p><![CDATA[1 <2]]></p>", "<!DOCTYPE b><p>1 2</p>",
            "-php x 1:1 | -a 1:10 | -c 1:22 | +=>b 1:1 | ~<2=>2 1:46 1:18"},
        {"<p><b>x</b> <b>y</b></p>", "<p><b>x y</b></p>", "-<b> 1:13"}};
    for (const auto& row : rows)
        EXPECT_EQ(changesOf(row[0], row[1]), row[2]) << row[0];
}

/// How many start tags of each name a deck has, counted with an expression.
std::map<std::string, long> startsOf(const std::string& deck)
{
    static const std::regex kStart("<([a-z]+)[^>]*>");
    std::map<std::string, long> starts;
    for (std::sregex_iterator at(deck.begin(), deck.end(), kStart), end; at != end; ++at)
        ++starts[(*at)[1]];
    return starts;
}

/// Cuts out some of the parts that the expression finds.
std::string thinnedOut(
    const std::string& deck, const std::string& expression, test::SmallRandom& random)
{
    const std::regex part(expression);
    std::string result;
    auto copied = deck.begin();
    for (std::sregex_iterator at(deck.begin(), deck.end(), part), end; at != end; ++at) {
        if (!random.chance(0.05)) continue;
        result.append(copied, (*at)[0].first);
        copied = (*at)[0].second;
    }
    return result.append(copied, deck.end());
}

TEST(DeckChanges, NumbersOfElementsAddUp)
{
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::SmallRandom random(seed);
        const auto read = bench::generateDeck(seed);
        const auto written = thinnedOut(read, "<[a-z/][^>]*>|[^<> \n]+", random);
        auto balance = startsOf(read);
        for (const auto& [name, count] : startsOf(written))
            balance[name] -= count;
        for (const auto& count : countChanges(DeckChanges(read, written))) {
            ASSERT_EQ(count.subject == DeckChange::Subject::Element ? count.added : 0U, 0U);
            if (count.subject == DeckChange::Subject::Element)
                balance[count.name] -= static_cast<long>(count.lost);
        }
        for (const auto& [name, left] : balance)
            EXPECT_EQ(left, 0) << name;
    }
}

/// By name, how many more elements and end tags went than came.
std::map<std::string, long> lossesOfTags(const std::string& read, const std::string& written)
{
    std::map<std::string, long> losses;
    for (const auto& count : countChanges(DeckChanges(read, written))) {
        const auto lost = static_cast<long>(count.lost) - static_cast<long>(count.added);
        if (count.subject == DeckChange::Subject::Element) losses['/' + count.name] += lost;
        if (count.subject == DeckChange::Subject::EndTag) losses[count.name] += lost;
    }
    return losses;
}

TEST(DeckChanges, EndTagsThatLoseOrGetTheirStartAreTold)
{
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::SmallRandom random(seed);
        const auto whole = bench::generateDeck(seed);
        const auto headless = thinnedOut(whole, "<[a-z][^>]*[^/]>", random); // only starts are cut
        for (const auto& losses : {lossesOfTags(whole, headless), lossesOfTags(headless, whole)})
            for (const auto& [name, lost] : losses)
                EXPECT_EQ(lost, 0) << name; // for each element an end tag, the other way round
    }
}

TEST(DeckChanges, NothingChangesBetweenADeckAndItself)
{
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto deck = bench::generateDeck(seed, {.targetBytes = 800, .brokenness = 0.2});
        ASSERT_EQ(changesOf(deck, deck), "") << "seed " << seed;
    }
    const auto report = DeckChanges("<p>x", "<p>\n<b>x</p>");
    ASSERT_TRUE(report.fault);
    EXPECT_EQ(report.fault->writtenAt, (TextPlace{2, 5}));
    EXPECT_FALSE(report.wellFormed());
}

TEST(SequenceMatch, IsALongestListOfEqualPairs)
{
    for (std::uint64_t seed = 0; seed < 2000; ++seed) {
        test::SmallRandom random(seed);
        const bool isLong = seed < 5; // of several windows, which need not give the longest
        std::vector<int> lists[2];
        for (auto& list : lists)
            for (auto length = isLong ? 900 : random.below(40); length > 0; --length)
                list.push_back(static_cast<int>(random.below(isLong ? 300 : 1 + seed % 7)));
        const auto pairs = matchSequences(lists[0], lists[1]);
        std::size_t left = 0;
        std::size_t right = 0;
        for (const auto& pair : pairs) {
            ASSERT_TRUE(pair.left >= left && pair.right >= right) << "seed " << seed;
            ASSERT_EQ(lists[0].at(pair.left), lists[1].at(pair.right)) << "seed " << seed;
            left = pair.left + 1;
            right = pair.right + 1;
        }
        const auto longest = test::longestCommonPart(lists[0], lists[1]);
        ASSERT_TRUE(isLong ? 2 * pairs.size() > longest : pairs.size() == longest) << seed;
    }
}

} // namespace
} // namespace quillmere
