#include "editor/elements/link_edit.h"
#include "editor/elements/option_edit.h"
#include "editor/elements/paragraph_alignment.h"
#include "editor/elements/table_edit.h"
#include "editor/elements/text_formats.h"
#include "support/standard_edits.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

// The edits of the dialogs on areas of decks that are opened without loss.

namespace quillmere {
namespace {

const OutputRules kRules(true);

struct Operation {
    const char* name;
    std::function<std::string(const std::string& text, SourceRange marked)> run;
};

int positionOf(SourceRange marked)
{
    return static_cast<int>(marked.begin) + 1;
}

const std::array kOperations{
    Operation{"InsertTable",
        [](const auto& text, auto marked) {
            return InsertTable(text, positionOf(marked), {"T", "L", 2, 2}, kRules).text;
        }},
    Operation{"SetOption",
        [](const auto& text, auto marked) {
            return SetOption(text, positionOf(marked), false, {"Neu", "#k1"}, kRules).text;
        }},
    Operation{"SetLink",
        [](const auto& text, auto marked) {
            return SetLink(text, positionOf(marked), {"Neu", "#k1"}, kRules).text;
        }},
    Operation{"alignLines",
        [](const auto& text, auto marked) {
            return alignLines(text, marked, Alignment::Center, kRules).text;
        }},
    Operation{"formatText",
        [](const auto& text, auto marked) {
            TextFormats bold;
            bold.bold = true;
            return formatText(text, marked, bold, kRules).text;
        }},
};

test::StandardEdit tried(test::SmallRandom& random, const std::string& text)
{
    const auto& operation = kOperations.at(random.below(kOperations.size()));
    const auto begin = text.find('>', text.find("<BODY")) + 1;
    const auto place = begin + random.below(text.rfind("</BODY>") - begin + 1);
    const SourceRange marked{place, place + random.below(text.size() - place)};
    return {operation.name, operation.run(text, marked)};
}

TEST(StandardElementEdits, LeaveDecksWellFormedAndValid)
{
    test::expectGoodDecks(1000, 4, tried);
}

} // namespace
} // namespace quillmere
