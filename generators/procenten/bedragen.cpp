// Percentages of a number or an amount: take 1 % first (divide by 100), then multiply. The wrong answers are the
// mistakes that this guards against: not multiplying, dividing by 10, adding a discount.
#include "generators/gedeeld/tekening_blad.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// "1.250 euro"
plakregel in_euros(int euros) { return plak_even({kaal(duizend(euros)), " euro"}); }

} // namespace

void oefeningen::L_computer_01_08_click() {
    kies_variant(3);
    const int prijs = trek(90) * 100 + 1000;
    const int korting = trek_tot(
        [this] {
            zaai();
            return trek(13) * 5 + 5;
        },
        [](int p) { return p != 10 && p != 20 && p != 25 && p != 50; });
    const bool meneer = kop();
    const bool verkoopster = kop();
    const int een_procent = prijs / 100;
    const int bedrag = korting * een_procent;

    bord(wit, zwart, 14);
    plaatje.picture("computer.bmp");
    druk(3000, 500, "oude prijs:");
    druk(3000, 830, kaal(duizend(prijs)), " euro");
    plaatje.fore_colour = donkerrood;
    druk(3000, 1300, kaal(korting), " % korting");

    vraag(meneer ? "Een meneer koopt een computer" : "Een mevrouw koopt een computer",
          regel("van ", duizend(prijs), " euro."),
          regel(verkoopster ? "De verkoopster geeft" : "De verkoper geeft", korting, " % korting."), leeg,
          "Hoeveel kost de computer nu?");

    goed(in_euros(prijs - bedrag));
    fout(in_euros(prijs + bedrag), "Je hebt de korting bij de oude", "prijs opgeteld.");
    fout(in_euros(prijs - korting), "Je hebt de procenten niet in euro's", "omgerekend.");
    fout(in_euros(bedrag), "Je hebt alleen de korting berekend.");

    uitleg(regel("1 % van de oude prijs is ", een_procent, " euro, dus ", korting, " % is ", korting, " x ",
                 een_procent, " = ", duizend(bedrag), " euro."),
           regel("De klant krijgt ", duizend(bedrag), " euro korting, zodat de"),
           regel("nieuwe prijs wordt: ", duizend(prijs), " - ", duizend(bedrag), " = ", duizend(prijs - bedrag),
                 " euro."));
}

void oefeningen::M_hele_procenten_01_08_click() {
    kies_variant(2);
    const int p = variant == 1 ? trek(7) + 2 : trek(89) + 11;
    zaai();
    const int basis = trek(320) * 100; // 0 is possible: then every answer is 0
    const int een_procent = basis / 100;
    const int een_tiende = basis / 10;
    const number_text basis_kaal = kaal(duizend(basis));

    bord(cyaan, geel, 14);
    druk(500, 600, "Bereken:");
    druk(900, 1000, p, " % van ", basis_kaal, " = ...");

    vraag("Op het schoolbord staat een", "som geschreven.", leeg, "Reken de som uit en kies het", "juiste antwoord.");

    goed(duizend(p * een_procent));
    if (variant == 1) {
        fout(duizend(een_procent), "Je hebt wel 1 % gedaan, maar dan ben je ",
             "nog niet klaar. Je moet ook nog vermenigvuldigen!");
        fout(duizend(p * een_tiende), "Heb je het getal eerst door 10 gedeeld?",
             "Dat is niet goed, want om 1 % te krijgen moet", "je door 100 delen...", "Probeer 't nog eens!");
        fout(duizend(een_tiende), "Eerst moet je 1 % nemen van dat getal en", "daarna nog vermenigvuldigen...");
    } else {
        fout(duizend(een_procent), "Je hebt vergeten te vermenigvuldigen.", "Je hebt alleen 1 % genomen!");
        fout(duizend(p * een_tiende), "Heb je soms een kommafout gemaakt?", "Je had door 100 moeten delen...",
             "Kies een ander antwoord.");
        fout(duizend(een_tiende), "Eerst moet je 1 % nemen. Vervolgens moet je", "ook nog een vermenigvuldiging doen.");
    }

    uitleg(regel("Je kunt het beste eerst 1 % van ", basis_kaal, " nemen."),
           regel("Deel het getal ", basis_kaal, " dus door 100."),
           regel("Dan krijg je ", basis_kaal, " : 100 =", duizend(een_procent), "."),
           regel("Daarna moet je nog met", p, " vermenigvuldigen."),
           regel("Dus", p, " % van ", basis_kaal, " is", duizend(een_procent), " x", p, " =", duizend(p * een_procent),
                 "."));
}

