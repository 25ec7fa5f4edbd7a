// The verbs with which exercises choose and place their answers, and draw what goes with them.
#include "generators/gedeeld/breuk.h"
#include "generators/gedeeld/tekening_macht.h"
#include "tests/support/operation_text.h"
#include "tests/support/seen.h"

#include <cmath>
#include <set>

namespace cijferwerf {
namespace {

struct proef : oefening {
    proef() : oefening([] { return 36'000.F; }) {}
    using oefening::antwoord_over_stippen;
    using oefening::bijna;
    using oefening::bord;
    using oefening::drie_andere;
    using oefening::druk_machten;
    using oefening::fout;
    using oefening::goed;
    using oefening::juiste_antwoord;
    using oefening::kleurkeuze;
    using oefening::opdrachten;
    using oefening::opeenvolgend;
    using oefening::snel_som;
    using oefening::som_met_antwoord;
    using oefening::vier_opties;
    using oefening::vier_rekenaars;

    void begin() {
        maak_leeg();
        plaatje.reset();
    }
    // How many answers are smaller than the right one.
    int rang() {
        int kleiner = 0;
        const double juist = lees_getal(juiste_antwoord());
        for (int i = 1; i <= 4; ++i) kleiner += lees_getal(antwoord(i)) < juist;
        return kleiner;
    }
    // What is told about the answer at a fixed place.
    std::string verteld(int plaats) { return foutregels(getoond_antwoord(plaats, juiste_positie))[0]; }
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
            EXPECT_EQ(made.antwoord_1, std::string(tekst(right)));
            for (int i = 2; i <= 4; ++i) {
                came.insert(whole(made.antwoord(i)));
                EXPECT_EQ(joined(made.foutregels(i)), regel("fout", made.antwoord(i), " tweede "));
            }
            second.insert(whole(made.antwoord_2));
        }
        expect_even(ranked, ranks, regel("right", right));
        EXPECT_EQ(came, offered);
        EXPECT_EQ(second, offered);
    }
}

TEST(mistakes, are_compared_by_value) {
    proef made;
    made.begin();
    made.drie_andere(breuk{1, 2}, streepbreuk, {{{2, 4}}, {{1, 3}}, {{2, 6}}, {{5, 4}}, {{0, 3}}, {{-1, 3}}, {{1, 5}}});
    std::set<std::string> wrong{made.antwoord_2, made.antwoord_3, made.antwoord_4};
    EXPECT_EQ(wrong, (std::set<std::string>{"1/3", "5/4", "1/5"}));
    const std::array options = made.vier_opties(3, tekst, {{4, {"fout 4"}}, {5, {"fout 5"}}, {6, {"fout 6"}}});
    EXPECT_EQ(std::string_view(options[0].waarde), " 3");
    for (std::size_t i = 1; i < 4; ++i)
        EXPECT_EQ(regel("fout", options[i].waarde), std::string_view(options[i].melding[0]));
    EXPECT_TRUE(alle_verschillend(std::array{breuk{1, 2}, breuk{2, 3}, breuk{1, 3}}));
    EXPECT_FALSE(alle_verschillend(std::array{breuk{1, 2}, breuk{2, 3}, breuk{4, 6}}));
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
            made.opeenvolgend(
                right, [](int n) { return regel(n, " potten"); }, step, least);
            ++in_a_row[made.rang()];
            EXPECT_EQ(made.juiste_positie, made.rang() + 1);
            EXPECT_EQ(made.juiste_antwoord(), regel(kaal(right), " potten"));
            for (int i = 2; i <= 4; ++i) EXPECT_EQ(whole(made.antwoord(i)) - whole(made.antwoord(i - 1)), step);
            EXPECT_GE(whole(made.antwoord_1), least);

            made.begin();
            made.bijna(right, step);
            ++nearby[made.rang()];
            for (int i = 2; i <= 4; ++i) {
                const int away = std::abs(whole(made.antwoord(i)) - right);
                EXPECT_TRUE(away > 0 && away <= 3 * step && away % step == 0 && whole(made.antwoord(i)) > 0);
            }
        }
        expect_even(in_a_row, places, regel("in a row around", right));
        if (least == step) expect_even(nearby, places, regel("near", right)); // these begin at one step
    }
}

