// What the surface shows of atoms and groups where nothing is lost, and how they are edited.

#include "support/marked_text.h"
#include "support/page_drawing.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

const OutputRules kLossless(true);
constexpr auto kTimer = "<!--#timer &lt;timer value=\"9\"/&gt;-->";

/// A text with signs in it: $T for a timer, $I for a field, $F and $f round a group of fields, $G
/// and $g round one of options, $O and $E round an option.
std::string spelled(std::string text)
{
    const std::pair<const char*, std::string> kSigns[]
        = {{"$T", kTimer}, {"$F", "<!--fieldset-->"}, {"$f", "<!--/fieldset-->"},
            {"$G", "<!--optgroup a-->"}, {"$g", "<!--/optgroup-->"}, {"$I", "<!--#input x-->"},
            {"$O", "<!--option--><input type=radio>"}, {"$E", "<!--/option-->"}};
    for (const auto& [sign, markup] : kSigns)
        for (auto at = text.find(sign); at != std::string::npos; at = text.find(sign, at))
            text.replace(at, std::string_view(sign).size(), markup);
    return text;
}

TEST(Markers, ShowAtomsAnchorsAndGroups)
{
    const char* const rows[][3] = {
        {"an atom in text", "<p>a$Tb</p>", "P:a$Tb"},
        {"atoms outside of paragraphs", "$T $T<p>a</p>$T", "A:$T_$T P:a A:$T"},
        {"with text", "$Ta<p>b</p>", "-:$Ta P:b"},
        {"between cells", "<table>$T<tr><td>a</td></tr></table>", "-: {(-:a)} -:"},
        {"in a do block", "<p>a<!--do--><!--go x-->$T<!--/go--><!--/do-->$T</p>", "P:a$T"},
        {"no atom", "a<!--#-->b<!--# x-->c<!-- #x-->d", "-:abcd"},
        {"an anchor", "<p>a<!--anchor x-->b<b>c</b><!--go y/--><!--/anchor-->d</p>",
            "P:a|a|b|ba|c||d"},
        {"an anchor that never ends", "<p>a<!--anchor-->b</p>", "P:ab"},
        {"groups of options", "<p><!--select-->$G$Oa$E$g<!--/select-->b</p>",
            "P:<!--optgroup a-->Oab"},
        {"groups of fields", "<p>a$Fb$fc</p>", "P:a<!--fieldset-->b<!--/fieldset-->c"},
        {"a block of its own", "a<!--pre-->b  <b>c</b><!--/pre--><p>d</p>", "-:a P:|f|b_|bf|c P:d"},
        {"within a paragraph", "<p>a<!--pre-->b<!--/pre-->c</p>", "P:a|f|b||c"},
        {"with paragraphs in it", "<!--pre-->b<p>c</p><!--/pre-->d", "-:|f|b P:|f|c -:d"},
    };
    for (const auto& [name, text, wanted] : rows) {
        SCOPED_TRACE(name);
        const auto page = readSurfacePage(spelled(text), kLossless);
        EXPECT_EQ(test::drawn(page), spelled(wanted));
    }
}

TEST(Markers, AreCommentsWhereTheRulesLoseSomething)
{
    const auto page = readSurfacePage(
        spelled("$T<p>$Fa$f$Gb$g<!--anchor-->c<!--/anchor--></p><!--pre-->d<!--/pre-->"));
    EXPECT_EQ(test::drawn(page), "P:abc -:d");
}

template <class Operation> void expectEdits(Operation operation, std::vector<test::EditRow> rows)
{
    for (auto& row : rows)
        row = {row.name, spelled(row.before), spelled(row.after)};
    test::expectEdits(operation, rows, kLossless);
}

