// Time: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the mistake that
// its feedback names.
#include "generators/gedeeld/kalender.h"

#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// What a table says for the sub-variant.
formula by_variant(std::vector<double> values) {
    return [=](const reading& n) { return values.at(static_cast<std::size_t>(n.variant() - 1)); };
}

int month_number(const std::string& name) {
    return static_cast<int>(std::ranges::find(maanden, std::string_view(name), &maand::naam) - maanden.begin()) + 1;
}

// The date of birth in this order of its parts.
formula in_figures(const char* order) {
    return [=](const reading& n) {
        std::string figures;
        for (const char part : std::string(order)) {
            const int number = part == 'm' ? month_number(n.words[0]) : static_cast<int>(n[part == 'd' ? 0 : 1]);
            figures += std::string(figures.empty() ? "" : "-") + (number < 10 ? "0" : "") + std::to_string(number);
        }
        return figures;
    };
}

datum lent(const reading& n) { return {static_cast<int>(n[1]), month_number(n.words[0])}; }
int month(const reading& n) { return month_number(n.words[0]); }
double month_length(const reading& n) { return lent(n).in().dagen; }
std::string due(const reading& n) { return (lent(n) + 7 * static_cast<int>(n[2])).tekst(); }

void check_board(const reading& n) {
    std::vector<double> times;
    for (std::size_t i = 4; i < n.exercise.words.size(); i += 3) times.push_back(*number_of(n.exercise.words[i]));
    EXPECT_TRUE(std::ranges::is_sorted(times) && times.size() == 4);
    EXPECT_EQ(number_of(*(std::ranges::find(n.exercise.words, n.words[1]) + 1)), n[0] * 60 + n[1]);
}

formula offset(std::size_t city) {
    return [=](const reading& n) { return decimal(*(std::ranges::find(n.exercise.words, n.words[city]) + 1)); };
}
int hour_here(const reading& n) { return static_cast<int>(n[0]) + (n[1] >= 2 ? 12 : 0); }
int hour_there(const reading& n) { return hour_here(n) + static_cast<int>(n[3] - n[2]); }
int hours_between(const reading& n) { return std::abs(hour_there(n) - hour_here(n)); }
int earlier(const reading& n) { return hour_there(n) < hour_here(n); }
// The time in the other city and so many hours, as a dial and the part of the day tell it.
formula there(int more) {
    return [=](const reading& n) {
        const int hour = (hour_there(n) + more) % 24;
        const char* part = hour < 6 ? "'s nachts" : hour < 12 ? "'s morgens" : hour < 18 ? "'s middags" : "'s avonds";
        return std::to_string((hour + 11) % 12 + 1) + ":00 uur " + part;
    };
}
void check_cities(const reading& n) {
    const std::set clear{1, 2, 3, 4, 7, 8, 9, 10, 11, 13, 14, 15, 16, 17, 19, 20, 21, 22, 23};
    EXPECT_TRUE(clear.contains(hour_here(n)) && clear.contains(hour_there(n)) && n.exercise.words.size() == 49);
    const auto told =
        find_pattern(n.exercise.explanation, "'t in @ # uur (later|vroeger) is dan in Londen. In @ is het # "
                                             "uur (later|vroeger) dan in *. In @ is het dus * dan in @. In "
                                             "@ is het * In @ is het dus");
    const std::string &here = n.words[0], &far = n.words[1];
    ASSERT_TRUE(told) << n.exercise.explanation;
    EXPECT_EQ(told->words, (std::vector{here, far, far, here, here, far}));
    EXPECT_TRUE(std::ranges::equal(told->numbers,
                                   std::array{std::abs(n[2]), n[2] < 0 ? 1.0 : 0, std::abs(n[3]), n[3] < 0 ? 1.0 : 0}));
}

const formula units = by_variant({12, 7, 24, 60, 60});
const formula counter = [](const reading& n) {
    std::string digits = n.exercise.words[1];
    std::erase(digits, ' ');
    return decimal(digits);
};
const formula grid = by_variant({300, 1300}), year = rounded(v[0] / grid) * grid, parts = by_variant({12, 52});
const formula misread = by_variant({1200, 1300});
const formula played = by_variant({1, 1, 2, 2}), over = v[0] - played * 60, finish = v[3] * 60 + v[4] + v[0];
const formula waited = (v[3] - v[1]) * 60 + v[4] - v[2];
const formula to_school = (v[2] - v[0]) * 60 + v[3] - v[1];
const formula arrival = v[0] * 60 + v[1] + v[2] * 60 + v[3] * 15 + v[4];
formula whole_hours(const formula& minutes) {
    return [=](const reading& n) { return std::floor(std::get<double>(minutes(n)) / 60); };
}

