// The cleaning is a table of passes; each one leaves a text that the next one counts on. Their
// order is part of the result. A pass whose faults the text has not is left out.
// Held by clean_passes_test.cpp.

#include "document/repair/clean_design_html.h"

#include "document/repair/clean_blanks.h"
#include "document/repair/clean_brackets.h"
#include "document/repair/clean_card_text.h"
#include "document/repair/clean_do_block.h"
#include "document/repair/clean_options.h"
#include "document/repair/clean_paragraph_merge.h"
#include "document/repair/clean_paragraphs.h"
#include "document/repair/clean_passes.h"
#include "document/repair/clean_tables.h"
#include "document/repair/format_nesting.h"
#include "document/repair/format_pairs.h"
#include "document/repair/paragraphs.h"
#include "document/repair/transliteration.h"
#include "document/text/limits.h"

#include <string>
#include <utility>

namespace quillmere {
namespace {

struct ElementKeys {
    SearchKey open;
    SearchKey close;
};

// Pictures come twice: a link or list around one may have brought it a paragraph meanwhile.
constexpr ElementKeys kElementsInParagraphs[] = {
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

void wrapElements(EditedText& text)
{
    for (const auto& pair : kElementsInParagraphs)
        WrapInParagraph(text, pair.open, pair.close);
}

void splitFormats(EditedText& text)
{
    for (const TagPair& pair : kFormatPairs)
        SplitAtParagraphs(text, pair.open, pair.close);
}

void nestFormats(EditedText& text)
{
    text.rework(RepairFormatNesting);
}

using namespace clean_fault;

constexpr CleanPass kPasses[] = {
    {"broken do block", dropBrokenDoBlock, kDoBlock},
    {"early option ends", dropEarlyOptionEnds, kLooseOptionEnd},
    {"option pairs", completeOptions, kOptionInOption | kLooseOptionEnd},
    {"select start", openSelect, kLooseOption},
    {"select end", closeSelect, kLooseOption | kOpenList},
    {"empty selects", dropEmptySelects, kEmptyList | kOpenList},
    {"card end", closeCard, kAny},
    {"empty paragraphs", breakAtEmptyParagraphs, kEmptyParagraph},
    {"tables", settleTables, kTable | kLooseRow},
    {"paragraph runs", mergeParagraphRuns, kParagraphRun | kOpenParagraph},
    {"trailing paragraphs", dropTrailingParagraphs, kTrailing | kBehindDoBlock},
    {"plain paragraphs", mergePlainParagraphs, kPlainNeighbours},
    {"doubled paragraph ends", dropDoubledParagraphEnds, kDoubledEnd},
    {"last paragraph", closeLastParagraph, kOpenParagraph},
    {"card without paragraph", ensureParagraph, kNoParagraph},
    {"trailing text", wrapTrailingText, kAny},
    {"loose breaks", dropLooseBreaks, kLooseBreak},
    {"elements in paragraphs", wrapElements, kLooseElement},
    {"formats of one paragraph", splitFormats, kCrossingFormat | kEmptyFormat | kOverlap},
    {"format nesting", nestFormats, kOverlap},
    {"doubled paragraph ends again", dropDoubledParagraphEnds, kDoubledEnd},
    {"doubled brackets", thinOutBrackets, kAny},
};

void applyPasses(EditedText& text)
{
    CleanFaults faults = 0;
    auto knownAt = npos; // how many changes the text had then
    for (const auto& pass : kPasses) {
        if (pass.mends != kAny && knownAt != text.changes()) {
            faults = findCleanFaults(text.tags());
            knownAt = text.changes();
        }
        if (pass.mends != kAny && (faults & pass.mends) == 0) continue;
        pass.apply(text);
        requireAddressableLength(text.size());
    }
}

} // namespace

std::span<const CleanPass> cleanPasses()
{
    return kPasses;
}

void CleanDesignHtml(std::string& text, const OutputRules& rules)
{
    requireAddressable(text);
    EditedText edited{std::string(text)};
    applyPasses(edited);
    auto cleaned = std::move(edited).take();
    TransliterateGerman(cleaned, rules);
    cutBlanksAheadOfTags(cleaned);
    text = std::move(cleaned);
}

} // namespace quillmere
