// Round things: tins in a crate, a tube of paper, slices of a pizza, the wheels of a bicycle.
#include "generators/gedeeld/cirkel.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/oefeningen.h"

#include <tuple>

namespace cijferwerf {

void oefeningen::M_blikjes_00_13_click() {
    static constexpr std::array<std::string_view, 4> etiketten{"SOEP", "NASI", "tonijn", "ravioli"};
    kies_variant(4);
    const bool met_diameter = kop();
    const int diameter = trek_van(6, 10, 2);
    const int hoogte = diameter + trek_van(1, 5);
    // At most seven in a row: with eight, rows that interlock would hold more tins.
    const int boven_elkaar = trek_van(2, 3);
    const int in_breedte = boven_elkaar + trek_van(1, 2);
    const int in_lengte = in_breedte + trek_van(1, 2);
    const int breedte = in_breedte * diameter, lengte = in_lengte * diameter, krat_hoog = boven_elkaar * hoogte;
    const int aantal = in_lengte * in_breedte * boven_elkaar;

    plaatje.picture("blikjes.bmp");
    bord(wit, donkerrood, 14);
    druk_midden(800, 915, rij(etiketten, variant));

    vraag("Een aantal conservenblikjes wordt in een krat", "geplaatst. Elk blikje heeft een hoogte van",
          regel(kaal(hoogte), " cm. De ronde bodem heeft een ", met_diameter ? "diameter" : "straal"),
          regel("van", met_diameter ? diameter : diameter / 2, " cm. Het krat is", krat_hoog, " cm hoog,"),
          regel(kaal(breedte), " cm breed en", lengte, " cm lang."), "Hoeveel blikjes passen er in het krat?");

    const std::string_view naast_elkaar = "Heb je wel eerst gekeken hoeveel er naast elkaar";
    const melding lengte_en_hoogte{naast_elkaar, "passen in de lengte van het krat? En hoeveel in", "de hoogte?"};
    drie_andere(
        aantal, tekst,
        {{in_lengte * in_breedte, lengte_en_hoogte},
         {in_breedte * boven_elkaar, lengte_en_hoogte},
         {in_lengte * boven_elkaar, {naast_elkaar, "passen in de breedte van het krat? En hoeveel in", "de hoogte?"}},
         {4 * aantal, {"Heb je soms door de straal gedeeld in plaats van", "door de diameter?"}}});

    uitleg(met_diameter ? regel("Elk blikje is", diameter, " cm breed en", hoogte, " cm hoog.")
                        : regel("De diameter van een blikje is 2 x", diameter / 2, " =", diameter, " cm."),
           regel("In de lengte passen", lengte, " :", diameter, " =", in_lengte, " blikjes naast elkaar,"),
           regel("in de breedte", breedte, " :", diameter, " =", in_breedte, " blikjes."),
           regel("In de hoogte passen", krat_hoog, " :", hoogte, " =", boven_elkaar, " blikjes op elkaar."),
           regel("In het krat passen dus", in_lengte, " x", in_breedte, " x", boven_elkaar, " =", aantal, " blikjes."));
}

void oefeningen::M_huls_00_13_click() {
    kies_variant(2);
    // Never twice as long as wide: then the wrong side would give the radius.
    const int breedte = trek_van(12, 24);
    const int lengte = breedte + trek_van(3, 11);
    const bool lang = variant == 1;
    const int huls = lang ? lengte : breedte, omtrek = lang ? breedte : lengte;
    const auto door = [](int zijde, long long noemer) { return deel_afgerond(zijde * 10'000LL, noemer); };
    const auto cm = [](long long honderdsten) { return regel(komma(honderdsten, 2), " cm"); };
    const long long diameter = door(omtrek, pi.geschaald);

    bord(cyaan, geel, 14);
    const int schaal = std::min(3700 / lengte, 1550 / breedte);
    const int breed = lengte * schaal, hoog = breedte * schaal, links = (plaatje.inner_width - breed) / 2 - 350;
    plaatje.filled_box(links, 120, breed, hoog, wit);
    plaatje.box(links, 120, breed, hoog, zwart);
    teken_maat(plaatje, {links, 300 + hoog}, {links + breed, 300 + hoog}, regel(kaal(lengte), " cm"));
    teken_maat(plaatje, {links + breed + 430, 120}, {links + breed + 430, 120 + hoog}, regel(kaal(breedte), " cm"));

    vraag("Hiernaast zie je een rechthoekig stuk", regel("papier van", lengte, " bij", breedte, " cm."),
          "Van dit papier wordt een huls gemaakt", regel("van", huls, " cm lang."), leeg,
          "Hoe groot is de diameter van deze huls?");

    goed(cm(diameter));
    fout(cm(door(omtrek, 2 * pi.geschaald)), "Je hebt de straal berekend...");
    fout(cm(door(huls, pi.geschaald)), lang ? "Je hebt de lengte als omtrek van de huls genomen."
                                            : "Je hebt de breedte als omtrek van de huls genomen.");
    fout(cm(door(omtrek, 200)), "Je hebt de omtrek door 2 gedeeld. Zoek eerst de formule",
         "voor de omtrek van een cirkel.");

    uitleg(regel("De huls is", huls, " cm lang. De andere kant van het papier, van", omtrek, " cm,"),
           "wordt rondgebogen: dat is de omtrek van de huls.",
           "Om de diameter (middellijn) d te vinden moet je de omtrek",
           regel("door 3,14 delen. Dan vind je: d =", omtrek, " : 3,14 = afgerond", komma(diameter, 2), "."),
           regel("De diameter van de huls is dus ongeveer ", juiste_antwoord(), "."));
}

void oefeningen::M_pizza_00_13_click() {
    static constexpr std::array<std::string_view, 3> dozen{"PIZZA TELMORA", "PIZZA ROMANO", "PIZZA JOHANNA"};
    kies_variant(3);
    const int straal = trek(3) + 2 + 3 * variant;
    // Of so few slices the length, rounded to a tenth, still tells the number within a fifth.
    const int stukken = trek_van(4, 10);
    const kommagetal omtrek = cirkelomtrek({straal});
    const kommagetal boog{deel_afgerond(omtrek.op(1), stukken), 1};

    plaatje.picture("pizza.bmp");
    bord(wit, donkerrood, 16);
    druk_midden(3850, 545, rij(dozen, variant));

    vraag("Een stukje pizza heeft rechte zijden", regel("van", straal, " cm. De lengte van de ronde kant"),
          regel("is", komma_kort(boog), " cm."), leeg, "Hoeveel van deze stukken gaan er",
          "ongeveer uit zo'n hele pizza?");

    opeenvolgend(stukken, tekst, 1, 2);
    tip_1("Alle ronde kanten samen zijn de omtrek van de pizza.");
    tip_2("Alle ronde kanten samen zijn de omtrek van de pizza.", "Bereken die omtrek eerst: 2 x 3,14 x de straal.",
          "Deel de omtrek dan door de lengte van één ronde kant.");

    uitleg(regel("De omtrek van de pizza is 2 x 3,14 x", straal, " = (ongeveer)", komma_kort(omtrek.op(1), 1), " cm."),
           "Deel de omtrek door de lengte van de ronde kant van één stuk:",
           regel(kaal(komma_kort(omtrek.op(1), 1)), " :", komma_kort(boog), " = ongeveer", stukken, "."),
           regel("Er gaan dus ongeveer", stukken, " stukken uit een hele pizza."));
}

void oefeningen::Z_fietswiel_00_13_click() {
    static constexpr std::array<std::string_view, 10> fietsers{"Harald", "Klazien", "Gijsbert", "Ineke", "Peter",
                                                               "Betty",  "Jochem",  "Jiska",    "Joop",  "Els"};
    kies_variant(2);
    const std::string_view fietser = kies(fietsers);
    // Tenths of a kilometre: a short ride or a long one.
    const int begin = trek_van(10000, 93999);
    const int tocht = variant == 1 ? trek_van(52, 199) : trek_van(201, 598);
    const int straal = trek(8) + 28;
    const kommagetal omtrek = cirkelomtrek({straal, 2});
    const int meters = 100 * tocht;
    // Of a metre, so many ten-thousandths.
    const long long tienduizendsten = omtrek.op(4);
    const long long keer = deel_afgerond(meters * 10'000LL, tienduizendsten);

    bord(lichtgrijs, zwart, 16);
    for (const auto& [woord, y, stand] : {std::tuple{"BEGIN", 330, begin}, std::tuple{"EINDE", 1230, begin + tocht}}) {
        druk(600, y + 90, woord);
        plaatje.text_size = 20;
        teken_teller(plaatje, 2050, y, regel(kaal(stand / 10), ",", kaal(stand % 10)));
        plaatje.text_size = 16;
        druk(2050 + teller_breedte("1000,0", 20) + 180, y + 90, "km");
    }

    vraag(regel(fietser, " maakt een fietstocht."), "Hiernaast zie je de kilometerstand.", "De straal van elk",
          regel("fietswiel is", straal, " cm."), leeg, "Hoe vaak is elk fietswiel rondgedraaid?");

    const std::string_view in_meters = "Heb je er wel aan gedacht eerst de afstand (in m)";
    goed(duizend(keer));
    fout(duizend(deel_afgerond(tocht * 1'000LL, tienduizendsten)), in_meters, "en de omtrek (ook in m) te berekenen?");
    fout(duizend(deel_afgerond(meters * 100LL, tienduizendsten)), in_meters, "en de omtrek (ook in m) te berekenen?");
    fout(duizend(deel_afgerond(meters * 20'000LL, tienduizendsten)), "Je hebt voor de omtrek 3,14 x straal genomen,",
         "maar de omtrek is 2 x 3,14 x straal.");

    uitleg(regel("De afstand is", komma(begin + tocht, 1), " -", komma(begin, 1), " =", komma(tocht, 1), " km."),
           regel("Dat is", duizend(meters), " m."),
           regel("De omtrek van een wiel is 2 x 3,14 x", komma({straal, 2}, 2), " =", komma(omtrek, 4), " m."),
           regel("Deel de afstand door de omtrek:", duizend(meters), " :", komma(omtrek, 4), "."),
           regel("Elk wiel is dus (ongeveer)", duizend(keer), " keer rondgedraaid."));
}

} // namespace cijferwerf
