// How large the texts of an exercise stand on the practice screen, and where its answers: as large as there is room
// for, and two by two where each fits on its card.
// It moves nothing itself, and that an exercise fits at the smallest size is left to whoever writes it.
#pragma once

#include "generators/oefening.h"
#include "runtime/form.h"

#include <span>

namespace cijferwerf {

inline constexpr int vraag_breedte = 4310;
inline constexpr int bericht_breedte = 9765;
inline constexpr double bericht_punten = 11.25;
inline constexpr int display_breedte = 4960; // within the edges of the display

// "A" to "D".
inline std::string antwoordletter(int plaats) { return std::string(1, static_cast<char>('A' + plaats - 1)); }

// The height of a title's row, so that all of them have room in the list.
int rij_hoogte(std::size_t titels);

// The size in points of all lines of a question.
double vraag_punten(const tekstregels& regels);

struct antwoordindeling {
    double punten;
    int ruimte; // for a line of an answer, measured in bold; the rest of its card is for the word right or wrong
    std::array<place, 4> kaarten, teksten; // a card has the letter at its left and the text on it

    bool past(std::string_view antwoord) const;
};

// A carriage return starts the second line of an answer. Beside the calculator the answers stand in one column, and
// without it those that are too wide, or too high, for two by two.
antwoordindeling leg_antwoorden(std::span<const std::string, 4> antwoorden, bool naast_rekenmachine);

// A number as the calculator shows it: smaller where it is long, and what is longer still without its last digits.
struct displaytekst {
    std::string tekst;
    double punten;
};
displaytekst leg_display(std::string_view getal, int breedte);

} // namespace cijferwerf
