// The sums with fractions, read off the picture as a pupil reads them - numbers over bars over numbers - and worked out
// again: the question, and the line that the explanation writes under it.
#include "forms/practice/explanation.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <regex>

namespace cijferwerf {
namespace {

using enum oefening_id;

struct word {
    double left, right, top; // of the line in which it stands
    double size;
    kleur colour;
    std::string text;
    bool is_number() const { return text.find_first_not_of("0123456789") == text.npos; }
    double middle() const { return (left + right) / 2; }
    double ink_top() const { return top + digit_top(size); }
    double base() const { return top + size * 20 * 0.905; }
};

struct bar {
    double left, right, y;
};

struct token {
    double x;
    std::string text; // a sign, or a fraction as an answer has it
};

double amount(const std::string& text) {
    static const std::regex number(R"((?:(\d+)(?: |$))?(?:(\d+)/(\d+))?)");
    std::smatch part;
    EXPECT_TRUE(std::regex_match(text, part, number)) << text;
    return lees_getal(part[1].str()) + (part[3].matched ? lees_getal(part[2].str()) / lees_getal(part[3].str()) : 0);
}

bool same(double a, double b) { return std::abs(a - b) < 1e-9; }

// What stands on a board between two heights, without what a filled box has covered.
struct board {
    std::vector<word> words;
    std::vector<bar> bars;
    std::vector<bar> strokes;

