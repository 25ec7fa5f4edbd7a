// Sums that ask what numbers are worth: units under units, an estimated difference, pairs that make tens, a part of a
// decimal number.
#include "generators/gedeeld/breuk.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_som.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::B_onder_elkaar_11_01_click() {
    static constexpr std::string_view kop_regel = "A             B              C              D";
    static constexpr int kop_x = 400, kop_punten = 16, punten = 14;
    kies_variant(3);
    // One number of two digits, one of two, three or four.
    const int kortste = trek_van(10, 99);
    const int langste = variant == 1 ? trek_van(10, 99) : variant == 2 ? trek_van(100, 999) : trek_van(1000, 9999);
    const bool kortste_boven = kop();
    const int boven = kortste_boven ? kortste : langste, onder = kortste_boven ? langste : kortste;
    // How many digits the shorter number stands too far to the left.
    const auto verschoven = geschud(std::array{0, -1, 1, 2});

    bord(wit, donkerblauw, kop_punten);
    druk(kop_x, 150, kop_regel);
    plaatje.text_size = punten;
    const auto midden = [](int plaats) { // below its letter in the heading
        const std::size_t letter = kop_regel.find(static_cast<char>('A' + plaats - 1));
        return kop_x + text_width(kop_regel.substr(0, letter), kop_punten) +
               text_width(kop_regel.substr(letter, 1), kop_punten) / 2;
    };
    const int rechts = text_width("0", punten) * (variant + 1) / 2; // of a sum, from its middle
    for (int plaats = 1; plaats <= 4; ++plaats) {
        const int naar_links = rij(verschoven, plaats);
        teken_kolomsom(plaatje, midden(plaats) + rechts, 700,
                       {{regel(kaal(boven)), kortste_boven ? naar_links : 0},
                        {regel(kaal(onder)), kortste_boven ? 0 : naar_links}},
                       "+");
    }

    vraag("Je ziet hiernaast vier", "optellingen. In welke", "van deze optellingen staan", "de getallen goed onder",
          "elkaar?");

    const int juist = static_cast<int>(std::ranges::find(verschoven, 0) - verschoven.begin()) + 1;
    juist_op(juist);
    for (int plaats = 1; plaats <= 4; ++plaats) op_plaats(plaats, std::string(1, static_cast<char>('A' + plaats - 1)));
    tip_1("Kijk goed in welke optelling de eenheden", "netjes onder elkaar staan...");
    tip_2("De eenheden zijn de laatste cijfers van de getallen:",
          regel("hier de", boven % 10, " en de", onder % 10, "."));

    uitleg("Bij optellen van getallen moeten de eenheden", "van die getallen onder elkaar staan.",
           regel("De eenheden zijn hier de", boven % 10, " (het laatste cijfer van het"),
           regel("bovenste getal) en de", onder % 10, " (het laatste cijfer van het onderste)."),
           regel("Alleen bij ", juiste_antwoord(), " staan die recht onder elkaar."));
    opdracht(druk_midden_opdracht(midden(juist), 1550, donkerrood, 14, "goed"));
}

void oefeningen::B_schatten_11_01_click() {
    struct afronding {
        int eenheid, hoogste; // the first number is at most so many of them
        std::string_view naam;
    };
    static constexpr std::array<afronding, 3> afrondingen{
        {{100, 9, "honderdtallen"}, {1'000, 20, "duizendtallen"}, {10'000, 20, "tienduizendtallen"}}};
    kies_variant(3);
    const auto& [eenheid, hoogste, naam] = rij(afrondingen, variant);
    // Both numbers so near to a round one that the exact difference is nearest to the rounded one.
    const int eerste_rond = eenheid * trek_van(3, hoogste);
    const int tweede_rond = eenheid * trek_van(1, eerste_rond / eenheid - 2);
    const auto trek_bij = [&](int rond) {
        const int ernaast = trek_van(1, eenheid * 8 / 100);
        return kop() ? rond + ernaast : rond - ernaast;
    };
    const int eerste = trek_bij(eerste_rond);
    const int tweede = trek_bij(tweede_rond);
    const int juist = eerste_rond - tweede_rond;

    bord(donkerblauw, geel, 20);
    druk_midden(drawing::inner_width / 2, 550, kaal(duizend(eerste)), " - ", kaal(duizend(tweede)));

    vraag("Hiernaast zie je dat", "twee getallen van elkaar", "afgetrokken worden.", "Hoe groot is de uitkomst",
          "ongeveer?", "Uit het hoofd!");

    // Rounded the wrong way, added, or a zero too many or too few.
    drie_andere(juist, duizend,
                {{juist - eenheid},
                 {juist + eenheid},
                 {juist - 2 * eenheid},
                 {juist + 2 * eenheid},
                 {eerste_rond + tweede_rond},
                 {juist * 10},
                 {juist / 10}});
    tip_1("Kijk eerst hoe groot de getallen ONGEVEER zijn...");
    tip_2(regel("Rond beide getallen af op ", naam, "."), "Trek dan pas af, met die ronde getallen.");

    uitleg(regel("Het eerste getal is ongeveer gelijk aan ", duizend(eerste_rond), "."),
           regel("Het tweede getal is ongeveer gelijk aan ", duizend(tweede_rond), "."),
           regel("De uitkomst is dus ongeveer", duizend(eerste_rond), " -", duizend(tweede_rond), " =", duizend(juist),
                 "."));
    opdracht(druk_midden_opdracht(drawing::inner_width / 2, 1300, wit, 14, "ongeveer", duizend(eerste_rond), " -",
                                  duizend(tweede_rond), " =", duizend(juist)));
}

