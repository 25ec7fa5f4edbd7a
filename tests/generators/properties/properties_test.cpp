// What holds for every exercise, whichever generator made it: each is made some hundreds of times, through all its
// sub-variants, and read as a pupil would.
#include "forms/practice/layout.h"
#include "generators/gedeeld/kleuren.h"
#include "runtime/drawn.h"
#include "runtime/picture_reading.h"

#include "tests/generators/properties/exceptions.h"
#include "tests/support/crossing.h"
#include "tests/support/ink.h"
#include "tests/support/operation_text.h"
#include "tests/support/pattern.h"
#include "tests/support/seen.h"
#include "tests/support/sums.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum exception_kind;

constexpr int rounds = 420; // a multiple of all numbers of sub-variants up to 7, and many of each other

std::vector<oefening_id> all_exercises() {
    std::vector<oefening_id> all;
    for (std::size_t i = 0; i < alle_oefeningen().size(); ++i) all.push_back(static_cast<oefening_id>(i));
    return all;
}

class every_exercise : public testing::TestWithParam<oefening_id> {
protected:
    // Whether it holds, or the exercise is an exception. An exception that everything held for fails the test.
    bool allowed(exception_kind kind, bool holds) {
        missed_[kind] |= !holds;
        return holds || excepted(kind, GetParam());
    }
    void TearDown() override {
        for (const auto& [kind, missed] : missed_)
            EXPECT_TRUE(missed || !excepted(kind, GetParam()))
                << "exception " << static_cast<int>(kind) << " of the list in exceptions.h is not needed";
    }

