// Times of day and how long things last: a match, a wait, the way to school, a journey by train, time zones.
// The wrong answers are an hour off, count a hundred minutes to the hour, or mistake the part of the day.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/kloktijd.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// " 2 uur en 35 minuten", to go on a line with.
plakregel uren_en_minuten(int duur) { return plak_even({duur / 60, " uur en", duur % 60, " minuten"}); }

} // namespace

void oefeningen::B_wedstrijd_06_04_click() {
    static constexpr std::array<std::string_view, 12> clubs{"A", "B", "D", "G", "H", "K", "L", "M", "N", "R", "S", "W"};
    static constexpr std::array<std::string_view, 3> klassen{"HOOFDKLASSE-", "OVERGANGSKLASSE-", "AFDELING-"};
    static constexpr std::array<std::string_view, 4> streken{"NOORD", "OOST", "ZUID", "WEST"};
    kies_variant(4);
    // By sub-variant on the hour or five past, and of one hour or of two.
    const auto namen = geschud(clubs);
    const std::string_view thuis = kop() ? ".V.C." : ".V.V.", uit = kop() ? ".V.C." : ".V.V.";
    const std::string_view klasse = kies(klassen), streek = kies(streken), weekdag = kies(weekdagen);
    const int maandnummer = trek_van(1, 12);
    const datum op{trek_van(1, rij(maanden, maandnummer).dagen), maandnummer};
    const int uren = variant <= 2 ? 1 : 2;
    const int minuten = trek_van(5, 54);
    const int duur = 60 * uren + minuten;
    const kloktijd aanvang = om(trek_van(10, 20), variant % 2 == 1 ? 0 : 5);
    const kloktijd einde = aanvang + duur;

    bord(groen, zwart, 13);
    teken_blad(plaatje, {440, 100, 4500, 1900}, bladsoort::reclame, "VOLLEYBAL",
               {regel(klasse, streek), regel(namen[0], thuis, " – ", namen[1], uit), regel(weekdag, " ", op.tekst()),
                regel("aanvang ", aanvang.tekst())});

    vraag("Hiernaast zie je de aankondiging", "van een volleybalwedstrijd.", "Deze wedstrijd duurde in",
          regel("totaal", duur, " minuten."), "Hoe laat was de wedstrijd", "afgelopen?");

    // An hour or ten minutes off, and hours of a hundred minutes or of forty.
    drie_andere(duur, [aanvang](int lengte) { return (aanvang + lengte).tekst(); },
                {{duur - 60}, {duur - 40}, {duur - 10}, {duur + 10}, {duur + 40}, {duur + 60}});
    if (variant % 2 == 1)
        tip_1("Bereken om te beginnen hoeveel uur en hoeveel", "minuten de wedstrijd duurde....");
    else
        tip_1("Reken eerst uit hoeveel uur en hoeveel minuten", "de wedstrijd duurde....");
    tip_2("Eerst moet je nagaan hoeveel uur en hoeveel", "minuten de wedstrijd duurde. Tel vervolgens dat aantal",
          "uren bij de begintijd op. Daarna moet je dat aantal", "minuten er nog bij doen....");

    const std::string lang = regel("De wedstrijd duurt", duur, " minuten. Je kunt ook zeggen:");
    const std::string gesplitst = regel(uren, " uur en", minuten, " minuten (want een uur is 60 minuten).");
    const std::string hele_uren =
        regel("Ga eerst", uren, " uur verder, dan kom je op ", (aanvang + 60 * uren).tekst(), ".");
    if (variant % 2 == 1)
        uitleg(lang, kaal(gesplitst), hele_uren, regel("Doe er dan nog", minuten, " minuten bij, dan is"),
               regel("het ", einde.tekst(), "."));
    else
        uitleg(lang, kaal(gesplitst), hele_uren,
               regel("Dan houd je nog", minuten, " minuten over, zodat 't eindigt om ", einde.tekst(), "."));
}

