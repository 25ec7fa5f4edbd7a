// Where the controls of the practice screen stand, and the keys of its calculator.
#include "calculator/toetsen.h"
#include "forms/practice/layout.h"
#include "forms/practice/mama.h"

namespace cijferwerf {

namespace {

constexpr int toetsenbord[3][7]{
    {7, 8, 9, 16, 19, 17, 18},
    {4, 5, 6, 15, 14, 11, 12},
    {1, 2, 3, 0, 10, 13, 20},
};

} // namespace

// Places in twips; the order is the tab order.
void mama::leg_controls_neer() {
    using enum theme_role;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(terug, "terug", {120, 150, 1140, 420}, action, "terug");
    add(merk, "merk", {1440, 120, 480, 480}, heading);
    add(opschriftbalk, "opschriftbalk", {2070, 150, 6300, 420}, heading);
    opschriftbalk.font_size = 15;
    add(info, "info", {8700, 150, 1140, 420}, action, "info");
    add(score, "score", {9960, 150, 1140, 420}, action, "score");
    add(stopteken, "stopteken", {11220, 150, 1140, 420}, action, "stoppen");

    add(presentatielijst, "presentatielijst", {120, 840, 2040, 6840}, list);
    presentatielijst.accessible_name = "opgaven";

    add(vraagvlak, "vraagvlak", {}, panel);
    add(kies_opgave, "kies_opgave", {3720, 2550, 7200, 3060}, prompt, "Kies links een opgave");
    kies_opgave.font_size = 18;
    for (int i = 1; i <= 7; ++i) add(vraag[i], "vraag", {2445, 960 + (i - 1) * 300, vraag_breedte, 300}, question);
    add(plaatje, "plaatje", {6830, 990, drawing::inner_width, drawing::inner_height}, picture);
    plaatje.accessible_name = "plaatje bij de opgave";
    for (int i = 1; i <= 4; ++i) {
        add(knop[i], "knop", {}, answer_button, antwoordletter(i));
        knop[i].font_size = 13;
        knop[i].keeps_enter = false;
        add(alternatief[i], "alternatief", {}, answer);
        alternatief[i].card = &knop[i];
        knop[i].click = [this, i] { knop_click(i); };
        alternatief[i].click = [this, i] { alternatief_click(i); };
    }
    leg_antwoorden_neer({}, false);
    toon_opgave(false);
    leg_toetsen_neer();

    add(berichtvlak, "berichtvlak", {2280, 5310, 10080, 2370}, panel);
    berichtvlak.header_height = 465;
    add(uitleg_bericht, "uitleg_bericht", {2445, 5318, 1800, 465}, message_heading); // UITLEG/BERICHT stands alone
    add(uitleggeven, "uitleggeven", {10410, 5355, 1800, 375}, main_action, "uitleg");
    uitleggeven.font_size = 11.25;
    add(bericht[0], "bericht", {3600, 5318, 6690, 465}, verdict);
    bericht[0].font_size = 13;
    for (int i = 1; i <= 6; ++i) {
        add(bericht[i], "bericht", {2445, 5850 + (i - 1) * 300, bericht_breedte, 300}, message);
        bericht[i].font_size = bericht_punten;
    }
    add(taakkiezen_label, "taakkiezen_label", {120, 630, 1500, 300}, hint); // over all the others

    add(Timer1, "Timer1", 1000);
    add(Timer2, "Timer2", 2000);

    const auto number = [](auto& array) {
        for (int i = array.first; i <= array.last; ++i) array[i].index = i;
    };
    number(k);
    number(vraag);
    number(knop);
    number(alternatief);
    number(bericht);

    terug.mnemonic = 't';
    info.mnemonic = 'i';
    score.mnemonic = 's';
    stopteken.mnemonic = 'p';
    uitleggeven.mnemonic = 'u';

    terug.click = [this] { terug_click(); };
    terug.hover = [this] { terug_hover(); };
    info.click = [this] { info_click(); };
    score.click = [this] { score_click(); };
    stopteken.click = [this] { stopteken_click(); };
    uitleggeven.click = [this] { uitleggeven_click(); };
    presentatielijst.click = [this] { presentatielijst_click(); };
    presentatielijst.keypress = [this](int key) { presentatielijst_keypress(key); };
    Timer1.tick = [this] { Timer1_tick(); };
    Timer2.tick = [this] { Timer2_tick(); };
}

void mama::leg_toetsen_neer() {
    using enum theme_role;
    add(rekenmachine, "rekenmachine", {6830, 3270, 5380, 1800}, panel);
    add(display, "display", {6935, 3360, 5170, 375}, readout);
    display.right_aligned = true;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 7; ++column) {
            const int i = toetsenbord[row][column];
            add(k[i], "k", {6935 + column * 742, 3795 + row * 405, 718, 360}, is_cijfertoets(i) ? key : operator_key,
                std::string(rekentoetsen[i].face));
            k[i].keys = rekentoetsen[i].keys;
            k[i].keeps_enter = false; // Enter is "=" on every key
            k[i].accessible_name = rekentoetsen[i].spoken;
            k[i].click = [this, i] { k_click(i); };
        }
}

void mama::toon_opgave(bool shown) {
    put(vraagvlak, {2280, 840, 10080, shown ? 4350 : 6840});
    kies_opgave.visible = !shown;
    plaatje.visible = berichtvlak.visible = uitleg_bericht.visible = shown;
    for (int i = 1; i <= 4; ++i) knop[i].visible = alternatief[i].visible = shown;
    for (label& line : vraag) line.visible = shown;
    for (label& line : bericht) line.visible = shown;
}

void mama::leg_antwoorden_neer(const std::array<std::string, 4>& antwoorden, bool naast_rekenmachine) {
    const antwoordindeling indeling = leg_antwoorden(antwoorden, naast_rekenmachine);
    for (int i = 1; i <= 4; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        put(knop[i], indeling.kaarten[at]);
        put(alternatief[i], indeling.teksten[at]);
        alternatief[i].font_size = indeling.punten;
    }
}

} // namespace cijferwerf
