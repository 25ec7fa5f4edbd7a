#include "generators/oefening.h"

#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_macht.h"
#include "runtime/stop_run.h"

#include <numeric>

namespace cijferwerf {

void oefening::maak_leeg() {
    for (tekstregels* lines : {&vraagregels, &uitlegregels, &tipregels_1, &tipregels_2, &foutregels_2, &foutregels_3,
                               &foutregels_4, &uitlegopdrachten})
        lines->fill(leeg);
    for (int i = 1; i <= 4; ++i) antwoord(i) = {};
    klad_.begin();
    juiste_positie = 0;
    hulpmiddel = leeg;
    tijdlimiet = 0;
}

void oefening::bord(kleur ground, kleur text, double size) {
    plaatje.ground = ground;
    plaatje.fore_colour = text;
    plaatje.text_size = size;
}

int oefening::druk_machten(int x, int y, std::string_view text) { return teken_met_machten(plaatje, x, y, text); }

void oefening::snel_bord(int ticks, double size) {
    bord(zwart, geel, size);
    tijdlimiet = ticks;
}

void oefening::toon_snelle_som(int ticks, std::string_view som) {
    constexpr int links = 500;
    const bool past = links + text_width(som, 20) <= drawing::inner_width - 200;
    snel_bord(ticks, past ? 20 : 15);
    druk(links, 300, som);
}

void oefening::opdracht(plakregel line) {
    if (line.empty() || line == leeg) return;
    const auto slot = std::ranges::find(uitlegopdrachten, leeg);
    if (slot == uitlegopdrachten.end()) stop_run("an eighth drawing command: " + std::string(line));
    *slot = line;
}

void oefening::druk_som_met_antwoord(int x, int y, kleur in, int punten, std::string_view som,
                                     std::string_view antwoord) {
    som = kaal(som);
    plaatje.text_size = punten;
    druk_machten(x - text_width(" ", punten) - breedte_met_machten(som, punten), y, som);
    opdracht(druk_opdracht(x, y, in, punten, kaal(antwoord)));
}

void oefening::druk_antwoord_over_stippen(int x, int y, kleur in, std::string_view stippen, std::string_view antwoord) {
    const double punten = plaatje.text_size;
    const int breedte = text_width(stippen, punten);
    const int ruimte = std::max(breedte, text_width(kaal(antwoord), punten) + 2 * text_width(" ", punten));
    const int midden = x + ruimte / 2;
    druk(midden - breedte / 2, y, stippen);
    plaatje.move_to(x + ruimte, y);
    // From the tops of the letters to a little below the line on which they stand.
    const int boven = digit_top(punten) - 20;
    const int hoogte = static_cast<int>(punten * 20 * 0.95) - boven;
    opdracht(vak_opdracht(midden - breedte / 2, y + boven, breedte, hoogte, plaatje.ground));
    opdracht(druk_midden_opdracht(midden, y, in, punten, antwoord));
}

std::array<std::size_t, 3> oefening::trek_drie(std::span<vergissing> andere) {
    if (andere.size() < 3) stop_run("fewer than three different mistakes");
    geschud(andere);
    const auto lager = static_cast<int>(std::ranges::count(andere, true, &vergissing::lager));
    const int hoger = static_cast<int>(andere.size()) - lager;
    const auto eronder = static_cast<std::size_t>(trek_van(std::max(0, 3 - hoger), std::min(3, lager)));
    std::array<std::size_t, 3> drie{};
    std::size_t onder = 0, boven = eronder;
    for (const auto& [plek, is_lager] : andere) {
        std::size_t& volgende = is_lager ? onder : boven;
        if (volgende < (is_lager ? eronder : drie.size())) drie[volgende++] = plek;
    }
    return geschud(drie);
}

void oefening::volgende_fout(plakregel text, std::initializer_list<plakregel> feedback) {
    const int which = antwoord_2.empty() ? 2 : antwoord_3.empty() ? 3 : antwoord_4.empty() ? 4 : 5;
    antwoord(which) = text;
    schrijf(foutregels(which), 0, feedback);
}

void oefening::zet_op_plaats(int plaats, plakregel text, std::initializer_list<plakregel> feedback) {
    antwoord(plaats) = text;
    if (plaats != juiste_positie) schrijf(foutregels(getoond_antwoord(plaats, juiste_positie)), 0, feedback);
}

void oefening::fout_met(plakregel text, const melding& feedback) {
    const int which = antwoord_2.empty() ? 2 : antwoord_3.empty() ? 3 : antwoord_4.empty() ? 4 : 5;
    antwoord(which) = text;
    schrijf_melding(foutregels(which), feedback);
}

void oefening::schrijf_melding(tekstregels& to, const melding& feedback) {
    for (std::size_t i = 0; i < feedback.size(); ++i)
        if (!feedback[i].empty()) to[i] = feedback[i];
}

void oefening::schrijf(tekstregels& to, std::size_t first, std::initializer_list<plakregel> lines) {
    for (const plakregel& line : lines) to[first++] = line;
}

oefening::vier_keuzes oefening::verdeeld(std::span<const keuze<>> opties) {
    if (opties.size() != 4) stop_run("four options are needed, not " + std::to_string(opties.size()));
    const vier_keuzes verdeling = geschud(vier_keuzes{&opties[0], &opties[1], &opties[2], &opties[3]});
    juist_op(static_cast<int>(std::find(verdeling.begin(), verdeling.end(), &opties[0]) - verdeling.begin()) + 1);
    return verdeling;
}

void oefening::toon_opties(point plaats, int regelhoogte, int marge, const std::array<std::string_view, 4>& woorden,
                           const vier_keuzes& opties, const std::array<kleur, 4>* balken) {
    constexpr int rand = 180;
    const int breedte = drawing::inner_width - rand - plaats.x;
    double punten = plaatje.text_size;
    int kolom = 0; // where the options begin, after the longest word
    for (;; punten -= 0.5) {
        int woord_breedte = 0;
        int optie_breedte = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            woord_breedte = std::max(woord_breedte, text_width(woorden[i], punten));
            optie_breedte = std::max(optie_breedte, breedte_met_machten(kaal(opties[i]->waarde), punten));
        }
        kolom = marge + woord_breedte + std::max(2 * marge, 60);
        if (kolom + optie_breedte + marge <= breedte || punten <= 8) break;
    }
    plaatje.text_size = punten;
    for (std::size_t i = 0; i < 4; ++i) {
        int y = plaats.y + static_cast<int>(i) * regelhoogte;
        if (balken != nullptr) {
            const int hoogte = regelhoogte - 50;
            plaatje.filled_box(plaats.x, y, breedte, hoogte, (*balken)[i]);
            plaatje.box(plaats.x, y, breedte, hoogte, grijs);
            plaatje.fore_colour = letterkleur((*balken)[i]);
            y += (hoogte - text_height(punten)) / 2;
        }
        druk(plaats.x + marge, y, woorden[i]);
        druk_machten(plaats.x + kolom, y, kaal(opties[i]->waarde));
        // "Erna......." answers as "Erna".
        const int plek = static_cast<int>(i) + 1;
        op_plaats(plek, woorden[i].substr(0, woorden[i].find_last_not_of(". ") + 1));
        if (plek != juiste_positie)
            schrijf_melding(foutregels(getoond_antwoord(plek, juiste_positie)), opties[i]->melding);
    }
}

void oefening::toon_kleurkeuze(point plaats, int regelhoogte, const std::array<kleur, 4>& kleuren,
                               const vier_keuzes& opties) {
    toon_opties(plaats, regelhoogte, 130, {woord(kleuren[0]), woord(kleuren[1]), woord(kleuren[2]), woord(kleuren[3])},
                opties, &kleuren);
}

void oefening::leg_vast(int plaats) {
    const std::array<plakregel, 4> written{antwoord_1, antwoord_2, antwoord_3, antwoord_4};
    for (int i = 1; i <= 4; ++i) antwoord(i) = written[static_cast<std::size_t>(getoond_antwoord(i, plaats) - 1)];
    juiste_positie = plaats;
}

plakregel& oefening::antwoord(int which) {
    switch (which) {
    case 1: return antwoord_1;
    case 2: return antwoord_2;
    case 3: return antwoord_3;
    case 4: return antwoord_4;
    default: stop_run("no answer number " + std::to_string(which));
    }
}

tekstregels& oefening::foutregels(int which) {
    switch (which) {
    case 2: return foutregels_2;
    case 3: return foutregels_3;
    case 4: return foutregels_4;
    default: stop_run("no feedback for answer number " + std::to_string(which));
    }
}

} // namespace cijferwerf
