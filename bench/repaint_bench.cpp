// How long the practice screen takes to paint itself anew at twice its size, with an exercise on it and explained.
// Needs no display.
#include "desktop/desktop.h"
#include "forms/practice/mama.h"

#include <QApplication>
#include <QImage>
#include <benchmark/benchmark.h>

using namespace cijferwerf;

namespace {

constexpr int scale = 2;

void repaint_practice_screen(benchmark::State& state) {
    desktop outside;
    formulieren forms(outside);
    forms.globalen.gekozen_pakket = booklet_set;
    forms.globalen.gekozen_onderdeel = "boekje01";
    mama& screen = forms.get<mama>();
    outside.run([&screen] {
        screen.open();
        screen.presentatielijst.selected = 0;
        screen.presentatielijst_click();
        screen.knop_click(screen.juiste_letter[0] - 'A' + 1);
        screen.uitleggeven_click();
    });
    form_page& page = *outside.page(screen);
    page.window()->resize(832 * scale, 520 * scale);
    QApplication::processEvents();
    QImage image(page.size(), QImage::Format_RGB32);
    for (auto _ : state) page.render(&image);
    state.counters["width"] = page.width();
    state.counters["height"] = page.height();
}
BENCHMARK(repaint_practice_screen)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    prepare_application();
    const QApplication application(argc, argv);
    dress_application();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
