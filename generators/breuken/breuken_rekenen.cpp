// Fractions, the sums: adding, subtracting, simplifying, multiplying and dividing. The wrong answers are the mistakes
// of the last steps - not simplified, no whole taken out - and of the first: denominators not made equal, the wrong
// fraction turned over.
//
// The explanation is worked out below the sum, in y 1050 to 2000, by the drawing commands.
#include "generators/gedeeld/breuk.h"
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
    const int top = y - text_height(on.text_size) / 2;
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

// The middles of the bars in a line of 15 points printed from x: "---" is a bar, and what cancels stands a little right
// of its middle so that the red strokes run through it.
std::vector<int> middens_van_streepjes(int x, std::string_view line) {
    constexpr std::string_view bar = "---";
    constexpr int to_the_right = 15;
    std::vector<int> middens;
    for (auto at = line.find(bar); at != line.npos; at = line.find(bar, at + bar.size()))
        middens.push_back(x + to_the_right + text_width(line.substr(0, at), 15) + text_width(bar, 15) / 2);
    return middens;
}

int links_van(int midden, int getal) { return midden - text_width(kaal(getal), 8.25) / 2; }

// Prints numbers in one line of 8 points, each as near as blanks allow to its middle.
std::string getallenrij(int y, const std::vector<int>& middens, std::initializer_list<int> getallen) {
    const double blank = text_width(" ", 8);
    std::string line;
    int start = 0;
    std::size_t which = 0;
    for (const int getal : getallen) {
        const int left = middens[which++] - text_width(kaal(getal), 8) / 2;
        if (line.empty()) start = left;
        const auto blanks = std::lround((left - start - text_width(line, 8)) / blank);
        line = regel(line, std::string(static_cast<std::size_t>(blanks), ' '), kaal(getal));
    }
    return regel("PRINT_", velden(start, y, int{wit}, 8), "_", line);
}

// ---- four outcomes in four colours ----

struct uitkomst {
    breuk waarde;
    std::string_view feedback_1 = leeg, feedback_2 = leeg;
};

struct inkt {
    std::string_view naam;
    kleur tint;
};
constexpr std::array<inkt, 4> inkten{{{"geel", geel}, {"rood", rood}, {"wit", wit}, {"groen", lichtgroen}}};

// The outcomes below each other on the right, right of x 3000, each beside the word of its colour.
void teken_uitkomsten(drawing& on, const std::array<uitkomst, 4>& uitkomsten) {
    on.line(3030, 100, 3030, 2030, grijs);
    for (std::size_t i = 0; i < uitkomsten.size(); ++i) {
        const int y = 280 + static_cast<int>(i) * 523;
        const breuk waarde = uitkomsten[i].waarde;
        on.fore_colour = inkten[i].tint;
        on.text_size = 11;
        on.print_at(3300, y - 126, regel(inkten[i].naam, ":"));
        teken_breuk(on, 4250, y, waarde.geheel(), waarde.rest().teller, waarde.noemer);
    }
}

bool zijn_verschillend(const std::array<breuk, 4>& waarden) {
    for (std::size_t i = 0; i < waarden.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (waarden[i] == waarden[j]) return false;
    return true;
}

// Small enough to work out by head, and a mixed number.
bool is_mooie_uitkomst(breuk waarde) {
    return waarde.geheel() > 0 && waarde.rest().teller > 0 && waarde.teller <= 99 && waarde.noemer <= 30;
}

// The slips of multiplying and dividing, in the same places.
breuk apart(const som& s) { return breuk{s.helen_links * s.helen_rechts, 1} + s.links * s.rechts; }

std::array<breuk, 4> producten(const som& s) {
    const breuk product = (s.eerste() * s.tweede()).vereenvoudigd();
    return {product, apart(s).vereenvoudigd(), (s.eerste() + s.tweede()).vereenvoudigd(), product.rest()};
}

std::array<breuk, 4> quotienten(const som& s) {
    const breuk quotient = (s.eerste() / s.tweede()).vereenvoudigd();
    return {quotient, (s.eerste() * s.tweede()).vereenvoudigd(), quotient.omgekeerd(), quotient.rest()};
}

// By what the numerator of the one and the denominator of the other can be divided, first the left numerator.
struct kruis {
    int eerste, tweede;
    kruis(breuk a, breuk b) : eerste(std::gcd(a.teller, b.noemer)), tweede(std::gcd(a.noemer, b.teller)) {}
};

} // namespace

