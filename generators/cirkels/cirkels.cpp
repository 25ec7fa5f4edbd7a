// Circles: circumference or area from the radius and back, a circle in a rectangle.
#include "generators/gedeeld/cirkel.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

plakregel cm(kommagetal lengte) { return plak_even({komma(lengte, 2), " cm"}); }
plakregel cm2(kommagetal oppervlakte) { return plak_even({komma(oppervlakte, 2), " cm²"}); }

// A circle with its radius, and what is known of that.
void teken_cirkel(drawing& on, std::string_view straal) {
    constexpr point midden{drawing::inner_width / 2, drawing::inner_height / 2};
    constexpr int lang = 930;
    const zelfde_stand bewaard(on, 3);
    on.filled_circle(midden.x, midden.y, lang, wit);
    on.circle(midden.x, midden.y, lang, geel);
    on.line(midden.x, midden.y, midden.x + lang, midden.y, donkerblauw);
    on.filled_circle(midden.x, midden.y, 40, donkerblauw);
    on.fore_colour = donkerblauw;
    druk_om(on, {midden.x + lang / 2, midden.y - 180}, straal);
}

} // namespace

void oefeningen::B_cirkel_1_00_13_click() {
    kies_variant(2);
    const int r = variant == 1 ? trek(14) + 2 : trek(7) * 2 + 2;
    const bool vraagt_omtrek = kop();
    // At r = 4 the larger wrong circumference would be the number of the area.
    const bool te_groot = kop() && !(vraagt_omtrek && r == 4);
    const float gelegd = toeval.fraction();
    const int plaats = gelegd < 0.4F ? 1 : gelegd < 0.41F ? 2 : gelegd < 0.7F ? 3 : 4;
    const kommagetal straal{r}, omtrek = cirkelomtrek(straal), oppervlakte = cirkeloppervlakte(straal);

    bord(donkerblauw, geel, 10);
    teken_cirkel(plaatje, regel("r =", r, " cm"));

    vraag("Een cirkel heeft een straal", regel("van", r, " cm."), leeg,
          vraagt_omtrek ? "Hoe groot is de omtrek?" : "Hoe groot is de oppervlakte?");

    if (vraagt_omtrek) {
        goed(cm(omtrek));
        fout(cm2(oppervlakte), "Je hebt de oppervlakte berekend, in plaats van", "de omtrek.");
        fout(cm(straal * 2), "Je hebt zeker de middellijn berekend...");
        fout(cm(te_groot ? omtrek * 2 : pi * straal), "Je hebt niet de goede formule voor de omtrek", "gebruikt.");
    } else {
        goed(cm2(oppervlakte));
        fout(cm(omtrek), "Je hebt de omtrek berekend in plaats van de", "de oppervlakte.");
        fout(cm(straal * 2), "Heb je soms de middellijn berekend?");
        fout(cm2(te_groot ? oppervlakte * 2 : pi * straal), "Je hebt niet de goede formule voor de",
             "oppervlakte gebruikt.");
    }
    leg_vast(plaats);

    const std::string gegeven = regel("De cirkel heeft een straal van", r, " cm.");
    const std::string uitkomst = regel("De uitkomst hiervan is: ", juiste_antwoord());
    if (vraagt_omtrek)
        uitleg(gegeven, "Als je de omtrek wilt weten, moet je deze formule", regel("toepassen: omtrek = 2 x 3,14 x", r),
               uitkomst);
    else
        uitleg(gegeven, "Als je de oppervlakte wilt weten, moet je deze formule",
               regel("toepassen: oppervlakte = 3,14 x", r, "² = 3,14 x", r, " x", r), uitkomst);
}

