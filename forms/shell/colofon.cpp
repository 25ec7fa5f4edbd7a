#include "forms/shell/colofon.h"

#include "forms/shell/menu.h"

namespace cijferwerf {

colofon::colofon(outside& with, formulieren& forms, std::string form_name, std::string_view set,
                 const credit_lines& credits)
    : form(with, std::move(form_name)),
      forms_(forms) {
    using enum theme_role;
    caption = set;
    add(klik, "klik", {0, 0, width, height}, body);
    klik.keys = "\r\x1b";
    klik.accessible_name = "verder naar het menu";
    add(titel, "titel", {600, 1700, 11280, 900}, title, std::string(set));
    titel.font_size = 28;
    for (int i = 1; i <= lines; ++i) {
        add(regels[i], "regels", {600, 2800 + (i - 1) * 450, 11280, 400}, title,
            std::string(credits[static_cast<std::size_t>(i - 1)]));
        regels[i].index = i;
        regels[i].font_size = 12;
    }
    add(verder, "verder", {5040, 5600, 2400, 600}, main_action, "verder");
    verder.font_size = 13;
    verder.mnemonic = 'v';
    klik.click = verder.click = [this] { klik_click(); };
}

colofoncl::colofoncl(outside& with, formulieren& forms)
    : colofon(with, forms, "colofoncl", booklet_set,
              {"Twaalf boekjes vol sommen, van procenten tot cijferen.",
               "Sommen, uitleg en tekeningen: de makers van Cijferwerf.",
               "Gemaakt voor iedereen die beter wil leren rekenen.",
               "Klik op het scherm of druk op Enter om een boekje te kiezen."}) {}

void colofoncl::klik_click() {
    forms_.get<menucl>().show();
    unload();
}

colofonsw::colofonsw(outside& with, formulieren& forms)
    : colofon(with, forms, "colofonsw", task_set,
              {"Twintig taken in twee delen, met vier keer herhaling.",
               "Sommen, uitleg en tekeningen: de makers van Cijferwerf.",
               "Gemaakt voor iedereen die beter wil leren rekenen.",
               "Klik op het scherm of druk op Enter om een taak te kiezen."}) {}

void colofonsw::klik_click() {
    forms_.get<menusw>().show();
    unload();
}

} // namespace cijferwerf
