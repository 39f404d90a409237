// One row for each operation; the session behind it has no area, so that pictures are not looked
// at. Held by tests/cli/cli_test.cpp.

#include "cli/commands.h"
#include "cli/core_session.h"
#include "cli/terminal.h"
#include "document/design_to_wml.h"
#include "document/format_around_select.h"
#include "document/platform/files.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/do_block.h"
#include "document/repair/format_nesting.h"
#include "document/repair/paragraphs.h"
#include "document/repair/transliteration.h"
#include "document/repair/wml_layout.h"
#include "document/text/limits.h"
#include "document/wml_to_design.h"

#include <algorithm>

namespace quillmere::cli {

namespace {

struct Input {
    std::string text;
    const std::vector<std::string>& operands; // behind the operation's name
    const Arguments& arguments;
    DocumentSession& session;
};

struct Step {
    std::string_view name;
    std::string_view operands; // as the help names them
    std::size_t operandCount;
    void (*apply)(Input& input);
    bool wantsPristine = false; // --pristine
};

constexpr std::size_t kMaxPristineBytes = 32 * (kMaxTextLength + 1); // as decks are read

constexpr Step kSteps[] = {
    {"WmlToDesign", "", 0, [](Input& in) { WmlToDesign(in.text, 0, in.session); }},
    {"DesignToWml", "", 0, [](Input& in) { DesignToWml(in.text, in.session); }},
    {"CleanDesignHtml", "", 0, [](Input& in) { CleanDesignHtml(in.text, in.session.output); }},
    {"TakeDoBlock", "", 0,
        [](Input& in) {
            const std::string block = TakeDoBlock(in.text);
            in.text = block + "\n----\n" + in.text;
        }},
    {"RepairNesting", "", 0, [](Input& in) { RepairNesting(in.text); }},
    {"RepairFormatAroundSelect", "", 0,
        [](Input& in) { RepairFormatAroundSelect(in.text, in.session); }},
    {"RepairParagraphs", "", 0, [](Input& in) { RepairParagraphs(in.text); }},
    {"RepairFormatNesting", "", 0, [](Input& in) { RepairFormatNesting(in.text); }},
    {"BreakWmlLines", "", 0, [](Input& in) { BreakWmlLines(in.text); }},
    {"TransliterateGerman", "", 0,
        [](Input& in) { TransliterateGerman(in.text, in.session.output); }},
    {"WrapInParagraph", "ANFANG ENDE", 2,
        [](Input& in) { WrapInParagraph(in.text, in.operands[0], in.operands[1]); }},
    {"SplitAtParagraphs", "ANFANG ENDE", 2,
        [](Input& in) { SplitAtParagraphs(in.text, in.operands[0], in.operands[1]); }},
    {"RestoreWhitespace", "--pristine DATEI", 0,
        [](Input& in) {
            RestoreWhitespace(in.text, readFile(*in.arguments.pristine, kMaxPristineBytes));
        },
        true},
};

const Step& stepNamed(const std::string& name)
{
    const auto* const found = std::find_if(
        std::begin(kSteps), std::end(kSteps), [&](const Step& step) { return step.name == name; });
    if (found == std::end(kSteps))
        throw BadArguments{
            "Unbekannte Operation: „" + name + "“. Alle nennt „quillmere-cli step“."};
    return *found;
}

std::string usage(const Step& step)
{
    const std::string name(step.name);
    return step.operands.empty() ? name : name + " " + std::string(step.operands);
}

void checkOperands(const Step& step, const Arguments& arguments, std::size_t operandCount)
{
    if (operandCount == step.operandCount && step.wantsPristine == arguments.pristine.has_value())
        return;
    throw BadArguments{"Aufruf: „quillmere-cli step " + usage(step) + "“."};
}

std::string stepOperations()
{
    std::string text;
    for (const Step& step : kSteps)
        text += usage(step) + "\n";
    return text;
}

} // namespace

ExitStatus runStep(const Arguments& arguments)
{
    if (arguments.operands.empty()) {
        print(stepOperations());
        return ExitStatus::Done;
    }
    const Step& step = stepNamed(arguments.operands.front());
    const std::vector<std::string> operands(
        arguments.operands.begin() + 1, arguments.operands.end());
    checkOperands(step, arguments, operands.size());
    CoreSession core(arguments.standardOutput);
    Input input{readStandardInput(kMaxTextLength), operands, arguments, core.session};
    step.apply(input);
    printBytes(input.text);
    return ExitStatus::Done;
}

} // namespace quillmere::cli
