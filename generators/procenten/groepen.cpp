// Percentages of a group of people: how many they are, how many per cent, and where that is most.
// The wrong answers are the other group and a count for a percentage.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

#include <algorithm>

namespace cijferwerf {

namespace {

plakregel procent(int whole) { return plak_even({whole, " %"}); }

constexpr std::array<std::string_view, 29> clubs{
    "Ajax",         "PSV",       "Feyenoord",   "FC Utrecht",  "FC Den Haag",    "FC Groningen",
    "MVV",          "FC Twente", "Vitesse",     "Volendam",    "Heerenveen",     "Sparta",
    "FC Haarlem",   "NEC",       "NAC",         "AZ",          "Excelsior",      "PEC Zwolle",
    "FC Barcelona", "AC Milan",  "Real Madrid", "Inter Milan", "Bayern München", "FC Köln",
    "FC Liverpool", "Celtic",    "Anderlecht",  "FC Brugge",   "Barcelona"};

} // namespace

void oefeningen::L_voetbal_01_08_click() {
    kies_variant(5);
    const int mensen = trek(10) * 1000 + 3000;
    const int procent_thuis = trek(40) + 55;
    struct affiche {
        std::string_view thuis, bezoekers;
    };
    // "Barcelona" and "FC Barcelona" are one club.
    const auto [thuis, bezoekers] = trek_tot(
        [this] {
            const std::string_view eerste = kies(clubs);
            return affiche{eerste, kies(clubs)};
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
           regel("100 % -", procent_thuis, " % =", procent_bezoekers, " % is supporter van ", bezoekers, "."),
           regel("Nu is 1 % van alle toeschouwers gelijk aan", een_procent, ","),
           regel("zodat", procent_bezoekers, " % hetzelfde is als", procent_bezoekers, " x", een_procent, " = ongeveer",
                 duizend(supporters), " supporters."));
}

void oefeningen::L_examen_01_08_click() {
    // How many pupils take part, and the percentages that make whole numbers of them. 1 % of them is whole, ends in
    // ,5 or is a number of tenths: nothing harder to divide by.
    struct groep {
        std::array<int, 4> leerlingen;
        int stap;
    };
    static constexpr std::array<groep, 4> groepen{
        {{{200, 300, 400, 500}, 1}, {{50, 150, 250, 350}, 2}, {{40, 60, 120, 140}, 5}, {{450, 550, 650, 750}, 2}}};
    static constexpr std::array<std::string_view, 6> examenmaanden{"januari",  "mei",     "juni",
                                                                   "augustus", "oktober", "december"};
    kies_variant(8);
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
            return u.aantal() > 1 && // the sentences are about several pupils
                   alle_verschillend(std::array{u.procent, 100 - u.procent, u.aantal(), u.leerlingen - u.aantal()});
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
           regel("Het goede antwoord is dus ", examen.procent, " %."));
}

void oefeningen::M_blessures_01_08_click() {
    static constexpr std::array<std::string_view, 16> sporten{
        "voetbal", "hockey",    "volleybal", "golf",     "tennis",  "basketbal", "wielrennen", "hardlopen",
        "boksen",  "worstelen", "judo",      "atletiek", "honkbal", "vollybal",  "badminton",  "handbal"};
    static constexpr std::array<std::string_view, 8> landen{"Engeland",  "Nederland", "Noorwegen",  "België",
                                                            "Frankrijk", "Rusland",   "Denemarken", "Italië"};
    static constexpr std::array<std::string_view, 7> langere_perioden{
        "eerste kwartaal", "tweede kwartaal", "derde kwartaal", "vierde kwartaal",
        "eerste halfjaar", "tweede halfjaar", "in 't jaar"};
    struct sport {
        std::string_view naam;
        int een_procent; // of those who do it: what a child can divide by
        int procent;     // of those who were hurt
        int sporters() const { return een_procent * 100; }
        int blessures() const { return een_procent * procent; }
    };
    using overzicht = std::array<sport, 4>;
    static constexpr std::array<int, 15> delers{4, 5, 6, 7, 8, 9, 10, 15, 20, 25, 30, 35, 40, 45, 50};
    const auto plaats_van = [](const overzicht& o, bool grootst, auto maat) {
        const auto found = grootst ? std::ranges::max_element(o, {}, maat) : std::ranges::min_element(o, {}, maat);
        return static_cast<int>(found - o.begin()) + 1;
    };

    kies_variant(4);
    const bool grootst = variant > 2;
    const std::string_view land = kies(landen);
    const int periode_nummer = trek_van(1, 19);
    const std::string_view periode =
        periode_nummer <= 12 ? rij(maanden, periode_nummer).naam : rij(langere_perioden, periode_nummer - 12);
    // The percentages lie at least 2 apart, and who only looks at the numbers of injuries is wrong.
    const overzicht o = trek_tot(
        [&] {
            const auto namen = geschud(sporten);
            const auto procenten = geschud(std::array{2, 4, 6, 8, 10, 12, 15, 18, 20});
            overzicht drawn{};
            for (std::size_t i = 0; i < drawn.size(); ++i) drawn[i] = {namen[i], kies(delers), procenten[i]};
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
    plaatje.text_size = 10.5;
    tabel overzicht_in_krant(plaatje, 250, 620, 4880, 285,
                             {{"sport", 400}, {"sporters", 3300, true}, {"blessures", 4900, true}});
    plaatje.fore_colour = zwart;
    for (const sport& deze : o) overzicht_in_krant.rij(deze.naam, duizend(deze.sporters()), duizend(deze.blessures()));

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

} // namespace cijferwerf
