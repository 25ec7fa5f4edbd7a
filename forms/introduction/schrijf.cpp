#include "forms/introduction/schrijf.h"

#include "forms/introduction/voorbeeld.h"

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

int schrijf_naast(drawing& on, schrift in, point links, std::string_view tekst) {
    return schrijf(on, in, {links.x, links.y - halve_regel(in.punten)}, tekst);
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

int schrijf_breuk(drawing& on, schrift in, point links, breuk b) {
    if (b.noemer == 1) return schrijf_naast(on, in, links, kaal(b.teller));
    const zelfde_stand bewaard(on, 3);
    neem(on, in);
    return teken_breuk(on, links.x, links.y, 0, b.teller, b.noemer);
}

std::string bedrag(int cent) { return regel(kaal(euro(cent))); }

std::string getaltekst(kommagetal getal) {
    return regel(getal.decimalen == 0 ? kaal(groepen(getal.geschaald)) : kaal(komma_kort(getal)));
}

void teken_vak(drawing& on, const vlak& waar, kleur vulling, kleur rand, int dikte) {
    const zelfde_stand bewaard(on, dikte);
    on.filled_box(waar.links, waar.boven, waar.breedte, waar.hoogte, vulling);
    on.box(waar.links, waar.boven, waar.breedte, waar.hoogte, rand);
}

void teken_strook(drawing& on, const vlak& waar, breuk b) {
    teken_vak(on, waar, wit, donker, 3);
    on.filled_box(waar.links, waar.boven, waar.breedte * b.teller / b.noemer, waar.hoogte, half);
    const zelfde_stand bewaard(on, 2);
    for (int i = 1; i < b.noemer; ++i) {
        const int x = waar.links + waar.breedte * i / b.noemer;
        on.line(x, waar.boven, x, waar.onder(), donker);
    }
    on.line_width = 3;
    on.box(waar.links, waar.boven, waar.breedte, waar.hoogte, donker);
}

void teken_sprong(drawing& on, int van, int naar, int y, int hoogte, schrift in, std::string_view tekst) {
    constexpr int stukjes = 24, punt = 90;
    const zelfde_stand bewaard(on, 3);
    const point midden{(van + naar) / 2, y};
    const double straal = (naar - van) / 2.0;
    const auto op_boog = [&](int i) {
        const point op = op_cirkel({0, 0}, 1000, 180.0 - 180.0 * i / stukjes);
        return point{midden.x + static_cast<int>(straal * op.x / 1000), y + hoogte * op.y / 1000};
    };
    for (int i = 0; i < stukjes; ++i) on.line(op_boog(i).x, op_boog(i).y, op_boog(i + 1).x, op_boog(i + 1).y, in.met);
    on.polygon({{naar, y}, {naar - punt / 2, y - punt}, {naar + punt / 2, y - punt}}, in.met, true);
    schrijf_midden(on, in, {midden.x, y - hoogte - 60 - halve_regel(in.punten)}, tekst);
}

} // namespace cijferwerf
