// Powers to be worked out: squares against the clock, a power in digits and one in words, a power within a sum.
// The wrong answers are near, or take the two numbers of the power for those of another sum.
#include "generators/gedeeld/machtnaam.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/machten/macht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// All below 1.000 with a base to 10 that stay within 10.000 when the two numbers are swapped, and of which power,
// swapped power, product and sum differ; up to 100, and from there on.
constexpr std::array<std::array<macht, 11>, 2> machten{
    {{{{2, 3}, {2, 5}, {2, 6}, {3, 2}, {3, 4}, {4, 3}, {5, 2}, {6, 2}, {7, 2}, {8, 2}, {9, 2}}},
     {{{2, 7}, {2, 8}, {2, 9}, {3, 5}, {3, 6}, {5, 3}, {5, 4}, {6, 3}, {7, 3}, {8, 3}, {10, 2}}}}};

std::array<keuze<long long>, 3> vergissingen_bij(const macht& m) {
    return {{{m.grondtal * m.exponent, {"Je hebt de twee getallen met elkaar", "vermenigvuldigd."}},
             {m.verwisseld().waarde(), {"Je hebt het grondtal en de exponent verwisseld."}},
             {m.grondtal + m.exponent, {"Heb je soms opgeteld?", "Je moet een macht berekenen, niet optellen."}}}};
}

} // namespace

void oefeningen::B_snel_00_11_click() {
    kies_variant(3);
    const int n = trek(4) + 4 * variant;
    const int kwadraat = n * n;

    snel_bord(3 + 2 * variant, 20);
    som_met_antwoord(2550, 300, wit, 20, regel(n, "^2  ="), kwadraat);

    vraag("Geef snel antwoord.", leeg, "Kijk naar de som hiernaast...");

    goed(kwadraat);
    // An even distance, so that even or odd tells nothing.
    for (const int afstand : {2, 4, 10}) {
        const bool erboven = kop();
        fout(kwadraat + (erboven ? afstand : -afstand));
    }

    uitleg(regel("De uitkomst vind je door", n, " x", n, " te doen."), regel("Dus:", n, " x", n, " =", kwadraat, "."));
}

void oefeningen::L_berekenen_00_11_click() {
    kies_variant(2);
    const macht m = kies(rij(machten, variant));
    const number_text uitkomst = tekst(m.waarde());

    bord(variant == 1 ? groen : donkerblauw, geel, 20);
    som_met_antwoord(2550, 700, wit, 20, regel(m.op_plaatje(), " ="), uitkomst);

    vraag("Hiernaast zie je een", "som.", leeg, "Bereken de uitkomst.");

    drie_andere(m.waarde(), duizend, vergissingen_bij(m));

    uitleg(regel("Er staat", m.grondtal, " ", machtnaam_voluit(m.exponent), "."), "Om deze macht uit te rekenen doe je",
           m.uitgeschreven(), regel("met als uitkomst: ", uitkomst, "."));
}

void oefeningen::L_in_woorden_00_11_click() {
    kies_variant(2);
    const macht m = kies(rij(machten, variant));
    const std::string naam = machtnaam_voluit(m.exponent);
    const number_text uitkomst = tekst(m.waarde());

    bord(variant == 1 ? donkerblauw : groen, geel, 16);
    druk(400, 750, telwoord(m.grondtal), " ", naam, " is ");
    // As wide as three digits and more, so that the dots do not tell how many there are.
    antwoord_over_stippen(plaatje.x(), 750, wit, "........", uitkomst);

    vraag("Hiernaast zie je een som", "die helemaal in woorden", "is weergegeven.", leeg, "Bereken de uitkomst.");

    drie_andere(m.waarde(), duizend, vergissingen_bij(m));

    uitleg(regel("Het eerst genoemde getal (", kaal(m.grondtal), ") moet je"),
           regel(naam, " nemen. Je moet dus uitrekenen:"), regel(m.uitgeschreven(), " =", uitkomst, "."));
}

void oefeningen::L_volgorde_00_11_click() {
    kies_variant(4);
    const bool kwadraat = kop();
    const macht m = kwadraat ? macht{trek_van(2, 10), 2} : macht{trek_van(2, 5), 3};
    const int p = static_cast<int>(m.waarde());
    const bool macht_erbij = variant == 1 || variant == 3, c_erbij = variant >= 2 && variant <= 3;
    // From 31 on, so that even three steps of ten below lies more than nothing; and nothing below 0 on the way.
    constexpr int minste = 31;
    int tussen = 0, c = 0; // the sum so far, before c
    if (macht_erbij) {
        tussen = trek_van(40, 90) + p;
        c = trek_van(5, c_erbij ? 60 : std::min(60, tussen - minste));
    } else if (c_erbij) {
        tussen = trek_van(3, 60);
        c = trek_van(std::max(5, minste - tussen), 70);
    } else {
        c = trek_van(5, 40);
        tussen = c + trek_van(minste, 80);
    }
    const int a = macht_erbij ? tussen - p : tussen + p;
    const int uitkomst = c_erbij ? tussen + c : tussen - c;
    const std::string_view eerste_teken = macht_erbij ? " + " : " - ", tweede_teken = c_erbij ? " +" : " -";

    bord(wit, donkerblauw, 20);
    som_met_antwoord(3860, 800, groen, 20, regel(a, eerste_teken, m.op_plaatje(), tweede_teken, c, " ="), uitkomst);

    vraag("Maak de som die hiernaast", "staat.");

    opeenvolgend(uitkomst, tekst, 10);
    static constexpr std::string_view eerst = "Eerst moet je de macht in die som uitrekenen,";
    static constexpr std::string_view want = "want machtsverheffen gaat vóór";
    tip_1(eerst, want, "alles...");
    tip_2(eerst, want, "alles...", "Daarna reken je van links naar rechts.");

    uitleg("Machtsverheffen gaat altijd voor alles. Je moet dus",
           regel("eerst die macht uitrekenen. Uitkomst daarvan:", p, "."),
           regel("Daarna reken je van links naar rechts:", a, eerste_teken, p, " =", tussen, " en"),
           regel(kaal(tussen), tweede_teken, c, " =", uitkomst, "."),
           regel("Het goede antwoord is dus", uitkomst, "."));
}

} // namespace cijferwerf
