// The verbs with which exercises choose and place their answers.
#include "generators/gedeeld/breuk.h"
#include "tests/support/seen.h"

#include <cmath>
#include <map>
#include <set>

namespace cijferwerf {
namespace {

struct proef : oefening {
    proef() : oefening([] { return 36'000.F; }) {}
    using oefening::antwoord_over_stippen;
    using oefening::bijna;
    using oefening::bord;
    using oefening::drie_andere;
    using oefening::fout;
    using oefening::kleurkeuze;
    using oefening::opdrachten;
    using oefening::opeenvolgend;
    using oefening::snel_som;
    using oefening::som_met_antwoord;
    using oefening::vier_opties;

    void begin() {
        maak_leeg();
        plaatje.reset();
    }
    // How many answers are smaller than the right one.
    int rang() {
        int smaller = 0;
        for (int i = 1; i <= 4; ++i)
            smaller += lees_getal(antwoord(i)) < lees_getal(antwoord(std::max(juiste_positie, 1)));
        return smaller;
    }
};

constexpr int rounds = 600;

// Each of these came about as often as the others, and nothing else came.
void expect_even(const std::map<int, int>& counts, const std::set<int>& wanted, std::string_view what) {
    std::set<int> came;
    for (const auto& [value, count] : counts) {
        came.insert(value);
        EXPECT_GT(count, rounds / static_cast<int>(wanted.size()) * 2 / 3) << what << ": " << value;
    }
    EXPECT_EQ(came, wanted) << what;
}

TEST(mistakes, three_that_differ_are_drawn_with_their_own_feedback_and_no_rank_gives_the_right_one_away) {
    const struct {
        int right;
        std::vector<int> pool;
        std::set<int> ranks, offered;
    } rows[]{
        {10, {12, 8, 8, 10, 0, -3, 15, 30}, {0, 1}, {8, 12, 15, 30}}, // doubles, the right one and nothing are no use
        {10, {11, 12, 13, 9, 8, 7}, {0, 1, 2, 3}, {7, 8, 9, 11, 12, 13}},
        {10, {1, 2, 3}, {3}, {1, 2, 3}},
        {0, {-1, 0, 1, 2}, {1}, {-1, 1, 2}},
    };
    proef made;
    for (const auto& [right, pool, ranks, offered] : rows) {
        std::map<int, int> ranked;
        std::set<int> came, second; // answer 2 is not always on one side
        for (int round = 0; round < rounds; ++round) {
            made.begin();
            std::vector<keuze<int>> mistakes; // lines glued for an exercise are gone with the next
            std::set<int> before;
            for (const int value : pool)
                mistakes.push_back({value, {before.insert(value).second ? regel("fout", value) : "dubbel", "tweede"}});
            made.drie_andere(right, tekst, mistakes);
            ++ranked[made.rang()];
            EXPECT_EQ(made.antwoord_1, std::string_view(tekst(right)));
            for (int i = 2; i <= 4; ++i) {
                came.insert(whole(made.antwoord(i)));
                EXPECT_EQ(seen(made).feedback(i), regel("fout", made.antwoord(i), " tweede "));
            }
            second.insert(whole(made.antwoord_2));
        }
        expect_even(ranked, ranks, regel("right", right));
        EXPECT_EQ(came, offered);
        EXPECT_EQ(second, offered);
    }
    made.begin();
    made.drie_andere(breuk{1, 2}, streepbreuk, {{{2, 4}}, {{1, 3}}, {{2, 6}}, {{5, 4}}, {{0, 3}}, {{-1, 3}}, {{1, 5}}});
    EXPECT_EQ((std::set<std::string>{made.antwoord_2, made.antwoord_3, made.antwoord_4}),
              (std::set<std::string>{"1/3", "5/4", "1/5"}))
        << "compared by value";
}

TEST(values_in_a_row, leave_the_place_of_the_right_one_open_and_stay_sensible) {
    const struct {
        int right, step, least;
        std::set<int> places; // from 0 on
    } rows[]{{5, 1, 1, {0, 1, 2, 3}}, {2, 1, 1, {0, 1}}, {1, 1, 1, {0}}, {40, 20, 20, {0, 1}}, {2, 1, 0, {0, 1, 2}}};
    proef made;
    for (const auto& [right, step, least, places] : rows) {
        std::map<int, int> in_a_row, nearby;
        for (int round = 0; round < rounds; ++round) {
            made.begin();
            made.opeenvolgend(right, tekst, step, least);
            ++in_a_row[made.rang()];
            EXPECT_EQ(seen(made).right, std::to_string(right));
            const auto values = seen(made).numbers();
            EXPECT_GE(values[0], least);
            for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(values[i] - values[i - 1], step);

            made.begin();
            made.bijna(right, step);
            ++nearby[made.rang()];
            for (const double near : seen(made).numbers())
                EXPECT_TRUE(std::abs(near - right) <= 3 * step && std::fmod(near - right, step) == 0 && near > 0);
        }
        expect_even(in_a_row, places, regel("in a row around", right));
        if (least == step) expect_even(nearby, places, regel("near", right)); // these begin at one step
    }
}

TEST(the_record, holds_three_wrong_answers_seven_commands_and_options_by_four) {
    proef made;
    const std::vector<std::function<void()>> too_many{
        [&] {
            for (int i = 0; i < 4; ++i) made.fout(i);
        },
        [&] {
            made.opdrachten("LINE_", leeg, "LINE_", "LINE_", "LINE_", "", "LINE_"); // what is empty does not count
            made.opdrachten("LINE_", "LINE_", "LINE_");
        },
        [&] {
            made.drie_andere(1, tekst, {{2}, {3}, {2}, {1}});
        },
        [&] {
            made.kleurkeuze({0, 0}, 400, {rood, geel, wit, groen}, {{"a"}, {"b"}, {"c"}});
        }};
    for (const auto& run : too_many) {
        made.begin();
        EXPECT_THROW(run(), checked_error);
    }
}

TEST(a_quick_sum, stands_above_the_bar_as_large_as_it_fits) {
    proef made;
    for (const auto& [sum, size] : {std::pair{"Hoeveel is 3 x 4?", 20}, {"1.500 cm is hetzelfde als ... meter", 15}}) {
        made.begin();
        made.snel_som(7, sum);
        const text_op drawn = seen(made).texts.at(0);
        EXPECT_TRUE(made.tijdlimiet == 7 && drawn.size == size && drawn.y + text_height(size) < 1100) << sum;
    }
}

TEST(the_explanation, writes_the_answer_where_the_sum_ends_or_dots_stood) {
    proef made;
    made.begin();
    made.bord(groen, wit, 14);
    made.som_met_antwoord(3680, 800, geel, 15, " 3^2 + 14 =", duizend(1023));
    const std::vector<text_op> texts = seen(made).when_explained().texts;
    const text_op &end = texts[texts.size() - 2], &written = texts.back();
    EXPECT_TRUE(end.text == " + 14 =" && written.text == "1.023" && written.colour == geel && written.x == 3680);
    EXPECT_NEAR(end.x + text_width(regel(end.text, " "), 15), 3680, 2);

    for (const std::string_view dots : {"..", "............"}) {
        made.begin();
        made.bord(groen, wit, 14);
        made.antwoord_over_stippen(500, 600, geel, dots, duizend(123'456));
        const int room = made.plaatje.x() - 500;
        const seen shown = seen(made).when_explained();
        const box_op& wiped = shown.blocks.back();
        EXPECT_EQ(shown.words.back(), "123.456");
        for (const text_op* text : {&shown.texts.front(), &shown.texts.back()}) { // both in the middle of their room
            EXPECT_NEAR(2 * (text->x - 500) + text_width(text->text, 14), room, 2) << text->text;
            EXPECT_GE(text->x, 500);
        }
        EXPECT_TRUE(wiped.pen.colour == groen && wiped.x == shown.texts[0].x && wiped.width == text_width(dots, 14) &&
                    wiped.y < 740 && wiped.y + wiped.height > 600 + 14 * 20 * 0.91);
    }
}

} // namespace
} // namespace cijferwerf
