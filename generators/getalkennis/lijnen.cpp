// Number lines: what an arrow points at, worked out from two given numbers and the pieces between them.
// The wrong answers are a mark off, counted from the wrong end, or take a mark for more or less than it is worth.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_lijn.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

constexpr int links = 290, rechts = 5090; // of every line

// For a line in ten parts, each worth ten units: one or two marks off, counted from the right end, and pieces taken for
// a tenth of their worth.
std::vector<keuze<int>> naast_de_pijl(int begin, int streepje) {
    std::vector<keuze<int>> vergissingen{{begin + 10 * (10 - streepje)}, {begin + streepje}};
    for (const int ernaast : {-2, -1, 1, 2})
        if (streepje + ernaast > 0 && streepje + ernaast < 10)
            vergissingen.push_back({begin + 10 * (streepje + ernaast)});
    return vergissingen;
}

} // namespace

void oefeningen::B_getallenlijn_11_01_click() {
    struct schaal {
        int waarde; // of a piece
        int stap;   // of the numbers at which the line starts
    };
    static constexpr std::array<schaal, 5> schalen{{{2, 5}, {5, 5}, {10, 5}, {50, 50}, {100, 50}}};
    kies_variant(5);
    const auto [waarde, stap] = rij(schalen, variant);
    const int eerste = trek_van(5, 905, stap);
    const int stukjes = trek_van(4, 8); // between the given numbers
    const int tot_pijl = trek_van(1, 8);
    const int streepje = tot_pijl < stukjes ? tot_pijl : tot_pijl + 1;
    const int tweede = eerste + stukjes * waarde;
    const int juist = eerste + streepje * waarde;

    bord(wit, donkerblauw, 14);
    getallenlijn lijn(plaatje, links, rechts, 1150, 10);
    lijn.getal(0, kaal(duizend(eerste)));
    lijn.getal(stukjes, kaal(duizend(tweede)));
    lijn.pijl(streepje, rood);

    vraag("Hiernaast zie je een getallenlijn.", "Bij die getallenlijn zijn maar twee", "getallen gegeven.",
          "Ook zie je een pijl.", "Naar welk getal wijst die pijl?");

    // A mark off, the marks not counted, a piece worth 1 or twice as much, and counted from the second number; but no
    // number that stands at the line.
    std::vector<keuze<int>> vergissingen{{juist - waarde},
                                         {juist + waarde},
                                         {eerste + waarde},
                                         {eerste + streepje},
                                         {eerste + 2 * streepje * waarde},
                                         {tweede + streepje * waarde}};
    std::erase_if(vergissingen, [=](const keuze<int>& k) { return k.waarde == eerste || k.waarde == tweede; });
    drie_andere(juist, duizend, vergissingen);
    tip_1("Bereken eerst hoeveel de getallen verschillen...");
    tip_2("Deel het verschil van de twee getallen door het aantal stukjes",
          "daartussen. Dan weet je wat één stukje waard is.");

    uitleg(regel("Je ziet dat het stuk tussen", duizend(eerste), " en", duizend(tweede), " in", stukjes, " stukjes"),
           "is verdeeld.",
           regel("Het verschil is", duizend(tweede), " -", duizend(eerste), " =", stukjes * waarde, "."),
           "Elk stuk tussen twee streepjes heeft dus een waarde",
           regel("van", stukjes * waarde, " :", stukjes, " =", waarde, ". De pijl staat", streepje,
                 streepje == 1 ? " stukje" : " stukjes", " verder dan", duizend(eerste), "."),
           regel("Dat is dus", duizend(eerste), " +", streepje, " x", waarde, " =", duizend(juist), "."));
    opdrachten(druk_midden_opdracht(lijn.x(streepje), 200, donkerrood, 14, duizend(juist)),
               druk_midden_opdracht(drawing::inner_width / 2, 1700, donkerrood, 14, duizend(eerste), " +", streepje,
                                    " x", waarde, " =", duizend(juist)));
}

void oefeningen::B_pijl_1_11_06_click() {
    static constexpr std::array<std::array<int, 2>, 3> helen{{{0, 9}, {10, 99}, {100, 199}}};
    kies_variant(3);
    const auto [van, tot] = rij(helen, variant);
    const int begin = trek_van(van, tot);
    const int streepje = trek_van(1, 9);
    const int juist = 100 * begin + 10 * streepje; // hundredths
    const auto getal = [](int honderdsten) { return komma_kort(honderdsten, 2); };

    bord(donkerblauw, wit, 14);
    getallenlijn lijn(plaatje, links, rechts, 1200, 10);
    lijn.getal(0, kaal(begin));
    lijn.getal(10, kaal(begin + 1));
    lijn.pijl(streepje, geel);

    vraag("Hier zie je een lijnstuk getekend.", "Bij dat lijnstuk staat een pijl.", leeg,
          "Naar welk getal wijst de pijl?");

    drie_andere(juist, getal, naast_de_pijl(100 * begin, streepje));
    tip_1("In hoeveel stukjes is het stuk tussen de", "twee getallen verdeeld?");
    tip_2("Het hele lijnstuk is één lang. Elk van de", "tien stukjes is dus een tiende.");

    uitleg(regel("Bij het lijnstuk staan de getallen", begin, " en", begin + 1, "."),
           "Het stuk tussen die twee getallen is in", "tien gelijke stukjes verdeeld, zodat elk",
           "stukje een waarde heeft van 0,1.",
           regel("Elk zo'n stukje is een tiende.", " De pijl wijst naar het ", rangtelwoord(streepje), " streepje."),
           regel("Dat is", begin, " +", streepje, " x 0,1 =", getal(juist), "."));
    opdracht(druk_midden_opdracht(lijn.x(streepje), 250, geel, 14, getal(juist)));
}

