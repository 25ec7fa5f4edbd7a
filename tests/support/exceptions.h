// What the properties of every exercise are not asked of, and why: a family lists its own in exceptions.def beside its
// tests, {kind, exercise, reason} on a line. It judges nothing.
#pragma once

#include "generators/oefeningen.h"

namespace cijferwerf {

enum class exception_kind {
    equal_answers_meant,     // the four may be of one value
    simplest_form_asked,     // a fraction of the same value that is not in its simplest form is a wrong answer
    double_blanks_meant,     // within a line
    answer_not_in_last_line, // of the explanation
    places_not_even,         // the right answer's place, A to D, follows from the exercise
    rank_forced,             // by value the right answer mostly stands at one rank; the reason lists the mistakes
    few_different,           // fewer than twelve different exercises are meant
    tells_itself_apart,      // the right answer may have the only length, unit, ... of its kind
    step_not_exact,          // an arithmetic step that is not meant to be exact, or is quoted as a mistake
    tip_gives_more,          // the first tip has numbers that the second one lacks
    crossing_line_meant,     // a line of the picture is meant to cross a word
    loose_place_meant,       // boxes lie half over one another, or a word is level with nothing
};

bool excepted(exception_kind kind, oefening_id generator);

} // namespace cijferwerf