void oefeningen::L_optellen_03_14_click() {
    // The fractions together are more than 1, and what is left above 1 can be simplified.
    static const auto past = [](const som& s) {
        const breuk samen = s.links + s.rechts;
        return s.links.noemer != s.rechts.noemer && s.gelijke_noemer() <= 60 && samen > breuk{1, 1} &&
               samen.teller <= 99 && samen.rest().vereenvoudigbaar() && samen.rest().teller > 0;
    };
    static const std::array sommen{
        alle_sommen(20, 0, [](const som& s) { return past(s) && s.noemers_passen(); }),
        alle_sommen(15, 0, [](const som& s) { return past(s) && !s.noemers_passen(); }),
        alle_sommen(10, 4, past),
    };
    kies_variant(3);
    zaai();
    const som s = kies(rij(sommen, variant));
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
    const som s = kies(rij(sommen, variant));
    const int noemer = s.gelijke_noemer();
    const int helen = s.helen_links - s.helen_rechts;
    const breuk over = s.links - s.rechts;

    bord(donkerblauw, geel, 16);
    teken_som(plaatje, 200, 520, s, "-", "......");
    teken_lege_breuken(plaatje, std::array{200, 1100, 2000, 2900, 3800, 4700});

    vraag("Kijk hiernaast...", "Twee breuken worden gelijknamig", "gemaakt, afgetrokken en vereenvoudigd.",
          "Welke streepbreuk moet op de", "stippeltjes staan?");

    goed(met_helen(helen, over.vereenvoudigd()));
    fout(met_helen(helen, over), "Je hebt niet vereenvoudigd.", "De teller en de noemer kun je nog door",
         regel("hetzelfde getal delen, namelijk door", over.deler(), "."));
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
    const int top = y - text_height(18) / 2;
    const auto is = [&](int x) {
        druk(x + 130, top, "=");
        return plaatje.x + 130;
    };
    int x = is(teken_breuk(plaatje, variant == 1 ? 1200 : 1050, y, helen, k.eerste().teller, k.eerste().noemer));
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
         "Je hebt geen hele uit de eerste breuk gehaald:", "bij de middelste breuk staat al een hele meer.");
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
    // The dots give way to the numbers; they are as wide as the bar but for 60 units.
    const auto streep = text_width(stippels, 18) + 60;
    const auto wis = [streep](int einde, int boven) {
        return regel("LINE_", velden(einde - streep, boven, streep, 330, int{cyaan}), "_BF_0");
    };
    const auto vul_in = [streep](int einde, int boven, int getal) {
        const auto breedte = text_width(kaal(getal), 18);
        return regel("PRINT_", velden(einde - (streep + breedte) / 2, boven, int{geel}, 18), "_", kaal(getal));
    };
    opdrachten(wis(einde_midden, y - 365), vul_in(einde_midden, y - 409, teller), wis(einde_laatste, y + 40),
               vul_in(einde_laatste, y + 20, noemer));
}

