// Mixed numbers multiplied and divided. The wrong answers are slips with turning over, cancelling, denominators and
// wholes.
//
// The explanation is worked out below the sum, in y 1050 to 2000, by the drawing commands.
#include "generators/breuken/sommen.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// By what the numerator of the one and the denominator of the other can be divided, first the left numerator.
struct kruis {
    int eerste, tweede;
    kruis(breuk a, breuk b) : eerste(std::gcd(a.teller, b.noemer)), tweede(std::gcd(a.noemer, b.teller)) {}
};

constexpr std::string_view maak_streepbreuken = "Maak er eerst twee echte streepbreuken van.";
constexpr std::string_view hoe_vaak = "Hoe vaak past de noemer in de teller?";

struct vergissing {
    breuk waarde;
    std::string_view regel_1, regel_2;
};
using vergissingen = std::vector<vergissing>;

// Those in which a child may believe: mixed numbers of a likely size.
vergissingen geloofwaardig(breuk uitkomst, vergissingen alle) {
    std::erase_if(alle, [uitkomst](const vergissing& v) {
        const breuk waarde = v.waarde.vereenvoudigd();
        return waarde.geheel() < 1 || waarde.rest().teller == 0 || waarde.noemer > 40 ||
               waarde > uitkomst * breuk{4, 1};
    });
    return alle;
}

// What goes wrong after the sum has become a times b.
vergissingen bij_vermenigvuldigen(breuk a, breuk b) {
    const breuk uitkomst = a * b;
    const kruis k(a, b);
    constexpr std::string_view alleen_een_noemer = "Bij het vereenvoudigen heb je alleen een noemer gedeeld.";
    constexpr std::string_view de_teller_ook = "De teller moet je door hetzelfde getal delen.";
    constexpr std::string_view alleen_een_teller = "Bij het vereenvoudigen heb je alleen een teller gedeeld.";
    constexpr std::string_view de_noemer_ook = "De noemer moet je door hetzelfde getal delen.";
    return {{{a.teller * b.teller, a.noemer},
             "Je hebt de tellers vermenigvuldigd, maar van de",
             "noemers heb je alleen de eerste opgeschreven."},
            {{a.teller * b.teller, b.noemer},
             "Je hebt de tellers vermenigvuldigd, maar van de",
             "noemers heb je alleen de tweede opgeschreven."},
            {uitkomst * breuk{k.eerste, 1}, alleen_een_noemer, de_teller_ook},
            {uitkomst * breuk{k.tweede, 1}, alleen_een_noemer, de_teller_ook},
            {uitkomst / breuk{k.eerste, 1}, alleen_een_teller, de_noemer_ook},
            {uitkomst / breuk{k.tweede, 1}, alleen_een_teller, de_noemer_ook}};
}

vergissingen bij_maal(const breuksom& s) {
    const breuk a = s.eerste(), b = s.tweede();
    const breuk A{s.helen_links, 1}, B{s.helen_rechts, 1};
    vergissingen alle = bij_vermenigvuldigen(a, b);
    alle.push_back(
        {A * B + s.links * s.rechts, "Je hebt de helen en de breuken apart vermenigvuldigd.", maak_streepbreuken});
    alle.push_back({a + b, "Je hebt de breuken opgeteld, maar er staat", "een maalteken."});
    alle.push_back({A * b, "Je hebt de streepbreuk van het eerste getal vergeten.", maak_streepbreuken});
    alle.push_back({a * B, "Je hebt de streepbreuk van het tweede getal vergeten.", maak_streepbreuken});
    alle.push_back({a * b + breuk{1, 1}, "Je hebt er een hele te veel uitgehaald.", hoe_vaak});
    return geloofwaardig(a * b, std::move(alle));
}

vergissingen bij_delen(const breuksom& s) {
    const breuk a = s.eerste(), b = s.tweede();
    const breuk A{s.helen_links, 1}, B{s.helen_rechts, 1};
    vergissingen alle = bij_vermenigvuldigen(a, b.omgekeerd());
    alle.push_back({a * b, "Je hebt vermenigvuldigd zonder de tweede breuk", "om te keren."});
    alle.push_back({A / B + s.links / s.rechts, "Je hebt de helen en de breuken apart gedeeld.", maak_streepbreuken});
    alle.push_back({A / b, "Je hebt de streepbreuk van het eerste getal vergeten.", maak_streepbreuken});
    alle.push_back({a / B, "Je hebt de streepbreuk van het tweede getal vergeten.", maak_streepbreuken});
    alle.push_back({a / b - breuk{1, 1}, "Je hebt er een hele te weinig uitgehaald.", hoe_vaak});
    return geloofwaardig(a / b, std::move(alle));
}

// Two numbers that go with an outcome to work out by head.
bool past(breuk a, breuk b, breuk uitkomst) {
    const breuk kort = uitkomst.vereenvoudigd();
    return a.teller <= 40 && b.teller <= 40 && kort.geheel() > 0 && kort.rest().teller > 0 && kort.teller <= 99 &&
           kort.noemer <= 30;
}

