// Ratios that are read from a drawing: doors and fronts, a measuring jug, parts of circles, gears.
// The wrong answers compare the wrong parts, or forget that what is larger turns less.
#include "generators/gedeeld/kleuren.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

#include <cmath>
#include <numeric>

namespace cijferwerf {

namespace {

constexpr int deur_breed = 230;

// A house on the line at y = 1700, its front three quarters as high as it is wide; the door never changes.
void teken_huis(drawing& on, int midden, int breedte, kleur verf) {
    static constexpr int grond = 1700, deur_hoog = 400;
    const int hoogte = breedte * 3 / 4, links = midden - breedte / 2, boven = grond - hoogte;
    const std::vector<point> dak{
        {links - 60, boven}, {midden, boven - breedte / 3}, {links + breedte + 60, boven}, {links - 60, boven}};
    on.polygon(dak, donkerrood, true);
    on.filled_box(links, boven, breedte, hoogte, verf);
    on.filled_box(midden - deur_breed / 2, grond - deur_hoog, deur_breed, deur_hoog, olijf);
    on.line_width = 2;
    on.polygon(dak, zwart, false);
    on.box(links, boven, breedte, hoogte, zwart);
    on.box(midden - deur_breed / 2, grond - deur_hoog, deur_breed, deur_hoog, zwart);
    on.filled_circle(midden + deur_breed / 4, grond - deur_hoog / 2, 22, zwart);
    on.line_width = 1;
}

// A wheel with teeth around a circle of this radius, the middle of its first tooth at an angle in degrees, and a hub
// that tells how many teeth there are.
void teken_tandwiel(drawing& on, point midden, double straal, int tanden, double eerste, kleur vulling) {
    const double steek = 360.0 / tanden, maat = 2 * straal / tanden;
    std::vector<point> rand;
    for (int i = 0; i < tanden; ++i) {
        const double hoek = eerste + i * steek;
        rand.push_back(op_cirkel(midden, straal - 0.9 * maat, hoek - 0.28 * steek));
        rand.push_back(op_cirkel(midden, straal + 0.8 * maat, hoek - 0.14 * steek));
        rand.push_back(op_cirkel(midden, straal + 0.8 * maat, hoek + 0.14 * steek));
        rand.push_back(op_cirkel(midden, straal - 0.9 * maat, hoek + 0.28 * steek));
    }
    on.polygon(rand, vulling, true);
    on.polygon(rand, zwart, false);
    on.filled_circle(midden.x, midden.y, 190, wit);
    on.circle(midden.x, midden.y, 190, zwart);
    druk_om(on, midden, kaal(tanden));
}

} // namespace

void oefeningen::B_huis_02_16_click() {
    struct huis {
        kleur verf{};
        int breedte = 0;
        std::string_view woord() const { return cijferwerf::woord(verf); }
        std::string_view bijvoeglijk() const { return cijferwerf::bijvoeglijk(verf); }
    };
    kies_variant(4);
    const bool grootste = variant % 2 == 1;
    const bool gelijk = variant > 2 && kop();
    const auto verf = geschud(std::array{blauw, rood, geel, groen, paars, wit});
    int breedte = gelijk ? trek_van(700, 1300, 50) : trek_van(700, 900, 50);
    std::array<huis, 3> huizen{}; // from small to large
    for (std::size_t i = 0; i < huizen.size(); ++i) {
        huizen[i] = {verf[i], breedte};
        if (!gelijk) breedte += trek_van(200, 300, 50);
    }
    const auto [kleinste_huis, midden_huis, grootste_huis] = huizen;

    bord(lichtgrijs, zwart, 14);
    plaatje.filled_box(0, 1700, drawing::inner_width, 30, groen);
    for (int midden = 920; const huis& h : geschud(huizen)) {
        teken_huis(plaatje, midden, h.breedte, h.verf);
        druk_midden(midden, 1770, h.woord());
        vertel(plaatje, "De voorkant van het ", h.bijvoeglijk(), " huis is ", in_stappen(h.breedte, deur_breed),
               " deuren breed.");
        midden += 1770;
    }

    vraag("Je ziet drie huizen getekend.", "Welke van de drie huizen ", "heeft in verhouding tot de voorkant",
          grootste ? "de grootste deur? Of is er geen deur" : "de kleinste deur? Of is er geen deur",
          "die in verhouding tot de voorkant", grootste ? "groter is dan de andere?" : "kleiner is dan de andere?");

    static constexpr std::string_view geen_deur = "geen deur";
    if (gelijk) {
        goed(geen_deur);
        for (const huis& h : huizen)
            fout(h.woord(),
                 regel("Kijk nog eens: is het ", h.bijvoeglijk(), " huisje echt ", grootste ? "kleiner" : "groter"),
                 "dan de andere twee?");
        uitleg("De deuren zijn bij alle huisjes even groot. De voorkanten van",
               "de huisjes zijn ook even groot. Dan zijn alle deuren in", "verhouding tot de voorkant ook even groot.",
               regel("Het juiste antwoord is dus: ", geen_deur, "."));
        return;
    }

    const huis& juist = grootste ? kleinste_huis : grootste_huis;
    if (grootste) {
        goed(juist.woord());
        fout(grootste_huis.woord(), regel("Het ", grootste_huis.bijvoeglijk(), " huisje is het grootste."),
             "Daar neemt de deur juist de minste ruimte in.");
        fout(midden_huis.woord(), regel("Er is nog een kleiner huisje dan het ", midden_huis.bijvoeglijk(), "."),
             "Daar neemt dezelfde deur meer ruimte in.");
    } else {
        goed(juist.woord());
        fout(kleinste_huis.woord(), regel("Het ", kleinste_huis.bijvoeglijk(), " huisje is het kleinste."),
             "Daar neemt de deur juist de meeste ruimte in.");
        fout(midden_huis.woord(), regel("Er is nog een groter huisje dan het ", midden_huis.bijvoeglijk(), "."),
             "Daar neemt dezelfde deur minder ruimte in.");
    }
    fout(geen_deur, "De deuren zijn even groot, maar de voorkanten niet.",
         "Vergelijk elke deur met de voorkant van het huisje.");

    uitleg("De deuren zijn bij alle huisjes even groot, maar",
           "de huisjes zelf zijn verschillend van grootte. Kijk naar",
           regel(grootste ? "het kleinste huisje (" : "het grootste huisje (", juist.woord(), "). In verhouding"),
           grootste ? "neemt daar dus de deur de meeste ruimte in." : "neemt daar dus de deur de minste ruimte in.",
           regel("Het juiste antwoord is dus: ", juist.woord(), "."));
}

void oefeningen::B_maatbeker_02_16_click() {
    struct beker {
        int minste, meeste; // marks
        kleur limonade;
    };
    static constexpr std::array<beker, 4> bekers{
        {{5, 8, geel}, {7, 10, lichtgroen}, {9, 13, roze}, {12, 16, lichtcyaan}}};
    static constexpr int links = 2000, breedte = 1300, bodem = 1980, hoogte = 1760;
    kies_variant(4);
    const auto& [minste, meeste, limonade] = rij(bekers, variant);
    const int n = trek_van(minste, meeste);
    const int vol =
        trek_tot([&] { return trek_van(1, std::min(9, n - 2)); }, [&](int drawn) { return 2 * drawn != n; });
    const breuk deel{vol, n}, lege_deel{n - vol, n}, vol_op_leeg{vol, n - vol};
    // One mark too many or too few, among the full ones or among all; the answer is then too large or too small.
    const int ernaast = kop() ? 1 : -1;
    const breuk verkeerd_geteld = trek_tot(
        [&] {
            return kop() ? breuk{vol + ernaast, n} : breuk{vol, n - ernaast};
        },
        [&](breuk drawn) {
            return drawn.teller > 0 && alle_verschillend(std::array{deel, lege_deel, vol_op_leeg, drawn});
        });
    const auto hoogte_van = [n](int streepje) { return bodem - hoogte * streepje / n; };

    bord(lichtgrijs, zwart, 12);
    vertel(plaatje, "Een maatbeker met ", telwoord(n), " streepjes, het laatste aan de rand. De limonade komt tot het ",
           rangtelwoord(vol), " streepje.");
    plaatje.ellipse(links + breedte, 1050, 480, 560, grijs, true);
    plaatje.ellipse(links + breedte, 1050, 360, 440, lichtgrijs, true);
    plaatje.filled_box(links, hoogte_van(n), breedte, hoogte, wit);
    plaatje.filled_box(links, hoogte_van(vol), breedte, bodem - hoogte_van(vol), limonade);
    plaatje.line_width = 3;
    plaatje.line(links, hoogte_van(n), links, bodem, zwart);
    plaatje.line(links, bodem, links + breedte, bodem, zwart);
    plaatje.line(links + breedte, bodem, links + breedte, hoogte_van(n), zwart);
    plaatje.line_width = 2;
    for (int i = 1; i <= n; ++i) plaatje.line(links - 150, hoogte_van(i), links + 350, hoogte_van(i), zwart);
    plaatje.line_width = 1;

    vraag("Een maatbeker is gedeeltelijk met", "limonade gevuld.", "De maatbeker heeft maatstreepjes.",
          "Voor welk deel is de maatbeker vol?", "Gebruik eventueel de muis-pijl om de", "streepjes te tellen...");

    goed(streepbreuk(deel));
    fout(streepbreuk(lege_deel), "Je hebt niet naar het volle, maar naar het", "lege gedeelte gekeken.");
    fout(streepbreuk(vol_op_leeg), "Je hebt het volle deel met het lege deel", "vergeleken.");
    fout(streepbreuk(verkeerd_geteld), "Je hebt je het aantal streepjes niet", "goed geteld.");

    uitleg(regel("De maatbeker is in", n, " gelijke stukken verdeeld."),
           regel("Je ziet dat de limonade tot aan het ", rangtelwoord(vol), " streepje komt."),
           regel("De maatbeker is dus voor ", streepbreuk(deel), " deel gevuld."));
    for (const int streepje : {vol, n})
        opdracht(druk_rechts_opdracht(links - 220, hoogte_van(streepje) - halve_regel(10), donkerrood, 10, streepje));
}

void oefeningen::L_cirkels_02_16_click() {
    // Of the two fractions; the least common denominator makes whole numbers of them.
    static constexpr std::array<std::array<int, 2>, 7> noemers{
        {{2, 3}, {2, 4}, {3, 4}, {3, 6}, {4, 6}, {4, 8}, {2, 8}}};
    static constexpr int straal = 770, midden_y = 1000;
    kies_variant(7);
    const auto noemer = geschud(rij(noemers, variant));
    const auto trek_teller = [this](int van) {
        return trek_tot([&] { return trek(van - 1) + 1; }, [&](int drawn) { return std::gcd(drawn, van) == 1; });
    };
    struct paar {
        breuk links, rechts;
    };
    const auto [links, rechts] = trek_tot(
        [&] {
            const int linker_teller = trek_teller(noemer[0]);
            const int rechter_teller = trek_teller(noemer[1]);
            return paar{{linker_teller, noemer[0]}, {rechter_teller, noemer[1]}};
        },
        [](const paar& drawn) { return std::gcd(drawn.links.teller, drawn.rechts.teller) == 1; });
    const int keer = std::lcm(links.noemer, rechts.noemer);
    const int heel_links = links.teller * keer / links.noemer, heel_rechts = rechts.teller * keer / rechts.noemer;
    const int te_veel = trek(2) + 2; // how many times as large as need be
    const auto verhouding = [](int een, int ander) { return regel(kaal(een), " :", ander); };

    struct cirkel {
        int midden_x;
        breuk rood_deel;
        std::string_view naam;
    };
    bord(lichtgrijs, zwart, 12);
    for (const auto& [midden_x, rood_deel, naam] : {cirkel{1500, links, "links"}, cirkel{3900, rechts, "rechts"}}) {
        const double graden = 360.0 * rood_deel.teller / rood_deel.noemer;
        plaatje.filled_circle(midden_x, midden_y, straal, donkerblauw);
        plaatje.sector(midden_x, midden_y, straal, 0, graden, rood, true);
        plaatje.circle(midden_x, midden_y, straal, zwart);
        const verteld_als cirkel(plaatje, "In twaalfden van de cirkel is ", naam,
                                 " rood: ", in_stappen(12.0 * rood_deel.teller, rood_deel.noemer), ".");
        druk_midden(midden_x, 1820, naam);
    }

    vraag("Hiernaast zie je twee cirkels.", "Ze zijn gedeeltelijk rood gekleurd.", "Hoe groot is de verhouding tussen",
          "de oppervlakten van de rode", "gedeelten van de linker en de", "rechter cirkel?");

    goed(verhouding(heel_links, heel_rechts));
    fout(verhouding(heel_rechts, heel_links), "Je hebt de cirkels verwisseld.");
    fout(verhouding(te_veel * heel_links, te_veel * heel_rechts), "Je had moeten vereenvoudigen...");
    fout(verhouding(te_veel * heel_rechts, te_veel * heel_links), "De volgorde van de getallen is niet goed. Bovendien",
         "moet je nog vereenvoudigen...");

    uitleg(regel("De linker cirkel is voor het ", streepbreuk(links), " deel rood gekleurd,"),
           regel("De rechter cirkel voor het ", streepbreuk(rechts), " deel."),
           regel("De verhouding ", streepbreuk(links), " : ", streepbreuk(rechts), " kun je omrekenen naar een"),
           regel("verhouding van hele getallen door met", keer, " te"),
           regel("vermenigvuldigen. Dan krijg je ", verhouding(heel_links, heel_rechts), "."));
    opdrachten(partjes_opdracht(3900, midden_y, rechts.noemer), partjes_opdracht(1500, midden_y, links.noemer));
}

void oefeningen::M_tandwielen_02_16_click() {
    struct tandwielen {
        int klein, groot;
    };
    static constexpr std::array<tandwielen, 10> paren{
        {{12, 24}, {10, 20}, {8, 24}, {10, 30}, {12, 18}, {16, 24}, {12, 16}, {18, 24}, {12, 20}, {18, 30}}};
    kies_variant(2);
    const auto [klein, groot] = kies(paren);
    const bool groot_links = kop();
    const int links = groot_links ? groot : klein, rechts = groot_links ? klein : groot;
    const bool linker_draait = variant == 1;
    const bool groot_draait = groot_links == linker_draait;
    // While the wheel that is turned goes round so often, the other goes round as often as the last one says.
    const int deler = std::gcd(klein, groot);
    const int per_keer = (groot_draait ? klein : groot) / deler,
              ander_per_keer = (groot_draait ? groot : klein) / deler;
    // Whole numbers, also of who multiplies where one divides.
    const bool veelvoud = klein == deler;
    const int factor = ander_per_keer * (veelvoud ? trek_van(3, 8) : trek_van(2, 4));
    const int keer = factor * per_keer;
    const int juist = factor * ander_per_keer;
    // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): a number of teeth is never less than what divides it
    const int rechtevenredig = keer * per_keer / ander_per_keer;
    // A slip of one or two, from the right answer or from a wrong one.
    const int bijna = kop() ? juist : kop() ? keer : rechtevenredig;
    const int ernaast = trek(2) + 1;
    const bool te_veel = kop();

    bord(wit, zwart, 12);
    const double straal_groot = 880, straal_klein = straal_groot * klein / groot;
    const double straal_links = groot_links ? straal_groot : straal_klein;
    const double straal_rechts = groot_links ? straal_klein : straal_groot;
    const point midden{drawing::inner_width / 2, drawing::inner_height / 2};
    const auto naast = [&](double afstand) { return point{midden.x + heel(afstand), midden.y}; };
    // A tooth of the left one reaches into a gap of the right one.
    teken_tandwiel(plaatje, naast(-straal_rechts), straal_links, links, 0, lichtcyaan);
    teken_tandwiel(plaatje, naast(straal_links), straal_rechts, rechts, 180 + 180.0 / rechts, geel);

    vraag("Twee tandwielen draaien rond.", regel("Het linker tandwiel heeft", links, " tanden,"),
          regel("het rechter tandwiel heeft er", rechts, "."),
          regel(linker_draait ? "Het linker tandwiel draait" : "Het rechter tandwiel draait", keer, " keer"),
          "rond. Hoeveel keer draait het", linker_draait ? "rechter tandwiel dan rond?" : "linker tandwiel dan rond?");

    goed(tekst(juist));
    fout(tekst(rechtevenredig));
    fout(tekst(keer));
    fout(tekst(bijna + (te_veel ? ernaast : -ernaast)));
    leg_vast(trek(4) + 1);
    if (linker_draait) {
        tip_1("Gebruik het begrip 'omgekeerd evenredig'.");
        tip_2("Bedenk verder dat het grote tandwiel juist minder", "vaak rond draait dan het kleine. ");
    } else {
        tip_1("Denk aan 'omgekeerd evenredig'.");
        tip_2("Verder moet je er aan denken dat het kleine", "tandwiel juist vaker rond draait dan het kleine.");
    }

    const std::string_view draait = groot_draait ? "grote" : "kleine", ander = groot_draait ? "kleine" : "grote";
    uitleg(regel("Het grote tandwiel heeft", groot, " tanden, het kleine", klein, "."),
           regel("Dat betekent: als het ", draait, per_keer, " keer rond draait, draait het"),
           regel(ander, ander_per_keer, " keer rond (omgekeerd evenredig). Gaat het ", draait),
           regel("wiel niet", per_keer, " keer rond, maar", keer, " keer, dan is dat", factor, " keer zo"),
           regel("veel. Het ", ander, " draait dan", factor, " x", ander_per_keer, " =", juist, " keer rond."));
}

} // namespace cijferwerf
