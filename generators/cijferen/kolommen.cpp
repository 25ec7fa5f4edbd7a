// Numbers under one another: whether the commas of an addition stand where they should, and a multiplication by a
// number of two digits.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_som.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// A number of an addition, and how many digits it stands too far to the left (below 0: to the right).
struct geplaatst {
    std::string getal;
    int decimalen;
    int verschoven = 0;
};
using optelling = std::array<geplaatst, 3>;

// Numbers of at most two decimals with their commas under one another, but for those that are shifted.
std::vector<somregel> in_kolommen(const optelling& getallen) {
    std::vector<somregel> regels;
    for (const auto& [getal, decimalen, verschoven] : getallen) // a blank is as wide as the comma behind a whole number
        regels.push_back({decimalen == 0 ? getal + " " : getal, 2 - decimalen + verschoven});
    return regels;
}
std::vector<somregel> rechts_gelijk(const optelling& getallen) {
    std::vector<somregel> regels;
    for (const geplaatst& g : getallen) regels.push_back({g.getal});
    return regels;
}
optelling met_fout(optelling getallen, std::size_t welk, int plaatsen) {
    getallen[welk].verschoven = getallen[welk].decimalen == 0 ? -plaatsen : plaatsen;
    return getallen;
}

} // namespace

void oefeningen::L_onder_elkaar_12_06_click() {
    static constexpr std::array<std::string_view, 4> namen{"OPTELLING A", "OPTELLING B", "OPTELLING C", "OPTELLING D"};
    constexpr std::array<int, 4> kolommen{735, 1975, 3315, 4675}; // the middles of the letters of the caption
    kies_variant(2);
    const int grootste = variant == 1 ? 9 : 99;
    const int geheel = variant == 1 ? trek_van(12, 98) : trek_van(102, 989);
    const int tienden = trek_van(1, grootste) * 10 + trek_van(1, 9);
    const int honderdsten = trek_van(1, grootste) * 100 + trek(10) * 10 + trek_van(1, 9);
    const optelling getallen = geschud(optelling{{{regel(kaal(tekst(geheel))), 0},
                                                  {regel(kaal(komma(tienden, 1))), 1},
                                                  {regel(kaal(komma(honderdsten, 2))), 2}}});
    const auto scheef = geschud(std::array<std::size_t, 3>{0, 1, 2});

    struct opgave {
        std::vector<somregel> regels;
        std::string opmerking;
    };
    const auto met_scheef = [&](std::size_t welk, int plaatsen) {
        return opgave{in_kolommen(met_fout(getallen, welk, plaatsen)),
                      regel("Kijk nog eens goed naar ", getallen[welk].getal, ".")};
    };
    const std::array<opgave, 4> opgaven{{{in_kolommen(getallen), ""},
                                         {rechts_gelijk(getallen), "Hier eindigen de getallen op dezelfde plaats."},
                                         met_scheef(scheef[0], 1),
                                         met_scheef(scheef[1], 2)}};
    const auto plaatsing = geschud(std::array<std::size_t, 4>{0, 1, 2, 3});
    const auto juiste = static_cast<std::size_t>(std::find(plaatsing.begin(), plaatsing.end(), 0) - plaatsing.begin());

    bord(donkerblauw, geel, 20);
    druk(600, 90, "A          B           C           D");
    plaatje.fore_colour = wit;
    plaatje.text_size = 13;
    juist_op(static_cast<int>(juiste) + 1);
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& [regels, opmerking] = opgaven[plaatsing[i]];
        teken_kolomsom(plaatje, kolommen[i] + 300, 650, regels, "+");
        op_plaats(static_cast<int>(i) + 1, namen[i], opmerking, "Staan alle komma's onder elkaar?");
    }

    vraag("In welke van deze optellingen", "zijn de getallen goed onder", "elkaar gezet?");

    uitleg("Bij optellingen waar getallen in staan met één of", "meer cijfers achter de komma, moet je er altijd",
           "voor zorgen dat de komma's onder elkaar staan.",
           regel("Achter", geheel, " staat geen komma, maar die kun je erachter denken."),
           regel("Alles staat dus goed in ", namen[juiste], "."));
    opdracht(kader_opdracht(kolommen[juiste] - 600, 580, 1200, 1200, geel));
}

