// The sums with fractions, read off the picture as a pupil reads them - numbers over bars over numbers - and worked out
// again: the question, and the line that the explanation writes under it.
#include "tests/support/ink.h"
#include "tests/support/seen.h"

#include <map>

namespace cijferwerf {
namespace {

using enum oefening_id;

bool is_number(const ink& w) { return w.word.find_first_not_of("0123456789") == w.word.npos; }

struct bar {
    double left, right, y;
};

struct token {
    double x;
    std::string text; // a sign, or a fraction as an answer has it
};

// What stands on a board between two heights, without what a filled box has covered.
struct board {
    std::vector<ink> words;
    std::vector<bar> bars;
    std::vector<bar> strokes;

    explicit board(const drawing& drawn, int from = 0, int to = drawing::inner_height) : words(visible_words(drawn)) {
        for (const drawing_op& operation : drawn.operations()) {
            if (const auto* line = std::get_if<line_op>(&operation); line != nullptr && line->from.y == line->to.y)
                bars.push_back({double(line->from.x), double(line->to.x), double(line->from.y)});
            if (const auto* box = std::get_if<box_op>(&operation); box != nullptr && box->filled) {
                const double right = box->x + box->width;
                if (box->height == 1) strokes.push_back({double(box->x), right, double(box->y)});
                std::erase_if(bars, [&](const bar& b) {
                    return b.left >= box->x && b.right <= right && b.y >= box->y && b.y <= box->y + box->height;
                });
            }
        }
        std::erase_if(words, [&](const ink& w) { return w.top < from || w.bottom > to; });
        for (const ink& w : words)
            if (w.word == "---") bars.push_back({w.left, w.right, w.bottom - w.size * 20 * 0.275});
        std::erase_if(bars, [&](const bar& b) { return b.y < from || b.y > to; });
    }
    void keep_left_of(double x) {
        std::erase_if(words, [&](const ink& w) { return w.left > x; });
        std::erase_if(bars, [&](const bar& b) { return b.left > x; });
    }
    const ink* number_where(auto holds) const {
        const auto found =
            std::ranges::find_if(words, [&](const ink& w) { return is_number(w) && w.colour != rood && holds(w); });
        return found == words.end() ? nullptr : &*found;
    }
    // Fractions and signs from left to right. Every number must belong to a bar, near its middle.
    std::vector<token> read() const {
        std::vector<token> tokens;
        std::size_t used = 0;
        for (const bar& b : bars) {
            const auto over = [&](const ink& w) { return std::abs(w.middle() - (b.left + b.right) / 2) < 65; };
            const ink* teller = number_where([&](const ink& w) { return over(w) && std::abs(b.y - w.bottom) < 160; });
            const ink* noemer = number_where([&](const ink& w) { return over(w) && std::abs(w.top - b.y) < 160; });
            const ink* helen = number_where([&](const ink& w) {
                return w.right <= b.left + 15 && w.right > b.left - 200 && w.top < b.y && w.bottom > b.y;
            });
            if (teller == nullptr || noemer == nullptr) {
                ADD_FAILURE() << "a bar at " << b.left << " without numbers";
                continue;
            }
            used += helen == nullptr ? 2 : 3;
            tokens.push_back(
                {b.left, regel(helen == nullptr ? "" : helen->word + " ", teller->word, "/", noemer->word)});
        }
        for (const ink& w : words)
            if (w.word != "---" && w.word.find_first_of("+-:x=") == 0) tokens.push_back({w.left, w.word});
        std::ranges::sort(tokens, {}, &token::x);
        EXPECT_EQ(used, static_cast<std::size_t>(std::ranges::count_if(
                            words, [](const ink& w) { return is_number(w) && w.colour != rood; })))
            << "a number without a bar";
        return tokens;
    }
};

// What each side of the "=" signs amounts to.
std::vector<breuk> sides(const std::vector<token>& tokens) {
    std::vector<breuk> all;
    char sign = '=';
    for (const token& t : tokens) {
        if (t.text.find('/') == t.text.npos) {
            sign = t.text[0];
            continue;
        }
        const breuk number = fraction(t.text);
        switch (sign) {
        case '=': all.push_back(number); break;
        case '+': all.back() = all.back() + number; break;
        case '-': all.back() = all.back() - number; break;
        case 'x': all.back() = all.back() * number; break;
        default: all.back() = all.back() / number;
        }
    }
    return all;
}

bool in_simplest_form(const std::string& text) {
    const breuk part = fraction(text.substr(text.find(' ') + 1));
    return !part.vereenvoudigbaar() && part.teller < part.noemer;
}

TEST(fraction_sums, one_answer_is_the_sum_in_its_simplest_form_and_the_worked_line_ends_with_it) {
    for (const oefening_id generator : {L_optellen_03_14_click, M_aftrekken_03_14_click})
        each(generator, [&](const seen& e) {
            const std::vector<breuk> asked = sides(board(e.made.plaatje, 0, 1000).read());
            ASSERT_EQ(asked.size(), 1U);
            for (const std::string& answer : e.answers())
                EXPECT_EQ(fraction(answer) == asked[0] && in_simplest_form(answer), answer == e.right) << answer;

            const std::vector<token> worked = board(explained(e.made), 1000).read();
            EXPECT_EQ(worked.size(), generator == L_optellen_03_14_click ? 9U : 11U);
            for (const breuk& side : sides(worked)) EXPECT_EQ(side, asked[0]);
            EXPECT_EQ(worked.back().text, e.right);
            EXPECT_EQ(e.last, "Het goede antwoord is " + e.right + ".");
        });
}

TEST(fraction_sums, two_numbers_on_the_dots_make_the_three_fractions_equal) {
    each(M_vereenvoudigen_03_14_click, [](const seen& e) {
        const auto with_numbers = [&](const std::string& pair) {
            drawing filled = e.made.plaatje;
            filled.clear();
            std::string numbers[]{pair.substr(0, pair.find(' ')), pair.substr(pair.rfind(' ') + 1)}, *next = numbers;
            for (const drawing_op& operation : e.made.plaatje.operations()) {
                if (const auto* line = std::get_if<line_op>(&operation))
                    filled.line(line->from.x, line->from.y, line->to.x, line->to.y, wit);
                if (const auto* text = std::get_if<text_op>(&operation)) {
                    const double middle = text->x + text_width(text->text, text->size) / 2;
                    filled.text_size = text->size;
                    filled.print_centred(static_cast<int>(middle), text->y,
                                         text->text == "...." ? *next++ : text->text);
                }
            }
            return sides(board(filled).read());
        };
        for (const std::string& answer : e.answers()) {
            const std::vector<breuk> all = with_numbers(answer);
            ASSERT_EQ(all.size(), 3U);
            EXPECT_EQ(all[0] == all[1] && all[1] == all[2], answer == e.right) << answer;
        }
        const board done(explained(e.made));
        EXPECT_EQ(sides(done.read()), with_numbers(e.right));
        for (const ink& w : done.words) EXPECT_NE(w.word, "....");
    });
}

TEST(fraction_sums, the_right_colour_is_that_of_the_outcome_that_the_worked_line_ends_with) {
    for (const oefening_id generator : {Z_delen_03_14_click, Z_vermenigvuldigen_03_14_click})
        each(generator, [](const seen& e) {
            std::map<std::string, std::string> outcomes; // by colour: the number
            const std::vector<std::string> on_bars(e.words.end() - 8, e.words.end());
            for (std::size_t i = 0; i < 8; i += 2) outcomes[on_bars[i]] = on_bars[i + 1];
            ASSERT_EQ(outcomes.size(), 4U);

            board question(e.made.plaatje, 0, 1000);
            question.keep_left_of(3000);
            const breuk wanted = sides(question.read())[0];
            for (const std::string& answer : e.answers())
                EXPECT_EQ(fraction(outcomes.at(answer)) == wanted, answer == e.right) << answer;

            board worked(explained(e.made), 1000);
            if (std::ranges::any_of(worked.words, [](const ink& w) { return w.word == "groen"; }))
                worked.keep_left_of(3000);
            const std::vector<token> line = worked.read();
            for (const breuk& side : sides(line)) EXPECT_EQ(side, wanted);
            EXPECT_EQ(line.back().text, outcomes.at(e.right));
            EXPECT_TRUE(in_simplest_form(line.back().text));
            EXPECT_TRUE(e.last.ends_with(outcomes.at(e.right) + ": de juiste kleur is " + e.right + ".")) << e.last;
        });
}

TEST(fraction_sums, each_red_stroke_runs_through_a_number_and_divides_it_and_both_rows_by_as_much) {
    for (const oefening_id generator : {Z_delen_03_14_click, Z_vermenigvuldigen_03_14_click})
        each(generator, [](const seen& e) {
            const board worked(explained(e.made), 1000);
            EXPECT_EQ(worked.strokes.size() % 2, 0U);
            EXPECT_GE(worked.strokes.size(), 2U);
            breuk above{1, 1}, below{1, 1};
            for (const bar& stroke : worked.strokes) {
                const auto near = [&](bool red, double reach) {
                    return std::ranges::find_if(worked.words, [&](const ink& w) {
                        return (w.colour == rood) == red && w.middle() > stroke.left && w.middle() < stroke.right &&
                               w.left > stroke.left - 15 && w.top < stroke.y + reach && w.bottom > stroke.y - reach;
                    });
                };
                const auto struck = near(false, 0);
                const auto instead = near(true, 200);
                ASSERT_NE(struck, worked.words.end());
                ASSERT_NE(instead, worked.words.end());
                const breuk by = fraction(struck->word) / fraction(instead->word);
                EXPECT_EQ(by.rest().teller, 0);
                EXPECT_GT(by.geheel(), 1);
                breuk& row = stroke.y < 1541 ? above : below;
                row = row * by;
            }
            EXPECT_EQ(above, below);
        });
}

} // namespace
} // namespace cijferwerf
