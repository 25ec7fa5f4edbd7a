#include "generators/gedeeld/tekening_meter.h"

#include "generators/gedeeld/telwoord.h"

#include <algorithm>

namespace cijferwerf {

namespace {

int share(int straal, double part) { return heel(straal * part); }

void line(drawing& on, point from, point to, kleur with) { on.line(from.x, from.y, to.x, to.y, with); }

// A needle or hand: a slender triangle from around the axis to its tip.
void teken_naald(drawing& on, point midden, int lengte, int half_width, double graden, kleur met) {
    on.polygon({op_cirkel(midden, half_width, graden + 90), op_cirkel(midden, lengte, graden),
                op_cirkel(midden, half_width, graden - 90), op_cirkel(midden, half_width * 2, graden + 180)},
               met, true);
}

// Where a needle stands among numbers that lie so many steps apart on a clock.
plakregel bij_uur(int stand, int per_uur) {
    const int uur = (stand / per_uur + 11) % 12 + 1, verder = stand % per_uur;
    return verder == 0 ? plak_even({"op de", uur}) : plak_even({"tussen de", uur, " en de", uur % 12 + 1});
}

plakregel verteld(const wijzerschaal& langs, int waarde) {
    if (langs.getal == 0)
        return plak_even({"Een wijzerplaat met ", telwoord(langs.tot / langs.lang),
                          " lange streepjes. De wijzer staat ", in_stappen(waarde, langs.lang),
                          " lange streepjes na het begin."});
    const int onder = waarde / langs.getal * langs.getal, verder = waarde - onder;
    return plak_even({"Een wijzerplaat met de getallen 0,", langs.getal, " enzovoort tot", langs.tot, " en ",
                      telwoord(langs.getal / langs.kort), " stukjes van getal tot getal. De wijzer staat ",
                      verder == 0 ? "op" : plak_even({in_stappen(verder, langs.kort), " stukje verder dan"}), onder,
                      "."});
}

} // namespace

std::string cijfers_wijd(std::string_view getal) {
    std::string wijd;
    for (const char c : kaal(getal)) {
        const bool mark = c == ',' || c == '.';
        if (mark && wijd.ends_with("  "))
            wijd[wijd.size() - 2] = c;
        else if (!mark)
            wijd.append({c, ' ', ' '});
    }
    while (wijd.ends_with(' ')) wijd.pop_back();
    return wijd;
}

int teller_breedte(std::string_view getal, double points) { return text_width(cijfers_wijd(getal) + "  ", points); }

void teken_teller(drawing& on, int x, int y, std::string_view getal) {
    const zelfde_stand bewaard(on);
    const verteld_als teller(on, kaal(getal));
    const std::string wijd = cijfers_wijd(getal);
    const int window = text_width("0  ", on.text_size), blank = text_width(" ", on.text_size);
    const int width = teller_breedte(getal, on.text_size), height = teller_hoogte(on.text_size);
    const std::size_t comma = wijd.find(',');
    const int whole = comma == std::string::npos ? width : text_width(wijd.substr(0, comma) + "  ", on.text_size);

    constexpr int frame = 45;
    on.filled_box(x - frame, y - frame, width + 2 * frame, height + 2 * frame, grijs);
    on.filled_box(x, y, whole, height, zwart);
    if (whole < width) on.filled_box(x + whole, y, width - whole, height, donkerrood);
    on.fore_colour = wit;
    on.print_at(x + blank, y + height / 2 - halve_regel(on.text_size), wijd);
    // Between the digits, not across the comma that fills half of its gap.
    for (int edge = x + window; edge < x + width - window / 2; edge += window)
        on.line(edge, y, edge, y + height, grijs);
}

void teken_wijzerplaat(drawing& on, point midden, int straal, const wijzerschaal& langs, int waarde,
                       std::string_view opschrift) {
    const zelfde_stand bewaard(on);
    vertel(on, verteld(langs, waarde));
    const auto graden = [&](int at) { return langs.vanaf - langs.boog * at / langs.tot; };
    const bool round = langs.boog > 180;
    const double sweep = round ? 360 : langs.boog, right_end = langs.vanaf - langs.boog;
    on.line_width = 3;
    on.sector(midden.x, midden.y, straal, right_end, sweep, wit, true);
    on.sector(midden.x, midden.y, straal, right_end, sweep, zwart, false);
    for (int at = 0; at <= langs.tot; at += langs.kort) {
        const bool lang = at % langs.lang == 0;
        on.line_width = lang ? 3 : 1;
        line(on, op_cirkel(midden, straal, graden(at)),
             op_cirkel(midden, share(straal, lang ? 0.84 : 0.91), graden(at)), on.fore_colour);
    }
    for (int at = 0; langs.getal > 0 && at <= langs.tot; at += langs.getal) {
        const verteld_als stil(on);
        const number_text getal = kaal(duizend(at));
        // As far out as the text is deep in that direction.
        const point out = op_cirkel({0, 0}, 1000, graden(at));
        const int deep = (std::abs(out.x) * (text_width(getal, on.text_size) / 2 + 30) +
                          std::abs(out.y) * static_cast<int>(on.text_size * 20 * 0.5)) /
                         1000;
        druk_om(on, op_cirkel(midden, straal + deep + 25, graden(at)), getal);
    }
    teken_naald(on, midden, share(straal, 0.8), share(straal, 0.05), graden(waarde), rood);
    on.filled_circle(midden.x, midden.y, share(straal, 0.08), zwart);
    if (round) on.fore_colour = zwart; // it stands on the face
    if (!opschrift.empty())
        druk_om(on, {midden.x, midden.y + (round ? share(straal, 0.5) : share(straal, 0.08) + 150)}, opschrift);
}

void teken_klok(drawing& on, point midden, int straal, int minuten) {
    const zelfde_stand bewaard(on);
    vertel(on, "Een wekker. De kleine wijzer staat ", bij_uur(minuten % 720, 60), ", de grote ",
           bij_uur(minuten % 60, 5), ".");
    const verteld_als stil(on);
    // Bells and feet first: the case lies over them.
    for (const double side : {50.0, 130.0}) {
        const point bell = op_cirkel(midden, straal * 1.05, side);
        on.filled_circle(bell.x, bell.y, share(straal, 0.24), olijf);
        const point foot = op_cirkel(midden, straal * 1.24, -side);
        on.line_width = 6;
        line(on, op_cirkel(midden, straal * 0.9, -side), foot, donkerblauw);
    }
    on.filled_circle(midden.x, midden.y, straal, donkerblauw);
    on.filled_circle(midden.x, midden.y, share(straal, 0.92), wit);
    on.fore_colour = zwart;
    on.text_size = straal / 75.0;
    for (int hour = 1; hour <= 12; ++hour) {
        const double graden = 90 - 30.0 * hour;
        on.line_width = 2;
        line(on, op_cirkel(midden, straal * 0.92, graden), op_cirkel(midden, straal * 0.88, graden), zwart);
        druk_om(on, op_cirkel(midden, straal * 0.72, graden), kaal(hour));
    }
    teken_naald(on, midden, share(straal, 0.4), share(straal, 0.055), 90 - minuten % 720 * 0.5, zwart);
    teken_naald(on, midden, share(straal, 0.57), share(straal, 0.04), 90 - minuten % 60 * 6.0, zwart);
    on.filled_circle(midden.x, midden.y, share(straal, 0.06), zwart);
}

} // namespace cijferwerf