void oefeningen::L_wachten_06_04_click() {
    static constexpr std::array<persoon, 20> reizigers{
        {{"Henk-Jan", man},   {"Marsha", vrouw}, {"Danny", man},    {"Irene", vrouw},  {"Harold", man},
         {"Marianne", vrouw}, {"Henk", man},     {"Martje", vrouw}, {"Robert", man},   {"Inge", vrouw},
         {"Michael", man},    {"Diana", vrouw},  {"Boris", man},    {"Yvonne", vrouw}, {"Maarten", man},
         {"Karin", vrouw},    {"Mobien", man},   {"Adisa", vrouw},  {"Milan", man},    {"Malti", vrouw}}};
    static constexpr std::array<std::string_view, 20> steden{
        "Rome",     "Brussel",   "Parijs",        "Londen", "New York", "Athene",   "Madrid",
        "Berlijn",  "Frankfurt", "Dublin",        "Moskou", "Oslo",     "Helsinki", "Ankara",
        "Montreal", "Ontario",   "San Francisco", "Wenen",  "Mexico",   "Praag"};
    static constexpr std::array<std::string_view, 6> piers{"B", "C", "D", "E", "F", "G"};
    static constexpr std::array<std::array<std::string_view, 2>, 4> tips{
        {{"Kijk op het horloge hoe laat het is. Maak dan", "eerst het uur vol... "},
         {"Hoe laat is het op het horloge? Hoeveel minuten", "duurt het nog, totdat het uur vol is?"},
         {"Lees het horloge af. Reken daarna eerst tot", "het volgende hele uur..."},
         {"Begin met de tijd van het horloge en vul die", "eerst aan tot een heel uur."}}};
    kies_variant(4);
    // By sub-variant in steps of five minutes or of one; the minutes of the departure are more than those of the
    // arrival, or fewer.
    const persoon& wie = kies(reizigers);
    const std::string_view stad = kies(steden), pier = kies(piers);
    const int vlucht = trek_van(102, 989);
    const int stap = variant <= 2 ? 5 : 1;
    const bool lenen = variant % 2 == 0;
    const int weinig = trek_van(5, 45, stap);
    const int veel = trek_van(weinig + 5, 55, stap);
    const int aankomst_uur = trek_van(6, 16);
    const int uren = trek_van(2, 5);
    const kloktijd aankomst = om(aankomst_uur, lenen ? veel : weinig);
    const kloktijd vertrek = lenen ? om(aankomst_uur + uren + 1, weinig) : om(aankomst_uur + uren, veel);
    const kloktijd vol = om(aankomst_uur + 1);
    const int tot_vol = vol - aankomst;
    const int wachttijd = vertrek - aankomst;

    bord(wit, zwart, 16);
    plaatje.picture("wachten.bmp");
    {
        const verteld_als horloge(plaatje, "Op het horloge staat ", aankomst.cijfers(), ".");
        druk_midden(1000, 885, aankomst.cijfers());
    }
    plaatje.text_size = 12;
    const auto op_bord = [this](int y, std::string_view kop, std::string_view tekst) {
        plaatje.fore_colour = wit;
        druk(2180, y, kop);
        plaatje.fore_colour = geel;
        druk(3810, y, tekst);
    };
    op_bord(300, "VLUCHT:", regel("VL", vlucht));
    op_bord(700, "BESTEMMING:", stad);
    op_bord(1100, "VERTREKTIJD:", vertrek.cijfers());
    op_bord(1500, "PIER: ", pier);

    vraag(regel(wie.naam, " gaat per vliegtuig naar"), regel(stad, ". Op het horloge zie je hoe"),
          regel("laat ", wie.hij(), " de vertrekhal"), "binnenkomt.",
          regel("Daarnaast zie je hoe laat ", wie.naam, " vertrekt."), regel("Hoe lang moet ", wie.naam, " wachten?"));

    // Hours or minutes off; there are always some of either.
    std::vector<keuze<int>> vergissingen;
    for (const int ernaast : {-60, -40, -20, -10, 10, 20, 40, 60})
        if ((wachttijd + ernaast) % 60 != 0) vergissingen.push_back({wachttijd + ernaast});
    drie_andere(
        wachttijd, [](int duur) { return regel(duur / 60, " uur+", duur % 60, " min"); }, vergissingen);
    const auto& [tip, slot] = rij(tips, variant);
    tip_1(tip, slot);
    tip_2("Tel eerst de minuten tot het volgende hele uur.", "Tel daar de uren en minuten tot het vertrek bij op.");

    const int minuten = tot_vol + vertrek.minuut();
    uitleg(regel("De tijd van het horloge is ", aankomst.tekst(), "."),
           regel("Je maakt eerst het uur vol met", tot_vol, " minuten tot", vol.uur(), ":00 uur."),
           regel("Dan is het naar ", vertrek.tekst(), " nog", uren_en_minuten(vertrek - vol), " verder."),
           regel(kaal(tot_vol), " +", vertrek.minuut(), " =", minuten, " minuten",
                 minuten > 60 ? regel(", en dat is", uren_en_minuten(minuten)) : "", "."),
           regel("In totaal duurt het dus", uren_en_minuten(wachttijd), "."));
}

