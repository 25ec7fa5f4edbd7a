// News from the paper: the inhabitants of a town in two years, subtracted column by column with one ten borrowed, or a
// hundred too; and what a sponsored run brings in. The wrong answers borrow nothing, or leave a number out.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// A column of a subtraction: what it has above, and what is taken from it.
struct kolom {
    int boven, onder;
};

// Two numbers with equal thousands, the larger one above. The units always borrow.
struct aftrekking {
    int duizendtallen;
    kolom honderdtal, tiental, eenheid;

    int grootste() const { return 1000 * duizendtallen + 100 * honderdtal.boven + 10 * tiental.boven + eenheid.boven; }
    int kleinste() const { return 1000 * duizendtallen + 100 * honderdtal.onder + 10 * tiental.onder + eenheid.onder; }
    int verschil() const { return grootste() - kleinste(); }
    // What comes of taking the smaller digit of each column from the larger one.
    int zonder_lenen() const {
        return 100 * (honderdtal.boven - honderdtal.onder) + 10 * std::abs(tiental.boven - tiental.onder) +
               eenheid.onder - eenheid.boven;
    }

    // The columns after the borrowing.
    bool leent_honderdtal() const { return tiental.boven <= tiental.onder; }
    kolom eenheden() const { return {eenheid.boven + 10, eenheid.onder}; }
    kolom tientallen() const { return {tiental.boven - 1 + (leent_honderdtal() ? 10 : 0), tiental.onder}; }
    kolom honderdtallen() const { return {honderdtal.boven - (leent_honderdtal() ? 1 : 0), honderdtal.onder}; }
};

aftrekking trek_aftrekking(random_draws& toeval, int minste_duizendtallen, bool leent_honderdtal) {
    const auto trek_van = [&toeval](int van, int tot) { return van + toeval.below(tot - van + 1); };
    aftrekking a{};
    a.duizendtallen = minste_duizendtallen + toeval.below(40);
    const int honderdtal = trek_van(2, 9);
    a.honderdtal = {honderdtal, trek_van(0, honderdtal - (leent_honderdtal ? 2 : 1))};
    const int tiental = trek_van(1, 9);
    a.tiental = {tiental, leent_honderdtal ? trek_van(tiental, 9) : trek_van(0, tiental - 1)};
    // Units that differ by five would come out right without borrowing.
    do {
        a.eenheid.boven = trek_van(0, 8);
        a.eenheid.onder = trek_van(a.eenheid.boven + 1, 9);
    } while (a.eenheid.onder - a.eenheid.boven == 5);
    return a;
}

void teken_krant(drawing& on, const aftrekking& a, bool vertrokken) {
    const auto [vorig, nu] = vertrokken ? std::pair{a.grootste(), a.kleinste()} : std::pair{a.kleinste(), a.grootste()};
    teken_blad(on, {90, 150, 2660, 1800}, bladsoort::krant, "STADSNIEUWS",
               {"Vorig jaar woonden er in deze", regel("stad", duizend(vorig), " mensen."),
                regel("Dit jaar zijn er", duizend(nu), " inwoners.")});
}

plakregel stap(std::string_view begin, kolom k, std::string_view einde = "") {
    return plak_even({"            ", begin, k.boven, " -", k.onder, " =", k.boven - k.onder, einde});
}

// The written subtraction. Its digits are 340 apart, so that a stroke through one of them leaves its neighbours alone.
constexpr int rechts = 5070, kolombreedte = 340, punten = 17;

