// Fractions: what they draw, their answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "tests/support/exercise_rows.h"
#include "tests/support/ink.h"
#include "tests/support/rows_of.h"

namespace cijferwerf {
namespace {

int divisor(const reading& n, std::size_t a, std::size_t b) {
    return std::gcd(static_cast<int>(n[a]), static_cast<int>(n[b]));
}
formula divisor(std::size_t a, std::size_t b) {
    return [=](const reading& n) { return divisor(n, a, b); };
}
formula common(std::size_t a, std::size_t b) {
    return [=](const reading& n) { return n[a] * n[b] / divisor(n, a, b); };
}
formula floor(const formula& a) { return rounded(a - 0.4999999); }

bool in_simplest_form(const std::string& answer) {
    const breuk part = fraction(answer.substr(answer.find(' ') + 1));
    return !part.vereenvoudigbaar() && (part.teller < part.noemer || part.noemer == 1);
}
void all_in_simplest_form(const reading& n) {
    for (const std::string& answer : n.exercise.answers()) EXPECT_TRUE(in_simplest_form(answer)) << answer;
}

// The explanation goes on with the sum, worked out step by step, below the question on the board.
void check_worked_line(const reading& n) {
    const seen& e = n.exercise;
    const std::vector<std::string> rows = rows_of(explained(e.made));
    EXPECT_TRUE(rows.back().ends_with("= " + e.right)) << rows.back();
    for (int i = 1; i <= 4; ++i) {
        const std::string told = i == e.right_place() ? "" : e.feedback(i);
        if (told.find("elijknamig") != std::string::npos) continue;
        const breuk part = fraction(e.answer(i).substr(e.answer(i).find(' ') + 1));
        EXPECT_EQ(part.teller > part.noemer, told.find("geen hele") != std::string::npos) << told;
        EXPECT_EQ(part.vereenvoudigbaar(), told.find("niet vereenvoudigd") != std::string::npos) << told;
    }
}

// One arrow alone points between the right tenths, and nothing but its place tells it from the others.
void check_arrows(const reading& n) {
    int zero = 0, length = 0;
    std::map<kleur, int> points; // where each colour's arrow points
    for (const drawing_op& operation : n.exercise.made.plaatje.operations()) {
        if (const auto* line = std::get_if<line_op>(&operation); line != nullptr && line->to.x - line->from.x > length)
            length = line->to.x - (zero = line->from.x);
        if (const auto* arrow = std::get_if<polygon_op>(&operation); arrow != nullptr && arrow->filled)
            points[arrow->pen.colour] = std::ranges::min_element(arrow->corners, {}, &point::y)->x;
    }
    const std::map<std::string, kleur> colours{{"geel", geel}, {"rood", rood}, {"wit", wit}, {"zwart", zwart}};
    std::set<int> stretches;
    for (const auto& [colour, x] : points) stretches.insert((x - zero) * 10 / length);
    EXPECT_EQ(stretches.size(), 4U) << "each in a stretch of its own";
    EXPECT_LE(std::abs(points[colours.at(n.exercise.right)] - zero - n[0] / n[1] * length), 1);
    EXPECT_FALSE(same(std::round(n[0] * 10 / n[1]), n[0] * 10 / n[1])) << "a tenth itself lies between none";
}

// A fraction of the four on the board, and the colour of the one that is asked.
std::string colour_asked(const reading& n) {
    std::map<double, const char*> by_size;
    static constexpr std::array colours{"groene", "witte", "gele", "rode"};
    for (std::size_t i = 0; i < 4; ++i) by_size[n[1 + 2 * i] / n[2 + 2 * i]] = colours[i];
    return n[0] == 0 ? by_size.rbegin()->second : by_size.begin()->second;
}

// The places of the marks on the segment, and of B among them.
formula marks(bool up_to_B) {
    return [=](const reading& n) {
        std::set<int> places;
        for (const drawing_op& operation : n.exercise.made.plaatje.operations())
            if (const auto* line = std::get_if<line_op>(&operation); line != nullptr && line->from.y < 1000)
                places.insert({line->from.x, line->to.x});
        const text_op& B = n.exercise.texts[1];
        const double until = up_to_B ? B.x : drawing::inner_width;
        return std::ranges::count_if(places, [&](int x) { return x < until; }) - (up_to_B ? 0 : 1);
    };
}
// All lengths are drawn as large as they are said to be, and no answer lies outside the drawing.
void check_lengths(const reading& n) {
    const bool first_asked = n.variant() % 2 == 1;
    for (const std::string& answer : n.exercise.answers()) {
        const auto length = number_of(answer);
        EXPECT_TRUE(first_asked ? length < n[0] : length > n[0]) << answer;
        const double half_pieces = *length / n[0] * 2 * n[2];
        EXPECT_TRUE(same(std::round(half_pieces), half_pieces)) << answer;
    }
}

// ---- shortening ----

// The numerator and denominator of what was read as v[0]/v[1], in its simplest form, with so much added and multiplied.
formula shortened(int teller, int noemer, bool teller_left = false, bool noemer_left = false) {
    return [=](const reading& n) {
        const int by = divisor(n, 0, 1), left = by % 2 == 0 ? 2 : 3;
        return (n[0] / by + teller) * (teller_left ? left : 1) / ((n[1] / by + noemer) * (noemer_left ? left : 1));
    };
}
void check_shortened(const reading& n) {
    for (int i = 1; i <= 4; ++i) {
        const std::string told = i == n.exercise.right_place() ? "" : n.exercise.feedback(i);
        EXPECT_EQ(in_simplest_form(n.exercise.answer(i)), told.find("nog niet klaar") == told.npos) << told;
    }
    EXPECT_TRUE(n.variant() == 1 || (n[1] < 100 && (n[1] < 50 || static_cast<int>(n[1]) % 7 != 0))) << "too hard";
}

// ---- mixed numbers ----

const formula a = v[0] + v[1] / v[2], b = v[3] + v[4] / v[5];

// The numbers whose fractions the sum has, and by what the first numerator and second denominator, or the first
// denominator and second numerator, can be divided; of a division the second number is turned over.
formula cancelled(bool first, bool dividing) {
    return [=](const reading& n) {
        const auto at = [&](std::size_t i) { return static_cast<int>(n[i]); };
        breuk left{at(0) * at(2) + at(1), at(2)}, right{at(3) * at(5) + at(4), at(5)};
        if (dividing) right = right.omgekeerd();
        return first ? std::gcd(left.teller, right.noemer) : std::gcd(left.noemer, right.teller);
    };
}
std::vector<mistake> slips(bool dividing) {
    const formula outcome = dividing ? a / b : a * b;
    const formula under = dividing ? v[3] * v[5] + v[4] : v[5];
    std::vector<mistake> all{{"alleen de eerste opgeschreven", outcome * under},
                             {"alleen de tweede opgeschreven", outcome * v[2]},
                             {"streepbreuk van het eerste", dividing ? v[0] / b : v[0] * b},
                             {"streepbreuk van het tweede", dividing ? a / v[3] : a * v[3]}};
    for (const bool first : {true, false}) {
        all.push_back({"alleen een noemer gedeeld", outcome * cancelled(first, dividing)});
        all.push_back({"alleen een teller gedeeld", outcome / cancelled(first, dividing)});
    }
    return all;
}

// Each red stroke runs through a number, and divides it and both rows by as much.
void check_strokes(const reading& n) {
    const drawing drawn = explained(n.exercise.made);
    std::vector<ink> words = visible_words(drawn);
    std::erase_if(words, [](const ink& w) { return w.top < 1000; });
    double above = 1, below = 1;
    for (const drawing_op& operation : drawn.operations()) {
        const auto* stroke = std::get_if<box_op>(&operation);
        if (stroke == nullptr || stroke->height != 1 || stroke->pen.colour != rood) continue;
        const auto number_near = [&](bool red, double reach) {
            const auto found = std::ranges::find_if(words, [&](const ink& w) {
                return (w.colour == rood) == red && w.left > stroke->x - 15 && w.middle() < stroke->x + stroke->width &&
                       w.top < stroke->y + reach && w.bottom > stroke->y - reach;
            });
            return found == words.end() ? 0 : decimal(found->word);
        };
        const double divided = number_near(false, 0) / number_near(true, 200);
        EXPECT_TRUE(divided > 1 && same(divided, std::round(divided))) << divided;
        (stroke->y < 1541 ? above : below) *= divided;
    }
    EXPECT_TRUE(same(above, below) && above > 1) << above << " and " << below;
}

// Two numbers of which one interval of tenths or hundredths, so many steps from the right one, lies between.
formula interval(int away) {
    return [=](const reading& n) -> outcome {
        const double scale = n.variant() == 1 ? 10 : 100, from = std::floor(n[0] * scale / n[1] + 1e-9) + away;
        return told_numbers{"# en #", {from / scale, (from + 1) / scale}};
    };
}

const formula finished_part = v[0] / v[1];
const formula numerator = v[0] / v[2], denominator = 100 / v[2]; // of a percentage
const formula glued = 10 * v[3] + v[4];                          // 14 of 1/4
const formula over = v[3] / v[4], all_of_it = v[0] + v[1] / v[2];
const formula first_prize = v[0] / v[1], second_prize = v[2] / v[3], part_left = 1 - first_prize - second_prize;

formula absolute(const formula& value) {
    return [=](const reading& n) { return std::abs(std::get<double>(value(n))); };
}
formula children(std::size_t word) {
    return [=](const reading& n) { return std::array{2, 3, 4, 5, 7, 9, 11}.at(static_cast<std::size_t>(n[word])); };
}

void completing(oefening_id id) {
    row(id, 9, "| # | # | # | - | = | # | # | ..", range({{1, 5}, {1, 11}, {2, 12}, {1, 23}, {2, 12}}),
        right(all_of_it - over),
        wrong("", v[0] - over, all_of_it + over, all_of_it - over - 1, all_of_it - over + 1,
              v[0] - floor(over) + absolute(v[1] / v[2] - over + floor(over)),
              absolute(v[1] / v[2] - over + floor(over))),
        explains("getal # de breuk &. Tel daar", v[0], v[0]), explains("Dan krijg je &. Om", all_of_it),
        explains("moet je er & van aftrekken", all_of_it - over),
        explains("& - & = &", all_of_it, all_of_it - over, over),
        tips("Eerste stap: maak van die # een breuk", "Derde stap"));
}

const exercise_rows fractions([] {
    row(B_chocolade_03_03_click, 14, "Er moeten # repen over (twee|drie|vier|vijf|zeven|negen|elf) kinderen",
        of({1, 3, 5, 7, 9, 11, 13}), counts(children(1), blocks(donkerrood) - v[0]),
        range({{2, 12}, {0, 6}, {2, 11}, {0, 0}}), right(v[0] / v[2]), wrong("slechts één reep", 1 / v[2]),
        wrong("verwisseld", v[2] / v[0]), wrong("opgeteld", v[0] / (v[0] + v[2])),
        explains("moet # repen over # kinderen", v[0], v[2]), explains("stukje, & deel dus", 1 / v[2]));
    row(B_chocolade_03_03_click, 14, "(Twee|Drie|Vier|Vijf|Zeven|Negen|Elf) kinderen verdelen # repen,",
        of({2, 4, 6, 8, 10, 12, 14}), counts(children(0), blocks(donkerrood) - v[1]),
        range({{0, 6}, {2, 12}, {2, 11}, {0, 0}}), right(v[1] / v[2]), wrong("slechts één reep", 1 / v[2]),
        wrong("verwisseld", v[2] / v[1]), wrong("opgeteld", v[1] / (v[1] + v[2])));
    row(B_helen_03_03_click, 2, "| # | (+|-) | # | # | = | . | $3", range({{2, 9}, {0, 0}, {1, 11}, {3, 12}}),
        range({{2, 9}, {1, 1}, {1, 11}, {3, 12}}), right(v[0] * v[3] + (1 - 2 * v[1]) * v[2]),
        wrong("De helen heb je wel", v[0] * v[3]), wrong("maar het is een", v[0] * v[3] - (1 - 2 * v[1]) * v[2]),
        wrong("één hele ingewisseld", v[3] + (1 - 2 * v[1]) * v[2]), explains("schrijven als &", 1),
        explains("# x # = # stukken van &", v[0], v[3], v[0] * v[3], 1 / v[3]),
        tips("", "Doe daarna een (optelling|aftrekking)"));
    row(B_vlakjes_03_03_click, 4, "rood is gekleurd.", counts(blocks(rood) - 1, blocks(geel) - 1 + blocks(rood) - 1),
        range({{8, 28}, {36, 36}}), range({{7, 29}, {36, 36}}), range({{8, 28}, {36, 36}}), range({{7, 29}, {36, 36}}),
        right(v[0] / 36), wrong("gele vlakjes", 1 - v[0] / 36),
        wrong("een vlakje verteld", (v[0] - 1) / 36, (v[0] + 1) / 36),
        wrong("paar rode", (v[0] - 3) / 36, (v[0] + 3) / 36),
        explains("Er zijn # van de 36 * Dat is & deel", v[0], v[0] / 36), [](const reading& n) {
            all_in_simplest_form(n);
            const auto told = find_pattern(n.exercise.explanation, "te delen door #.");
            EXPECT_EQ(told ? told->numbers[0] : 1, divisor(n, 0, 1));
        });
    row(L_helen_maken_03_03_click, 2, "| # | # | # | + | = | # | ..", counts(v[3] - v[0]),
        range({{1, 9}, {1, 9}, {4, 10}, {2, 10}, {1, 1}}), range({{1, 9}, {1, 19}, {11, 20}, {2, 10}, {1, 1}}),
        right(1 - v[1] / v[2]), wrong("zelf gekozen", v[1] / v[2]), wrong("hele te veel", 2 - v[1] / v[2]),
        wrong("Tel eens na", 1 - (v[1] - 1) / v[2], 1 - (v[1] + 1) / v[2]),
        explains("Je moet dus & aanvullen", v[1] / v[2]), explains("| .. | .. | &", 1 - v[1] / v[2]));
    row(L_marathon_03_03_click, 4,
        "van @ zijn op een zeker moment # deelnemers door de finish. Dat is #/# van * | 2:#:#",
        range({{300, 5100}, {2, 3}, {3, 5}, {30, 51}, {0, 59}}),
        range({{1000, 13600}, {3, 5}, {5, 8}, {28, 55}, {0, 59}}),
        range({{1500, 30600}, {3, 9}, {8, 10}, {25, 59}, {0, 59}}),
        range({{700, 15300}, {2, 5}, {7, 9}, {24, 49}, {0, 59}}), words({8}), right(finished_part * v[2]),
        wrong("over de finish", v[0] / v[2] * v[1]),
        wrong("foutje gemaakt", finished_part * (v[2] - 1), finished_part * (v[2] + 1)),
        wrong("nog een vermenigvuldiging", finished_part),
        explains("het & deel uit door # te delen door #. Dat zijn #", 1 / v[2], v[0], v[1], finished_part),
        explains("uit door # x # = #", v[2], finished_part, finished_part * v[2]));
    row(L_optellen_03_14_click, 3, "| # | # | + | # | # | = | ......", of({1, 2}), counts(common(1, 3)),
        range({{1, 14}, {2, 15}, {1, 14}, {2, 15}, {6, 15}}), range({{1, 23}, {2, 24}, {1, 23}, {2, 24}, {12, 30}}),
        right(v[0] / v[1] + v[2] / v[3]), wrong("Je hebt niet vereenvoudigd.", v[0] / v[1] + v[2] / v[3]),
        wrong("uitgehaald. ", v[0] / v[1] + v[2] / v[3]), wrong("uitgehaald en je", v[0] / v[1] + v[2] / v[3]),
        explains("noemers eerst #,", v[4]), check_worked_line);
    row(L_optellen_03_14_click, 3, "| # | # | # | + | # | # | # | = | ......", of({3}),
        range({{1, 4}, {1, 9}, {2, 10}, {1, 4}, {1, 9}, {2, 10}}), right(a + b),
        wrong("Je hebt niet vereenvoudigd.", a + b), wrong("uitgehaald. ", a + b), wrong("uitgehaald en je", a + b),
        explains("noemers eerst #,", common(2, 5)), check_worked_line);
    row(M_aftrekken_03_14_click, 2, "| # | # | # | - | # | # | # | = | ......", counts(common(2, 5)),
        range({{2, 6}, {2, 14}, {3, 15}, {1, 5}, {1, 5}, {2, 15}, {6, 15}}),
        range({{2, 6}, {2, 14}, {6, 15}, {1, 5}, {1, 7}, {6, 15}, {30, 60}}), right(a - b),
        wrong("niet vereenvoudigd.", a - b), wrong("niet gelijknamig", v[0] - v[3] + (v[1] - v[4]) / v[6]),
        wrong("alleen de streepbreuken", a - v[4] / v[5]), explains("noemers eerst #,", v[6]), check_worked_line);
    row(L_prijzen_03_03_click, 2, "In @ wordt * jaar #/# deel van * het #/# deel. * | # euro",
        range({{2, 5}, {7, 12}, {1, 2}, {7, 12}}), range({{1, 5}, {3, 12}, {1, 2}, {4, 12}}), words({8}),
        right(part_left), wrong("eerste en de tweede prijs samen", 1 - part_left),
        wrong("alleen de eerste prijs", 1 - first_prize), wrong("alleen de tweede prijs", 1 - second_prize),
        wrong("van elkaar afgetrokken", first_prize - second_prize),
        wrong("je & deel vergist", part_left - 1 / common(1, 3), part_left + 1 / common(1, 3)),
        wrong("ook de noemers", 1 - (v[0] + v[2]) / (v[1] + v[3])),
        explains("(hoeven|moeten)", [](const reading& n) { return n[1] == n[3] ? 0 : 1; }),
        explains("Over is dus 1 - & = &", 1 - part_left, part_left), [](const reading& n) {
            all_in_simplest_form(n);
            const double second = n[4] / n[0] * n[1] * n[2] / n[3];
            EXPECT_TRUE(same(std::fmod(second + 1e-6, 1000), 1e-6)) << "the second prize is " << second;
        });
    row(M_getallenlijn_03_03_click, 2, "| Gegeven breuk: | # | # |", range({{1, 19}, {3, 20}}),
        range({{1, 14}, {7, 15}}), explains("schrijven als &. Dat", v[0] / v[1]),
        explains("\\(#/10) en", floor(v[0] * 10 / v[1])), explains("\\(#/10). De", floor(v[0] * 10 / v[1]) + 1),
        tips("(Ga eerst gelijknamig maken...|gelijknamig met de tienden)", "noemer #"), check_arrows);
    row(M_grootste_kleinste_03_03_click, 4,
        "| Welke breuk is (GROTER|KLEINER) dan * | # | # | groen | # | # | wit | # | # | geel | # | # | rood",
        range({{0, 1}, {1, 15}, {3, 20}, {1, 15}, {3, 20}, {1, 11}, {3, 12}, {2, 24}, {6, 27}}), right(colour_asked),
        tips("vereenvoudigen. ", "en daarna"));
    row(M_olievat_03_06_click, 5,
        "eerst # liter olie. Een automonteur liet daar & liter * | $0 liter * | # | # | # | liter",
        range({{12.25, 88.75}, {2.25, 19.75}}), right(v[0] - v[1]),
        wrong("", v[0] - v[2], v[0] - v[2] - glued / 100, v[0] - v[2] - glued / 10, v[0] - v[2] - 1,
              v[0] - 2 * v[2] + v[1], v[0] + v[1], v[0] - v[1] + 1, v[0] - v[1] - 1),
        explains("van & een breuk met een komma. Dat wordt dus # liter", v[1], v[1]),
        explains("aftrekken van # liter. Dan krijg je # - # liter", v[0], v[0], v[1]),
        tips("streepbreuk", "Bedenk dat & liter hetzelfde is als #"));
    row(M_snel_03_03_click, 2, "| Vereenvoudig: #/#", range({{4, 60}, {12, 70}}), range({{9, 90}, {27, 99}}),
        right(v[0] / v[1]), wrong("nog niet klaar", v[0] / v[1]),
        wrong("delen van de teller", shortened(-1, 0), shortened(1, 0)),
        wrong("delen van de noemer", shortened(0, -1), shortened(0, 1)),
        wrong("hetzelfde getal", shortened(0, 0, false, true), shortened(0, 0, true, false)),
        explains("delen door # en de", divisor(0, 1)), explains("getal # is het grootste", divisor(0, 1)),
        ticks({8, 15}), check_shortened);
    row(L_procenten_03_14_click, 2, "| # % =  .. deel", counts(100, divisor(0, 1)), range({{5, 95}}), range({{2, 98}}),
        right(v[0] / 100),
        wrong("", 1 / v[0], 1 - v[0] / 100, v[0] / (100 - v[0]), numerator / 100, v[0] / denominator, v[0] / 1000,
              v[0] / 200, (numerator - 1) / denominator, (numerator + 1) / denominator, numerator / (denominator - 1)),
        explains("kun je schrijven als &", v[0] / 100),
        explains("vereenvoudigen tot & door de teller en de noemer door # te", v[0] / 100, v[2]),
        explains("# % =  & deel", v[0], v[0] / 100), tips("(Eerst: bedenk|Bedenk eerst)", "(Dan: schrijf|Maak van)"),
        [](const reading& n) {
            all_in_simplest_form(n);
            int yellow = 0;
            for (const box_op& box : n.exercise.blocks)
                if (box.pen.colour == geel) yellow += box.width * box.height;
            EXPECT_EQ(yellow * 100, n[0] * n.exercise.blocks[0].width * n.exercise.blocks[0].height);
        });
    row(L_stukken_03_14_click, 14, "stuk AC een lengte heeft van &. Hoe lang is het stuk AB? | A | B | C | ? | &",
        of({1, 3, 5, 7, 9, 11, 13}), counts(marks(false), marks(true), v[1] - v[0]),
        range({{2.0 / 3, 50}, {2.0 / 3, 50}, {4, 10}, {1, 9}, {0, 0}}), right(v[0] * v[3] / v[2]),
        wrong("", lies::below, lies::above), explains("is het & deel van AC", v[3] / v[2]),
        explains("& : # = &", v[0], v[2], v[0] / v[2]), tips("Eerste stap", "Tweede stap"), check_lengths);
    row(L_stukken_03_14_click, 14, "stuk AB een lengte heeft van &. Hoe lang is het stuk AC? | A | B | C | & | ?",
        of({2, 4, 6, 8, 10, 12, 14}), counts(marks(true), marks(false), v[1] - v[0]),
        range({{1.0 / 6, 45}, {1.0 / 6, 45}, {1, 9}, {4, 10}, {0, 0}}), right(v[0] * v[3] / v[2]),
        wrong("", lies::below, lies::above), explains("is het & deel van AC", v[2] / v[3]),
        explains("bestaat uit # van", v[3]), tips("Eerste stap", "Tweede stap"), check_lengths);
    row(M_tussen_in_03_14_click, 2, "| # | # | geel |", range({{1, 11}, {3, 12}}), right(interval(0)),
        wrong("", interval(-10), interval(-3), interval(-2), interval(-1), interval(1), interval(2), interval(3),
              interval(10)),
        explains("omzetten: # delen door # geeft #", v[0], v[1], floor(v[0] * 1000 / v[1]) / 1000),
        tips("(Eerste stap: zet|Maak eerst)", "(Tweede stap: verg|Kijk daarna)"));
    row(M_vereenvoudigen_03_14_click, 2, "| # | # | = | # | .... | $1 | = | $2 | # | ....",
        counts([](const reading& n) { return n.variant() == 1 ? 1 : n[2] - whole(n.exercise.words[0]); }),
        range({{8, 76}, {6, 40}, {1, 1}, {1, 11}, {1, 1}}), range({{8, 76}, {6, 40}, {2, 5}, {1, 11}, {1, 1}}),
        right(says("# en #", v[0] - v[1], v[1] * v[3] / (v[0] - v[1]))),
        wrong("de volgorde niet", says("# en #", v[1] * v[3] / (v[0] - v[1]), v[0] - v[1])),
        wrong("geen hele", says("# en #", v[0], v[1] * v[3] / (v[0] - v[1]))),
        wrong("door hetzelfde getal", says("# en #", v[0] - v[1], v[1])),
        explains("nog # - # = # over", v[0], v[1], v[0] - v[1]), explains("nog door # delen", (v[0] - v[1]) / v[3]),
        tips("Eerste stap", "Tweede stap"));
    row(Z_delen_03_14_click, 4, "| # | # | # | : | # | # | # | = | ... | geel |",
        range({{2, 5}, {1, 6}, {2, 8}, {1, 2}, {1, 7}, {2, 8}}), right(a / b), wrong(slips(true)),
        wrong("zonder de tweede breuk", a * b), wrong("apart gedeeld", v[0] / v[3] + v[1] / v[2] / (v[4] / v[5])),
        wrong("een hele te weinig", a / b - 1), explains("Je krijgt & = &:", a / b, a / b),
        tips("Eerste stap", "Tweede stap"), check_strokes);
    row(Z_vermenigvuldigen_03_14_click, 3, "| # | # | # | x | # | # | # | = | ... | geel |",
        range({{1, 4}, {1, 9}, {2, 10}, {1, 4}, {1, 9}, {2, 10}}), right(a * b), wrong(slips(false)),
        wrong("opgeteld", a + b), wrong("apart vermenigvuldigd", v[0] * v[3] + v[1] / v[2] * (v[4] / v[5])),
        wrong("een hele te veel", a * b + 1), explains("Je krijgt & = &:", a * b, a * b), check_strokes);
    completing(M_aanvullen_1_03_14_click);
    completing(M_aanvullen_2_03_14_click);
});

} // namespace
} // namespace cijferwerf
