// Electricity: the energy of a lamp, the monthly cost of an appliance, the yearly saving by another lamp.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

namespace {

// Watts, or watt-hours, in thousands: " 0,06".
number_text kilo(long long aantal) { return komma_kort({aantal, 3}); }

// A burning bulb in its fitting, with its power on the glass.
void teken_gloeilamp(drawing& on, point midden, int straal, int watt) {
    const zelfde_stand bewaard(on, 3);
    for (int graden = -30; graden <= 210; graden += 30) {
        const point van = op_cirkel(midden, straal * 1.15, graden), naar = op_cirkel(midden, straal * 1.4, graden);
        on.line(van.x, van.y, naar.x, naar.y, geel);
    }
    const int half = straal * 2 / 5, hals = midden.y + straal * 4 / 5, fitting = straal * 3 / 5;
    on.filled_box(midden.x - half, hals, 2 * half, fitting, lichtgrijs);
    for (int y = hals + fitting / 2; y <= hals + fitting; y += fitting / 4)
        on.line(midden.x - half, y, midden.x + half, y, zwart);
    on.filled_circle(midden.x, midden.y, straal, geel);
    on.fore_colour = zwart;
    druk_om(on, midden, regel(kaal(watt), " W"));
}

// A lamp of bent tubes, with its power on the fitting.
void teken_spaarlamp(drawing& on, point midden, int straal, int watt) {
    const zelfde_stand bewaard(on);
    const int boven = midden.y - straal, half = straal * 3 / 5, buis = straal / 3;
    for (const int x : {midden.x - half, midden.x - buis / 2, midden.x + half - buis}) {
        on.filled_circle(x + buis / 2, boven + buis / 2, buis / 2, wit);
        on.filled_box(x, boven + buis / 2, buis, straal * 3 / 2, wit);
    }
    on.filled_box(midden.x - straal * 3 / 4, midden.y + straal / 2, straal * 3 / 2, straal * 9 / 10, lichtgrijs);
    on.fore_colour = zwart;
    druk_om(on, {midden.x, midden.y + straal * 19 / 20}, regel(kaal(watt), " W"));
}

} // namespace

void oefeningen::M_elektriciteit_1_00_19_click() {
    static constexpr std::array lampen{25, 40, 60, 75, 100};
    kies_variant(5);
    const int watt = rij(lampen, variant);
    const int minuten = trek(8) * 6 + 12;
    const int product = watt * minuten;
    const kommagetal uren{minuten / 6, 1};
    const auto kWh = [](kommagetal aantal) { return regel(komma_kort(aantal), " kWh"); };
    const kommagetal juist = kommagetal{watt, 3} * uren;

    bord(donkerblauw, geel, 18);
    teken_gloeilamp(plaatje, {drawing::inner_width / 2, 930}, 560, watt);

    vraag(regel("Een lamp van", watt, " Watt"), regel("brandt gedurende", minuten, " minuten."), leeg,
          "Hoeveel energie verbruikt deze lamp?");

    goed(kWh(juist));
    fout(kWh({product, 5}), "Je hebt zeker 100 minuten in een uur gerekend...", "In een uur zitten 60 minuten.");
    fout(kWh(juist * 10), "Heb je verkeerd omgerekend naar kW?", "1 kW = 1.000 W, niet 100 W.");
    fout(kWh({product, 4}), "Je hebt twee dingen verkeerd gedaan:", "je hebt voor 1 kW 100 Watt genomen en voor 1 uur",
         "100 minuten in plaats van 60...");

    uitleg(regel("Het is een lamp van", watt, " Watt, dat is gelijk"),
           regel("aan", kilo(watt), " kW (want 1 Watt is 0,001 kW). De lamp brandt"),
           regel(kaal(minuten), " minuten, dat is", minuten, "/60 =", komma_kort(uren),
                 " uur (want 1 uur is 60 minuten)."),
           "Voor de energie moet je het aantal kW x aantal uren doen.",
           regel("Uitkomst:", kilo(watt), " x", komma_kort(uren), " =", kWh(juist), "."));
}

