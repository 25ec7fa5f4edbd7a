// Time: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the mistake that
// its feedback names.
#include "generators/gedeeld/kalender.h"

#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

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
const formula month = [](const reading& n) { return month_number(n.words[0]); };
const formula month_length = [](const reading& n) { return lent(n).in().dagen; };
const formula due = [](const reading& n) { return (lent(n) + 7 * static_cast<int>(n[2])).tekst(); };

formula offset(std::size_t city) {
    return [=](const reading& n) { return decimal(*(std::ranges::find(n.exercise.words, n.words[city]) + 1)); };
}
const formula hour_here = A + chosen(B, {0, 0, 12, 12}), hour_there = hour_here + D - C;
const formula hours_between = abs(D - C), earlier = lifted([](double x) { return x < 0; }, D - C);
// The time in the other city and so many hours, as a dial and the part of the day tell it.
formula there(int more) {
    return [=](const reading& n) {
        const int hour = static_cast<int>(hour_there.in(n) + more) % 24;
        const char* part = hour < 6 ? "'s nachts" : hour < 12 ? "'s morgens" : hour < 18 ? "'s middags" : "'s avonds";
        return std::to_string((hour + 11) % 12 + 1) + ":00 uur " + part;
    };
}

const formula units = by_variant({12, 7, 24, 60, 60});
const formula counter = [](const reading& n) { return decimal(n.exercise.words[1]); };
const formula grid = by_variant({300, 1300}), year = rounded(A / grid) * grid, parts = by_variant({12, 52});
const formula misread = by_variant({1200, 1300});
const formula played = by_variant({1, 1, 2, 2}), over = A - played * 60, finish = D * 60 + E + A;
const formula waited = (D - B) * 60 + E - C;
const formula to_school = (C - A) * 60 + D - B;
const formula journey = C * 60 + D * 15 + E, arrival = A * 60 + B + journey;

