// Percentages: take 1 % first (divide by 100), then multiply. The wrong answers are the mistakes that this guards
// against: not multiplying, dividing by 10, a count for a percentage, the other group, adding a discount.
#include "generators/oefeningen.h"

#include <algorithm>

namespace cijferwerf {

namespace {

std::string procent(int whole) { return regel(whole, " %"); }

template<std::size_t N>
bool alle_verschillend(std::array<int, N> values) {
    std::ranges::sort(values);
    return std::ranges::adjacent_find(values) == values.end();
}

constexpr std::array<std::string_view, 29> clubs{
    "Ajax",         "PSV",       "Feyenoord",   "FC Utrecht",  "FC Den Haag",    "FC Groningen",
    "MVV",          "FC Twente", "Vitesse",     "Volendam",    "Heerenveen",     "Sparta",
    "FC Haarlem",   "NEC",       "NAC",         "AZ",          "Excelsior",      "PEC Zwolle",
    "FC Barcelona", "AC Milan",  "Real Madrid", "Inter Milan", "Bayern München", "FC Köln",
    "FC Liverpool", "Celtic",    "Anderlecht",  "FC Brugge",   "Barcelona"};

} // namespace

void oefeningen::L_voetbal_01_08_click() {
    kies_variant(5);
    zaai();
    const int mensen = trek(10) * 1000 + 3000;
    const int procent_thuis = trek(40) + 55;
    struct affiche {
        std::string_view thuis, bezoekers;
    };
    // "Barcelona" and "FC Barcelona" are one club.
    const auto [thuis, bezoekers] = trek_tot(
        [this] {
            return affiche{kies(clubs), kies(clubs)};
        },
        [](const affiche& a) {
            return a.thuis.find(a.bezoekers) == a.thuis.npos && a.bezoekers.find(a.thuis) == a.thuis.npos;
        });
    const int procent_bezoekers = 100 - procent_thuis;
    const int een_procent = mensen / 100;
    const int supporters = procent_bezoekers * een_procent;

    bord(groen, wit, 12);
    plaatje.box(150, 500, 5080, 1500, wit);
    plaatje.line(2690, 500, 2690, 2000, wit);
    plaatje.circle(2690, 1250, 330, wit);
    plaatje.box(150, 850, 600, 800, wit);
    plaatje.box(4630, 850, 600, 800, wit);
    plaatje.filled_box(0, 0, drawing::inner_width, 380, donkerblauw);
    druk_midden(1400, 60, thuis);
    druk_midden(2690, 60, "-");
    druk_midden(3980, 60, bezoekers);

    vraag("Bij een wedstrijd tussen", regel(thuis, " en ", bezoekers, " zitten"),
          regel(kaal(duizend(mensen)), " mensen. Hiervan is"),
          regel(kaal(procent_thuis), " % supporter van ", thuis, "."), "Hoeveel supporters van",
          regel(bezoekers, " zijn er ongeveer?"));

    goed(duizend(supporters));
    fout(tekst(procent_bezoekers), "Je moet het AANTAL berekenen, niet alleen maar", "het percentage.");
    fout(duizend(procent_thuis * een_procent), "Je hebt het aantal supporters gekozen", "van de THUIS spelende club.");
    fout(duizend(mensen + supporters), "Kan dat wel: een aantal supporters dat", "groter is dan het totale aantal",
         "toeschouwers?");
    if (variant == 5) {
        tip_1("Reken eerst het percentage supporters van", "de bezoekende club uit.");
        tip_2("Weet je dat percentage? Neem dan 1 % van alle", "toeschouwers en vermenigvuldig dat ermee.");
    }

    uitleg(regel(kaal(procent_thuis), " % van alle mensen is supporter van ", thuis, ", dus"),
           regel("100 % - ", kaal(procent_thuis), "% =", procent_bezoekers, " % is supporter van ", bezoekers, "."),
           regel("Nu is 1 % van alle toeschouwers gelijk aan", een_procent, ","),
           regel("zodat", procent_bezoekers, " % hetzelfde is als", procent_bezoekers, " x", een_procent, " = ongeveer",
                 duizend(supporters), " supporters."));
}

void oefeningen::L_examen_01_08_click() {
    // How many pupils take part, and the percentages that make whole numbers of them.
    struct groep {
        std::array<int, 4> leerlingen;
        int stap;
    };
    static constexpr std::array<groep, 4> groepen{
        {{{200, 300, 400, 500}, 1}, {{50, 150, 250, 350}, 2}, {{40, 60, 120, 140}, 5}, {{25, 75, 125, 175}, 4}}};
    static constexpr std::array<std::string_view, 6> examenmaanden{"januari",  "mei",     "juni",
                                                                   "augustus", "oktober", "december"};
    kies_variant(8);
    zaai();
    const bool gezakt = variant % 2 == 1;
    const groep& vorm = rij(groepen, (variant + 1) / 2);
    struct uitslag {
        int leerlingen, procent;
        int aantal() const { return leerlingen * procent / 100; }
    };
    const uitslag examen = trek_tot(
        [&] {
            const int klein = trek_van(vorm.stap, 45 - 45 % vorm.stap, vorm.stap);
            return uitslag{kies(vorm.leerlingen), gezakt ? klein : 100 - klein};
        },
        [](const uitslag& u) {
            return alle_verschillend(std::array{u.procent, 100 - u.procent, u.aantal(), u.leerlingen - u.aantal()});
        });
    const int n = examen.leerlingen;
    const int aantal = examen.aantal();
    const std::string_view maand = kies(examenmaanden);

    bord(cyaan, zwart, 11);
    plaatje.filled_box(500, 150, 4380, 1830, wit);
    plaatje.box(500, 150, 4380, 1830, grijs);
    plaatje.text_size = 16;
    plaatje.fore_colour = gezakt ? donkerrood : groen;
    druk(800, 300, gezakt ? "GEZAKT..." : "GESLAAGD!");
    plaatje.text_size = 11;
    plaatje.fore_colour = zwart;
    druk(800, 850, gezakt ? "Tot onze spijt moeten wij je meedelen" : "Met veel genoegen delen wij je");
    druk(800, 1150, gezakt ? "dat je voor het examen" : "mee dat je voor het examen");
    druk(800, 1450, "van ", maand, gezakt ? " gezakt bent." : " geslaagd bent.");

    vraag(regel(gezakt ? "Bij een examen zakten" : "Bij een examen slaagden", aantal, " van de"),
          regel(kaal(n), " leerlingen."), leeg, gezakt ? "Hoeveel procent zakte dus?" : "Hoeveel procent slaagde dus?");

    const std::string_view verwisseld_1 = "Bovendien heb je de geslaagden en";
    const std::string_view verwisseld_2 = "gezakten verwisseld!";
    goed(procent(examen.procent));
    fout(procent(100 - examen.procent),
         gezakt ? "De vraag gaat over de gezakten," : "De vraag gaat over de geslaagden,",
         gezakt ? "niet over de geslaagden!" : "niet over de gezakten!");
    if (variant <= 4) {
        fout(tekst(aantal), "Je hebt het aantal als antwoord gegeven", "en niet het percentage....");
        fout(procent(n - aantal), "Jij gaat ervan uit dat het aantal", "meteen gelijk is aan het aantal...!",
             verwisseld_1, verwisseld_2);
    } else {
        fout(tekst(n - aantal), "Je hebt het aantal als antwoord gegeven", "en niet het percentage....", verwisseld_1,
             verwisseld_2);
        fout(procent(aantal), "Jij gaat ervan uit dat het aantal", "meteen gelijk is aan het aantal...!");
    }

    const number_text een_procent = komma_kort(n, 2);
    uitleg(regel("Er hebben", n, " leerlingen meegedaan. Van dit aantal"),
           regel("is 1 % gelijk aan", een_procent, " leerlingen (want", n, " : 100 =", een_procent, ")."),
           regel("Er zijn", aantal, gezakt ? " leerlingen gezakt," : " leerlingen geslaagd,", " en", aantal, " :",
                 een_procent, " =", examen.procent, "."),
           regel("Het goede antwoord is dus ", kaal(examen.procent), " %."));
}

void oefeningen::L_computer_01_08_click() {
    kies_variant(3);
    juiste_positie = 0;
    zaai();
    const int prijs = trek(90) * 100 + 1000;
    const int korting = trek_tot(
        [this] {
            zaai();
            return trek(13) * 5 + 5;
        },
        [](int p) { return p != 10 && p != 20 && p != 25 && p != 50; });
    const bool meneer = munt();
    const bool verkoopster = munt();
    const int een_procent = prijs / 100;
    const int bedrag = korting * een_procent;
    const auto euro = [](int whole) { return regel(duizend(whole), " euro"); };

    bord(wit, zwart, 14);
    plaatje.picture("computer.bmp");
    druk(3000, 500, "oude prijs:");
    druk(3000, 830, kaal(duizend(prijs)), " euro");
    plaatje.fore_colour = donkerrood;
    druk(3000, 1300, kaal(korting), " % korting");

    vraag(meneer ? "Een meneer koopt een computer" : "Een mevrouw koopt een computer",
          regel("van ", kaal(duizend(prijs)), " euro."),
          regel(verkoopster ? "De verkoopster geeft" : "De verkoper geeft", korting, " % korting."), leeg,
          "Hoeveel kost de computer nu?");

    goed(euro(prijs - bedrag));
    fout(euro(prijs + bedrag), "Je hebt de korting bij de oude", "prijs opgeteld.");
    fout(euro(prijs - korting), "Je hebt de procenten niet in euro's", "omgerekend.");
    fout(euro(bedrag), "Je hebt alleen de korting berekend.");

    uitleg(regel("1 % van de oude prijs is ", kaal(een_procent), " euro, dus ", kaal(korting), " % is ", kaal(korting),
                 " x ", kaal(een_procent), " = ", kaal(duizend(bedrag)), " euro."),
           regel("De klant krijgt ", kaal(duizend(bedrag)), " euro korting, zodat de"),
           regel("nieuwe prijs wordt: ", kaal(duizend(prijs)), " - ", kaal(duizend(bedrag)), " = ",
                 kaal(duizend(prijs - bedrag)), " euro."));
}

void oefeningen::L_snel_01_08_click() {
    struct paar {
        int eerste, tweede;
    };
    // By sub-variant: the percentage that is asked, and the three that are not.
    static constexpr paar vormen[4][4]{{{1, 25}, {2, 50}, {5, 75}, {10, 100}},
                                       {{2, 50}, {1, 25}, {5, 75}, {10, 100}},
                                       {{5, 1}, {75, 25}, {2, 50}, {10, 100}},
                                       {{10, 10}, {1, 25}, {2, 50}, {5, 75}}};
    kies_variant(4);
    zaai();
    const auto& vorm = vormen[variant - 1];
    const auto een_van = [this](const paar& p) {
        return p.eerste == p.tweede ? p.eerste : munt() ? p.eerste : p.tweede;
    };
    const int gevraagd = een_van(vorm[0]);
    const int deel = trek(8) + 2;
    const int geheel = deel * 100 / gevraagd;
    const std::string breuk = regel("1/", kaal(100 / gevraagd));

    bord(zwart, geel, 14);
    druk(1000, 500, "Hoeveel % is", deel, " van", geheel, "?");

    vraag("Kijk hiernaast.", leeg, "Je hebt niet zo veel tijd!");

    goed(procent(gevraagd));
    for (int i = 1; i <= 3; ++i) fout(procent(een_van(vorm[i])));

    uitleg(
        regel(kaal(deel), " is het ", breuk, " deel van", geheel, ", want", deel, " /", geheel, " =", " ", breuk, "."),
        regel("Het ", breuk, " deel is hetzelfde als", gevraagd, " %."),
        regel("Het juiste antwoord is ", antwoord_1, "."));
    snel(12);
}

void oefeningen::M_blessures_01_08_click() {
    static constexpr std::array<std::string_view, 16> sporten{
        "voetbal", "hockey",    "volleybal", "golf",     "tennis",  "basketbal", "wielrennen", "hardlopen",
        "boksen",  "worstelen", "judo",      "atletiek", "honkbal", "vollybal",  "badminton",  "handbal"};
    static constexpr std::array<std::string_view, 8> landen{"Engeland",  "Nederland", "Noorwegen",  "België",
                                                            "Frankrijk", "Rusland",   "Denemarken", "Italië"};
    static constexpr std::array<std::string_view, 19> perioden{"januari",
                                                               "februari",
                                                               "maart",
                                                               "april",
                                                               "mei",
                                                               "juni",
                                                               "juli",
                                                               "augustus",
                                                               "september",
                                                               "oktober",
                                                               "november",
                                                               "december",
                                                               "eerste kwartaal",
                                                               "tweede kwartaal",
                                                               "derde kwartaal",
                                                               "vierde kwartaal",
                                                               "eerste halfjaar",
                                                               "tweede halfjaar",
                                                               "in 't jaar"};
    struct sport {
        std::string_view naam;
        int een_procent; // of those who do it
        int procent;     // of those who were hurt
        int sporters() const { return een_procent * 100; }
        int blessures() const { return een_procent * procent; }
    };
    using overzicht = std::array<sport, 4>;
    const auto plaats_van = [](const overzicht& o, bool grootst, auto maat) {
        const auto found = grootst ? std::ranges::max_element(o, {}, maat) : std::ranges::min_element(o, {}, maat);
        return static_cast<int>(found - o.begin()) + 1;
    };

    kies_variant(4);
    zaai();
    const bool grootst = variant > 2;
    const std::string_view land = kies(landen);
    const std::string_view periode = kies(perioden);
    // The percentages lie at least 2 apart, and who only looks at the numbers of injuries is wrong.
    const overzicht o = trek_tot(
        [&] {
            const auto namen = geschud(sporten);
            const auto procenten = geschud(std::array{2, 4, 6, 8, 10, 12, 15, 18, 20});
            overzicht drawn{};
            for (std::size_t i = 0; i < drawn.size(); ++i) drawn[i] = {namen[i], trek(47) + 4, procenten[i]};
            return drawn;
        },
        [&](const overzicht& drawn) {
            const auto aantal = [&](std::string_view naam) { return std::ranges::count(drawn, naam, &sport::naam); };
            return aantal("volleybal") + aantal("vollybal") < 2 &&
                   plaats_van(drawn, grootst, &sport::blessures) != plaats_van(drawn, grootst, &sport::procent);
        });
    const int juist = plaats_van(o, grootst, &sport::procent);
    const sport& gezocht = rij(o, juist);

    bord(wit, donkerblauw, 11);
    druk(250, 60, "Overzicht van het aantal sportblessures in");
    druk(250, 310, land, ", ", periode);
    plaatje.filled_box(250, 620, 4880, 290, donkerblauw);
    plaatje.fore_colour = wit;
    plaatje.text_size = 10.5;
    druk(400, 640, "sport");
    druk_rechts(3300, 640, "sporters");
    druk_rechts(4900, 640, "blessures");
    plaatje.fore_colour = zwart;
    for (int i = 1; i <= 4; ++i) {
        const sport& deze = rij(o, i);
        const int y = 665 + i * 285;
        druk(400, y, deze.naam);
        druk_rechts(3300, y, duizend(deze.sporters()));
        druk_rechts(4900, y, duizend(deze.blessures()));
        plaatje.line(250, y + 265, 5130, y + 265, lichtgrijs);
    }

    vraag("In de krant staat een artikel", "over blessures bij verschillende", regel("sporten in ", land),
          "in een bepaalde tijd.", "Bij welke sport was het percentage",
          grootst ? "sportblessures het grootst?" : "sportblessures het kleinst?");

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) {
        const sport& deze = rij(o, i);
        op_plaats(i, deze.naam,
                  regel("Bij ", deze.naam, " is 1 % van de sporters", deze.een_procent, ", dus het percentage is"),
                  regel(kaal(duizend(deze.blessures())), " :", deze.een_procent, " =", deze.procent,
                        " %. Dat is niet het ", grootst ? "grootste." : "kleinste."));
    }
    if (variant % 2 == 1) {
        tip_1("Heb je wel alle percentages van de sporten", "berekend?");
        tip_2("Heb je bij alle sporten wel alle percentages", "berekend en gekeken bij welke sport dat het",
              grootst ? "hoogste is?" : "laagste is?");
    }

