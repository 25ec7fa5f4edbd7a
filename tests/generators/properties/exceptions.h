// What the properties of every exercise are not asked of, and why: a family lists its own in exceptions.def beside its
// tests, {kind, exercise, reason} on a line. It judges nothing.
#pragma once

#include "generators/oefeningen.h"

#include <algorithm>
#include <array>

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

inline bool excepted(exception_kind kind, oefening_id generator) {
    using enum oefening_id;
    using enum exception_kind;
    struct row {
        exception_kind kind;
        oefening_id generator;
        const char* reason;
    };
    static constexpr auto rows = std::to_array<row>({
#include "tests/generators/breuken/exceptions.def"
#include "tests/generators/cijferen/exceptions.def"
#include "tests/generators/cirkels/exceptions.def"
#include "tests/generators/energie/exceptions.def"
#include "tests/generators/geld/exceptions.def"
#include "tests/generators/getalkennis/exceptions.def"
#include "tests/generators/hoofdrekenen/exceptions.def"
#include "tests/generators/machten/exceptions.def"
#include "tests/generators/meten/exceptions.def"
#include "tests/generators/procenten/exceptions.def"
#include "tests/generators/tijd/exceptions.def"
#include "tests/generators/verhoudingen/exceptions.def"
    });
    return std::ranges::any_of(rows, [=](const row& r) { return r.kind == kind && r.generator == generator; });
}

} // namespace cijferwerf
