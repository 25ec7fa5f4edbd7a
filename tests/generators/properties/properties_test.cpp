// What holds for every exercise, whichever generator made it: each is made some hundreds of times, through all its
// sub-variants, and read as a pupil would. A generator that is still blank is left out.
#include "forms/practice/layout.h"

#include "tests/support/exceptions.h"
#include "tests/support/ink.h"
#include "tests/support/operation_text.h"
#include "tests/support/seen.h"

#include <cmath>
#include <map>
#include <numbers>
#include <regex>
#include <set>

namespace cijferwerf {
namespace {

using enum exception_kind;

constexpr int rounds = 420; // a multiple of all numbers of sub-variants up to 7, and many of each other

std::vector<oefening_id> finished() {
    std::vector<oefening_id> all;
    oefeningen maker([] { return 0.0F; });
    for (std::size_t i = 0; i < alle_oefeningen().size(); ++i) {
        maker.maak(static_cast<oefening_id>(i));
        if (std::ranges::any_of(maker.vraagregels, [](const std::string& line) { return line != leeg; }))
            all.push_back(static_cast<oefening_id>(i));
    }
    return all;
}

class every_exercise : public testing::TestWithParam<oefening_id> {
protected:
    static bool is_excepted(exception_kind kind) { return excepted(kind, GetParam()); }