    const auto som = [](const sport& s) {
        return regel(s.naam, ":", duizend(s.blessures()), " :", s.een_procent, " =", s.procent, " %");
    };
    uitleg("Het goede antwoord vind je zo:", "deel het aantal blessures op 1 % van het aantal sporters.",
           regel(som(o[0]), ", ", som(o[1]), ","), regel(som(o[2]), ", ", som(o[3]), "."),
           regel("Het ", grootst ? "grootst" : "kleinst", " is het bij ", gezocht.naam, ": 1 % van",
                 duizend(gezocht.sporters()), " sporters is", gezocht.een_procent, "."),
           regel("Het percentage is dus ongeveer", gezocht.procent, " %."));
}

void oefeningen::M_hele_procenten_01_08_click() {
    kies_variant(2);
    zaai();
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
           regel("Dan krijg je ", basis_kaal, " : 100 =", antwoord_2, "."),
           regel("Daarna moet je nog met", p, " vermenigvuldigen."),
           regel("Dus", p, " % van ", basis_kaal, " is", antwoord_2, " x", p, " =", antwoord_1, "."));
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
    zaai();
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
    const auto euro = [](int whole) { return regel(kaal(duizend(whole)), " euro"); };

    bord(donkerblauw, zwart, 9);
    plaatje.filled_box(200, 150, 4980, 1830, wit);
    plaatje.filled_box(200, 150, 4980, 260, lichtgrijs);
    druk(350, 180, "BANK");
    druk(350, 600, "Geachte ", wie.naam, ",");
    druk(350, 1000, "We hebben ", euro(rente), " rente op", jouw, " rekening bijgeschreven.");
    druk(350, 1300, "Er staat nu ", euro(nieuw), " op", jouw, " rekening.");

    vraag(regel(wie.naam, " krijgt van de"), "bank een brief die je hiernaast ziet.", leeg,
          regel("Hoeveel procent rente heeft ", hij), "gekregen?");

    // Four percentages in a row, upward or downward, none of them 0.
    const bool omhoog = p <= juist - 1 ? false : p <= 4 - juist ? true : munt();
    juist_op(juist);
    for (int i = 1; i <= 4; ++i) op_plaats(i, procent(omhoog ? p + i - juist : p - i + juist));
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
        regel(wie.naam, " krijgt ", euro(rente), " rente bijgeschreven,"),
        regel("dus had ", hij, " eerst ", kaal(duizend(nieuw)), " - ", kaal(rente), " = ", euro(oud), "."),
        regel("1 % van dat bedrag is ", euro(een_procent), " (want", duizend(oud), " :100 = ", kaal(een_procent), ")."),
        regel(euro(een_procent), " gaat", p, " keer in ", euro(rente), "."),
        regel("Het goede percentage is inderdaad", p, " %."));
}

