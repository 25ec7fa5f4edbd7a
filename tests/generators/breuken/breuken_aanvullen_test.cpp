// Fractions as numbers, worked out again from what a pupil sees: the question, the picture, the answers.
#include "tests/support/seen.h"

#include <regex>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

TEST(breuken_aanvullen, a_percentage_is_the_simplest_fraction_and_fills_so_many_squares) {
    each(L_procenten_03_14_click, [](const seen& exercise) {
        const int percent = whole(exercise.words[0]);
        EXPECT_EQ(fraction(exercise.right), (breuk{percent, 100}));
        EXPECT_EQ(exercise.last, "Goede antwoord: " + exercise.right + ".");
        for (const std::string& answer : exercise.answers())
            EXPECT_FALSE(fraction(answer).vereenvoudigbaar()) << answer;
        int yellow = 0, all = 0;
        for (const drawing_op& operation : exercise.made.plaatje.operations())
            if (const auto* box = std::get_if<box_op>(&operation))
                (box->pen.colour == geel ? yellow : all) += box->width * box->height;
        EXPECT_EQ(yellow * 100, percent * all);
    });
}

TEST(breuken_aanvullen, the_length_asked_is_in_proportion_to_the_drawing) {
    std::set<std::pair<bool, int>> forms;
    each(L_stukken_03_14_click, [&](const seen& exercise) {
        std::set<int> marks;
        for (const drawing_op& operation : exercise.made.plaatje.operations())
            if (const auto* line = std::get_if<line_op>(&operation); line != nullptr && line->from.y < 1000)
                marks.insert({line->from.x, line->to.x});
        const auto& words = exercise.texts;
        const auto middle = [](const text_op& word) {
            return word.x + static_cast<int>(text_width(word.text, word.size) / 2);
        };
        const int pieces = static_cast<int>(marks.size()) - 1;
        const int to_B =
            static_cast<int>(std::ranges::count_if(marks, [&](int x) { return x < middle(words[1]) - 20; }));
        const bool first_asked = words[3].text == "?";
        forms.insert({first_asked, pieces});

        const breuk part{to_B, pieces};
        const breuk given = fraction(words[first_asked ? 4 : 3].text);
        EXPECT_EQ(fraction(exercise.right), first_asked ? given * part : given / part);
        EXPECT_EQ(exercise.made.vraagregels[2].back(), first_asked ? 'C' : 'B');
        EXPECT_EQ(exercise.made.vraagregels[5], first_asked ? "Hoe lang is het stuk AB?" : "Hoe lang is het stuk AC?");
        EXPECT_TRUE(exercise.explanation.starts_with("Het stuk AB is het " + streepbreuk(part) + " deel van AC."));
        EXPECT_TRUE(exercise.last.ends_with(" = " + exercise.right + "."));
        for (const std::string& answer : exercise.answers())
            EXPECT_TRUE(first_asked ? fraction(answer) < given : fraction(answer) > given)
                << answer << " is out of the drawing";
    });
    EXPECT_EQ(forms.size(), 14U);
}

TEST(breuken_aanvullen, what_is_taken_off_leaves_what_stands_behind_the_sign) {
    for (const oefening_id title : {M_aanvullen_1_03_14_click, M_aanvullen_2_03_14_click})
        each(title, [](const seen& exercise) {
            const auto& words = exercise.texts;
            const auto at = [&](std::size_t i) { return whole(words[i].text); };
            const breuk left = gemengd_getal(at(0), at(1), at(2)), over{at(5), at(6)};
            EXPECT_EQ(words[3].text + words[4].text + words[7].text, "-=..");
            EXPECT_EQ(left - fraction(exercise.right), over);
            EXPECT_EQ(exercise.last, "Op de stippeltjes moet dus het getal " + exercise.right + " staan.");

            // Every step is right, and all are written over one denominator.
            const auto step =
                exercise.told(R"(getal (\d+) de breuk (\S+)\. Tel daar die (?:\S+ \(= )?([\d/]+)\)? bij op\. )"
                              R"(Dan krijg je (\S+)\. Om daar (?:\S+ \(= )?([\d/]+)\)? van over te houden )"
                              R"(moet je er (\S+) van aftrekken\.)");
            EXPECT_EQ(fraction(step[2]), (breuk{at(0), 1}));
            EXPECT_EQ(fraction(step[3]), (breuk{at(1), at(2)}));
            EXPECT_EQ(fraction(step[4]), left);
            EXPECT_EQ(fraction(step[5]), over);
            EXPECT_EQ(fraction(step[6]), fraction(exercise.right));
            for (std::size_t i = 3; i <= 6; ++i)
                EXPECT_EQ(fraction(step[i]).noemer, fraction(step[2]).noemer) << step[i];

            // The dots are erased with the ground's colour where they stand, and the answer fits in their gap.
            const auto explained = exercise.when_explained().texts;
            const text_op &dots = words[7], &eraser = explained[8], &answer = explained[9];
            EXPECT_EQ(std::tie(eraser.x, eraser.y, eraser.size, eraser.text),
                      std::tie(dots.x, dots.y, dots.size, dots.text));
            EXPECT_EQ(eraser.colour, exercise.made.plaatje.ground);
            EXPECT_EQ(answer.text, exercise.right);
            EXPECT_GT(answer.x, words[3].x + 100);
            EXPECT_LT(answer.x + text_width(answer.text, answer.size), words[4].x);
        });
}

TEST(breuken_aanvullen, exactly_one_colour_holds_the_fraction) {
    each(M_tussen_in_03_14_click, [](const seen& exercise) {
        const auto& words = exercise.texts;
        const breuk asked{whole(words[0].text), whole(words[1].text)};
        std::vector<std::string> holding;
        for (std::size_t i = 2; i < 10; i += 2) {
            std::smatch ends;
            ASSERT_TRUE(std::regex_match(words[i + 1].text, ends, std::regex(R"(0,(\d+) en 0,(\d+))")));
            const int scale = ends[1].length() == 1 ? 10 : 100;
            const breuk from{whole(ends[1]), scale}, to{whole(ends[2]), scale};
            EXPECT_TRUE(asked != from && asked != to) << "on the edge of " << words[i + 1].text;
            if (from < asked && asked < to) {
                holding.push_back(words[i].text);
                exercise.told(("alleen tussen " + words[i + 1].text + " ligt").c_str());
            }
            EXPECT_EQ(words[i].text, exercise.answers()[i / 2 - 1]);
        }
        EXPECT_EQ(holding, std::vector{exercise.right});
        const auto decimals = exercise.told(R"(geeft 0,(\d+)(\.+))");
        const int shown = whole((decimals[1] + "00").substr(0, 3));
        EXPECT_EQ(shown, asked.teller * 1000 / asked.noemer);
        EXPECT_EQ(decimals[2].length() == 1, asked == (breuk{shown, 1000})) << "dots say that it goes on";
    });
}

} // namespace
} // namespace cijferwerf