void oefeningen::Z_delen_03_14_click() {
    // One pair cancels: the two numerators, or the two denominators.
    static const auto past = [](const som& s) {
        const std::array uitkomsten = quotienten(s);
        return is_mooie_uitkomst(uitkomsten[0]) && uitkomsten[1].noemer <= 40 && s.eerste().teller <= 40 &&
               s.tweede().teller <= 40 && zijn_verschillend(uitkomsten);
    };
    static const auto met_kruis = [](bool eerste, bool tweede) {
        return alle_sommen(8, 5, [=](const som& s) {
            const kruis k(s.eerste(), s.tweede().omgekeerd());
            return (k.eerste > 1) == eerste && (k.tweede > 1) == tweede && past(s);
        });
    };
    static const std::array sommen{met_kruis(true, false), met_kruis(false, true)};
    kies_variant(4);
    zaai();
    const som s = kies(rij(sommen, (variant - 1) % 2 + 1));
    const std::array waarden = quotienten(s);
    const std::array uitkomsten = geschud(std::array<uitkomst, 4>{
        {{waarden[0]},
         {waarden[1], "Je hebt vermenigvuldigd zonder de tweede breuk", "om te keren."},
         {waarden[2], "Je hebt de eerste breuk omgekeerd.", "Juist de tweede breuk moet je omkeren."},
         {waarden[3], "Je hebt de helen weggelaten: die horen", "ook bij de uitkomst."}}});
    const auto juist =
        static_cast<std::size_t>(std::ranges::find(uitkomsten, waarden[0], &uitkomst::waarde) - uitkomsten.begin());

    bord(donkerblauw, wit, 16);
    teken_som(plaatje, 250, 500, s, ":", "...");
    teken_uitkomsten(plaatje, uitkomsten);

    vraag("Kijk hiernaast...", "Twee breuken worden gedeeld.", "Slechts één van de", "gegeven uitkomsten is goed.",
          "Welke is dat?", "Kies de juiste kleur.");

    juist_op(static_cast<int>(juist) + 1);
    for (std::size_t i = 0; i < uitkomsten.size(); ++i)
        op_plaats(static_cast<int>(i) + 1, inkten[i].naam, uitkomsten[i].feedback_1, uitkomsten[i].feedback_2);
    if (variant > 2) {
        tip_1("Eerste stap: je maakt er echte streepbreuken van...");
        tip_2("Tweede stap: je keert de tweede breuk om, zodat het", "een vermenigvuldiging wordt.");
    }

    uitleg(
        "Maak er eerst twee echte streepbreuken van. Keer de tweede",
        "breuk om, zodat de deling een vermenigvuldiging wordt.", "Kijk of je al kunt vereenvoudigen (rode streepjes).",
        "Vermenigvuldig dan de tellers met elkaar, en doe dat ook met", "de noemers. Haal er ten slotte de helen uit.",
        regel("Je krijgt ", streepbreuk(waarden[0]), " = ", gemengd(waarden[0]), ": de juiste kleur is ",
              inkten[juist].naam, "."));

    const breuk a = s.eerste();
    const breuk b = s.tweede();
    const breuk om = b.omgekeerd();
    const kruis k(a, om);
    const std::string_view strepen = "---  :  ---  =  ---  x   ---  =  ---   =";
    const std::vector<int> x = middens_van_streepjes(520, strepen);
    // What is struck in the first fraction stands above or below what is struck in the second.
    const bool tellers = k.eerste > 1;
    const auto streep_door = [&](int midden, bool teller, int getal) {
        return regel("DOORSTREPEN_", velden(midden - 150, teller ? 1350 : 1750), "_",
                     velden(links_van(midden, getal), teller ? 1050 : 1850, getal));
    };
    opdrachten("LINE_3000_0_2380_2130_1_BF_1", regel("PRINT_520_1350_15_15_", strepen, "      ---"),
               getallenrij(1250, x, {a.teller, b.teller, a.teller, om.teller, waarden[0].teller}),
               getallenrij(1650, x, {a.noemer, b.noemer, a.noemer, om.noemer, waarden[0].noemer}),
               breuk_opdracht("BREUK1_4250_1420_", waarden[0].geheel(), waarden[0].rest()),
               streep_door(x[2], tellers, tellers ? a.teller / k.eerste : a.noemer / k.tweede),
               streep_door(x[3], !tellers, tellers ? om.noemer / k.eerste : om.teller / k.tweede));
}

