// An exercise as a pupil sees it: the question as one string, the words and filled boxes of the picture, the answers
// without the blank in front, what is told about each, the explanation. Tests of generators work the answer out again
// from it. It judges nothing.
#pragma once

#include "forms/practice/explanation.h"
#include "generators/gedeeld/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

namespace cijferwerf {

// " 1.250,5 euro" is 1250.5.
inline double decimal(std::string text) {
    std::erase(text, '.');
    std::ranges::replace(text, ',', '.');
    return lees_getal(text);
}

inline int whole(const std::string& text) { return static_cast<int>(decimal(text)); }

// "1 3/8", "3/4" or "12".
inline breuk fraction(const std::string& text) {
    static const std::regex number(R"( ?(?:(\d+)(?: |$))?(?:(\d+)/(\d+))?)");
    std::smatch part;
    EXPECT_TRUE(std::regex_match(text, part, number)) << text;
    return gemengd_getal(whole(part[1]), whole(part[2]), part[3].matched ? whole(part[3]) : 1);
}

inline drawing explained(const oefening& made) {
    drawing board = made.plaatje;
    teken_opdrachten(board, made.uitlegopdrachten);
    return board;
}

struct seen {
    const oefening& made;
    std::string question;
    std::vector<text_op> texts;     // of the picture
    std::vector<std::string> words; // the same without their places
    std::vector<box_op> blocks;     // its filled boxes
    std::string right;
    std::string explanation;
    std::string last; // line of it

    explicit seen(const oefening& exercise)
        : made(exercise),
          question(joined(exercise.vraagregels)),
          explanation(joined(exercise.uitlegregels)) {
        for (const std::string& line : made.uitlegregels)
            if (line != leeg) last = line;
        look_at(made.plaatje);
        right = answer(right_place());
    }
    // The same with the explanation drawn on the picture.
    seen when_explained() const {
        seen later = *this;
        later.look_at(explained(made));
        return later;
    }

    int right_place() const { return std::max(made.juiste_positie, 1); }
    std::string answer(int which) const { return answers()[static_cast<std::size_t>(which - 1)]; }
    std::array<std::string, 4> answers() const {
        std::array all{made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
        for (std::string& each : all) each.erase(0, 1);
        return all;
    }
    std::array<double, 4> numbers() const {
        std::array<double, 4> all{};
        std::ranges::transform(answers(), all.begin(), decimal);
        return all;
    }
    // What a pupil is told who picks this wrong answer, 1 to 4 in the order of answers().
    std::string feedback(int which) const {
        const std::array all{&made.foutregels_2, &made.foutregels_3, &made.foutregels_4};
        return joined(*all.at(static_cast<std::size_t>(oefening::getoond_antwoord(which, right_place()) - 2)));
    }

    // The groups of a pattern that is found in the question, in the explanation, or in a text of the picture.
    std::vector<std::string> asked(const char* pattern) const { return groups(question, pattern); }
    std::vector<std::string> told(const char* pattern) const { return groups(explanation, pattern); }
    std::vector<std::string> shown(std::size_t word, const char* pattern) const {
        return groups(words.at(word), pattern);
    }
    breuk fraction_at(std::size_t word) const { return {whole(words.at(word)), whole(words.at(word + 1))}; }
    auto of_colour(kleur colour) const {
        return std::ranges::count_if(blocks, [&](const box_op& box) { return box.pen.colour == colour; });
    }

private:
    void look_at(const drawing& drawn) {
        texts.clear();
        words.clear();
        blocks.clear();
        for (const drawing_op& operation : drawn.operations()) {
            if (const auto* text = std::get_if<text_op>(&operation)) {
                texts.push_back(*text);
                words.push_back(text->text);
            }
            if (const auto* box = std::get_if<box_op>(&operation); box != nullptr && box->filled)
                blocks.push_back(*box);
        }
    }
    // The lines that are not empty, each with a blank behind it.
    static std::string joined(const tekstregels& lines) {
        std::string all;
        for (const std::string& line : lines)
            if (line != leeg) all += line + ' ';
        return all;
    }
    static std::vector<std::string> groups(const std::string& text, const char* pattern) {
        const std::regex wanted(pattern);
        std::smatch found;
        EXPECT_TRUE(std::regex_search(text, found, wanted)) << text << " is not " << pattern;
        std::vector<std::string> all(found.begin(), found.end());
        all.resize(wanted.mark_count() + 1);
        return all;
    }
};

// Calls check(exercise) for one exercise of this generator after another, until something fails.
template<class Check>
void each(oefening_id generator, Check check) {
    oefeningen maker([] { return 43'200.0F; });
    maker.toeval.restart(1971);
    for (int i = 0; i < 840 && !testing::Test::HasFailure(); ++i) {
        maker.maak(generator);
        const seen exercise(maker);
        SCOPED_TRACE(exercise.question + "-> " + exercise.right + " | " + exercise.explanation);
        check(exercise);
    }
}

} // namespace cijferwerf