void oefeningen::Z_kommaprocenten_01_08_click() {
    kies_variant(4);
    zaai();
    // The percentage in hundredths and the base, so that 1 % and the answer have at most two decimals.
    int p = 0;
    int basis = 0;
    if (variant == 1) { // halves
        p = trek(9) * 100 + 150;
        basis = trek_van(200, 4000, 100);
    } else if (variant == 2) { // tenths
        p = trek(9) * 100 + 100 + kies(std::array{10, 20, 30, 40, 60, 70, 80, 90});
        basis = trek_van(200, 2000, 100);
    } else if (variant == 3) { // quarters
        p = trek(8) * 100 + 100 + (munt() ? 25 : 75);
        basis = trek_van(400, 4000, 400);
    } else { // tenths of a base that is no multiple of 100
        p = trek(8) * 100 + 100 + kies(std::array{20, 40, 50, 60, 80});
        basis = trek_van(110, 490, 20);
    }
    const bool leraar = munt();
    const number_text p_tekst = komma_kort(p, 2);
    const number_text b_tekst = duizend(basis);
    // All in ten-thousandths: hundredths of a per cent times hundredths of the base.
    const auto getal = [](int tienduizendsten) { return komma_kort(tienduizendsten, 4); };
    const int een_procent = basis * 100;
    const number_text antwoord = getal(p * basis);

    bord(groen, wit, 20);
    druk_rechts(3510, 600, kaal(p_tekst), " % van", b_tekst, " =");

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
           regel("Dat is", b_tekst, " : 100 = ", kaal(getal(een_procent)), "."),
           regel("Daarna doe je nog", p_tekst, " x ", kaal(getal(een_procent)), " = ", kaal(antwoord), "."),
           regel("Dus ", kaal(p_tekst), " % van", b_tekst, " = ", kaal(antwoord), "."));
    opdrachten(regel("PRINT_3600_600_14_20_", kaal(antwoord)));
}

