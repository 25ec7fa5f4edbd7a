#include "forms/practice/scoreblad.h"

#include "forms/practice/mama.h"
#include "forms/practice/score_report.h"

namespace cijferwerf {

scoreblad::scoreblad(outside& with, formulieren& forms) : form(with, "scoreblad"), forms_(forms) {
    using enum theme_role;
    caption = "SCORE";
    width = 6000;
    height = 4500;
    side_window = true;

    add(kopbalk, "kopbalk", {0, 0, 6000, 720}, heading_bar);
    add(opschriftbalk, "opschriftbalk", {240, 150, 5520, 420}, heading, "SCORE");
    opschriftbalk.font_size = 12;
    add(vlak, "vlak", {240, 900, 5520, 2500}, panel);

    struct row {
        const char* text;
        label& value;
        const char* name;
    };
    const row rows[]{
        {"aantal opgaven gedaan", aantal_label, "aantal_label"},
        {"eerste poging goed", nulfout_label, "nulfout_label"},
        {"tweede poging goed", eenfout_label, "eenfout_label"},
        {"derde poging goed", tweefout_label, "tweefout_label"},
    };
    int i = 0;
    for (const row& shown : rows) {
        const int top = 1050 + i * 570;
        ++i;
        add(omschrijving[i], "omschrijving", {480, top, 3600, 480}, body, shown.text);
        omschrijving[i].index = i;
        omschrijving[i].font_size = 12;
        add(shown.value, shown.name, {4200, top, 1320, 480}, value);
        shown.value.font_size = 14;
        shown.value.right_aligned = true;
    }

    add(afdrukken, "afdrukken", {240, 3660, 1440, 540}, action, "afdrukken");
    add(Command1, "Command1", {1800, 3660, 2400, 540}, action, "aantalopgavengedaan");
    add(sluiten, "sluiten", {4320, 3660, 1440, 540}, main_action, "sluiten");
    afdrukken.mnemonic = 'a';
    sluiten.mnemonic = 's';
    sluiten.keys = "\x1b";
    afdrukken.click = [this] { afdrukken_click(); };
    Command1.click = [this] { Command1_click(); };
    sluiten.click = [this] { sluiten_click(); };
}

void scoreblad::load() {
    const GLOBALEN& score = forms_.globalen;
    opschriftbalk.caption = forms_.get<mama>().opschriftbalk.caption;
    aantal_label.caption = regel(score.aantalvragengedaan);
    nulfout_label.caption = regel(score.goed_poging_1);
    eenfout_label.caption = regel(score.goed_poging_2);
    tweefout_label.caption = regel(score.goed_poging_3);
    focus = &sluiten;
}

void scoreblad::afdrukken_click() {
    const print_result result =
        buiten.print(score_report(forms_.globalen, forms_.get<mama>().opschriftbalk.caption, buiten.now()));
    const auto told = [&]() -> std::string {
        switch (result.what) {
        case print_result::outcome::no_printer: return "Er is geen printer gevonden. Het rapport is niet afgedrukt.";
        case print_result::outcome::failed: return "Het afdrukken is niet gelukt: " + result.reason;
        default: return "Het rapport is naar de printer gestuurd.";
        }
    };
    ask({told(), caption});
}

void scoreblad::Command1_click() { ask({regel("aantalvragengedaan =", forms_.globalen.aantalvragengedaan)}); }

} // namespace cijferwerf
