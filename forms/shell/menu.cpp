#include "forms/shell/menu.h"

#include "forms/marks.h"
#include "forms/practice/mama.h"
#include "forms/shell/codering.h"

namespace cijferwerf {

menu::menu(outside& with, formulieren& forms, std::string form_name, std::string_view set, std::string opschrift)
    : form(with, std::move(form_name)),
      forms_(forms),
      set_(set) {
    using enum theme_role;
    caption = set;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(terug, "terug", {240, 150, 1260, 420}, action, "terug");
    add(opschriftbalk, "opschriftbalk", {1740, 150, 6300, 420}, heading, std::move(opschrift));
    opschriftbalk.font_size = 15;
    add(stoppen, "stoppen", {10980, 150, 1260, 420}, action, "stoppen");
    terug.keys = "\x1b";
    terug.mnemonic = 't';
    stoppen.mnemonic = 'p';
    terug.click = [this] { terug_click(); };
    stoppen.click = [this] { stoppen_click(); };
}

void menu::leg_keuze_neer(button& entry, const std::string& array, int i, place at, double font_size) {
    const catalogue_list& shown = *lijst(i);
    const bool review = shown.drawn();
    std::string heading(shown.heading);
    entry.accessible_name = heading;
    if (const auto dash = heading.find(" - "); dash != std::string::npos) heading.replace(dash, 3, " -\r");
    add(entry, array, at, review ? theme_role::action : theme_role::choice, heading);
    entry.font_size = font_size;
    entry.index = i;
    entry.mark = merkteken(shown.key);
    entry.click = [this, i] { kies(i); };
}

const catalogue_list* menu::lijst(int i) const {
    for (const catalogue_list& list : catalogue())
        if (list.set == set_ && --i == 0) return &list;
    return nullptr;
}

void menu::kies(int i) {
    const catalogue_list* chosen = lijst(i);
    if (chosen == nullptr) return;
    forms_.globalen.gekozen_onderdeel = chosen->key;
    auto& scherm = forms_.get<mama>();
    forms_.globalen.wis_score();
    scherm.zet_opschrift(std::string(chosen->heading), std::string(set_), !chosen->drawn());
    unload();
    scherm.open();
}

void menu::terug_click() {
    forms_.get<codering>().show();
    unload();
}

// ---- the booklets ----

menucl::menucl(outside& with, formulieren& forms) : menu(with, forms, "menucl", booklet_set, "Kies een boekje") {
    for (int i = 1; i <= 12; ++i) {
        const int row = (i - 1) / 3;
        const int column = (i - 1) % 3;
        leg_keuze_neer(boekje[i], "boekje", i, {240 + column * 4050, 960 + row * 1680, 3900, 1560}, 10.5);
    }
}

void menucl::bevestig_stoppen() { ask({"Wil je echt stoppen?", program_name, box_buttons::yes_no}); }

// ---- the tasks ----

menusw::menusw(outside& with, formulieren& forms) : menu(with, forms, "menusw", task_set, "Kies een taak") {
    add(Frame1, "Frame1", {120, 870, 6060, 6810}, theme_role::panel, "DEEL 1");
    add(Frame2, "Frame2", {6300, 870, 6060, 6810}, theme_role::panel, "DEEL 2");

    // In a frame: four tasks, two by two, and the review task under them over the full width; then the same again.
    constexpr int rij = 1140;
    constexpr int blok = 2 * rij + 900;
    for (int i = 1; i <= 20; ++i) {
        const int in_frame = (i - 1) % 10;
        const int in_block = in_frame % 5;
        const int left = (i <= 10 ? Frame1 : Frame2).left + 120;
        const int top = Frame1.top + 330 + in_frame / 5 * (blok + 60);
        if (in_block == 4)
            leg_keuze_neer(plaatje[i], "plaatje", i, {left, top + 2 * rij, 5820, 840}, 9.75);
        else
            leg_keuze_neer(plaatje[i], "plaatje", i,
                           {left + in_block % 2 * 2940, top + in_block / 2 * rij, 2880, rij - 60}, 8.25);
    }
}

void menusw::load() {
    Frame1.visible = Frame2.visible = true;
    caption = "DEEL 1 EN 2, " + forms_.globalen.gekozen_pakket;
    focus = &plaatje[1];
}

} // namespace cijferwerf
