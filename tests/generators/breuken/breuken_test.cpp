// The fraction exercises of booklet 3, worked out again from what a pupil sees: the question, the picture, the answers.
#include "tests/support/seen.h"

#include <map>
#include <regex>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

bool in_simplest_form(breuk b) { return !b.vereenvoudigbaar(); }

TEST(fractions, chocolate_is_shared_by_the_children_that_the_question_and_the_picture_show) {
    const std::map<std::string, int> number_words{{"twee", 2},  {"drie", 3},  {"vier", 4}, {"vijf", 5},
                                                  {"zeven", 7}, {"negen", 9}, {"elf", 11}};
    std::set<std::string> forms;
    each(B_chocolade_03_03_click, [&](const seen& e) {
        const bool passive = e.question.starts_with("Er moeten");
        const auto part = passive ? e.asked("moeten (\\d+) repen over (\\w+) kinderen")
                                  : e.asked("([A-Z]\\w+) kinderen verdelen (\\d+) repen,");
        std::string word = part[passive ? 2 : 1];
        forms.insert(word);
        word[0] = static_cast<char>(word[0] | 0x20);
        const int children = number_words.at(word), bars = whole(part[passive ? 1 : 2]);
        EXPECT_EQ(fraction(e.right), (breuk{bars, children}));
        EXPECT_TRUE(in_simplest_form(fraction(e.right)));
        EXPECT_EQ(e.of_colour(donkerrood), bars);
        EXPECT_TRUE(e.last.ends_with(" is " + e.right + " deel."));
    });
    EXPECT_EQ(forms.size(), 14U);
}

TEST(fractions, wholes_are_exchanged_before_adding_or_subtracting) {
    std::set<std::string> tips, feedback;
    each(B_helen_03_03_click, [&](const seen& e) {
        const int wholes = whole(e.words[0]), over = whole(e.right);
        const breuk part = e.fraction_at(2);
        ASSERT_TRUE(e.words[1] == "+" || e.words[1] == "-");
        EXPECT_EQ(e.words[6], e.words[3]) << "one denominator on both sides";
        EXPECT_EQ(wholes * part.noemer, e.words[1] == "+" ? over - part.teller : over + part.teller);
        EXPECT_EQ(e.last, "Op de punt moet dus een " + e.right + " staan.");
        (e.made.tipregels_1[0] == leeg ? feedback.insert(e.made.foutregels_2[2]) : tips.insert(e.made.tipregels_2[2]));
    });
    EXPECT_EQ(tips, (std::set<std::string>{"Doe daarna een optelling.", "Doe daarna een aftrekking."}));
    EXPECT_EQ(feedback, (std::set<std::string>{"optelling te doen.", "aftrekking te doen."}));
}

TEST(fractions, the_red_squares_are_counted) {
    each(B_vlakjes_03_03_click, [](const seen& e) {
        EXPECT_EQ(e.blocks.size(), 36U + 2U) << "and two in the legend";
        const int red = static_cast<int>(e.of_colour(rood)) - 1;
        EXPECT_EQ(fraction(e.right), (breuk{red, 36}));
        EXPECT_TRUE(in_simplest_form(fraction(e.right)));
        EXPECT_EQ(fraction(e.answer(2)), (breuk{36 - red, 36})) << "the yellow ones";
        EXPECT_EQ(in_simplest_form({red, 36}), e.made.variant % 2 == 0);
        EXPECT_EQ(e.last, "Het juiste antwoord is dus " + e.right + ".");
    });
}

TEST(fractions, the_explanation_writes_what_makes_the_whole_over_the_dots) {
    each(L_helen_maken_03_03_click, [](const seen& e) {
        const breuk first = gemengd_getal(whole(e.words[0]), whole(e.words[1]), whole(e.words[2]));
        EXPECT_EQ(e.words[3] + e.words[4] + e.words[6], "+=..");
        EXPECT_EQ(first + fraction(e.right), (breuk{whole(e.words[5]), 1}));
        EXPECT_EQ(e.last, "Dan heb je dus nog " + e.right + " nodig.");
        const auto written = e.when_explained().words;
        EXPECT_EQ(written.back(), e.right);
    });
}

TEST(fractions, a_part_of_the_starters_has_finished) {
    each(L_marathon_03_03_click, [&](const seen& e) {
        const auto part = e.asked(R"(moment ([\d.]+) deelnemers door de finish\. Dat is (\d+)/(\d+) van)");
        const int finished = whole(part[1]);
        EXPECT_EQ(whole(e.right) * whole(part[2]), finished * whole(part[3]));
        EXPECT_LT(whole(e.answer(2)), finished) << "told that no more can finish than started";
        EXPECT_GT(whole(e.answer(3)), finished) << "told of a slip only";
        EXPECT_TRUE(e.last.ends_with(" = " + e.right + " te doen."));
    });
}