    explicit board(const drawing& drawn, int from = 0, int to = drawing::inner_height) {
        for (const drawing_op& operation : drawn.operations()) {
            if (const auto* text = std::get_if<text_op>(&operation)) add(*text);
            if (const auto* line = std::get_if<line_op>(&operation); line != nullptr && line->from.y == line->to.y)
                bars.push_back({double(line->from.x), double(line->to.x), double(line->from.y)});
            if (const auto* box = std::get_if<box_op>(&operation); box != nullptr && box->filled) {
                const double right = box->x + box->width;
                if (box->height == 1) strokes.push_back({double(box->x), right, double(box->y)});
                const auto covered = [&](const auto& what, double y) {
                    return what.left >= box->x && what.right <= right && y >= box->y && y <= box->y + box->height;
                };
                std::erase_if(words, [&](const word& w) { return covered(w, (w.ink_top() + w.base()) / 2); });
                std::erase_if(bars, [&](const bar& b) { return covered(b, b.y); });
            }
        }
        std::erase_if(words, [&](const word& w) { return w.ink_top() < from || w.base() > to; });
        std::erase_if(bars, [&](const bar& b) { return b.y < from || b.y > to; });
    }
    void add(const text_op& text) {
        for (std::size_t at = text.text.find_first_not_of(' '); at != std::string::npos;) {
            const std::size_t end = std::min(text.text.find(' ', at), text.text.size());
            const double left = text.x + text_width(text.text.substr(0, at), text.size);
            const std::string found = text.text.substr(at, end - at);
            const double right = left + text_width(found, text.size);
            if (found == "---")
                bars.push_back({left, right, text.y + text.size * 20 * (0.905 - 0.275)});
            else
                words.push_back({left, right, double(text.y), text.size, text.colour, found});
            at = text.text.find_first_not_of(' ', end);
        }
    }
    const word* number_where(auto holds) const {
        const auto found =
            std::ranges::find_if(words, [&](const word& w) { return w.is_number() && w.colour != rood && holds(w); });
        return found == words.end() ? nullptr : &*found;
    }
    // Fractions and signs from left to right. Every number must belong to a bar, near its middle.
    std::vector<token> read() const {
        std::vector<token> tokens;
        std::size_t used = 0;
        for (const bar& b : bars) {
            const auto over = [&](const word& w) { return std::abs(w.middle() - (b.left + b.right) / 2) < 65; };
            const word* teller = number_where([&](const word& w) { return over(w) && std::abs(b.y - w.base()) < 160; });
            const word* noemer =
                number_where([&](const word& w) { return over(w) && std::abs(w.ink_top() - b.y) < 160; });
            const word* helen = number_where([&](const word& w) {
                return w.right <= b.left + 15 && w.right > b.left - 200 && w.ink_top() < b.y && w.base() > b.y;
            });
            if (teller == nullptr || noemer == nullptr) {
                ADD_FAILURE() << "a bar at " << b.left << " without numbers";
                continue;
            }
            used += helen == nullptr ? 2 : 3;
            tokens.push_back(
                {b.left, regel(helen == nullptr ? "" : helen->text + " ", teller->text, "/", noemer->text)});
        }
        for (const word& w : words)
            if (w.text.find_first_of("+-:x=") == 0) tokens.push_back({w.left, w.text});
        std::ranges::sort(tokens, {}, &token::x);
        EXPECT_EQ(used, static_cast<std::size_t>(std::ranges::count_if(
                            words, [](const word& w) { return w.is_number() && w.colour != rood; })))
            << "a number without a bar";
        return tokens;
    }
};

double calculate(double a, char sign, double b) {
    switch (sign) {
    case '+': return a + b;
    case '-': return a - b;
    case 'x': return a * b;
    default: return a / b;
    }
}

// What each side of the "=" signs amounts to.
std::vector<double> sides(const std::vector<token>& tokens) {
    std::vector<double> all;
    char sign = '=';
    for (const token& t : tokens) {
        if (t.text.find('/') == t.text.npos)
            sign = t.text[0];
        else if (sign == '=')
            all.push_back(amount(t.text));
        else
            all.back() = calculate(all.back(), sign, amount(t.text));
    }
    return all;
}

bool in_simplest_form(const std::string& text) {
    const auto slash = text.find('/');
    const int noemer = static_cast<int>(lees_getal(text.substr(slash + 1)));
    const int teller = static_cast<int>(lees_getal(text.substr(text.find(' ') == text.npos ? 0 : text.find(' '))));
    for (int i = 2; i <= teller; ++i)
        if (teller % i == 0 && noemer % i == 0) return false;
    return teller < noemer;
}

std::string answer(const oefening& made, int which) {
    const std::array all{made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
    return std::string(kaal(std::string_view(all[static_cast<std::size_t>(which - 1)])));
}

drawing explained(const oefening& made) {
    drawing drawn = made.plaatje;
    teken_opdrachten(drawn, made.uitlegopdrachten);
    return drawn;
}

template<class Check>
void each(oefening_id generator, Check check) {
    oefeningen maker([] { return 43'200.0F; });
    maker.toeval.restart(1971);
    for (int i = 0; i < 420 && !testing::Test::HasFailure(); ++i) {
        maker.maak(generator);
        SCOPED_TRACE(regel(naam(generator), i, ": ", maker.antwoord_1, " |", maker.uitlegregels[4]));
        check(maker);
    }
}

TEST(fraction_sums, one_answer_is_the_sum_in_its_simplest_form_and_the_worked_line_ends_with_it) {
    for (const oefening_id generator : {L_optellen_03_14_click, M_aftrekken_03_14_click})
        each(generator, [&](const oefening& made) {
            const auto is_wanted = [](const std::string& text, double wanted) {
                return same(amount(text), wanted) && in_simplest_form(text);
            };
            board question(made.plaatje, 0, 1000);
            const std::vector<double> asked = sides(question.read());
            ASSERT_EQ(asked.size(), 1U);
            EXPECT_TRUE(is_wanted(answer(made, 1), asked[0]));
            for (int i = 2; i <= 4; ++i) EXPECT_FALSE(is_wanted(answer(made, i), asked[0])) << answer(made, i);

            const std::vector<token> worked = board(explained(made), 1000).read();
            EXPECT_EQ(worked.size(), generator == L_optellen_03_14_click ? 9U : 11U);
            for (const double side : sides(worked)) EXPECT_TRUE(same(side, asked[0])) << side;
            EXPECT_EQ(worked.back().text, answer(made, 1));
            EXPECT_EQ(made.uitlegregels[4], "Het goede antwoord is " + answer(made, 1) + ".");
        });
}

TEST(fraction_sums, two_numbers_on_the_dots_make_the_three_fractions_equal) {
    each(M_vereenvoudigen_03_14_click, [](const oefening& made) {
        const auto fractions_with = [&](const std::string& pair) {
            const auto en = pair.find(" en ");
            std::vector<std::string> numbers{pair.substr(0, en), pair.substr(en + 4)};
            std::vector<token> tokens;
            drawing filled;
            int dots = 0;
            for (const drawing_op& operation : made.plaatje.operations()) {
                if (const auto* line = std::get_if<line_op>(&operation))
                    filled.line(line->from.x, line->from.y, line->to.x, line->to.y, wit);
                if (const auto* text = std::get_if<text_op>(&operation)) {
                    const bool dotted = text->text == "....";
                    filled.text_size = text->size;
                    const double middle = text->x + text_width(text->text, text->size) / 2;
                    filled.print_centred(static_cast<int>(middle), text->y,
                                         dotted ? numbers[static_cast<std::size_t>(dots++)] : text->text);
                }
            }
            return sides(board(filled).read());
        };
        for (int i = 1; i <= 4; ++i) {
            const std::vector<double> all = fractions_with(answer(made, i));
            ASSERT_EQ(all.size(), 3U);
            EXPECT_EQ(same(all[0], all[1]) && same(all[1], all[2]), i == 1) << answer(made, i);
        }
        const board done(explained(made));
        EXPECT_EQ(sides(done.read()), fractions_with(answer(made, 1)));
        for (const word& w : done.words) EXPECT_NE(w.text, "....");
    });
}

TEST(fraction_sums, the_right_colour_is_that_of_the_outcome_that_the_worked_line_ends_with) {
    static const std::map<std::string, kleur> tints{
        {"geel", geel}, {"rood", rood}, {"wit", wit}, {"groen", lichtgroen}};
    for (const oefening_id generator : {Z_delen_03_14_click, Z_vermenigvuldigen_03_14_click})
        each(generator, [](const oefening& made) {
            drawing left_half;
            std::map<std::string, std::string> outcomes; // by colour: the fraction
            std::string label;
            for (const drawing_op& operation : made.plaatje.operations()) {
                const auto* text = std::get_if<text_op>(&operation);
                if (text == nullptr || text->x < 3000) continue;
                if (text->text.ends_with(':')) {
                    label = text->text.substr(0, text->text.size() - 1);
                    ASSERT_TRUE(tints.contains(label)) << label;
                    EXPECT_EQ(text->colour, tints.at(label));
                } else {
                    EXPECT_EQ(text->colour, tints.at(label));
                    std::string& number = outcomes[label];
                    number += number.empty() ? text->text : " " + text->text;
                }
            }
            ASSERT_EQ(outcomes.size(), 4U);
            for (auto& [colour, number] : outcomes) number.replace(number.rfind(' '), 1, "/");

            board question(made.plaatje, 0, 1000);
            std::erase_if(question.words, [](const word& w) { return w.left > 3000; });
            std::erase_if(question.bars, [](const bar& b) { return b.left > 3000; });
            const double wanted = sides(question.read())[0];
            for (int i = 1; i <= 4; ++i)
                EXPECT_EQ(same(amount(outcomes.at(answer(made, i))), wanted), i == made.juiste_positie);

            board worked(explained(made), 1000);
            if (std::ranges::any_of(worked.words, [](const word& w) { return w.text == "groen:"; })) {
                std::erase_if(worked.words, [](const word& w) { return w.left > 3000; });
                std::erase_if(worked.bars, [](const bar& b) { return b.left > 3000; });
            }
            const std::vector<token> line = worked.read();
            for (const double side : sides(line)) EXPECT_TRUE(same(side, wanted)) << side;
            const std::string& right = answer(made, made.juiste_positie);
            EXPECT_EQ(line.back().text, outcomes.at(right));
            EXPECT_TRUE(in_simplest_form(line.back().text));
            const auto last = std::ranges::find(made.uitlegregels, std::string(leeg)) - 1;
            EXPECT_TRUE(last->ends_with(outcomes.at(right) + ": de juiste kleur is " + right + ".")) << *last;
        });
}

TEST(fraction_sums, each_red_stroke_runs_through_a_number_and_divides_it_and_both_rows_by_as_much) {
    for (const oefening_id generator : {Z_delen_03_14_click, Z_vermenigvuldigen_03_14_click})
        each(generator, [](const oefening& made) {
            const board worked(explained(made), 1000);
            EXPECT_EQ(worked.strokes.size() % 2, 0U);
            EXPECT_GE(worked.strokes.size(), 2U);
            double above = 1, below = 1;
            for (const bar& stroke : worked.strokes) {
                const auto near = [&](bool red, double reach) {
                    return std::ranges::find_if(worked.words, [&](const word& w) {
                        return (w.colour == rood) == red && w.middle() > stroke.left && w.middle() < stroke.right &&
                               w.left > stroke.left - 15 && w.ink_top() < stroke.y + reach &&
                               w.base() > stroke.y - reach;
                    });
                };
                const auto struck = near(false, 0);
                const auto instead = near(true, 200);
                ASSERT_NE(struck, worked.words.end());
                ASSERT_NE(instead, worked.words.end());
                const double by = amount(struck->text) / amount(instead->text);
                EXPECT_GT(by, 1);
                EXPECT_TRUE(same(by, std::round(by)));
                (stroke.y < 1541 ? above : below) *= by;
            }
            EXPECT_EQ(above, below);
        });
}

} // namespace
} // namespace cijferwerf