void oefeningen::M_rente_01_08_click() {
    struct houder {
        std::string_view naam;
        bool man;
    };
    static constexpr std::array<houder, 20> houders{{{"Meneer van Belt", true},
                                                     {"Meneer Kroos", true},
                                                     {"Meneer Jonk", true},
                                                     {"Meneer Simonse", true},
                                                     {"Meneer Radamsingh", true},
                                                     {"Mevrouw Kayzer", false},
                                                     {"Mevrouw Assink", false},
                                                     {"Mevrouw Davidovic", false},
                                                     {"Mevrouw Nieuwenhuyse", false},
                                                     {"Mevrouw de Bruyn", false},
                                                     {"Jiska", false},
                                                     {"Jochem", true},
                                                     {"Bregje", false},
                                                     {"Jelmer", true},
                                                     {"Martijn", true},
                                                     {"Ineke", false},
                                                     {"Els", false},
                                                     {"Fausha", false},
                                                     {"Nischa", false},
                                                     {"Saoed", true}}};
    kies_variant(2);
    const bool volwassen = variant == 1;
    const int oud = volwassen ? trek(80) * 100 + 1000 : trek(8) * 100 + 100;
    const int p = trek(7) + 3;
    const houder& wie = rij(houders, trek(10) + (volwassen ? 1 : 11));
    const int juist = trek(4) + 1;
    const std::string_view hij = wie.man ? "hij" : "zij";
    const std::string_view zijn = wie.man ? "zijn" : "haar";
    const std::string_view jouw = volwassen ? " uw" : " je";
    const int een_procent = oud / 100;
    const int rente = p * een_procent;
    const int nieuw = oud + rente;

    bord(donkerblauw, zwart, 10);
    teken_blad(plaatje, {200, 150, 4980, 1830}, bladsoort::brief, "BANK",
               {regel("Geachte ", wie.naam, ","),
                regel("We hebben ", in_euros(rente), " rente op", jouw, " rekening bijgeschreven."),
                regel("Er staat nu ", in_euros(nieuw), " op", jouw, " rekening.")});

    vraag(regel(wie.naam, " krijgt van de"), "bank een brief die je hiernaast ziet.", leeg,
          regel("Hoeveel procent rente heeft ", hij), "gekregen?");

    // Four percentages in a row, upward or downward, none of them 0.
    const bool omhoog = p <= juist - 1 ? false : p <= 4 - juist ? true : kop();
    juist_op(juist);
    for (int i = 1; i <= 4; ++i) op_plaats(i, regel(omhoog ? p + i - juist : p - i + juist, " %"));
    if (volwassen) {
        tip_1("Reken eerst eens het oude bedrag uit.");
        tip_2("Bereken eerst het oude bedrag en probeer dan", "uit te vinden hoeveel euro 1 % van het oude",
              "bedrag is.");
    } else {
        tip_1(regel("Hoeveel stond er op ", zijn, " rekening voordat de"),
              "rente erbij kwam? Reken dat eerst eens uit.");
        tip_2("Trek de rente af van het bedrag dat er nu staat.", "Neem van het oude bedrag 1 % en kijk hoe vaak",
              "dat in de rente past.");
    }

    uitleg(
        regel(wie.naam, " krijgt ", in_euros(rente), " rente bijgeschreven,"),
        regel("dus had ", hij, " eerst ", duizend(nieuw), " - ", rente, " = ", in_euros(oud), "."),
        regel("1 % van dat bedrag is ", in_euros(een_procent), " (want", duizend(oud), " :100 = ", een_procent, ")."),
        regel(in_euros(een_procent), " gaat", p, " keer in ", in_euros(rente), "."),
        regel("Het goede percentage is inderdaad", p, " %."));
}

void oefeningen::Z_kommaprocenten_01_08_click() {
    kies_variant(4);
    // The percentage in hundredths and the base, so that 1 % and the answer have at most two decimals.
    int p = 0;
    int basis = 0;
    if (variant == 1) { // halves
        p = trek(9) * 100 + 150;
        basis = trek_van(200, 4000, 100);
    } else if (variant == 2) { // tenths
        p = trek(9) * 100 + 100;
        p += kies(std::array{10, 20, 30, 40, 60, 70, 80, 90});
        basis = trek_van(200, 2000, 100);
    } else if (variant == 3) { // quarters
        p = trek(8) * 100 + 100;
        p += kop() ? 25 : 75;
        basis = trek_van(400, 4000, 400);
    } else { // tenths of a base that is no multiple of 100
        p = trek(8) * 100 + 100;
        p += kies(std::array{20, 40, 50, 60, 80});
        basis = trek_van(110, 490, 20);
    }
    const bool leraar = kop();
    const number_text p_tekst = komma_kort(p, 2);
    const number_text b_tekst = duizend(basis);
    // All in ten-thousandths: hundredths of a per cent times hundredths of the base.
    const auto getal = [](int tienduizendsten) { return komma_kort(tienduizendsten, 4); };
    const int een_procent = basis * 100;
    const number_text antwoord = getal(p * basis);

    bord(groen, wit, 20);
    som_met_antwoord(3600, 600, geel, 20, regel(kaal(p_tekst), " % van", b_tekst, " ="), antwoord);

    vraag(regel(leraar ? "De leraar" : "De lerares", " heeft een som op"), "het bord geschreven.", leeg,
          "Weet jij het goede antwoord?");

    goed(antwoord);
    fout(getal(een_procent), "Je hebt vergeten te vermenigvuldigen.", "Je hebt alleen 1 % genomen!");
    if (variant % 2 == 1)
        fout(getal(10 * p * basis), "Heb je een kommafout gemaakt?", "Om 1 % te krijgen moet je door 100 delen.");
    else
        fout(getal(10 * p * basis), "Heb je een kommafout gemaakt, misschien?",
             "Je had door 100 moeten delen, niet door 10...");
    fout(getal(10 * een_procent), "Je hebt door 10 gedeeld. Eerst moet je 1 % nemen",
         "en daarna nog vermenigvuldigen...");

    uitleg(regel("Reken eerst uit hoeveel 1 % van", b_tekst, " is."),
           regel("Dat is", b_tekst, " : 100 = ", getal(een_procent), "."),
           regel("Daarna doe je nog", p_tekst, " x ", getal(een_procent), " = ", antwoord, "."),
           regel("Dus ", p_tekst, " % van", b_tekst, " = ", antwoord, "."));
}

} // namespace cijferwerf
