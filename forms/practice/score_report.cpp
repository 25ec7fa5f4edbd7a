#include "forms/practice/score_report.h"

#include "runtime/number_text.h"

#include <algorithm>
#include <cctype>

namespace cijferwerf {

namespace {

constexpr double large = 20;
constexpr double middle = 15;
constexpr double small = 9;
constexpr int value_column = 30;
constexpr int indent = 4;
constexpr int attempt_columns[GLOBALEN::attempts]{30, 35, 40, 45};

std::string two_digits(int number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

std::string date_and_time(const local_time& at) {
    return two_digits(at.day) + "/" + two_digits(at.month) + "/" + two_digits(at.year) + " " + two_digits(at.hour) +
           ":" + two_digits(at.minute);
}

// The headings have no other letters than those of the alphabet.
std::string capitals(std::string_view text) {
    std::string made(text);
    std::ranges::transform(made, made.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return made;
}

} // namespace

report score_report(const GLOBALEN& score, std::string_view heading, const local_time& at) {
    report made{program_name + " - score", {}};
    const auto line = [&made](double size, std::vector<report_cell> cells) {
        made.lines.push_back({size, std::move(cells)});
    };
    const auto total = [&line](int column, std::string text, int count) {
        line(small, {{column, std::move(text)}, {value_column, regel(count)}});
    };

    line(large, {{0, score.gekozen_pakket}});
    line(large, {});
    line(large, {});
    line(small, {{0, "Datum: " + date_and_time(at) + " u"}});
    line(middle, {{0, capitals(heading)}});
    line(small, {});

    total(0, "Aantal opgaven gedaan", score.aantalvragengedaan);
    total(0, "bij eerste poging goed", score.goed_poging_1);
    total(indent, "tweede poging goed", score.goed_poging_2);
    total(indent, "derde poging goed", score.goed_poging_3);
    total(indent, "vierde poging goed", score.goed_poging_4);

    line(small, {});
    line(middle, {{0, "Analyse"}});
    line(small, {});
    line(small, {{0, "titel opgave    goed bij..."}, {30, "1e"}, {35, "2e"}, {40, "3e"}, {45, "4e"}});
    for (std::size_t slot = 0; slot < score.titellijst.size(); ++slot) {
        const auto& counts = score.scoretabel[slot];
        const bool counted = std::ranges::any_of(counts, [](int count) { return count != 0; });
        if (score.titellijst[slot].empty() || !counted) continue;
        std::vector<report_cell> cells{{0, score.titellijst[slot]}};
        for (std::size_t attempt = 0; attempt < counts.size(); ++attempt)
            cells.push_back({attempt_columns[attempt], regel(kaal(counts[attempt]))});
        line(small, std::move(cells));
    }
    return made;
}

} // namespace cijferwerf
