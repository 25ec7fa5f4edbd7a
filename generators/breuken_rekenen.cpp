// Fractions, the sums: adding, subtracting, simplifying, multiplying and dividing. The wrong answers are the mistakes
// of the last steps - not simplified, no whole taken out - and of the first: denominators not made equal, the wrong
// fraction turned over.
//
// The explanation is worked out below the sum, in y 1050 to 2000, by the drawing commands.
#include "generators/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace cijferwerf {

namespace {

// Two fractions below 1, each in its simplest form, and the wholes before them.
struct som {
    breuk links, rechts;
    int helen_links = 0, helen_rechts = 0;

    breuk eerste() const { return gemengd_getal(helen_links, links.teller, links.noemer); }
    breuk tweede() const { return gemengd_getal(helen_rechts, rechts.teller, rechts.noemer); }
    int gelijke_noemer() const { return std::lcm(links.noemer, rechts.noemer); }
    bool noemers_passen() const { return gelijke_noemer() == std::max(links.noemer, rechts.noemer); }
};

std::vector<breuk> breuken_onder_1(int grootste_noemer) {
    std::vector<breuk> all;
    for (int noemer = 2; noemer <= grootste_noemer; ++noemer)
        for (int teller = 1; teller < noemer; ++teller)
            if (!breuk{teller, noemer}.vereenvoudigbaar()) all.push_back({teller, noemer});
    return all;
}

// All sums that fit, with wholes up to so many (from 1 on, or none at all).
template<class Fits>
std::vector<som> alle_sommen(int grootste_noemer, int meeste_helen, Fits past) {
    std::vector<som> all;
    const std::vector<breuk> breuken = breuken_onder_1(grootste_noemer);
    const int minste = std::min(meeste_helen, 1);
    for (const breuk links : breuken)
        for (const breuk rechts : breuken)
            for (int a = minste; a <= meeste_helen; ++a)
                for (int b = minste; b <= meeste_helen; ++b)
                    if (const som s{links, rechts, a, b}; past(s)) all.push_back(s);
    return all;
}

// "3 9/6": wholes before a fraction that may be above 1.
std::string met_helen(int helen, breuk b) {
    return helen == 0 ? streepbreuk(b) : regel(kaal(helen), " ", streepbreuk(b));
}

// The sum on the picture, its bars at y; the dots stand for what is asked.
void teken_som(drawing& on, int x, int y, const som& s, std::string_view teken, std::string_view stippels) {
    const int top = y - static_cast<int>(std::lround(text_height(on.text_size))) / 2;
    const auto print = [&](std::string_view text) {
        on.print_at(x + 110, top, text);
        x = on.x + 110;
    };
    x = teken_breuk(on, x, y, s.helen_links, s.links.teller, s.links.noemer);
    print(teken);
    x = teken_breuk(on, x, y, s.helen_rechts, s.rechts.teller, s.rechts.noemer);
    print("=");
    on.print_at(x, top, stippels);
}

// ---- the explanation ----

std::string breuk_opdracht(std::string_view plaats, int helen, breuk b) {
    return regel(plaats, velden(helen, b.teller, b.noemer));
}

// The bars and the empty places of the fractions that BREUK1 will write at these x, with y 1400: there are no commands
// left to draw them.
template<std::size_t N>
void teken_lege_breuken(drawing& on, const std::array<int, N>& plaatsen) {
    on.style = line_style::dot;
    for (const int x : plaatsen)
        for (const int top : {1252, 1582}) on.box(x + 255, top, 220, 180, grijs);
    on.style = line_style::solid;
    for (const int x : plaatsen) on.line(x + 235, 1507, x + 495, 1507, wit);
}

} // namespace

