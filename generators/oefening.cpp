#include "generators/oefening.h"

namespace cijferwerf {

void oefening::maak_leeg() {
    for (tekstregels* lines : {&vraagregels, &uitlegregels, &tipregels_1, &tipregels_2, &foutregels_2, &foutregels_3,
                               &foutregels_4, &uitlegopdrachten})
        lines->fill(std::string(leeg));
    for (int i = 1; i <= 4; ++i) antwoord(i).clear();
    juiste_positie = 0;
    hulpmiddel = leeg;
    tijdlimiet = 0;
}

void oefening::bord(kleur ground, kleur text, double size) {
    plaatje.ground = ground;
    plaatje.fore_colour = text;
    plaatje.text_size = size;
}

void oefening::leg_vast(int plaats) {
    const std::array<std::string, 4> written{antwoord_1, antwoord_2, antwoord_3, antwoord_4};
    for (int i = 1; i <= 4; ++i) antwoord(i) = written[static_cast<std::size_t>(getoond_antwoord(i, plaats) - 1)];
    juiste_positie = plaats;
}

std::string& oefening::antwoord(int which) {
    switch (which) {
    case 1: return antwoord_1;
    case 2: return antwoord_2;
    case 3: return antwoord_3;
    case 4: return antwoord_4;
    default: throw checked_error("no answer number " + std::to_string(which));
    }
}

tekstregels& oefening::foutregels(int which) {
    switch (which) {
    case 2: return foutregels_2;
    case 3: return foutregels_3;
    case 4: return foutregels_4;
    default: throw checked_error("no feedback for answer number " + std::to_string(which));
    }
}

} // namespace cijferwerf