    // Calls look(exercise) for one exercise after another, as a pupil gets them who keeps picking the same title.
    template<class Look>
    void each(Look look, int times = rounds) {
        bool seeded = false;
        oefeningen maker([&seeded] { return seeded = true, 36'000.0F; });
        maker.toeval.restart(20'240'309);
        for (int i = 0; i < times && !HasFailure(); ++i) {
            maker.maak(GetParam());
            EXPECT_TRUE(std::exchange(seeded, false)) << "its draws do not start from the clock";
            SCOPED_TRACE(regel("exercise", i + 1, ", variant", maker.variant, ": ", maker.vraagregels[1], "|",
                               maker.vraagregels[2], "|", maker.vraagregels[3], "|", maker.vraagregels[4]));
            look(maker);
        }
    }

private:
    std::map<exception_kind, bool> missed_;
};

// What is told in sentences: the question, the explanation, the tips, and what is said about each wrong answer.
std::array<const tekstregels*, 7> told(const oefening& of) {
    return {&of.vraagregels,  &of.uitlegregels, &of.tipregels_1, &of.tipregels_2,
            &of.foutregels_2, &of.foutregels_3, &of.foutregels_4};
}

std::array<std::string, 4> answers(const oefening& made) {
    return {made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
}

// ---- answers ----

TEST(properties, know_equal_values_in_different_clothes) {
    const std::pair<const char*, const char*> same[]{
        {" 0,5", "2/4"},           {"1/2", " 50 %"},     {" 1.250 euro", "€ 1250,-"},
        {"€ 5,-", "€ 5,00"},       {" 760 cm", "7,6 m"}, {"1 1/2", "1,5"},
        {"90 minuten", "1,5 uur"}, {"2 dm³", "2 liter"}, {"9:05 uur", "9:05 uur"}};
    for (const auto& [one, other] : same) EXPECT_EQ(worth(one), worth(other)) << one;
    const std::pair<const char*, const char*> different[]{{" 5 km", " 5 m"}, {"-5", " 5"},     {"9:05 uur", "9:50 uur"},
                                                          {"4 m", "4 m²"},   {"rood", "geel"}, {"3 x 4", "4 x 3"}};
    for (const auto& [one, other] : different) EXPECT_NE(worth(one), worth(other)) << one;
}

TEST(properties, know_a_sum_that_is_wrong) {
    constexpr std::string_view exact =
        "Dat is 3.400 : 100 = 34. Daarna doe je nog 3,5 x 34 = 119. Zo is 100 % - 88% = 12 % supporter van AZ. "
        "Dus 3,5 % van 3.400 = 119. 1/2 + 1/3 = 3/6 + 2/6 = 5/6. 2 1/2 - 3/4 = 1 3/4 liter. 450/0,75 = 600. "
        "2,5 m = 250 cm en 3 x 20 cm = 0,6 m. € 12,50 + € 7,50 = € 20,-. (3 + 4) x 2 = 14. 17 gedeeld door 2 is 8,5. "
        "7/100 = 7 %. 10:15 - 9:05 = 1:10. Nummer 3: 5 + 2 = 7 dus 3 = ... "
        "2³ = 8 en 5^2 = 25. 3/4 van 12 = 9.";
    const std::pair<std::string_view, int> right[]{
        {exact, 19}, {"dus 12 x 50 = ongeveer 600 supporters.", 1}, {"10 : 3 = afgerond 3,33", 1}};
    for (const auto& [text, steps] : right) {
        const checked_sums found = check_sums(text);
        EXPECT_EQ(found.steps, steps) << text;
        EXPECT_TRUE(found.wrong.empty()) << testing::PrintToString(found.wrong);
    }
    for (const char* wrong :
         {"3.400 : 100 = 35", "100 % - 88% = 13 %", "5 % van 200 = 11", "10 : 3 = 3,33", "1/2 + 1/3 = 3/6 + 2/6 = 4/6",
          "2,5 m = 25 cm", "€ 12,50 + € 7,50 = € 21,-", "17 delen door 2 is 9", "lengte van 2 x 2 = 5 m",
          "10 : 3 = ongeveer 3,4", "4 x 3 = 12 + 1 = 13"})
        EXPECT_EQ(check_sums(wrong).wrong.size(), 1U) << wrong;
}

TEST_P(every_exercise, has_four_answers_of_different_value) {
    int different = 0;
    each([&](const oefening& made) {
        std::set<std::string> values, texts;
        for (const std::string& answer : answers(made)) {
            EXPECT_NE(kaal(std::string_view(answer)), "");
            values.insert(worth(answer));
            texts.insert(answer);
        }
        different += texts.size() == 4;
        const bool all_told_apart = allowed(equal_answers_meant, texts.size() == 4) &&
                                    (texts.size() < 4 || allowed(simplest_form_asked, values.size() == 4));
        EXPECT_TRUE(all_told_apart) << regel(made.antwoord_1, " |", made.antwoord_2, " |", made.antwoord_3, " |",
                                             made.antwoord_4);
    });
    EXPECT_GE(different, rounds / 2);
}

TEST_P(every_exercise, uses_each_place_and_many_different_numbers) {
    std::map<int, int> places;
    std::set<std::string> different;
    each([&](const oefening& made) {
        ++places[made.juiste_positie];
        std::string all;
        for (const std::string& text : as_texts(made.plaatje)) all += text;
        for (const std::string_view text : made.vraagregels) all += text;
        for (const std::string& text : answers(made)) all += text;
        different.insert(all);
    });
    EXPECT_TRUE(allowed(few_different, different.size() >= 12)) << "a pupil would soon know them by heart";
    if (places.contains(0)) return;
    for (int place = 1; place <= 4; ++place)
        EXPECT_TRUE(allowed(places_not_even, places[place] >= rounds / 10 && places[place] <= rounds / 2))
            << places[place] << " times at place " << place;
}

// ---- texts ----

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// "0", "12", "1.250", "12.345.678", "31.900,50", "12.30" (a time of day), "007".
bool well_formed(std::string_view number) {
    const auto digits = [](std::string_view part) { return !part.empty() && std::ranges::all_of(part, is_digit); };
    if (const auto comma = number.find(','); comma != number.npos) {
        if (!digits(number.substr(comma + 1))) return false;
        number = number.substr(0, comma);
    }
    const std::size_t point = number.find('.');
    if (point == number.npos || (point < 3 && number.size() == point + 3)) return true;
    if (number[0] == '0' || point > 4) return false;
    const bool one_point = number.size() == point + 4;
    for (std::size_t at = point; at < number.size(); at += 4)
        if (number[at] != '.' || !digits(number.substr(at + 1, 3)) || at + 4 > number.size()) return false;
    return point < 4 || one_point;
}

// What is wrong with a text, or nothing.
std::string fault(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '_') return "a command";
        if (text[i] != '\r' && static_cast<unsigned char>(text[i]) < 0x20) return "a control character";
        if (!is_digit(text[i])) continue;
        const std::size_t first = i;
        while (i < text.size() && (is_digit(text[i]) || text[i] == '.' || text[i] == ',')) ++i;
        std::string_view found = text.substr(first, i - first);
        while (found.back() == '.' || found.back() == ',') found.remove_suffix(1);
        if (!well_formed(found)) return "the number " + std::string(found);
        const std::string_view rest = text.substr(i);
        const std::size_t end = rest.starts_with(' ') ? rest.find_first_not_of("0123456789", 1) : 1; // of a next number
        if (end > 2 && rest.size() > 2 && text[i - 1] != ',' && text[i - 1] != '.' &&
            (end == rest.npos || rest[end] != '/'))
            return "two numbers side by side";
        const bool minus = first > 0 && text[first - 1] == '-' && (first == 1 || text[first - 2] == ' ');
        if (minus && found.find_first_not_of("0,") == found.npos) return "less than nothing";
        --i;
    }
    for (const char one : std::string_view("+-x:="))
        for (const char other : std::string_view("+-x:="))
            if (text.find(std::string{' ', one, ' ', other, ' '}) != text.npos) return "two signs side by side";
    return "";
}

TEST(properties, know_a_malformed_number) {
    for (const char* right : {"1.000", "31.900,50", "12.30 uur", "0,05", "Nog 3...", "1,5 - 0,5", "1/2", "12.345.678",
                              "1234.567", "5-0", "1 3/8 : 2"})
        EXPECT_EQ(fault(right), "") << right;
    for (const char* wrong :
         {"0.5", "1.0000", "x = -0 m", "1.00.000", "1234.567.890", "-0,00", "3,4,5", "PRINT_1", "4 38", "is = + 3"})
        EXPECT_NE(fault(wrong), "") << wrong;
}

TEST_P(every_exercise, writes_numbers_as_pupils_do_and_single_blanks) {
    each([&](const oefening& made) {
        for (const tekstregels* lines : told(made))
            for (const std::string_view line : *lines) {
                EXPECT_EQ(fault(line), "") << line;
                EXPECT_NE(line, "") << "an empty line is a single blank";
                EXPECT_TRUE(allowed(double_blanks_meant, kaal(line).find("  ") == line.npos)) << line;
            }
        for (const std::string& answer : answers(made)) {
            EXPECT_EQ(fault(answer), "") << answer;
            EXPECT_FALSE(answer.starts_with("  ")) << answer;
        }
        for (const std::string& word : seen(made).when_explained().words) EXPECT_EQ(fault(word), "") << word;
        EXPECT_TRUE(made.vraagregels[0] == leeg && made.vraagregels[1] != leeg);
        const auto& [ground, text, size] =
            std::tie(made.plaatje.ground, made.plaatje.fore_colour, made.plaatje.text_size);
        EXPECT_TRUE(seen(made).words.empty() || ground != wit || text != zwart || size != 8) << "no board";
    });
}

// The numbers of a text as they stand there: "3.600 - 5 1/2 = ..." has "3.600", "5" and "1/2".
std::set<std::string> numbers_in(const std::string& text) {
    std::set<std::string> numbers;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" =():;'", at), text.size());
        std::string word = text.substr(at, end - at);
        while (!word.empty() && std::string_view(".,!?%").find(word.back()) != std::string_view::npos) word.pop_back();
        if (std::ranges::any_of(word, is_digit)) numbers.insert(word);
        at = end + 1;
    }
    return numbers;
}

