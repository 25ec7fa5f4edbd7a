// Areas of land: figures counted on a grid, a site with a shed, and what a square field yields.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <numeric>

namespace cijferwerf {

namespace {

// Four columns, each so many half squares large: an odd one has a slanting end.
using halve_kolommen = std::array<int, 4>;

bool geschikt(const halve_kolommen& kolommen) {
    return kolommen.back() >= 2 && kolommen.back() <= 8 &&
           std::ranges::any_of(kolommen, [](int halve) { return halve % 2 != 0; });
}

// The columns stand on a base line that begins at a corner of the grid, or hang from one; a slanting end rises where
// the bit of its column is set.
roosterfiguur maak_figuur(const halve_kolommen& kolommen, int stijgt, point begin, bool hangt) {
    const int omlaag = hangt ? 1 : -1;
    std::vector<point> hoeken;
    hoeken.reserve(10);
    hoeken.push_back(begin);
    const auto ga_naar = [&](int x, int hoogte) {
        if (const point hoek{begin.x + x, begin.y + omlaag * hoogte}; hoek != hoeken.back()) hoeken.push_back(hoek);
    };
    for (int x = 0; x < 4; ++x) {
        const int halve = kolommen[static_cast<std::size_t>(x)], laag = halve / 2, hoog = halve - laag;
        const bool omhoog = (stijgt >> x & 1) != 0;
        ga_naar(x, omhoog ? laag : hoog);
        ga_naar(x + 1, omhoog ? hoog : laag);
    }
    ga_naar(4, 0);
    return roosterfiguur(std::move(hoeken));
}

} // namespace

void oefeningen::M_figuren_07_12_click() {
    kies_variant(2);
    const bool kleinste = variant == 1;
    // In half squares.
    const auto oppervlakten = geschud(std::array{14, 15, 16, 17, 18, 19, 20, 21, 22});
    const auto uiterste = kleinste ? std::min_element(oppervlakten.begin(), oppervlakten.begin() + 4)
                                   : std::max_element(oppervlakten.begin(), oppervlakten.begin() + 4);
    const int juist = static_cast<int>(uiterste - oppervlakten.begin()) + 1;
    const auto cm2 = [](int halve) { return regel(komma_kort(halve * 5, 1), " cm²"); };

    bord(wit, zwart, 12);
    const rooster op{{125, 420}, 270, 19, 5};
    std::vector<gekleurde_figuur> figuren;
    figuren.reserve(4);
    for (int i = 1; i <= 4; ++i) {
        const auto kolommen = trek_tot(
            [&] {
                halve_kolommen drawn{};
                for (int& kolom : drawn) kolom = trek_van(2, 8);
                drawn.back() = rij(oppervlakten, i) - std::accumulate(drawn.begin(), drawn.end() - 1, 0);
                return drawn;
            },
            [](const halve_kolommen& drawn) { return geschikt(drawn); });
        const int stijgt = trek(16);
        const bool hangt = kop();
        figuren.push_back({maak_figuur(kolommen, stijgt, {5 * (i - 1), hangt ? 0 : op.hoog}, hangt), lichtcyaan});
    }
    teken_rooster(plaatje, op, figuren);
    for (int i = 1; i <= 4; ++i) druk_midden(op.hoek({5 * i - 3, 0}).x, 1800, "figuur", i);

    vraag("Hiernaast zie je vier figuren.", "Elk hokje stelt 1 cm² voor.", leeg, "Welke figuur heeft",
          kleinste ? "de KLEINSTE oppervlakte?" : "de GROOTSTE oppervlakte?");

    juist_op(juist);
    for (int i = 1; i <= 4; ++i)
        op_plaats(i, regel("figuur", i), regel("De oppervlakte van figuur", i, " is", cm2(rij(oppervlakten, i)), "."),
                  kleinste ? "Er is een figuur die kleiner is." : "Er is een figuur die groter is.",
                  "Denk eraan: twee halve hokjes zijn samen één hokje.");

    const auto figuur = [&](int i) { return regel("figuur", i, ":", cm2(rij(oppervlakten, i))); };
    constexpr int tussen = 5 * 270;
    opdracht(druk_opdracht(100, rood, 12,
                           {{300, cm2(oppervlakten[0])},
                            {300 + tussen, cm2(oppervlakten[1])},
                            {300 + 2 * tussen, cm2(oppervlakten[2])},
                            {300 + 3 * tussen, cm2(oppervlakten[3])}}));
    uitleg("Tel bij elke figuur de hele hokjes.", "Twee halve hokjes zijn samen één hokje.",
           regel("Zo vind je ", figuur(1), ", ", figuur(2), ","), regel(figuur(3), " en ", figuur(4), "."),
           regel("De ", kleinste ? "kleinste" : "grootste", " oppervlakte heeft dus figuur", juist, "."));
}

void oefeningen::Z_tegels_07_12_click() {
    kies_variant(2);
    const bool lange_kant_onder = variant == 1;
    // The two lengths differ by an even number, so that half of both together is whole.
    const int kort = trek_van(6, 12);
    const int verschil = trek_van(2, 6, 2);
    const int hoog = trek_van(4, 6);
    const int inspringing = trek(verschil + 1);
    const int schuur_breed = trek_van(2, 4);
    const int schuur_hoog = trek_van(1, hoog - 2);
    const int schuur_x = inspringing + trek(kort - schuur_breed + 1);
    const int schuur_y = trek(hoog - schuur_hoog + 1);
    const int lang = kort + verschil, midden = (lang + kort) / 2;
    const int schuur = schuur_breed * schuur_hoog, terrein = midden * hoog, juist = terrein - schuur;
    const auto m2 = [](int getal) { return regel(getal, " m²"); };

    bord(wit, zwart, 12);
    const rooster op{{125, 60}, 270, 19, 6};
    const int onder = (op.hoog + hoog) / 2, boven = onder - hoog, links = (op.breed - lang) / 2;
    const int y_lang = lange_kant_onder ? onder : boven, y_kort = lange_kant_onder ? boven : onder;
    const int sx = links + schuur_x, sy = boven + schuur_y;
    teken_rooster(
        plaatje, op,
        {{roosterfiguur({{links, y_lang},
                         {links + lang, y_lang},
                         {links + inspringing + kort, y_kort},
                         {links + inspringing, y_kort}}),
          lichtgrijs},
         {roosterfiguur(
              {{sx, sy}, {sx + schuur_breed, sy}, {sx + schuur_breed, sy + schuur_hoog}, {sx, sy + schuur_hoog}}),
          geel}});
    druk(125, 1770, "Eén hokje is 1 bij 1 meter.");

    vraag("Een bouwterrein (grijs) met een grootste", regel("lengte van", lang, " m en een kleinste"),
          regel("lengte van", kort, " m wordt betegeld."), "De vloer van de schuur (geel) hoeft niet",
          "gedaan te worden. ", "Hoeveel m² tegels is nodig?");

    drie_andere(
        juist, m2,
        {{terrein, {"Heb je soms vergeten de oppervlakte van de schuur", "ervan af te trekken?"}},
         {terrein + schuur, {"Je hebt de oppervlakte van de schuur erbij opgeteld."}},
         {lang * hoog - schuur, {"Het terrein is niet overal even lang:", regel("de kleinste lengte is", kort, " m.")}},
         {kort * hoog - schuur, {"Het terrein is niet overal even lang:", regel("de grootste lengte is", lang, " m.")}},
         {terrein - 2 * (schuur_breed + schuur_hoog),
          {"Je hebt de omtrek van de schuur ervan afgetrokken", "in plaats van de oppervlakte."}}});

    uitleg(regel("Gemiddeld is het terrein (", kaal(lang), " +", kort, ") : 2 =", midden, " m lang."),
           regel("Het is", hoog, " hokjes hoog, dus de oppervlakte is", midden, " x", hoog, " =", m2(terrein), "."),
           regel("De oppervlakte van de schuur is", schuur_breed, " x", schuur_hoog, " =", m2(schuur), "."),
           regel("Er is dus", terrein, " -", schuur, " =", m2(juist), " tegels nodig."));
}

void oefeningen::M_opbrengst_08_12_click() {
    static constexpr std::array prijzen{2, 3, 4, 5, 6, 8, 10, 12, 15, 20};
    constexpr int grootste_bedrag = 999'999;
    kies_variant(2);
    const int omtrek = (trek(100) + (variant == 1 ? 0 : 100)) * 4 + 100;
    const int zijde = omtrek / 4, oppervlakte = zijde * zijde, halve = omtrek / 2;
    // The largest of the wrong amounts has to stay below a million.
    const auto betaalbaar = static_cast<int>(
        std::ranges::count_if(prijzen, [&](int euros) { return halve * halve <= grootste_bedrag / euros; }));
    const int prijs = rij(prijzen, trek(betaalbaar) + 1);
    const int juist = oppervlakte * prijs;
    const auto bedrag = [](int euros) { return euro(euros * 100LL); };

    // The field with its four equal sides, and the sign.
    bord(lichtgroen, zwart, 12);
    constexpr int kant = 1500;
    const vlak land{variant == 1 ? 350 : drawing::inner_width - 350 - kant, 320, kant, kant};
    const vlak paneel{variant == 1 ? 2350 : 350, 220, 2680, 1300};
    plaatje.filled_box(land.links, land.boven, kant, kant, groen);
    plaatje.line_width = 3;
    plaatje.box(land.links, land.boven, kant, kant, zwart);
    plaatje.line_width = 1;
    for (const int x : {paneel.links + 350, paneel.rechts() - 470})
        plaatje.filled_box(x, paneel.onder(), 120, 500, donkerrood);
    plaatje.filled_box(paneel.links, paneel.boven, paneel.breedte, paneel.hoogte, wit);
    plaatje.box(paneel.links, paneel.boven, paneel.breedte, paneel.hoogte, zwart);
    plaatje.fore_colour = donkerrood;
    plaatje.text_size = 18;
    druk_midden(paneel.midden().x, paneel.boven + 50, "TE KOOP");
    plaatje.fore_colour = zwart;
    plaatje.text_size = 12;
    druk_midden(paneel.midden().x, paneel.boven + 460, "bouwgrond voor een");
    druk_midden(paneel.midden().x, paneel.boven + 730, "prijs van");
    druk_midden(paneel.midden().x, paneel.boven + 1000, kaal(bedrag(prijs)), " per m²");

    vraag("De omtrek van een vierkant stuk", regel("land is", omtrek, " m."), "Het land wordt verkocht",
          regel("voor", bedrag(prijs), " per m²."), leeg, "Hoeveel brengt het land op?");

    drie_andere(juist, bedrag,
                {{omtrek * prijs, {"Heb je soms de omtrek voor de oppervlakte aangezien?"}},
                 {zijde * prijs, {"Je hebt vergeten de lengte van een zijde", "in het kwadraat te zetten."}},
                 {halve * halve * prijs, {"Heb je soms de omtrek eerst door 2 gedeeld", "in plaats van door 4...?"}},
                 {oppervlakte, {"Je hebt de oppervlakte nog niet met de prijs", "vermenigvuldigd."}}});

    opdracht(druk_midden_opdracht(land.midden().x, land.boven - 290, donkerrood, 12, zijde, " m"));
    uitleg(regel("Een zijde van het land is", omtrek, " : 4 =", zijde, " m."),
           regel("De oppervlakte is", zijde, " x", zijde, " =", duizend(oppervlakte), " m²."),
           regel("Elke m² kost", bedrag(prijs), ", dus", duizend(oppervlakte), " x", prijs, " =", duizend(juist), "."),
           regel("De opbrengst is dus", bedrag(juist), "."));
}

} // namespace cijferwerf
