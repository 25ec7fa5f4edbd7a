// A family's test as a table: a row tells what an exercise draws and how its answers follow from that, and at least 840
// exercises (up to 30,000, until all that the row names has occurred) are held against it. What no row can say -
// clocks, graphs - is a function in the row's check.
//
//     const exercise_rows percentages([] {
//         row(L_voetbal_01_08_click, 5, "zitten # mensen. Hiervan is # % supporter", range({3000, 12000}, {55, 94}),
//             right(A * (100 - B) / 100), wrong("AANTAL berekenen", 100 - B),
//             wrong("THUIS", A * B / 100), explains("1 % van alle toeschouwers gelijk aan #", A / 100),
//             tips("Reken eerst het percentage", "Neem dan 1 %"));
//     });
//
// that is: the exercise, its number of sub-variants, what is read, and parts (exercise_row explains them). Patterns are
// those of pattern.h: "#" reads a number, "(een|twee)" a choice as 0 or 1, "@" a word, "$0" stands for a number that
// was read before. A, B, C, ... are the numbers that `reads` finds, in order, then those of `counts`. A formula is an
// expression in them, or a lambda [](const reading& n) { return n[0] ...; } that returns a number or a text; where the
// answers are words, such as colours, it may tell what stands behind them in the picture. says("# : #", B, A) is an
// answer that looks like that. Sub-variants that differ have rows of their own with `of`. Write the numbers of a table
// by hand and compute another way than the generator does.
#pragma once

#include "tests/support/pattern.h"
#include "tests/support/seen.h"
#include "tests/support/sums.h"

#include <cmath>
#include <functional>
#include <map>
#include <numeric>
#include <set>
#include <variant>

namespace cijferwerf {

using enum oefening_id;

// What `reads` found in one exercise.
struct reading {
    const seen& exercise;
    std::vector<double> numbers;
    std::vector<std::string> words;
    std::string option = {}; // the answer that it is asked about, or what stands behind it in the picture,
    int place = 0;           // and which button has it

    double operator[](std::size_t i) const { return numbers.at(i); }
    int variant() const { return exercise.made.variant; }
};
template<class Operation>
std::vector<Operation> all(const reading& n) {
    return all<Operation>(n.exercise.made.plaatje);
}

// How a wrong answer lies to the right one, where no formula tells its value.
enum class lies { below, above, elsewhere };

// A text that looks like a pattern and has these numbers.
struct told_numbers {
    std::string pattern;
    std::vector<double> numbers;
};

// A value (compared with the number of the answer, whatever its unit), the text of an answer, how it lies, or whether
// it may be the answer.
using outcome = std::variant<double, std::string, told_numbers, lies, bool>;

// How an outcome follows from what was read: A * (100 - B) / 100, 7, "geel", lies::below, or a function of the
// reading that returns a number or a text.
class formula {
public:
    template<class Number>
    requires std::is_arithmetic_v<Number> formula(Number number)
        : get_([number](const reading&) -> outcome { return static_cast<double>(number); }) {}
    formula(const char* text) : get_([text](const reading&) -> outcome { return std::string(text); }) {}
    formula(lies how) : get_([how](const reading&) -> outcome { return how; }) {}
    template<class Function>
    requires std::is_invocable_v<Function, const reading&> formula(Function function)
        : get_([function](const reading& of) -> outcome {
              if constexpr (std::is_arithmetic_v<decltype(function(of))> &&
                            !std::is_same_v<decltype(function(of)), bool>)
                  return static_cast<double>(function(of));
              else
                  return function(of);
          }) {}