// At least so many different slips below and above it.
bool genoeg(breuk uitkomst, const vergissingen& slips, std::size_t minste_lager, std::size_t minste_hoger) {
    std::vector<breuk> lager, hoger;
    for (const auto& [waarde, regel_1, regel_2] : slips) {
        auto& kant = waarde < uitkomst ? lager : hoger;
        if (waarde != uitkomst && std::ranges::find(kant, waarde) == kant.end()) kant.push_back(waarde);
    }
    return lager.size() >= minste_lager && hoger.size() >= minste_hoger;
}

// All sums with wholes from 1 to so many, by their kind: the number that `soort` tells, or 0 for none.
template<std::size_t N, class Soort>
std::array<std::vector<breuksom>, N> sommen_per_soort(int grootste_noemer, int meeste_helen, Soort soort) {
    std::array<std::vector<breuksom>, N> all;
    for (breuksom s : alle_sommen(grootste_noemer, [](const breuksom&) { return true; }))
        for (s.helen_links = 1; s.helen_links <= meeste_helen; ++s.helen_links)
            for (s.helen_rechts = 1; s.helen_rechts <= meeste_helen; ++s.helen_rechts)
                if (const std::size_t which = soort(s); which > 0) all.at(which - 1).push_back(s);
    return all;
}

std::vector<keuze<breuk>> keuzes(const vergissingen& alle) {
    std::vector<keuze<breuk>> all;
    all.reserve(alle.size());
    for (const auto& [waarde, regel_1, regel_2] : alle) all.push_back({waarde, {regel_1, regel_2}});
    return all;
}

constexpr point keuzeplaats{3050, 90};
constexpr int keuzehoogte = 500;
constexpr std::array<kleur, 4> keuzekleuren{geel, rood, wit, lichtgroen};

// ---- the explanation ----

// The middles of the bars in a line of 15 points printed from x: "---" is a bar, and what cancels stands a little right
// of its middle so that the red strokes run through it.
std::array<int, 5> middens_van_streepjes(int x, std::string_view line) {
    constexpr std::string_view bar = "---";
    constexpr int to_the_right = 15;
    std::array<int, 5> middens{};
    std::size_t at = 0;
    for (int& midden : middens) {
        at = line.find(bar, at);
        midden = x + to_the_right + text_width(line.substr(0, at), 15) + text_width(bar, 15) / 2;
        at += bar.size();
    }
    return middens;
}

// The numbers above or below the bars, each as near as blanks allow to its middle.
plakregel getallenrij(int y, const std::array<int, 5>& middens, const std::array<int, 5>& getallen) {
    const auto stuk = [&](std::size_t i) {
        return stuk_tekst{middens[i] - text_width(kaal(getallen[i]), 8) / 2, plak_even({kaal(getallen[i])})};
    };
    return druk_opdracht(y, wit, 8, {stuk(0), stuk(1), stuk(2), stuk(3), stuk(4)});
}

int links_van(int midden, int getal) { return midden - text_width(kaal(getal), 8.25) / 2; }

} // namespace

void oefeningen::Z_delen_03_14_click() {
    // One pair cancels: the two numerators, or the two denominators.
    static const auto sommen = sommen_per_soort<2>(8, 5, [](const breuksom& s) -> std::size_t {
        const breuk a = s.eerste(), b = s.tweede();
        const kruis k(a, b.omgekeerd());
        if ((k.eerste > 1) == (k.tweede > 1) || !past(a, b, a / b) || !genoeg(a / b, bij_delen(s), 3, 2)) return 0;
        return k.eerste > 1 ? 1 : 2;
    });
    kies_variant(4);
    const breuksom s = kies(rij(sommen, (variant - 1) % 2 + 1));
    const breuk a = s.eerste();
    const breuk b = s.tweede();
    const breuk om = b.omgekeerd();
    const breuk quotient = (a / b).vereenvoudigd();

    bord(donkerblauw, wit, 16);
    teken_som(plaatje, 250, 500, s, ":", "...");
    kleurkeuze(keuzeplaats, keuzehoogte, keuzekleuren, vier_opties(quotient, kortste, keuzes(bij_delen(s))));

    vraag("Kijk hiernaast...", "Twee breuken worden gedeeld.", "Slechts één van de", "gegeven uitkomsten is goed.",
          "Welke is dat?", "Kies de juiste kleur.");

    if (variant > 2) {
        tip_1("Eerste stap: je maakt er echte streepbreuken van...");
        tip_2("Tweede stap: je keert de tweede breuk om, zodat het", "een vermenigvuldiging wordt.");
    }

    uitleg(
        "Maak er eerst twee echte streepbreuken van. Keer de tweede",
        "breuk om, zodat de deling een vermenigvuldiging wordt.", "Kijk of je al kunt vereenvoudigen (rode streepjes).",
        "Vermenigvuldig dan de tellers met elkaar, en doe dat ook met", "de noemers. Haal er ten slotte de helen uit.",
        regel("Je krijgt ", streepbreuk(quotient), " = ", gemengd(quotient), ": de juiste kleur is ", juiste_antwoord(),
              "."));

    const kruis k(a, om);
    const std::string_view strepen = "---  :  ---  =  ---  x   ---  =  ---   =";
    const auto x = middens_van_streepjes(520, strepen);
    // What is struck in the first fraction stands above or below what is struck in the second.
    const bool tellers = k.eerste > 1;
    const auto streep_door = [&](int midden, bool teller, int getal) {
        return doorstreep_opdracht(midden - 150, teller ? 1350 : 1750, links_van(midden, getal), teller ? 1050 : 1850,
                                   getal);
    };
    opdrachten("LINE_3000_0_2380_2130_1_BF_1", regel("PRINT_520_1350_15_15_", strepen, "      ---"),
               getallenrij(1250, x, {a.teller, b.teller, a.teller, om.teller, quotient.teller}),
               getallenrij(1650, x, {a.noemer, b.noemer, a.noemer, om.noemer, quotient.noemer}),
               breuk_opdracht(4250, 1420, quotient.geheel(), quotient.rest()),
               streep_door(x[2], tellers, tellers ? a.teller / k.eerste : a.noemer / k.tweede),
               streep_door(x[3], !tellers, tellers ? om.noemer / k.eerste : om.teller / k.tweede));
}

