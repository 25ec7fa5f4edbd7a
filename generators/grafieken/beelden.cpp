// Picture graphs and pie charts: how many people the figures stand for, and which sector stands for so many people.
// The wrong answers take half a figure for a whole one, or read the scale or the sector wrong.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// A figure of a person, or its left half, cut along the middle.
void teken_mens(drawing& on, int midden, int boven, int hoogte, bool half, kleur met) {
    // The left half from the neck on, in thousandths of the height, left of the middle and down from the top.
    static constexpr std::array<point, 11> omtrek{{{0, 300},
                                                   {200, 300},
                                                   {240, 350},
                                                   {240, 640},
                                                   {180, 640},
                                                   {180, 430},
                                                   {140, 430},
                                                   {140, 1000},
                                                   {20, 1000},
                                                   {20, 650},
                                                   {0, 650}}};
    std::vector<point> romp;
    romp.reserve(2 * omtrek.size());
    for (const point& p : omtrek) romp.push_back({midden - p.x * hoogte / 1000, boven + p.y * hoogte / 1000});
    if (!half)
        for (auto p = omtrek.rbegin(); p != omtrek.rend(); ++p)
            romp.push_back({midden + p->x * hoogte / 1000, boven + p->y * hoogte / 1000});
    on.polygon(romp, met, true);
    on.sector(midden, boven + hoogte * 150 / 1000, hoogte * 125 / 1000, 90, half ? 180 : 360, met, true);
}

} // namespace