void oefeningen::B_alcohol_01_08_Click() {
    static constexpr std::array<std::string_view, 8> steden{"Amsterdam", "Rotterdam",  "Den Haag",   "Utrecht",
                                                            "Eindhoven", "Maastricht", "Middelburg", "Groningen"};
    static constexpr std::array<std::string_view, 7> dagen{"maandag", "dinsdag",  "woensdag", "donderdag",
                                                           "vrijdag", "zaterdag", "zondag"};
    // A percentage, its fraction and what both its parts were divided by, and a fraction that it is not (nor 1/p,
    // which would be dividing by the percentage).
    struct paar {
        int procent;
        std::string_view breuk;
        int gedeeld_door;
        std::string_view verkeerd;
    };
    static constexpr std::array<paar, 8> paren{{{2, "1/50", 2, "1/20"},
                                                {4, "1/25", 4, "1/40"},
                                                {5, "1/20", 5, "1/50"},
                                                {50, "1/2", 50, "1/5"},
                                                {15, "3/20", 5, "1/5"},
                                                {20, "1/5", 20, "1/2"},
                                                {25, "1/4", 25, "2/5"},
                                                {40, "2/5", 20, "1/4"}}};
    kies_variant(4);
    zaai();
    const paar& deel = rij(paren, 2 * variant - (munt() ? 1 : 0));
    const int noemer = 100 / deel.gedeeld_door;
    const int getrokken = trek(850) + 150;
    const int n = getrokken - getrokken % noemer; // so that the fraction of it is whole
    const std::string_view stad = kies(steden);
    const std::string_view dag = kies(dagen);
    const int juist = trek(4) + 1;

    bord(wit, zwart, 11);
    plaatje.filled_box(0, 0, drawing::inner_width, 330, lichtgrijs);
    druk(250, 50, "HET NIEUWS");
    druk_rechts(5130, 50, dag);
    druk(250, 480, "In ", stad, " is gisteravond een");
    druk(250, 760, "grote alcoholcontrole gehouden.");
    druk(250, 1040, "Volgens de politie had bijna ", kaal(deel.procent), " % van ", kaal(n));
    druk(250, 1320, "aangehouden automobilisten teveel");
    druk(250, 1600, "gedronken.");

    vraag("Bekijk hiernaast een artikel", "over een alcoholcontrole...", leeg,
          regel("In plaats van ' ", kaal(deel.procent), " % van ", kaal(n), " ' kun je"), "ook zeggen...");

    const std::string_view keer = munt() ? " x " : " van ";
    goed(regel(deel.breuk, keer, kaal(n)));
    fout(regel(n, " : ", kaal(deel.procent)), "Een percentage van iets is niet",
         "hetzelfde als delen door dat percentage...");
    fout(regel(n, " x ", kaal(deel.procent)), "Een percentage van een aantal is niet hetzelfde",
         "als vermenigvuldigen met dat percentage.");
    fout(regel(deel.verkeerd, keer, kaal(n)), "Je hebt een verkeerde breuk gemaakt.", "Probeer het nog eens...");
    leg_vast(juist);

    uitleg(regel("Er staat: ", kaal(deel.procent), " % van ", kaal(n), " automobilisten..."),
           regel("Dat is 't zelfde als ", kaal(deel.procent), "/100 van ", kaal(n), "."),
           regel("Je kunt ", kaal(deel.procent), "/100 vereenvoudigen tot ", deel.breuk, ", want"),
           regel("je kunt teller en noemer door ", kaal(deel.gedeeld_door), " delen."),
           regel("Je mag dus ook zeggen: ", deel.breuk, " van ", kaal(n), " automobilisten."));
}

