// Overlay documents of the largest keyboard: opened, saved, written as a PDF, looked at before printing.
#include "bench/Ratio.h"
#include "bench/WidgetMain.h"
#include "overlay/DocumentEditor.h"
#include "overlay/DocumentFile.h"
#include "overlay/KeyboardView.h"
#include "overlay/OverlayPreview.h"
#include "overlay/SheetView.h"
#include "overlay/WholeWords.h"
#include "tests/support/RecordingBoxes.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using namespace norvane::overlay;
using bench::require;

/// Every cell has a text, and neighbours differ in colour and font.
Document fullDocument()
{
    Document document(Keyboard::Velmar);
    for (int cell = 0; cell < document.cellCount(); ++cell) {
        document.cell(cell).text = u"Text %1"_s.arg(cell);
        document.cell(cell).background = {cell * 30000};
        document.cell(cell).font.isItalic = cell % 3 == 0;
        document.cell(cell).font.size = 7 + static_cast<float>(cell % 4) / 2;
    }
    return document;
}

void saveAndOpen(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.Velmar"_s);
    const Document document = fullDocument();
    Document read(Keyboard::Velmar);
    double opening = 0;
    for (auto _ : state) {
        state.SetIterationTime(bench::secondsOf([&] { writeDocument(path, document); }));
        opening += bench::secondsOf([&] { readDocument(path, read); });
    }
    require(read == document, "what was written is read");
    state.counters["open_ms"] = opening / static_cast<double>(state.iterations()) * 1e3;
}

void writePdf(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.pdf"_s);
    const Document document = fullDocument();
    for (auto _ : state)
        writeSheetPdf(document, {}, path);
    require(QFileInfo(path).size() > 5000, "the sheet was written");
    state.counters["kilobytes"] = static_cast<double>(QFileInfo(path).size()) / 1000;
}

/// All cells of the keyboard; every key becomes shorter.
void setInWholeWords(benchmark::State& state)
{
    Document document(Keyboard::Velmar);
    for (int cell = 0; cell < document.cellCount(); ++cell)
        document.cell(cell).text = u"Longer Than Its Line %1"_s.arg(cell);
    std::vector<int> keys(document.layout().keys().size());
    std::iota(keys.begin(), keys.end(), 0);
    const ProgrammeTexts programme(keys.size(), {u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s, u"Five"_s});
    for (auto _ : state) {
        Document changed = document;
        const auto result = setWholeWords(changed, keys, programme, usualSmallestSize);
        require(result.unfit.size() > 100, "three lines of four words are too long");
    }
}

/// A step of Shift and an arrow, or of a drag: from half of the keys to all of them and back, with the
/// painting of what changes.
void selectKeys(benchmark::State& state)
{
    DocumentEditor editor(Keyboard::Velmar);
    editor.change(u"Fill"_s, [](Document& document) { document = fullDocument(); });
    KeyboardView view(editor, nullptr);
    view.resize(1200, 900);
    view.show();
    QApplication::processEvents();
    bool isLarge = false;
    for (auto _ : state) {
        isLarge = !isLarge;
        view.select([isLarge](KeySelection& keys) { keys.selectBlock(0, isLarge ? 168 : 90); });
        QApplication::processEvents();
    }
    require(!view.selection().isEmpty(), "keys are selected");
}

/// From the creation of the dialog to its first paint.
void openPreview(benchmark::State& state)
{
    const Document document = fullDocument();
    test::RecordingBoxes boxes;
    const paper::PrinterCorrections corrections((QString()));
    for (auto _ : state) {
        OverlayPreview preview(document, {u"Office"_s, {}, {}}, {}, corrections, boxes);
        benchmark::DoNotOptimize(preview.grab());
    }
}

/// A picture at so many pixels to the millimetre, when the view is moved.
void movePreview(benchmark::State& state)
{
    const Document document = fullDocument();
    SheetView view(document, nullptr);
    view.setTarget({u"Office"_s, {}, {}});
    view.resize(1200, 900);
    view.setPixelsPerMillimetre(static_cast<double>(state.range(0)));
    QImage picture(view.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        view.viewport()->render(&picture);
}

} // namespace

BENCHMARK(saveAndOpen)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writePdf)->Unit(benchmark::kMillisecond);
BENCHMARK(setInWholeWords)->Unit(benchmark::kMillisecond);
BENCHMARK(selectKeys)->Unit(benchmark::kMillisecond);
BENCHMARK(openPreview)->Unit(benchmark::kMillisecond);
BENCHMARK(movePreview)->Arg(1)->Arg(4)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