    outcome operator()(const reading& of) const { return get_(of); }
    double in(const reading& of) const {
        const outcome found = get_(of);
        const auto* yes = std::get_if<bool>(&found);
        return yes != nullptr ? *yes : std::get<double>(found);
    }

private:
    std::function<outcome(const reading&)> get_;
};

// A function of numbers, of what formulas make, or without them as a function of formulas.
template<class Function, class... Formulas>
formula lifted(Function function, const Formulas&... values) {
    return [=](const reading& of) { return function(formula(values).in(of)...); };
}
template<class Function>
auto lifted(Function function) {
    return [=](const auto&... values) { return lifted(function, values...); };
}
inline bool same(double a, double b) { return std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)}); }
inline formula operator+(const formula& a, const formula& b) { return lifted(std::plus<>(), a, b); }
inline formula operator-(const formula& a, const formula& b) { return lifted(std::minus<>(), a, b); }
inline formula operator*(const formula& a, const formula& b) { return lifted(std::multiplies<>(), a, b); }
inline formula operator/(const formula& a, const formula& b) { return lifted(std::divides<>(), a, b); }
// Of an answer: whether it may be it.
inline formula operator<(const formula& a, const formula& b) { return lifted(std::less<>(), a, b); }
inline formula operator==(const formula& a, const formula& b) { return lifted(same, a, b); }

// An answer like says("# : #", B, A).
template<class... Formulas>
formula says(const char* pattern, const Formulas&... numbers) {
    return [=](const reading& of) -> outcome { return told_numbers{pattern, {formula(numbers).in(of)...}}; };
}
// How many filled boxes of a colour the picture has.
inline formula blocks(kleur colour) {
    return [=](const reading& n) {
        return std::ranges::count(n.exercise.blocks, colour, [](const box_op& box) { return box.pen.colour; });
    };
}
// Half up, to so many decimals.
double rounded(double value, int decimals = 0);
inline formula rounded(const formula& a, int decimals = 0) {
    return lifted([=](double x) { return rounded(x, decimals); }, a);
}
inline const auto floor = lifted([](double x) { return std::floor(x + 1e-9); });
inline const auto abs = lifted([](double x) { return std::abs(x); });
inline const auto power = lifted([](double base, double exponent) { return std::round(std::pow(base, exponent)); });
// The largest whole number by which both can be divided.
inline const auto divisor = lifted([](double a, double b) { return std::gcd(std::lround(a), std::lround(b)); });
inline const auto smallest = lifted([](auto... each) { return std::min({each...}); });
inline const auto largest = lifted([](auto... each) { return std::max({each...}); });
// The one of which the number is that, counted from 0; the one of the sub-variant.
inline formula chosen(const formula& which, std::vector<formula> from) {
    return [=](const reading& of) { return from.at(static_cast<std::size_t>(which.in(of)))(of); };
}
inline formula by_variant(std::vector<formula> from) {
    return [=](const reading& of) { return from.at(static_cast<std::size_t>(of.variant() - 1))(of); };
}
// Where the only one of this value stands, counted from 1; else 0.
formula place_of(const formula& value, std::vector<formula> among);

// What an answer is worth, and its button: for the numbers of its feedback, or to say whether it may be the answer.
inline const formula answer = [](const reading& of) { return number_of(of.option).value(); };
inline const formula button = [](const reading& of) { return of.place; };
inline formula at_button(const formula& which) { return button == which; }

// The numbers that were read, in order.
inline formula read_number(std::size_t i) {
    return [i](const reading& of) { return of[i]; };
}
inline const formula A = read_number(0), B = read_number(1), C = read_number(2), D = read_number(3), E = read_number(4),
                     F = read_number(5), G = read_number(6), H = read_number(7), I = read_number(8), J = read_number(9);

// Smallest and largest of a number; both must be drawn, or (where that is too rare) a number this near to each.
struct span {
    double smallest, largest, near = 0;
};
inline constexpr span any{-1e99, 1e99, 2e99};

// A piece of the feedback ("": none is given) and the answer beside which it must stand. In it, and in what the
// explanation must show, $a, $b, ... are the words that `reads` found, and $= is the right answer.
struct mistake {
    std::string piece;
    formula value;
    std::vector<formula> numbers = {}; // of the piece, in order
};

