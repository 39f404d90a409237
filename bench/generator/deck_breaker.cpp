#include "generator/wml_generator.h"
#include "support/small_random.h"

#include <array>
#include <cctype>
#include <string_view>

namespace quillmere::bench {

namespace {

using test::SmallRandom;

constexpr auto kNowhere = std::string::npos;

struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// A tag, or another place between '<' and '>', behind a random offset; an empty one if none is.
Span someTag(const std::string& deck, SmallRandom& random, std::string_view opening = "<")
{
    auto begin = deck.find(opening, random.below(deck.size() + 1));
    if (begin == kNowhere) begin = deck.find(opening);
    const auto end = begin == kNowhere ? kNowhere : deck.find('>', begin);
    return end == kNowhere ? Span{} : Span{begin, end + 1};
}

void erase(std::string& deck, Span span)
{
    deck.erase(span.begin, span.end - span.begin);
}

void insert(std::string& deck, SmallRandom& random, std::string_view text)
{
    deck.insert(someTag(deck, random).end, text);
}

void eraseWithin(std::string& deck, Span tag, char character)
{
    const auto at = deck.find(character, tag.begin);
    if (at < tag.end) deck.erase(at, 1);
}

using Fault = void (*)(std::string& deck, SmallRandom& random);

constexpr std::string_view kTags[] = {"<b>", "</b>", "<i>", "</i>", "<p>", "</p>", "<br>", "</br>",
    "<td>", "</tr>", "<table>", "</table>", "</a>", "<a href='#x'>", "</card>", "<card>", "</wml>",
    "<wml>", "</select>", "<option>", "<do type='accept'>", "</do>", "<foo>", "</foo>", "<Foo/>",
    "<p align=left>", "<P>", "</P>", "<template>", "<img src=a.wbmp alt=x>", "<em><i>", "</em></i>",
    "<b id=\"k1\">", "<fieldset>", "<pre>", "</head>", "<anchor><go href=x>"};
constexpr std::string_view kTexts[]
    = {"Wort", "&", "a&b;", "<", "< 3", "&#0;", "&unbekannt;", "]]>", "&amp", "<!- x ->",
        "<!-- a -- b -->", "<?xml version=\"1.0\"?>", "<!DOCTYPE wml>", "<? ?>", "\x01\x0B", "\x81",
        "\xE4\xF6", "\xC3\xA4", "<![CDATA[", "-->", "</>", "</ p>", "<p/ >", "]]"};

constexpr Fault kFaults[] = {
    [](std::string& deck, SmallRandom& random) { erase(deck, someTag(deck, random, "</")); },
    [](std::string& deck, SmallRandom& random) { erase(deck, someTag(deck, random, "</card")); },
    [](std::string& deck, SmallRandom& random) { erase(deck, someTag(deck, random, "<card")); },
    [](std::string& deck, SmallRandom& random) { erase(deck, someTag(deck, random)); },
    [](std::string& deck, SmallRandom& random) {
        insert(deck, random, kTags[random.below(std::size(kTags))]);
    },
    [](std::string& deck, SmallRandom& random) {
        insert(deck, random, kTags[random.below(std::size(kTags))]);
    },
    [](std::string& deck, SmallRandom& random) {
        insert(deck, random, kTexts[random.below(std::size(kTexts))]);
    },
    [](std::string& deck, SmallRandom& random) { // doubled
        const auto tag = someTag(deck, random);
        insert(deck, random, std::string(deck, tag.begin, tag.end - tag.begin));
    },
    [](std::string& deck, SmallRandom& random) { // moved
        const auto tag = someTag(deck, random);
        const std::string text(deck, tag.begin, tag.end - tag.begin);
        erase(deck, tag);
        insert(deck, random, text);
    },
    [](std::string& deck, SmallRandom& random) { eraseWithin(deck, someTag(deck, random), '"'); },
    [](std::string& deck, SmallRandom& random) { // without quotes
        const auto tag = someTag(deck, random);
        eraseWithin(deck, tag, '"');
        eraseWithin(deck, tag, '"');
    },
    [](std::string& deck, SmallRandom& random) { eraseWithin(deck, someTag(deck, random), '/'); },
    [](std::string& deck, SmallRandom& random) { eraseWithin(deck, someTag(deck, random), '>'); },
    [](std::string& deck, SmallRandom& random) { eraseWithin(deck, someTag(deck, random), '='); },
    [](std::string& deck, SmallRandom& random) { // upper case
        const auto tag = someTag(deck, random, random.chance(0.5) ? "<" : "</");
        for (auto at = tag.begin; at < tag.end; ++at)
            deck[at] = static_cast<char>(std::toupper(static_cast<unsigned char>(deck[at])));
    },
    [](std::string& deck, SmallRandom& random) { // an attribute twice
        const auto tag = someTag(deck, random, "<p");
        if (tag.end != 0) deck.insert(tag.begin + 2, " id=\"k1\" mode='wrap' mode=\"wrap\"");
    },
    [](std::string& deck, SmallRandom& random) {
        if (random.chance(0.1)) deck.resize(random.below(deck.size() + 1));
    },
    [](std::string& deck, SmallRandom& random) {
        if (random.chance(0.3)) deck.insert(0, random.chance(0.5) ? "\n" : "Content-type: x\n\n");
    },
};

} // namespace

std::string breakDeck(std::string deck, std::uint64_t seed, int faults)
{
    SmallRandom random(seed);
    for (int i = 0; i < faults; ++i)
        kFaults[random.below(std::size(kFaults))](deck, random);
    return deck;
}

} // namespace quillmere::bench