void oefeningen::L_bevolking_01_08_click() {
    struct gebied {
        std::string_view soort;
        std::array<std::string_view, 4> groepen;
    };
    static constexpr std::array<gebied, 10> gebieden{
        {{" een stad", {"Chinezen", "Maleisiërs", "Javanen", "Sumatranen"}},
         {" een land", {"Hindoes", "Boeddisten", "Islamieten", "Katholieken"}},
         {" een stad", {"Niet-kerkelijk", "Protestant", "Katholiek", "Islamiet"}},
         {" een land", {"Hindoestanen", "Creolen", "Javanen", "Blanken"}},
         {" een land", {"Brazilianen", "Portugezen", "Spanjaarden", "Engelsen"}},
         {" een staat", {"Amerikanen", "Spanjaarden", "Engelsen", "Peruanen"}},
         {" een werelddeel", {"Europeanen", "Aziaten", "Afrikanen", "Amerikanen"}},
         {" een stadsdeel", {"Katholiek", "Protestant", "Islamitisch", "Niet-kerkelijk"}},
         {" een staat", {"Argentijnen", "Brazilianen", "Peruanen", "Europeanen"}},
         {" een werelddeel", {"Boeddhisten", "Hindoes", "Katholieken", "Niet-kerkelijken"}}}};
    // The parts of a diagram in halves of a per cent.
    using delen = std::array<int, 4>;
    static constexpr delen juiste_delen{100, 50, 14, 36};
    static constexpr std::array<delen, 3> zonder_helft{{{70, 70, 40, 20}, {140, 30, 10, 20}, {60, 60, 60, 20}}};
    static constexpr std::array<delen, 2> zonder_kwart{{{100, 84, 8, 8}, {100, 34, 33, 33}}};
    static constexpr delen gelijke_resten{100, 50, 25, 25};
    static constexpr std::array<kleur, 4> kleuren{blauw, geel, rood, lichtgroen};

    kies_variant(10);
    zaai();
    const gebied& plaats = rij(gebieden, variant);
    const auto groepen = geschud(plaats.groepen);
    const int juist = trek(4) + 1;
    struct diagram {
        delen stukken;
        std::string_view commentaar_1, commentaar_2;
    };
    const auto fouten = geschud(std::array<diagram, 3>{
        {{kies(zonder_helft), "Bekijk eerst het makkelijkste percentage.", "Zie je in jouw diagram een halve cirkel?"},
         {kies(zonder_kwart), "Kijk eerst naar de makkelijke percentages.", "Zie je in jouw diagram een kwart cirkel?"},
         {gelijke_resten, "De makkelijke percentages kloppen.", "Maar 18 % hoort bij een groter stuk dan 7 %."}}});

    bord(wit, zwart, 10);
    juist_op(juist);
    for (int i = 1, volgende = 0; i <= 4; ++i) {
        const diagram getekend =
            i == juist ? diagram{juiste_delen, {}, {}} : fouten[static_cast<std::size_t>(volgende++)];
        const int x = 720 + (i - 1) * 1313;
        druk_midden(x, 20, i);
        double begin = trek(4) * 90;
        for (std::size_t s = 0; s < 4; ++s) {
            const double hoek = getekend.stukken[s] * 1.8;
            plaatje.sector(x, 750, 450, begin, hoek, kleuren[s], true);
            plaatje.sector(x, 750, 450, begin, hoek, zwart, false);
            begin += hoek;
        }
        op_plaats(i, regel("nummer", i), getekend.commentaar_1, getekend.commentaar_2);
    }
    static constexpr std::array<std::string_view, 4> procenten{" 50 %", " 25 %", "  7 %", " 18 %"};
    for (std::size_t s = 0; s < 4; ++s) {
        const int x = s % 2 == 0 ? 480 : 2950;
        const int y = s < 2 ? 1420 : 1740;
        plaatje.filled_box(x, y + 50, 160, 140, kleuren[s]);
        plaatje.box(x, y + 50, 160, 140, zwart);
        druk(x + 250, y, groepen[s]);
        druk_rechts(x + 1950, y, procenten[s]);
    }

    vraag("In een atlas staat weergegeven", "hoe de samenstelling is van de", regel("bevolking van", plaats.soort, "."),
          "Welk van de vier diagrammen", "hoort bij de gegevens die", "daaronder vermeld staan?");

    uitleg("Je kunt het best eerst naar het makkelijkste", "percentage kijken, dus 50 %. Daar hoort een halve",
           "cirkel bij. Dan blijven er één of meer diagrammen over.",
           "Kijk dan naar de andere percentages: 25 % hoort bij een",
           "kwart cirkel en 18 % hoort bij een groter stuk dan 7 %.",
           regel("Het goede antwoord is dus nummer", juist, "."));
}