void oefeningen::M_elektriciteit_2_00_19_click() {
    struct reeks {
        int eerste, laatste, stap;
    };
    struct apparaat {
        std::string_view naam;
        reeks watt, uren; // a month; their product is a multiple of 500, an even price then makes whole cents
    };
    static constexpr std::array<apparaat, 5> apparaten{{{"schemerlamp", {20, 60, 20}, {50, 150, 25}},
                                                        {"CD-speler", {20, 40, 20}, {50, 150, 25}},
                                                        {"TV-toestel", {80, 160, 20}, {50, 150, 25}},
                                                        {"koffiezetapparaat", {700, 1200, 100}, {10, 30, 5}},
                                                        {"stofzuiger", {1000, 2000, 500}, {3, 12, 1}}}};
    kies_variant(5);
    const apparaat& a = rij(apparaten, variant);
    const int watt = trek_van(a.watt.eerste, a.watt.laatste, a.watt.stap);
    const int uren = trek_van(a.uren.eerste, a.uren.laatste, a.uren.stap);
    const int prijs = trek_van(18, 40, 2);
    const int wattuur = watt * uren;
    const long long kosten = wattuur * prijs / 1000;

    plaatje.picture("elektriciteit_2.bmp");
    bord(wit, donkerblauw, 11);
    druk_midden(4250, 750, a.naam);
    druk_midden(4250, 1060, kaal(duizend(watt)), " W");

    vraag(regel("Een ", a.naam, " van", duizend(watt), " Watt"), regel("wordt per maand gedurende", uren, " uur"),
          "gebruikt.", "Hoeveel kost de elektrische", "energie in die maand, als 1 kWh",
          regel(kaal(prijs), " eurocent kost?"));

    // A kilowatt of 100 or of 10.000 watts, the power or the price left out, one kWh too few, and no hours with a
    // kilowatt of 100 watts.
    drie_andere(kosten, euro,
                {{kosten * 10},
                 {deel_afgerond(kosten, 10)},
                 {static_cast<long long>(uren) * prijs},
                 {wattuur / 10},
                 {kosten - prijs},
                 {deel_afgerond(watt * prijs, 100)}});
    tip_1("Eerste stap: reken het aantal kW uit.");
    tip_2("Eerste stap: reken het aantal kW uit.", "Tweede stap: reken het aantal kWh energie uit.",
          "Derde stap:  reken de totale kosten uit.");

    uitleg(regel("1 Watt is 0,001 kW, dus", duizend(watt), " Watt is", kilo(watt), " kW."),
           "Voor de energie moet je het aantal kW x aantal uren doen:",
           regel(kaal(kilo(watt)), " x", uren, " =", kilo(wattuur), " kWh."),
           regel("Eén kWh kost", prijs, " eurocent, dus de kosten zijn"),
           regel(kaal(kilo(wattuur)), " x", prijs, " =", duizend(kosten), " eurocent."),
           regel("In die maand kost de energie dus", euro(kosten), "."));
}

void oefeningen::Z_elektriciteit_3_00_19_click() {
    struct vervanging {
        int lamp, spaarlamp; // watts
    };
    static constexpr std::array<vervanging, 5> lampen{{{25, 5}, {40, 10}, {60, 10}, {75, 15}, {100, 20}}};
    constexpr int dagen = 365;
    kies_variant(5);
    const auto [lamp, spaarlamp] = rij(lampen, variant);
    const int minder = lamp - spaarlamp;
    const int uren = trek_van(2, 8);
    // With such a price the saving is whole cents.
    const int stap = 200 / std::gcd(200, minder * uren);
    const int prijs = trek_van((20 + stap - 1) / stap, 40 / stap) * stap;
    const auto kosten = [&](int watt, int per_dag) {
        return deel_afgerond(static_cast<long long>(watt) * per_dag * dagen * prijs, 1000);
    };
    const long long juist = kosten(minder, uren);

    bord(donkerblauw, wit, 14);
    teken_gloeilamp(plaatje, {1300, 830}, 470, lamp);
    teken_pijl(plaatje, {2250, 900}, {3000, 900}, wit);
    teken_spaarlamp(plaatje, {3950, 830}, 520, spaarlamp);
    druk_midden(1300, 1650, "lamp");
    druk_midden(3950, 1650, "spaarlamp");

    vraag(regel("Een lamp van", lamp, " Watt die per dag", uren, " uur"), "brandt, wordt vervangen door een",
          regel("spaarlamp van", spaarlamp, " Watt die evenveel licht"), "geeft.",
          "Hoeveel bespaart men per jaar (365 dagen)", regel("bij een prijs van", prijs, " eurocent per kWh?"));

    // What one of the lamps costs, or both; a kilowatt of 100 or of 10.000 watts; burning for one hour or all day.
    drie_andere(juist, euro,
                {{kosten(lamp, uren)},
                 {kosten(spaarlamp, uren)},
                 {kosten(lamp + spaarlamp, uren)},
                 {juist * 10},
                 {deel_afgerond(juist, 10)},
                 {kosten(minder, 1)},
                 {kosten(minder, 24)}});
    tip_1("Eerste stap: bereken hoeveel kW je bespaart.");
    tip_2("Eerste stap: bereken hoeveel kW je bespaart.", "Tweede stap: bereken het aantal kWh bespaarde energie en",
          "bereken de kosten van de bespaarde energie.");

    const int wattuur = minder * uren * dagen;
    uitleg(
        regel("De besparing is", lamp, " -", spaarlamp, " =", minder, " Watt, dat is", kilo(minder), " kW."),
        regel("In een jaar zijn er", uren, " x 365 =", duizend(uren * dagen), " branduren."),
        regel("De bespaarde energie is", kilo(minder), " x", duizend(uren * dagen), " =", kilo(wattuur), " kWh."),
        regel("Eén kWh kost", prijs, " eurocent, dus", kilo(wattuur), " x", prijs, " =", duizend(juist), " eurocent."),
        regel("Per jaar bespaart men dus", euro(juist), "."));
}

} // namespace cijferwerf