void oefeningen::Z_vermenigvuldigen_03_14_click() {
    // A numerator cancels against the other denominator: the left one, the right one, or both.
    static const auto past = [](const som& s) {
        const std::array uitkomsten = producten(s);
        return is_mooie_uitkomst(uitkomsten[0]) && uitkomsten[1].noemer <= 40 && uitkomsten[2].noemer <= 40 &&
               s.eerste().teller <= 40 && s.tweede().teller <= 40 && zijn_verschillend(uitkomsten);
    };
    static const auto met_kruis = [](bool eerste, bool tweede) {
        return alle_sommen(9, 4, [=](const som& s) {
            const kruis k(s.eerste(), s.tweede());
            return (k.eerste > 1) == eerste && (k.tweede > 1) == tweede && past(s);
        });
    };
    static const std::array sommen{met_kruis(true, false), met_kruis(false, true), met_kruis(true, true)};
    kies_variant(3);
    zaai();
    const som s = kies(rij(sommen, variant));
    const std::array waarden = producten(s);
    const std::array uitkomsten = geschud(
        std::array<uitkomst, 4>{{{waarden[0]},
                                 {waarden[1], "Je hebt de helen en de breuken apart vermenigvuldigd.",
                                  "Maak er eerst twee echte streepbreuken van."},
                                 {waarden[2], "Je hebt de breuken opgeteld, maar er staat", "een maalteken."},
                                 {waarden[3], "Je hebt de helen weggelaten: die horen", "ook bij de uitkomst."}}});
    const auto juist =
        static_cast<std::size_t>(std::ranges::find(uitkomsten, waarden[0], &uitkomst::waarde) - uitkomsten.begin());

    bord(donkerblauw, wit, 16);
    teken_som(plaatje, 250, 500, s, "x", "...");
    teken_uitkomsten(plaatje, uitkomsten);

    vraag("Kijk hiernaast...", "Twee breuken worden vermenigvuldigd.", "Slechts één van de",
          "gegeven uitkomsten is goed.", "Welke is dat?", "Kies de juiste kleur.");

    juist_op(static_cast<int>(juist) + 1);
    for (std::size_t i = 0; i < uitkomsten.size(); ++i)
        op_plaats(static_cast<int>(i) + 1, inkten[i].naam, uitkomsten[i].feedback_1, uitkomsten[i].feedback_2);

    uitleg("Maak er eerst twee echte streepbreuken van en kijk dan", "of je al kunt vereenvoudigen (rode streepjes).",
           "Vermenigvuldig de tellers met elkaar, evenals de noemers.", "Ten slotte moet je er nog de helen uithalen.",
           regel("Je krijgt ", streepbreuk(waarden[0]), " = ", gemengd(waarden[0]), ": de juiste kleur is ",
                 inkten[juist].naam, "."));

    const breuk a = s.eerste();
    const breuk b = s.tweede();
    const kruis k(a, b);
    const breuk klein_a{a.teller / k.eerste, a.noemer / k.tweede};
    const breuk klein_b{b.teller / k.tweede, b.noemer / k.eerste};
    const std::string_view strepen = "---  x  ---  =  ---  x   ---  =  ---   =";
    const std::vector<int> x = middens_van_streepjes(520, strepen);
    const auto boven = [](int midden, int getal) {
        return regel(kaal(links_van(midden, getal)), "_1050_", kaal(getal));
    };
    const auto onder = [](int midden, int getal) {
        return regel(kaal(links_van(midden, getal)), "_1850_", kaal(getal));
    };
    const std::string door_teller_a = regel("DOORSTREPEN_550_1350_", boven(x[0], klein_a.teller));
    const std::string door_noemer_b = regel("DOORSTREPEN_1300_1750_", onder(x[1], klein_b.noemer));
    const std::string door_noemer_a = regel("DOORSTREPEN_550_1750_", onder(x[0], klein_a.noemer));
    const std::string door_teller_b = regel("DOORSTREPEN_1300_1350_", boven(x[1], klein_b.teller));
    if (variant == 3) {
        // Four strokes leave room for the first half of the line only; the outcomes beside it stay.
        const auto teller = [](int midden, int getal) {
            return regel(kaal(links_van(midden, getal)), "_", "1250_", kaal(getal), "_");
        };
        const auto noemer = [](int midden, int getal) {
            return regel(kaal(links_van(midden, getal)), "_", "1650_", kaal(getal), "_");
        };
        opdrachten("PRINT_520_1350_15_15_---  x  ---  =     ---",
                   breuk_opdracht("BREUK1_1920_1420_", waarden[0].geheel(), waarden[0].rest()),
                   regel("TELLERSNOEMERS_", teller(x[0], a.teller), noemer(x[0], a.noemer), teller(x[1], b.teller),
                         noemer(x[1], b.noemer)),
                   door_teller_a, door_noemer_b, door_noemer_a, door_teller_b);
        return;
    }
    opdrachten("LINE_3000_0_2380_2130_1_BF_1",
               regel("PRINT_520_1350_15_15_---  x  ---  =  ---  x   ---  =  ---   =", "      ---"),
               getallenrij(1250, x, {a.teller, b.teller, klein_a.teller, klein_b.teller, waarden[0].teller}),
               getallenrij(1650, x, {a.noemer, b.noemer, klein_a.noemer, klein_b.noemer, waarden[0].noemer}),
               breuk_opdracht("BREUK1_4300_1400_", waarden[0].geheel(), waarden[0].rest()),
               variant == 1 ? door_teller_a : door_noemer_a, variant == 1 ? door_noemer_b : door_teller_b);
}

} // namespace cijferwerf