plakregel in_kolommen(int y, int getal, std::string_view ervoor = "", std::string_view erachter = "") {
    const plakregel cijfers = plak_even({ervoor, cijfers_wijd(duizend(getal))});
    return druk_opdracht(rechts - text_width(cijfers, punten), y, wit, punten, cijfers, erachter);
}
// The digit above in a column, 0 for the units, is struck and the number put over it.
plakregel doorgestreept(int kolomnummer, int getal) {
    const int midden = rechts - kolombreedte / 4 - kolombreedte * kolomnummer;
    return doorstreep_opdracht(midden - 150, 650, midden - text_width(kaal(tekst(getal)), 8.25) / 2, 290, getal);
}
std::vector<plakregel> uitgewerkt(const aftrekking& a) {
    return {in_kolommen(460, a.grootste()),
            in_kolommen(860, a.kleinste(), "", "  -"),
            vak_opdracht(3450, 1300, 1700, 20, wit),
            in_kolommen(1360, a.verschil(), "verschil:  "),
            doorgestreept(0, a.eenheden().boven),
            doorgestreept(1, a.tientallen().boven),
            a.leent_honderdtal() ? doorgestreept(2, a.honderdtallen().boven) : ""};
}

} // namespace

void oefeningen::B_inwoners_1_12_01_click() {
    kies_variant(2);
    const aftrekking a = trek_aftrekking(toeval, variant == 1 ? 15 : 60, false);
    const bool vertrokken = kop();
    const int juist = a.verschil();

    bord(zwart, wit, 10);
    teken_krant(plaatje, a, vertrokken);

    vraag("In de krant staat een artikel", "over het inwoneraantal van een", "stad.", leeg,
          "Hoeveel mensen zijn er vorig", vertrokken ? "jaar vertrokken?" : "jaar bijgekomen?");

    drie_andere(juist, tekst, {{a.zonder_lenen()}, {juist + 10}, {juist + 100}, {juist - 10}, {juist - 100}});
    tip_1("Zet het grootste getal boven het kleinste getal", "en trek ze van elkaar af.");
    tip_2("Als je het kleinste getal van het grootste aftrekt,", "moet je bij de eenheden lenen van de tientallen.");

    uitleg("Trek het kleinste getal van het grootste getal af.", "Bij de eenheden moet je een tiental lenen.",
           stap("Bij de eenheden doe je", a.eenheden(), ","), stap("Bij de tientallen doe je", a.tientallen(), ","),
           regel(stap("Bij de honderdtallen doe je", a.honderdtallen()), ". Het verschil is", juist, "."));
    for (const plakregel& line : uitgewerkt(a)) opdracht(line);
}

void oefeningen::B_inwoners_2_12_01_click() {
    kies_variant(2);
    const aftrekking a = trek_aftrekking(toeval, variant == 1 ? 15 : 60, true);
    const bool vertrokken = kop();
    const int juist = a.verschil();

    bord(zwart, wit, 10);
    teken_krant(plaatje, a, vertrokken);

    vraag("In de krant staat een artikel", "over het inwoneraantal van een", "stad.", leeg,
          "Hoeveel mensen zijn er vorig", vertrokken ? "jaar vertrokken?" : "jaar bijgekomen?");

    drie_andere(juist, tekst, {{a.zonder_lenen()}, {juist + 10}, {juist + 100}, {juist - 10}, {juist - 100}});
    tip_1("Zet het grootste getal boven het kleinste getal", "en trek ze van elkaar af.");
    tip_2("Als je het kleinste getal van het grootste aftrekt,", "moet je bij de eenheden lenen van de tientallen.",
          "Bij de tientallen moet je dan ook nog lenen.");

    uitleg("Trek het kleinste getal van het grootste getal af.",
           "Bij de eenheden moet je van de tientallen lenen en bij de",
           "tientallen moet je van de honderdtallen lenen.", stap("Bij de eenheden doe je", a.eenheden(), ","),
           stap("Bij de tientallen doe je", a.tientallen(), ","),
           regel(stap("Bij de honderdtallen doe je", a.honderdtallen()), ". Het verschil is", juist, "."));
    for (const plakregel& line : uitgewerkt(a)) opdracht(line);
}