void oefeningen::M_naar_school_06_04_click() {
    static constexpr std::array<std::string_view, 10> namen{"Jelmer", "Petra", "Johan", "Johanna", "Peter",
                                                            "Diana",  "Meded", "Malti", "Milan",   "Firozha"};
    kies_variant(4);
    // By sub-variant without or with a whole hour between, and in steps of five minutes or of one.
    const std::string_view naam = kies(namen);
    const bool uur_ertussen = variant % 2 == 0;
    const bool precies = variant > 2;
    const kloktijd wekker = om(uur_ertussen ? 6 : 7, trek_van(10, 55, precies ? 1 : 5));
    const kloktijd school = om(8, trek_van(15, 50, 5));
    const int tot_vol = 60 - wekker.minuut();
    const int juist = school - wekker;
    const int van_100 = juist + (school.uur() - wekker.uur()) * 40;

    bord(cyaan, wit, 14);
    teken_klok(plaatje, {2690, 1110}, 800, wekker.minuten);

    vraag(regel("De wekker van ", naam, " loopt om"),
          regel(wekker.tekst(), " af. ", naam, " moet om ", school.tekst(), " op"), "school zijn.", leeg,
          regel("Hoeveel minuten heeft ", naam, " nog om op tijd"), "op school te zijn?");

    const std::string_view honderd =
        precies ? "Een uur bevat 60, niet 100 minuten." : "Heb je soms voor een uur 100 minuten gerekend?";
    const std::string_view uurtje = precies ? "Je zit er een uurtje naast." : "Het scheelt een uurtje!";
    const std::string_view beetje = precies ? "Het scheelt nog wel een beetje." : "Het scheelt nog wat...";
    drie_andere(juist, [](int minuten) { return regel(minuten, " min"); },
                {{van_100, {honderd}},
                 {juist - 60, {uurtje}},
                 {juist + 60, {uurtje}},
                 {juist - 10, {beetje}},
                 {juist - 5, {beetje}},
                 {juist + 10, {beetje}}});

    const std::string_view erbij = uur_ertussen ? "er 60 minuten en nog eens" : "er nog eens";
    const std::string_view plus = uur_ertussen ? " + 60 + " : " + ";
    uitleg(regel("De wekker loopt om ", wekker.tekst(), " af. Om het uur"),
           regel("'vol' te maken heb je dus nog", tot_vol, " minuten nodig. Dan is het"),
           regel(om(wekker.uur() + 1).tekst(), ". De school begint om ", school.tekst(), ", dus moet je"),
           regel(erbij, school.minuut(), " minuten bij optellen."),
           regel("Totaal dus: ", kaal(tot_vol), plus, kaal(school.minuut()), " =", juist, " minuten."));
}

