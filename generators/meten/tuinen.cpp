// L-shaped figures: a rectangle with a square beside it, their area and their edge.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// A rectangle with a square at its foot or under its top, to the right or to the left of it.
struct L_vorm {
    int breed, hoog, zijde;
    bool rechts, onder;

    int lengte() const { return breed + zijde; } // of both together
    int oppervlakte() const { return breed * hoog + zijde * zijde; }
    int omtrek() const { return 2 * (lengte() + hoog); }
    // The same in pieces, from the side without a square on: up, along the rectangle, the step, around the square,
    // back.
    std::array<int, 6> zijden() const { return {hoog, breed, hoog - zijde, zijde, zijde, lengte()}; }
};

// Where its parts stand on the picture.
struct L_tekening {
    vlak rechthoek, vierkant;
    int langs; // y of the line that tells the length of both together

    // The middle of the rectangle's side that the length of both is not told along.
    point kop(const L_vorm& l) const { return {rechthoek.midden().x, l.onder ? rechthoek.boven : rechthoek.onder()}; }
};

// The figure to scale, with the length of both parts together, the height of the rectangle, and the side of the square.
L_tekening teken_L(drawing& on, const L_vorm& l, kleur rechthoek, kleur vierkant, std::string_view eenheid) {
    constexpr int room = 290; // above and below, for measures
    const int schaal = std::min(3700 / l.lengte(), (drawing::inner_height - 2 * room - 20) / l.hoog);
    const int breed = l.breed * schaal, hoog = l.hoog * schaal, zijde = l.zijde * schaal;
    const int links = (drawing::inner_width - breed - zijde) / 2, boven = (drawing::inner_height - hoog) / 2;
    const vlak groot{l.rechts ? links : links + zijde, boven, breed, hoog};
    const vlak klein{l.rechts ? links + breed : links, l.onder ? boven + hoog - zijde : boven, zijde, zijde};
    const auto maat = [&](int getal) { return regel(kaal(getal), eenheid); };

    on.filled_box(groot.links, groot.boven, breed, hoog, rechthoek);
    on.filled_box(klein.links, klein.boven, zijde, zijde, vierkant);
    {
        const zelfde_stand bewaard(on, 2);
        on.box(groot.links, groot.boven, breed, hoog, zwart);
        on.box(klein.links, klein.boven, zijde, zijde, zwart);
    }
    vertel(on, "Een rechthoek met ", l.rechts ? "rechts" : "links",
           " ernaast een vierkant, samen een L. Lengte van de L: ", maat(l.lengte()),
           ". Hoogte van de rechthoek: ", maat(l.hoog), ". Zijde van het vierkant: ", maat(l.zijde), ".");
    const verteld_als stil(on);
    const int langs = l.onder ? boven + hoog + 150 : boven - 150;
    teken_maat(on, {links, langs}, {links + breed + zijde, langs}, maat(l.lengte()));
    const int naast = text_width(maat(l.hoog), on.text_size) / 2 + 90;
    const int naast_groot = l.rechts ? groot.links - naast : groot.rechts() + naast;
    teken_maat(on, {naast_groot, boven}, {naast_groot, boven + hoog}, maat(l.hoog));
    const int naast_klein = l.rechts ? klein.rechts() + naast : klein.links - naast;
    // Downward on the right, upward on the left: where the text has no room in the line, it stands outside.
    teken_maat(on, {naast_klein, l.rechts ? klein.boven : klein.onder()},
               {naast_klein, l.rechts ? klein.onder() : klein.boven}, maat(l.zijde));
    return {groot, klein, langs};
}

} // namespace