void oefeningen::L_optellen_11_01_click() {
    struct paren {
        std::array<int, 4> plaatsen; // where the first pair stands, and the second
        std::string_view eerste, tweede;
    };
    static constexpr std::array<paren, 3> verdelingen{
        {{{1, 2, 3, 4}, "het eerste en tweede getal makkelijk kunt optellen,", "), maar ook het derde en vierde getal"},
         {{1, 3, 2, 4}, "het eerste en derde getal makkelijk kunt optellen,", "), maar ook het tweede en vierde getal"},
         {{1, 4, 2, 3},
          "het eerste en vierde getal makkelijk kunt optellen,",
          "), maar ook het tweede en derde getal"}}};
    kies_variant(3);
    const paren& verdeling = rij(verdelingen, variant);
    std::array<int, 4> getallen{};
    // A pair that adds up to a ten above its first member; returns that sum.
    const auto trek_paar = [&](int plaats, int andere) {
        const int lid = trek(240) + 10;
        const int som = trek_van((lid / 10 + 1) * 10, 250, 10);
        rij(getallen, plaats) = lid;
        rij(getallen, andere) = som - lid;
        return som;
    };
    const auto [een, een_partner, twee, twee_partner] = verdeling.plaatsen;
    const int eerste_som = trek_paar(een, een_partner);
    const int tweede_som = trek_paar(twee, twee_partner);
    const int totaal = eerste_som + tweede_som;

    snel_som(15, kaal(getallen[0]), " +", getallen[1], " +", getallen[2], " +", getallen[3], " = ..");

    vraag("Geef snel antwoord.", leeg, "Kijk naar de som hiernaast...");

    bijna(totaal, 10);

    uitleg("Bij deze som moet je het een beetje handig", "aanpakken. Als je goed kijkt, zie je dat je",
           verdeling.eerste, regel("(samen", eerste_som, verdeling.tweede),
           regel("(samen", tweede_som, "). Uitkomst:", eerste_som, " +", tweede_som, " =", totaal));
}

void oefeningen::L_schoolbord_11_06_click() {
    static constexpr std::array<std::array<breuk, 5>, 4> delen{{{{{1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}}},
                                                                {{{2, 3}, {3, 4}, {2, 5}, {3, 5}, {4, 5}}},
                                                                {{{5, 6}, {2, 7}, {3, 7}, {5, 7}, {6, 7}}},
                                                                {{{3, 8}, {5, 8}, {7, 8}, {3, 10}, {7, 10}}}}};
    static constexpr int boven = 800, som_rechts = 3850, punten = 20;
    kies_variant(4);
    const breuk deel = kies(rij(delen, variant));
    // In hundredths; the number itself is never a whole one.
    const int een_deel = trek_tot([this] { return kop() ? trek_van(2, 60) : trek_van(61, 300); },
                                  [&](int drawn) { return drawn * deel.noemer % 100 != 0; });
    const int getal = een_deel * deel.noemer;
    const int juist = een_deel * deel.teller;
    const std::string antwoord{kaal(komma_kort(juist, 2))};
    // The longer the answer, the farther to the left it starts.
    const int antwoord_x = 4300 - 100 * std::clamp(static_cast<int>(antwoord.size()) - 2, 0, 3);

    bord(zwart, wit, punten);
    const std::string som = regel("deel  van", komma_kort(getal, 2), " =");
    const int som_x = som_rechts - text_width(som, punten);
    druk(som_x, boven, som);
    teken_breuk(plaatje, som_x - 250 - text_width(kaal(deel.noemer), punten), boven + halve_regel(punten), 0,
                deel.teller, deel.noemer);

    vraag("Op het schoolbord staat een som.", leeg, "Kies het goede antwoord.");

    // Not multiplied, the other part, one part too many or too few, multiplied where one divides, a comma in the wrong
    // place; but not the number that is given.
    std::vector<keuze<int>> vergissingen{{10 * een_deel},
                                         {10 * (getal - juist)},
                                         {10 * (juist + een_deel)},
                                         {10 * (juist - een_deel)},
                                         {10 * getal * deel.noemer},
                                         {100 * juist},
                                         {juist}};
    std::erase_if(vergissingen, [getal](const keuze<int>& k) { return k.waarde == 10 * getal; });
    drie_andere(
        10 * juist, [](int duizendsten) { return komma_kort(duizendsten, 3); }, vergissingen);
    tip_1("Maak eerst honderdsten van dat kommagetal en", "deel vervolgens door de noemer van de breuk.");
    tip_2(regel("Reken verder met", duizend(getal), " honderdsten: deel door", deel.noemer),
          deel.teller == 1 ? "en maak van de uitkomst weer een kommagetal."
                           : regel("en vermenigvuldig dan met", deel.teller, "."));

    uitleg("Het gegeven getal kun je lezen als", regel(kaal(duizend(getal)), " honderdste. Deel dit aantal eerst"),
           regel("door", deel.noemer, ":", duizend(getal), " :", deel.noemer, " =", een_deel, "."),
           deel.teller == 1 ? regel("Dat is", een_deel, " honderdste, dus het antwoord is ", antwoord, ".")
                            : regel("Vermenigvuldig daarna met", deel.teller, ":", een_deel, " x", deel.teller, " =",
                                    duizend(juist), "."),
           deel.teller == 1 ? leeg
                            : regel("Dat is", duizend(juist), " honderdste, dus het antwoord is ", antwoord, "."));
    opdracht(druk_opdracht(antwoord_x, boven, rood, punten, antwoord));
}

} // namespace cijferwerf