// Whether a line gives an answer: all its numbers, or its words where it has none.
bool names(const std::string& line, const std::string& answer) {
    const std::set<std::string> wanted = numbers_in(answer);
    return wanted.empty() ? line.find(answer) != std::string::npos : std::ranges::includes(numbers_in(line), wanted);
}

TEST(properties, know_a_line_that_names_another_answer) {
    EXPECT_TRUE(names("Je krijgt 11/2 = 5 1/2: dus 5 1/2.", "5 1/2"));
    EXPECT_TRUE(names("De juiste kleur is dus geel.", "geel"));
    EXPECT_FALSE(names("Je krijgt 15 1/2.", "5 1/2"));
    EXPECT_FALSE(names("Het is dus 5.", "-5"));
    EXPECT_FALSE(names("De juiste kleur is dus rood.", "geel"));
}

TEST_P(every_exercise, reads_its_picture_aloud_without_giving_away_the_answer) {
    each([&](const oefening& made) {
        const seen exercise(made);
        std::string said;
        for (const spoken_part& part : made.plaatje.spoken) said.append(part.sentence).append(" ");
        const auto all = exercise.answers();
        const bool tells_all = std::ranges::all_of(all, [&](const std::string& each) { return names(said, each); });
        std::string apart = exercise.right; // as a fraction is printed
        std::ranges::replace(apart, '/', ' ');
        EXPECT_NE(read_picture(made.plaatje), "");
        EXPECT_TRUE(tells_all || names(exercise.sheet(), apart) || !names(said, exercise.right))
            << exercise.right << " | " << said;
    });
}

