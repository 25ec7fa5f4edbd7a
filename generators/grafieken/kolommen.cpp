// Column charts: incomes, rain, smokers, seats in a council.
// The wrong answers add where a difference is asked, look at one column instead of all, or take a percentage of the
// wrong total.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <numeric>

namespace cijferwerf {

void oefeningen::L_inkomen_04_18_click() {
    struct gezin {
        int vorig_jaar, half_jaar; // euros
    };
    kies_variant(2);
    const bool stijging = variant == 1;
    const int juist = trek_van(1, 4);
    // One family goes up, or down, against three; the columns are multiples of 5.000. Mostly neither its green column
    // alone nor its red one gives it away: another's green is higher, or lower, and so is another's red.
    const bool valt_op = trek(5) < 2;
    const auto gezinnen = trek_tot(
        [&] {
            std::array<gezin, 4> drawn{};
            for (int i = 1; i <= 4; ++i) {
                const int vorig_jaar = trek_van(20'000, 60'000, 5000);
                const int verschil = vorig_jaar % 10'000 == 0 ? 10'000 : kop() ? 5000 : 15'000;
                const bool omhoog = (i == juist) == stijging;
                rij(drawn, i) = {vorig_jaar, (vorig_jaar + (omhoog ? verschil : -verschil)) / 2};
            }
            return drawn;
        },
        [&](const auto& drawn) {
            const gezin& dit = rij(drawn, juist);
            const auto uiterst = [&](int gezin::*kolom, bool hoogste) {
                return std::ranges::none_of(drawn, [&](const gezin& ander) {
                    return hoogste ? ander.*kolom > dit.*kolom : ander.*kolom < dit.*kolom;
                });
            };
            return (uiterst(&gezin::half_jaar, stijging) || uiterst(&gezin::vorig_jaar, !stijging)) == valt_op;
        });

    bord(wit, zwart, 7.5);
    // Along the axis below, values are places in the picture.
    assen grafiek(plaatje, {1000, 70, 3600, 1600}, {1000, 4600, 3600}, {0, 80'000, 5000});
    grafiek.lijnen_op();
    grafiek.getallen_links(" --", 10'000);
    for (int i = 1; i <= 4; ++i) {
        const auto& [vorig_jaar, half_jaar] = rij(gezinnen, i);
        const int x = 520 + 900 * i;
        grafiek.kolom(x - 300, x, vorig_jaar, rood);
        grafiek.kolom(x, x + 300, half_jaar, lichtgroen);
        druk_midden(x, 1695, "gezin", i);
        opdracht(kader_opdracht(x, 1670, 300, grafiek.y(2 * half_jaar) - 1670, donkerblauw, line_style::dash));
    }
    druk(200, 1895, "in euro");
    teken_legenda(plaatje, 1120, 1870, {{rood, "vorig jaar"}});
    teken_legenda(plaatje, 2400, 1870, {{lichtgroen, "eerste helft van dit jaar"}});

    vraag("Van vier gezinnen is met rood aangegeven", "hoe groot het inkomen vorig jaar was.",
          "Met groen is weergegeven hoe groot het", "inkomen was in de eerste helft van dit jaar.",
          regel("Welk gezin kan een inkomens", stijging ? "stijging" : "daling", " ver-"),
          "wachten, als alle inkomens zich doorzetten?");

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) op_plaats(i, regel("gezin", i));
    if (stijging) {
        tip_1("Maak in gedachten de groene kolommen twee maal zo ", "hoog.");
        tip_2("Groen is een half jaar. Maak de groene kolommen twee maal",
              "zo hoog. Bij welk gezin komt groen boven rood uit?");
    } else {
        tip_1("Een jaar is twee keer een half jaar. Hoe hoog worden", "de groene kolommen dan?");
        tip_2("Maak de groene kolommen twee maal zo hoog. Bij welk", "gezin blijft groen dan lager dan rood?");
    }

    uitleg("Je moet in gedachten alle groene kolommen twee maal",
           "zo hoog maken, want je mag aannemen dat in het tweede",
           "half jaar even veel verdiend wordt als in het eerste.",
           regel("Kijk naar de gestreepte kolommen: alleen gezin", juist, " gaat"),
           regel("er op ", stijging ? "vooruit" : "achteruit", " in vergelijking met vorig jaar."),
           regel("Het goede antwoord is dus gezin", juist, "."));
}

void oefeningen::L_regenval_04_18_click() {
    struct schaal {
        int tot, stap, om; // mm: the top of the axis, from gridline to gridline, from number to number
    };
    static constexpr std::array<schaal, 5> schalen{
        {{60, 5, 10}, {100, 10, 10}, {120, 10, 20}, {200, 20, 20}, {250, 25, 50}}};
    kies_variant(5);
    const auto [tot, stap, om] = rij(schalen, variant);
    // The wettest month has more than twice the rain of the driest, so that a reading is never the difference.
    const int minste = trek_van(1, 3) * stap, meeste = tot - trek(3) * stap;
    const auto [natste, droogste] = trek_tot(
        [this] {
            return point{trek_van(1, 12), trek_van(1, 12)};
        },
        [](const point& p) { return p.x != p.y; });
    const int verschil = meeste - minste;

    bord(lichtgrijs, zwart, 7.5);
    assen grafiek(plaatje, {480, 240, 4780, 1640}, {0, 48, 4}, {0, tot, stap});
    grafiek.lijnen_op();
    grafiek.getallen_links("", om);
    grafiek.naam_boven("mm");
    std::vector<plakregel> namen;
    for (int i = 1; i <= 12; ++i) {
        namen.emplace_back(rij(maanden, i).kort);
        const int tussenin = trek_van(minste + stap, meeste - stap, stap);
        const vlak kolom = grafiek.kolom(4 * i - 3, 4 * i - 1,
                                         i == natste     ? meeste
                                         : i == droogste ? minste
                                                         : tussenin,
                                         lichtcyaan);
        if (i == natste || i == droogste)
            opdracht(kader_opdracht(kolom.links - 60, kolom.boven - 60, kolom.breedte + 120, kolom.hoogte + 60, rood));
    }
    grafiek.namen_onder(namen);

    vraag("In een grafiek is weergegeven", "hoeveel mm regen in elke maand in", "een bepaald jaar gevallen is.",
          "Hoe groot is het verschil in regen-", "val tussen de maand met de meeste", "en die met de minste regenval?");

    const auto mm = [](int hoeveel) { return regel(hoeveel, " mm"); };
    const cijferwerf::melding een_getal{"Je hebt slechts één getal", "afgelezen. Je moet twee getallen", "gebruiken."};
    const cijferwerf::melding rekenfout{"Heb je een rekenfoutje gemaakt...?"};
    drie_andere(verschil, mm,
                {{meeste + minste, {"Je hebt de getallen opgeteld.", "Je had ze van elkaar af moeten trekken."}},
                 {meeste, een_getal},
                 {minste, een_getal},
                 {verschil - stap, rekenfout},
                 {verschil + stap, rekenfout}});

    uitleg(regel("De natste maand van dat jaar is ", rij(maanden, natste).naam, ". In die maand"),
           regel("viel er", meeste, " mm regen (de hoogste kolom)."),
           regel("In de maand ", rij(maanden, droogste).naam, " viel er", minste, " mm (de laagste kolom)."),
           "Als je het verschil moet hebben, moet je die hoeveelheden",
           regel("van elkaar aftrekken:", meeste, " -", minste, " is", verschil, " mm."));
}

void oefeningen::Z_roken_04_18_click() {
    struct groep {
        std::string naam;
        std::array<int, 5> staven; // percentages, by age
        int totaal;
    };
    kies_variant(2);
    const bool meest = variant == 1;
    const int jaar = trek_van(75, 88);
    const int later = jaar + trek_van(5, 10);
    std::array<groep, 4> groepen{{{regel("jongens '", kaal(jaar)), {}, 0},
                                  {regel("meisjes '", kaal(jaar)), {}, 0},
                                  {regel("jongens '", kaal(later)), {}, 0},
                                  {regel("meisjes '", kaal(later)), {}, 0}}};
    // From the group with the smallest total to that with the largest. The single highest bar (or the lowest, where
    // the smallest total is asked for) is one of the two in the middle.
    const auto volgorde = geschud(std::array{1, 2, 3, 4});
    const int juist = meest ? volgorde[3] : volgorde[0];
    const int met_uiterste = kop() ? volgorde[1] : volgorde[2];
    const int laagste = meest ? 5 : 10, hoogste = laagste + 20, uiterste = meest ? 30 : 5;
    // Of the smallest; for the least the bars are 10 or more, and the group is not to stand out by being flat.
    int totaal = meest ? trek_van(40, 55, 5) : trek_van(60, 70, 5);
    for (const int nummer : volgorde) {
        groep& deze = rij(groepen, nummer);
        deze.totaal = totaal;
        deze.staven.fill(laagste);
        const int eerste = nummer == met_uiterste ? 1 : 0;
        if (eerste == 1) deze.staven[0] = uiterste;
        for (int over = totaal - std::accumulate(deze.staven.begin(), deze.staven.end(), 0); over > 0; over -= 5)
            rij(deze.staven, trek_tot([&] { return trek_van(1 + eerste, 5); },
                                      [&](int staaf) { return rij(deze.staven, staaf) < hoogste; })) += 5;
        deze.staven = geschud(deze.staven);
        totaal += meest && kop() ? 15 : 10;
    }

    bord(wit, zwart, 7.5);
    druk_midden(2930, 20, "ROKERS PER LEEFTIJD, IN % VAN DE HELE GROEP");
    assen grafiek(plaatje, {600, 420, 4680, 1230}, {0, 48, 12}, {0, 30, 5});
    grafiek.lijnen_op();
    grafiek.getallen_links(" %", 10);
    druk_rechts(550, 1715, "leeftijd");
    plaatje.text_size = 9;
    for (int i = 1; i <= 4; ++i) {
        const auto& [naam, staven, samen] = rij(groepen, i);
        const int midden = grafiek.x(12 * i - 6);
        druk_midden(midden, 1895, naam);
        opdracht(druk_midden_opdracht(midden, 215, donkerblauw, 9, samen, " %"));
    }
    plaatje.text_size = 7.5;
    for (int i = 0; i < 20; ++i) {
        const int links = i / 5 * 12 + i % 5 * 2 + 1; // half a bar of room on both sides of five
        const vlak staaf = grafiek.kolom(links, links + 2, rij(rij(groepen, i / 5 + 1).staven, i % 5 + 1),
                                         i / 5 % 2 == 0 ? lichtcyaan : geel);
        druk_midden(staaf.midden().x, 1715, 13 + i % 5);
    }

    vraag("Onderzoek naar het rookgedrag van vier", "even grote groepen jongens of meisjes",
          "had het resultaat dat je hiernaast ziet.", "Elke balk geeft weer hoeveel % van de",
          "HELE groep rookte en een zekere leeftijd",
          regel("had. Welke groep rookte het ", meest ? "MEEST" : "MINST", "?"));

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) {
        const groep& deze = rij(groepen, i);
        op_plaats(i, deze.naam,
                  i == met_uiterste ? regel("Je hebt alleen naar de ", meest ? "hoogste" : "laagste", " balk gekeken.")
                  : i == (meest ? volgorde[0] : volgorde[3])
                      ? regel("Deze groep rookte juist het ", meest ? "minst!" : "meest!")
                      : regel("Tel de vijf balken van elke groep nog eens op."),
                  regel("De vijf balken van deze groep zijn samen", deze.totaal, " %."));
    }

    uitleg("Per groep jongens of meisjes zijn er vijf leeftijds-", "categorieën, dus zijn er vijf staven.",
           "Iedere staaf geeft een bepaald percentage van de ", "hele groep aan. Tel die vijf percentages op.",
           regel("Dan is het ", meest ? "grootste" : "kleinste", " percentage", rij(groepen, juist).totaal, " %."),
           regel("Het goede antwoord is dus: ", rij(groepen, juist).naam, "."));
}

void oefeningen::Z_verkiezingen_04_18_click() {
    static constexpr std::array<std::string_view, 10> namen{
        "CL-partij",        "Ouderen Partij", "Dorpsbelangen", "Lijst Vermaat",   "Anti Huiswerk Partij",
        "Gemeentebelangen", "Lijst Kroos",    "Dorpspartij",   "Ouderen Vooruit", "Lijst Van Belt"};
    static constexpr std::array<kleur, 5> kleuren{lichtcyaan, geel, lichtgroen, roze, lichtgrijs};
    kies_variant(2);
    const int procent = variant == 1 ? trek_van(20, 40, 20) : trek_van(60, 80, 20);
    const auto partijen = geschud(namen); // those of the first five columns
    // The columns of the winner, the losers, and the two that stay as they were. In fives, so that 20 % is whole. Who
    // takes the percentage of the winner's own seats gets too little or, where it was the larger, too much.
    const auto kolom_van = geschud(std::array{1, 2, 3, 4, 5});
    const bool was_groot = trek(3) == 0;
    const int een = trek_van(5, 20, 5);
    const int ander = trek_van(5, 20, 5);
    const int samen = een + ander;
    const int eigen = was_groot ? trek_van(samen + 5, 50, 5) : trek_van(5, samen, 5);
    std::array<int, 5> zetels{};
    rij(zetels, kolom_van[0]) = eigen;
    rij(zetels, kolom_van[1]) = een;
    rij(zetels, kolom_van[2]) = ander;
    rij(zetels, kolom_van[3]) = trek_van(5, 50, 5);
    rij(zetels, kolom_van[4]) = trek_van(5, 50, 5);
    const std::string_view winnaar = rij(partijen, kolom_van[0]);
    const int alle = std::accumulate(zetels.begin(), zetels.end(), 0);
    const auto deel = [procent](int van) { return van * procent / 100; };
    const int erbij = deel(samen);

    bord(wit, zwart, 7.5);
    druk_midden(2690, 20, "Zetelverdeling Gemeenteraad Juinen");
    assen grafiek(plaatje, {400, 270, 3280, 1620}, {0, 15, 3}, {0, 50, 5});
    grafiek.lijnen_op();
    grafiek.getallen_links("", 10);
    std::vector<legendaregel> legenda;
    std::vector<plakregel> nummers;
    for (int i = 1; i <= 5; ++i) {
        const vlak kolom = grafiek.kolom(3 * i - 2, 3 * i - 1, rij(zetels, i), rij(kleuren, i));
        nummers.emplace_back(kaal(i));
        legenda.push_back({rij(kleuren, i), regel(kaal(i), " ", rij(partijen, i))});
        if (i == kolom_van[1] || i == kolom_van[2])
            opdracht(kader_opdracht(kolom.links - 60, kolom.boven - 60, kolom.breedte + 120, kolom.hoogte + 60, rood));
    }
    grafiek.namen_onder(nummers);
    teken_legenda(plaatje, 3750, 500, legenda);

    vraag("In Juinen zijn verkiezingen gehouden.",
          regel(rij(partijen, kolom_van[1]), " en ", rij(partijen, kolom_van[2])),
          regel("verliezen samen", procent, "% van hun zetels aan"), regel(winnaar, ". De andere"),
          "twee partijen bleven gelijk.", regel("Hoeveel zetels heeft ", winnaar, " nu?"));

    drie_andere(eigen + erbij, tekst,
                {{eigen + deel(eigen)},
                 {eigen + deel(alle)},
                 {eigen + deel(een)},
                 {eigen + deel(ander)},
                 {eigen - erbij},
                 {eigen + samen},
                 {eigen + procent},
                 {erbij}});
    leg_vast(trek(4) + 1);
    tip_1("Eerste stap: reken uit hoeveel zetels de verliezende partijen", "vóór de verkiezingen samen hadden.");
    tip_2("Tweede stap: gebruik het gegeven percentage en tel", "de zetels die je dan krijgt op bij de zetels van",
          regel(winnaar, "."));

    uitleg("Je telt eerst het totale aantal zetels van de verliezende",
           regel("partijen. Dat zijn er", een, " +", ander, " =", samen, ". Hier neem je", procent, " % van,"),
           regel("dus", erbij, " zetels. Deze gaan naar ", winnaar, "."),
           regel(winnaar, " had eerst", eigen, " zetels in de Raad, zodat"),
           regel("deze partij er nu", eigen + erbij, " heeft."));
}

} // namespace cijferwerf
