// Line graphs: occupied beds, runners, the rate of the dollar.
// The wrong answers are readings at another place, the opposite extreme, or one reading instead of two.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/oefeningen.h"

#include <cmath>
#include <numeric>

namespace cijferwerf {

namespace {

std::vector<plakregel> maandletters() {
    std::vector<plakregel> letters;
    for (const maand& deze : maanden) letters.emplace_back(deze.naam.substr(0, 1));
    return letters;
}

// " 1ste", " 2de", ... " 8ste"; up to 19.
plakregel rang(int n) { return plak_even({n, n == 1 || n == 8 ? "ste" : "de"}); }

} // namespace

void oefeningen::B_rusthuis_04_18_click() {
    static constexpr std::array<int, 18> hoogten{10, 15, 20, 25, 30, 35, 40, 45, 50,
                                                 55, 60, 65, 70, 75, 80, 85, 90, 95};
    kies_variant(2);
    const bool lijn = variant == 1;
    const int bedden = trek_van(40, 200, 20); // 5 % of them is whole
    const auto procenten = geschud(hoogten);  // no two months have the same
    const int maandnummer = trek_van(1, 12);
    const std::string_view maand = rij(maanden, maandnummer).naam;
    const int procent = rij(procenten, maandnummer);
    const int bezet = bedden * procent / 100;

    bord(lichtcyaan, zwart, 7.5);
    assen grafiek(plaatje, {480, 240, 4780, 1640}, {0, 48, 4}, {0, 100, 5});
    grafiek.lijnen_op();
    grafiek.getallen_links("", 10);
    grafiek.namen_onder(maandletters());
    grafiek.naam_boven("%");
    if (lijn) {
        std::vector<point> verloop;
        for (int i = 1; i <= 12; ++i) verloop.push_back({4 * i - 2, rij(procenten, i)});
        grafiek.lijn(verloop, donkerblauw);
    } else {
        for (int i = 1; i <= 12; ++i) grafiek.kolom(4 * i - 3, 4 * i - 1, rij(procenten, i), lichtgroen);
    }

    vraag(regel("Een rusthuis heeft", bedden, " bedden."), "In de grafiek hiernaast zie je hoeveel %",
          "van deze bedden bezet was in de loop", "van het afgelopen jaar aan het eind van",
          "elke maand. Hoeveel bedden waren bezet", regel("aan het eind van ", maand, " van dat jaar?"));

    // The readings at months near it, and at those with the same letter.
    std::vector<keuze<int>> andere_maanden;
    for (int i = 1; i <= 12; ++i)
        if (std::abs(i - maandnummer) <= 3 || rij(maanden, i).naam[0] == maand[0])
            andere_maanden.push_back({bedden * rij(procenten, i) / 100});
    drie_andere(bezet, tekst, andere_maanden);
    leg_vast(trek(4) + 1);

    if (lijn) {
        tip_1("Kijk eerst naar de juiste maand en lees het", "goede percentage af...");
        tip_2(regel("Zoek de stip boven ", maand, " en ga vandaar naar links. Neem"),
              "dan dat percentage van het aantal bedden.");
    } else {
        tip_1("Zoek eerst de kolom van de juiste maand en", "lees af hoe hoog die is...");
        tip_2(regel("De kolom van ", maand, " is de", maandnummer, "e van links. Lees het"),
              "percentage af en neem dat van het aantal bedden.");
    }

    const int x = grafiek.x(4 * maandnummer - 2), y = grafiek.y(procent), links = grafiek.plot().links;
    opdrachten(streep_opdracht(x, grafiek.plot().onder(), 0, y - grafiek.plot().onder(), rood),
               streep_opdracht(links, y, x - links, 0, rood));
    uitleg(regel("Je moet aflezen bij ", maand, ", de", maandnummer, "e maand van het jaar."),
           regel("Daar lees je het percentage af:", procent, " %."),
           regel("Daarna moet je nog", procent, " % van", bedden, " nemen, dus je"),
           regel("moet berekenen: 0,", kaal(procent), " x", bedden, " =", bezet, "."));
}

void oefeningen::L_hardlopen_1_04_18_click() {
    kies_variant(4);
    const bool vrouw = variant % 2 == 1;
    const int duur = vrouw ? 13 : 12;
    const int juist = variant <= 2 ? trek_van(1, 6) : trek_van(7, duur);
    const int tegendeel = trek_tot([&] { return trek_van(1, duur); }, [&](int s) { return std::abs(s - juist) > 2; });
    // In tenths of a metre, together 100 metres: the longest and the shortest stand out, the others come in pairs
    // around their mean.
    const int gemiddeld = vrouw ? 78 : 83;
    std::vector<int> gewone;
    for (int paar = 1; paar <= 5; ++paar) {
        const int verschil = trek(6);
        gewone.push_back(gemiddeld - verschil);
        gewone.push_back(gemiddeld + verschil);
    }
    if (vrouw) gewone.push_back(75);
    gewone = geschud(gewone);
    const int langste = vrouw ? trek_van(93, 97) : trek_van(111, 114);
    const int kortste = 1000 - langste - std::accumulate(gewone.begin(), gewone.end(), 0);
    std::vector<point> verloop{{0, 0}};
    for (int s = 1; s <= duur; ++s) {
        int afstand = (s == juist) == vrouw ? kortste : langste;
        if (s != juist && s != tegendeel) {
            afstand = gewone.back();
            gewone.pop_back();
        }
        verloop.push_back({s, verloop.back().y + afstand});
    }

    bord(wit, zwart, 7.5);
    assen grafiek(plaatje, {520, 250, 4560, 1640}, {0, 16, 1}, {0, 1000, 100, 10});
    grafiek.lijnen_op();
    grafiek.lijnen_langs();
    grafiek.getallen_links();
    grafiek.getallen_onder();
    grafiek.naam_boven("m");
    grafiek.naam_rechts("s");
    grafiek.lijn(verloop, vrouw ? paars : donkerblauw);

    if (vrouw)
        vraag("In de lijngrafiek zie je hoeveel", "meter een wedstrijdloopster na een",
              "zeker aantal seconden gelopen heeft.", "In welke seconde legt zij het", "KLEINSTE aantal meters af?");
    else
        vraag("Je ziet een lijngrafiek van een", "wedstrijdloper die 100 meter gelopen",
              "heeft. Daarin zie je hoeveel meter hij", "op een bepaald moment afgelegd heeft.",
              "In welke seconde legt de wedstrijd-", "loper de GROOTSTE afstand af?");

    std::vector<int> dichtbij;
    for (const int s : {juist - 2, juist - 1, juist + 1, juist + 2})
        if (s >= 1 && s <= duur) dichtbij.push_back(s);
    dichtbij = geschud(dichtbij);
    goed(rang(juist));
    if (vrouw)
        fout(rang(tegendeel), "Je hebt niet naar de kleinste, maar naar de", "grootste afstand gekeken...");
    else
        fout(rang(tegendeel), "Je hebt niet naar de grootste, maar naar de", "kleinste afstand gekeken...");
    for (const int s : {dichtbij[0], dichtbij[1]})
        fout(rang(s), "Je hebt niet goed afgelezen. Kijk nog eens goed",
             "in de grafiek. Kies daarna een ander antwoord...");

    const vlak& plot = grafiek.plot();
    const int van = grafiek.x(juist - 1), tot = grafiek.x(juist);
    opdracht(kader_opdracht(van, plot.boven, tot - van, plot.hoogte, rood));
    const std::string tussen = regel(juist - 1, " en", juist, juist == 1 ? " seconde" : " seconden");
    const std::string dus = regel("Het goede antwoord is dus de", rang(juist), " seconde.");
    if (vrouw)
        uitleg("Als je goed kijkt, zie je dat de atlete niet altijd", regel("even snel gaat. Tussen", tussen),
               "legt ze maar ongeveer 5 meter af. De grafiek",
               regel("is daar het minst steil. In de", rang(juist), " seconde"),
               "legt ze het kleinste aantal meters in een seconde af.", dus);
    else
        uitleg("De atleet gaat niet altijd even snel.",
               regel("Als je goed kijkt zie je dat hij tussen", tussen, " de grootste"),
               "afstand in 1 seconde aflegt (ruim 11 meter).", dus);
}

void oefeningen::L_hardlopen_2_04_18_click() {
    static constexpr std::array<kleur, 4> lopers{paars, rood, blauw, groen};
    static constexpr std::array<std::string_view, 4> rangwoorden{"eerste", "tweede", "derde", "vierde"};
    static constexpr std::array<std::string_view, 4> afstanden{"grootste", "op één na grootste", "op twee na grootste",
                                                               "kleinste"};
    static constexpr std::array<std::string_view, 4> grafieken{"hoogste", "op één na hoogste", "op twee na hoogste",
                                                               "laagste"};
    kies_variant(4);
    const int t = trek_van(60, 100, 10);
    // The ranks of the four at that time and at the finish, where another one has the rank that is asked for.
    const auto stand = geschud(std::array{1, 2, 3, 4});
    const auto uitslag = trek_tot(
        [&] {
            return geschud(std::array{1, 2, 3, 4});
        },
        [&](const auto& u) {
            for (int i = 1; i <= 4; ++i)
                if (rij(stand, i) == variant && rij(u, i) == variant) return false;
            return true;
        });
    const int winnende_tijd = trek_van(138, 140);

    bord(wit, zwart, 7.5);
    assen grafiek(plaatje, {480, 250, 3900, 1640}, {0, 160, 10}, {0, 800, 100});
    grafiek.lijnen_op();
    grafiek.lijnen_langs();
    grafiek.getallen_links();
    grafiek.getallen_onder(20);
    grafiek.naam_boven("m");
    grafiek.naam_rechts("s");
    std::vector<legendaregel> legenda;
    point gezocht;
    int juist = 0;
    for (int i = 1; i <= 4; ++i) {
        const int afgelegd = 4 * t + 40 + 70 * (4 - rij(stand, i)), finish = winnende_tijd + 6 * (rij(uitslag, i) - 1);
        const int halverwege = afgelegd / 2 + trek_van(-30, 30, 10);
        const std::string_view naam = woord(rij(lopers, i));
        grafiek.lijn({{0, 0}, {t / 2, halverwege}, {t, afgelegd}, {finish, 800}}, rij(lopers, i), false);
        druk_midden(grafiek.x(finish), 70, naam.substr(0, 1));
        legenda.push_back({rij(lopers, i), regel(naam.substr(0, 1), " = ", naam)});
        if (rij(stand, i) != variant) continue;
        juist = i;
        gezocht = {grafiek.x(t), grafiek.y(afgelegd)};
    }
    teken_legenda(plaatje, 4500, 500, legenda);

    vraag("Bij een atletiekwedstrijd komen vier", "lopers tegen elkaar uit op de 800 meter.",
          "In de grafiek zie je hoeveel meter ze", "afgelegd hebben.",
          regel("Welke van de vier ligt na", t, " seconden"), regel("op de ", rij(rangwoorden, variant), " plaats?"));

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) op_plaats(i, woord(rij(lopers, i)));
    tip_1(regel("Zoek op de onderste as het gegeven tijdstip op (", kaal(t), " s)"), "en kijk daar recht omhoog.");
    tip_2(regel("Eerst zoek je het gegeven tijdstip op (", kaal(t), " s). Dan"),
          regel("ga je omhoog, tot je de ", rij(rangwoorden, 5 - variant), " grafiek tegenkomt. Deze"),
          regel("hoort bij de atleet die op de ", rij(rangwoorden, variant), " plaats ligt."));

