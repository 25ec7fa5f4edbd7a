// Ratios on the road: a cycle track on a map and in reality, the scale of that map, the price of a kilometre by car.
// The wrong answers multiply where one divides, forget a unit of length, or look at one number of two.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

namespace {

plakregel schaal(int een_op) { return plak_even({"1 :", duizend(een_op)}); }

} // namespace

void oefeningen::L_fietspad_1_02_16_click() {
    // Never 1 or 10 cm: who divides would then be right, or right but for the unit.
    static constexpr std::array<std::array<int, 3>, 5> lengten{
        {{2, 4, 5}, {3, 6, 9}, {7, 8, 9}, {12, 15, 20}, {16, 25, 30}}};
    kies_variant(5);
    const int c = kies(rij(lengten, variant));
    // The scale in thousands, such that dividing leaves whole metres.
    const int stap = c / std::gcd(c, 10);
    // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): a number is never less than what divides it
    const int s = stap * trek_van(9 / stap + 1, std::min(100, 999 / c) / stap);
    const int een_op = 1000 * s;
    const int centimeters = c * een_op;
    const auto meter = [](int lengte) { return regel(duizend(lengte), " m"); };

    bord(wit, zwart, 14);
    plaatje.picture("fietspad.bmp");
    druk_midden(4375, 1690, schaal(een_op));

    vraag("Op de kaart zie je een", "fietspad dat een totale lengte", regel("heeft van", c, " cm."),
          regel("De schaal is ", schaal(een_op)), "Hoe lang is het fietspad in", "werkelijkheid?");

    goed(meter(centimeters / 100));
    fout(meter(een_op / 100 / c), "Je hebt gedeeld. Je had moeten vermenigvuldigen.");
    fout(meter(centimeters), "Je hebt niet het aantal meters, maar het", "aantal cm gekozen.");
    fout(meter(een_op / c), "Je hebt gedeeld en er bovendien ook zomaar", "meters van gemaakt...");

    uitleg(regel("1 cm op de kaart is in werkelijkheid", duizend(een_op), " cm."),
           regel("Het fietspad is", c, " cm lang, dus in het echt"),
           regel("heeft het fietspad een lengte van", c, " x", duizend(een_op), " ="),
           regel(kaal(duizend(centimeters)), " cm, ofwel", meter(centimeters / 100), "."));
}

void oefeningen::M_fietspad_2_02_16_click() {
    kies_variant(5);
    // In half kilometres: 1 or 2 km, 3 or 4, 5 or 6, 7 to 9, and in the last sub-variant 1,5 to 8,5.
    const int halve = variant == 5   ? trek_van(3, 17, 2)
                      : variant == 4 ? trek_van(14, 18, 2)
                                     : 2 * (2 * variant - trek(2));
    // On the map more centimetres than kilometres in reality, and at most ten times as many; the scale is in thousands.
    std::vector<int> lengten;
    for (int c = halve / 2 + 1; c <= std::min(5 * halve, 40); ++c)
        if (50 * halve % c == 0) lengten.push_back(c);
    const int c = kies(lengten);
    const int centimeters = 50'000 * halve;
    const int een_op = centimeters / c;
    const number_text km = komma_kort(5 * halve, 1);

    bord(wit, zwart, 14);
    plaatje.picture("fietspad.bmp");
    druk_midden(4375, 1690, "1 : ...");

    vraag("Op de kaart zie je een fietspad", "dat in werkelijkheid een lengte", regel("heeft van", km, " km."),
          regel("Op de kaart is het fietspad", c, " cm"), "lang.", "In welke schaal is de fietskaart gemaakt?");

    goed(schaal(een_op));
    fout(schaal(een_op / 10), "Je hebt niet goed omgerekend van kilometer naar", "centimeter...");
    fout(schaal(een_op / 100), "Je hebt vergeten van meters nog", "centimeters te maken...");
    fout(schaal(een_op * 10), "Je hebt niet goed omgerekend van kilometer naar", "centimeter...");

    uitleg(regel("Je maakt van", km, " kilometer eerst centimeters."),
           regel("Dat is", duizend(centimeters), " cm (want 1 km is 100.000 cm)."),
           regel("Dan weet je dat", c, " cm in werkelijkheid een afstand"),
           regel("van", duizend(centimeters), " cm is."),
           regel("Eén cm is dus", duizend(centimeters), " :", c, " =", duizend(een_op), " cm in werkelijkheid."),
           regel("De schaal is dus ", schaal(een_op), "."));
}

