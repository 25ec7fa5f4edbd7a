#include "forms/shell/codering.h"

#include "forms/marks.h"
#include "forms/shell/colofon.h"

namespace cijferwerf {

codering::codering(outside& with, formulieren& forms) : form(with, "codering"), forms_(forms) {
    using enum theme_role;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(opschriftbalk, "opschriftbalk", {240, 150, 6300, 420}, heading, program_name);
    opschriftbalk.font_size = 15;
    add(welkom, "welkom", {600, 1050, 11280, 700}, title, "Welkom!");
    welkom.font_size = 24;
    add(kies_label, "kies_label", {600, 1850, 11280, 400}, title, "Waarmee ga je vandaag rekenen?");
    kies_label.font_size = 13;

    add(CLgekozen, "CLgekozen", {900, 2500, 5100, 2500}, choice, std::string(booklet_set));
    add(CL_label, "CL_label", {900, 5100, 5100, 360}, title, "Twaalf boekjes, elk met een eigen onderwerp.");
    add(SWgekozen, "SWgekozen", {6480, 2500, 5100, 2500}, choice, std::string(task_set));
    add(SW_label, "SW_label", {6480, 5100, 5100, 360}, title, "Twintig taken, met af en toe een herhaling.");
    for (option_button* set : {&CLgekozen, &SWgekozen}) {
        set->font_size = 13;
        set->mark = merkteken(set->caption);
    }
    CL_label.font_size = SW_label.font_size = 11;
    CLgekozen.keys = "1";
    SWgekozen.keys = "2";

    add(verder, "verder", {5040, 6120, 2400, 600}, main_action, "verder");
    verder.font_size = 13;
    verder.keys = "\r";
    verder.mnemonic = 'v';
    verder.click = [this] { verder_click(); };
    add(stoppen, "stoppen", {10980, 150, 1260, 420}, action, "stoppen");
    stoppen.mnemonic = 'p';
    stoppen.click = [this] { stoppen_click(); };
}

void codering::load() {
    CLgekozen.selected = SWgekozen.selected = false;
    focus = &CLgekozen;
}

void codering::verder_click() {
    if (CLgekozen.selected) {
        forms_.globalen.gekozen_pakket = booklet_set;
        forms_.get<colofoncl>().show();
    } else if (SWgekozen.selected) {
        forms_.globalen.gekozen_pakket = task_set;
        forms_.get<colofonsw>().show();
    } else {
        ask({"Maak een keuze..."});
        return;
    }
    unload();
}

} // namespace cijferwerf