void oefeningen::M_L_vorm_07_12_click() {
    kies_variant(2);
    const int breed = trek(20) + 5;
    const int hoog = trek(3) + 12;
    const int zijde = trek(7) + 3;
    const bool onder = kop();
    const L_vorm l{breed, hoog, zijde, variant == 1, onder};
    const int rechthoek = breed * hoog, vierkant = zijde * zijde, om_beide = l.lengte() * hoog;
    const auto cm2 = [](int getal) { return regel(duizend(getal), " cm²"); };

    bord(wit, zwart, 12);
    const L_tekening getekend = teken_L(plaatje, l, geel, blauw, "");
    const point kop_midden = getekend.kop(l);
    opdracht(druk_midden_opdracht(kop_midden.x, onder ? kop_midden.y - 280 : kop_midden.y + 10, donkerrood, 12,
                                  kaal(breed)));

    vraag("De L-vormige figuur hiernaast is", "samengesteld uit een rechthoek", "(geel) en een vierkant (blauw).",
          "Niet alle maten (in cm) zijn gegeven.", "Hoe groot is de oppervlakte van", "de hele figuur?");

    drie_andere(l.oppervlakte(), cm2,
                {{om_beide, {"Je moet er nog de oppervlakte van een klein", "stukje afhalen."}},
                 {om_beide + vierkant,
                  {"Je hebt met een te lange rechthoek gerekend:",
                   regel("de gele rechthoek is geen", l.lengte(), " cm lang.")}},
                 {l.omtrek(), {"Je hebt de omtrek berekend in plaats van", "de oppervlakte..."}},
                 {rechthoek, {"Je bent de oppervlakte van het blauwe vierkant", "vergeten."}}});

    uitleg(regel("De rechthoek is", l.lengte(), " -", zijde, " =", breed, " cm breed en", hoog, " cm hoog."),
           regel("De oppervlakte ervan is", breed, " x", hoog, " =", cm2(rechthoek), "."),
           regel("De oppervlakte van het vierkant is", zijde, " x", zijde, " =", cm2(vierkant), "."),
           regel("Samen is dat", rechthoek, " +", vierkant, " =", cm2(l.oppervlakte()), "."));
}

void oefeningen::M_tuin_07_09_click() {
    kies_variant(2);
    const int zijde = trek_van(4, 12);
    const int breed = trek_van(6, 20);
    const int hoog = zijde + trek_van(3, 9);
    const bool onder = kop();
    const L_vorm l{breed, hoog, zijde, variant == 1, onder};
    const int rechthoek = 2 * (breed + hoog), vierkant = 4 * zijde, stap = hoog - zijde;
    const auto meter = [](int getal) { return regel(getal, " m"); };

    bord(wit, zwart, 12);
    const auto [groot, klein, langs] = teken_L(plaatje, l, groen, lichtgroen, " m");

    vraag("Een tuin in de vorm van een L moet", "rondom van een hek voorzien worden.",
          "De tuin kun je opvatten als een vierkant", "(lichtgroen) naast een rechthoek",
          "(donkergroen). Bereken de totale lengte", "van het hek om deze L-vormige tuin.");

    drie_andere(
        l.omtrek(), meter,
        {{rechthoek + vierkant,
          {"Je hebt de omtrek van het vierkant en die van de", "rechthoek opgeteld. Tussen die twee staat geen hek."}},
         {rechthoek + vierkant - zijde,
          {"De grens tussen het vierkant en de rechthoek", "hoort bij allebei: die moet er twee keer af."}},
         {l.oppervlakte(), {"Je hebt de oppervlakte berekend in plaats van", "de lengte van het hek."}},
         {l.omtrek() - stap,
          {"Je bent een stuk hek vergeten: naast het vierkant", "houdt de rechthoek nog een stukje over."}},
         {l.lengte() + hoog, {"Je hebt nog maar de helft van het hek."}},
         {rechthoek, {"Je hebt alleen de omtrek van de rechthoek berekend."}}});

    // The sides that were not told.
    const int kop_y = onder ? groot.boven - 280 : groot.onder() + 10;
    const int vierkant_y = onder ? klein.boven - 280 : klein.onder() + 10;
    opdrachten(druk_midden_opdracht(groot.midden().x, kop_y, donkerrood, 12, breed, " m"),
               druk_midden_opdracht(klein.midden().x, vierkant_y, donkerrood, 12, zijde, " m"));

    const auto [a, b, c, d, e, f] = l.zijden();
    uitleg("Loop rond de tuin en tel alle stukken hek op.",
           regel("De rechthoek is", l.lengte(), " -", zijde, " =", breed, " m breed; naast het vierkant"),
           regel("houdt hij", hoog, " -", zijde, " =", stap, " m over."),
           regel("Het hek is dus", a, " +", b, " +", c, " +", d, " +", e, " +", f, " =", meter(l.omtrek()), " lang."));
}

} // namespace cijferwerf