TEST(fractions, all_prizes_together_are_the_whole) {
    std::set<bool> simplified;
    each(L_prijzen_03_03_click, [&](const seen& e) {
        const auto part = e.asked(R"(jaar (\d+/\d+) deel.* het (\d+/\d+) deel\.)");
        const breuk first = fraction(part[1]), second = fraction(part[2]);
        EXPECT_GT(first, second);
        EXPECT_EQ(first + second + fraction(e.right), (breuk{1, 1}));
        EXPECT_TRUE(in_simplest_form(fraction(e.right)));
        EXPECT_EQ(first.noemer == second.noemer, e.made.uitlegregels[1].find("hoeven niet") != std::string::npos);
        EXPECT_EQ(whole(e.words[4]) % first.teller, 0) << "of the cheque, whole thousands are a part";
        EXPECT_TRUE(e.last.ends_with(" = " + e.right + " deel."));
        simplified.insert(e.made.uitlegregels[3].starts_with("Vereenvoudigd"));
    });
    EXPECT_EQ(simplified.size(), 2U);
}

TEST(fractions, one_arrow_alone_points_between_the_right_tenths) {
    const std::map<kleur, std::string> names{{geel, "geel"}, {rood, "rood"}, {wit, "wit"}, {zwart, "zwart"}};
    each(M_getallenlijn_03_03_click, [&](const seen& e) {
        const breuk given = e.fraction_at(1);
        int zero = 0, length = 0;
        std::map<int, std::string> arrows; // by the stretch between two tenths
        for (const drawing_op& operation : e.made.plaatje.operations()) {
            if (const auto* line = std::get_if<line_op>(&operation);
                line != nullptr && line->to.x - line->from.x > length)
                length = line->to.x - (zero = line->from.x);
            if (const auto* arrow = std::get_if<polygon_op>(&operation); arrow != nullptr && arrow->filled)
                arrows[(arrow->corners[0].x - zero) * 10 / length] = names.at(arrow->pen.colour);
        }
        EXPECT_EQ(arrows.size(), 4U) << "each in a stretch of its own";
        EXPECT_EQ(arrows[given.teller * 10 / given.noemer], e.right);
        EXPECT_NE(given.teller * 10 % given.noemer, 0) << "a tenth itself lies between none";
        EXPECT_EQ(e.last, "De juiste kleur is dus " + e.right + ".");
    });
}

TEST(fractions, the_largest_or_smallest_of_the_board_is_one_alone) {
    static constexpr std::array<std::string_view, 4> colours{"groene", "witte", "gele", "rode"};
    each(M_grootste_kleinste_03_03_click, [](const seen& e) {
        const bool largest = e.words[0].find("GROTER") != std::string::npos;
        EXPECT_EQ(largest, e.question.find("grootste") != std::string::npos);
        for (std::size_t i = 0; i < 4; ++i) {
            const breuk own = e.fraction_at(1 + 3 * i);
            int beaten = 0;
            for (std::size_t j = 0; j < 4; ++j) {
                const breuk other = e.fraction_at(1 + 3 * j);
                const int apart = own.teller * other.noemer - other.teller * own.noemer;
                beaten += largest ? apart > 0 : apart < 0;
            }
            EXPECT_EQ(beaten == 3, colours[i] == e.right) << colours[i];
        }
        EXPECT_EQ(e.last, "De " + e.right + " breuk is dus de " + (largest ? "grootste." : "kleinste."));
    });
}

TEST(fractions, what_is_left_in_the_drum_has_quarters_of_a_litre) {
    std::set<double> quarters;
    each(M_olievat_03_06_click, [&](const seen& e) {
        const auto part = e.asked(R"(eerst ([\d,]+) liter olie\. .* daar (\d+) (\d)/(\d) liter)");
        const double out = lees_getal(part[2]) + lees_getal(part[3]) / lees_getal(part[4]);
        EXPECT_EQ(decimal(e.right), decimal(part[1]) - out);
        EXPECT_TRUE(std::regex_search(e.right, std::regex(",(25|5|75)$")));
        EXPECT_TRUE(e.last.ends_with(" is aan " + e.right + " liter."));
        quarters.insert(out - lees_getal(part[2]));
    });
    EXPECT_EQ(quarters, (std::set{0.25, 0.5, 0.75}));
}

TEST(fractions, quick_simplifying_goes_as_far_as_it_can) {
    each(M_snel_03_03_click, [](const seen& e) {
        const breuk shown = fraction(e.words[0].substr(std::string("Vereenvoudig: ").size()));
        EXPECT_EQ(fraction(e.right), shown);
        EXPECT_TRUE(in_simplest_form(fraction(e.right)));
        for (int i = 2; i <= 4; ++i)
            EXPECT_EQ(fraction(e.answer(i)) == shown, e.feedback(i).starts_with("Je bent nog niet klaar")) << i;
        EXPECT_EQ(e.made.tijdlimiet, e.made.variant == 1 ? 8 : 15);
        EXPECT_TRUE(e.last.ends_with(" De breuk wordt dus " + e.right + "."));
    });
}

} // namespace
} // namespace cijferwerf