void oefeningen::B_grasveld_01_08_click() {
    // Numbers of strips of which each is a whole percentage.
    static constexpr std::array<int, 7> aantallen{4, 5, 5, 10, 10, 20, 25};
    struct veld {
        int baantjes, gemaaid;
        int procent(int aantal) const { return aantal * 100 / baantjes; }
    };
    kies_variant(2);
    zaai();
    const auto [n, m] = trek_tot(
        [this] {
            const int baantjes = rij(aantallen, trek(7) + 1);
            return veld{baantjes, trek(baantjes - 1) + 1};
        },
        [](const veld& v) {
            // No count of strips is the percentage of the other part, nor are the parts the same.
            const int over = v.baantjes - v.gemaaid;
            return v.gemaaid != over && v.gemaaid != v.procent(over) && over != v.procent(v.gemaaid);
        });
    const int rest = n - m;
    const int procent_gemaaid = m * 100 / n;
    const int procent_rest = 100 - procent_gemaaid;
    const bool gemaaid_gevraagd = variant == 1;

    bord(wit, zwart, 8);
    const int breedte = 5000 / n;
    const int links = (drawing::inner_width - n * breedte) / 2;
    for (int i = 0; i < n; ++i) {
        plaatje.filled_box(links + i * breedte, 165, breedte, 1800, i < m ? lichtgroen : groen);
        plaatje.box(links + i * breedte, 165, breedte, 1800, zwart);
    }

    vraag("Een grasveld wordt gemaaid.", "Wat lichtgroen is, is al gedaan", "en wat donkergroen is, moet nog",
          "gemaaid worden.", gemaaid_gevraagd ? "Hoeveel procent is al gemaaid?" : "Hoeveel procent moet nog gemaaid",
          gemaaid_gevraagd ? leeg : "worden?");

    goed(procent(gemaaid_gevraagd ? procent_gemaaid : procent_rest));
    if (gemaaid_gevraagd) {
        fout(procent(rest), "Jouw antwoord gaat over de baantjes die nog", "gemaaid moeten worden...",
             "Je moet een percentage berekenen en niet", "een aantal...");
        fout(procent(procent_rest), "Je hebt het percentage berekend voor", "datgene wat nog gedaan moet worden...",
             "Lees de vraag nog eens goed.");
        fout(procent(m), "Je hebt het aantal gemaaide baantjes geteld.", "Je moet een percentage berekenen en niet",
             "een aantal...");
    } else {
        fout(procent(rest), "Je hebt de baantjes geteld die nog gemaaid", "moeten worden.",
             "Je moet een percentage berekenen en niet", "een aantal...");
        fout(procent(procent_gemaaid), "Je hebt het percentage berekend voor", "datgene wat al gedaan is...",
             "Lees de vraag nog eens goed.");
        fout(procent(m), "Je hebt het aantal gemaaide baantjes geteld.", "Lees de vraag nog eens goed.");
    }

    uitleg(regel("Er zijn", n, " baantjes die uiteindelijk gemaaid moeten worden."),
           regel(m == 1 ? "Hiervan is er al" : "Hiervan zijn er al", m, " gedaan,"),
           regel("dat is dus", m, "/", kaal(n), " van het hele grasveld."),
           regel("Je kunt ook zeggen: ", kaal(procent_gemaaid), " / 100 van het gras is"),
           regel("gemaaid = ", kaal(procent_gemaaid), " %."),
           gemaaid_gevraagd
               ? std::string(leeg)
               : regel("Er moet dus nog 100 % -", procent_gemaaid, " % =", procent_rest, " % gemaaid worden."));
}

} // namespace cijferwerf
