// Numbers beside one another: the nearest, the largest or smallest of four, the growth between two years of a table.
// The wrong answers stop at the first digits, or forget in what the numbers of a table are counted.
#include "generators/gedeeld/breuk.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::M_dichtst_bij_11_06_click() {
    static constexpr std::array<breuk, 1> helften{{{1, 2}}};
    static constexpr std::array<breuk, 2> kwarten{{{1, 4}, {3, 4}}};
    static constexpr std::array<breuk, 4> achtsten{{{1, 8}, {3, 8}, {5, 8}, {7, 8}}};
    static constexpr int hoogte = 950;
    kies_variant(3);
    const int geheel = trek_van(1, 20);
    const breuk deel = variant == 1 ? kies(helften) : variant == 2 ? kies(kwarten) : kies(achtsten);
    const int getal = 1000 * geheel + 1000 * deel.teller / deel.noemer; // thousandths
    // Answers in hundredths, each farther off than the one before, below or above.
    std::array<int, 4> waarden{};
    int afstand = getal % 10 == 0 ? 0 : -5;
    for (int& waarde : waarden) {
        afstand += trek_van(10, 40, 10);
        waarde = kop() ? getal - afstand : getal + afstand;
    }
    const int dichtste = waarden[0];
    waarden = geschud(waarden);
    const auto verschil = [getal](int waarde) { return komma_kort(std::abs(getal - waarde), 3); };

    bord(donkerblauw, geel, 20);
    teken_breuk(plaatje, 2200, hoogte, geheel, deel.teller, deel.noemer);

    vraag("Hiernaast zie je een", "getal met een breuk.", "Welk van de vier antwoorden", "ligt op een getallenlijn",
          "het dichtst bij dat getal", "met de streepbreuk?");

    juist_op(static_cast<int>(std::ranges::find(waarden, dichtste) - waarden.begin()) + 1);
    for (int plaats = 1; plaats <= 4; ++plaats) op_plaats(plaats, komma_kort(rij(waarden, plaats), 3));
    tip_1("Maak van die streepbreuk eerst een kommagetal...");
    tip_2("Bereken dan bij elk antwoord hoeveel het met dat", "kommagetal verschilt. Het kleinste verschil telt.");

    uitleg(
        regel("Het getal", geheel, " ", streepbreuk(deel), " is als kommagetal", komma_kort(getal, 3), "."),
        regel("Dit verschilt", verschil(waarden[0]), " met het getal bij A,"),
        regel(kaal(verschil(waarden[1])), " met het getal bij B,"),
        regel(kaal(verschil(waarden[2])), " met het getal bij C en"),
        regel(kaal(verschil(waarden[3])), " met het getal bij D."),
        regel("Het kleinste verschil is", verschil(dichtste), ": het juiste antwoord is dus ", juiste_antwoord(), "."));
    opdracht(druk_midden_opdracht(drawing::inner_width / 2, 1500, wit, 20, "=", komma_kort(getal, 3)));
}

void oefeningen::M_grootste_kleinste_11_01_click() {
    static constexpr std::array cijfers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    kies_variant(2);
    const bool kleinste = variant == 1;
    const int begin = trek_van(1, 99); // what stands before the thousands of all four
    // The right number and its neighbour have the same thousands; those of the other two lie ever farther off.
    auto duizendtallen = geschud(cijfers);
    std::sort(duizendtallen.begin(), duizendtallen.begin() + 3);
    auto honderdtallen = geschud(cijfers);
    std::sort(honderdtallen.begin(), honderdtallen.begin() + 2);
    if (!kleinste) {
        std::reverse(duizendtallen.begin(), duizendtallen.begin() + 3);
        std::reverse(honderdtallen.begin(), honderdtallen.begin() + 2);
    }
    const auto trek_getal = [&](int duizendtal, int honderdtal) {
        return 10'000 * begin + 1'000 * duizendtal + 100 * honderdtal + trek(100);
    };
    const int juist = trek_getal(duizendtallen[0], honderdtallen[0]);
    const int zelfde_duizendtal = trek_getal(duizendtallen[0], honderdtallen[1]);
    const int ander_duizendtal = trek_getal(duizendtallen[1], kies(honderdtallen));
    const int uiterste = trek_getal(duizendtallen[2], kies(honderdtallen));

    bord(donkerblauw, wit, 16);
    for (int plaats = 0; const int getal : geschud(std::array{juist, zelfde_duizendtal, ander_duizendtal, uiterste})) {
        druk_midden(plaats % 2 == 0 ? 1500 : 3880, plaats < 2 ? 450 : 1250, duizend(getal));
        ++plaats;
    }

    vraag("Op het bord staan vier", "getallen geschreven.", leeg,
          kleinste ? "Welk getal is het kleinste?" : "Welk getal is het grootste?");

    goed(duizend(juist));
    fout(duizend(zelfde_duizendtal), "Vergelijk de honderdtallen...");
    fout(duizend(ander_duizendtal), "Kijk naar de duizendtallen...");
    if (kleinste)
        fout(duizend(uiterste), "Je hebt het grootste getal genomen,", "maar je moest het kleinste hebben!");
    else
        fout(duizend(uiterste), "Je hebt het kleinste getal genomen,", "maar je moest het grootste hebben!");

    uitleg("Links van de duizendtallen hebben alle vier de getallen",
           "dezelfde cijfers. Kijk dus eerst naar de duizendtallen.",
           regel("Het cijfer", duizendtallen[0], " is daar het ", kleinste ? "kleinste" : "grootste", ". Dat staat in"),
           regel(kaal(duizend(juist)), " en in", duizend(zelfde_duizendtal), ". Vergelijk daarvan de"),
           regel("honderdtallen:", honderdtallen[0], " is ", kleinste ? "kleiner" : "groter", " dan", honderdtallen[1],
                 "."),
           regel("Het ", kleinste ? "kleinste" : "grootste", " getal is dus", duizend(juist), "."));
}

