// What a household uses of gas and water, as meters and letters tell: costs, prices, savings.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/oefeningen.h"

#include <numeric>
#include <tuple>

namespace cijferwerf {

namespace {

// The cabinet of a meter with two readings; below them is room for a line.
void teken_meterstanden(drawing& on, std::string_view opschrift, int oud, int nieuw) {
    const zelfde_stand bewaard(on);
    constexpr vlak kast{400, 90, 4580, 1950};
    on.filled_box(kast.links, kast.boven, kast.breedte, kast.hoogte, wit);
    on.filled_box(kast.links, kast.boven, kast.breedte, 340, donkerblauw);
    on.box(kast.links, kast.boven, kast.breedte, kast.hoogte, zwart);
    on.fore_colour = wit;
    druk_om(on, {kast.midden().x, kast.boven + 170}, opschrift);
    on.fore_colour = zwart;
    constexpr int links = 2300;
    for (const auto& [woorden, boven, stand] :
         {std::tuple{"oude stand", 560, oud}, std::tuple{"nieuwe stand", 1130, nieuw}}) {
        const int midden = boven + teller_hoogte(16) / 2;
        on.text_size = 13;
        on.print_at(kast.links + 200, midden - halve_regel(13), woorden);
        on.print_at(links + teller_breedte(tekst(stand), 16) + 150, midden - halve_regel(13), "m³");
        on.text_size = 16;
        teken_teller(on, links, boven, tekst(stand));
    }
}
plakregel verschil_opdracht(int verbruik) {
    return druk_opdracht(600, 1690, donkerrood, 13, "verschil:", duizend(verbruik), " m³");
}

struct grenzen {
    int minste, meeste;
};

plakregel kubieke_meters(int aantal) { return plak_even({duizend(aantal), " m³"}); }

} // namespace

void oefeningen::L_gas_1_00_19_click() {
    static constexpr std::array<grenzen, 2> verbruiken{{{400, 990}, {1200, 2800}}}; // m³, a flat and a house
    kies_variant(2);
    const auto [minste, meeste] = rij(verbruiken, variant);
    const int verbruik = trek_van(minste, meeste, 10);
    const int oud = trek_van(10'000, 96'999);
    const int nieuw = oud + verbruik;
    const int prijs = trek_van(31, 69);
    const long long kosten = verbruik * prijs;

    bord(lichtgrijs, zwart, 13);
    teken_meterstanden(plaatje, "GASMETER", oud, nieuw);
    opdracht(verschil_opdracht(verbruik));

    vraag("De stand van de gasmeter wordt opgenomen.", "Hiernaast zie je de stand van vorig jaar",
          "en die van dit jaar. Gegeven is dat de prijs", regel("van een m³ aardgas", prijs, " cent is."),
          "Bereken hoeveel de verbruikte", "energie van het gas kost.");

    // A ten or a hundred borrowed too much or not at all, no difference taken, cents taken for euros or tenths of them.
    drie_andere(kosten, euro,
                {{kosten - 10 * prijs},
                 {kosten - 100 * prijs},
                 {kosten + 100 * prijs},
                 {static_cast<long long>(nieuw) * prijs},
                 {kosten / 10},
                 {kosten * 10}});
    tip_1("Reken eerst uit hoeveel m³ gas verbruikt is.");
    tip_2("Reken eerst uit hoeveel m³ gas verbruikt is.", "Vermenigvuldig dat aantal met de prijs van een m³.",
          "Zet de uitkomst om in euro's.");

    uitleg("Bereken eerst het verschil van de twee meterstanden:",
           regel(kaal(duizend(nieuw)), " -", duizend(oud), " =", kubieke_meters(verbruik), " gas."),
           regel("Een m³ gas kost", prijs, " cent, dus", duizend(verbruik), " m³ kost"),
           regel(kaal(duizend(verbruik)), " x", prijs, " =", duizend(kosten), " cent."),
           regel("De verbruikte energie kost dus", euro(kosten), "."));
}

void oefeningen::M_water_1_00_19_click() {
    static constexpr std::array<grenzen, 2> verbruiken{{{40, 95}, {110, 240}}}; // m³, a small and a large household
    kies_variant(2);
    const auto [minste, meeste] = rij(verbruiken, variant);
    const int verbruik = trek_van(minste, meeste, 5);
    const int oud = trek_van(1000, 9699);
    const int nieuw = oud + verbruik;
    const int prijs = trek_van(81, 189);
    const int bedrag = verbruik * prijs;
    const auto eurocent = [](long long aantal) { return regel(duizend(aantal), " eurocent"); };

    bord(lichtgrijs, zwart, 13);
    teken_meterstanden(plaatje, "WATERMETER", oud, nieuw);
    opdracht(verschil_opdracht(verbruik));

    vraag("De stand van de watermeter wordt", "opgenomen. Hiernaast zie je de stand van",
          "vorig jaar en die van dit jaar. Voor de", regel("geleverde hoeveelheid water moest", euro(bedrag)),
          "betaald worden. Bereken hoeveel het", "waterleidingbedrijf voor 1 m³ rekent.");

    // Ten borrowed too much or not at all, a digit moved, the number of m³ taken for the price, and the euros.
    drie_andere(static_cast<long long>(prijs), eurocent,
                {{deel_afgerond(bedrag, verbruik - 10)},
                 {deel_afgerond(bedrag, verbruik + 10)},
                 {deel_afgerond(prijs, 10)},
                 {prijs * 10},
                 {verbruik},
                 {deel_afgerond(bedrag, 100)}});
    tip_1("Reken eerst uit hoeveel m³ water is verbruikt", "en deel het bedrag van de rekening door dat aantal.");
    tip_2("Reken eerst uit hoeveel m³ water is verbruikt", "en deel het bedrag van de rekening door dat aantal.",
          regel("Trek dus", duizend(oud), " van", duizend(nieuw), " af en reken het bedrag om"),
          "in eurocent voordat je deelt.");

    uitleg(regel("Het verbruik is", duizend(nieuw), " -", duizend(oud), " =", kubieke_meters(verbruik), " water."),
           regel("De rekening is", euro(bedrag), ", dat is", eurocent(bedrag), "."),
           regel("Deel dat door het aantal m³:", duizend(bedrag), " :", verbruik, " =", prijs, "."),
           regel("Voor 1 m³ rekent het waterleidingbedrijf dus", eurocent(prijs), "."));
}

void oefeningen::M_water_2_00_19_click() {
    static constexpr std::array<std::string_view, 6> families{"Bakker",  "Yilmaz", "de Wit",
                                                              "Sewdien", "Postma", "Arends"};
    kies_variant(2);
    // In the first sub-variant multiples of 5 %.
    const int vijfvouden = trek_van(2, 6);
    const int ander_procent = (vijfvouden - 1) * 5 + trek_van(1, 4);
    const int procent = variant == 1 ? vijfvouden * 5 : ander_procent;
    const int deelbaar = 100 / std::gcd(100, procent); // then the percentage is exact
    const int oud = deelbaar * trek_van(101 / deelbaar + 1, 300 / deelbaar);
    const int bespaard = oud * procent / 100;
    const int nieuw = oud - bespaard;
    const std::string_view familie = kies(families);
    const auto in_procent = [](int aantal) { return regel(aantal, " %"); };

    bord(lichtgrijs, zwart, 12);
    teken_blad(plaatje, {500, 100, 4380, 1900}, bladsoort::brief, "De Gemeentelijke Waterleidingen",
               {regel("Aan de familie ", familie), "Hieronder staat uw verbruik van water.",
                regel("Vorig jaar:", kubieke_meters(oud)), regel("Dit jaar:", kubieke_meters(nieuw))});

    vraag("In een gezin doet men een jaar lang", "heel zuinig met water. Hiernaast zie je",
          "hoeveel water het gezin verbruikte.", leeg, "Hoeveel % heeft dat gezin dit jaar",
          "op het watergebruik bespaard?");

    opeenvolgend(procent, in_procent);
    tip_1("Eerste stap: reken het aantal m³ besparing uit.");
    tip_2("Eerste stap: reken het aantal m³ besparing uit.",
          "Tweede stap: deel dat aantal door wat ze eerst verbruikten", "en maak er procenten van.");

    uitleg(regel("De besparing is", oud, " -", nieuw, " =", kubieke_meters(bespaard), " water."),
           regel("Eerst verbruikte het gezin", kubieke_meters(oud), "."),
           "Deel de besparing daardoor en vermenigvuldig met 100:",
           regel(kaal(bespaard), " :", oud, " x 100 =", procent, "."),
           regel("Het gezin heeft dus", in_procent(procent), " op het watergebruik bespaard."));
}

void oefeningen::Z_gas_2_00_19_click() {
    static constexpr std::array<grenzen, 2> honderdtallen_bespaard{{{4, 7}, {8, 12}}};
    struct isolatie {
        int bespaard, prijs, kosten; // m³ a year, eurocents, euros
        int per_jaar() const { return bespaard / 100 * prijs; }
        int hele_jaren() const { return kosten / per_jaar(); }
        // The year is clear also where the quotient is rounded to one decimal.
        bool duidelijk() const {
            const int tienden = 10 * (kosten % per_jaar()) / per_jaar();
            return hele_jaren() >= 2 && hele_jaren() <= 11 && tienden > 0 && tienden < 9;
        }
    };
    kies_variant(2);
    const auto& honderdtallen = rij(honderdtallen_bespaard, variant);
    const isolatie i = trek_tot(
        [&] {
            const int bespaard = trek_van(honderdtallen.minste, honderdtallen.meeste) * 100;
            const int prijs = trek_van(40, 70);
            const int kosten = trek_van(1500, 4500, 100);
            return isolatie{bespaard, prijs, kosten};
        },
        [](const isolatie& drawn) { return drawn.duidelijk(); });
    const int nieuw = trek_van(1200, 2400, 50);
    const int oud = nieuw + i.bespaard;
    const int per_jaar = i.per_jaar(), jaar = i.hele_jaren() + 1;
    const auto in_het = [](int k) { return regel("in het", k, "e jaar"); };

    bord(lichtgrijs, zwart, 12);
    teken_blad(plaatje, {500, 100, 4380, 1900}, bladsoort::brief, "Het Gasbedrijf",
               {"Overzicht van uw verbruik per jaar", regel("vóór de isolatie:", kubieke_meters(oud), " gas"),
                regel("na de isolatie:", kubieke_meters(nieuw), " gas")},
               donkerrood);

    vraag("Een man isoleert zijn huis voor een bedrag",
          regel("van", euro(100LL * i.kosten), ". Hiernaast zie je hoeveel m³"),
          "gas hij verbruikte. Gegeven is dat de prijs", regel("van een m³ aardgas", i.prijs, " eurocent is."),
          "Wanneer heeft hij de kosten van", "de isolatie terugverdiend?");

    opeenvolgend(jaar, in_het);
    tip_1("Eerste stap: bereken hoeveel m³ hij per jaar bespaart.");
    tip_2("Eerste stap: bereken hoeveel m³ hij per jaar bespaart.",
          "Tweede stap: bereken hoeveel euro hij per jaar bespaart.",
          "Derde stap: deel de isolatiekosten door dat bedrag.");

    uitleg(
        regel("Hij bespaart per jaar", duizend(oud), " -", duizend(nieuw), " =", kubieke_meters(i.bespaard), " gas."),
        regel("Dat is", duizend(i.bespaard), " x", euro(i.prijs), " =", euro(100LL * per_jaar), " per jaar."),
        regel("De isolatie kost", euro(100LL * i.kosten), " en", duizend(i.kosten), " :", duizend(per_jaar),
              " = ongeveer", komma_kort(deel_afgerond(10LL * i.kosten, per_jaar), 1), ","),
        regel("dus het duurt ten minste", i.hele_jaren(), " jaar om dat terug te"), "verdienen.",
        regel("Hij heeft de kosten dus ", in_het(jaar), " terugverdiend."));
}

} // namespace cijferwerf
