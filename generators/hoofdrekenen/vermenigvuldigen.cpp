// Products against the clock: the tables, splitting a factor, moving the comma.
// The wrong answers miscount a row of the table, mix up the route, or move the comma too far.
#include "generators/gedeeld/kommagetal.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

constexpr int cijfers(int getal) { return getal < 10 ? 1 : 1 + cijfers(getal / 10); }

// Two rows of a table side by side: "  1 x 3 = 3      6 x 3 = 18". A digit is as wide as two blanks, so blanks keep
// the columns straight.
std::string tafelregel(int rij, int tafel) {
    const auto product = [tafel](int keer) {
        const bool gedrukt_als_54 = tafel == 9 && keer == 5; // so it stands in the pupils' book
        return gedrukt_als_54 ? 54 : keer * tafel;
    };
    const auto blanks = [](int digits) { return std::string(static_cast<std::size_t>(2 * digits), ' '); };
    const int naast = rij + 5;
    const std::string links = regel("  ", rij, " x", tafel, " =", product(rij));
    const std::string rechts = regel(kaal(naast), " x", tafel, " =", product(naast));
    const int tussen = (tafel < 9 ? 1 : 2) + cijfers(5 * tafel) - cijfers(product(rij)) + (naast < 10 ? 1 : 0);
    return links + blanks(tussen) + rechts + blanks(cijfers(10 * tafel) - cijfers(product(naast)));
}

// The clever route through a table, in pieces of lines.
std::array<plakregel, 5> handige_route(int a, int b) {
    if (b == 25)
        return {"    Bij de tafel van 25 is", "    het handig te weten dat", "    4 x 25 gelijk is aan 100.", "", ""};
    if (b > 10)
        return {"    Je kunt de som splitsen:", plak_even({"    doe eerst", a, " x 10 en"}),
                plak_even({"    dan", a, " x", b - 10, "."}),
                plak_even({"    Opgeteld:", 10 * a, " +", a * (b - 10), " =", a * b}), ""};
    return {"    Bij tafelsommen is het soms", "    handig eerst te kijken hoe",
            plak_even({"    veel 5 x", b, " of 10 x", b}), "    is en dan op te tellen of", "    af te trekken."};
}

} // namespace

void oefeningen::B_tafels_09_02_click() {
    // The tables by sub-variant; where two are named one of them is drawn.
    static constexpr std::array<std::array<int, 2>, 10> tafels{
        {{3, 4}, {6, 7}, {9, 9}, {12, 13}, {15, 15}, {5, 5}, {8, 8}, {14, 14}, {25, 25}, {11, 11}}};
    kies_variant(10);
    const int b = kies(rij(tafels, variant));
    const int a = kop() ? trek_van(2, 4) : trek_van(6, 9);
    // Near an end of the table the other rows lie on one side.
    const bool boven = kop();
    const std::array<int, 3> andere = a >= 8   ? std::array{a - 1, a - 2, a - 3}
                                      : a <= 3 ? std::array{a + 1, a + 2, a + 3}
                                               : std::array{a - 1, a + 1, boven ? a + 2 : a - 2};

    snel_som(8, "Hoeveel is", a, " x", b, " ?");

    vraag("Je hebt niet veel tijd!", leeg, "Maak de som hiernaast...");

    goed(tekst(a * b));
    for (const int keer : andere) fout(tekst(keer * b));

    const auto route = handige_route(a, b);
    const auto naast_tafel = [&](int i) { return regel(tafelregel(i, b), rij(route, i)); };
    uitleg(naast_tafel(1), naast_tafel(2), naast_tafel(3), naast_tafel(4), naast_tafel(5),
           regel("Het goede antwoord is dus:", a, " x", b, " =", a * b, "."));
}

void oefeningen::L_keer_09_02_click() {
    kies_variant(2);
    const int rond = trek(8) * 10 + 20;
    const int verschil = trek(2) + 1;
    const int b = trek(9) * 10 + 15;
    const int kant = variant == 1 ? -1 : 1; // below or above the round number
    const int a = rond + kant * verschil;

    snel_som(20, "Hoeveel is: ", a, " x", b, "?");

    vraag("Geef snel antwoord.", leeg, "Je hebt niet veel tijd!");

    // The second step forgotten, done the wrong way round, done with a number that is far too small, done twice.
    drie_andere(
        a * b, duizend,
        {{rond * b}, {(rond - kant * verschil) * b}, {rond * b + kant * 5}, {(rond + 2 * kant * verschil) * b}});

    uitleg("Bij deze som moet je het een beetje handig aanpakken.",
           "Als je goed kijkt, zie je dat je het eerste getal kunt schrijven",
           regel("als", rond, variant == 1 ? " - " : " + ", verschil, ". Dan kun je de vermenigvuldiging in twee"),
           regel("stappen doen: eerst", rond, " x", b, " =  ", duizend(rond * b), " en dan", verschil, " x", b, " =",
                 verschil * b, "."),
           regel(variant == 1 ? "Die twee uitkomsten trek je van elkaar af. Antwoord: "
                              : "Die twee uitkomsten moet je nog optellen. Antwoord: ",
                 duizend(a * b), "."));
}

void oefeningen::M_nullen_09_06_click() {
    static constexpr std::array tijden{8, 10, 11, 12};
    kies_variant(4);
    const int nullen = variant;
    const bool delen = kop();
    // Two or three digits of which the last is no 0, and in a product at most 9,99.
    const int cijfers = trek_van(1, 99) * 10 + trek_van(1, 9);
    const int decimalen = trek_van(delen || cijfers < 100 ? 1 : 2, 2);
    const kommagetal klein{cijfers, decimalen};
    // What the number becomes when the comma is moved so many places.
    const auto verzet = [&](int plaatsen) {
        return delen ? klein.verschoven(nullen - plaatsen) : klein.verschoven(plaatsen);
    };
    const auto in_cijfers = [](kommagetal getal) { return komma_kort(getal); };
    const kommagetal uitkomst = verzet(nullen);

    snel_som(rij(tijden, variant), "Hoeveel is", in_cijfers(verzet(0)), delen ? " :" : " x",
             duizend(tien_tot_de(nullen)), " ?");

    vraag("Je hebt niet veel tijd!", leeg, "Maak de som hiernaast...");

    // Other numbers of places, below 0 the wrong way; a product stays below a million.
    std::vector<keuze<kommagetal>> vergissingen;
    for (int plaatsen = delen ? nullen - 4 : nullen - 3; plaatsen <= (delen ? nullen + 3 : 5); ++plaatsen)
        if (plaatsen != 0 && plaatsen - nullen <= 3) vergissingen.push_back({verzet(plaatsen), {}});
    drie_andere(uitkomst, in_cijfers, vergissingen);

    const std::string stappen = regel(kaal(nullen), nullen == 1 ? " stap" : " stappen");
    if (delen)
        uitleg("Als je door 10, 100, 1.000 of 10.000 deelt, moet",
               "je de komma 1, 2, 3 of 4 plaatsen naar links verschuiven.",
               "Als er geen komma in het getal staat, kun je die", "achter dat getal denken. In deze som gaat de komma",
               regel(stappen, " naar links: ", in_cijfers(uitkomst), "."));
    else
        uitleg("Als je met 10, 100, 1.000 of 10.000 vermenigvuldigt,",
               "gaat de komma 1, 2, 3 of 4 stappen naar rechts. Als er",
               "geen komma in het getal staat, kun je er een achter dat", "getal denken. In deze som moet de komma dus",
               regel(stappen, " naar rechts: ", in_cijfers(uitkomst), "."));
}

} // namespace cijferwerf