    // Calls look(exercise) for one exercise after another, as a pupil gets them who keeps picking the same title.
    template<class Look>
    void each(Look look) {
        oefeningen maker([] { return 36'000.0F; });
        maker.toeval.restart(20'240'309);
        for (int i = 0; i < rounds && !HasFailure(); ++i) {
            maker.maak(GetParam());
            SCOPED_TRACE(regel("exercise", i + 1, ", variant", maker.variant, ": ", maker.vraagregels[1], "|",
                               maker.vraagregels[2], "|", maker.vraagregels[3], "|", maker.vraagregels[4]));
            look(maker);
        }
    }
};

// The lines that are sentences, as a pupil reads them.
std::vector<std::string> sentences(const oefening& made) {
    std::vector<std::string> all;
    for (const tekstregels* lines : {&made.vraagregels, &made.uitlegregels, &made.tipregels_1, &made.tipregels_2,
                                     &made.foutregels_2, &made.foutregels_3, &made.foutregels_4})
        all.insert(all.end(), lines->begin(), lines->end());
    return all;
}

std::array<std::string, 4> answers(const oefening& made) {
    return {made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
}

// ---- answers ----

// What an answer is worth, so that "1/2", "0,5" and "50 %" are one; a text that is no number stands for itself.
std::string value(std::string answer) {
    static const std::regex fraction(R"((?:(\d+) +)?(\d+)/(\d+)( ?%)?(.*))");
    static const std::regex number(R"((-?[\d.]*\d(?:,\d+)?)( ?%)?(.*))");
    answer = kaal(std::string_view(answer));
    std::smatch part;
    double amount = 0;
    if (std::regex_match(answer, part, fraction))
        amount = lees_getal(part[1].str()) + lees_getal(part[2].str()) / lees_getal(part[3].str());
    else if (std::regex_match(answer, part, number)) {
        std::string digits = part[1];
        std::erase(digits, '.');
        std::ranges::replace(digits, ',', '.');
        amount = lees_getal(digits);
    } else
        return answer;
    const auto last = part.size() - 1;
    if (part[last - 1].matched) amount /= 100;
    return std::to_string(amount) + part[last].str();
}

TEST(properties, know_equal_values_in_different_clothes) {
    for (const char* half : {" 0,5", "1/2", " 50 %"}) EXPECT_EQ(value(half), value(" 2/4")) << half;
    EXPECT_EQ(value(" 1.250 euro"), value("1250 euro"));
    EXPECT_NE(value(" 5 km"), value(" 5 m"));
    EXPECT_NE(value("-5"), value(" 5"));
}

TEST_P(every_exercise, has_four_answers_of_different_value) {
    each([&](const oefening& made) {
        std::set<std::string> values;
        for (const std::string& answer : answers(made)) {
            EXPECT_NE(kaal(std::string_view(answer)), "");
            values.insert(is_excepted(simplest_form_asked) ? answer : value(answer));
        }
        const bool all_zero = is_excepted(equal_answers_meant) && made.antwoord_1 == " 0";
        EXPECT_EQ(values.size(), all_zero ? 1U : 4U)
            << made.antwoord_1 << " |" << made.antwoord_2 << " |" << made.antwoord_3 << " |" << made.antwoord_4;
    });
}

TEST_P(every_exercise, uses_each_sub_variant_each_place_and_many_different_numbers) {
    std::vector<int> variants;
    std::map<int, int> places;
    std::set<std::string> different;
    each([&](const oefening& made) {
        variants.push_back(made.variant);
        ++places[made.juiste_positie];
        std::string all;
        for (const std::string& text : as_texts(made.plaatje)) all += text;
        for (const std::string& text : made.vraagregels) all += text;
        for (const std::string& text : answers(made)) all += text;
        different.insert(all);
        EXPECT_GE(made.juiste_positie, 0);
        EXPECT_LE(made.juiste_positie, 4);
        const std::set limits{0, 8, 9, 10, 12, 15, 20};
        EXPECT_TRUE(limits.contains(made.tijdlimiet)) << made.tijdlimiet;
    });
    // 1, 2, ..., N, 1, 2, ...
    const int number = std::ranges::max(variants);
    EXPECT_LE(number, 14);
    for (std::size_t i = 0; i < variants.size(); ++i) EXPECT_EQ(variants[i], static_cast<int>(i) % number + 1);

    EXPECT_GE(different.size(), 12U) << "a pupil would soon know them by heart";
    for (const auto& [place, times] : places)
        if (place != 0) {
            EXPECT_EQ(places.size(), 4U) << "the right answer never stands at some place";
            EXPECT_GE(times, rounds / 10) << "at place " << place;
            EXPECT_LE(times, rounds / 2) << "at place " << place;
        }
}

// ---- texts ----

// What is wrong with a text, or nothing.
std::string fault(const std::string& text) {
    // A number may have one "." before its last three whole digits, and a comma with decimals; a time of day has two
    // digits behind its ".".
    static const std::regex number(R"(\d[\d.,]*)");
    static const std::regex well_formed(R"((0|[1-9]\d*|\d{1,2}\.\d{2}|[1-9]\d{0,3}\.\d{3}|0\d+)(,\d+)?)");
    static const std::regex nonsense(R"(\d[eE][+-]?\d|(^|[^\w])(nan|inf)([^\w]|$)|-0(?![,\d])|-0,0*(?!\d)|_)");
    for (std::sregex_iterator i(text.begin(), text.end(), number), end; i != end; ++i) {
        std::string found = i->str();
        while (found.back() == '.' || found.back() == ',') found.pop_back();
        if (!std::regex_match(found, well_formed)) return "the number " + found;
    }
    if (std::regex_search(text, nonsense)) return "no number of a pupil's";
    if (std::ranges::any_of(text, [](char c) { return c != '\r' && static_cast<unsigned char>(c) < 0x20; }))
        return "a control character";
    return "";
}

TEST(properties, know_a_malformed_number) {
    for (const char* right : {"1.000", "31.900,50", "12.30 uur", "0,05", "Nog 3...", "1,5 - 0,5", "1/2"})
        EXPECT_EQ(fault(right), "") << right;
    for (const char* wrong : {"0.5", "1.0000", "1e5", "x = -0 m", "nan", "1.000.000", "-0,00", "PRINT_1"})
        EXPECT_NE(fault(wrong), "") << wrong;
}

TEST_P(every_exercise, writes_numbers_as_pupils_do_and_single_blanks) {
    each([&](const oefening& made) {
        for (const std::string& line : sentences(made)) {
            EXPECT_EQ(fault(line), "") << line;
            EXPECT_NE(line, "") << "an empty line is a single blank";
            if (!is_excepted(double_blanks_meant)) {
                EXPECT_EQ(kaal(std::string_view(line)).find("  "), std::string_view::npos) << line;
            }
        }
        for (const std::string& answer : answers(made)) {
            EXPECT_EQ(fault(answer), "") << answer;
            EXPECT_FALSE(answer.starts_with("  ")) << answer;
        }
        for (const std::string& word : seen(made).when_explained().words) EXPECT_EQ(fault(word), "") << word;
        EXPECT_EQ(made.vraagregels[0], leeg);
        EXPECT_TRUE(made.hulpmiddel == "REKENMACHINE" || made.hulpmiddel == leeg);
    });
}

// The numbers of a text as they stand there: "3.600 - 5 1/2 = ..." has "3.600", "5" and "1/2".
std::set<std::string> numbers_in(const std::string& text) {
    static const std::regex between(R"([\s=():;']+)");
    std::set<std::string> numbers;
    for (std::sregex_token_iterator i(text.begin(), text.end(), between, -1), end; i != end; ++i) {
        std::string word = *i;
        while (!word.empty() && std::string_view(".,!?%").find(word.back()) != std::string_view::npos) word.pop_back();
        if (std::ranges::any_of(word, [](char c) { return c >= '0' && c <= '9'; })) numbers.insert(word);
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

TEST_P(every_exercise, ends_its_explanation_with_the_right_answer) {
    if (is_excepted(answer_not_in_last_line)) return;
    each([&](const oefening& made) {
        const seen exercise(made);
        EXPECT_TRUE(names(exercise.last, exercise.right)) << exercise.right << " | " << exercise.last;
    });
}

TEST_P(every_exercise, fits_the_screen) {
    each([&](const oefening& made) {
        const double size = vraag_punten(made.vraagregels);
        for (const std::string& line : made.vraagregels) EXPECT_LE(text_width(line, size, 1.0), vraag_breedte) << line;
        const antwoordindeling layout = leg_antwoorden(answers(made), made.hulpmiddel == "REKENMACHINE");
        for (const std::string& answer : answers(made)) EXPECT_TRUE(layout.past(answer)) << answer;
        for (const tekstregels* lines : {&made.uitlegregels, &made.tipregels_1, &made.tipregels_2, &made.foutregels_2,
                                         &made.foutregels_3, &made.foutregels_4}) {
            for (const std::string& line : *lines)
                EXPECT_LE(text_width(line, bericht_punten, 1.0), bericht_breedte) << line;
            EXPECT_EQ(lines->back(), leeg) << "a seventh line is never shown";
        }
    });
}

TEST_P(every_exercise, tells_a_pupil_something_after_a_wrong_answer_and_in_the_explanation) {
    each([&](const oefening& made) {
        EXPECT_NE(made.uitlegregels[0], leeg);
        if (made.tipregels_1[0] != leeg) {
            EXPECT_NE(made.tipregels_2[0], leeg);
            return;
        }
        if (made.tijdlimiet != 0 && made.foutregels_2[0] == leeg) return; // too quick to read anything
        for (const tekstregels* lines : {&made.foutregels_2, &made.foutregels_3, &made.foutregels_4})
            EXPECT_NE((*lines)[0], leeg);
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

TEST_P(every_exercise, has_a_picture_whose_texts_can_be_read_also_when_explained) {
    each([&](const oefening& made) {
        EXPECT_EQ(illegible(made.plaatje), "");
        EXPECT_EQ(illegible(explained(made)), "") << "with the explanation drawn";
        if (made.tijdlimiet == 0) return;
        constexpr double bar_top = 1100, bar_bottom = 1450;
        const double bar_left = 2700 - made.tijdlimiet * 100, bar_right = 2700 + made.tijdlimiet * 100;
        for (const ink& word : visible_words(made.plaatje))
            EXPECT_FALSE(word.meets({bar_left, bar_top, bar_right, bar_bottom, ""})) << word.word << " under the bar";
    });
}

// Whether a filled operation lies beneath a place, and in what colour (of a picture file: none that is known).
struct covering {
    double x, y;

    bool operator()(const text_op&) const { return false; }
    bool operator()(const line_op&) const { return false; }
    bool operator()(const picture_op&) const { return true; }
    bool operator()(const box_op& box) const {
        return box.filled && x >= box.x && x <= box.x + box.width && y >= box.y && y <= box.y + box.height;
    }
    bool operator()(const circle_op& circle) const {
        const double right = (x - circle.centre.x) / circle.radius_x, up = (circle.centre.y - y) / circle.radius_y;
        const double beyond_start = std::atan2(up, right) * 180 / std::numbers::pi - circle.start;
        return circle.filled && right * right + up * up <= 1 &&
               beyond_start - std::floor(beyond_start / 360) * 360 <= circle.sweep;
    }
    bool operator()(const polygon_op& shape) const {
        bool inside = false;
        for (std::size_t i = 0, j = shape.corners.size() - 1; i < shape.corners.size(); j = i++) {
            const point &a = shape.corners[i], &b = shape.corners[j];
            if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) inside = !inside;
        }
        return shape.filled && inside;
    }
};

struct fill_colour {
    std::optional<kleur> operator()(const picture_op&) const { return {}; }
    std::optional<kleur> operator()(const text_op& text) const { return text.colour; }
    std::optional<kleur> operator()(const auto& drawn) const { return drawn.pen.colour; }
};

// The first word in the colour of what it is printed on, or nothing.
std::string invisible(const drawing& drawn) {
    for (const ink& word : visible_words(drawn)) {
        const covering middle{(word.left + word.right) / 2, (word.top + word.bottom) / 2};
        std::optional<kleur> beneath = drawn.ground;
        for (std::size_t i = 0; i < word.operation; ++i)
            if (std::visit(middle, drawn.operations()[i])) beneath = std::visit(fill_colour{}, drawn.operations()[i]);
        if (beneath == word.colour) return "\"" + word.word + "\" in the colour of its ground";
    }
    return "";
}

TEST_P(every_exercise, prints_nothing_in_the_colour_of_its_ground) {
    each([&](const oefening& made) {
        EXPECT_EQ(invisible(made.plaatje), "");
        EXPECT_EQ(invisible(explained(made)), "") << "with the explanation drawn";
    });
}

// ---- commands ----

// By the keyword: so many places, then a colour, a size in points and a text, or what else it takes.
const std::regex drawing_command(R"((PRINT(_-?\d+){2}_(\d|1[0-5])_([7-9]|[1-3]\d)(\.\d+)?_.*)"
                                 R"(|LINE(_-?\d+){4}_(\d|1[0-5])_BF?_[0-6])"
                                 R"(|BREUK1(_-?\d+){5})"
                                 R"(|DOORSTREPEN(_-?\d+){4}_.*)"
                                 R"(|PARTJES(_-?\d+){3}_?)"
                                 R"(|TELLERSNOEMERS(_-?\d+(\.\d+)?){12}_?))");

TEST_P(every_exercise, gives_drawing_commands_that_draw_what_they_say) {
    each([&](const oefening& made) {
        bool ended = false;
        for (const std::string& command : made.uitlegopdrachten) {
            if (command == leeg) {
                ended = true;
                continue;
            }
            EXPECT_FALSE(ended) << "never drawn: " << command;
            EXPECT_TRUE(std::regex_match(command, drawing_command)) << command;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(generators, every_exercise, testing::ValuesIn(finished()),
                         [](const auto& of) { return std::string(naam(of.param)); });

} // namespace
} // namespace cijferwerf