void oefeningen::Z_sponsorloop_12_07() {
    static constexpr std::array<std::string_view, 20> plaatsen{
        "Amsterdam",  "Wildrecht", "Purmerend", "Appingedam", "Abcoude",   "Leeuwarden", "Groningen",
        "Amersfoort", "Vinkeveen", "Schiedam",  "Aalsmeer",   "Harlingen", "Venray",     "Assen",
        "Emmen",      "Nijkerk",   "Zwolle",    "Utrecht",    "Leiden",    "Woerden"};
    static constexpr std::array<std::string_view, 6> doelen{
        "Het Rode Kruis", "Amnesty International", "Stichting Kind Aan Tafel", "de Kindertelefoon",
        "Greenpeace",     "Stichting Kind In Nood"};
    // Distances of one and a half to six and a half kilometres, and how many pupils of a class come to a whole number
    // when they are divided by it.
    struct loop {
        int hele_km, leerlingen;
    };
    static constexpr std::array<loop, 15> lopen{{{1, 18},
                                                 {1, 21},
                                                 {1, 24},
                                                 {1, 27},
                                                 {1, 30},
                                                 {2, 15},
                                                 {2, 20},
                                                 {2, 25},
                                                 {2, 30},
                                                 {3, 21},
                                                 {3, 28},
                                                 {4, 18},
                                                 {4, 27},
                                                 {5, 22},
                                                 {6, 26}}};
    kies_variant(6);
    const std::string_view plaats = kies(plaatsen), doel = rij(doelen, variant), dag = kies(weekdagen);
    const int klassen = (variant - 1) % 3 + 2;
    const auto [hele_km, leerlingen] = kies(lopen);
    const int cent_per_km = trek_van(20, 150, 10);
    const int samen = klassen * leerlingen;
    const int halve_km = 2 * hele_km + 1;
    const auto opbrengst = [&](int lopers, int halve) { return lopers * halve * cent_per_km / 2; };
    const int juist = opbrengst(samen, halve_km);
    const std::string aantal = telwoord(klassen);

    bord(lichtgrijs, zwart, 10);
    teken_blad(plaatje, {640, 200, 4100, 1650}, bladsoort::krant, regel("Krant van ", dag),
               {regel("Een school in ", plaats, " organiseerde"),
                regel("voor de hoogste ", aantal, " klassen een sponsorloop"),
                regel("voor een goed doel (", doel, ").")});

    vraag(regel("In deze ", aantal, " klassen zitten elk"), regel(kaal(leerlingen), " leerlingen."),
          regel("Zij liepen gemiddeld", hele_km, ",5 km en elke"),
          regel("gelopen kilometer leverde", euro(cent_per_km), " op."), "Hoeveel geld haalde de school", "op?");

    const keuze<int> een_klas =
        variant <= 3 ? keuze<int>{opbrengst(leerlingen, halve_km), {"Ben je soms van één klas uitgegaan?"}}
                     : keuze<int>{opbrengst(leerlingen, halve_km),
                                  {"Als er nu één klas geweest was,", "was je antwoord goed geweest...."}};
    drie_andere(juist, euro,
                {een_klas,
                 {2 * samen / halve_km * cent_per_km,
                  {"Je hebt gedeeld in plaats van vermmenigvuldigd bij het", "berekenen van het totale aantal km."}},
                 {opbrengst(samen, 2 * hele_km), {"Je bent de halve kilometer vergeten."}},
                 {opbrengst(samen, 2 * hele_km + 2), {"Je hebt de halve kilometer naar boven afgerond."}},
                 {opbrengst(samen + leerlingen, halve_km), {"Je hebt een klas te veel gerekend."}}});

    uitleg(regel("Er deden", klassen, " x", leerlingen, " =", samen, " leerlingen mee."),
           regel("Zij liepen samen", samen, " x", hele_km, ",5 km =", komma_kort(samen * halve_km * 5, 1), " km."),
           regel("Elke kilometer leverde", euro(cent_per_km), " op."),
           regel("De opbrengst was dus", komma_kort(samen * halve_km * 5, 1), " x", euro(cent_per_km), " =",
                 euro(juist), "."));
}

} // namespace cijferwerf