const exercise_rows time_and_dates([] {
    row(M_snel_06_04_click, 5, "| # (jaren|weken|dagen|uren|minuten) = ... {maanden|dagen|uren|minuten|seconden}?",
        counts(B - by_variant({0, 1, 2, 3, 4})), range({{2, 9}, {0, 4}, {0, 0}}), right(A * units),
        wrong("", A * units - 6, A * units - 4, A * units - 2, A * units + 2, A * units + 4, A * units + 6),
        explains(
            "Eén (jaar|week|dag|uur|minuut) bestaat uit # {maand|dag|u|minuten|sec}*hebben # {ja|we|da|u|mi}* # keer",
            B, units, A, A),
        ticks({9, 9, 15, 9, 9}));
    row(B_datum_06_04_click, 2, "| #  @  #", range({{10, 28}, {1950, 1999}}), range({{1, 9}, {1950, 1999}}),
        words({12}), right(in_figures("dmj")), wrong("de maand en de dag (verwisseld|door)", in_figures("mdj")),
        wrong("(jaar en de maand|maand en het jaar)", in_figures("djm")),
        wrong("(dag en het jaar|jaar en de dag)", in_figures("jmd")), explains("getal #, * jaartal #.", A, B));
    row(L_boeken_06_04_click, 3,
        "(Een meisje|Een jongen) neemt * voor {haar|hem} ingevuld * moet {zij|hij} * UITGELEEND: | # @ |*: | # weken",
        counts(month_length, month), range({{0, 1}, {1, 17}, {2, 3}, {28, 31}, {1, 11}}),
        range({{0, 1}, {4, 28}, {2, 4}, {30, 30}, {4, 11}}), range({{0, 1}, {5, 29}, {2, 4}, {31, 31}, {1, 10}}),
        right(due),
        tips("(mag het uitlenen duren|eerst dagen maken|in dagen omgezet)",
             "(bij de datum|nog in dezelfde|in de volgende)"));
    row(M_kilometers_06_04_click, 2, "gemiddeld ongeveer per ", counts(counter, A - year),
        range({{8970, 39030, 300}, {-30, 30}}), range({{16870, 39030, 60}, {-30, 30}}), right(year / parts),
        wrong("(een week|een maand) berekend", rounded(year / by_variant({52, 12}))),
        wrong("niet goed afgerond", (year - misread) / parts, (year + misread) / parts),
        wrong("(tien maanden|48 weken)", rounded(year / by_variant({10, 48}))));
    row(B_wedstrijd_06_04_click, 4, "totaal # minuten. * | @-(NOORD|OOST|ZUID|WEST) | @ – @ | @ # @ | aanvang #:# uur",
        counts(played, E - by_variant({0, 5, 0, 5})),
        range({{65, 174}, {0, 3}, {1, 31, 2}, {10, 20}, {0, 5}, {1, 2}, {0, 0}}), words({3, 24, 24, 7, 12}),
        right(finish), wrong("", finish - 60, finish - 40, finish - 10, finish + 10, finish + 40, finish + 60),
        explains("eerst # uur verder, dan kom je op #:# uur. *nog # ", played, D + played, E, over),
        tips("(te beginnen hoeveel|Reken eerst uit hoeveel) uur", "Tel vervolgens dat aantal"));
    row(L_wachten_06_04_click, 4,
        "@ gaat per vliegtuig naar @. * laat (hij|zij) de *lang moet $a wachten? | #:# | *| #:# | PIER",
        range({{0, 1}, {6, 16}, {5, 55, 3}, {8, 22}, {5, 55, 3}}), words({20, 20}),
        right(says("# uur+ # min", floor(waited / 60), waited - floor(waited / 60) * 60)),
        explains("vol met # minuten tot #:00*nog # uur en # min", 60 - C, B + 1, D - B - 1, E),
        tips("(Kijk op het horloge|Hoe laat is het|Lees het horloge|Begin met de tijd)", "het vertrek bij op"));
    row(M_naar_school_06_04_click, 4, "De wekker van @ loopt om #:# uur af. $a moet om #:# uur",
        counts(A - by_variant({7, 6, 7, 6})), range({{6, 7}, {10, 55}, {8, 8}, {15, 50}, {0, 0}}), words({10}),
        right(to_school), wrong("(60, niet 100|een uur 100) minuten", to_school + (C - A) * 40),
        wrong("een uurtje", to_school - 60, to_school + 60),
        wrong("(nog wat|een beetje)", to_school - 10, to_school - 5, to_school + 10),
        explains("om #:# uur af. * nog # minuten nodig. Dan is het #:00", A, B, 60 - B, A + 1),
        explains("De school begint om #:# uur* nog eens # minuten", C, D, D));
    row(M_trein_06_04_click, 4,
        "@ gaat om #:# uur per trein naar @. *duurt # uur en # kwartier. * # minuten vertraging. *| $b | $0:$1 |",
        counts(D - by_variant({1, 2, 3, 3}), E - by_variant({0, 0, 0, 14})),
        range({{6, 17}, {0, 59, 2}, {1, 3}, {1, 3}, {3, 29}, {0, 0}, {3, 15}}), words({20, 12}), right(arrival),
        wrong("", arrival - E, arrival - 2 * E, arrival - D * 15, arrival - 60, arrival + D * 10, arrival + E,
              arrival + 60),
        explains("reistijd is # uur + # kwartier + # minuten*is # uur en # minuten", C, D, E, floor(journey / 60),
                 journey - floor(journey / 60) * 60),
        tips("(eerst de reistijd uitrekenen|Bereken eerst de reistijd)", "daarbij de vertraging niet"));
    row(Z_wereldtijden_06_04_click, 4,
        "Als het in @ #:00 uur ('s nachts|'s morgens|'s middags|'s avonds) is, hoe laat is het dan in @?",
        counts(offset(0), offset(1)), range({{1, 11}, {0, 3}, {-8, -1}, {-8, -1}}),
        range({{1, 11}, {0, 3}, {-8, -1}, {1, 10}}), range({{1, 11}, {0, 3}, {1, 10}, {-8, -1}}),
        range({{1, 11}, {0, 3}, {1, 10}, {1, 10}}), words({22, 22}), right(there(0)),
        wrong("een uur", there(-1), there(1)), wrong("een paar uurtjes", there(-3), there(-2), there(2), there(3)),
        wrong("deel van de dag", there(12)),
        explains("'t in $a # uur (later|vroeger) is dan in Londen. In $b is het # uur (later|vroeger) dan", abs(C),
                 lifted([](double x) { return x < 0; }, C), abs(D), lifted([](double x) { return x < 0; }, D)),
        explains(
            "In $b is het dus # uur (later|vroeger) dan in $a. In $a is het *#:00 uur (+|-) # uur geeft #:00*In $b is het dus",
            hours_between, earlier, hour_here, earlier, hours_between, hour_there));
});

} // namespace
} // namespace cijferwerf
