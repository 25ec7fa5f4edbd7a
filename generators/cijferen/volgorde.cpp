// In which order a sum of three or four numbers is worked out: from left to right, multiplications first, brackets
// before everything. The wrong answers take another order, or leave a number out.
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::L_na_elkaar_12_01_click() {
    struct drietal {
        int a, b, c;
    };
    kies_variant(2);
    const bool plus = variant == 1;
    // The last two numbers make more than the outcome below twice b, and less above it.
    const bool boven = kop();
    const auto [a, b, c] = trek_tot(
        [&] {
            const int tweede = trek_van(60, 160), derde = trek_van(15, 45);
            const int eerste =
                boven ? trek_van(2 * tweede + 5, 3 * tweede) : trek_van(tweede + derde + 5, 2 * tweede - 5);
            return drietal{eerste, tweede, derde};
        },
        [](drietal d) {
            const int rest = std::abs(d.a - 2 * d.b);
            return rest != d.c && rest != 2 * d.c;
        });
    const int verschil = a - b;
    const int juist = plus ? verschil + c : verschil - c;
    const std::string_view teken = plus ? " +" : " -";

    bord(donkerblauw, geel, 24);
    som_met_antwoord(4000, 800, wit, 24, regel(a, " -", b, teken, c, " ="), juist);

    vraag("Hiernaast zie je een som", "met drie getallen.", leeg, "Bereken de uitkomst.");

    goed(juist);
    fout(plus ? a - (b + c) : a - (b - c), "Heb je soms eerst de laatste twee getallen",
         plus ? "bij elkaar opgeteld?" : "van elkaar afgetrokken?");
    fout(verschil, "Zou het kunnen zijn dat je alleen de eerste", "twee getallen van elkaar hebt afgetrokken?",
         "Je moet ook nog iets met het derde getal", "doen!");
    fout(plus ? b + c : b - c, "Heb je soms alleen iets gedaan met de", "laatste twee getallen?",
         "Het eerste getal moet je ook gebruiken!");

    uitleg("Als je meer dan twee getallen moet", "aftrekken of optellen, dan moet je dat",
           "van links naar rechts doen. Dus eerst doe", regel("je", a, " -", b, " =", verschil, " en dan doe"),
           regel("je ten slotte", verschil, teken, c, " =", juist, "."));
}

void oefeningen::L_door_elkaar_12_02_click() {
    struct viertal {
        int a, b, c, d;
        int zonder_regels() const { return (a + b) * (c - d); }
        int uitkomst() const { return a + b * c - d; }
    };
    kies_variant(2);
    const int grootste_a = variant == 1 ? 19 : 79, grootste_d = variant == 1 ? 6 : 9;
    const bool boven = kop(); // whether what comes of both other orders at once is more than the outcome
    const auto s = trek_tot(
        [&] {
            const int a = trek_van(grootste_a / 5, grootste_a), b = trek_van(3, 12);
            const int d = trek_van(2, grootste_d);
            return viertal{a, b, d + trek_van(2, 4), d};
        },
        [boven](const viertal& v) {
            return boven ? v.zonder_regels() > v.uitkomst() : v.zonder_regels() < v.uitkomst();
        });
    const auto& [a, b, c, d] = s;
    const int product = b * c, samen = a + product, juist = samen - d;

    bord(donkerblauw, geel, 15);
    som_met_antwoord(variant == 1 ? 3680 : 3620, 800, wit, 15, regel(a, " +", b, " x", c, " -", d, " ="), juist);

    vraag("Maak de som die hiernaast", "staat.");

    goed(juist);
    fout((a + b) * c - d, "Let op de volgorde: je moet eerst de", "vermenigvuldiging doen.");
    fout(a + b * (c - d), "Als er geen haakjes in de som staan, dan gaat", "vermenigvuldigen vóór alles...");
    fout(s.zonder_regels(), "Heb je de bewerkingen wel in de juiste volgorde", "gedaan?");

    uitleg("Vermenigvuldigen en delen gaan altijd", "vóór optellen en aftrekken. Optellen en aftrekken",
           "doe je in de volgorde zoals die in de som staat.",
           regel("Hier doe je eerst", b, " x", c, " =", product, ". Daar tel je", a, " bij op,"),
           regel("dan heb je", samen, ". Tot slot trek je er", d, " van af, uitkomst:", juist, "."));
}

void oefeningen::L_haakjes_12_02_click() {
    kies_variant(2);
    bord(donkerblauw, geel, 14);
    vraag("Maak de som die hiernaast", "staat.");
    constexpr std::array<std::string_view, 3> eerst_haakjes{"Bij deze soort sommen moet je altijd eerst uitrekenen",
                                                            "wat tussen haakjes staat. Daarna geldt: vermenigvuldigen",
                                                            "en delen gaan voor optellen en aftrekken."};

    if (variant == 1) {
        struct factoren {
            int b, e;
        };
        const int a = trek_van(5, 40), d = trek_van(3, 15);
        const auto [b, e] = trek_tot(
            [this] {
                return factoren{trek_van(2, 9), trek_van(2, 9)};
            },
            [](factoren f) { return f.b > 2 || f.e > 2; });
        const int c = d + e, product = b * e, juist = a + product;
        som_met_antwoord(3850, 800, wit, 14, regel(a, " +", b, " x (", c, " -", d, " ) ="), juist);
        drie_andere(juist, tekst,
                    {{a + b * c - d, {"Er staan haakjes in deze som, dus die", "bewerkingen moet je eerst doen."}},
                     {(a + b) * c - d, {"Heb je wel op de haakjes gelet?"}},
                     {(a + b) * e,
                      {"De haakjes heb je goed gedaan. Daarna moet je eerst", "vermenigvuldigen en dan pas optellen."}},
                     {product, {"Je hebt het eerste getal vergeten."}},
                     {a + b + e, {"Je hebt alles opgeteld, maar er staat ook een", "vermenigvuldiging in de som."}}});
        uitleg(eerst_haakjes[0], eerst_haakjes[1], eerst_haakjes[2],
               regel("Tussen de haakjes staat", c, " -", d, " =", e, "."),
               regel("Daarna doe je", b, " x", e, " =", product, "."),
               regel("Tot slot doe je", a, " +", product, " =", juist, "."));
        return;
    }
    const int a = trek_van(3, 20), b = trek_van(3, 20), c = trek_van(2, 9), d = trek_van(3, 40);
    const int samen = a + b, product = samen * c, juist = product + d;
    som_met_antwoord(3600, 800, wit, 14, regel("(", a, " +", b, " ) x", c, " +", d, " ="), juist);
    drie_andere(juist, tekst,
                {{a + b * c + d, {"Alles wat tussen haakjes staat moet als eerste", "gedaan worden, dus..."}},
                 {a + b * (c + d), {"Heb je wel op de haakjes gelet?"}},
                 {samen * (c + d),
                  {"De haakjes heb je goed gedaan. Daarna moet je eerst", "vermenigvuldigen en dan pas optellen."}},
                 {product, {"Je hebt het laatste getal vergeten."}},
                 {samen + c + d, {"Je hebt alles opgeteld, maar er staat ook een", "vermenigvuldiging in de som."}}});
    uitleg(eerst_haakjes[0], eerst_haakjes[1], eerst_haakjes[2],
           regel("Tussen de haakjes staat", a, " +", b, " =", samen, "."),
           regel("Daarna doe je", samen, " x", c, " =", product, "."),
           regel("Tot slot doe je", product, " +", d, " =", juist, "."));
}

} // namespace cijferwerf