void oefeningen::M_trein_06_04_click() {
    static constexpr std::array<std::string_view, 20> namen{
        "Bregje", "Ruud",    "Anneke",  "Bert",    "Ineke", "Guus",    "Els",     "Carel", "Erica", "Erik",
        "Dewi",   "Sandjai", "Yezmine", "Dalibor", "Adisa", "Hussein", "Vanessa", "Jordi", "Aruna", "Maarten"};
    static constexpr std::array<std::string_view, 12> steden{"Maastricht", "Middelburg", "Venlo",     "Groningen",
                                                             "Leeuwarden", "Nijmegen",   "Arnhem",    "Den Helder",
                                                             "Den Bosch",  "Den Haag",   "Rotterdam", "Utrecht"};
    kies_variant(4);
    // By sub-variant one to three quarters, with a delay that stays within the hour, and in the last one goes past it.
    const std::string_view naam = kies(namen);
    const auto richtingen = geschud(steden);
    const int uren = trek_van(1, 3);
    const int kwartieren = std::min(variant, 3);
    const int vertraging = variant == 4 ? trek_van(17, 29) : trek_van(3, 14);
    const kloktijd vertrek{trek_van(6 * 60, 18 * 60 - 1)};
    const int treinreis = 60 * uren + 15 * kwartieren;
    const int reistijd = treinreis + vertraging;
    std::array<int, 4> na_de_eerste{}; // minutes at which the trains of the board leave
    for (std::size_t i = 1; i < 4; ++i) na_de_eerste[i] = na_de_eerste[i - 1] + trek_van(3, 12);
    const auto eigen = static_cast<std::size_t>(trek(4));
    const std::string_view stad = richtingen[eigen];

    bord(donkerblauw, wit, 14);
    tabel vertrekken(plaatje, 190, 115, 5000, 380,
                     {{"RICHTING", 300}, {"VERTREK", 3700, true}, {"perron", 5000, true}});
    for (std::size_t i = 0; i < 4; ++i) {
        const kloktijd trein = vertrek + (na_de_eerste[i] - na_de_eerste[eigen]);
        vertrekken.rij(richtingen[i], trein.cijfers(), trek_van(1, 9));
    }

    vraag(regel(naam, " gaat om ", vertrek.tekst(), " per trein"), regel("naar ", stad, ". De treinreis zelf"),
          regel("duurt", uren, " uur en", kwartieren, " kwartier."), "De trein heeft echter onderweg",
          regel(kaal(vertraging), " minuten vertraging."), regel("Hoe laat komt ", naam, " in ", stad, " aan?"));

    // The delay forgotten or taken off, the quarters forgotten or of 25 minutes, the hours miscounted.
    drie_andere(reistijd, [vertrek](int duur) { return (vertrek + duur).tekst(); },
                {{treinreis},
                 {treinreis - vertraging},
                 {60 * uren + vertraging},
                 {reistijd - 60},
                 {reistijd + 10 * kwartieren},
                 {reistijd + vertraging},
                 {reistijd + 60}});
    if (variant % 2 == 1) {
        tip_1("Om te beginnen moet je eerst de reistijd", "uitrekenen.");
        tip_2("Je moet eerst de totale reistijd uitrekenen", "en daarbij de vertraging niet vergeten....");
    } else {
        tip_1("Bereken eerst de reistijd.");
        tip_2("Reken eerst de totale reistijd uit en vergeet", "daarbij de vertraging niet.");
    }

    uitleg("Je kunt het best eerst de totale reistijd uitrekenen.",
           regel("De reistijd is", uren, " uur +", kwartieren, " kwartier +", vertraging, " minuten."),
           regel("Dat is dus", 60 * uren, " +", 15 * kwartieren, " +", vertraging, " =", reistijd, " minuten."),
           regel("Je kunt ook zeggen: de reistijd is", uren_en_minuten(reistijd), "."),
           regel("Dit tel je op bij ", vertrek.tekst(), ", zodat je komt bij ", juiste_antwoord(), "."));
}

namespace {

// A city, and how many hours later than in London it is there.
struct wereldstad {
    std::string_view naam, verschil;
    int uren;
};
constexpr std::array<wereldstad, 24> wereldsteden{{{"Accra", "0 uur", 0},       {"Amsterdam", "+1 uur", 1},
                                                   {"Ankara", "+2 uur", 2},     {"Bombay", "+5 uur", 5},
                                                   {"Cairo", "+2 uur", 2},      {"Curaçao", "-4 uur", -4},
                                                   {"Chicago", "-6 uur", -6},   {"Jakarta", "+7 uur", 7},
                                                   {"Kaapstad", "+1 uur", 1},   {"Kabul", "+4 uur", 4},
                                                   {"Lissabon", "0 uur", 0},    {"Los Angeles", "-8 uur", -8},
                                                   {"Mekka", "+3 uur", 3},      {"Mexico", "-6 uur", -6},
                                                   {"Miami", "-5 uur", -5},     {"Moskou", "+2 uur", 2},
                                                   {"New York", "-5 uur", -5},  {"Paramaribo", "-4 uur", -4},
                                                   {"Peking", "+8 uur", 8},     {"Perth", "+8 uur", 8},
                                                   {"Reykjavik", "-1 uur", -1}, {"Rio de Janeiro", "-3 uur   ", -3},
                                                   {"Sydney", "+10 uur", 10},   {"Tokio", "+9 uur", 9}}};

void teken_tijdsverschillen(drawing& on) {
    on.print_centred(2690, 60, "TIJDSVERSCHIL MET LONDEN");
    on.text_size = 8.25;
    for (int i = 0; const wereldstad& stad : wereldsteden) {
        const int x = 130 + i / 8 * 1760, y = 390 + i % 8 * 205;
        on.print_at(x, y, stad.naam);
        on.print_at(x + 1090, y, stad.verschil);
        ++i;
    }
    for (const int x : {1780, 3540}) on.line(x, 390, x, 1990, cyaan);
}

// An hour of the day of which nobody doubts whether it is night, morning, afternoon or evening.
constexpr bool duidelijk_dagdeel(int uur) {
    return uur >= 1 && uur <= 23 && uur % 12 != 0 && uur % 12 != 6 && uur != 5;
}

} // namespace