TEST_P(every_exercise, fits_the_screen) {
    each([&](const oefening& made) {
        const antwoordindeling layout = leg_antwoorden(answers(made), made.hulpmiddel == "REKENMACHINE");
        for (const std::string& answer : answers(made)) EXPECT_TRUE(layout.past(answer)) << answer;
        for (const tekstregels* lines : told(made)) {
            const bool question = lines == &made.vraagregels;
            const double size = question ? vraag_punten(*lines) : bericht_punten;
            for (const std::string_view line : *lines)
                EXPECT_LE(text_width(line, size, 1.0), question ? vraag_breedte : bericht_breedte) << line;
            EXPECT_TRUE(question || lines->back() == leeg) << "a seventh line is never shown";
        }
    });
}

TEST_P(every_exercise, tells_a_pupil_something_after_a_wrong_answer_and_ends_its_explanation_with_the_right_one) {
    each([&](const oefening& made) {
        EXPECT_NE(made.uitlegregels[0], leeg);
        const seen exercise(made);
        EXPECT_TRUE(allowed(answer_not_in_last_line, names(exercise.last, exercise.right)))
            << exercise.right << " | " << exercise.last;
        if (made.tipregels_1[0] != leeg) {
            EXPECT_NE(made.tipregels_2[0], leeg);
            return;
        }
        if (made.tijdlimiet != 0 && made.foutregels_2[0] == leeg) return; // too quick to read anything
        for (const tekstregels* lines : {&made.foutregels_2, &made.foutregels_3, &made.foutregels_4})
            EXPECT_NE((*lines)[0], leeg);
    });
}

TEST_P(every_exercise, gives_away_more_in_the_second_tip_than_in_the_first_and_the_answer_in_neither) {
    each([&](const oefening& made) {
        const std::string first = joined(made.tipregels_1), second = joined(made.tipregels_2);
        if (first.empty()) return;
        const seen exercise(made);
        const std::set<std::string> known = numbers_in(exercise.sheet()), in_first = numbers_in(first),
                                    in_second = numbers_in(second), answer = numbers_in(exercise.right);
        EXPECT_NE(first, second);
        const std::set<std::string_view> of_any_sum{"1", "10", "100", "1.000"};
        for (const std::string& number : in_first)
            EXPECT_TRUE(allowed(tip_gives_more,
                                of_any_sum.contains(number) || known.contains(number) || in_second.contains(number)))
                << number;
        if (answer.empty() || std::ranges::includes(known, answer)) return;
        EXPECT_FALSE(std::ranges::includes(in_first, answer)) << first << "names " << exercise.right;
        EXPECT_FALSE(std::ranges::includes(in_second, answer)) << second << "names " << exercise.right;
    });
}

