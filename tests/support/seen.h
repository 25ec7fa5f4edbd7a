// An exercise as a pupil sees it: the question as one string, the words and filled boxes of the picture, the answers
// without the blank in front, what is told about each, the explanation. Tests of generators work the answer out again
// from it. It judges nothing.
#pragma once

#include "forms/practice/explanation.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace cijferwerf {

// " 1.250,5 euro" and "1. 2  5  0, 5" are 1250.5.
double decimal(std::string_view text);
inline int whole(std::string_view text) { return static_cast<int>(decimal(text)); }

drawing explained(const oefening& made);

// What was drawn by one kind of operation.
template<class Operation>
std::vector<Operation> all(const drawing& drawn) {
    std::vector<Operation> found;
    for (const drawing_op& each : drawn.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) found.push_back(*operation);
    return found;
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
        std::array<std::string, 4> all{made.antwoord_1, made.antwoord_2, made.antwoord_3, made.antwoord_4};
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

private:
    void look_at(const drawing& drawn);
};

// The lines that are not empty, each with a blank behind it.
std::string joined(const tekstregels& lines);

// A drawing read row by row from left to right: fractions with their bars as "1 3/8", raised exponents as "^2". Words
// that stand far apart are rows of their own.
std::vector<std::string> rows_of(const drawing& drawn);

} // namespace cijferwerf
