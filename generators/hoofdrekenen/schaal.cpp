// The scale of a drawing, estimated from how long its subject is in reality: five subjects, each drawn to a whole
// number of centimetres beside a bar of one centimetre.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

constexpr int centimeter = 567; // twips

// Side views that stand on (links, grond) and are exactly so wide.

void teken_wiel(drawing& on, int x, int grond, int straal) {
    on.filled_circle(x, grond - straal, straal, zwart);
    on.filled_circle(x, grond - straal, straal / 2, lichtgrijs);
}

void teken_vrachtauto(drawing& on, int links, int grond, int breedte) {
    const int wiel = breedte / 22, vloer = grond - 2 * wiel, hoogte = breedte / 5;
    on.filled_box(links, vloer, breedte, wiel, grijs);
    on.filled_box(links, vloer - hoogte, breedte * 76 / 100, hoogte, donkerblauw);
    const int cabine = breedte * 21 / 100, hoog = hoogte * 3 / 4, rechts = links + breedte;
    on.filled_box(rechts - cabine, vloer - hoog, cabine, hoog, rood);
    on.filled_box(rechts - cabine / 2, vloer - hoog * 7 / 8, cabine / 2, hoog / 3, lichtcyaan);
    for (const int deel : {12, 22, 66, 90}) teken_wiel(on, links + breedte * deel / 100, grond, wiel);
}

void teken_motorjacht(drawing& on, int links, int grond, int breedte) {
    const int romp = breedte / 9, dek = grond - romp, rechts = links + breedte;
    const auto op = [&](int procent, int hoogte) { return point{links + breedte * procent / 100, dek - hoogte}; };
    on.filled_box(links - 150, grond - romp / 4, breedte + 300, romp / 4 + 40, blauw);
    on.polygon({op(22, 0), op(24, romp * 8 / 5), op(46, romp * 8 / 5), op(54, 0)}, grijs, true);
    on.polygon({op(12, 0), op(14, romp), op(58, romp), op(74, 0)}, lichtgrijs, true);
    on.polygon({op(18, romp / 3), op(18, romp * 3 / 4), op(59, romp * 3 / 4), op(66, romp / 3)}, donkerblauw, true);
    on.polygon({{links, dek}, {rechts, dek - romp / 3}, op(82, -romp), op(3, -romp)}, donkerrood, true);
}

void teken_flatgebouw(drawing& on, int links, int grond, int breedte) {
    constexpr int lagen = 5, laag = 190;
    const int midden = breedte / 480, kolommen = 2 * midden + 1; // the door stands in the middle one
    on.filled_box(links + breedte / 8, grond - lagen * laag - 80, breedte / 6, 80, grijs);
    on.filled_box(links, grond - lagen * laag, breedte, lagen * laag, donkerrood);
    for (int y = 0; y < lagen; ++y)
        for (int x = 0; x < kolommen; ++x) {
            const int raam = links + (2 * x + 1) * breedte / (2 * kolommen) - 70;
            if (x == midden && y == 0)
                on.filled_box(raam, grond - laag + 50, 140, laag - 50, lichtgrijs);
            else
                on.filled_box(raam, grond - (y + 1) * laag + 50, 140, 90, (x + 2 * y) % 5 == 0 ? geel : lichtcyaan);
        }
}

void teken_trein(drawing& on, int links, int grond, int breedte) {
    constexpr int bakken = 4, hoogte = 300, wiel = 45;
    for (int i = 0; i < bakken; ++i) {
        const int bak = links + i * breedte / bakken,
                  eind = links + (i + 1) * breedte / bakken - (i + 1 < bakken ? 40 : 0);
        on.filled_box(bak, grond - wiel - hoogte, eind - bak, hoogte, geel);
        on.filled_box(bak, grond - wiel - 90, eind - bak, 50, donkerblauw);
        for (int x = bak + 90; x + 110 < eind; x += 170) on.filled_box(x, grond - wiel - 240, 110, 100, donkerblauw);
        for (const int x : {bak + 110, bak + 220, eind - 220, eind - 110}) teken_wiel(on, x, grond, wiel);
    }
    on.filled_box(links, grond, breedte, 25, grijs);
}

