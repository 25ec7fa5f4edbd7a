// With the calculator beside the exercise: checking by the inverse operation, the keys of the memory, value added tax
// and a loan.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::M_controle_12_02_click() {
    kies_variant(2);
    const bool deling = variant == 1;
    // From 1,01 to 9,99, never whole.
    const auto trek_getal = [&] {
        const int decimalen = trek_van(1, 2);
        const int laatste_cijfer = trek_van(1, 9);
        return kommagetal{10 * (decimalen == 1 ? trek_van(1, 9) : trek_van(10, 99)) + laatste_cijfer, decimalen};
    };
    const kommagetal een = trek_getal();
    const kommagetal ander = trek_tot(trek_getal, [een](kommagetal g) { return g != een; });
    const kommagetal product = een * ander;
    const auto som = [](kommagetal links, std::string_view teken, kommagetal rechts) {
        return regel(kaal(komma_kort(links)), teken, komma_kort(rechts));
    };
    const bool gewisseld = kop();

    bord(wit, donkerblauw, 16);
    druk(300, 110, deling ? som(product, " :", een) : som(een, " x", ander), " =",
         komma_kort(deling ? ander : product));
    plaatje.text_size = 14;
    constexpr std::array<kleur, 4> kleuren{donkerrood, donkerblauw, groen, lichtgrijs};
    std::vector<keuze<>> fouten;
    std::string juist;
    if (deling) {
        const melding zelfde{"Je had er een vermenigvuldiging van moeten maken."};
        const melding verkeerd{"Je hebt wel een vermenigvuldiging gedaan,", "maar met de verkeerde getallen."};
        juist = gewisseld ? som(een, " x", ander) : som(ander, " x", een);
        fouten = {{som(ander, " :", een), zelfde},
                  {som(een, " :", ander), zelfde},
                  {som(product, " x", een), verkeerd},
                  {som(ander, " x", product), verkeerd}};
    } else {
        const melding zelfde{"Je had er een deling van moeten maken."};
        const melding verkeerd{"Je hebt wel een deling gedaan,", "maar met de verkeerde getallen."};
        juist = gewisseld ? som(product, " :", een) : som(product, " :", ander);
        fouten = {{som(product, " x", een), zelfde},
                  {som(ander, " x", product), zelfde},
                  {som(een, " :", ander), verkeerd},
                  {som(ander, " :", product), verkeerd}};
    }
    fouten = geschud(std::move(fouten));
    kleurkeuze({300, 560}, 375, kleuren, std::array{keuze<>{juist}, fouten[0], fouten[1], fouten[2]});
    met_rekenmachine();

    vraag(deling ? "Hiernaast zie je een deling." : "Hiernaast zie je een vermenigvuldiging.",
          "Ook zie je vier manieren", "om te controleren of het", "antwoord goed is.", "Welke manier is goed?",
          "Kies de juiste kleur.");

    const kommagetal terug = deling ? product : gewisseld ? ander : een;
    uitleg("Delen is het omgekeerde van vermenigvuldigen en", "vermenigvuldigen het omgekeerde van delen.",
           deling ? "Bij een deling hoort dus een vermenigvuldiging:"
                  : "Bij een vermenigvuldiging hoort dus een deling:",
           regel(juist, " =", komma_kort(terug), ", en dat getal staat ook in de som."),
           regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::Z_memory_12_02_click() {
    kies_variant(2);
    const int a = trek(99) + 1, b = trek(99) + 1;
    const int d = trek(49) + 1;
    const int c = d + trek(49) + 1;
    const int e = trek(50) + 2, f = trek(98) + 2;
    const int h = trek(98) + 2, q = trek(10) + 2;
    const int g = q * h;
    const int juist = (a + b) + (c - d) + (e * f) + (g / h);

    bord(lichtgrijs, zwart, 9);
    teken_blad(plaatje, {1400, 60, 2580, 1960}, bladsoort::paneel, "",
               {"AANWIJZINGEN", "Met M+ zet je een", "getal in het geheugen.", "Hierbij wordt 't",
                "opgeteld bij wat al", "in het geheugen zit.", "Met MR (MemoryRecall)", "kun je zien wat er",
                "in 't geheugen zit."});
    met_rekenmachine();

    vraag("Gebruik bij deze som de rekenmachine!", "Reken de volgende som maar eens uit:", leeg,
          regel("(", kaal(a), " +", b, ") + (", kaal(c), " -", d, ") + (", kaal(e), " x", f, ") + (", kaal(duizend(g)),
                " :", h, ") ="),
          leeg, "Kijk ook naar de AANWIJZINGEN hiernaast.");

    const int dichtbij = trek_van(10, 100, 10), verder = trek_van(110, 200, 10), ver_weg = trek_van(210, 300, 10);
    drie_andere(juist, duizend,
                {{juist - ver_weg},
                 {juist - verder},
                 {juist - dichtbij},
                 {juist + dichtbij},
                 {juist + verder},
                 {juist + ver_weg}});
    if (variant == 1) {
        tip_1("Doe de optelling en gebruik dan de M+ toets.");
        tip_2("Eerst moet je optellen. Druk dan op de M+ toets.", "Doe dan de aftrekking en gebruik weer de",
              "M+ toets. Doe hetzelfde bij de vermenigvuldiging", "en de deling....");
    } else {
        tip_1("Doe eerst de optelling en druk dan", "de M+ toets...");
        tip_2("Eerst moet je optellen. Gebruik dan de M+ toets.", "Doe dan de aftrekking en gebruik weer de",
              "M+ toets, enzovoort.");
    }

    // What the memory and the display still hold would be counted in: hence AC and C.
    uitleg("Doe eerst de optelling en zet met M+ de uitkomst", "in het geheugen. Doe de aftrekking en druk weer",
           "op de M+ toets. Doe daarna de vermenigvuldiging", "en gebruik weer de M+ toets. Tot slot moet je delen",
           "en druk je weer op de M+ toets. Druk dan op MR...",
           regel("Begin met AC en druk na elke M+ op C. Je leest dan af:", duizend(juist), "."));
}

void oefeningen::Z_BTW_12_08_click() {
    static constexpr std::array<std::string_view, 20> namen{
        "Rowan", "Stephen", "Ingmar",   "Marloes", "Amber", "Danny", "Lai Man", "Vincent", "Renzo", "Lucia",
        "Kazim", "Freek",   "Matthijs", "Mark",    "Marco", "Wiebe", "Iresh",   "Ranu",    "Ivan",  "Sietske"};
    kies_variant(2);
    const auto bedrag = [](long long cent) { return regel("€", komma(cent, 2)); };

    bord(wit, donkerblauw, 14);
    plaatje.picture("btw.bmp");
    constexpr int midden = 4050;
    met_rekenmachine();

    if (variant == 1) {
        const std::string_view naam = kies(namen);
        const int prijs = trek_van(15'000, 95'000, 5);
        const int btw = prijs / 5, juist = prijs + btw;
        druk_midden(midden, 650, bedrag(prijs));
        druk_midden(midden, 1150, "exclusief 20 % BTW");
        vraag(regel(naam, " wil een nieuwe fiets kopen."), regel("De fiets kost ", bedrag(prijs), ","),
              "maar er staat bij: 'exclusief 20 % BTW'.", "Hoeveel moet er betaald worden?", leeg,
              "Gebruik de rekenmachine!");
        drie_andere(juist, bedrag,
                    {{btw, {"Dat is alleen de BTW. De prijs van de fiets komt", "daar nog bij."}},
                     {prijs - btw, {"De BTW gaat er niet af, maar komt er nog bij."}},
                     {prijs + 2000, {"Je hebt er 20 euro bij opgeteld in plaats van 20 %."}},
                     {juist + btw, {"Je hebt de BTW er twee keer bij opgeteld."}}});
        uitleg(regel("Bij de prijs van ", bedrag(prijs), " komt nog 20 % BTW. Op de"),
               regel("rekenmachine gaat dat heel snel: toets", komma_kort(prijs, 2)),
               "in, druk op de '+'-toets, toets 20 in, druk", "op de %-toets en tot slot op de '='-toets.",
               regel("De fiets kost dan ", bedrag(juist), "."));
        return;
    }
    const int juist = trek_van(150, 950, 25) * 100;
    const int betaald = juist / 5 * 6;
    druk_midden(midden, 650, bedrag(betaald));
    druk_midden(midden, 1150, "inclusief 20 % BTW");
    vraag("EEN HEEL MOEILIJKE SOM...!", "Een winkelier koopt bij de",
          regel("groothandel een fiets voor ", bedrag(betaald), "."), "De betaalde BTW krijgt hij echter terug.",
          "Wat kost de fiets dan eigenlijk?", "Gebruik de rekenmachine!");
    drie_andere(juist, bedrag,
                {{betaald / 5 * 4,
                  {"Je hebt 20 % van de prijs MET BTW afgetrokken.", "De BTW is 20 % van de prijs zonder BTW."}},
                 {betaald / 5 * 6, {"De BTW zit al in de prijs. Je hebt die er nog een", "keer bij opgeteld."}},
                 {betaald - 2000, {"Je hebt er 20 euro afgetrokken in plaats van", "20 % BTW."}},
                 {betaald - juist, {"Dat is de BTW die de winkelier terugkrijgt."}}});
    uitleg(regel("Met 20 % BTW erbij is de prijs 120 % geworden."),
           regel("Deel ", bedrag(betaald), " eerst door 120; dan weet je wat 1 % is."),
           regel("Dat is ", bedrag(juist / 100), "."), "Vermenigvuldig dat met 100, dan weet je de eigenlijke",
           regel("prijs van de fiets: ", bedrag(juist), "."));
}

void oefeningen::Z_lenen_12_07_click() {
    static constexpr std::array<std::string_view, 15> namen{"David", "Hester", "Abdoel",   "Aili",   "Klazina",
                                                            "Anja",  "Henk",   "Jochem",   "Ronald", "Miep",
                                                            "Peter", "Ineke",  "Gijsbert", "Joke",   "Jiska"};
    kies_variant(4);
    const bool vader = variant % 2 == 1, met_rest = variant >= 3;
    const std::string_view naam = kies(namen);
    const int per_maand = trek_van(150, 400, 25), hele_maanden = trek_van(12, 30);
    const int rest = met_rest ? trek_van(10, per_maand - 10, 10) : 0;
    const int afgelost = per_maand * hele_maanden, geleend = afgelost + rest;
    const int juist = hele_maanden + (met_rest ? 1 : 0);
    const auto euros = [](int bedrag) { return euro(100LL * bedrag); };

    bord(wit, donkerblauw, 12);
    plaatje.picture("lenen.bmp");
    for (int y = 160; const std::string_view line : {"Goeiemorgen,", "u wilt een", "lening?"}) {
        druk_midden(970, y, line);
        y += 280;
    }
    for (int y = 160; const std::string_view line : {"Wat vindt U", "van mijn", "kapsel?"}) {
        druk_midden(4410, y, line);
        y += 280;
    }
    met_rekenmachine();

    vraag(regel(vader ? "De vader van " : "De moeder van ", naam, " koopt een auto."),
          regel(vader ? "Hij" : "Zij", " leent hiervoor een bedrag van"),
          regel(kaal(euros(geleend)), " bij de bank. ", vader ? "Hij" : "Zij", " kan per"),
          regel("maand", euros(per_maand), " hiervan aflossen."), "Na hoeveel maanden is de lening", "afgelost?");

    // The whole months of the quotient are among the answers where there is a remainder, and where there is none the
    // month after them.
    juist_op(met_rest ? trek_van(2, 4) : trek_van(1, 3));
    for (int plaats = 1; plaats <= 4; ++plaats) op_plaats(plaats, regel(juist + plaats - juiste_positie, " maanden"));
    tip_1("Deel eerst het geleende bedrag door het", "maandelijkse bedrag en kijk dan of er nog een", "restbedrag is.");
    tip_2("Een restbedrag wordt in een extra maand afgelost.", "Komt de deling precies uit, dan is er geen",
          "extra maand.");

    const std::string alles = regel("In", hele_maanden, " maanden wordt", hele_maanden, " x", euros(per_maand), " =",
                                    euros(afgelost), " afgelost.");
    if (met_rest)
        uitleg(alles, "Dan blijft er nog een restbedrag over dat in", "een extra maand afgelost wordt.",
               regel("Na", juist, " maanden is de lening dus afgelost."));
    else
        uitleg(alles, "De deling komt precies uit, dus er is geen restbedrag.",
               regel("Na", juist, " maanden is de lening dus afgelost."));
}

} // namespace cijferwerf