void oefeningen::B_inwoners_04_18_click() {
    static constexpr std::array<int, 3> schalen{1000, 10'000, 100'000};
    kies_variant(3);
    const int schaal = rij(schalen, variant);
    // With the largest scale, and where that is the wrong one, a million is never reached.
    const int hele = trek_van(3, schaal == 100'000 ? 8 : 14);
    const bool te_groot = schaal == 1000 || (schaal == 10'000 && hele <= 8 && kop());
    const int verkeerde_schaal = te_groot ? schaal * 10 : schaal / 10;
    const int helften = 2 * hele + 1;
    const number_text figuurtjes = komma(helften * 5, 1);
    const int inwoners = helften * (schaal / 2);

    bord(wit, donkerblauw, 12);
    vertel(plaatje, "Een beelddiagram met ", telwoord(hele), " hele figuurtjes en een half. Eronder één figuurtje:");
    plaatje.filled_box(0, 1720, drawing::inner_width, drawing::inner_height - 1720, lichtcyaan);
    const int per_rij = (hele + 2) / 2;
    const int links = (drawing::inner_width - per_rij * 600) / 2 + 300;
    for (int i = 0; i <= hele; ++i)
        teken_mens(plaatje, links + i % per_rij * 600, 90 + i / per_rij * 810, 730, i == hele, donkerblauw);
    teken_mens(plaatje, 1650, 1760, 330, false, donkerblauw);
    druk(1850, 1790, "=", duizend(schaal), " personen");

    vraag("Van een stad wordt het aantal", "inwoners geteld. Hiernaast zie je", "in een beelddiagram de uitkomst",
          "van die telling weergegeven.", "Hoeveel inwoners had deze", "stad?");

    goed(duizend(inwoners));
    fout(duizend((hele + 1) * schaal), "Je hebt een half figuurtje voor een hele", "aangezien...");
    fout(duizend(helften * (verkeerde_schaal / 2)), "Je hebt de verkeerde schaal gebruikt.");
    fout(duizend((hele + 1) * verkeerde_schaal), "Je hebt een half figuurtje voor",
         "een hele geteld en je hebt ook nog een verkeerde", "schaal gebruikt...");

    uitleg(regel("Eén figuurtje stelt", duizend(schaal), " inwoners voor. Er zijn in totaal"),
           regel(kaal(figuurtjes), " van die figuurtjes te zien. Dat betekent dat die"),
           regel("stad", figuurtjes, " x", duizend(schaal), " =", duizend(inwoners), " inwoners heeft."));
}

void oefeningen::L_vakanties_04_18_click() {
    static constexpr std::array<std::string_view, 4> landen{"Spanje", "Duitsland", "Frankrijk", "Italië"};
    struct sector {
        int twaalfden;
        std::string_view breuk;
    };
    using diagram = std::array<sector, 4>;
    static constexpr diagram met_helft{{{6, "1/2"}, {3, "1/4"}, {2, "1/6"}, {1, "1/12"}}};
    static constexpr diagram zonder_helft{{{5, "5/12"}, {4, "1/3"}, {2, "1/6"}, {1, "1/12"}}};

    kies_variant(4);
    const diagram& sectoren = variant <= 2 ? met_helft : zonder_helft;
    static constexpr std::array<point, 4> gevraagd{{{1, 1}, {2, 4}, {1, 2}, {3, 4}}}; // from which to which sector
    const auto [eerste, laatste] = rij(gevraagd, variant);
    const int twaalfden = rij(sectoren, trek_van(eerste, laatste)).twaalfden;
    const int per_twaalfde = trek_van(3, std::min(99 / twaalfden, 40));
    const int mensen = 12 * per_twaalfde, bezoekers = twaalfden * per_twaalfde;
    // Sector after sector around the pie belongs to country after country; the legend has an order of its own.
    const diagram van_land = geschud(sectoren);
    const auto kleuren = geschud(std::array{blauw, rood, paars, geel});
    const auto rond = geschud(std::array{1, 2, 3, 4});
    int juist = 0;
    for (int i = 1; i <= 4; ++i)
        if (rij(van_land, i).twaalfden == twaalfden) juist = i;

    constexpr point midden{1350, 1065};
    constexpr int straal = 800;
    bord(wit, zwart, 11);
    std::vector<taartdeel> delen;
    int getekend = 3; // twelfths, from three o'clock: the first sector begins at the top
    for (const int land : rond) {
        const int deze = rij(van_land, land).twaalfden;
        delen.push_back({deze, rij(kleuren, land)});
        const point naam = op_cirkel(midden, straal * 0.74, 30 * getekend + 15 * deze);
        if (twaalfden != 6)
            opdracht(druk_midden_opdracht(naam.x, naam.y - halve_regel(7), letterkleur(rij(kleuren, land)), 7,
                                          kaal(deze), "/12"));
        getekend += deze;
    }
    teken_taart(plaatje, midden, straal, delen);
    for (int graden = 0; graden < 360; graden += 30) {
        const point van = op_cirkel(midden, straal + 30, graden), naar = op_cirkel(midden, straal + 110, graden);
        plaatje.line(van.x, van.y, naar.x, naar.y, zwart);
    }
    std::vector<legendaregel> legenda;
    for (int i = 1; i <= 4; ++i)
        legenda.push_back({rij(kleuren, i), regel(rij(landen, i), " (", woord(rij(kleuren, i)), ")")});
    teken_legenda(plaatje, 2900, 430, legenda);

    vraag(regel("Van", mensen, " mensen is onderzocht"), "naar welk land zij vorig jaar gingen",
          "om hun vakantie door te brengen.", "Dat bleken vier landen te zijn, waarvan er",
          regel("één door", bezoekers, " mensen bezocht werd. Kijk naar"),
          "het sectordiagram. Over welk land gaat het?");

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) {
        const auto& [delen_hier, breuk_hier] = rij(van_land, i);
        op_plaats(
            i, rij(landen, i),
            regel("De ", bijvoeglijk(rij(kleuren, i)), " sector is ", breuk_hier, " deel van het diagram. Dat zijn"),
            regel(kaal(delen_hier * per_twaalfde), " van de", mensen, " mensen, en niet", bezoekers, "."));
    }

    const std::string_view kleur_hier = bijvoeglijk(rij(kleuren, juist));
    const std::string dus = regel("Het juiste antwoord is dus ", rij(landen, juist), ".");
    if (twaalfden == 6) {
        uitleg("Deze som is niet zo moeilijk, want je ziet", "meteen dat het aantal mensen dat naar het",
               "genoemde land gaat, de helft is van het totale", "aantal mensen.",
               regel("De ", kleur_hier, " sector is de helft van het diagram."), dus);
        return;
    }
    uitleg(
        regel("1/12 deel van het totale aantal is", mensen, " : 12 =", per_twaalfde, "."),
        regel("Elk 1/12 deel van het diagram is dus", per_twaalfde, " mensen."),
        regel("Het bedoelde land trok", bezoekers, " mensen: dat is", bezoekers, " :", per_twaalfde, " =", twaalfden,
              twaalfden == 1 ? " deel." : " delen."),
        regel("De ", kleur_hier, " sector stelt dus", twaalfden, " x", per_twaalfde, " =", bezoekers, " mensen voor."),
        dus);
}

} // namespace cijferwerf
