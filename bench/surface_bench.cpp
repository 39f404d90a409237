// What a person at the surface waits for, named OPERATION/SHAPE/BYTES, on a widget that is shown
// and laid out: a key up to the changed document (ahead of the painting), loading, saving, hit
// tests. Beside each stands the same text in a plain QTextEdit, and the part of it that is no
// widget's. The script surface runs this and holds it against the limits.

#include "document/platform/memory_work_files.h"
#include "document/text/text_lines.h"
#include "editor/design_surface.h"
#include "editor/page/hit_test.h"
#include "editor/page/page_difference.h"
#include "editor/page/page_edits.h"
#include "editor/page/page_places.h"
#include "surface_inputs.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>

#include <functional>
#include <memory>

namespace quillmere::bench {

namespace {

constexpr std::size_t kSizes[] = {4000, 8000, 16000, 30000};
constexpr std::size_t kLongSizes[] = {30000, 60000, 125000, 250000, 500000, 1000000};
constexpr AreaShape kShapes[]
    = {AreaShape::Page, AreaShape::Table, AreaShape::Cells, AreaShape::Text};
constexpr const char* kFile = "Wml0.htm";

/// Those that lose nothing where it has an atom.
OutputRules rulesOf(const std::string& text)
{
    return OutputRules(text.find("<!--#") != std::string::npos);
}

/// A surface that shows an area.
struct Shown {
    MemoryWorkFiles files;
    DesignSurface surface{files};

    explicit Shown(const std::string& text)
    {
        files.write(kFile, text);
        surface.setRules(rulesOf(text));
        surface.resize(400, 600);
        surface.show();
        surface.LoadURL(kFile);
        QApplication::processEvents();
    }
};

using Round = std::function<void()>;
using Prepare = Round (*)(const std::string&);

/// A place in the middle of the block that lies at `share` of the page.
PagePlace placeWithin(const SurfacePage& page, double share)
{
    auto block = static_cast<std::size_t>(share * static_cast<double>(page.blocks.size() - 1));
    while (itemCount(page.blocks[block]) == 0 && block > 0)
        --block;
    return {block, itemCount(page.blocks[block]) / 2};
}

void press(QWidget& widget, int key, const QString& text)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &down);
}

/// A letter and a Backspace in turn, so that the text stays as long as it is.
template <int percent> Round keyPress(const std::string& text)
{
    const auto shown = std::make_shared<Shown>(text);
    auto& surface = shown->surface;
    surface.setCaretOffset(offsetAt(surface.page(), placeWithin(surface.page(), percent / 100.0)));
    return [shown, typed = false]() mutable {
        typed = !typed;
        press(shown->surface, typed ? Qt::Key_X : Qt::Key_Backspace, typed ? "x" : "");
    };
}

/// The same with the painting of what changed.
Round keyPressPainted(const std::string& text)
{
    return [press = keyPress<50>(text)] {
        press();
        QApplication::processEvents();
    };
}

/// The same without a widget.
template <int percent> Round keyPressPage(const std::string& text)
{
    const auto page = std::make_shared<SurfacePage>(readSurfacePage(text, rulesOf(text)));
    return [page, place = placeWithin(*page, percent / 100.0)] {
        const auto edit = typeText(*page, place, place, u"x");
        const auto wanted = readSurfacePage(edited(page->text, edit, page->rules), page->rules);
        benchmark::DoNotOptimize(differenceOf(*page, wanted));
    };
}

Round load(const std::string& text)
{
    const auto shown = std::make_shared<Shown>(text);
    return [shown] { shown->surface.LoadURL(kFile); };
}

Round loadPage(const std::string& text)
{
    return [text] { benchmark::DoNotOptimize(readSurfacePage(text, rulesOf(text))); };
}

Round plainSetHtml(const std::string& text)
{
    const auto plain = std::make_shared<QTextEdit>();
    plain->resize(400, 600);
    plain->show();
    QApplication::processEvents();
    return [plain, html = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()))] {
        plain->setHtml(html);
    };
}

/// Saving, and the offset of each place of the page.
Round saveWithMap(const std::string& text)
{
    const auto shown = std::make_shared<Shown>(text);
    return [shown] {
        shown->surface.SaveDocument(kFile);
        const auto& page = shown->surface.page();
        std::size_t sum = 0;
        for (std::size_t block = 0; block < page.blocks.size(); ++block)
            for (std::size_t offset = 0; offset <= itemCount(page.blocks[block]); ++offset)
                sum += offsetAt(page, {block, offset});
        benchmark::DoNotOptimize(sum);
    };
}

Round plainToHtml(const std::string& text)
{
    const auto plain = std::make_shared<QTextEdit>();
    plain->setHtml(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
    return [plain] { benchmark::DoNotOptimize(plain->toHtml()); };
}

/// What a double click asks for, without the save ahead of it.
Round hitTest(const std::string& text)
{
    const auto shown = std::make_shared<Shown>(text);
    auto& surface = shown->surface;
    surface.setCaretOffset(offsetAt(surface.page(), placeWithin(surface.page(), 1)));
    return [shown] {
        const auto saved = joinLines(shown->files.read(kFile));
        const auto selection = shown->surface.selection();
        HitTester tester;
        auto hit = tester.HitTest("<!--option", "<!--/option", saved, selection, true);
        for (const char* name : {"a", "table", "img"}) {
            const auto start = std::string("<") + name;
            hit = tester.HitTest(start, std::string("</") + name, saved, selection, false);
        }
        benchmark::DoNotOptimize(ValidInsertPosition(hit.position - 1, saved, selection.limit));
        benchmark::DoNotOptimize(IsInsideTable(saved, hit.position, selection.limit));
    };
}

struct Operation {
    const char* name;
    Prepare prepare;
    bool isOfLongAreas = false;
};

constexpr Operation kOperations[] = {
    {"KeyPressFirst", keyPress<0>, true},
    {"KeyPressMiddle", keyPress<50>, true},
    {"KeyPressLast", keyPress<100>, true},
    {"KeyPressPainted", keyPressPainted},
    {"KeyPressPage", keyPressPage<50>, true},
    {"Load", load, true},
    {"LoadPage", loadPage, true},
    {"PlainSetHtml", plainSetHtml},
    {"SaveWithMap", saveWithMap, true},
    {"PlainToHtml", plainToHtml},
    {"HitTest", hitTest, true},
};

void measure(benchmark::State& state, const Operation& operation, const std::string& text)
{
    const auto round = operation.prepare(text);
    for ([[maybe_unused]] auto _ : state)
        round();
    state.counters["bytes"] = static_cast<double>(text.size());
}

void registerAll(const Operation& operation, AreaShape shape, std::size_t size)
{
    std::string name = operation.name;
    name.append("/").append(nameOf(shape)).append("/").append(std::to_string(size));
    benchmark::RegisterBenchmark(name.c_str(), [&operation, shape, size](benchmark::State& state) {
        measure(state, operation, areaOf(shape, size));
    });
}

} // namespace

} // namespace quillmere::bench

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    for (const auto& operation : quillmere::bench::kOperations)
        for (const auto shape : quillmere::bench::kShapes)
            for (const auto size : quillmere::bench::kSizes)
                quillmere::bench::registerAll(operation, shape, size);
    for (const auto& operation : quillmere::bench::kOperations)
        for (const auto size : quillmere::bench::kLongSizes)
            if (operation.isOfLongAreas)
                quillmere::bench::registerAll(operation, quillmere::bench::AreaShape::Long, size);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