// ---- what gives the right answer away ----

// A feedback without its numbers, so that the mistakes of a pool can be told apart.
std::string without_numbers(std::string text) {
    std::erase_if(text, is_digit);
    return text;
}

// What may tell an answer apart from others without any reckoning.
std::map<std::string, double> looks(const std::string& answer) {
    const auto found = number_of(answer);
    const std::size_t slash = answer.find('/'), comma = answer.find(','), end = answer.find_last_of("0123456789");
    double grid = 0; // how many zeros it ends with
    if (found && slash == answer.npos && comma == answer.npos && *found != 0)
        for (double left = *found; std::fmod(left, 10) == 0; left /= 10) ++grid;
    return {
        {"length", static_cast<double>(answer.size())},
        {"decimals", comma == answer.npos || end == answer.npos || end < comma ? 0 : static_cast<double>(end - comma)},
        {"denominator", slash == answer.npos ? 1 : whole(answer.substr(slash + 1))},
        {"round number", grid}};
}

TEST_P(every_exercise, does_not_give_its_right_answer_away) {
    constexpr int wanted = 840;
    std::map<std::string, int> gives_away; // how often, by what
    std::map<int, int> ranks;
    std::map<int, std::set<std::string>> told; // by sub-variant
    int ranked = 0;
    each(
        [&](const oefening& made) {
            const seen exercise(made);
            const bool colours =
                std::ranges::any_of(kleurwoorden, [&](const kleurwoord& k) { return k.woord == exercise.right; });
            const auto all = colours ? exercise.options() : exercise.answers();
            const auto right = static_cast<std::size_t>(exercise.right_place() - 1);
            const auto amounts = [&] {
                std::array<std::optional<amount>, 4> found;
                std::ranges::transform(all, found.begin(), amount_of);
                return found;
            }();
            if (std::ranges::all_of(amounts, [](const auto& each) { return each.has_value(); })) {
                ++ranked;
                ++ranks[static_cast<int>(std::ranges::count_if(
                    amounts, [&](const auto& other) { return other->value < amounts[right]->value; }))];
                const auto alone =
                    std::ranges::count_if(amounts, [&](const auto& a) { return a->of == amounts[right]->of; });
                const auto others = std::ranges::count_if(
                    amounts, [&](const auto& a) { return a->of == amounts[(right + 1) % 4]->of; });
                gives_away["unit"] += alone == 1 && others == 3;
            }
            const auto own = looks(all[right]);
            for (const auto& [what, value] : own) {
                int larger = 0, smaller = 0;
                for (std::size_t i = 0; i < 4; ++i) {
                    if (i == right) continue;
                    told[made.variant].insert(without_numbers(exercise.feedback(static_cast<int>(i) + 1)));
                    const double other = looks(all[i])[what];
                    larger += value > other;
                    smaller += value < other;
                }
                gives_away["largest " + what] += larger == 3;
                gives_away["smallest " + what] += smaller == 3;
            }
        },
        wanted);
    for (const auto& [what, times] : gives_away)
        EXPECT_TRUE(allowed(tells_itself_apart, times <= wanted * 7 / 10))
            << what << " in " << times << " of " << wanted;
    if (ranked < wanted / 2) return;
    const bool pool = std::ranges::any_of(told, [](const auto& each) { return each.second.size() > 3; });
    for (const auto& [rank, times] : ranks) {
        const bool often_enough = times <= ranked * 7 / 10 && (!pool || times >= ranked / 10);
        EXPECT_TRUE(allowed(rank_forced, often_enough)) << "by value at rank " << rank + 1 << " of 4 in " << times
                                                        << " of " << ranked << (pool ? ", from a pool" : "");
    }
}