const exercise_rows time_and_dates([] {
    row(M_snel_06_04_click, 5, "| # (jaren|weken|dagen|uren|minuten) = ... {maanden|dagen|uren|minuten|seconden}?",
        range({{2, 9}, {0, 0}}), range({{2, 9}, {1, 1}}), range({{2, 9}, {2, 2}}), range({{2, 9}, {3, 3}}),
        range({{2, 9}, {4, 4}}), right(v[0] * units),
        wrong("", v[0] * units - 6, v[0] * units - 4, v[0] * units - 2, v[0] * units + 2, v[0] * units + 4,
              v[0] * units + 6),
        explains("Eén (jaar|week|dag|uur|minuut) bestaat uit # {maanden|dagen|uren|minuten|seconden}.", v[1], units),
        explains("hebben # (jaren|weken|dagen|uren|minuten) # keer zo veel {maanden|dagen|uren|minuten|seconden}.",
                 v[0], v[1], v[0]),
        ticks({9, 9, 15, 9, 9}));
    row(B_datum_06_04_click, 2, "| #  @  #", range({{10, 28}, {1950, 1999}}), range({{1, 9}, {1950, 1999}}),
        words({12}), right(in_figures("dmj")), wrong("de maand en de dag (verwisseld|door)", in_figures("mdj")),
        wrong("(jaar en de maand|maand en het jaar)", in_figures("djm")),
        wrong("(dag en het jaar|jaar en de dag)", in_figures("jmd")), explains("getal #, * jaartal #.", v[0], v[1]));
    row(L_boeken_06_04_click, 3,
        "(Een meisje|Een jongen) neemt * voor {haar|hem} ingevuld is. Op welke datum moet {zij de boeken|hij ze} "
        "weer * UITGELEEND: | # @ | *uitleentermijn: | # weken",
        counts(month_length, month), range({{0, 1}, {1, 17}, {2, 3}, {28, 31}, {1, 11}}),
        range({{0, 1}, {4, 28}, {2, 4}, {30, 30}, {4, 11}}), range({{0, 1}, {5, 29}, {2, 4}, {31, 31}, {1, 10}}),
        right(due), explains("# weken hebben # dagen. * nog # - # = # dagen.", v[2], v[2] * 7, v[3], v[1], v[3] - v[1]),
        explains("dagen. (Zij moet|Hij moet|De volgende)", [](const reading& n) { return n.variant() > 1 ? 2 : n[0]; }),
        explains("Dus na # weken *# dagen", v[2], v[2] * 7),
        tips("(mag het uitlenen duren|eerst dagen maken|in dagen omgezet)",
             "(bij de datum|nog in dezelfde|in de volgende)"));
    row(M_kilometers_06_04_click, 2, "gemiddeld ongeveer per ", counts(counter, v[0] - year),
        range({{8970, 39030, 300}, {-30, 30}}), range({{16870, 39030, 60}, {-30, 30}}), right(year / parts),
        wrong("(een week|een maand) berekend", rounded(year / by_variant({52, 12}))),
        wrong("niet goed afgerond", (year - misread) / parts, (year + misread) / parts),
        wrong("(tien maanden|48 weken)", rounded(year / by_variant({10, 48}))),
        explains("Het getal # ligt vlak bij het getal #. * (twaalf|52) * # : # = ", v[0], year, by_variant({0, 1}),
                 year, parts));
    row(B_wedstrijd_06_04_click, 4, "totaal # minuten. * | @-(NOORD|OOST|ZUID|WEST) | @ – @ | @ # @ | aanvang #:# uur",
        counts(played, v[4] - by_variant({0, 5, 0, 5})),
        range({{65, 174}, {0, 3}, {1, 31, 2}, {10, 20}, {0, 5}, {1, 2}, {0, 0}}), words({3, 24, 24, 7, 12}),
        right(finish), wrong("", finish - 60, finish - 40, finish - 10, finish + 10, finish + 40, finish + 60),
        explains("duurt # minuten. * zeggen: # uur en # minuten", v[0], played, over),
        explains("eerst # uur verder, dan kom je op #:# uur. *nog # ", played, v[3] + played, v[4], over),
        tips("(te beginnen hoeveel|Reken eerst uit hoeveel) uur", "Tel vervolgens dat aantal"));
    row(L_wachten_06_04_click, 4,
        "@ gaat per vliegtuig naar @. * laat (hij|zij) de vertrekhal * Hoe lang moet @ wachten? | #:# | * | "
        "VERTREKTIJD: | #:# | PIER",
        range({{0, 1}, {6, 16}, {5, 55, 3}, {8, 22}, {5, 55, 3}}), words({20, 20, 20}),
        right(says("# uur+ # min", whole_hours(waited), waited - whole_hours(waited) * 60)),
        explains("horloge is #:# uur. * met # minuten tot #:00 uur.", v[1], v[2], 60 - v[2], v[1] + 1),
        explains("naar #:# uur nog # uur en # minuten verder. # + #", v[3], v[4], v[3] - v[1] - 1, v[4], 60 - v[2],
                 v[4]),
        tips("(Kijk op het horloge|Hoe laat is het|Lees het horloge|Begin met de tijd)", "het vertrek bij op"),
        [](const reading& n) { EXPECT_EQ(n[4] < n[2], n.variant() % 2 == 0) << "minutes that are borrowed"; });
    row(M_naar_school_06_04_click, 4, "De wekker van @ loopt om #:# uur af. @ moet om #:# uur op school zijn.",
        counts(v[0] - by_variant({7, 6, 7, 6})), range({{6, 7}, {10, 55}, {8, 8}, {15, 50}, {0, 0}}), words({10, 10}),
        right(to_school), wrong("(60, niet 100|een uur 100) minuten", to_school + (v[2] - v[0]) * 40),
        wrong("een uurtje", to_school - 60, to_school + 60),
        wrong("(nog wat|een beetje)", to_school - 10, to_school - 5, to_school + 10),
        explains("om #:# uur af. * nog # minuten nodig. Dan is het #:00", v[0], v[1], 60 - v[1], v[0] + 1),
        explains("De school begint om #:# uur* nog eens # minuten", v[2], v[3], v[3]));
    row(M_trein_06_04_click, 4,
        "@ gaat om #:# uur per trein naar @. De treinreis zelf duurt # uur en # kwartier. De trein heeft echter "
        "onderweg # minuten vertraging.",
        counts(v[3] - by_variant({1, 2, 3, 3}), v[4] - by_variant({0, 0, 0, 14})),
        range({{6, 17}, {0, 59, 2}, {1, 3}, {1, 3}, {3, 29}, {0, 0}, {3, 15}}), words({20, 12}), right(arrival),
        wrong("", arrival - v[4], arrival - 2 * v[4], arrival - v[3] * 15, arrival - 60, arrival + v[3] * 10,
              arrival + v[4], arrival + 60),
        explains("reistijd is # uur + # kwartier + # minuten.", v[2], v[3], v[4]),
        explains("Dat is dus # + # + # =", v[2] * 60, v[3] * 15, v[4]), explains("tel je op bij #:# uur", v[0], v[1]),
        tips("(eerst de reistijd uitrekenen|Bereken eerst de reistijd)", "daarbij de vertraging niet"), check_board);
    row(Z_wereldtijden_06_04_click, 4,
        "Als het in @ #:00 uur ('s nachts|'s morgens|'s middags|'s avonds) is, hoe laat is het dan in @?",
        counts(offset(0), offset(1)), range({{1, 11}, {0, 3}, {-8, -1}, {-8, -1}}),
        range({{1, 11}, {0, 3}, {-8, -1}, {1, 10}}), range({{1, 11}, {0, 3}, {1, 10}, {-8, -1}}),
        range({{1, 11}, {0, 3}, {1, 10}, {1, 10}}), words({22, 22}), right(there(0)),
        wrong("een uur", there(-1), there(1)), wrong("een paar uurtjes", there(-3), there(-2), there(2), there(3)),
        wrong("deel van de dag", there(12)),
        explains("is het dus # uur (later|vroeger) dan in", hours_between, earlier),
        explains("#:00 uur (+|-) # uur geeft #:00", hour_here, earlier, hours_between, hour_there), check_cities);
});

} // namespace
} // namespace cijferwerf