void oefeningen::Z_brandstofverbruik_02_16_click() {
    static constexpr std::array<std::string_view, 17> merken{
        " Mercedes", " Volvo", " Citroën", " Opel",  " Peugeot", " Nissan", " Skoda", " Fiat",  " Ford",
        " Renault",  " BMW",   " Lada",    " Honda", " Buick",   " Austin", " Mazda", " Toyota"};
    struct wagen {
        std::string_view merk;
        int prijs = 0, kilometers = 0; // eurocents of a litre, and how far it goes
        // Tenths of a eurocent for a kilometre.
        int per_km() const { return static_cast<int>(deel_afgerond(10 * prijs, kilometers)); }
    };
    static constexpr std::array<int, 5> stappen{10, 5, 2, 1, 1}; // of the prices
    static constexpr std::array<std::array<std::string_view, 4>, 5> tips{
        {{"Bereken eerst bij elke auto hoeveel euro die", "kost, als je 1 km zou rijden.",
          "Deel daarvoor de prijs van een liter door het", "aantal kilometers dat je ermee kunt rijden."},
         {"Reken bij elke auto uit hoeveel eurocent", "je kwijt bent voor 1 km.",
          "1 : 15 betekent: 15 km rijden met 1 liter.", "Je moet de prijs dan door 15 delen."},
         {"Kijk niet alleen naar de prijs van een liter:", "bereken wat 1 km rijden kost.",
          "Wat kost 1 km? Deel de prijs van een liter", "door het tweede getal van de verhouding."},
         {"Kijk niet alleen naar het verbruik: bereken", "bij elke auto de brandstofprijs van 1 km.",
          "De prijs van een liter gedeeld door de afstand", "die je met een liter aflegt: dat is de prijs per km."},
         {"Hoeveel eurocent kost 1 km rijden bij de eerste", "auto? Reken dat ook voor de andere drie uit.",
          "Deel steeds de prijs van een liter door het getal", "achter de dubbele punt. Welke prijs is het laagst?"}}};
    kies_variant(5);
    const auto namen = geschud(merken);
    const int stap = rij(stappen, variant);
    const wagen beste{namen[0], trek_van(120, 150, stap), trek_van(14, 18)};
    // The price that makes a car so many tenths of a eurocent dearer for a kilometre, or a little more.
    const auto duurder = [&](std::string_view merk, int kilometers, int tienden) {
        const int prijs = kilometers * (beste.per_km() + tienden) / 10;
        return wagen{merk, (prijs / stap + 1) * stap, kilometers};
    };
    // One has cheaper fuel, one goes farther on a litre, and one is about as the best.
    const int dorstig = beste.kilometers - trek_van(5, 7);
    const int dorstig_duurder = trek_van(3, 15);
    const int zuinig = beste.kilometers + trek_van(1, 3);
    const int zuinig_duurder = trek_van(3, 10);
    const int gewoon = beste.kilometers + trek_van(-3, 3);
    const int gewoon_duurder = trek_van(3, 15);
    const std::array wagens{beste, duurder(namen[1], dorstig, dorstig_duurder),
                            duurder(namen[2], zuinig, zuinig_duurder), duurder(namen[3], gewoon, gewoon_duurder)};

    bord(lichtgrijs, zwart, 8);
    const auto prijs_per_km = [](const wagen& w) { return regel(komma(w.per_km(), 1), " eurocent"); };
    for (int nummer = 1; const wagen& w : geschud(wagens)) {
        const vlak waar = teken_advertentie(plaatje, nummer++,
                                            {regel("Te koop:", w.merk, ", rijdt"),
                                             regel("op brandstof van", w.prijs, " eurocent per liter."),
                                             regel("Brandstofverbruik  1 :", w.kilometers, "."), " "});
        opdracht(druk_midden_opdracht(waar.midden().x, waar.onder() - 278, donkerrood, 9, prijs_per_km(w), " per km"));
    }

    vraag("Een autohandelaar biedt in een", "advertentie in de krant vier auto's", "te koop aan.", leeg,
          "Bij welke auto is de brandstofprijs", "per km het laagst?");

    goed(kaal(beste.merk));
    for (int i = 2; i <= 4; ++i) fout(kaal(rij(wagens, i).merk));
    const auto& tip = rij(tips, variant);
    tip_1(tip[0], tip[1]);
    tip_2(tip[2], tip[3]);

    uitleg(
        "Om te kijken welke het goedkoopst in het gebruik is, moet",
        "je de prijs per liter delen door het aantal kilometers dat",
        "je met 1 liter kunt rijden. Dan heb je de kostprijs per km.",
        regel("Bij de", beste.merk, " is de kostprijs", beste.prijs, " delen door", beste.kilometers, " is (afgerond)"),
        regel(kaal(prijs_per_km(beste)), ". De andere drie zijn duurder per km."),
        regel("Het juiste antwoord is dus:", beste.merk, "."));
}

} // namespace cijferwerf
