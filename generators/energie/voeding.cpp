// The energy that people use and eat: shares of a family's day, a slice of bread, sandwiches.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

namespace {

plakregel kJ(long long aantal) { return plak_even({duizend(aantal), " kJ"}); }

// Grams in kilograms: " 0,04".
number_text in_kg(int gram) { return komma_kort({gram, 3}); }

} // namespace

void oefeningen::L_energie_00_19_click() {
    struct soort {
        std::string_view naam, met_lidwoord, Met_lidwoord;
    };
    static constexpr std::array<soort, 4> soorten{{{"vervoer", "het vervoer", "Het vervoer"},
                                                   {"verwarming", "de verwarming", "De verwarming"},
                                                   {"voeding", "de voeding", "De voeding"},
                                                   {"verlichting", "de verlichting", "De verlichting"}}};
    kies_variant(4);
    const soort& gevraagd = rij(soorten, variant);
    struct dag {
        std::array<int, 4> energie; // by kind, in thousands of kJ
        int totaal() const { return std::accumulate(energie.begin(), energie.end(), 0); }
    };
    // Where a tenth more or less does not change how the percentage is rounded.
    const dag d = trek_tot(
        [this] {
            const int vervoer = trek(10) + 20;
            const int verwarming = trek(10) + 20;
            const int voeding = trek(10) + 10;
            const int verlichting = trek(8) + 2;
            return dag{{vervoer, verwarming, voeding, verlichting}};
        },
        [this](const dag& drawn) {
            // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): every part of the total is above 0
            const int tienden = 1000 * rij(drawn.energie, variant) / drawn.totaal() % 10;
            return tienden < 4 || tienden > 5;
        });
    const int deel = rij(d.energie, variant), totaal = d.totaal();
    const auto juist = static_cast<int>(deel_afgerond(100 * deel, totaal));
    const std::string_view ongeveer = 100 * deel % totaal == 0 ? "" : " ongeveer";
    const auto procent = [](int aantal) { return regel(aantal, " %"); };

    bord(lichtgrijs, donkerblauw, 12);
    constexpr int links = 400, breedte = 3300, rijhoogte = 310, naam = links + 150, getal = links + breedte - 150;
    tabel t(plaatje, links, 120, breedte, rijhoogte, {{"SOORT", naam}, {"PER DAG", getal, true}});
    int gevraagde_y = 0;
    for (std::size_t i = 0; i < soorten.size(); ++i) {
        if (soorten[i].naam == gevraagd.naam) gevraagde_y = t.onder();
        t.rij(soorten[i].naam, kJ(d.energie[i] * 1000));
    }
    const auto tekst_in = [](int rij_boven) { return rij_boven + rijhoogte / 2 - halve_regel(12); };
    opdrachten(druk_opdracht(naam, tekst_in(t.onder()), donkerrood, 12, "totaal"),
               druk_rechts_opdracht(getal, tekst_in(t.onder()), donkerrood, 12, kJ(totaal * 1000)),
               druk_opdracht(links + breedte + 150, tekst_in(gevraagde_y), donkerrood, 12,
                             ongeveer.empty() ? "dat is " : "ca. ", kaal(juist), " %"));

    vraag("Van een gezin wordt onderzocht", "hoeveel energie per dag verbruikt", "wordt en van welke soort. Hiernaast",
          "zie je het resultaat van dat onderzoek.", regel("Hoeveel % maakte ", gevraagd.met_lidwoord),
          "uit van het geheel?");

    opeenvolgend(juist, procent);
    tip_1("Eerste stap: tel alle soorten energie op.");
    tip_2("Eerste stap: tel alle soorten energie op.",
          regel("Tweede stap: deel de energie van '", gevraagd.naam, "' door"),
          "die totale energie en maak er procenten van.");

    std::string som;
    for (const int e : d.energie) som += regel(som.empty() ? "" : " + ", kaal(duizend(e * 1000)));
    uitleg("Tel eerst alle energieën bij elkaar op:", regel(som, " =", kJ(totaal * 1000), "."),
           regel("Deel de energie van '", gevraagd.naam, "' door die totale energie"),
           "en vermenigvuldig met 100 om er procenten van te maken:",
           regel(kaal(duizend(deel * 1000)), " :", duizend(totaal * 1000), " x 100 =", ongeveer,
                 komma_kort(deel_afgerond(1000 * deel, totaal), 1), "."),
           regel(gevraagd.Met_lidwoord, " maakte dus", ongeveer, procent(juist), " uit van het geheel."));
}

