#include "forms/introduction/infoscherm.h"

#include "forms/marks.h"
#include "forms/practice/catalogue.h"
#include "forms/practice/mama.h"

namespace cijferwerf {

namespace {

struct inleiding {
    int first_booklet, last_booklet;
    std::string_view title;
    std::string_view lines[infoscherm::lines];
};

constexpr inleiding inleidingen[]{
    {1,
     1,
     "Wat zijn procenten?",
     {"Procent betekent: van de honderd. Dus 25 % is 25 van de 100, en dat is een kwart.",
      "Je komt procenten overal tegen: bij korting in de winkel, bij rente en in de krant.", "",
      "Vaak reken je eerst uit hoeveel 1 % is. Daarvoor deel je door 100.",
      "Daarna vermenigvuldig je met het aantal procenten dat je zoekt.", "",
      "Handig om te onthouden: 50 % is de helft, 25 % is een kwart en 10 % is een tiende."}},
    {2,
     2,
     "Wat is een verhouding?",
     {"Met een verhouding vergelijk je twee hoeveelheden, zoals 2 eieren op 3 bekers melk.",
      "Neem je twee keer zoveel eieren, dan heb je ook twee keer zoveel melk nodig.", "",
      "Een schaal is ook een verhouding. Bij schaal 1 : 100 is 1 cm op de tekening",
      "in het echt 100 cm, en dat is 1 meter.", "",
      "Tip: zet de getallen in een tabel. Dan zie je waarmee je moet vermenigvuldigen."}},
    {3,
     3,
     "Wat is een breuk?",
     {"Een breuk is een deel van een geheel. Eet je een kwart van een pizza,",
      "dan verdeel je de pizza in 4 gelijke stukken en eet je er 1 op.", "",
      "Het getal onder de streep heet de noemer: in hoeveel stukken is er verdeeld?",
      "Het getal boven de streep heet de teller: hoeveel van die stukken neem je?", "",
      "Wil je breuken optellen, maak de noemers dan eerst gelijk."}},
    {4,
     4,
     "Getallen in beeld",
     {"In een grafiek zie je in één oogopslag wat er met getallen gebeurt.",
      "Er zijn verschillende soorten: staafgrafieken, lijngrafieken en cirkelgrafieken.", "",
      "Kijk altijd eerst wat er bij de assen staat. Zijn het mensen, euro's of graden?",
      "Kijk daarna hoeveel één streepje betekent: 1, 10 of misschien wel 1.000.", "",
      "Lees dan pas af, en let goed op wat er precies gevraagd wordt."}},
    {5,
     5,
     "Rekenen met geld",
     {"In de winkel, op de markt en bij de bank: met geld reken je elke dag.",
      "Achter de komma staan de centen. Eén euro is 100 cent.", "",
      "Prijzen zijn vaak nét geen rond getal. Reken dan eerst met het ronde getal",
      "en haal er daarna af wat je te veel hebt genomen.", "",
      "Krijg je geld terug? Tel dan van de prijs verder tot het bedrag dat je gaf."}},
    {6,
     6,
     "Rekenen met tijd",
     {"Een dag heeft 24 uur, een uur heeft 60 minuten en een minuut heeft 60 seconden.",
      "Bij tijd ga je dus niet bij 100 verder, maar bij 60. Pas daar goed voor op!", "",
      "Een kwart uur is 15 minuten en een half uur is 30 minuten.",
      "Op een digitale klok is half vier in de middag 15:30.", "",
      "Tip: reken eerst tot het hele uur, en van daar weer verder."}},
    {7,
     8,
     "Meten en meetkunde",
     {"Hoe lang, hoe groot en hoe zwaar? Dat meet je met meters, liters en grammen.",
      "Een meter is 100 centimeter, een liter is 10 deciliter, een kilo is 1.000 gram.", "",
      "De omtrek is de lengte van de rand. De oppervlakte is het vlak erbinnen:",
      "bij een rechthoek is dat lengte keer breedte. De inhoud van een doos is", "lengte keer breedte keer hoogte.",
      "Let op de maten: reken ze eerst om, zodat ze gelijk zijn."}},
    {9,
     9,
     "Rekenen uit je hoofd",
     {"Met een slimme manier reken je in je hoofd sneller dan met een machine.",
      "Kijk eerst goed naar de getallen, en begin dan pas te rekenen.", "",
      "Splitsen helpt vaak: 7 x 24 is 7 x 20 en nog eens 7 x 4. Dat is 140 + 28 = 168.",
      "Een rond getal in de buurt helpt ook: 99 erbij is 100 erbij en 1 eraf.", "",
      "Ben je het spoor kwijt? Schrijf dan gerust een tussenstap op."}},
    {10,
     10,
     "Ongeveer is soms genoeg",
     {"Je hoeft niet altijd precies te weten hoeveel iets is.",
      "Heb je genoeg geld bij je? Hoeveel mensen zitten er in de zaal? Dan schat je.", "",
      "Maak van moeilijke getallen eerst mooie ronde getallen.",
      "Zo wordt 398 + 205 ongeveer 400 + 200, en dat is 600.", "",
      "Met schatten zie je ook of je antwoord van een andere som wel kan kloppen."}},
    {11,
     11,
     "Wat weet je van getallen?",
     {"Elk cijfer in een getal heeft zijn eigen plaats, en die plaats telt mee.",
      "In 3.725 is de 3 drieduizend waard, de 7 zevenhonderd en de 2 twintig.", "",
      "Ook achter de komma telt de plaats: eerst komen de tienden, dan de honderdsten.",
      "Daarom is 0,5 meer dan 0,35, al heeft 0,35 meer cijfers.", "",
      "Twijfel je welk getal groter is? Denk aan hun plek op de getallenlijn."}},
    {12,
     12,
     "Sommen onder elkaar",
     {"Grote sommen maak je gemakkelijker als je de getallen onder elkaar zet:",
      "eenheden onder eenheden, tientallen onder tientallen, komma onder komma.", "",
      "Begin rechts. Komt er 10 of meer uit, schrijf dan de eenheden op en onthoud de rest.",
      "Bij aftrekken leen je er soms tien van het cijfer dat links ervan staat.", "",
      "Schat tot slot of je antwoord kan kloppen. Zo haal je vergissingen eruit."}},
};

} // namespace

infoscherm::infoscherm(outside& with, formulieren& forms) : form(with, "infoscherm"), forms_(forms) {
    using enum theme_role;
    caption = booklet_set;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(opschriftbalk, "opschriftbalk", {240, 150, 9000, 420}, heading);
    opschriftbalk.font_size = 15;
    add(vlak, "vlak", {600, 960, 11280, 5760}, panel);
    add(titel, "titel", {840, 1140, 6800, 1000}, prompt);
    titel.font_size = 20;
    add(plaatje, "plaatje", {7900, 1100, 3766, 1491}, picture);
    for (int i = 1; i <= lines; ++i) {
        add(regels[i], "regels", {840, 2850 + (i - 1) * 500, 10800, 420}, body);
        regels[i].index = i;
        regels[i].font_size = 13;
    }
    add(sommen_maken, "sommen_maken", {4740, 6960, 3000, 600}, main_action, "sommen maken");
    sommen_maken.font_size = 13;
    sommen_maken.keys = "\r\x1b";
    sommen_maken.mnemonic = 's';
    sommen_maken.click = [this] { sommen_maken_click(); };
}

bool infoscherm::kies(int boekje) {
    for (const inleiding& shown : inleidingen) {
        if (boekje < shown.first_booklet || boekje > shown.last_booklet) continue;
        const catalogue_list& list = catalogue()[static_cast<std::size_t>(boekje - 1)];
        opschriftbalk.caption = list.heading;
        titel.caption = shown.title;
        static_cast<drawing&>(plaatje) = merkteken(list.key);
        for (int i = 1; i <= lines; ++i) regels[i].caption = shown.lines[i - 1];
        return true;
    }
    return false;
}

void infoscherm::sommen_maken_click() {
    forms_.get<mama>().show();
    unload();
}

} // namespace cijferwerf
