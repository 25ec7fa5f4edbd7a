#include "forms/shell/codering.h"

#include "forms/marks.h"
#include "forms/shell/colofon.h"

namespace cijferwerf {

codering::codering(outside& with, formulieren& forms) : form(with, "codering"), forms_(forms) {
    using enum theme_role;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(opschriftbalk, "opschriftbalk", {120, 120, 6300, 480}, heading, program_name);
    opschriftbalk.font_size = 15;
    opschriftbalk.mark = programmateken();
    add(welkom, "welkom", {600, 1080, 11280, 720}, title, "Welkom!");
    welkom.font_size = 28;
    add(kies_label, "kies_label", {600, 1800, 11280, 405}, title, "Waarmee ga je vandaag rekenen?");
    kies_label.font_size = 14;
    kies_label.subdued = true;

    add(CLgekozen, "CLgekozen", {600, 2580, 5520, 3240}, choice, std::string(booklet_set));
    add(SWgekozen, "SWgekozen", {6360, 2580, 5520, 3240}, choice, std::string(task_set));
    CLgekozen.description = "Twaalf boekjes, elk met een eigen onderwerp.";
    SWgekozen.description = "Twintig taken, met af en toe een herhaling.";
    for (option_button* set : {&CLgekozen, &SWgekozen}) {
        set->font_size = 16;
        set->mark = merkteken(set->caption);
        set->about = onderwerp(set->caption);
    }
    CLgekozen.keys = "1";
    SWgekozen.keys = "2";

    add(verder, "verder", {4890, 6330, 2700, 690}, main_action, "verder");
    verder.font_size = 14;
    verder.keys = "\r";
    verder.mnemonic = 'v';
    verder.click = [this] { verder_click(); };
    add(stoppen, "stoppen", {11220, 150, 1140, 420}, action, "stoppen");
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