// A pattern that the explanation, in words or as drawn, must show, and its numbers in order.
struct statement {
    std::string pattern;
    std::vector<formula> numbers;
};

struct exercise_row {
    oefening_id id;
    // How many sub-variants there are.
    int variants = 1;
    // Those that this row is about, where others have rows of their own.
    std::vector<int> of = {};
    // Looked for in the question and the words of the picture: "question | word | word | ...".
    std::string reads = {};
    // More numbers, of which no text tells: they go on in v behind those that `reads` finds.
    std::vector<formula> counts = {};
    // Of each number: once for all the row's sub-variants, or for each of them.
    std::vector<std::vector<span>> ranges = {};
    // How many different words each @ shows.
    std::vector<std::size_t> words = {};
    formula right = lies::elsewhere;
    // Every wrong answer is one of these, and every one of these occurs.
    std::vector<mistake> wrong = {};
    std::vector<statement> explains = {};
    // A piece that the first tip alone has ("": the second begins with all of the first), and one that the second has.
    std::vector<const char*> tips = {};
    // The time limit: none, one for all sub-variants, or one for each.
    std::vector<int> ticks = {};
    bool calculator = false;
    std::function<void(const reading&)> check = nullptr;
};

// The parts of a row, as exercise_row explains them; a function of the reading is its check.
using row_part = std::function<void(exercise_row&)>;

inline std::vector<formula> listed(std::vector<formula> all) { return all; }
template<class... Formulas>
std::vector<formula> listed(const Formulas&... each) {
    return {formula(each)...};
}
template<class... Formulas>
row_part wrong(const std::string& piece, const Formulas&... values) {
    return [piece, all = listed(values...)](exercise_row& row) {
        for (const formula& value : all) row.wrong.push_back({piece, value});
    };
}
// The same with the numbers of the piece, such as `answer`.
inline row_part wrong(const statement& told, const formula& value) {
    return [=](exercise_row& row) { row.wrong.push_back({told.pattern, value, told.numbers}); };
}
inline row_part wrong(std::vector<mistake> all) {
    return [=](exercise_row& row) { row.wrong.insert(row.wrong.end(), all.begin(), all.end()); };
}
template<class... Formulas>
row_part explains(const std::string& pattern, const Formulas&... numbers) {
    return [pattern, all = listed(numbers...)](exercise_row& row) { row.explains.push_back({pattern, all}); };
}
template<class... Formulas>
row_part counts(const Formulas&... values) {
    return [all = listed(values...)](exercise_row& row) { row.counts = all; };
}
inline row_part right(const formula& value) {
    return [=](exercise_row& row) { row.right = value; };
}
// For all the row's sub-variants together, or one of these for each.
inline row_part range(std::vector<span> spans) {
    return [=](exercise_row& row) { row.ranges.push_back(spans); };
}
inline row_part of(std::vector<int> variants) {
    return [=](exercise_row& row) { row.of = variants; };
}
inline row_part words(std::vector<std::size_t> different) {
    return [=](exercise_row& row) { row.words = different; };
}
inline row_part tips(const char* first, const char* second) {
    return [=](exercise_row& row) { row.tips = {first, second}; };
}
inline row_part ticks(std::vector<int> limits) {
    return [=](exercise_row& row) { row.ticks = limits; };
}
inline const row_part with_calculator = [](exercise_row& row) { row.calculator = true; };

void add_test(const exercise_row& row);
// Adds the test of a row to the program.
template<class... Parts>
void row(oefening_id id, int variants, std::string reads, const Parts&... parts) {
    exercise_row made{.id = id, .variants = variants, .reads = std::move(reads)};
    const auto add = [&made](const auto& part) {
        if constexpr (std::is_invocable_v<decltype(part), exercise_row&>)
            part(made);
        else
            made.check = part;
    };
    (add(parts), ...);
    add_test(made);
}

// Adds its rows before the program starts.
struct exercise_rows {
    explicit exercise_rows(void (*add)()) { add(); }
};

} // namespace cijferwerf