TEST(the_record, holds_three_wrong_answers_seven_commands_and_options_by_four) {
    proef made;
    const std::vector<std::pair<std::string_view, std::function<void()>>> rows{
        {"a fourth wrong answer",
         [&] {
             for (int i = 0; i < 4; ++i) made.fout(i);
         }},
        {"an eighth command",
         [&] {
             made.opdrachten("LINE_", leeg, "LINE_", "LINE_", "LINE_", "", "LINE_"); // what is empty does not count
             made.opdrachten("LINE_", "LINE_", "LINE_");
         }},
        {"two different mistakes",
         [&] {
             made.drie_andere(1, tekst, {{2}, {3}, {2}, {1}});
         }},
        {"three options",
         [&] {
             made.kleurkeuze({0, 0}, 400, {rood, geel, wit, groen}, {{"a"}, {"b"}, {"c"}});
         }},
    };
    for (const auto& [what, run] : rows) {
        made.begin();
        EXPECT_THROW(run(), checked_error) << what;
    }
}

double contrast(kleur one, kleur other) {
    const auto light = [](kleur k) {
        const auto part = [rgb = kleur_rgb[k]](int shift) {
            const double value = ((rgb >> shift) & 0xFF) / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0) + 0.05;
    };
    return std::max(light(one), light(other)) / std::min(light(one), light(other));
}

TEST(colours, have_letters_that_stand_out) {
    for (int k = 0; k < aantal_kleuren; ++k) {
        const auto ground = static_cast<kleur>(k);
        EXPECT_GE(contrast(ground, letterkleur(ground)), 4.5) << woord(ground);
        EXPECT_EQ(woord(ground).substr(0, 2), bijvoeglijk(ground).substr(0, 2));
    }
}

TEST(four_options, stand_beside_the_word_that_answers_for_them) {
    constexpr std::string_view lang = "12.345,6 : 34,5 = 357,84 en dus niet 358";
    constexpr std::array<std::string_view, 4> namen{"Hr. Vermaat..... ", "Erna....... ", "Bep", "Mevr. Kroos.... "};
    constexpr std::array<std::string_view, 4> antwoorden{"Hr. Vermaat", "Erna", "Bep", "Mevr. Kroos"};
    constexpr std::array kleuren{rood, donkerblauw, wit, groen};
    const std::array<keuze<>, 4> opties{
        {{lang, {"nooit"}}, {"9 + 2", {"fout 9"}}, {"8 + 2", {"fout 8"}}, {"7 + 2", {"fout 7"}}}};
    std::map<int, int> places[2];
    proef made;
    for (int round = 0; round < rounds; ++round)
        for (const bool personen : {false, true}) {
            made.begin();
            made.bord(cyaan, geel, personen ? 10 : 16);
            if (personen)
                made.vier_rekenaars({250, 150}, 450, namen, opties);
            else
                made.kleurkeuze({800, 150}, 450, kleuren, opties);
            ++places[personen][made.juiste_positie];
            const seen shown(made);
            ASSERT_EQ(shown.texts.size(), 8U);
            for (std::size_t i = 0; i < 4; ++i) {
                const text_op &word = shown.texts[2 * i], &option = shown.texts[2 * i + 1];
                const int place = static_cast<int>(i) + 1;
                const bool right = place == made.juiste_positie;
                EXPECT_EQ(word.text, personen ? namen[i] : woord(kleuren[i]));
                EXPECT_EQ(made.antwoord(place), personen ? antwoorden[i] : word.text);
                EXPECT_EQ(option.text == lang, right);
                if (!right) {
                    EXPECT_EQ(made.verteld(place), "fout " + option.text.substr(0, 1));
                }
                EXPECT_EQ(option.x, shown.texts[1].x); // one below the other
                EXPECT_LT(word.x + text_width(word.text, word.size), option.x);
                EXPECT_LE(option.x + text_width(option.text, option.size), drawing::inner_width - 180);
                if (personen) continue;
                const box_op& bar = shown.blocks[i];
                EXPECT_EQ(bar.pen.colour, kleuren[i]);
                EXPECT_EQ(option.colour, letterkleur(kleuren[i]));
                EXPECT_LE(bar.y, option.y);
                EXPECT_LE(option.y + text_height(option.size), bar.y + bar.height);
            }
        }
    for (const auto& counts : places) expect_even(counts, {1, 2, 3, 4}, "place");
}

