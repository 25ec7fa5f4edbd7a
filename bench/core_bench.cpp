// How fast exercises are made and presented, without a screen; and, for the ratio, how long it takes to build the
// strings of one record and do nothing else.
#include "forms/practice/mama.h"

#include "tests/support/fake_outside.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

using namespace cijferwerf;

constexpr float fixed_clock = 36'000;

// The generators that leave a question.
std::vector<oefening_id> finished() {
    std::vector<oefening_id> all;
    oefeningen maker([] { return fixed_clock; });
    for (std::size_t i = 0; i < alle_oefeningen().size(); ++i) {
        maker.maak(static_cast<oefening_id>(i));
        if (std::ranges::any_of(maker.vraagregels, [](const std::string& line) { return line != leeg; }))
            all.push_back(static_cast<oefening_id>(i));
    }
    return all;
}

void make_exercises(benchmark::State& state) {
    const std::vector<oefening_id> generators = finished();
    oefeningen maker([] { return fixed_clock; });
    std::size_t next = 0;
    for (auto _ : state) {
        maker.maak(generators[next]);
        benchmark::DoNotOptimize(maker.antwoord_1.data());
        next = (next + 1) % generators.size();
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["generators"] = static_cast<double>(generators.size());
}
BENCHMARK(make_exercises);

void present_exercises(benchmark::State& state) {
    fake_outside outside;
    formulieren forms(outside);
    forms.globalen.gekozen_pakket = booklet_set;
    forms.globalen.gekozen_onderdeel = "boekje01";
    mama& screen = forms.get<mama>();
    screen.open();
    const int titles = static_cast<int>(screen.presentatielijst.items.size());
    screen.presentatielijst.selected = 0;
    for (auto _ : state) {
        screen.presentatielijst_click();
        screen.presentatielijst.selected = (screen.presentatielijst.selected + 1) % titles;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(present_exercises);

// Eight arrays of seven lines of which half hold a sentence, four answers, and three texts on a picture.
void reference_record_of_strings(benchmark::State& state) {
    struct record {
        std::array<tekstregels, 8> texts;
        std::array<std::string, 4> answers;
        std::vector<std::string> picture;
    } made;
    long long number = 0;
    for (auto _ : state) {
        for (tekstregels& lines : made.texts) {
            lines.fill(std::string(leeg));
            for (std::size_t i = 0; i < 3; ++i)
                lines[i] = "Hoeveel is dat ongeveer als het er " + std::to_string(++number) + " zijn?";
        }
        for (std::string& answer : made.answers) answer = " " + std::to_string(number * 7);
        made.picture.clear();
        for (int i = 0; i < 3; ++i) made.picture.push_back(std::to_string(number) + " % van " + std::to_string(i));
        benchmark::DoNotOptimize(made.picture.data());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(reference_record_of_strings);

} // namespace

BENCHMARK_MAIN();