void teken_vliegtuig(drawing& on, int links, int grond, int breedte) {
    const int dik = breedte / 11, wiel = breedte / 50, midden = grond - 2 * wiel - dik / 2, rechts = links + breedte;
    on.polygon({{links, midden - dik / 3},
                {links + breedte / 30, midden - dik * 2},
                {links + breedte / 10, midden - dik * 2},
                {links + breedte / 5, midden - dik / 2},
                {rechts - breedte / 12, midden - dik / 2},
                {rechts - breedte / 50, midden - dik / 10},
                {rechts, midden + dik / 4},
                {rechts - breedte / 12, midden + dik / 2},
                {links + breedte / 5, midden + dik / 2}},
               lichtgrijs, true);
    on.polygon({{links + breedte * 38 / 100, midden + dik / 4},
                {links + breedte * 58 / 100, midden + dik / 4},
                {links + breedte * 42 / 100, midden + dik * 4 / 5},
                {links + breedte * 32 / 100, midden + dik * 4 / 5}},
               grijs, true);
    for (int i = 0; i < 12; ++i)
        on.filled_circle(links + breedte * (26 + 5 * i) / 100, midden - dik / 6, breedte / 110, donkerblauw);
    for (const int deel : {44, 88}) teken_wiel(on, links + breedte * deel / 100, grond, wiel);
}

} // namespace

void oefeningen::L_schaal_10_16_click() {
    struct onderwerp {
        std::string_view naam, lidwoord;
        void (*teken)(drawing&, int links, int grond, int breedte);
        std::array<int, 3> schalen;
    };
    static constexpr std::array<onderwerp, 5> onderwerpen{{{"vrachtauto", "de", teken_vrachtauto, {200, 250, 300}},
                                                           {"motorjacht", "het", teken_motorjacht, {300, 400, 500}},
                                                           {"flatgebouw", "het", teken_flatgebouw, {1000, 1200, 1500}},
                                                           {"trein", "de", teken_trein, {2000, 2500, 3000}},
                                                           {"vliegtuig", "het", teken_vliegtuig, {900, 1000, 1200}}}};
    kies_variant(5);
    const onderwerp& o = rij(onderwerpen, variant);
    const int een_op = kies(o.schalen);
    const int stap = een_op % 100 == 0 ? 1 : 2; // for whole metres in reality
    const int getekend = stap * trek_van(4 / stap, 6 / stap);
    const int echt = een_op * getekend; // in cm
    const std::string meters = regel(kaal(echt / 100), " m");
    const auto schaal = [](int n) { return regel("1 :", duizend(n)); };

    bord(wit, zwart, 12);
    const int breedte = getekend * centimeter, links = (drawing::inner_width - breedte) / 2, grond = 1200;
    vertel(plaatje, "Een tekening die ", telwoord(getekend), " keer zo lang is als het staafje van 1 cm.");
    o.teken(plaatje, links, grond, breedte);
    teken_maat(plaatje, {links, grond + 340}, {links + breedte, grond + 340}, meters);
    plaatje.filled_box(250, 1860, centimeter, 60, donkerrood);
    druk(250 + centimeter + 90, 1890 - halve_regel(12), "1 cm");
    for (int i = 0; i < getekend; ++i)
        opdracht(
            vak_opdracht(links + i * centimeter, grond + 110, centimeter, 60, i % 2 == 0 ? donkerrood : lichtgrijs));

    vraag("Hier zie je een tekening van een", regel(o.naam, ". In het echt is ", o.lidwoord),
          regel(o.naam, " ", meters, " lang."), "Maak een schatting van de", "schaal waarin deze tekening",
          "gemaakt is.");

    const melding omrekenen{"Je hebt niet goed omgerekend van m naar cm."};
    const melding ernaast{"Je zit er erg ver naast!"};
    const melding bedenk{"Bedenk wat 1 cm in het echt is..."};
    drie_andere(een_op, schaal,
                {{een_op * 10, omrekenen},
                 {een_op / 10, omrekenen},
                 {een_op * 5, ernaast},
                 {een_op / 5, ernaast},
                 {een_op * 2, bedenk},
                 {een_op / 2, bedenk}});

    uitleg(regel("De balk van 1 cm past", getekend, " keer in de tekening,"),
           regel("dus de tekening is", getekend, " cm lang."),
           regel("In het echt is dat ", meters, " =", duizend(echt), " cm."),
           regel("1 cm is in het echt", duizend(echt), " :", getekend, " =", duizend(een_op), " cm."),
           regel("De schaal is dus ", schaal(een_op), "."));
}

} // namespace cijferwerf