TEST(powers, are_raised_and_leave_the_picture_as_it_was) {
    proef made;
    made.begin();
    made.bord(wit, zwart, 20);
    EXPECT_EQ(made.druk_machten(100, 200, "12^3"), 100 + 400 + 120);
    EXPECT_EQ(teken_met_machten(made.plaatje, 1000, 900, "4^10 = x"), 1000 + breedte_met_machten("4^10 = x", 20));
    EXPECT_EQ(as_texts(made.plaatje),
              (std::vector<std::string>{"text 100,200 colour 0 size 20 \"12\"", "text 500,194 colour 0 size 12 \"3\"",
                                        "text 1000,900 colour 0 size 20 \"4\"", "text 1200,894 colour 0 size 12 \"10\"",
                                        "text 1440,900 colour 0 size 20 \" = x\""}));
    EXPECT_EQ(made.plaatje.text_size, 20);
    EXPECT_EQ(made.plaatje.y, 900);
}

TEST(the_explanation, ends_the_sum_that_was_drawn_for_it) {
    proef made;
    made.begin();
    made.bord(groen, wit, 14);
    made.som_met_antwoord(3680, 800, geel, 15, " 3^2 + 14 =", duizend(1023));
    const std::vector<text_op> texts = seen(made).when_explained().texts;
    EXPECT_EQ(texts.back().text, "1.023");
    EXPECT_EQ(texts.back().colour, geel);
    const text_op& end = texts[texts.size() - 2];
    EXPECT_EQ(end.text, " + 14 =");
    EXPECT_NEAR(end.x + text_width(end.text, 15) + text_width(" ", 15), texts.back().x, 2);
}

TEST(the_explanation, writes_the_answer_where_the_dots_stood) {
    for (const std::string_view dots : {"..", "............"})
        for (const long long answer : {5, 123'456}) {
            proef made;
            made.begin();
            made.bord(groen, wit, 14);
            made.antwoord_over_stippen(500, 600, geel, dots, duizend(answer));
            const int end = made.plaatje.x;
            const seen shown = seen(made).when_explained();
            const text_op& dotted = shown.texts.front();
            const text_op& written = shown.texts.back();
            EXPECT_EQ(written.text, std::string(kaal(duizend(answer))));
            for (const text_op* text : {&dotted, &written}) { // both in the middle of their room
                const int after = end - text->x - text_width(text->text, 14);
                EXPECT_NEAR(text->x - 500, after, 2) << text->text;
                EXPECT_GE(after, 0);
            }
            const box_op& wiped = shown.blocks.back();
            EXPECT_EQ(wiped.pen.colour, groen);
            EXPECT_EQ(wiped.x, dotted.x);
            EXPECT_EQ(wiped.width, text_width(dots, 14));
            EXPECT_TRUE(wiped.y < 600 + 14 * 20 / 2 && wiped.y + wiped.height > 600 + 14 * 20 * 0.91);
        }
}

TEST(a_quick_sum, keeps_the_room_of_the_bar_free) {
    proef made;
    for (const auto& [sum, size] :
         {std::pair{"Hoeveel is 3 x 4?", 20.0}, {"1.500 cm is hetzelfde als ... meter", 15.0}}) {
        made.begin();
        made.snel_som(7, sum);
        const text_op drawn = seen(made).texts.at(0);
        EXPECT_EQ(made.tijdlimiet, 7);
        EXPECT_EQ(drawn.size, size);
        EXPECT_LT(drawn.y + text_height(size), 1100);
        EXPECT_LE(drawn.x + text_width(drawn.text, size), drawing::inner_width - 200);
    }
}

} // namespace
} // namespace cijferwerf
