// Each operation of the core on each shape at rising sizes, named OPERATION/SHAPE/BYTES, with the
// true length as the counter `bytes`. A text that the operation refuses is measured up to there and
// labelled so. The script growth runs this and judges how times rise with sizes.

#include "bench_inputs.h"
#include "cli/core_session.h"
#include "document/changes/deck_changes.h"
#include "document/deck_store.h"
#include "document/design_text.h"
#include "document/design_to_wml.h"
#include "document/format_around_select.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/do_block.h"
#include "document/repair/format_nesting.h"
#include "document/repair/paragraphs.h"
#include "document/repair/radio_buttons.h"
#include "document/repair/transliteration.h"
#include "document/repair/wml_layout.h"
#include "document/text/failure.h"
#include "document/wml_to_design.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <span>

namespace quillmere::bench {

namespace {

constexpr std::size_t kSizes[] = {2000, 4000, 8000, 16000, 30000};
constexpr std::size_t kStandardSizes[] = {30000, 125000, 250000, 500000, 1000000};

using Step = std::function<void(std::string&, DocumentSession&)>;

struct Operation {
    const char* name;
    Stage stage; ///< of its input
    Step run;
};

void withoutSession(std::vector<Operation>& rows)
{
    const OutputRules rules;
    const auto add = [&](const char* name, Stage stage,
                         const std::function<void(std::string&)>& run) {
        rows.push_back({name, stage, [run](std::string& text, DocumentSession&) { run(text); }});
    };
    add("CleanDesignHtml", Stage::Design, [=](auto& text) { CleanDesignHtml(text, rules); });
    add("TransliterateGerman", Stage::Design,
        [=](auto& text) { TransliterateGerman(text, rules); });
    add("TakeDoBlock", Stage::Wml, [](auto& text) { (void)TakeDoBlock(text); });
    add("RepairNesting", Stage::Wml, RepairNesting);
    add("RepairFormatNesting", Stage::Design, RepairFormatNesting);
    add("WrapInParagraph", Stage::Design, [](auto& text) { WrapInParagraph(text, "<a", "</a"); });
    add("SplitAtParagraphs", Stage::Design,
        [](auto& text) { SplitAtParagraphs(text, "<b>", "</b>"); });
    add("InsertTemporaeryRadioButtons", Stage::Design,
        [](auto& text) { InsertTemporaeryRadioButtons(text); });
    add("DeleteAllTemporaeryRadioButtons", Stage::Design, DeleteAllTemporaeryRadioButtons);
    add("RepairParagraphs", Stage::Converted,
        [](auto& text) { RepairParagraphs(text.insert(0, "<card>").append("</card>")); });
    add("BreakWmlLines", Stage::Converted,
        [](auto& text) { BreakWmlLines(text.insert(0, "<wml>")); });
    add("RestoreWhitespace", Stage::Converted,
        [](auto& text) { RestoreWhitespace(text, std::string(text)); });
}

std::vector<Operation> textOperations()
{
    std::vector<Operation> rows;
    withoutSession(rows);
    rows.push_back({"WmlToDesign", Stage::Wml,
        [](auto& text, auto& session) { WmlToDesign(text, 0, session); }});
    rows.push_back({"DesignToWml", Stage::Cleaned,
        [](auto& text, auto& session) { DesignToWml(text, session); }});
    rows.push_back({"RepairFormatAroundSelect", Stage::Wml,
        [](auto& text, auto& session) { RepairFormatAroundSelect(text, session); }});
    return rows;
}

/// Runs `round` as often as the benchmark wants; a failure is part of what is measured.
void measure(benchmark::State& state, std::size_t size, const std::function<void()>& round)
{
    std::string refused;
    for ([[maybe_unused]] auto _ : state) {
        try {
            round();
        } catch (const RuntimeFailure& failure) {
            refused = failure.what();
        }
    }
    if (!refused.empty()) state.SetLabel("refused");
    state.counters["bytes"] = static_cast<double>(size);
}

void measureText(benchmark::State& state, const Operation& operation, const std::string& input)
{
    cli::CoreSession core(false);
    std::string text;
    measure(state, input.size(), [&] {
        text = input;
        operation.run(text, core.session);
        benchmark::DoNotOptimize(text.data());
    });
}

void load(cli::CoreSession& core, const std::string& deck)
{
    auto& files = core.workFiles;
    const auto name = files.createFile("Wml", ".wml");
    files.write(files.directory() + name, deck);
    LoadDeck(core.session, {"deck.wml", {}, name, files.directory()});
}

/// Where the deck cannot be loaded the benchmark is skipped.
bool isLoaded(benchmark::State& state, cli::CoreSession& core, const std::string& deck)
{
    try {
        load(core, deck);
        return true;
    } catch (const RuntimeFailure&) {
        state.SkipWithError("cannot be loaded");
        return false;
    }
}

void measureLoad(benchmark::State& state, const std::string& deck)
{
    measure(state, deck.size(), [&] {
        cli::CoreSession core(false);
        load(core, deck);
    });
}

void measureWrite(benchmark::State& state, const std::string& deck)
{
    cli::CoreSession core(false);
    if (!isLoaded(state, core, deck)) return;
    measure(state, deck.size(), [&] { WriteDeck(core.session); });
}

void measureChanges(benchmark::State& state, const std::string& deck)
{
    cli::CoreSession core(false);
    std::string written = deck;
    try {
        load(core, deck);
        WriteDeck(core.session);
        written = core.workFiles.read(core.session.deck.front().wmlFile);
    } catch (const RuntimeFailure&) {
        written.clear(); // then all is lost
    }
    measure(state, deck.size(), [&] { benchmark::DoNotOptimize(DeckChanges(deck, written)); });
}

void measureStandardLoad(benchmark::State& state, const std::string& deck)
{
    measure(state, deck.size(), [&] {
        cli::CoreSession core(true);
        load(core, deck);
    });
}

/// Writes with a word more in the first area and one less in the last one.
void measureStandardWrite(benchmark::State& state, const std::string& deck)
{
    cli::CoreSession core(true);
    if (!isLoaded(state, core, deck)) return;
    auto first = ReadDesignText(core.session, 0);
    WriteDesignText(core.session, 0, first.insert(first.rfind("</BODY>"), "<p>Neu</p>"));
    const auto area = areaCount(core.session.deck) - 1;
    auto last = ReadDesignText(core.session, area);
    WriteDesignText(core.session, area, last.erase(last.rfind(' '), 1));
    measure(state, deck.size(), [&] { WriteDeck(core.session); });
}

std::string times(std::size_t count, std::string_view piece)
{
    std::string text;
    text.reserve(count * piece.size());
    for (; count > 0; --count)
        text += piece;
    return text;
}

/// Writes a card of elements that nest as deep as it is long, with as many new ones put into the
/// innermost, and behind them ends of elements that are not open.
void measureNestedWrite(benchmark::State& state, std::size_t size)
{
    constexpr std::string_view kFrame = "<wml><card><p></p></card></wml>";
    const auto depth = size / std::string_view("<b></b><u></u></i>").size();
    auto deck = times(depth, "<b>").append("x").append(times(depth, "</b>"));
    cli::CoreSession core(true);
    load(core, std::string(kFrame).insert(kFrame.find("</p>"), deck));
    auto text = ReadDesignText(core.session, 0);
    text.insert(text.find("x</b>"), times(depth, "<u>").append(times(depth, "</i>")));
    WriteDesignText(core.session, 0, text);
    measure(state, size, [&] { WriteDeck(core.session); });
}

using DeckMeasure = void (*)(benchmark::State&, const std::string&);

struct DeckOperation {
    const char* name;
    DeckMeasure measure;
};

constexpr DeckOperation kDeckOperations[]
    = {{"LoadDeck", measureLoad}, {"WriteDeck", measureWrite}, {"DeckChanges", measureChanges}};
constexpr DeckOperation kStandardOperations[]
    = {{"StandardLoadDeck", measureStandardLoad}, {"StandardWriteDeck", measureStandardWrite}};

std::string benchmarkName(const char* operation, std::string_view shape, std::size_t size)
{
    std::string name = operation;
    return name.append("/").append(shape).append("/").append(std::to_string(size));
}

void registerDecks(std::span<const DeckOperation> operations, const Shape& shape, std::size_t size)
{
    for (const auto& operation : operations) {
        benchmark::RegisterBenchmark(benchmarkName(operation.name, shape.name, size).c_str(),
            [&operation, &shape, size](
                benchmark::State& state) { operation.measure(state, deckOf(shape, size)); });
    }
}

void registerAll(const Shape& shape, std::size_t size)
{
    static const auto operations = textOperations();
    for (const auto& operation : operations) {
        benchmark::RegisterBenchmark(benchmarkName(operation.name, shape.name, size).c_str(),
            [&operation, &shape, size](benchmark::State& state) {
                measureText(state, operation, inputOf(shape, operation.stage, size));
            });
    }
    registerDecks(kDeckOperations, shape, size);
}

void registerNestedWrite(std::size_t size)
{
    benchmark::RegisterBenchmark(benchmarkName("StandardWriteDeck", "nested", size).c_str(),
        [size](benchmark::State& state) { measureNestedWrite(state, size); });
}

} // namespace

} // namespace quillmere::bench

int main(int argc, char** argv)
{
    for (const auto& shape : quillmere::bench::shapes()) {
        for (const auto size : quillmere::bench::kSizes)
            quillmere::bench::registerAll(shape, size);
        for (const auto size : quillmere::bench::kStandardSizes)
            quillmere::bench::registerDecks(quillmere::bench::kStandardOperations, shape, size);
    }
    for (const auto size : quillmere::bench::kStandardSizes)
        quillmere::bench::registerNestedWrite(size);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
