// Which fraction is larger: among tenths on a number line, among others, between decimals.
#include "generators/breuken/breuken.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_lijn.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <cmath>

namespace cijferwerf {

void oefeningen::M_getallenlijn_03_03_click() {
    static constexpr std::array pijlen{geel, rood, wit, zwart};
    static constexpr int begin = 290, tiende = 480; // where 0 stands, and from tenth to tenth
    static constexpr int lijn = 1230;
    static constexpr int tussenruimte = 430; // of arrows, for the words under them
    static constexpr std::array<int, 5> noemers[]{{3, 4, 6, 8, 20}, {7, 9, 12, 14, 15}};
    kies_variant(2);
    // Above 1/10; in their simplest form none of these is a tenth itself.
    const auto trek_gegeven = [&] {
        return trek_tot(
            [this] {
                const int noemer = kies(noemers[variant - 1]);
                return trek_breuk(toeval, noemer, noemer);
            },
            [](breuk drawn) {
                return drawn > breuk{1, 10};
            });
    };
    const auto plek = [](breuk b) { return begin + 10 * tiende * b.teller / b.noemer; };
    const auto tiende_onder = [](breuk b) { return b.teller * 10 / b.noemer; };
    const int juist = trek(4) + 1;
    // What the arrows point at: all such fractions, each between two tenths of its own.
    std::vector<breuk> aangewezen{trek_gegeven()};
    const breuk gegeven = aangewezen[0];
    while (aangewezen.size() < pijlen.size())
        aangewezen.push_back(trek_tot(trek_gegeven, [&](breuk drawn) {
            return std::ranges::all_of(aangewezen, [&](breuk b) {
                return tiende_onder(b) != tiende_onder(drawn) && std::abs(plek(b) - plek(drawn)) >= tussenruimte;
            });
        }));
    std::swap(aangewezen[0], rij(aangewezen, juist));
    const int nieuwe_noemer = std::lcm(gegeven.noemer, 10);
    const int onder = tiende_onder(gegeven);

    bord(lichtgrijs, zwart, 14);
    druk(1200, 170, "Gegeven breuk:");
    teken_breuk(plaatje, 3400, 331, 0, gegeven.teller, gegeven.noemer);
    const getallenlijn nul_tot_een(plaatje, begin, begin + 10 * tiende, lijn, 10);
    plaatje.text_size = 9;
    for (int i = 1; i < 10; ++i) teken_breuk(plaatje, nul_tot_een.x(i) - 120, 902, 0, i, 10);
    plaatje.text_size = 12;
    druk_midden(begin, 770, "0");
    druk_midden(begin + 10 * tiende, 770, "1");
    plaatje.text_size = 10;
    juist_op(juist);
    for (int i = 1; i <= 4; ++i) {
        const kleur tint = rij(pijlen, i);
        const int x = plek(rij(aangewezen, i));
        teken_pijl(plaatje, {x, 1720}, {x, lijn + 20}, tint);
        const int onder_pijl = tiende_onder(rij(aangewezen, i));
        vertel(plaatje, "De ", bijvoeglijk(tint), " pijl wijst tussen ", nul_tot_een.woord(onder_pijl), " en ",
               nul_tot_een.woord(onder_pijl + 1), ".");
        druk_midden(x, 1750, woord(tint));
        op_plaats(i, woord(tint));
    }

    vraag("Je ziet een getallenlijn van 0 tot 1.", "Langs deze getallenlijn zijn tienden",
          "gezet. Ook zie je een breuk gegeven.", "Welke van de vier pijlen wijst op", "de getallenlijn die breuk aan?",
          "Kies de kleur van de juiste pijl.");

    if (variant == 1) {
        tip_1("Ga eerst gelijknamig maken...");
        tip_2(regel("Ga eerst gelijknamig maken: neem als noemer", nieuwe_noemer, "."),
              "Schrijf ook de tienden met die noemer.");
    } else {
        tip_1("Maak de breuk eerst gelijknamig met de tienden...");
        tip_2(regel("Schrijf de breuk en de tienden met noemer", nieuwe_noemer, "."),
              "Kijk dan tussen welke twee tienden de breuk ligt.");
    }

    const int factor = nieuwe_noemer / 10;
    const auto grens = [&](int tienden) {
        return regel(streepbreuk(breuk{tienden, 10}.maal(factor)), " (", kaal(tienden), "/10)");
    };
    uitleg("Je moet hier die breuk met tienden vergelijken. Dan moet je",
           regel("eerst gelijknamig maken, bijv. je neemt als nieuwe noemer", nieuwe_noemer, "."),
           regel("De breuk is dan te schrijven als ", streepbreuk(gegeven.maal(nieuwe_noemer / gegeven.noemer)), "."),
           regel("Dat is méér dan ", grens(onder), " en minder dan ", grens(onder + 1), "."),
           regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::M_grootste_kleinste_03_03_click() {
    static constexpr std::array krijtjes{lichtgroen, wit, geel, rood};
    enum plaats : std::size_t { groene, witte, gele, rode };
    static constexpr std::array<breuk, 4> makkelijke{{{1, 3}, {2, 3}, {1, 4}, {3, 4}}};

    kies_variant(4);
    // The green or the white one lies on one side of a simple fraction that the other of these two equals; the yellow
    // and the red one lie on the far side.
    const bool paar_kleiner = variant % 2 == 1;
    const breuk maat = variant <= 2 ? breuk{1, 2} : kies(makkelijke);
    const bool groene_apart = kop();
    const auto op_kant = [&](bool kleiner, int most) {
        return trek_tot([&] { return trek_breuk(toeval, 3, most); },
                        [&](breuk drawn) { return kleiner ? drawn < maat : drawn > maat; });
    };
    std::array<breuk, 4> breuken{};
    breuken[groene_apart ? groene : witte] = op_kant(!paar_kleiner, 12);
    breuken[groene_apart ? witte : groene] = maat.maal(trek(4) + 2);
    const breuk rood_kort = op_kant(paar_kleiner, 9);
    breuken[rode] = rood_kort.maal(trek(2) + 2);
    breuken[gele] = trek_tot([&] { return op_kant(paar_kleiner, 12); },
                             [&](breuk drawn) { return drawn.noemer != rood_kort.noemer; });
    const bool grootste = kop();
    const bool uit_paar = grootste != paar_kleiner;
    const auto gevraagd = grootste ? std::ranges::max_element(breuken) : std::ranges::min_element(breuken);
    const auto juist = static_cast<std::size_t>(gevraagd - breuken.begin());
    const bool leraar = kop();

    bord(zwart, wit, 12);
    plaatje.line_width = 4;
    plaatje.box(60, 60, drawing::inner_width - 120, drawing::inner_height - 120, olijf);
    plaatje.line_width = 1;
    druk_midden(drawing::inner_width / 2, 150, "Welke breuk is ", grootste ? "GROTER" : "KLEINER", " dan de andere?");
    juist_op(static_cast<int>(juist) + 1);
    for (std::size_t i = 0; i < 4; ++i) {
        const int x = 900 + static_cast<int>(i) * 1190;
        plaatje.fore_colour = krijtjes[i];
        plaatje.text_size = 20;
        const int breedte = text_width(kaal(breuken[i].noemer), 20) + 60;
        teken_breuk(plaatje, x - breedte / 2, 1030, 0, breuken[i].teller, breuken[i].noemer);
        plaatje.text_size = 12;
        druk_midden(x, 1640, woord(krijtjes[i]));
        op_plaats(static_cast<int>(i) + 1, bijvoeglijk(krijtjes[i]));
    }

    vraag("Op het schoolbord heeft een", regel(leraar ? "leraar" : "lerares", " vier breuken geschreven."), leeg,
          regel("Welke is de ", grootste ? "grootste" : "kleinste", "?"), "Kies de juiste kleur.");

    tip_1("Probeer eerst te vereenvoudigen.");
    if (uit_paar)
        tip_2("Probeer eerst te vereenvoudigen en daarna", "de gele en rode breuk gelijknamig te maken.");
    else
        tip_2("Probeer eerst te vereenvoudigen en daarna",
              regel("elke breuk te vergelijken met ", streepbreuk(maat), "."));

    const std::string grens = streepbreuk(maat);
    const std::string apart =
        groene_apart ? regel(paar_kleiner ? "De groene breuk is groter dan " : "De groene breuk is kleiner dan ", grens,
                             ", terwijl de witte gelijk is")
                     : regel(paar_kleiner ? "De witte breuk is groter dan " : "De witte breuk is kleiner dan ", grens,
                             ", terwijl de groene gelijk is");
    const std::string paar =
        regel("aan ", grens,
              paar_kleiner ? ". De gele en rode zijn beide kleiner dan " : ". De gele en rode zijn beide groter dan ",
              grens, ".");
    const std::string slot =
        regel("De ", bijvoeglijk(krijtjes[juist]), " breuk is dus de ", grootste ? "grootste" : "kleinste", ".");
    if (uit_paar) {
        const int noemer = std::lcm(rood_kort.noemer, breuken[gele].noemer);
        const auto met_noemer = [noemer](breuk b) { return streepbreuk(b.maal(noemer / b.noemer)); };
        uitleg(apart, paar, regel("De rode breuk is te vereenvoudigen tot ", streepbreuk(rood_kort), "."),
               regel("Gelijknamig gemaakt is de gele breuk ", met_noemer(breuken[gele]), " en de rode ",
                     met_noemer(rood_kort), "."),
               slot);
    } else
        uitleg(apart, paar, slot);
}

void oefeningen::M_tussen_in_03_14_click() {
    static constexpr std::array<int, 8> noemers{3, 4, 6, 7, 8, 9, 11, 12};
    kies_variant(2);
    // Between tenths, or between hundredths.
    const int decimalen = variant;
    const int schaal = variant == 1 ? 10 : 100;
    // How many steps the others lie away, and of the three none, one, two or all below it.
    auto afstanden = geschud(variant == 1 ? std::array{1, 2, 3} : std::array{1, 2, 10});
    for (int lager = trek(4); lager > 0; --lager) rij(afstanden, lager) *= -1;
    const int laagste = std::min(0, std::ranges::min(afstanden));
    const int hoogste = std::max(0, std::ranges::max(afstanden));
    // It lies inside a step, and all steps end before 1.
    const breuk b = trek_tot(
        [&] {
            const int noemer = kies(noemers);
            return breuk{trek(noemer - 1) + 1, noemer};
        },
        [&](breuk drawn) {
            const int stap = drawn.teller * schaal / drawn.noemer;
            return !drawn.vereenvoudigbaar() && schaal % drawn.noemer != 0 && stap + laagste >= 0 &&
                   stap + hoogste <= schaal - 2;
        });
    const int stap = b.teller * schaal / b.noemer;
    const auto tussen = [&](int afstand) {
        return regel(kaal(komma(stap + afstand, decimalen)), " en", komma(stap + afstand + 1, decimalen));
    };

    bord(lichtgrijs, zwart, 24);
    const int breedte = text_width(kaal(b.noemer), plaatje.text_size) + 60;
    teken_breuk(plaatje, 1050 - breedte / 2, 1065, 0, b.teller, b.noemer);
    plaatje.text_size = 14;
    kleurkeuze({2000, 105}, 490, {geel, blauw, rood, groen},
               {{tussen(0)}, {tussen(afstanden[0])}, {tussen(afstanden[1])}, {tussen(afstanden[2])}});

    vraag("Kijk hiernaast...", leeg, "Tussen welke twee getallen", "ligt de breuk?", leeg, "Kies de juiste kleur.");

    if (variant == 1) {
        tip_1("Eerste stap: zet de gegeven breuk in een kommagetal om.");
        tip_2("Tweede stap: vergelijk dat kommagetal met de gegeven", "getallen...");
    } else {
        tip_1("Maak eerst een kommagetal van de gegeven breuk:", "deel de teller door de noemer.");
        tip_2("Kijk daarna tussen welke twee getallen dat", "kommagetal ligt. Let op de tweede decimaal!");
    }

    const bool deelbaar = 1000 % b.noemer == 0;
    const number_text kommagetal =
        deelbaar ? komma_kort(b.teller * 1000 / b.noemer, 3) : komma(b.teller * 1000 / b.noemer, 3);
    uitleg("Je kunt het beste die breuk in een kommagetal",
           regel("omzetten:", b.teller, " delen door", b.noemer, " geeft", kommagetal, deelbaar ? "." : "..."),
           "Als je alle mogelijkheden bekijkt zie je dat dat getal", regel("alleen tussen ", tussen(0), " ligt."),
           regel("De juiste kleur is dus ", juiste_antwoord(), "."));
    opdrachten(druk_opdracht(550, 1690, zwart, 14, "=", kommagetal, deelbaar ? "" : "..."));
}

} // namespace cijferwerf
