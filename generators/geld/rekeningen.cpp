// A price for one, and what many cost: wages by the hour and fuel by the litre. The wrong answers leave a step out or
// divide the wrong way round.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

void oefeningen::L_krantenwijk_05_07_click() {
    kies_variant(2);
    const persoon wie = variant == 1 ? persoon{"Een meisje", vrouw} : persoon{"Een jongen", man};
    std::array<int, 6> uren{}; // maandag to zaterdag
    for (int& dag : uren) dag = trek_van(1, 4);
    const int totaal = std::accumulate(uren.begin(), uren.end(), 0);
    const int uurloon = trek_van(260, 595, 5);
    const int loon = totaal * uurloon;

    bord(wit, donkerblauw, 12);
    tabel t(plaatje, 700, 30, 3980, 292, {{"DAG", 900}, {"GEWERKT", 4480, true}});
    for (std::size_t i = 0; i < uren.size(); ++i) t.rij(weekdagen[i + 1], regel(uren[i], " uur"));

    vraag(regel(wie.naam, " doet de hele week"), "een krantenwijk. Aan het eind",
          regel("heeft ", wie.hij(), " een zeker aantal uren gewerkt."), "Hiernaast zie je een overzicht.",
          regel("Het uurloon bedraagt", euro(uurloon), " per uur."),
          regel("Hoeveel heeft ", wie.ze(), " die week verdiend?"));

    drie_andere(loon, euro,
                {{uren[0] * uurloon, "Je hebt alleen de uren van de maandag genomen.",
                  "Tel eerst de uren van de hele week op."},
                 {uren[5] * uurloon, "Je hebt alleen de uren van de zaterdag genomen.",
                  "Tel eerst de uren van de hele week op."},
                 {6 * uurloon, "Je hebt gerekend met één uur per dag.", "Tel de uren van de hele week bij elkaar op."},
                 {totaal * 100, "Je hebt alleen de uren bij elkaar opgeteld.",
                  "Vermenigvuldig dat aantal nog met het uurloon."},
                 {loon - uren[5] * uurloon, "Heb je de zaterdag vergeten?", "Tel de uren van alle zes de dagen op."},
                 {loon + uren[0] * uurloon, "Je hebt de uren van de maandag twee keer geteld."},
                 {loon + uren[5] * uurloon, "Je hebt de uren van de zaterdag twee keer geteld."},
                 {loon + 10 * uurloon, "Je hebt tien uren te veel geteld.", "Tel de uren nog eens op."}});

    uitleg("Eerst moet je de uren bij elkaar optellen. Dat zijn",
           regel("er in totaal", totaal, ". Dit aantal uren moet je nog"), "vermenigvuldigen met het uurloon.",
           regel("Dus:", totaal, " x", euro(uurloon), " =", euro(loon), "."));
}

namespace {

// A pump with two counters: what is to be paid, and the litres.
void teken_pomp(drawing& on, const number_text& bedrag, int liters) {
    const zelfde_stand bewaard(on);
    constexpr vlak kast{900, 120, 3100, 1920};
    on.line_width = 1;
    on.filled_box(700, 2010, 3500, 100, grijs);
    on.filled_box(kast.links, kast.boven, kast.breedte, kast.hoogte, donkerblauw);
    on.box(kast.links, kast.boven, kast.breedte, kast.hoogte, zwart);
    on.fore_colour = wit;
    on.text_size = 12;
    on.print_at(1100, 200, "TE BETALEN");
    on.print_at(1100, 1130, "LITERS");
    on.text_size = 18;
    teken_teller(on, 1150, 530, bedrag);
    teken_teller(on, 1150, 1450, tekst(liters));
    on.print_at(1150 + teller_breedte(bedrag, 18) + 120, 590, "euro");
    on.print_at(1150 + teller_breedte(tekst(liters), 18) + 120, 1510, "liter");
    // The hose, and the nozzle in its holder.
    on.line_width = 7;
    for (const auto& [van, naar] : {std::pair<point, point>{{4000, 1750}, {4650, 1750}}, {{4650, 1750}, {4650, 700}}})
        on.line(van.x, van.y, naar.x, naar.y, zwart);
    on.filled_box(4000, 480, 180, 260, grijs);
    on.polygon({{4150, 560}, {4560, 440}, {4760, 440}, {4760, 720}, {4560, 720}, {4520, 620}, {4170, 650}}, zwart,
               true);
}

} // namespace

void oefeningen::M_brandstof_05_07_click() {
    kies_variant(2);
    const persoon wie = variant == 1 ? persoon{"Een man", man} : persoon{"Een vrouw", vrouw};
    const int liters = trek_van(21, 52);
    const int literprijs = trek_van(111, 189);
    const int bedrag = liters * literprijs;

    bord(lichtgrijs, zwart, 12);
    teken_pomp(plaatje, komma(bedrag, 2), liters);

    vraag(regel(wie.naam, " heeft bij een"), regel("pompstation ", wie.zijn(), " auto"), "volgetankt.",
          "Hiernaast zie je wat op de", "pomp af te lezen is.", "Hoeveel kost 1 liter brandstof?");

    // Divided the wrong way round, not divided, or a slip in the division.
    drie_andere(literprijs, euro,
                {{static_cast<int>(deel_afgerond(liters * 10'000, bedrag))},
                 {bedrag},
                 {literprijs * 10},
                 {literprijs - 10},
                 {literprijs + 10},
                 {literprijs - 1},
                 {literprijs + 1}});
    tip_1("Je moet delen.");
    tip_2("Je moet een deling doen.", "Deel het hele bedrag door het aantal liters.");

    uitleg(regel("Je weet hoeveel ", wie.hij(), " voor", liters, " liters brandstof"),
           "betaald heeft. Wil je weten hoeveel één liter", "kost, dan moet je dat hele bedrag delen door het aantal",
           regel("liters. Dus", euro(bedrag), " :", liters, " =", euro(literprijs), "."));
}

} // namespace cijferwerf