void oefeningen::M_voeding_1_00_19_click() {
    static constexpr std::array<std::string_view, 10> broden{"tijger",    "volkoren",  "mout",      "tarwe",
                                                             "driekoren", "vierkoren", "vijfkoren", "maanzaad",
                                                             "sesamzaad", "lijnzaad"};
    kies_variant(10);
    const std::string_view brood = rij(broden, variant);
    const int sneden = trek_van(16, 24);
    const int snee = trek_van(25, 40, 5); // grams
    const int gram = sneden * snee;
    const int honderdtallen =
        trek_tot([this] { return trek(40) + 100; }, [snee](int drawn) { return snee * drawn % 10 == 0; });
    const int per_kg = honderdtallen * 100;
    const int juist = snee * per_kg / 1000;

    bord(lichtgrijs, zwart, 13);
    teken_blad(plaatje, {500, 200, 4380, 1700}, bladsoort::reclame, "IN DE RECLAME:",
               {regel(brood, "brood (", kaal(gram), " g)"), "met een voedingswaarde van",
                regel(kaal(duizend(per_kg)), " kJ per kg.")},
               donkerrood);

    vraag(regel("Je hebt een brood van", gram, " gram."), regel("Van dit brood snijd je", sneden, " boterhammen."),
          "Alle boterhammen zijn even dik.", leeg, "Hoeveel energie zit er in elk", "zo'n snee?");

    opeenvolgend(juist, kJ, 20);
    tip_1("Eerste stap: bereken het gewicht van één snee...");
    tip_2("Eerste stap: bereken het gewicht van één snee...", "Tweede stap: reken dat gewicht om in kg...",
          "Derde stap: vermenigvuldig dat aantal kg met het", "aantal kJ per kg.");

    uitleg(regel("Eén snee weegt", gram, " :", sneden, " =", snee, " g."),
           regel("Omdat 1 g = 0,001 kg, is dat", in_kg(snee), " kg."),
           regel("In 1 kg brood zit", kJ(per_kg), ", dus in één snee zit"),
           regel(kaal(in_kg(snee)), " x", duizend(per_kg), " =", kJ(juist), "."));
}

void oefeningen::M_voeding_2_00_19_click() {
    struct beleg {
        std::string_view naam;
        int minste, meeste; // thousands of kJ per kg
    };
    static constexpr std::array<beleg, 3> belegsoorten{
        {{"kaas", 10, 16}, {"pindakaas", 24, 27}, {"hagelslag", 17, 20}}};
    kies_variant(3);
    const auto& [erop, minste, meeste] = rij(belegsoorten, variant);
    const int boterhammen = trek_van(2, 6);
    const int snee = trek_van(30, 40, 5); // grams
    const int boter = trek_van(4, 8);
    const int beleg_gram = trek_van(15, 25);
    const int brood_kJ = trek_van(13, 16); // per gram, so thousands per kilogram
    const int boter_kJ = trek_van(28, 30);
    const int beleg_kJ = trek_van(minste, meeste);
    const int van_brood = snee * brood_kJ, van_boter = boter * boter_kJ, van_beleg = beleg_gram * beleg_kJ;
    const int per_stuk = van_brood + van_boter + van_beleg;
    const int juist = boterhammen * per_stuk;

    bord(lichtgrijs, donkerblauw, 14);
    plaatje.filled_box(600, 250, 4180, 1600, wit);
    plaatje.box(600, 250, 4180, 1600, zwart);
    tabel t(plaatje, 800, 350, 3780, 460, {{"", 900}, {"", 4480, true}});
    const auto per_kg = [](int per_gram) { return regel(duizend(per_gram * 1000), " kJ per kg"); };
    t.rij("BROOD:", per_kg(brood_kJ));
    t.rij("BOTER:", per_kg(boter_kJ));
    t.rij(regel(erop, ":"), per_kg(beleg_kJ));

    vraag(regel("Je eet", boterhammen, " boterhammen van elk", snee, " g."),
          regel("Op elke boterham doe je", boter, " g boter en"), regel(kaal(beleg_gram), " g ", erop, "."), leeg,
          "Hoeveel kJ krijg je daarmee binnen?");

    // One sandwich; butter or topping left out, or counted once; butter and topping exchanged, or both taken for
    // butter; a kilogram of 100 grams.
    drie_andere(juist, kJ,
                {{per_stuk},
                 {juist - boterhammen * van_boter},
                 {juist - boterhammen * van_beleg},
                 {boterhammen * van_brood + van_boter + van_beleg},
                 {boterhammen * (van_brood + beleg_gram * boter_kJ + boter * beleg_kJ)},
                 {boterhammen * (van_brood + (boter + beleg_gram) * boter_kJ)},
                 {juist * 10}});
    tip_1("Om te beginnen moet je alles in kg omrekenen,", "vermenigvuldig daarna met het aantal kJ per kg.");
    tip_2("Om te beginnen moet je alles in kg omrekenen,", "vermenigvuldig daarna met het aantal kJ per kg.",
          regel("Doe dat voor het brood, de boter en de ", erop), "van alle boterhammen en tel de uitkomsten op.");

    const auto deel = [&](std::string_view wat, int gram, int per_gram) {
        const int samen = boterhammen * gram;
        return regel(wat, ":", boterhammen, " x", gram, " g =", in_kg(samen), " kg;", in_kg(samen), " x",
                     duizend(per_gram * 1000), " =", kJ(samen * per_gram), ".");
    };
    uitleg("Reken alles om in kg en vermenigvuldig met het aantal kJ per kg.", deel("Het brood", snee, brood_kJ),
           deel("De boter", boter, boter_kJ), deel(regel("De ", erop), beleg_gram, beleg_kJ),
           "Tel daarna alles bij elkaar op:",
           regel(kaal(duizend(boterhammen * van_brood)), " +", duizend(boterhammen * van_boter), " +",
                 duizend(boterhammen * van_beleg), " =", kJ(juist), "."));
}

} // namespace cijferwerf
