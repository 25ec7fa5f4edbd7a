#include "forms/introduction/schrijf.h"

namespace cijferwerf {

namespace {

void neem(drawing& on, schrift in) {
    on.text_size = in.punten;
    on.fore_colour = in.met;
}

} // namespace

int schrijf(drawing& on, schrift in, point linksboven, std::string_view tekst) {
    const zelfde_stand bewaard(on);
    neem(on, in);
    on.print_at(linksboven.x, linksboven.y, tekst);
    return linksboven.x + text_width(tekst, in.punten);
}

void schrijf_midden(drawing& on, schrift in, point midden, std::string_view tekst) {
    const zelfde_stand bewaard(on);
    neem(on, in);
    druk_om(on, midden, tekst);
}

void schrijf_rechts(drawing& on, schrift in, point rechtsboven, std::string_view tekst) {
    const zelfde_stand bewaard(on);
    neem(on, in);
    on.print_right(rechtsboven.x, rechtsboven.y, tekst);
}

void teken_vak(drawing& on, const vlak& waar, kleur vulling, kleur rand, int dikte) {
    const zelfde_stand bewaard(on, dikte);
    on.filled_box(waar.links, waar.boven, waar.breedte, waar.hoogte, vulling);
    on.box(waar.links, waar.boven, waar.breedte, waar.hoogte, rand);
}

} // namespace cijferwerf