void oefeningen::B_pijl_2_11_06_click() {
    static constexpr std::array<std::array<int, 2>, 3> tienden{{{1, 9}, {10, 99}, {100, 199}}};
    kies_variant(3);
    const auto [van, tot] = rij(tienden, variant);
    const int begin = trek_van(van, tot);
    const int streepje = trek_van(1, 9);
    const int juist = 100 * begin + 10 * streepje; // thousandths
    const auto getal = [](int duizendsten) { return komma_kort(duizendsten, 3); };

    bord(lichtgrijs, zwart, 14);
    getallenlijn lijn(plaatje, links, rechts, 1200, 10);
    lijn.getal(0, kaal(komma(begin, 1)));
    lijn.getal(10, kaal(komma(begin + 1, 1)));
    lijn.pijl(streepje, blauw);

    vraag("Hiernaast zie je een lijnstuk", "getekend. De pijl wijst naar ", "een getal.", leeg, "Welk getal is dat?");

    drie_andere(juist, getal, naast_de_pijl(100 * begin, streepje));
    tip_1("Hoe groot is het verschil tussen de getallen", "aan het begin en aan het eind van het lijnstuk?");
    tip_2("Het hele lijnstuk is een tiende lang en in tien", "stukjes verdeeld. Wat is dan één stukje waard?");

    uitleg(regel("Het lijnstuk loopt van", komma(begin, 1), " tot", komma(begin + 1, 1), "."),
           "Dat stuk tussen die twee getallen is in", "tien gelijke stukjes verdeeld, zodat elk stukje een",
           "waarde heeft van 0,01.", regel("De pijl wijst naar het ", rangtelwoord(streepje), " streepje."),
           regel("Dat is", komma(begin, 1), " +", streepje, " x 0,01 =", getal(juist), "."));
    opdracht(druk_midden_opdracht(lijn.x(streepje), 250, donkerblauw, 14, getal(juist)));
}

void oefeningen::L_pijlverwijzing_11_06_click() {
    static constexpr std::array<std::string_view, 4> pijlen{" rode pijl", " blauwe pijl", " gele pijl", " groene pijl"};
    static constexpr std::array kleuren{rood, blauw, geel, groen};
    static constexpr std::array binnenste{1, 2, 3, 4, 5, 6, 7, 8, 9};
    kies_variant(2);
    const int delen = variant == 1 ? 5 : 10;
    const int begin = trek(100);
    // The marks that get an arrow, from left to right, and how far along each colour's is.
    auto streepjes = geschud(binnenste);
    if (delen == 5) std::ranges::copy(binnenste, streepjes.begin());
    std::ranges::sort(streepjes.begin(), streepjes.begin() + 4);
    const auto plaats = geschud(std::array{0, 1, 2, 3});
    const auto streepje = [&](int pijl) { return rij(streepjes, rij(plaats, pijl) + 1); };
    const int per_stukje = 10 / delen; // tenths
    const auto getal = [&](int pijl) { return komma_kort(10 * begin + streepje(pijl) * per_stukje, 1); };
    const int juist = trek(4) + 1;

    bord(wit, zwart, 12);
    getallenlijn lijn(plaatje, links, rechts, 1450, delen);
    lijn.getal(0, kaal(begin));
    lijn.getal(delen, kaal(begin + 1));
    for (int pijl = 1; pijl <= 4; ++pijl)
        lijn.pijl(streepje(pijl), rij(kleuren, pijl), woord(rij(kleuren, pijl)),
                  rij(plaats, pijl) % 2 == 0 ? 480 : 850); // neighbours apart

    vraag("Hiernaast zie je een lijnstuk", "getekend met vier pijlen.", leeg, "Welke pijl geeft het",
          regel("getal", getal(juist), " aan?"));

    juist_op(juist);
    for (int pijl = 1; pijl <= 4; ++pijl)
        op_plaats(pijl, rij(pijlen, pijl),
                  regel("De", rij(pijlen, pijl), " wijst naar het ", rangtelwoord(streepje(pijl)), " streepje, dus"),
                  regel("naar het getal", getal(pijl), "."));

    uitleg(regel("Het stuk tussen", begin, " en", begin + 1),
           delen == 5 ? "is in vijf gelijke stukjes verdeeld." : "is in tien gelijke stukjes verdeeld.",
           regel("Elk stukje heeft dus een waarde van", komma(per_stukje, 1), "."),
           regel("Van", begin, " tot", getal(juist), streepje(juist) == 1 ? " is het" : " zijn het", streepje(juist),
                 streepje(juist) == 1 ? " stukje" : " stukjes", ":", begin, " +", streepje(juist), " x",
                 komma(per_stukje, 1), " =", getal(juist), "."),
           regel("Bij het ", rangtelwoord(streepje(juist)), " streepje staat de", rij(pijlen, juist), "."));
    opdracht(druk_midden_opdracht(lijn.x(streepje(juist)), 1780, donkerrood, 14, getal(juist)));
}

} // namespace cijferwerf