// ---- sums ----

TEST_P(every_exercise, works_out_every_sum_rightly) {
    each([&](const oefening& made) {
        std::vector<std::string> texts = rows_of(explained(made));
        for (const tekstregels* lines : told(made)) texts.push_back(joined(*lines));
        for (const std::string& text : texts) {
            const checked_sums sums = check_sums(text);
            EXPECT_TRUE(allowed(step_not_exact, sums.wrong.empty())) << testing::PrintToString(sums.wrong);
        }
    });
}

// ---- pictures ----

// The first word that is not to be read, and why; or nothing.
std::string illegible(const drawing& drawn) {
    const std::vector<ink> words = visible_words(drawn);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!words[i].within(0, 0, drawing::inner_width, drawing::inner_height))
            return "\"" + words[i].word + "\" leaves the picture";
        for (std::size_t j = 0; j < i; ++j)
            if (words[i].meets(words[j])) return "\"" + words[i].word + "\" over \"" + words[j].word + "\"";
    }
    return "";
}

// Of a picture file: none that is known.
struct fill_colour {
    std::optional<kleur> operator()(const picture_op&) const { return {}; }
    std::optional<kleur> operator()(const text_op& text) const { return text.colour; }
    std::optional<kleur> operator()(const auto& drawn) const { return drawn.pen.colour; }
};

// The first word in the colour of what it is printed on, or nothing.
std::string invisible(const drawing& drawn) {
    for (const ink& word : visible_words(drawn)) {
        const double x = (word.left + word.right) / 2, y = (word.top + word.bottom) / 2;
        std::optional<kleur> beneath = drawn.ground;
        for (std::size_t i = 0; i < word.operation; ++i)
            if (covers(drawn.operations()[i], x, y)) beneath = std::visit(fill_colour{}, drawn.operations()[i]);
        if (beneath && contrast(colour_on(drawn, *beneath), text_colour_on(drawn, word.colour)) < 3.9)
            return "\"" + word.word + "\" hardly stands out from its ground";
    }
    return "";
}

TEST_P(every_exercise, has_a_picture_that_can_be_read_also_when_explained) {
    each([&](const oefening& made) {
        const auto strikes = [](std::string_view command) { return command.starts_with("DOORSTREPEN"); };
        const bool struck = std::ranges::any_of(made.uitlegopdrachten, strikes);
        for (const bool after : {false, true}) {
            drawing board = made.plaatje;
            if (after) board = explained(made);
            const auto slipped = out_of_place(board, after);
            EXPECT_TRUE(allowed(loose_place_meant, !slipped)) << slipped.value_or("");
            EXPECT_EQ(illegible(board), "");
            EXPECT_EQ(invisible(board), "");
            const auto crossed = line_through_word(board);
            EXPECT_TRUE((after && struck) || allowed(crossing_line_meant, !crossed)) << crossed.value_or("");
        }
        if (made.tijdlimiet == 0) return;
        constexpr double bar_top = 1100, bar_bottom = 1450;
        const double bar_left = 2700 - made.tijdlimiet * 100, bar_right = 2700 + made.tijdlimiet * 100;
        for (const ink& word : visible_words(made.plaatje))
            EXPECT_FALSE(word.meets({bar_left, bar_top, bar_right, bar_bottom, ""})) << word.word << " under the bar";
    });
}

// ---- commands ----