void oefeningen::Z_vermenigvuldigen_03_14_click() {
    // A numerator cancels against the other denominator: the left one, the right one, or both.
    static const auto sommen = sommen_per_soort<3>(10, 4, [](const breuksom& s) -> std::size_t {
        const breuk a = s.eerste(), b = s.tweede();
        const kruis k(a, b);
        if ((k.eerste == 1 && k.tweede == 1) || !past(a, b, a * b) || !genoeg(a * b, bij_maal(s), 2, 3)) return 0;
        return k.tweede == 1 ? 1 : k.eerste == 1 ? 2 : 3;
    });
    kies_variant(3);
    const breuksom s = kies(rij(sommen, variant));
    const breuk a = s.eerste();
    const breuk b = s.tweede();
    const breuk product = (a * b).vereenvoudigd();

    bord(donkerblauw, wit, 16);
    teken_som(plaatje, 250, 500, s, "x", "...");
    kleurkeuze(keuzeplaats, keuzehoogte, keuzekleuren, vier_opties(product, kortste, keuzes(bij_maal(s))));

    vraag("Kijk hiernaast...", "Twee breuken worden vermenigvuldigd.", "Slechts één van de",
          "gegeven uitkomsten is goed.", "Welke is dat?", "Kies de juiste kleur.");

    uitleg("Maak er eerst twee echte streepbreuken van en kijk dan", "of je al kunt vereenvoudigen (rode streepjes).",
           "Vermenigvuldig de tellers met elkaar, evenals de noemers.", "Ten slotte moet je er nog de helen uithalen.",
           regel("Je krijgt ", streepbreuk(product), " = ", gemengd(product), ": de juiste kleur is ",
                 juiste_antwoord(), "."));

    const kruis k(a, b);
    const breuk klein_a{a.teller / k.eerste, a.noemer / k.tweede};
    const breuk klein_b{b.teller / k.tweede, b.noemer / k.eerste};
    const std::string_view strepen = "---  x  ---  =  ---  x   ---  =  ---   =";
    const auto x = middens_van_streepjes(520, strepen);
    const auto streep_door = [&](int links, int boven, int midden, int getal) {
        return doorstreep_opdracht(links, boven, links_van(midden, getal), boven == 1350 ? 1050 : 1850, getal);
    };
    const std::string door_teller_a = streep_door(550, 1350, x[0], klein_a.teller);
    const std::string door_noemer_b = streep_door(1300, 1750, x[1], klein_b.noemer);
    const std::string door_noemer_a = streep_door(550, 1750, x[0], klein_a.noemer);
    const std::string door_teller_b = streep_door(1300, 1350, x[1], klein_b.teller);
    if (variant == 3) {
        // Four strokes leave room for the first half of the line only; the outcomes beside it stay.
        const auto getal = [](int midden, int y, int n) { return velden(links_van(midden, n), y, n); };
        opdrachten("PRINT_520_1350_15_15_---  x  ---  =     ---",
                   breuk_opdracht(1920, 1420, product.geheel(), product.rest()),
                   regel("TELLERSNOEMERS_",
                         velden(getal(x[0], 1250, a.teller), getal(x[0], 1650, a.noemer), getal(x[1], 1250, b.teller),
                                getal(x[1], 1650, b.noemer)),
                         "_"),
                   door_teller_a, door_noemer_b, door_noemer_a, door_teller_b);
        return;
    }
    opdrachten("LINE_3000_0_2380_2130_1_BF_1",
               regel("PRINT_520_1350_15_15_---  x  ---  =  ---  x   ---  =  ---   =", "      ---"),
               getallenrij(1250, x, {a.teller, b.teller, klein_a.teller, klein_b.teller, product.teller}),
               getallenrij(1650, x, {a.noemer, b.noemer, klein_a.noemer, klein_b.noemer, product.noemer}),
               breuk_opdracht(4300, 1400, product.geheel(), product.rest()),
               variant == 1 ? door_teller_a : door_noemer_a, variant == 1 ? door_noemer_b : door_teller_b);
}

} // namespace cijferwerf
