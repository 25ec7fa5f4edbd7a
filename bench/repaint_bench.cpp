// How long the practice screen takes to paint itself anew at twice its size, with an exercise on it and explained, and
// from a click on a title to the painted exercise.
// Needs no display.
#include "desktop/desktop.h"
#include "forms/practice/mama.h"

#include <QApplication>
#include <QImage>
#include <benchmark/benchmark.h>

using namespace cijferwerf;

namespace {

constexpr int scale = 2;

struct practice_screen {
    desktop outside;
    formulieren forms{outside};
    mama& screen = forms.get<mama>();
    QImage image;

    practice_screen() {
        forms.globalen.gekozen_pakket = booklet_set;
        forms.globalen.gekozen_onderdeel = "boekje01";
        outside.run([this] { screen.open(); });
        present(0);
        page().window()->resize(832 * scale, 520 * scale);
        QApplication::processEvents();
        image = QImage(page().size(), QImage::Format_RGB32);
    }
    form_page& page() { return *outside.page(screen); }
    void present(int title) {
        outside.run([this, title] {
            screen.presentatielijst.selected = title;
            screen.presentatielijst_click();
        });
    }
    void finish() {
        outside.run([this] { screen.knop_click(screen.juiste_letter[0] - 'A' + 1); });
        outside.run([this] { screen.uitleggeven_click(); });
    }
    void paint() { page().render(&image); }
};

void repaint_practice_screen(benchmark::State& state) {
    practice_screen shown;
    shown.finish();
    for (auto _ : state) shown.paint();
    state.counters["width"] = shown.image.width();
    state.counters["height"] = shown.image.height();
}
// From the click on a title to the exercise as it is painted.
void present_and_paint_an_exercise(benchmark::State& state) {
    practice_screen shown;
    const int titles = static_cast<int>(shown.screen.presentatielijst.items.size());
    for (int title = 0; auto _ : state) {
        state.PauseTiming();
        shown.finish();
        state.ResumeTiming();
        shown.present(title = (title + 1) % titles);
        shown.paint();
    }
}
BENCHMARK(present_and_paint_an_exercise)->Unit(benchmark::kMillisecond);
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