TEST_P(every_exercise, gives_drawing_commands_that_draw_what_they_say) {
    constexpr std::array forms{"^PRINT_#_#_#_*_@^",       "^LINE_#_#_#_#_#_(B|BF)_#^",
                               "^BREUK1_#_#_#_#_#^",      "^PARTJES_#_#_#_^",
                               "^DOORSTREPEN_#_#_#_#_@^", "^TELLERSNOEMERS_#_#_#_#_#_#_#_#_#_#_#_#_^"};
    each([&](const oefening& made) {
        const auto is_empty = [](std::string_view command) { return command == leeg; };
        const auto& commands = made.uitlegopdrachten;
        const auto end = std::ranges::find_if(commands, is_empty);
        EXPECT_TRUE(std::all_of(end, commands.end(), is_empty)) << "never drawn";
        for (auto at = commands.begin(); at != end; ++at) {
            const std::string command = *at;
            const auto fits = [&](const char* form) { return find_pattern("^" + command + "^", form).has_value(); };
            EXPECT_TRUE(std::ranges::any_of(forms, fits)) << command;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(generators, every_exercise, testing::ValuesIn(all_exercises()),
                         [](const auto& of) { return std::string(naam(of.param)); });

// ---- texts that are written and never shown ----

// The texts in source code, without blanks around them; what is said when the program stops is not for pupils.
std::vector<std::string> texts_in(const std::string& code) {
    std::vector<std::string> texts;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const auto skip_to = [&](std::string_view end) { at = std::min(code.find(end, at + 1), code.size()); };
        const std::string_view rest = std::string_view(code).substr(at);
        if (rest.starts_with("//") || rest.starts_with("#")) skip_to("\n");
        if (rest.starts_with("stop_run(")) skip_to(";");
        if (rest[0] != '"') continue;
        std::string text;
        for (++at; code[at] != '"'; ++at) text += code[at] == '\\' ? code[++at] : code[at];
        texts.emplace_back(kaal(std::string_view(text)));
    }
    // Only measured, and powers as they are written for a drawing.
    std::erase_if(texts, [](const std::string& text) { return text == "1000,0" || text.starts_with('^'); });
    return texts;
}

// All that an exercise can show or say.
std::string shown_by(const oefening& made) {
    std::string all = joined(made.uitlegopdrachten);
    for (const tekstregels* lines : told(made)) all += joined(*lines);
    for (const std::string& answer : answers(made)) all.append(answer).append("|");
    for (const std::string& word : seen(made).words) all.append(word).append("|");
    for (const picture_op& picture : cijferwerf::all<picture_op>(made.plaatje)) all.append(picture.file).append("|");
    for (const spoken_part& part : made.plaatje.spoken) all.append(part.sentence).append("|");
    return all;
}

// A wording, a name of a list or a mistake that never comes is a draw that has gone wrong. What families share in
// gedeeld/ is a kit that knows more than its users need.
class every_family : public testing::TestWithParam<std::string> {};

TEST_P(every_family, shows_each_of_its_texts_some_time) {
    std::string code;
    for (const auto& file : std::filesystem::directory_iterator(CIJFERWERF_GENERATORS "/" + GetParam()))
        code.append(std::istreambuf_iterator<char>(std::ifstream(file.path()).rdbuf()), {});
    std::vector<std::string> unseen = texts_in(code);
    std::vector<oefening_id> own = all_exercises();
    std::erase_if(own, [&](oefening_id id) { return code.find("::" + std::string(naam(id)) + "(") == code.npos; });
    oefeningen maker([] { return 36'000.0F; });
    for (int i = 0; i < 400 && !unseen.empty(); ++i)
        for (const oefening_id each : own)
            for (int variant = 0; variant < 10 && !unseen.empty(); ++variant) {
                maker.maak(each);
                const std::string all = shown_by(maker);
                std::erase_if(unseen, [&](const std::string& text) { return all.find(text) != all.npos; });
            }
    EXPECT_TRUE(unseen.empty()) << testing::PrintToString(unseen);
}

std::vector<std::string> families() {
    std::vector<std::string> all;
    for (const auto& each : std::filesystem::directory_iterator(CIJFERWERF_GENERATORS))
        if (each.is_directory() && each.path().filename() != "gedeeld") all.push_back(each.path().filename());
    return all;
}

INSTANTIATE_TEST_SUITE_P(generators, every_family, testing::ValuesIn(families()),
                         [](const auto& of) { return of.param; });

} // namespace
} // namespace cijferwerf