void oefeningen::L_cirkel_2_00_13_click() {
    kies_variant(2);
    const int r = trek_van(3, 15);
    const bool uit_omtrek = variant == 1;
    const kommagetal straal{r}, omtrek = cirkelomtrek(straal), oppervlakte = cirkeloppervlakte(straal);
    const kommagetal halve_straal = straal * kommagetal{5, 1};

    bord(cyaan, geel, 11);
    teken_cirkel(plaatje, "r = ?");

    if (uit_omtrek) {
        vraag("Een cirkel heeft een omtrek", regel("van", cm(omtrek), "."), leeg, "Hoe groot is de straal?");
        const kommagetal te_vaak_gedeeld{deel_afgerond(100LL * 100 * r, pi.geschaald), 2};
        drie_andere(straal, cm,
                    {{straal * 2, {"Je hebt de middellijn berekend."}},
                     {pi * straal, {"Je moet nog door 3,14 delen..."}},
                     {te_vaak_gedeeld, {"Je hebt twee keer door 3,14 gedeeld. Eén keer is", "genoeg."}},
                     {halve_straal, {"Je hebt een foute formule gebruikt..."}}});
        uitleg("De omtrek van een cirkel is 2 x 3,14 x r.",
               regel("Deel de omtrek eerst door 2:", komma(omtrek, 2), " : 2 =", komma(pi * straal, 2), "."),
               regel("Deel dit getal daarna door 3,14:", komma(pi * straal, 2), " : 3,14 =", r, "."),
               regel("De straal is dus", cm(straal), "."));
    } else {
        vraag("Een cirkel heeft een oppervlakte", regel("van", cm2(oppervlakte), "."), leeg, "Hoe groot is de straal?");
        drie_andere(straal, cm,
                    {{straal * 2, {"Je hebt de middellijn berekend."}},
                     {straal * straal, {"Dit is het kwadraat van de straal, nog niet", "de straal zelf."}},
                     {omtrek, {"Je hebt de omtrek berekend..."}},
                     {halve_straal, {"Je hebt een foute formule gebruikt..."}}});
        uitleg(
            regel("De oppervlakte is 3,14 x r². Dit is hier", komma(oppervlakte, 2), "."),
            "Deel dit getal eerst door 3,14, dan heb je r². De uitkomst ",
            regel("hiervan is:", komma(oppervlakte, 2), " : 3,14 =", r * r, ". Dit getal is het kwadraat van", r, "."),
            regel("De straal is dus ", kaal(cm(straal)), "."));
    }
}

void oefeningen::M_in_elkaar_00_13_click() {
    kies_variant(2);
    const int r = trek_van(3, 10), breedte = 2 * r;
    // In a shorter rectangle the circle takes more than half, in a longer one less.
    const int half_vol = static_cast<int>((pi * r).op(2) / 100);
    const int lengte = variant == 1 ? trek_van(breedte + 1, half_vol) : trek_van(half_vol + 1, 5 * r);
    const kommagetal rechthoek{lengte * breedte}, cirkel = cirkeloppervlakte({r});

    bord(lichtgrijs, zwart, 12);
    constexpr point midden{2160, 1155};
    constexpr int straal = 710;
    const int half = straal * lengte / breedte, boven = midden.y - straal, onder = midden.y + straal;
    plaatje.filled_box(midden.x - half, boven, 2 * half, 2 * straal, geel);
    plaatje.box(midden.x - half, boven, 2 * half, 2 * straal, zwart);
    plaatje.filled_circle(midden.x, midden.y, straal, donkerblauw);
    teken_maat(plaatje, {midden.x - half, 250}, {midden.x + half, 250}, regel(kaal(lengte), " cm"));
    const int ernaast = midden.x + half + 450;
    teken_maat(plaatje, {ernaast, boven}, {ernaast, onder}, regel(kaal(breedte), " cm"));
    opdrachten(streep_opdracht(midden.x, midden.y, straal, 0, wit, line_style::dot),
               druk_opdracht(2820, 1025, wit, 8.25, ">"), druk_opdracht(2000, 850, wit, 8.25, "r =", r, " cm"));

    vraag("Hiernaast zie je een cirkel in", "een rechthoek getekend. De lengte", "en de breedte van de rechthoek",
          "zijn gegeven.", "Bereken de oppervlakte van", "het gele gedeelte.");

    goed(cm2(rechthoek - cirkel));
    fout(cm2(kommagetal{2 * (lengte + breedte)} - cirkelomtrek({r})), "Je hebt van allebei de figuren de",
         "omtrek gebruikt.");
    fout(cm2(cirkel), "Je hebt alleen de oppervlakte van de cirkel", "berekend.");
    fout(cm2(rechthoek + cirkel), "Heb je soms de oppervlaktes bij elkaar opgeteld in", "plaats van afgetrokken?");

    uitleg(regel("De oppervlakte van de rechthoek is", lengte, " x", breedte, " =", rechthoek.geschaald, " cm²."),
           regel("De straal van de cirkel is de helft van de breedte:", breedte, " : 2 =", r, " cm."),
           regel("De oppervlakte van de cirkel is 3,14 x", r, " x", r, " =", komma(cirkel, 2), " cm²."),
           regel("Trek die af:", rechthoek.geschaald, " -", komma(cirkel, 2), " =", komma(rechthoek - cirkel, 2), "."),
           regel("De oppervlakte van het gele gedeelte is dus ", juiste_antwoord(), "."));
}

} // namespace cijferwerf
