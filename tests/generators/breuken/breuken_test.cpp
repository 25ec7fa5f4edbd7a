// Fractions: what they draw, their answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "tests/support/exercise_rows.h"
#include "tests/support/ink.h"

namespace cijferwerf {
namespace {

formula common(const formula& a, const formula& b) { return a * b / divisor(a, b); }

// Right and wrong alike, so that the right one is not the only one that cannot be made simpler.
void check_simplest_form(const reading& n) {
    for (const std::string& answer : n.exercise.answers())
        if (const auto part = find_pattern(answer, "#/#")) {
            EXPECT_EQ(std::gcd(std::lround(part->numbers[0]), std::lround(part->numbers[1])), 1) << answer;
        }
}

// The explanation goes on with the sum, worked out step by step, below the question on the board.
void check_worked_line(const reading& n) {
    const seen& e = n.exercise;
    const std::vector<std::string> rows = rows_of(explained(e.made));
    EXPECT_TRUE(rows.back().ends_with("= " + e.right)) << rows.back();
    for (int i = 1; i <= 4; ++i) {
        const std::string told = i == e.right_place() ? "" : e.feedback(i);
        if (told.find("elijknamig") != std::string::npos) continue;
        const auto part = find_pattern(e.answer(i), "#/#").value().numbers;
        EXPECT_EQ(part[0] > part[1], told.find("geen hele") != std::string::npos) << told;
        const bool can_be_simpler = std::gcd(std::lround(part[0]), std::lround(part[1])) > 1;
        EXPECT_EQ(can_be_simpler, told.find("niet vereenvoudigd") != std::string::npos) << told;
    }
}

// One arrow alone points between the right tenths, and nothing but its place tells it from the others.
void check_arrows(const reading& n) {
    int zero = 0, length = 0;
    std::map<kleur, int> points; // where each colour's arrow points
    for (const line_op& line : all<line_op>(n))
        if (line.to.x - line.from.x > length) length = line.to.x - (zero = line.from.x);
    for (const polygon_op& arrow : all<polygon_op>(n))
        if (arrow.filled) points[arrow.pen.colour] = std::ranges::min_element(arrow.corners, {}, &point::y)->x;
    const std::map<std::string, kleur> colours{{"geel", geel}, {"rood", rood}, {"wit", wit}, {"zwart", zwart}};
    std::set<int> stretches;
    for (const auto& [colour, x] : points) stretches.insert((x - zero) * 10 / length);
    EXPECT_EQ(stretches.size(), 4U) << "each in a stretch of its own";
    EXPECT_LE(std::abs(points[colours.at(n.exercise.right)] - zero - n[0] / n[1] * length), 1);
    EXPECT_FALSE(same(std::round(n[0] * 10 / n[1]), n[0] * 10 / n[1])) << "a tenth itself lies between none";
}

// The four on the board, and which of them is asked.
const formula green = B / C, white = D / E, yellow = F / G, red = H / I;
const formula extreme = chosen(A, {largest(green, white, yellow, red), smallest(green, white, yellow, red)});
const formula asked = place_of(extreme, {green, white, yellow, red}) - 1;

// The places of the marks on the segment, and of B among them.
formula marks(bool up_to_B) {
    return [=](const reading& n) {
        std::set<int> places;
        for (const line_op& line : all<line_op>(n))
            if (line.from.y < 1000) places.insert({line.from.x, line.to.x});
        const text_op& B = n.exercise.texts[1];
        const double until = up_to_B ? B.x : drawing::inner_width;
        return std::ranges::count_if(places, [&](int x) { return x < until; }) - (up_to_B ? 0 : 1);
    };
}
// ---- shortening ----

// The numerator and denominator of A/B in its simplest form, and by what a child divides too little.
const formula by = divisor(A, B), top = A / by, foot = B / by;
const formula too_small = lifted([](double x) { return std::fmod(x, 2) == 0 ? 2 : 3; }, by);

// Of the square.
const formula yellow_part = [](const reading& n) {
    double filled = 0;
    for (const box_op& box : n.exercise.blocks)
        if (box.pen.colour == geel) filled += box.width * box.height;
    return filled / n.exercise.blocks[0].width / n.exercise.blocks[0].height;
};

// ---- mixed numbers ----

const formula a = A + B / C, b = D + E / F;

// The numbers whose fractions the sum has, and by what the first numerator and second denominator, or the first
// denominator and second numerator, can be divided; of a division the second number is turned over.
formula cancelled(bool first, bool dividing) {
    const formula over = dividing ? F : D * F + E, under = dividing ? D * F + E : F; // of the second
    return first ? divisor(A * C + B, under) : divisor(C, over);
}
std::vector<mistake> slips(bool dividing) {
    const formula outcome = dividing ? a / b : a * b;
    const formula under = dividing ? D * F + E : F;
    std::vector<mistake> all{{"alleen de eerste opgeschreven", outcome * under},
                             {"alleen de tweede opgeschreven", outcome * C},
                             {"streepbreuk van het eerste", dividing ? A / b : A * b},
                             {"streepbreuk van het tweede", dividing ? a / D : a * D}};
    for (const bool first : {true, false}) {
        all.push_back({"alleen een noemer gedeeld", outcome * cancelled(first, dividing)});
        all.push_back({"alleen een teller gedeeld", outcome / cancelled(first, dividing)});
    }
    return all;
}

// What is struck out in red and what is written beside it differ by a factor that both rows lose alike.
void check_strokes(const reading& n) {
    const drawing drawn = explained(n.exercise.made);
    std::vector<ink> words = visible_words(drawn);
    std::erase_if(words, [](const ink& word) { return word.top < 1000; });
    std::array<double, 2> lost{1, 1}; // by the numerators, and by the denominators
    for (const box_op& stroke : all<box_op>(drawn)) {
        if (stroke.height != 1 || stroke.pen.colour != rood) continue;
        const auto number = [&](bool in_red, double reach) {
            const auto found = std::ranges::find_if(words, [&](const ink& word) {
                return (word.colour == rood) == in_red && word.left > stroke.x - 15 &&
                       word.middle() < stroke.x + stroke.width && word.top < stroke.y + reach &&
                       word.bottom > stroke.y - reach;
            });
            return found == words.end() ? 0 : decimal(found->word);
        };
        lost.at(stroke.y < 1541 ? 0 : 1) *= number(false, 0) / number(true, 200);
    }
    EXPECT_TRUE(same(lost[0], lost[1]) && same(lost[0], std::round(lost[0])) && lost[0] > 1) << lost[0] << lost[1];
}

// Two numbers of which one interval of tenths or hundredths, so many steps from the right one, lies between.
const formula scale = by_variant({10, 100}), below = floor(A * scale / B);
formula interval(int away) { return says("# en #", (below + away) / scale, (below + away + 1) / scale); }

const char* const unfinished = "(niet vereenvoudigd|geen hele uitgehaald)";
const formula finished_part = A / B;
const formula left_over = divisor((B / C - E / F) * G, G); // what the difference of fractions can be divided by
const formula numerator = A / C, denominator = 100 / C;    // of a percentage
const formula glued = 10 * D + E;                          // 14 of 1/4
const formula over = D / E, all_of_it = A + B / C;
const formula first_prize = A / B, second_prize = C / D, part_left = 1 - first_prize - second_prize;

formula children(const formula& word) { return chosen(word, {2, 3, 4, 5, 7, 9, 11}); }

void completing(oefening_id id) {
    row(id, 9, "| # | # | # | - | = | # | # | ..", range({{1, 5}, {1, 11}, {2, 12}, {1, 23}, {2, 12}}),
        right(all_of_it - over),
        wrong("", A - over, all_of_it + over, all_of_it - over - 1, all_of_it - over + 1,
              A - floor(over) + abs(B / C - over + floor(over)), abs(B / C - over + floor(over))),
        explains("getal # de breuk &. Tel daar die & *Dan krijg je &. Om daar & *moet je er & van aftrekken", A, A,
                 B / C, all_of_it, over, all_of_it - over),
        tips("Eerste stap: maak van die # een breuk", "Derde stap"));
}

const exercise_rows fractions([] {
    row(B_chocolade_03_03_click, 14, "Er moeten # repen over (twee|drie|vier|vijf|zeven|negen|elf) kinderen",
        of({1, 3, 5, 7, 9, 11, 13}), counts(children(B), blocks(donkerrood) - A),
        range({{2, 12}, {0, 6}, {2, 11}, {0, 0}}), right(A / C), wrong("slechts één reep", 1 / C),
        wrong("verwisseld", C / A), wrong("opgeteld", A / (A + C)),
        explains("moet # repen over # kind*in # gelijke*stukje, & deel dus. Maar er zijn # repen*kind # keer", A, C, C,
                 1 / C, A, A));
    row(B_chocolade_03_03_click, 14, "(Twee|Drie|Vier|Vijf|Zeven|Negen|Elf) kinderen verdelen # repen,",
        of({2, 4, 6, 8, 10, 12, 14}), counts(children(A), blocks(donkerrood) - B),
        range({{0, 6}, {2, 12}, {2, 11}, {0, 0}}), right(B / C), wrong("slechts één reep", 1 / C),
        wrong("verwisseld", C / B), wrong("opgeteld", B / (B + C)));
    row(B_helen_03_03_click, 2, "| # | (+|-) | # | # | = | . | $3", range({{2, 9}, {0, 0}, {1, 11}, {3, 12}}),
        range({{2, 9}, {1, 1}, {1, 11}, {3, 12}}), right(A * D + (1 - 2 * B) * C), wrong("De helen heb je wel", A * D),
        wrong("maar het is een", A * D - (1 - 2 * B) * C), wrong("één hele ingewisseld", D + (1 - 2 * B) * C),
        explains("als & dus het getal # is # x*stukken van &. Daar (komt|gaat) nog & *van &. Op", 1, A, A, 1 / D, B,
                 C / D, 1 / D),
        tips("", "Doe daarna een (optelling|aftrekking)"));
    row(B_vlakjes_03_03_click, 4, "rood is gekleurd.",
        counts((blocks(rood) - 1) * 36 / (blocks(rood) + blocks(geel) - 2)), range({{8, 28}}), range({{7, 29}}),
        range({{8, 28}}), range({{7, 29}}), right(A / 36), wrong("gele vlakjes", 1 - A / 36),
        wrong("een vlakje verteld", (A - 1) / 36, (A + 1) / 36), wrong("paar rode", (A - 3) / 36, (A + 3) / 36),
        check_simplest_form);
    row(L_helen_maken_03_03_click, 2, "| # | # | # | + | = | # | ..", counts(D - A),
        range({{1, 9}, {1, 9}, {4, 10}, {2, 10}, {1, 1}}), range({{1, 9}, {1, 19}, {11, 20}, {2, 10}, {1, 1}}),
        right(1 - B / C), wrong("zelf gekozen", B / C), wrong("hele te veel", 2 - B / C),
        wrong("Tel eens na", 1 - (B - 1) / C, 1 - (B + 1) / C), explains("Je moet dus & aanvullen", B / C));
    row(L_marathon_03_03_click, 4, "van @ zijn op * moment # deelnemers door de finish. Dat is #/# van * | 2:#:#",
        range({{300, 5100}, {2, 3}, {3, 5}, {30, 51}, {0, 59}}),
        range({{1000, 13600}, {3, 5}, {5, 8}, {28, 55}, {0, 59}}),
        range({{1500, 30600}, {3, 9}, {8, 10}, {25, 59}, {0, 59}}),
        range({{700, 15300}, {2, 5}, {7, 9}, {24, 49}, {0, 59}}), words({8}), right(finished_part * C),
        wrong("over de finish", A / C * B), wrong("foutje gemaakt", finished_part * (C - 1), finished_part * (C + 1)),
        wrong("nog een vermenigvuldiging", finished_part),
        explains(
            "zijn # deel*was & deel*dus & deel weten. Je rekent het & deel uit door # te delen door #. Dat zijn # *het & deel uit door # x",
            A, B / C, 1, 1 / C, A, B, finished_part, 1, C));
    row(L_optellen_03_14_click, 3, "| # | # | + | # | # | = | ......", of({1, 2}), counts(common(B, D)),
        range({{1, 14}, {2, 15}, {1, 14}, {2, 15}, {6, 15}}), range({{1, 23}, {2, 24}, {1, 23}, {2, 24}, {12, 30}}),
        right(A / B + C / D), wrong(unfinished, A / B + C / D), check_worked_line,
        explains("noemers eerst #*door # te delen.", E, divisor((A / B + C / D) * E, E)));
    row(L_optellen_03_14_click, 3, "| # | # | # | + | # | # | # | = | ......", of({3}),
        range({{1, 4}, {1, 9}, {2, 10}, {1, 4}, {1, 9}, {2, 10}}), right(a + b), wrong(unfinished, a + b),
        check_worked_line);
    row(M_aftrekken_03_14_click, 2, "| # | # | # | - | # | # | # | = | ......", counts(common(C, F)),
        range({{2, 6}, {2, 14}, {3, 15}, {1, 5}, {1, 5}, {2, 15}, {6, 15}}),
        range({{2, 6}, {2, 14}, {6, 15}, {1, 5}, {1, 7}, {6, 15}, {30, 60}}), right(a - b),
        wrong({"vereenvoudigd.*door #.", {left_over}}, a - b),
        wrong({"niet gelijknamig*noemer # wordt", {G}}, A - D + (B - E) / G), check_worked_line,
        explains("noemers eerst #*door # te delen.", G, left_over), wrong("alleen de streepbreuken", a - E / F));
    row(L_prijzen_03_03_click, 2, "In @ wordt * jaar #/# deel van * het #/# deel. * | # euro",
        range({{2, 5}, {7, 12}, {1, 2}, {7, 12}}), range({{1, 5}, {3, 12}, {1, 2}, {4, 12}}), words({8}),
        right(part_left), wrong("eerste en de tweede prijs samen", 1 - part_left),
        wrong("alleen de eerste prijs", 1 - first_prize), wrong("alleen de tweede prijs", 1 - second_prize),
        wrong("van elkaar afgetrokken", first_prize - second_prize),
        wrong("je & deel vergist", part_left - 1 / common(B, D), part_left + 1 / common(B, D)),
        wrong("ook de noemers", 1 - (A + C) / (B + D)), check_simplest_form,
        explains("namelijk & en &.", first_prize, second_prize));
    row(M_getallenlijn_03_03_click, 2, "| Gegeven breuk: | # | # |", range({{1, 19}, {3, 20}}),
        range({{1, 14}, {7, 15}}),
        explains("noemer #.*als &. Dat*\\(#/10) en * \\(#/10). De", common(B, 10), A / B, floor(A * 10 / B),
                 floor(A * 10 / B) + 1),
        tips("(Ga eerst gelijknamig maken...|gelijknamig met de tienden)", "noemer #"), check_arrows);
    row(M_grootste_kleinste_03_03_click, 4,
        "| Welke breuk is (GROTER|KLEINER) dan * | # | # | groen | # | # | wit | # | # | geel | # | # | rood",
        range({{0, 1}, {1, 15}, {3, 20}, {1, 15}, {3, 20}, {1, 11}, {3, 12}, {2, 24}, {6, 27}}),
        right(chosen(asked, {"groene", "witte", "gele", "rode"})), tips("vereenvoudigen. ", "en daarna"));
    row(M_olievat_03_06_click, 5, "eerst # liter olie. * liet daar & liter * | $0 liter * | # | # | # | liter",
        range({{12.25, 88.75}, {2.25, 19.75}}), right(A - B),
        wrong("", A - C, A - C - glued / 100, A - C - glued / 10, A - C - 1, A - 2 * C + B, A + B, A - B + 1,
              A - B - 1),
        explains("van & een*wordt dus # liter*aftrekken van # liter.", B, B, A),
        tips("streepbreuk", "Bedenk dat & liter hetzelfde is als #"));
    row(M_snel_03_03_click, 2, "| Vereenvoudig: #/#", range({{4, 60}, {12, 70}}), range({{9, 90}, {27, 99}}),
        right(says("#/#", top, foot)), wrong("nog niet klaar", A / B),
        wrong("delen van de teller", (top - 1) / foot, (top + 1) / foot),
        wrong("delen van de noemer", top / (foot - 1), top / (foot + 1)),
        wrong("hetzelfde getal", top / foot / too_small, top / foot * too_small),
        explains("delen door # *getal # is het grootste", by, by), ticks({8, 15}));
    row(L_procenten_03_14_click, 2, "| # % =  .. deel", counts(100, by, rounded(yellow_part * 100) - A),
        range({{5, 95}, any, {5, 50}, {0, 0}}), range({{2, 98}, any, {2, 4}, {0, 0}}), right(A / 100),
        wrong("", 1 / A, 1 - A / 100, A / (100 - A), numerator / 100, A / denominator, A / 1000, A / 200,
              (numerator - 1) / denominator, (numerator + 1) / denominator, numerator / (denominator - 1)),
        explains("# % kun je schrijven als &*breuk # /100*tot & door de teller en de noemer door # te", A, A / 100, A,
                 A / 100, C),
        tips("(Eerst: bedenk|Bedenk eerst)", "(Dan: schrijf|Maak van)"), check_simplest_form);
    row(L_stukken_03_14_click, 14, "stuk AC een lengte heeft van &. Hoe lang is het stuk AB? | A | B | C | ? | &",
        of({1, 3, 5, 7, 9, 11, 13}), counts(marks(false), marks(true), B - A),
        range({{2.0 / 3, 50}, {2.0 / 3, 50}, {4, 10}, {1, 9}, {0, 0}}), right(A * D / C), wrong("", answer < A),
        explains("AB is het & deel van AC. Het hele stuk AC is &, dus AB is het & deel van &.", D / C, A, D / C, A),
        tips("Eerste stap", "Tweede stap"));
    row(L_stukken_03_14_click, 14, "stuk AB een lengte heeft van &. Hoe lang is het stuk AC? | A | B | C | & | ?",
        of({2, 4, 6, 8, 10, 12, 14}), counts(marks(true), marks(false), B - A),
        range({{1.0 / 6, 45}, {1.0 / 6, 45}, {1, 9}, {4, 10}, {0, 0}}), right(A * D / C), wrong("", A < answer),
        explains("AB is het & deel*bestaat uit # van", C / D, D), tips("Eerste stap", "Tweede stap"));
    row(M_tussen_in_03_14_click, 2, "| # | # | geel |", range({{1, 11}, {3, 12}}), right(interval(0)),
        wrong("", interval(-10), interval(-3), interval(-2), interval(-1), interval(1), interval(2), interval(3),
              interval(10)),
        explains("omzetten: # delen door # geeft #*tussen # en #", A, B, floor(A * 1000 / B) / 1000, below / scale,
                 (below + 1) / scale),
        tips("(Eerste stap: zet|Maak eerst)", "(Tweede stap: verg|Kijk daarna)"));
    row(M_vereenvoudigen_03_14_click, 2, "| # | # | = | # | .... | $1 | = | $2 | # | ....",
        counts([](const reading& n) { return n.variant() == 1 ? 1 : n[2] - whole(n.exercise.words[0]); }),
        range({{8, 76}, {6, 40}, {1, 1}, {1, 11}, {1, 1}}), range({{8, 76}, {6, 40}, {2, 5}, {1, 11}, {1, 1}}),
        right(says("# en #", A - B, B * D / (A - B))),
        wrong("de volgorde niet", says("# en #", B * D / (A - B), A - B)),
        wrong("geen hele", says("# en #", A, B * D / (A - B))), wrong("door hetzelfde getal", says("# en #", A - B, B)),
        explains("nog door # delen", (A - B) / D), tips("Eerste stap", "Tweede stap"));
    row(Z_delen_03_14_click, 4, "| # | # | # | : | # | # | # | = | ... | geel |",
        range({{2, 5}, {1, 6}, {2, 8}, {1, 2}, {1, 7}, {2, 8}}), right(a / b), wrong(slips(true)),
        wrong("zonder de tweede breuk", a * b), wrong("apart gedeeld", A / D + B / C / (E / F)),
        wrong("een hele te weinig", a / b - 1), tips("Eerste stap", "Tweede stap"), check_strokes);
    row(Z_vermenigvuldigen_03_14_click, 3, "| # | # | # | x | # | # | # | = | ... | geel |",
        range({{1, 4}, {1, 9}, {2, 10}, {1, 4}, {1, 9}, {2, 10}}), right(a * b), wrong(slips(false)),
        wrong("opgeteld", a + b), wrong("apart vermenigvuldigd", A * D + B / C * (E / F)),
        wrong("een hele te veel", a * b + 1), check_strokes);
    completing(M_aanvullen_1_03_14_click);
    completing(M_aanvullen_2_03_14_click);
});

} // namespace
} // namespace cijferwerf