void oefeningen::L_optellen_03_14_click() {
    // The fractions together are more than 1, and what is left above 1 can be simplified.
    static const auto past = [](const som& s) {
        const breuk samen = s.links + s.rechts;
        return s.links.noemer != s.rechts.noemer && s.gelijke_noemer() <= 40 && samen > breuk{1, 1} &&
               samen.rest().vereenvoudigbaar() && samen.rest().teller > 0;
    };
    static const std::array sommen{
        alle_sommen(15, 0, [](const som& s) { return past(s) && s.noemers_passen(); }),
        alle_sommen(15, 0, [](const som& s) { return past(s) && !s.noemers_passen(); }),
        alle_sommen(10, 4, past),
    };
    kies_variant(3);
    zaai();
    const som s = kies(sommen[static_cast<std::size_t>(variant - 1)]);
    const int noemer = s.gelijke_noemer();
    const int helen = s.helen_links + s.helen_rechts;
    const breuk samen = s.links + s.rechts;
    const int deler = samen.deler();

    bord(donkerblauw, geel, 16);
    teken_som(plaatje, 700, 520, s, "+", "......");
    teken_lege_breuken(plaatje, std::array{700, 1550, 2400, 3250, 4100});

    vraag("Kijk hiernaast...", "Twee breuken worden gelijknamig", "gemaakt, opgeteld en zo ver mogelijk",
          "vereenvoudigd.", "Welke streepbreuk moet op de", "stippeltjes staan?");

    goed(met_helen(helen + 1, samen.rest().vereenvoudigd()));
    if (variant == 2)
        fout(met_helen(helen + 1, samen.rest()), "Je hebt niet vereenvoudigd.", "Je moet ook vereenvoudigden.");
    else
        fout(met_helen(helen + 1, samen.rest()), "Je hebt niet vereenvoudigd.");
    fout(met_helen(helen, samen.vereenvoudigd()), "Je hebt er geen hele uitgehaald.");
    fout(met_helen(helen, samen), "Je hebt er geen hele uitgehaald en je", "hebt niet vereenvoudigd...");

    uitleg(regel("Maak van de noemers eerst", noemer, ", zodat je ze"),
           "makkelijk kunt optellen. Haal er vervolgens een hele uit",
           "en vereenvoudig die breuk door de teller en de noemer", regel("door", deler, " te delen."),
           regel("Het goede antwoord is ", antwoord_1, "."));
    opdrachten(breuk_opdracht("BREUK1_700_1400_", s.helen_links, s.links.maal(noemer / s.links.noemer)),
               breuk_opdracht("BREUK1_1550_1400_", s.helen_rechts, s.rechts.maal(noemer / s.rechts.noemer)),
               breuk_opdracht("BREUK1_2400_1400_", helen, samen),
               breuk_opdracht("BREUK1_3250_1400_", helen + 1, samen.rest()),
               breuk_opdracht("BREUK1_4100_1400_", helen + 1, samen.rest().vereenvoudigd()),
               "PRINT_1400_1350_15_12_+           =            =            =");
}

void oefeningen::M_aftrekken_03_14_click() {
    // No whole has to be broken up, what is left can be simplified, and who leaves the numerators as they are is wrong.
    static const auto past = [](const som& s) {
        const breuk over = s.links - s.rechts;
        const int zonder_aanpassen = s.links.teller - s.rechts.teller;
        return s.links.noemer != s.rechts.noemer && s.gelijke_noemer() <= 40 && over.teller > 0 &&
               over.vereenvoudigbaar() && s.helen_links > s.helen_rechts && zonder_aanpassen > 0 &&
               zonder_aanpassen != over.teller;
    };
    static const std::array sommen{
        alle_sommen(15, 6, [](const som& s) { return past(s) && s.noemers_passen(); }),
        alle_sommen(15, 6, [](const som& s) { return past(s) && !s.noemers_passen(); }),
    };
    kies_variant(2);
    zaai();
    const som s = kies(sommen[static_cast<std::size_t>(variant - 1)]);
    const int noemer = s.gelijke_noemer();
    const int helen = s.helen_links - s.helen_rechts;
    const breuk over = s.links - s.rechts;

    bord(donkerblauw, geel, 16);
    teken_som(plaatje, 200, 520, s, "-", "......");
    teken_lege_breuken(plaatje, std::array{200, 1100, 2000, 2900, 3800, 4700});

    vraag("Kijk hiernaast...", "Twee breuken worden gelijknamig", "gemaakt, afgetrokken en vereenvoudigd.",
          "Welke streepbreuk moet op de", "stippeltjes staan?");

    goed(met_helen(helen, over.vereenvoudigd()));
    fout(met_helen(helen, over), "Je hebt niet vereenvoudigd.", "De teller en de noemer kun je nog delen.");
    fout(met_helen(helen, {s.links.teller - s.rechts.teller, noemer}), "Je hebt de breuken niet gelijknamig gemaakt:",
         regel("als de noemer", noemer, " wordt, verandert de teller ook."));
    fout(met_helen(s.helen_links, over.vereenvoudigd()), "Je hebt alleen de streepbreuken van elkaar afgetrokken.",
         "De helen moet je ook van elkaar aftrekken.");

    uitleg(regel("Maak van de noemers eerst", noemer, ", zodat je ze"),
           "makkelijk kunt aftrekken. Trek de helen van elkaar af,",
           "daarna de streepbreuken. Vereenvoudig de breuk door",
           regel("de teller en de noemer ", "door", over.deler(), " te delen."),
           regel("Het goede antwoord is ", antwoord_1, "."));
    opdrachten(breuk_opdracht("BREUK1_200_1400_", s.helen_links, s.links),
               breuk_opdracht("BREUK1_1100_1400_", s.helen_rechts, s.rechts),
               breuk_opdracht("BREUK1_2000_1400_", s.helen_links, s.links.maal(noemer / s.links.noemer)),
               breuk_opdracht("BREUK1_2900_1400_", s.helen_rechts, s.rechts.maal(noemer / s.rechts.noemer)),
               breuk_opdracht("BREUK1_3800_1400_", helen, over),
               breuk_opdracht("BREUK1_4700_1400_", helen, over.vereenvoudigd()),
               "PRINT_900_1350_15_12_-             =             -             =             =");
}

