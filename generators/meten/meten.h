// What the measuring exercises share: two measures of different units that are added, and a statement about the size of
// a thing with completions of which one has a unit of the right kind. What is measured, and the words around it, are
// the exercise's.
#pragma once

#include "generators/gedeeld/keuze.h"
#include "generators/gedeeld/maten.h"
#include "runtime/random_draws.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

// "34 cm + 5 dm = ... cm": the units are neighbours on their ladder, and one of the numbers is converted to the unit of
// the other.
struct maatsom {
    struct lid {
        int getal;
        eenheid maat;
    };
    lid eerste, tweede;
    bool eerste_om; // the first is converted, or else the second

    const lid& om() const { return eerste_om ? eerste : tweede; }
    const lid& blijft() const { return eerste_om ? tweede : eerste; }
    const eenheid& gevraagd() const { return blijft().maat; }
    kommagetal omgezet() const { return omgerekend({om().getal}, om().maat, gevraagd()); }
    kommagetal totaal() const { return omgezet() + kommagetal{blijft().getal}; }
    // Converting the wrong number would give another answer, and a conversion to the larger unit gives decimals.
    bool geschikt() const;

    // "34 cm + 5 dm = "; the dots and the unit asked for come behind it.
    std::string opgave() const;
    std::vector<keuze<kommagetal>> vergissingen() const;
    std::array<plakregel, 4> uitleg() const;
};

// A sum with these neighbours of a ladder, of which the number in the one unit (from) is converted to the other (to).
maatsom trek_maatsom(random_draws& toeval, const eenheid& van, const eenheid& naar, bool eerste_om);

// What a pupil is told who picks a unit of one kind where another is asked.
melding verkeerde_soort(grootheid gekozen, grootheid gevraagd);

// A thing, sensible sizes of it, and of each wrong kind two units that the same number is set before.
struct gemeten_ding {
    struct maatgetal {
        int getal;
        eenheid maat;
    };
    std::string_view ding;
    std::array<maatgetal, 4> maten;
    std::array<std::array<eenheid, 2>, 3> andere;
};

// The right completion, and one of each wrong kind with its feedback.
std::array<keuze<>, 4> aanvullingen(random_draws& toeval, const gemeten_ding& ding);

} // namespace cijferwerf