void oefeningen::M_tabel_11_01_click() {
    struct eenheid {
        int waarde;
        std::string_view tekst;
    };
    static constexpr std::array<eenheid, 4> eenheden{
        {{100, "100"}, {1'000, "1.000"}, {10'000, "10.000"}, {100'000, "100.000"}}};
    kies_variant(4);
    const auto& [waarde, eenheid_tekst] = rij(eenheden, variant);
    // Four different numbers, upward.
    const auto trek_oplopend = [this](int van, int tot) {
        std::array<int, 4> getallen{};
        for (int& getal : getallen) getal = trek_van(van, tot - 3);
        std::ranges::sort(getallen);
        for (int plaats = 0; int& getal : getallen) getal += plaats++;
        return getallen;
    };
    const auto jaren = trek_oplopend(1960, 2002);
    const auto aantallen = trek_oplopend(10, 99);
    const int eerste = trek_van(1, 3);
    const int laatste = trek_van(eerste + 1, 4);
    const int was = rij(aantallen, eerste), werd = rij(aantallen, laatste);
    const int erbij = werd - was;

    bord(wit, donkerblauw, 12);
    druk_midden(1900, 90, "TABEL");
    const std::string kop_tekst = regel("aantal leden (x ", eenheid_tekst, ") in het jaar");
    tabel leden(plaatje, 100, 420, 3600, 330, {{kop_tekst, 200}, {"", 3400, true}});
    for (int i = 1; i <= 4; ++i) leden.rij(regel(kaal(rij(jaren, i))), rij(aantallen, i));

    vraag("Hiernaast zie je een tabel.", "In deze tabel zie je hoeveel", "leden een sportbond had in",
          "bepaalde jaren.", "Hoeveel leden zijn er tussen",
          regel(kaal(rij(jaren, eerste)), " en", rij(jaren, laatste), " bijgekomen?"));

    drie_andere(erbij * waarde, groepen,
                {{erbij, "Je hebt vergeten te vermenigvuldigen...!"},
                 {erbij * waarde / 10, "Heb je wel met het goede getal vermenigvuldigd?"},
                 {erbij * waarde * 10, "Heb je wel met het goede getal vermenigvuldigd?"},
                 {werd * waarde, regel("Zoveel leden waren er in", rij(jaren, laatste), " in totaal."),
                  regel("Een deel daarvan was er in", rij(jaren, eerste), " al.")},
                 {(was + werd) * waarde, "Je hebt de aantallen opgeteld. Hoeveel verschillen ze?"}});

    uitleg(regel("In", rij(jaren, eerste), " staat in de tabel het getal", was, " en in", rij(jaren, laatste),
                 " het getal", werd, "."),
           regel("Het verschil is", werd, " -", was, " =", erbij, "."),
           regel("Boven de tabel staat: x ", eenheid_tekst, "."),
           regel("Er zijn dus", erbij, " x ", eenheid_tekst, " =", groepen(erbij * waarde), " leden bijgekomen."));
    opdrachten(druk_midden_opdracht(4540, 750, donkerrood, 11, werd, " -", was, " =", erbij),
               druk_midden_opdracht(4540, 1150, donkerrood, 11, erbij, " x ", eenheid_tekst, " ="),
               druk_midden_opdracht(4540, 1450, donkerrood, 11, groepen(erbij * waarde)));
}

} // namespace cijferwerf
