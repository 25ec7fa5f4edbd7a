#include "forms/shell/menu.h"

#include "forms/marks.h"
#include "forms/practice/mama.h"
#include "forms/shell/codering.h"

namespace cijferwerf {

namespace {

// The words of a heading, as a small line of capitals over a name: "TAAK 4" and "Tijd", "HERHALING" and "Taak 1 t/m 4".
std::pair<std::string, std::string> gesplitst(std::string_view heading) {
    constexpr std::string_view dash = " - ";
    const auto at = heading.find(dash);
    const auto end = at == std::string_view::npos ? heading.find(' ') : at;
    std::string name(heading.substr(end + (at == std::string_view::npos ? 1 : dash.size())));
    for (std::size_t i = 1; i < name.size(); ++i)
        if (name[i] >= 'A' && name[i] <= 'Z') name[i] = static_cast<char>(name[i] - 'A' + 'a');
    return {std::string(heading.substr(0, end)), name};
}

} // namespace

menu::menu(outside& with, formulieren& forms, std::string form_name, std::string_view set, std::string opschrift)
    : form(with, std::move(form_name)),
      forms_(forms),
      set_(set) {
    using enum theme_role;
    caption = set;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(terug, "terug", {120, 150, 1140, 420}, action, "terug");
    add(opschriftbalk, "opschriftbalk", {1440, 150, 6300, 420}, heading, std::move(opschrift));
    opschriftbalk.font_size = 15;
    add(stoppen, "stoppen", {11220, 150, 1140, 420}, action, "stoppen");
    terug.keys = "\x1b";
    terug.mnemonic = 't';
    stoppen.mnemonic = 'p';
    terug.click = [this] { terug_click(); };
    stoppen.click = [this] { stoppen_click(); };
}

void menu::leg_keuze_neer(button& entry, const std::string& array, int i, place at, double font_size) {
    const catalogue_list& shown = *lijst(i);
    add(entry, array, at, theme_role::choice, std::string(shown.heading));
    const auto [number, name] = gesplitst(shown.heading);
    entry.overline = number;
    entry.headline = name;
    entry.font_size = font_size;
    entry.index = i;
    entry.mark = merkteken(shown.key);
    entry.about = onderwerp(shown.key);
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
        leg_keuze_neer(boekje[i], "boekje", i, {240 + column * 4050, 960 + row * 1680, 3900, 1560}, 14);
    }
}

void menucl::bevestig_stoppen() { ask({"Wil je echt stoppen?", program_name, box_buttons::yes_no}); }

// ---- the tasks ----

menusw::menusw(outside& with, formulieren& forms) : menu(with, forms, "menusw", task_set, "Kies een taak") {
    add(Frame1, "Frame1", {120, 840, 12240, 3360}, theme_role::panel, "DEEL 1");
    add(Frame2, "Frame2", {120, 4320, 12240, 3360}, theme_role::panel, "DEEL 2");

    // In a frame two rows: four tasks, and the review of them.
    for (int i = 1; i <= 20; ++i) {
        const int row = (i - 1) / 5 % 2, column = (i - 1) % 5;
        const frame& around = i <= 10 ? Frame1 : Frame2;
        leg_keuze_neer(plaatje[i], "plaatje", i, {270 + 2400 * column, around.top + 330 + 1500 * row, 2340, 1440},
                       10.5);
    }
}

void menusw::load() {
    Frame1.visible = Frame2.visible = true;
    caption = "DEEL 1 EN 2, " + forms_.globalen.gekozen_pakket;
    focus = &plaatje[1];
}

void toon_menu(formulieren& forms) {
    if (forms.globalen.booklets())
        forms.get<menucl>().show();
    else
        forms.get<menusw>().show();
}

} // namespace cijferwerf
