// Fractions as numbers, worked out again from what a pupil sees: the question, the picture, the answers.
#include "forms/practice/explanation.h"
#include "generators/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

int whole(const std::string& text) { return static_cast<int>(lees_getal(text)); }

// "1 3/8", "3/4" or "12".
breuk value(const std::string& text) {
    static const std::regex number(R"( ?(?:(\d+)(?: |$))?(?:(\d+)/(\d+))?)");
    std::smatch part;
    EXPECT_TRUE(std::regex_match(text, part, number)) << text;
    return gemengd_getal(whole(part[1]), whole(part[2]), part[3].matched ? whole(part[3]) : 1);
}

struct seen {
    const oefening& made;
    std::vector<text_op> words; // of the picture
    std::string right;
    std::string explanation;
    std::string last; // line of it

    explicit seen(const oefening& exercise) : made(exercise), words(words_of(made.plaatje)) {
        right = answers()[static_cast<std::size_t>(std::max(made.juiste_positie, 1) - 1)];
        for (const std::string& line : made.uitlegregels)
            if (line != leeg) explanation += (last = line) + ' ';
    }
    static std::vector<text_op> words_of(const drawing& drawn) {
        std::vector<text_op> found;
        for (const drawing_op& operation : drawn.operations())
            if (const auto* text = std::get_if<text_op>(&operation)) found.push_back(*text);
        return found;
    }
    std::array<std::string, 4> answers() const {
        std::array all{made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
        for (std::string& answer : all) answer.erase(0, 1);
        return all;
    }
    // The groups of a pattern that the explanation, its lines set one after another, fits.
    std::smatch told(const char* pattern) const {
        std::smatch found;
        EXPECT_TRUE(std::regex_search(explanation, found, std::regex(pattern))) << explanation;
        return found;
    }
    std::vector<text_op> words_when_explained() const {
        drawing board = made.plaatje;
        teken_opdrachten(board, made.uitlegopdrachten);
        return words_of(board);
    }
};

template<class Check>
void each(oefening_id generator, Check check) {
    oefeningen maker([] { return 43'200.0F; });
    maker.toeval.restart(1973);
    for (int i = 0; i < 630 && !testing::Test::HasFailure(); ++i) {
        maker.maak(generator);
        const seen exercise(maker);
        SCOPED_TRACE(exercise.right + " | " + exercise.explanation);
        check(exercise);
    }
}

TEST(breuken_aanvullen, a_percentage_is_the_simplest_fraction_and_fills_so_many_squares) {
    each(L_procenten_03_14_click, [](const seen& exercise) {
        const int percent = whole(exercise.words[0].text);
        EXPECT_EQ(value(exercise.right), (breuk{percent, 100}));
        EXPECT_EQ(exercise.last, "Goede antwoord: " + exercise.right + ".");
        for (const std::string& answer : exercise.answers()) EXPECT_FALSE(value(answer).vereenvoudigbaar()) << answer;
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
        const auto& words = exercise.words;
        const auto middle = [](const text_op& word) {
            return word.x + static_cast<int>(text_width(word.text, word.size) / 2);
        };
        const int pieces = static_cast<int>(marks.size()) - 1;
        const int to_B =
            static_cast<int>(std::ranges::count_if(marks, [&](int x) { return x < middle(words[1]) - 20; }));
        const bool first_asked = words[3].text == "?";
        forms.insert({first_asked, pieces});

        const breuk part{to_B, pieces};
        const breuk given = value(words[first_asked ? 4 : 3].text);
        EXPECT_EQ(value(exercise.right), first_asked ? given * part : given / part);
        EXPECT_EQ(exercise.made.vraagregels[2].back(), first_asked ? 'C' : 'B');
        EXPECT_EQ(exercise.made.vraagregels[5], first_asked ? "Hoe lang is het stuk AB?" : "Hoe lang is het stuk AC?");
        EXPECT_TRUE(exercise.explanation.starts_with("Het stuk AB is het " + streepbreuk(part) + " deel van AC."));
        EXPECT_TRUE(exercise.last.ends_with(" = " + exercise.right + "."));
        for (const std::string& answer : exercise.answers())
            EXPECT_TRUE(first_asked ? value(answer) < given : value(answer) > given)
                << answer << " is out of the drawing";
    });
    EXPECT_EQ(forms.size(), 14U);
}

TEST(breuken_aanvullen, what_is_taken_off_leaves_what_stands_behind_the_sign) {
    for (const oefening_id title : {M_aanvullen_1_03_14_click, M_aanvullen_2_03_14_click})
        each(title, [](const seen& exercise) {
            const auto& words = exercise.words;
            const auto at = [&](std::size_t i) { return whole(words[i].text); };
            const breuk left = gemengd_getal(at(0), at(1), at(2)), over{at(5), at(6)};
            EXPECT_EQ(words[3].text + words[4].text + words[7].text, "-=..");
            EXPECT_EQ(left - value(exercise.right), over);
            EXPECT_EQ(exercise.last, "Op de stippeltjes moet dus het getal " + exercise.right + " staan.");

            // Every step is right, and all are written over one denominator.
            const auto step =
                exercise.told(R"(getal (\d+) de breuk (\S+)\. Tel daar die (?:\S+ \(= )?([\d/]+)\)? bij op\. )"
                              R"(Dan krijg je (\S+)\. Om daar (?:\S+ \(= )?([\d/]+)\)? van over te houden )"
                              R"(moet je er (\S+) van aftrekken\.)");
            EXPECT_EQ(value(step[2]), (breuk{at(0), 1}));
            EXPECT_EQ(value(step[3]), (breuk{at(1), at(2)}));
            EXPECT_EQ(value(step[4]), left);
            EXPECT_EQ(value(step[5]), over);
            EXPECT_EQ(value(step[6]), value(exercise.right));
            for (std::size_t i = 3; i <= 6; ++i) EXPECT_EQ(value(step[i]).noemer, value(step[2]).noemer) << step[i];

            // The dots are erased with the ground's colour where they stand, and the answer fits in their gap.
            const auto explained = exercise.words_when_explained();
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
        const auto& words = exercise.words;
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
        const int shown = whole((decimals[1].str() + "00").substr(0, 3));
        EXPECT_EQ(shown, asked.teller * 1000 / asked.noemer);
        EXPECT_EQ(decimals[2].length() == 1, asked == (breuk{shown, 1000})) << "dots say that it goes on";
    });
}

} // namespace
} // namespace cijferwerf
