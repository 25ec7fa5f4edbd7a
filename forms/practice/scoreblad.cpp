#include "forms/practice/scoreblad.h"

#include "forms/practice/mama.h"
#include "forms/practice/score_report.h"

namespace cijferwerf {

scoreblad::scoreblad(outside& with, formulieren& forms) : form(with, "scoreblad"), forms_(forms) {
    using enum theme_role;
    caption = "SCORE";
    width = 6000;
    height = 4020;
    side_window = true;
    wanted_place = point{6360, 780}; // over the picture, never over the messages

    add(kopbalk, "kopbalk", {0, 0, 6000, 600}, heading_bar);
    add(opschriftbalk, "opschriftbalk", {240, 90, 5520, 420}, heading, "SCORE");
    opschriftbalk.font_size = 12;
    add(vlak, "vlak", {240, 735, 5520, 2415}, panel);

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
        const int top = 790 + i * 575;
        ++i;
        add(omschrijving[i], "omschrijving", {435, top, 2790, 575}, body, shown.text);
        omschrijving[i].index = i;
        omschrijving[i].font_size = 12;
        omschrijving[i].caption_of = &shown.value;
        add(shown.value, shown.name, {3270, top, 2295, 575}, value);
        shown.value.font_size = 15;
        shown.value.right_aligned = true;
    }

    aantal_label.subdued = true; // the whole of which the others are shares

    add(afdrukken, "afdrukken", {240, 3330, 1650, 480}, action, "afdrukken");
    add(Command1, "Command1", {1980, 3330, 2040, 480}, action, "aantalopgavengedaan");
    Command1.quiet = true;
    Command1.font_size = 9;
    add(sluiten, "sluiten", {4110, 3330, 1650, 480}, main_action, "sluiten");
    afdrukken.mnemonic = 'a';
    sluiten.mnemonic = 's';
    sluiten.keys = "\x1b";
    afdrukken.click = [this] { afdrukken_click(); };
    Command1.click = [this] { Command1_click(); };
    sluiten.click = [this] { sluiten_click(); };
}

void scoreblad::load() {
    const GLOBALEN& score = forms_.globalen;
    about = forms_.get<mama>().about;
    opschriftbalk.caption = forms_.get<mama>().opschriftbalk.caption;
    const auto toon = [all = score.aantalvragengedaan](label& value, int count) {
        value.caption = regel(count);
        value.share = all == 0 ? 0 : 1.0 * count / all;
    };
    toon(aantal_label, score.aantalvragengedaan);
    toon(nulfout_label, score.goed_poging_1);
    toon(eenfout_label, score.goed_poging_2);
    toon(tweefout_label, score.goed_poging_3);
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
