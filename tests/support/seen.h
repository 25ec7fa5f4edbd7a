// An exercise as a pupil sees it: the question as one string, the words and filled boxes of the picture, the answers
// without the blank in front, what is told about each, the explanation. Tests of generators work the answer out again
// from it. It judges nothing.
#pragma once

#include "forms/practice/explanation.h"
#include "generators/gedeeld/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace cijferwerf {

// " 1.250,5 euro" is 1250.5.
double decimal(std::string text);
inline int whole(const std::string& text) { return static_cast<int>(decimal(text)); }
// "1 3/8", "3/4" or "12".
breuk fraction(const std::string& text);

drawing explained(const oefening& made);

struct seen {
    const oefening& made;
    std::string question;
    std::vector<text_op> texts;     // of the picture
    std::vector<std::string> words; // the same without their places
    std::vector<box_op> blocks;     // its filled boxes
    std::string right;
    std::string explanation;
    std::string last; // line of it

    explicit seen(const oefening& exercise);
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
    std::string feedback(int which) const;
    // The answers, or where they are words what stands behind these in the picture, such as the number on a bar of this
    // colour.
    std::array<std::string, 4> options() const;
    // The question and the words of the picture, " | " between them.
    std::string sheet() const;

    // The groups of a regular expression that is found in the question, in the explanation, or in a text of the
    // picture.
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
    void look_at(const drawing& drawn);
    static std::vector<std::string> groups(const std::string& text, const char* pattern);
};

// The lines that are not empty, each with a blank behind it.
std::string joined(const tekstregels& lines);

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
