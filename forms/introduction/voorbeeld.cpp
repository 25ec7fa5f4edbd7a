#include "forms/introduction/voorbeeld.h"

#include "runtime/look.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr kleurtabel kleuren_bij(const subject_colours& about) {
    kleurtabel colours = kleur_rgb;
    colours[inkt] = look::ink;
    colours[donker] = about.dark;
    colours[half] = about.mid;
    colours[licht] = about.tint;
    colours[blauw] = 0x2F66C9;
    colours[groen] = look::green;
    colours[rood] = look::red;
    colours[geel] = 0xF3CE5E;
    colours[olijf] = 0x7A5A00;
    colours[lichtgrijs] = look::off_edge;
    colours[grijs] = look::grey;
    return colours;
}

constexpr auto alle_kleuren = [] {
    std::array<kleurtabel, alle_onderwerpkleuren.size()> made{};
    for (std::size_t i = 0; i < made.size(); ++i) made[i] = kleuren_bij(alle_onderwerpkleuren[i]);
    return made;
}();

} // namespace

const kleurtabel& voorbeeldkleuren(subject about) { return alle_kleuren[static_cast<std::size_t>(about)]; }

voorbeeld::voorbeeld(std::optional<int> blad_boven) {
    blad.full_height = 2 * drawing::inner_height;
    if (!blad_boven) return;
    constexpr int breed = 5820,
                  hoog = (breed * 2 * drawing::inner_height + drawing::inner_width / 2) / drawing::inner_width;
    zet_neer(blad, "plaatje", {180, *blad_boven, breed, hoog}, theme_role::illustration);
    blad.accessible_name = "plaatje bij de uitleg";
}

void voorbeeld::kleur_naar(subject about) {
    blad.colours = &voorbeeldkleuren(about);
    ververs();
}

void voorbeeld::ververs() {
    blad.reset();
    blad.ground = licht;
    blad.fore_colour = inkt;
    zin_ = toon();
    blad.spoken = {{0, blad.operations().size(), blad.keep({zin_})}}; // in place of all that is to be read in it
    for (const stapper& each : stappers_) {
        const std::string waarde = each.vorm != nullptr ? each.vorm(*each.waarde) : std::to_string(*each.waarde);
        if (each.getal != nullptr) each.getal->caption = waarde;
        each.min->enabled = *each.waarde > each.van;
        each.plus->enabled = *each.waarde < each.tot;
        each.min->description = each.plus->description = waarde;
    }
}

place voorbeeld::op_blad(const vlak& deel) const {
    const auto across = [this](int x) { return x * blad.width / drawing::inner_width; };
    const auto down = [this](int y) { return y * blad.height / blad.full_height; };
    return {blad.left + across(deel.links), blad.top + down(deel.boven), across(deel.rechts()) - across(deel.links),
            down(deel.onder()) - down(deel.boven)};
}

// ---- controls ----

void voorbeeld::zet_neer(control& made, const std::string& naam, place waar, theme_role rol) {
    made.name = naam;
    made.left = waar.left;
    made.top = waar.top;
    made.width = waar.width;
    made.height = waar.height;
    made.role = rol;
    controls_.push_back(&made);
}

template<class Control>
Control& voorbeeld::neem_op(std::deque<Control>& soort, const std::string& naam, place waar, theme_role rol,
                            const std::string& opschrift, std::function<void()> click) {
    Control& made = soort.emplace_back();
    zet_neer(made, naam, waar, rol);
    made.caption = opschrift;
    made.font_size = 12;
    if (click)
        made.click = [this, then = std::move(click)] {
            then();
            ververs();
        };
    return made;
}

label& voorbeeld::woorden(const std::string& naam, place waar, double punten, theme_role rol,
                          const std::string& tekst) {
    label& made = neem_op(woorden_, naam, waar, rol, tekst);
    made.index = static_cast<int>(woorden_.size());
    made.font_size = punten;
    return made;
}

button& voorbeeld::knop(const std::string& naam, place waar, theme_role rol, const std::string& opschrift,
                        std::function<void()> click) {
    return neem_op(knoppen_, naam, waar, rol, opschrift, std::move(click));
}

button& voorbeeld::cel(const std::string& naam, int nummer, const vlak& deel, std::string gesproken,
                       std::function<void()> click) {
    button& made = knop(naam, op_blad(deel), theme_role::cell, {}, std::move(click));
    made.index = nummer;
    made.accessible_name = std::move(gesproken);
    return made;
}

option_button& voorbeeld::keuze(const std::string& naam, place waar, const std::string& opschrift,
                                std::function<void()> click) {
    option_button& made = neem_op(keuzes_, naam, waar, theme_role::toggle, opschrift, std::move(click));
    made.index = static_cast<int>(keuzes_.size());
    made.selected = keuzes_.size() == 1;
    return made;
}

// Both buttons have one name, so that at the end of the range the keyboard's focus goes to the other.
void voorbeeld::stapknop(stapper& van, point linksboven, button::sign teken) {
    const bool omhoog = teken == button::sign::plus;
    button& made = knop("stap " + van.naam, {linksboven.x, linksboven.y, stap_zijde, stap_zijde}, theme_role::stepper,
                        van.naam + (omhoog ? " hoger" : " lager"), [&van, verschil = omhoog ? van.stap : -van.stap] {
                            *van.waarde = std::clamp(*van.waarde + verschil, van.van, van.tot);
                        });
    made.face = teken;
    made.index = omhoog ? 2 : 1;
    (omhoog ? van.plus : van.min) = &made;
}

voorbeeld::stapper& voorbeeld::stappen(place waar, const std::string& naam, int& waarde, int van, int tot, int stap,
                                       std::string (*vorm)(int)) {
    constexpr int na_naam = 45, om_getal = 75; // what is left free
    const double punten = vorm == nullptr ? 16 : 12;
    const int getal_breedte = std::min(waar.width - 2 * stap_zijde, vorm == nullptr ? 700 : 960);
    const int plus = waar.left + waar.width - stap_zijde, getal = plus - getal_breedte, min = getal - stap_zijde;
    const place links{waar.left, waar.top, min - waar.left - na_naam, stap_zijde};
    if (links.width >= bold_text_width(naam, 12)) woorden("naam", links, 12, theme_role::lesson_word, naam);
    stapper& made = stappers_.emplace_back(stapper{naam, &waarde, van, tot, stap, vorm});
    stapknop(made, {min, waar.top}, button::sign::minus);
    made.getal = &woorden("getal", {getal + om_getal, waar.top, getal_breedte - 2 * om_getal, stap_zijde}, punten,
                          theme_role::lesson_value);
    stapknop(made, {plus, waar.top}, button::sign::plus);
    return made;
}

void voorbeeld::stappen(point omhoog, point omlaag, const std::string& naam, int& waarde, int van, int tot) {
    stapper& made = stappers_.emplace_back(stapper{naam, &waarde, van, tot, 1});
    stapknop(made, omhoog, button::sign::plus);
    stapknop(made, omlaag, button::sign::minus);
}

} // namespace cijferwerf