void oefeningen::M_vereenvoudigen_03_14_click() {
    kies_variant(2);
    zaai();
    // The last fraction in its simplest form, made larger and with one of its wholes put into the numerator. The two
    // numbers on the dots differ, whichever mistake is made.
    struct keten {
        breuk laatste;
        int deler;
        breuk midden() const { return laatste.maal(deler); }
        breuk eerste() const { return midden() + breuk{1, 1}; }
    };
    static const std::vector<breuk> breuken = breuken_onder_1(12);
    const keten k = trek_tot(
        [this] {
            return keten{kies(breuken), trek(5) + 2};
        },
        [](const keten& drawn) {
            return drawn.midden().noemer <= 40 && drawn.midden().teller != drawn.laatste.noemer;
        });
    const int helen = variant == 1 ? 0 : trek(4) + 1; // of the first fraction
    const int teller = k.midden().teller;
    const int noemer = k.laatste.noemer;
    const std::string stippels = "....";
    const auto en = [](int first, int second) { return regel(kaal(first), " en", second); };

    bord(cyaan, wit, 18);
    constexpr int y = 950;
    const int top = y - static_cast<int>(std::lround(text_height(18))) / 2;
    const auto is = [&](int x) {
        druk(x + 130, top, "=");
        return plaatje.x + 130;
    };
    int x = is(teken_breuk(plaatje, 450, y, helen, k.eerste().teller, k.eerste().noemer));
    const int einde_midden =
        teken_breuk(plaatje, x, y, regel(kaal(helen + 1)), stippels, regel(kaal(k.midden().noemer)));
    const int einde_laatste =
        teken_breuk(plaatje, is(einde_midden), y, regel(kaal(helen + 1)), regel(kaal(k.laatste.teller)), stippels);

    vraag("Kijk hiernaast...", "Op de stippeltjes moeten twee", "getallen staan.", "Welke getallen zijn dat?",
          "Let op de volgorde!");

    goed(en(teller, noemer));
    fout(en(noemer, teller), "De getallen zijn goed, maar de volgorde niet.",
         "Het getal in de middelste breuk moet eerst.");
    fout(en(k.eerste().teller, noemer),
         "Je hebt geen hele uit de eerste breuk gehaald:", regel("bij de middelste breuk staat al een hele meer."));
    fout(en(teller, k.midden().noemer), "De laatste breuk is vereenvoudigd: de teller is al gedeeld.",
         "Je moet de noemer door hetzelfde getal delen.");
    if (variant == 2) {
        tip_1("Eerste stap: je moet een hele uit de eerste breuk",
              "halen. Dan zie je welk getal op de stippels moet staan.");
        tip_2("Tweede stap: kijk door welk getal de teller van de middelste",
              "breuk gedeeld is. Deel de noemer ook door dat getal.");
    }

    uitleg("Bij de middelste breuk houd je voor de teller",
           regel("nog", k.eerste().teller, " -", k.eerste().noemer, " =", teller,
                 " over (het aantal helen is eentje groter"),
           "groter geworden). Vervolgens kun je de teller",
           regel("en de noemer van de middelste breuk nog door", k.deler, " delen."),
           regel("De noemer wordt dan", k.midden().noemer, " :", k.deler, " =", noemer, "."),
           regel("Op de stippeltjes staan dus ", antwoord_1, "."));
    // The dots give way to the numbers.
    const auto wis = [](int einde, int boven) {
        return regel("LINE_", velden(einde - 385, boven, 385, 330, int{cyaan}), "_BF_0");
    };
    const auto vul_in = [](int einde, int boven, int getal) {
        const auto breedte = std::lround(text_width(kaal(getal), 18));
        return regel("PRINT_", velden(einde - 192 - breedte / 2, boven, int{geel}, 18), "_", kaal(getal));
    };
    opdrachten(wis(einde_midden, y - 365), vul_in(einde_midden, y - 409, teller), wis(einde_laatste, y + 40),
               vul_in(einde_laatste, y + 20, noemer));
}

void oefeningen::Z_delen_03_14_click() {}
void oefeningen::Z_vermenigvuldigen_03_14_click() {}

} // namespace cijferwerf
