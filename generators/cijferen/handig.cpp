// Sums that are easier in another way: a factor that lies near a round ten, crates that are counted from two sides, and
// four numbers of which pairs make whole ones.
#include "generators/gedeeld/kommasom.h"
#include "generators/gedeeld/tekening.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// "60 x 35 - 2 x 35": a product written as the sum or the difference of two others. They compare by what they make.
struct splitsing {
    int rond = 0, b = 0;
    bool plus = true;
    int rest = 0, rest_maal = 0;

    int waarde() const { return rond * b + (plus ? 1 : -1) * rest * rest_maal; }
    plakregel tekst() const { return plak_even({kaal(rond), " x", b, plus ? " +" : " -", rest, " x", rest_maal}); }
    friend bool operator==(const splitsing& een, const splitsing& ander) { return een.waarde() == ander.waarde(); }
    friend auto operator<=>(const splitsing& een, const splitsing& ander) { return een.waarde() <=> ander.waarde(); }
};

// A crate from the front or from aside, with its hold and the necks of the bottles.
void teken_krat(drawing& on, int links, int boven, int breedte, int hoogte) {
    constexpr int hals = 60;
    for (int x = links + breedte / 6; x < links + breedte; x += breedte / 3)
        on.filled_box(x - 25, boven, 50, hals, groen);
    const int bak = boven + hals;
    on.filled_box(links + 12, bak, breedte - 24, hoogte - hals - 15, olijf);
    on.filled_box(links + breedte / 2 - 60, bak + 50, 120, 50, zwart);
}
// So many columns by so many rows of them, with the middle at x and standing at y.
void teken_stapel(drawing& on, int midden, int grond, int kolommen, int rijen, int breedte, int hoogte) {
    for (int rij = 1; rij <= rijen; ++rij)
        for (int kolom = 0; kolom < kolommen; ++kolom)
            teken_krat(on, midden - kolommen * breedte / 2 + kolom * breedte, grond - rij * hoogte, breedte, hoogte);
}

} // namespace

void oefeningen::L_anders_12_02_click() {
    kies_variant(2);
    const int rond = trek(8) * 10 + 20, k = trek(2) + 1;
    const bool plus = variant == 2;
    const int a = plus ? rond + k : rond - k;
    const int b = trek_tot([this] { return trek_van(12, 98); }, [&](int n) { return n != a && n != rond; });
    const splitsing juist{rond, b, plus, k, b};

    bord(cyaan, wit, 14);
    kleurkeuze({700, 160}, 460, {donkerrood, wit, groen, geel},
               vier_opties(juist, [](const splitsing& s) { return s.tekst(); },
                           {{{rond, b, !plus, k, b}},
                            {{rond, b, plus, k, rond}},
                            {{rond, b, !plus, k, rond}},
                            {{rond, b, plus, k, a}},
                            {{rond, b, plus, 10 - k, b}},
                            {{rond, b, plus, k + 1, b}}}));

    vraag(regel("De vermenigvuldiging van", a, " en", b, " kun je"), "ook anders schrijven.",
          "Kies de kleur van de juiste manier.", leeg, "Uit 't hoofd!");

    tip_1("Misschien kun je het eerste getal splitsen.");
    tip_2("Probeer het eerste getal te splitsen, want", "het ligt vlak bij een tiental.");

    const std::string_view teken = plus ? " +" : " -";
    uitleg(
        regel("Het eerste getal ligt vlak bij een tiental:", a, " =", rond, teken, k, "."),
        regel("Je mag dus ook eerst", rond, " x", b, " =", duizend(rond * b), " doen"),
        regel("en daar", k, " x", b, " =", k * b, plus ? " bij optellen." : " van aftrekken."),
        regel("Dat is", duizend(rond * b), teken, k * b, " =", duizend(juist.waarde()), ", net als", a, " x", b, "."),
        regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::M_flesjes_12_02_click() {
    static constexpr std::array<int, 4> flesjes_per_krat{6, 12, 20, 24};
    kies_variant(4);
    const int n = rij(flesjes_per_krat, variant);
    const auto aantallen = geschud(std::array{2, 3, 4, 5});
    const int breed = aantallen[0], diep = aantallen[1], hoog = trek_van(2, 5);
    const int voor = breed * hoog, opzij = diep * hoog, kratten = voor * diep, juist = kratten * n;

    // The caption sets its two words as wide apart as they are printed here.
    constexpr std::string_view opschrift = "VOORAANZICHT                            ZIJAANZICHT";
    constexpr int grond = 2040, hoogte = 335, links = 302, midden_voor = links + 858, midden_opzij = links + 4776 - 690;
    bord(wit, donkerblauw, 12);
    const auto kratten_naast = [hoog](int naast) {
        return regel(telwoord(naast), " kratten naast elkaar en ", telwoord(hoog), " op elkaar.");
    };
    vertel(plaatje, "Van voren ", kratten_naast(breed), " Van opzij ", kratten_naast(diep));
    druk(links, grond - hoog * hoogte - 290, opschrift);
    plaatje.filled_box(100, grond, 5180, 30, grijs);
    teken_stapel(plaatje, midden_voor, grond, breed, hoog, 400, hoogte);
    teken_stapel(plaatje, midden_opzij, grond, diep, hoog, 300, hoogte);

    vraag(regel("In elk krat zitten", n, " flesjes."), "Hoeveel flesjes zijn er in totaal?", leeg,
          "Gebruik de muispijl om de kratjes", "te tellen.");

    drie_andere(juist, duizend,
                {{voor * n, {"Je hebt alleen de kratten geteld die je van", "voren ziet."}},
                 {opzij * n, {"Je hebt alleen de kratten geteld die je van", "opzij ziet."}},
                 {kratten, {"Dat is het aantal kratten. Hoeveel flesjes", "zitten daarin?"}},
                 {(voor + opzij) * n, {"Begin met het tellen van de kratten en doe", "dan een vermenigvuldiging."}},
                 {voor * opzij * n, {"Je hebt de kratten die boven elkaar staan dubbel", "geteld."}}});

    uitleg(regel("Van voren zie je", breed, " x", hoog, " =", voor, " kratten."),
           regel("Van opzij zie je dat er", diep, " kratten achter elkaar staan."),
           regel("Er zijn dus", voor, " x", diep, " =", kratten, " kratten."),
           regel("In elk krat zitten", n, " flesjes. In totaal zijn dat dus"),
           regel(kaal(kratten), " x", n, " =", duizend(juist), " flesjes."));
}

void oefeningen::M_snel_12_06_click() {
    kies_variant(tekenpatronen);
    const kommasom som = trek_kommasom(toeval, variant);

    snel_bord(20, 20);
    teken_kommasom(plaatje, "Hoeveel is...", som);

    vraag("Kijk hiernaast.", leeg, "Je hebt weinig tijd!");

    drie_andere(som.uitkomst, tekst, som.vergissingen);

    uitleg(som.uitleg[0], som.uitleg[1], som.uitleg[2], som.uitleg[3], som.uitleg[4]);
}

} // namespace cijferwerf
