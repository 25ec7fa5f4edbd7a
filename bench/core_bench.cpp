// How fast exercises are made and presented, without a screen, against how fast the strings of one record are built and
// nothing else is done. All run in turn, several times; the last line is the ratio of the medians, and the exit status
// is 1 when it is below what is demanded.
#include "forms/practice/mama.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>

namespace {

using namespace cijferwerf;

constexpr float fixed_clock = 36'000;
constexpr double least_ratio = 0.65; // of make_exercises to reference_record_of_strings

// A front end with nothing behind it.
class nowhere : public outside {
public:
    void show(form&) override {}
    void unload(form&) override {}
    void ask(form&, message_box, std::function<void(box_answer)>) override {}
    print_result print(const report&) override { return {}; }
    float seconds_since_midnight() const override { return fixed_clock; }
    local_time now() const override { return {}; }
    void end() override {}
};

void make_exercises(benchmark::State& state) {
    const std::size_t generators = alle_oefeningen().size();
    oefeningen maker([] { return fixed_clock; });
    std::size_t next = 0;
    for (auto _ : state) {
        maker.maak(static_cast<oefening_id>(next));
        benchmark::DoNotOptimize(maker.antwoord_1);
        next = (next + 1) % generators;
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["generators"] = static_cast<double>(generators);
}
BENCHMARK(make_exercises);

void present_exercises(benchmark::State& state) {
    nowhere outside;
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
        std::array<std::array<std::string, 7>, 8> texts;
        std::array<std::string, 4> answers;
        std::vector<std::string> picture;
    } made;
    long long number = 0;
    for (auto _ : state) {
        for (auto& lines : made.texts) {
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

// Also keeps the medians, to tell the ratio of two.
class reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                per_second_[run.run_name.function_name] = run.counters.at("items_per_second");
    }
    double ratio(const std::string& of, const std::string& to) { return per_second_[of] / per_second_[to]; }

private:
    std::map<std::string, double> per_second_;
};

} // namespace

int main(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string defaults[]{"--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
                           "--benchmark_display_aggregates_only=true", "--benchmark_min_time=0.2"};
    for (std::string& option : defaults) arguments.insert(arguments.begin() + 1, option.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    reporter seen;
    benchmark::RunSpecifiedBenchmarks(&seen);
    const double ratio = seen.ratio("make_exercises", "reference_record_of_strings");
    std::printf("make_exercises / reference_record_of_strings: %.2f (at least %.2f)\n", ratio, least_ratio);
    return ratio < least_ratio ? 1 : 0;
}