TEST(Markers, GoInPairsAndAtomsAsWholes)
{
    expectEdits(deleteRange,
        {
            {"an atom", "<p>a[$T]b</p>", "<p>a|b</p>"},
            {"a line of atoms", "[$T$T]<p>a</p>", "<p>|a</p>"},
            {"the start of a group", "<p>a[$F]bc$fd</p>", "<p>a|bcd</p>"},
            {"a comment in it stays", "<p>a[$F]<!--x-->b$fc</p>", "<p>a|<!--x-->bc</p>"},
            {"the heading of options", "<p><!--select-->[$G]$Oa$E$g<!--/select-->b</p>",
                "<p>|<!--select-->$Oa$E<!--/select-->b</p>"},
            {"the last option of a group",
                "<p><!--select-->$G$Oa$E$g$G[$Ob]$E$g<!--/select-->c</p>",
                "<p><!--select-->$G$Oa|$E$g<!--/select-->c</p>"},
            {"a do block at the border stays", "<p>a[<!--do--><!--go/--><!--/do-->b]c</p>",
                "<p>a|<!--do--><!--go/--><!--/do-->c</p>"},
            {"all of an anchor", "<p>a[<!--anchor--><!--go/-->b<!--/anchor-->]c</p>", "<p>a|c</p>"},
        });
}

TEST(Markers, KeepLinesOfAtomsApartFromParagraphs)
{
    const auto deletes = [](const SurfacePage& page, PagePlace from, PagePlace to) {
        return from == to ? deleteBackward(page, from) : deleteRange(page, from, to);
    };
    expectEdits(deletes,
        {
            {"from one into a paragraph", "$T[$T<p>a]b</p>", "$T|<p>b</p>"},
            {"over a paragraph", "$T[<p>a</p>$T]$T", "$T|$T"},
        });
    const auto types = [](const SurfacePage& page, PagePlace from, PagePlace to) {
        return typeText(page, from, to, u"x y");
    };
    expectEdits(types,
        {
            {"typed behind an atom", "$T|$T<p>a</p>", "$T$T<p>x y|</p><p>a</p>"},
            {"for an atom", "[$T]$T<p>a</p>", "$T<p>x y|</p><p>a</p>"},
            {"for all of them", "[$T]<!--z--><p>a</p>", "<!--z--><p>x y|</p><p>a</p>"},
            {"for text and one", "<p>a[b</p>$T]$T", "<p>ax y|</p>$T"},
            {"for the end of a group", "<p>$Fab[$f]c</p>", "<p>abx y|c</p>"},
            {"behind an anchor", "<p><!--anchor-->a<!--/anchor-->|</p>",
                "<p><!--anchor-->a<!--/anchor-->x y|</p>"},
        });
}

TEST(Markers, ArePastedAndCopiedAsWholes)
{
    const auto paste = [](const char* markup) {
        return [markup](const SurfacePage& page, PagePlace from, PagePlace to) {
            return pasteMarkup(page, from, to, spelled(markup));
        };
    };
    expectEdits(paste("$I"), {{"an atom", "<p>a|b</p>", "<p>a$I|b</p>"}});
    expectEdits(paste("$T"), {{"a card has one timer", "|$T", "|$T"}});
    expectEdits(
        paste("<b>x</b>$I"), {{"text to atoms", "|$T<p>a</p>", "$T<p><b>x</b>$I|</p><p>a</p>"}});
    const test::EditRow rows[] = {
        {"an atom", "<p>a[$T]b</p>", "$T"},
        {"the start and a part", "<p>a[$Fb]c$fd</p>", "$Fb$f"},
        {"a part of an anchor", "<p><!--anchor-->a[b<!--go x/--><!--/anchor-->]</p>", "b"},
        {"an anchor", "<p>[<!--anchor-->a<!--go x/--><!--/anchor-->b]</p>",
            "<!--anchor-->a<!--go x/--><!--/anchor-->b"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const test::MarkedPage marked(spelled(row.before), kLossless);
        EXPECT_EQ(markupBetween(marked.page, marked.from, marked.to), spelled(row.after));
    }
}

} // namespace
} // namespace quillmere