void oefeningen::M_maal_12_02_click() {
    struct cijfers {
        int boven, onder;
    };
    kies_variant(2);
    const auto [eenheid, onder_eenheid] = trek_tot(
        [this] {
            return cijfers{trek_van(2, 9), trek_van(2, 9)};
        },
        [](cijfers c) { return c.boven * c.onder >= 10; });
    // So that the digits of the second line go up to the thousands.
    const int onder_tiental = variant == 1 ? trek_van(1, 9) : trek_van(1, 4);
    const int a = 10 * (variant == 1 ? trek_van(1, 9) : trek_van(10, 99 / onder_tiental - 1)) + eenheid;
    const int b = 10 * onder_tiental + onder_eenheid;
    const int eerste = a * onder_eenheid, tweede = a * onder_tiental, juist = a * b;
    const int onthouden = eenheid * onder_eenheid / 10, tweede_onthouden = eenheid * onder_tiental / 10;

    // Digits are 240 apart, those of the units at 2300.
    constexpr int rechts = 2420, achter = 2620;
    bord(donkerblauw, geel, 12);
    druk_rechts(rechts, 190, cijfers_wijd(tekst(a)));
    druk_rechts(rechts, 490, cijfers_wijd(tekst(b)));
    druk(achter, 490, "x");
    plaatje.filled_box(1600, 830, 1320, 20, geel);

    vraag("Bereken de uitkomst.");

    // What is remembered forgotten on the first line or on the second, or added before the tens are multiplied; the
    // zero behind the first line instead of the second; an addition that is one off.
    drie_andere(juist, duizend,
                {{juist - 10 * onthouden},
                 {juist - 100 * tweede_onthouden},
                 {juist + 10 * onthouden * (onder_eenheid - 1)},
                 {10 * eerste + tweede},
                 {juist - 100},
                 {juist + 10},
                 {juist + 100}});
    tip_1("Je moet vermenigvuldigen.");
    tip_2("Als je gaat vermenigvuldigen, begin dan", "met de eenheden.");

    uitleg(regel("Begin met de eenheden, dus", onder_eenheid, " x", eenheid, " =  ", kaal(eenheid * onder_eenheid),
                 " en  ", kaal(onthouden), " onthouden."),
           "Hierboven zie je hoe de hele vermenigvuldiging", "uitgevoerd moet worden.",
           regel("De uitkomst is dus", duizend(juist), "."));
    const auto rij = [](int y, int begin, int getal) {
        return druk_opdracht(begin, y, geel, 12, cijfers_wijd(tekst(getal)));
    };
    const bool vijf_cijfers = juist >= 10'000;
    opdrachten(rij(900,
                   eerste < 100    ? 2060
                   : eerste < 1000 ? 1820
                                   : 1600,
                   eerste),
               rij(1200, tweede < 100 ? 1820 : 1580, 10 * tweede), druk_opdracht(achter, 1200, geel, 12, "+"),
               vijf_cijfers ? vak_opdracht(1300, 1540, 1620, 20, geel) : vak_opdracht(1600, 1540, 1320, 20, geel),
               rij(1600,
                   juist < 1000   ? 1800
                   : vijf_cijfers ? 1360
                                  : 1580,
                   juist),
               druk_opdracht(3100, 900, wit, 12, "(", kaal(a), " x", onder_eenheid, ")"),
               druk_opdracht(3100, 1200, wit, 12, "(", kaal(a), " x", 10 * onder_tiental, ")"));
}

} // namespace cijferwerf
