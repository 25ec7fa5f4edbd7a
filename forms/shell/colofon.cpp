#include "forms/shell/colofon.h"

#include "forms/marks.h"
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
    add(kaart, "kaart", {3240, 900, 6000, 6000}, heading_bar);
    kaart.header_height = 1950;
    add(merk, "merk", {5640, 1275, 1200, 1200}, heading);
    merk.mark = programmateken();
    const auto line = [this](label& added, const std::string& of_name, int top, double points, std::string text) {
        add(added, of_name, {3330, top, 5820, text_height(points)}, title, std::move(text));
        added.font_size = points;
    };
    line(titel, "titel", 3075, 20, std::string(set));
    constexpr int tops[]{3630, 4275, 4575, 6270};
    for (int i = 1; i <= lines; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        line(regels[i], "regels", tops[at], i == 1 ? 11.25 : 9.75, std::string(credits[at]));
        regels[i].index = i;
        regels[i].subdued = true;
    }
    add(streep, "streep", {5640, 4082, 1200, 30}, heading_bar);
    line(versie, "versie", 5010, 9.75, program_name + " " CIJFERWERF_VERSION "  -  " CIJFERWERF_YEAR);
    add(verder, "verder", {5040, 5490, 2400, 630}, main_action, "verder");
    verder.font_size = 13;
    verder.mnemonic = 'v';
    klik.click = verder.click = [this] { klik_click(); };
}

void colofon::klik_click() {
    toon_menu(forms_);
    unload();
}

colofoncl::colofoncl(outside& with, formulieren& forms)
    : colofon(with, forms, "colofoncl", booklet_set,
              {"Twaalf boekjes vol sommen, van procenten tot cijferen.",
               "Sommen, uitleg en tekeningen: de makers van Cijferwerf.",
               "Gemaakt voor iedereen die beter wil leren rekenen.",
               "Klik op het scherm of druk op Enter om een boekje te kiezen."}) {}

colofonsw::colofonsw(outside& with, formulieren& forms)
    : colofon(with, forms, "colofonsw", task_set,
              {"Twintig taken in twee delen, met vier keer herhaling.",
               "Sommen, uitleg en tekeningen: de makers van Cijferwerf.",
               "Gemaakt voor iedereen die beter wil leren rekenen.",
               "Klik op het scherm of druk op Enter om een taak te kiezen."}) {}

} // namespace cijferwerf
