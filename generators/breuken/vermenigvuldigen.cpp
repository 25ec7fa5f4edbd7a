// Mixed numbers multiplied and divided. The wrong answers are slips with turning over, cancelling and taking out
// wholes.
//
// The explanation is worked out below the sum, in y 1050 to 2000, by the drawing commands.
#include "generators/breuken/sommen.h"
#include "generators/oefeningen.h"

#include <cmath>

namespace cijferwerf {

namespace {

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
breuk apart(const breuksom& s) { return breuk{s.helen_links * s.helen_rechts, 1} + s.links * s.rechts; }

std::array<breuk, 4> producten(const breuksom& s) {
    const breuk product = (s.eerste() * s.tweede()).vereenvoudigd();
    return {product, apart(s).vereenvoudigd(), (s.eerste() + s.tweede()).vereenvoudigd(), product.rest()};
}

std::array<breuk, 4> quotienten(const breuksom& s) {
    const breuk quotient = (s.eerste() / s.tweede()).vereenvoudigd();
    return {quotient, (s.eerste() * s.tweede()).vereenvoudigd(), quotient.omgekeerd(), quotient.rest()};
}

// By what the numerator of the one and the denominator of the other can be divided, first the left numerator.
struct kruis {
    int eerste, tweede;
    kruis(breuk a, breuk b) : eerste(std::gcd(a.teller, b.noemer)), tweede(std::gcd(a.noemer, b.teller)) {}
};

} // namespace

void oefeningen::Z_delen_03_14_click() {
    // One pair cancels: the two numerators, or the two denominators.
    static const auto past = [](const breuksom& s) {
        const std::array uitkomsten = quotienten(s);
        return is_mooie_uitkomst(uitkomsten[0]) && uitkomsten[1].noemer <= 40 && s.eerste().teller <= 40 &&
               s.tweede().teller <= 40 && zijn_verschillend(uitkomsten);
    };
    static const auto met_kruis = [](bool eerste, bool tweede) {
        return alle_sommen(8, 5, [=](const breuksom& s) {
            const kruis k(s.eerste(), s.tweede().omgekeerd());
            return (k.eerste > 1) == eerste && (k.tweede > 1) == tweede && past(s);
        });
    };
    static const std::array sommen{met_kruis(true, false), met_kruis(false, true)};
    kies_variant(4);
    zaai();
    const breuksom s = kies(rij(sommen, (variant - 1) % 2 + 1));
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
    static const auto past = [](const breuksom& s) {
        const std::array uitkomsten = producten(s);
        return is_mooie_uitkomst(uitkomsten[0]) && uitkomsten[1].noemer <= 40 && uitkomsten[2].noemer <= 40 &&
               s.eerste().teller <= 40 && s.tweede().teller <= 40 && zijn_verschillend(uitkomsten);
    };
    static const auto met_kruis = [](bool eerste, bool tweede) {
        return alle_sommen(9, 4, [=](const breuksom& s) {
            const kruis k(s.eerste(), s.tweede());
            return (k.eerste > 1) == eerste && (k.tweede > 1) == tweede && past(s);
        });
    };
    static const std::array sommen{met_kruis(true, false), met_kruis(false, true), met_kruis(true, true)};
    kies_variant(3);
    zaai();
    const breuksom s = kies(rij(sommen, variant));
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