    const int onder = grafiek.plot().onder();
    opdrachten(streep_opdracht(gezocht.x, onder, 0, gezocht.y - onder, zwart),
               kader_opdracht(gezocht.x - 60, gezocht.y - 60, 120, 120, zwart));
    uitleg(regel("De atleet die op de ", rij(rangwoorden, variant), " plaats ligt, heeft"),
           regel("op dat moment (", kaal(t), " s) de ", rij(afstanden, variant)), "afstand afgelegd.",
           regel("Zoek dus bij", t, " s de ", rij(grafieken, variant), " grafiek."),
           regel("Het juiste antwoord is dus: ", woord(rij(lopers, juist)), "."));
}

void oefeningen::M_dollars_04_18_click() {
    kies_variant(2);
    const bool winst = variant == 1;
    const int dollars = trek_van(100, 900, 50);
    const int onderaan = trek_van(60, 84, 2); // eurocents, where the axis begins
    const int laagste = onderaan + trek_van(1, 4), hoogste = onderaan + trek_van(11, 15);
    const int verschil = hoogste - laagste;
    // The months of buying and of selling; not both at an end of the graph.
    const auto [koop, verkoop] = trek_tot(
        [this] {
            const int eerst = trek_van(1, 9);
            return point{eerst, trek_van(eerst + 2, 12)};
        },
        [](const point& maandnummers) {
            return maandnummers != point{1, 12};
        });
    std::vector<point> koersen;
    for (int i = 1; i <= 12; ++i)
        koersen.push_back({2 * i - 1, i == koop      ? (winst ? laagste : hoogste)
                                      : i == verkoop ? (winst ? hoogste : laagste)
                                                     : trek_van(laagste + 1, hoogste - 1)});
    const int begin_en_eind = std::abs(koersen.back().y - koersen.front().y);

    bord(lichtgrijs, zwart, 7.5);
    assen grafiek(plaatje, {480, 260, 4700, 1620}, {0, 24, 2}, {onderaan, onderaan + 16, 1});
    grafiek.lijnen_op();
    grafiek.getallen_links("", 2);
    grafiek.namen_onder(maandletters());
    grafiek.naam_boven("eurocent");
    grafiek.lijn(koersen, donkerblauw);
    plaatje.text_size = 9;
    druk_midden(2830, 20, "KOERS VAN DE DOLLAR");

    vraag("Een man koopt een hoeveelheid dollars", "op het moment dat de koers van de",
          regel("dollar op z'n ", winst ? "laagst" : "hoogst", " was. Hij hield er"),
          regel(kaal(dollars), " dollar van over, die hij weer tegen"),
          regel("de ", winst ? "hoogste" : "laagste", " koers verkocht. Hoeveel euro"),
          regel(winst ? "verdiende" : "verloor", " hij op die", dollars, " dollars?"));

    const auto bedrag = [](int cent) { return regel("€", komma(cent, 2)); };
    const int juist = dollars * verschil;
    const plakregel afgelezen = "Je hebt een van de twee koersen niet goed afgelezen.";
    drie_andere(
        juist, bedrag,
        {{dollars * hoogste, "Dit is de waarde bij de hoogste koers. Je moet het",
          "verschil met de laagste koers hebben."},
         {dollars * laagste, "Dit is de waarde bij de laagste koers. Je moet het",
          "verschil met de hoogste koers hebben."},
         {dollars * begin_en_eind, "Je hebt het begin en het eind van de grafiek vergeleken,",
          "en niet de hoogste en de laagste koers."},
         {dollars * (verschil + 1), afgelezen, "Kijk goed bij welke streep de hoogste en de laagste", "stip staan."},
         {dollars * (verschil - 1), afgelezen, "Kijk goed bij welke streep de hoogste en de laagste", "stip staan."},
         {juist * 10, "De komma staat verkeerd: 100 eurocent is 1 euro."},
         {juist / 10, "De komma staat verkeerd: 100 eurocent is 1 euro."}});
    leg_vast(trek(4) + 1);

    const vlak& plot = grafiek.plot();
    opdrachten(streep_opdracht(plot.links, grafiek.y(hoogste), plot.breedte, 0, rood),
               streep_opdracht(plot.links, grafiek.y(laagste), plot.breedte, 0, rood));
    uitleg("Het verschil tussen de hoogste waarde en de laagste",
           regel("waarde van de dollar is", verschil, " eurocent (", kaal(hoogste), " -", laagste, ")."),
           regel("Bij verkoop van die", dollars, " dollars heeft hij dus een"),
           regel(winst ? "winst van" : "verlies van", dollars, " x", verschil, " eurocent = ", bedrag(juist), "."));
}

} // namespace cijferwerf