void oefeningen::Z_wereldtijden_06_04_click() {
    static constexpr std::array<std::array<std::string_view, 3>, 4> meldingen{
        {{"Je zit er een uurtje naast.", "Het scheelt toch wel een paar uurtjes...",
          "Heb je je soms in het deel van de dag vergist?"},
         {"Het scheelt een uurtje.", "Je zit er een paar uurtjes naast.",
          "Kijk nog eens over welk deel van de dag het gaat."},
         {"'t Scheelt toch wel een uur.", "Het scheelt toch wel een paar uurtjes...",
          "Kijk nog eens over welk deel van de dag het gaat."},
         {"Het scheelt een uurtje.", "Je zit er een paar uurtjes naast.",
          "Heb je je soms in het deel van de dag vergist?"}}};
    kies_variant(4);
    // By sub-variant earlier or later than in London, in either city, and in both on the same day.
    const auto steden = geschud(wereldsteden);
    const auto een_die = [&](auto past) { return *std::find_if(steden.begin(), steden.end(), past); };
    const wereldstad hier = een_die([&](const wereldstad& s) { return variant <= 2 ? s.uren < 0 : s.uren > 0; });
    const wereldstad daar = een_die(
        [&](const wereldstad& s) { return (variant % 2 == 1 ? s.uren < 0 : s.uren > 0) && s.uren != hier.uren; });
    const int verschil = daar.uren - hier.uren;
    std::vector<int> uren;
    for (int uur = 1; uur < 24; ++uur)
        if (duidelijk_dagdeel(uur) && duidelijk_dagdeel(uur + verschil)) uren.push_back(uur);
    const kloktijd tijd_hier = om(kies(uren));
    const int paar = trek_van(2, 3);
    const kloktijd tijd_daar = tijd_hier + 60 * verschil;
    const auto met_dagdeel = [](kloktijd t) { return regel(t.op_wijzerplaat().tekst(), " ", t.dagdeel()); };

    bord(wit, donkerblauw, 12);
    teken_tijdsverschillen(plaatje);

    vraag("In het overzicht zie je de tijds-", "verschillen van een aantal steden",
          "in de wereld ten opzichte van Londen.",
          regel("Als het in ", hier.naam, " ", tijd_hier.op_wijzerplaat().tekst()),
          regel(tijd_hier.dagdeel(), " is, hoe laat is het dan in"), regel(daar.naam, "?"));

    const auto& [uur_ernaast, paar_uur, dagdeel] = rij(meldingen, variant);
    std::vector<keuze<int>> vergissingen{
        {tijd_daar.uur() < 12 ? tijd_daar.uur() + 12 : tijd_daar.uur() - 12, {dagdeel}}};
    for (const int ernaast : {-paar, -1, 1, paar})
        if (const int uur = tijd_daar.uur() + ernaast; uur < 24)
            vergissingen.push_back({uur, {std::abs(ernaast) == 1 ? uur_ernaast : paar_uur}});
    drie_andere(
        tijd_daar.uur(), [&](int uur) { return met_dagdeel(om(uur)); }, vergissingen);

    const int later = std::abs(verschil);
    const std::string_view dan = verschil > 0 ? " uur later" : " uur vroeger";
    uitleg(regel("Boven zie je dat 't in ", hier.naam, std::abs(hier.uren),
                 hier.uren > 0 ? " uur later is dan in" : " uur vroeger is dan"),
           regel(hier.uren > 0 ? "Londen." : "in Londen.", " In ", daar.naam, " is het", std::abs(daar.uren),
                 daar.uren > 0 ? " uur later dan in Londen." : " uur vroeger dan in Londen."),
           regel("In ", daar.naam, " is het dus", later, dan, " dan in ", hier.naam, "."),
           regel("In ", hier.naam, " is het ", met_dagdeel(tijd_hier), tijd_hier.uur() > 12 ? ", ofwel " : "",
                 tijd_hier.uur() > 12 ? tijd_hier.tekst() : "", "."),
           regel(kaal(tijd_hier.uur()), verschil > 0 ? ":00 uur +" : ":00 uur -", later, " uur geeft ",
                 tijd_daar.tekst(), "."),
           regel("In ", daar.naam, " is het dus ", juiste_antwoord(), "."));
}

} // namespace cijferwerf
