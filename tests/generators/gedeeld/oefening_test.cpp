// The verbs with which exercises choose their mistakes and write their explanation.
#include "generators/gedeeld/breuk.h"
#include "tests/support/seen.h"

#include <set>

namespace cijferwerf {
namespace {

struct proef : oefening {
    proef() : oefening([] { return 36'000.F; }) {}
    using oefening::antwoord_over_stippen;
    using oefening::bord;
    using oefening::drie_andere;
    using oefening::som_met_antwoord;

    void begin() {
        maak_leeg();
        plaatje.reset();
    }
};

TEST(mistakes, three_that_differ_are_drawn_with_their_own_feedback) {
    const struct {
        int right;
        std::vector<int> pool;
        std::set<int> offered;
    } rows[]{
        {10, {12, 8, 8, 10, 0, -3, 15, 30}, {8, 12, 15, 30}}, // doubles, the right one and nothing are no use
        {0, {-1, 0, 1, 2}, {-1, 1, 2}},
    };
    proef made;
    for (const auto& [right, pool, offered] : rows) {
        std::set<int> came;
        for (int round = 0; round < 100; ++round) {
            made.begin();
            std::vector<keuze<int>> mistakes; // lines glued for an exercise are gone with the next
            for (const int value : pool) mistakes.push_back({value, {regel("fout", value), "tweede"}});
            made.drie_andere(right, tekst, mistakes);
            EXPECT_EQ(made.antwoord_1, std::string_view(tekst(right)));
            for (int i = 2; i <= 4; ++i) {
                came.insert(whole(made.antwoord(i)));
                EXPECT_EQ(seen(made).feedback(i), regel("fout", made.antwoord(i), " tweede "));
            }
        }
        EXPECT_EQ(came, offered);
    }
    made.begin();
    made.drie_andere(breuk{1, 2}, streepbreuk, {{{2, 4}}, {{1, 3}}, {{2, 6}}, {{5, 4}}, {{0, 3}}, {{-1, 3}}, {{1, 5}}});
    EXPECT_EQ((std::set<std::string>{made.antwoord_2, made.antwoord_3, made.antwoord_4}),
              (std::set<std::string>{"1/3", "5/4", "1/5"}))
        << "compared by value";
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
