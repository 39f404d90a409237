#include "support/marked_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere {
namespace {

TEST(RemoveFormats, ClosesAFormatAheadAndOpensItAgainBehind)
{
    test::expectEdits(removeFormats,
        {
            {"formats with text round them", "[a<b>b</b><small>c</small>d]", "abcd|"},
            {"the start of a format", "a[b<b>c]d</b>", "abc|<b>d</b>"},
            {"the middle of a format", "<B class=x>a[b]c</B>",
                "<B class=x>a</B>b|<B class=x>c</B>"},
            {"nested formats", "<b>a<i>b[c]d</i>e</b>", "<b>a<i>b</i></b>c|<b><i>d</i>e</b>"},
            {"crossing formats", "<b>a<i>[b</b>c]d</i>", "<b>a</b>bc|<i>d</i>"},
            {"a format that is never ended", "<b>a[b]c", "<b>a</b>b|<b>c"},
            {"within a link", "<b>a<a>b[c]d</a>e</b>", "<b>a</b><a><b>b</b>c|<b>d</b></a><b>e</b>"},
            {"over the border of two paragraphs", "<p><b>a[b</b></p><p><i>c]d</i></p>",
                "<p><b>a</b>b</p><p>c|<i>d</i></p>"},
            {"round two paragraphs", "<b><p>a</p><p>b[c]</p></b>",
                "<b><p>a</p></b><p><b>b</b>c|</p>"},
            {"round a table", "<b>a<table><tr><td>b</td><td>c[d]</td></tr></table>e</b>",
                "<b>a</b><table><tr><td><b>b</b></td><td><b>c</b>d|</td></tr></table><b>e</b>"},
            {"blanks that only tags kept apart", "[a <b> b</b>]", "a &nbsp;b|"},
            {"an '&' that only tags kept apart", "[&<b>lt;</b>]", "&amp;lt;|"},
        });
    test::expectEdits(removeFormats,
        {{"a link as a whole", "<b>a<a>b[c]d</a>e</b>", "<b>a</b><a>bc|d</a><b>e</b>"}},
        OutputRules(true));
}

} // namespace
} // namespace quillmere
