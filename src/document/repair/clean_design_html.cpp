// The cleaning is a table of passes; each one leaves a text that the next one counts on. Their
// order is part of the result. Held by clean_passes_test.cpp and clean_passes_test.cpp.

#include "document/repair/clean_design_html.h"

#include "document/repair/clean_brackets.h"
#include "document/repair/clean_do_block.h"
#include "document/repair/clean_options.h"
#include "document/repair/clean_paragraphs.h"
#include "document/repair/clean_passes.h"
#include "document/repair/clean_tables.h"
#include "document/repair/format_nesting.h"
#include "document/repair/paragraphs.h"
#include "document/text/limits.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quillmere {
namespace {

struct TagPair {
    SearchKey open;
    SearchKey close;
};

// Pictures come twice: a link or list around one may have brought it a paragraph meanwhile.
constexpr TagPair kElementsInParagraphs[] = {
    {"<img", "</img"},
    {"<a", "</a"},
    {"<!--select", "<!--/select"},
    {"<table", "</table"},
    {"<img", "</img"},
    {"<strong", "</strong"},
    {"<small", "</small"},
    {"<b>", "</b>"},
    {"<em>", "</em>"},
    {"<i>", "</i>"},
    {"<u>", "</u>"},
};
constexpr TagPair kFormatsOfOneParagraph[] = {
    {"<big>", "</big>"},
    {"<small>", "</small>"},
    {"<i>", "</i>"},
    {"<b>", "</b>"},
    {"<u>", "</u>"},
};

void wrapElements(EditedText& text)
{
    for (const auto& pair : kElementsInParagraphs)
        WrapInParagraph(text, pair.open, pair.close);
}

void splitFormats(EditedText& text)
{
    for (const auto& pair : kFormatsOfOneParagraph)
        SplitAtParagraphs(text, pair.open, pair.close);
}

// An end moves for another format's end, so with the ends of one format only nothing does.
void nestFormats(EditedText& text)
{
    const auto hasEnd = [&text](const TagPair& pair) { return text.find(pair.close) != npos; };
    if (std::ranges::count_if(kFormatsOfOneParagraph, hasEnd) > 1) text.rework(RepairFormatNesting);
}

constexpr CleanPass kPasses[] = {
    {"broken do block", dropBrokenDoBlock},
    {"early option ends", dropEarlyOptionEnds},
    {"option pairs", completeOptions},
    {"select start", openSelect},
    {"select end", closeSelect},
    {"empty selects", dropEmptySelects},
    {"card end", closeCard},
    {"empty paragraphs", breakAtEmptyParagraphs},
    {"tables", settleTables},
    {"paragraph runs", mergeParagraphRuns},
    {"trailing paragraphs", dropTrailingParagraphs},
    {"plain paragraphs", mergePlainParagraphs},
    {"doubled paragraph ends", dropDoubledParagraphEnds},
    {"last paragraph", closeLastParagraph},
    {"card without paragraph", ensureParagraph},
    {"trailing text", wrapTrailingText},
    {"loose breaks", dropLooseBreaks},
    {"elements in paragraphs", wrapElements},
    {"formats of one paragraph", splitFormats},
    {"format nesting", nestFormats},
    {"doubled paragraph ends again", dropDoubledParagraphEnds},
    {"doubled brackets", thinOutBrackets},
};

} // namespace

std::span<const CleanPass> cleanPasses()
{
    return kPasses;
}

void CleanDesignHtml(std::string& text, const OutputRules& rules)
{
    requireAddressable(text);
    EditedText edited{std::string(text)};
    for (const auto& pass : kPasses) {
        pass.apply(edited);
        requireAddressableLength(edited.size());
    }
    auto cleaned = std::move(edited).take();
    TransliterateGerman(cleaned, rules);
    cutBlankText(cleaned);
    cutBlanksAheadOfTags(cleaned);
    text = std::move(cleaned);
}

} // namespace quillmere
