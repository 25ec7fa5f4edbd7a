#include "forms/practice/layout.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr double vraag_stappen[]{11.25, 10.5, 9.75};
constexpr double antwoord_stappen[]{13, 11.25, 9.75};
constexpr double display_stappen[]{14, 12, 10.5, 9.75, 8.25};

// The first size that will do, or else the last.
template<class Past>
double grootste(std::span<const double> stappen, Past past) {
    const auto found = std::ranges::find_if(stappen, past);
    return found == stappen.end() ? stappen.back() : *found;
}

constexpr int links = 2445, boven = 3270;

// The card of one answer: left of the text is the letter, right of the room for it the word right or wrong.
struct kaart {
    int breedte, hoogte, tekst_links, ruimte;
};
constexpr kaart naast_elkaar{4820, 840, 810, 2600};
constexpr kaart smalle_kolom{4240, 405, 477, 2600};
constexpr kaart brede_kolom{9765, 405, 477, 8125};

antwoordindeling indeling(const kaart& vorm, int kolommen, int naar_rechts, int omlaag) {
    antwoordindeling made{.punten = antwoord_stappen[0], .ruimte = vorm.ruimte, .kaarten = {}, .teksten = {}};
    for (int i = 0; i < 4; ++i) {
        const int left = links + i % kolommen * naar_rechts;
        const int top = boven + i / kolommen * omlaag;
        const auto at = static_cast<std::size_t>(i);
        made.kaarten[at] = {left, top, vorm.breedte, vorm.hoogte};
        made.teksten[at] = {left + vorm.tekst_links, top, vorm.breedte - vorm.tekst_links, vorm.hoogte};
    }
    return made;
}

} // namespace

int rij_hoogte(std::size_t titels) { return std::min(420, 6690 / std::max(1, static_cast<int>(titels))); }

double vraag_punten(const tekstregels& regels) {
    return grootste(vraag_stappen, [&](double punten) {
        return std::ranges::all_of(
            regels, [&](std::string_view line) { return text_width(line, punten, 1.0) <= vraag_breedte; });
    });
}

bool antwoordindeling::past(std::string_view antwoord) const {
    int lines = 1;
    for (std::size_t end = antwoord.find('\r'); end != std::string_view::npos; end = antwoord.find('\r'), ++lines) {
        if (bold_text_width(antwoord.substr(0, end), punten) > ruimte) return false;
        antwoord.remove_prefix(end + 1);
    }
    return bold_text_width(antwoord, punten) <= ruimte && lines * text_height(punten) <= teksten[0].height;
}

antwoordindeling leg_antwoorden(std::span<const std::string, 4> antwoorden, bool naast_rekenmachine) {
    // At the first size at which they do, or else the last.
    const auto all_fit = [&](antwoordindeling& tried) {
        return std::ranges::any_of(antwoord_stappen, [&](double punten) {
            tried.punten = punten;
            return std::ranges::all_of(antwoorden, [&](const std::string& text) { return tried.past(text); });
        });
    };
    antwoordindeling two_by_two = indeling(naast_elkaar, 2, 4945, 930);
    if (!naast_rekenmachine && all_fit(two_by_two)) return two_by_two;
    antwoordindeling column = indeling(naast_rekenmachine ? smalle_kolom : brede_kolom, 1, 0, 465);
    all_fit(column);
    return column;
}

displaytekst leg_display(std::string_view getal, int breedte) {
    const double punten =
        grootste(display_stappen, [&](double size) { return text_width(getal, size, 1.0) <= breedte; });
    if (text_width(getal, punten, 1.0) <= breedte) return {std::string(getal), punten};
    std::string cut;
    do {
        getal.remove_suffix(1);
        cut = regel(getal, "…");
    } while (text_width(cut, punten, 1.0) > breedte);
    return {cut, punten};
}

} // namespace cijferwerf
