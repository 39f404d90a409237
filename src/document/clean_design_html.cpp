// The cleaning is a table of passes; each one leaves a text that the next one counts on. Their
// order is part of the result. Held by clean_passes_test.cpp and clean_design_html_test.cpp.

#include "document/clean_design_html.h"

#include "document/clean_brackets.h"
#include "document/clean_do_block.h"
#include "document/clean_options.h"
#include "document/clean_paragraphs.h"
#include "document/clean_passes.h"
#include "document/clean_tables.h"
#include "document/format_nesting.h"
#include "document/limits.h"
#include "document/paragraphs.h"

#include <utility>

namespace quillmere {
namespace {

struct TagPair {
    std::string_view open;
    std::string_view close;
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

void wrapElements(std::string& text)
{
    for (const auto& [open, close] : kElementsInParagraphs)
        WrapInParagraph(text, open, close);
}

void splitFormats(std::string& text)
{
    for (const auto& [open, close] : kFormatsOfOneParagraph)
        SplitAtParagraphs(text, open, close);
}

template <void (*kPass)(EditedText&)> void edit(std::string& text)
{
    EditedText edited(std::move(text));
    kPass(edited);
    text = std::move(edited).take();
}

constexpr CleanPass kPasses[] = {
    {"broken do block", edit<dropBrokenDoBlock>},
    {"early option ends", edit<dropEarlyOptionEnds>},
    {"option pairs", edit<completeOptions>},
    {"select start", edit<openSelect>},
    {"select end", edit<closeSelect>},
    {"empty selects", edit<dropEmptySelects>},
    {"card end", edit<closeCard>},
    {"empty paragraphs", edit<breakAtEmptyParagraphs>},
    {"tables", edit<settleTables>},
    {"paragraph runs", edit<mergeParagraphRuns>},
    {"trailing paragraphs", dropTrailingParagraphs},
    {"plain paragraphs", edit<mergePlainParagraphs>},
    {"doubled paragraph ends", edit<dropDoubledParagraphEnds>},
    {"last paragraph", edit<closeLastParagraph>},
    {"card without paragraph", edit<ensureParagraph>},
    {"trailing text", edit<wrapTrailingText>},
    {"loose breaks", edit<dropLooseBreaks>},
    {"elements in paragraphs", wrapElements},
    {"formats of one paragraph", splitFormats},
    {"format nesting", RepairFormatNesting},
    {"doubled paragraph ends again", edit<dropDoubledParagraphEnds>},
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
    auto cleaned = text;
    for (const auto& pass : kPasses) {
        pass.apply(cleaned);
        requireAddressable(cleaned);
    }
    TransliterateGerman(cleaned, rules);
    cutBlankText(cleaned);
    cutBlanksAheadOfTags(cleaned);
    text = std::move(cleaned);
}

} // namespace quillmere
