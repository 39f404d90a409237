#include "document/text/failure.h"
#include "editor/elements/crossed_pairs.h"
#include "editor/elements/format_tags.h"
#include "editor/elements/text_formats.h"
#include "editor/page/markup_tags.h"
#include "support/area_texts.h"
#include "support/marked_text.h"
#include "support/small_random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quillmere {
namespace {

const TextFormats kBold{true, {}, {}, {}};
const TextFormats kPlain{false, false, false, LetterSize::Normal};

TEST(FormatText, PutsTagsRoundWhatIsMarked)
{
    const TextFormats all{true, true, true, LetterSize::Big};
    struct Case {
        std::string name;
        std::string before;
        TextFormats wanted;
        std::string after;
        OutputRules rules = OutputRules();
    };
    const OutputRules lossless(true);
    const std::vector<Case> cases{
        {"a word, with the blank ahead of it", "<p>one [two] three</p>", kBold,
            "<p>one<b> [two]</b> three</p>"},
        {"all formats", "<p>x[y]z</p>", all, "<p>x<big><i><b><u>[y]</u></b></i></big>z</p>"},
        {"out of the middle", "<p><b><i>a[b]c</i></b></p>", {false, {}, {}, {}},
            "<p><i><b>a</b>[b]<b>c</b></i></p>"},
        {"crossing tags", "<p><b>a<i>[b]</b>c</i></p>", {{}, {}, true, {}},
            "<p><b>a</b><i><b><u>[b]</u></b>c</i></p>"},
        {"a format without an end", "<p><B>a[b]c</p>", {{}, true, {}, {}},
            "<p><b>a</b><i><b>[b]</b></i><b>c</b></p>"},
        {"strong and em stay", "<p><em><strong>[a]</strong></em></p>", {true, true, true, {}},
            "<p><em><strong><u>[a]</u></strong></em></p>"},
        {"no format in lists",
            "<p>[a<!--select--><!--option onpick=\"#\"--><input type=radio "
            "name=\"TempName1\">b<!--/option--><!--/select-->c]</p>",
            kBold,
            "<p><b>[a</b><!--select--><!--option onpick=\"#\"--><input type=radio "
            "name=\"TempName1\">b<!--/option--><!--/select--><b>c]</b></p>"},
        {"empty pairs go", "<p>[a]<i><b> </b></i></p>", kBold, "<p><b>[a]</b> </p>"},
        {"another size", "<p><big><big>[a]b</big></big></p>", {{}, {}, {}, LetterSize::Small},
            "<p><small>[a]</small><big><big>b</big></big></p>"},
        {"round atoms that it may not hold", "<p>[a<!--#input 1-->b<!--#comment c-->d]</p>", kBold,
            "<p><b>[a</b><!--#input 1--><b>b<!--#comment c-->d]</b></p>", lossless},
        {"round all of an anchor", "<p>x<!--anchor-->[o]n<!--go--><!--/go--><!--/anchor--></p>",
            kBold, "<p>x<b><!--anchor-->[o]n<!--go--><!--/go--><!--/anchor--></b></p>", lossless},
        {"no size of preformatted text", "<!--#timer 1--><!--pre-->[a]<!--/pre-->",
            {true, {}, {}, LetterSize::Big}, "<!--#timer 1--><!--pre--><b>[a]</b><!--/pre-->",
            lossless},
        {"empty pairs elsewhere stay", "<p><i></i>x[a]</p>", kBold, "<p><i></i>x<b>[a]</b></p>",
            lossless},
    };
    for (auto row : cases) {
        SCOPED_TRACE(row.name);
        const auto marked = test::takeMarks(row.before);
        const auto formatted = formatText(row.before, marked, row.wanted, row.rules);
        EXPECT_EQ(test::withMarks(formatted.text, formatted.marked, false), row.after);
    }
}

TEST(FormatsOf, TellsWhatAllOfItHas)
{
    struct Case {
        std::string text;
        TextFormats formats;
    };
    const std::vector<Case> cases{
        {"<p>[a b]</p>", {false, false, false, LetterSize::Normal}},
        {"<P><STRONG><EM>[a]</EM></STRONG></P>", {true, true, false, LetterSize::Normal}},
        {"<p><b>[a</b> <b>b]</b></p>", {true, false, false, LetterSize::Normal}},
        {"<p><u><small>[a</small>b]</u></p>", {false, false, true, {}}},
    };
    for (auto row : cases) {
        SCOPED_TRACE(row.text);
        const auto marked = test::takeMarks(row.text);
        EXPECT_EQ(formatsOf(row.text, marked), row.formats);
    }
    std::string list = "<!--select--><!--option onpick=\"#\"-->[a]<!--/option--><!--/select-->";
    const auto marked = test::takeMarks(list);
    EXPECT_TRUE(takesNoFormats(list, marked));
    EXPECT_FALSE(takesNoFormats("<p>abc</p>", {3, 4}));
}

TEST(CrossedPair, IsToldByTheFirstKind)
{
    const std::string list
        = "a<!--SELECT-->b<!--OPTION-->c<!--/OPTION--><!--option-->d<!--/option--><!--/SELECT-->";
    const std::string table = "e<TABLE><TR><TD>f</TD><TD>g</TD></TR></TABLE>h";
    const std::string text = list + table;
    const auto at = [&text](char c) { return text.find(std::string(">") + c) + 1; };
    EXPECT_EQ(crossedPair(text, {0, at('c') + 1}), CrossedPair::Select);
    EXPECT_EQ(crossedPair(text, {at('c'), at('d') + 1}), CrossedPair::Option);
    EXPECT_EQ(crossedPair(text, {at('f'), at('h') + 1}), CrossedPair::Table);
    EXPECT_EQ(crossedPair(text, {at('f'), at('g') + 1}), std::nullopt);
    EXPECT_EQ(crossedPair(text, {0, at('h') + 1}), std::nullopt);
    EXPECT_EQ(crossedPair("<table>a", {0, 8}), std::nullopt); // it has no end
}

// What is seen: the characters and their formats, blanks and the tags' own order left out.
struct SeenText {
    std::u16string characters;
    std::vector<TextStyle> styles;
    friend bool operator==(const SeenText&, const SeenText&) = default;
};

SeenText seen(const std::string& text)
{
    const auto page = readSurfacePage(text);
    SeenText result;
    for (const auto& item : page.items) {
        if (item.kind == ItemKind::Blank) continue;
        result.characters += item.shown;
        result.styles.push_back(page.styles[item.style]);
        result.styles.back().link = result.styles.back().link == kNone ? kNone : 0;
    }
    return result;
}

/// What is wrong with the nesting of a text's formats and paragraphs between two offsets; "" for
/// nothing.
std::string nestingFault(std::string_view text)
{
    std::vector<TagName> open;
    MarkupScanner tags(text);
    while (const auto tag = tags.next()) {
        const bool isNested
            = isFormat(tag->name) || isTablePart(tag->name) || tag->name == TagName::Paragraph;
        if (!isNested) continue;
        if (!tag->isEnd) {
            if (tag->name == TagName::Paragraph && !open.empty() && isFormat(open.back()))
                return "a format goes over a paragraph";
            open.push_back(tag->name);
        } else if (open.empty() || open.back() != tag->name) {
            return "crossing at " + std::to_string(tag->source.begin);
        } else {
            open.pop_back();
        }
    }
    return open.empty() ? "" : "not ended";
}

TextFormats randomFormats(test::SmallRandom& random)
{
    TextFormats formats;
    if (random.chance(0.5)) formats.bold = random.chance(0.7);
    if (random.chance(0.4)) formats.italic = random.chance(0.7);
    if (random.chance(0.4)) formats.underlined = random.chance(0.7);
    if (random.chance(0.4)) formats.size = static_cast<LetterSize>(random.below(3));
    return formats;
}

SourceRange randomItems(test::SmallRandom& random, const SurfacePage& page)
{
    const auto one = random.below(page.items.size());
    const auto other = random.below(page.items.size());
    return {
        page.items[std::min(one, other)].source.begin, page.items[std::max(one, other)].source.end};
}

/// A text with a stray '<' may be refused, and is then as it was.
FormattedText formattedOrAsItIs(
    const std::string& text, SourceRange marked, const TextFormats& wanted)
{
    try {
        return formatText(text, marked, wanted);
    } catch (const RuntimeFailure&) {
        EXPECT_NE(text.find("< "), std::string::npos) << text;
        return {text, marked};
    }
}

TEST(FormatText, NestsWhateverIsMarked)
{
    test::SmallRandom random(1);
    test::forEachAreaText([&random](const std::string& name, const std::string& text) {
        const auto page = readSurfacePage(text);
        if (page.items.empty() || text.size() > 20000) return;
        const auto marked = randomItems(random, page);
        const bool wasNested = nestingFault(text).empty();
        SCOPED_TRACE(name + " " + std::to_string(marked.begin) + " " + std::to_string(marked.end));

        const auto formatted = formattedOrAsItIs(text, marked, randomFormats(random));
        EXPECT_EQ(seen(formatted.text).characters, seen(text).characters) << text << "\n"
                                                                          << formatted.text;
        if (wasNested) {
            EXPECT_EQ(nestingFault(formatted.text), "") << formatted.text;
        }

        if (text.find("< ") != std::string::npos) return; // may be refused on the way
        // Without formats ahead, taking them away again gives the text itself.
        auto plain = formattedOrAsItIs(text, {0, text.size()}, kPlain).text;
        DeleteFormatTagsWhoArroundsNoText(plain);
        const auto place = randomItems(random, readSurfacePage(plain));
        const auto bold = formattedOrAsItIs(plain, place, randomFormats(random));
        const auto back = formattedOrAsItIs(bold.text, {0, bold.text.size()}, kPlain);
        EXPECT_EQ(seen(back.text), seen(plain));
        if (nestingFault(plain).empty()) {
            EXPECT_EQ(back.text, plain);
        }
    });
}

} // namespace
} // namespace quillmere
