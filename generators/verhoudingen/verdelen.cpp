// Ratios of people, soil and money: so many of a number, one in so many, mixing, sharing the costs.
// The wrong answers are those of the other group, or divide by the wrong number.
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::B_vakantie_02_16_click() {
    static constexpr std::array<std::string_view, 6> landen{"België", "Luxemburg", "Frankrijk",
                                                            "Spanje", "Duitsland", "Zwitserland"};
    static constexpr std::array<std::string_view, 5> steden{"Amsterdam", "Rotterdam", "Utrecht", "Den Haag", "Arnhem"};
    struct verhouding {
        int deel, geheel;
    };
    // One in so many, and two or three; each is a percentage with at most one decimal.
    static constexpr std::array<verhouding, 6> een_van{{{1, 4}, {1, 5}, {1, 8}, {1, 20}, {1, 25}, {1, 50}}};
    static constexpr std::array<verhouding, 6> enkele_van{{{2, 5}, {2, 25}, {3, 8}, {3, 10}, {3, 20}, {3, 50}}};
    static constexpr std::array<std::string_view, 3> aantallen{"Een", "Twee", "Drie"};

    kies_variant(3);
    const bool enkele = variant == 2 || (variant == 3 && kop());
    const auto [minderheid, geheel] = enkele ? kies(enkele_van) : kies(een_van);
    const int deel = variant == 3 && kop() ? geheel - minderheid : minderheid;
    const int duizendtallen = variant == 3 ? trek_van(1, 60 / geheel) : 1;
    const int gelezen_deel = deel * duizendtallen, gelezen_geheel = geheel * duizendtallen;
    const std::string_view stad = kies(steden), land = kies(landen);
    const int juist = 1000 * deel / geheel; // tenths of a per cent
    const int andere_landen = 1000 - juist;
    const auto procent = [](int tienden) { return regel(komma_kort(tienden, 1), " %"); };

    const std::string groep = variant == 3 ? regel(kaal(gelezen_deel), ".000 van de ", kaal(gelezen_geheel), ".000")
                                           : regel(rij(aantallen, deel), " van de ", telwoord(geheel));
    bord(lichtgrijs, zwart, 10);
    teken_blad(plaatje, {200, 80, 4980, 1940}, bladsoort::krant, "VAKANTIEGANGERS",
               {"Uit een onderzoek is gebleken dat het", regel("afgelopen half jaar veel mensen uit ", stad),
                "hun vakantie in het buitenland doorgebracht hebben.", "Ook is onderzocht welk land zij bezochten.",
                regel(groep, variant == 1 ? " ging naar " : " gingen naar het mooie ", land, ".")});

    vraag("Hiernaast zie je een artikel over", "de vakantiebestemming van inwoners", regel("van ", stad, "."), leeg,
          regel("Hoeveel procent ging naar ", land, "?"));

    // Numbers of the article taken for percentages, added, or moved by a digit; and twice the percentage.
    std::vector<int> misgelezen;
    for (const int misschien :
         {10 * gelezen_deel, 10 * gelezen_geheel, 10 * (gelezen_deel + gelezen_geheel),
          10 * (gelezen_geheel - gelezen_deel), 100 * gelezen_deel, 100 * gelezen_geheel, 2 * juist})
        if (misschien < 1000 && misschien != juist && misschien != andere_landen &&
            std::find(misgelezen.begin(), misgelezen.end(), misschien) == misgelezen.end())
            misgelezen.push_back(misschien);
    misgelezen = geschud(misgelezen);
    // The percentages of eighths have a decimal, and then not they alone: "one of the eight" is read as 1,8 or 8,1.
    if (geheel == 8) misgelezen[0] = kop() ? 10 * deel + 8 : 80 + deel;
    goed(procent(juist));
    fout(procent(andere_landen), "Dat percentage gaat juist niet naar", "dat land.");
    for (const int tienden : {misgelezen[0], misgelezen[1]}) fout(procent(tienden), "Lees de vraag nog eens!");

    uitleg(regel(groep, " inwoners is 't zelfde als", deel, " :", geheel, "."),
           regel("Dit is een verhouding van", komma_kort(juist, 1), " : 100."),
           regel("Je kunt dan ook zeggen:", komma_kort(juist, 1), "/100, ofwel", procent(juist), "."),
           regel("Het juiste antwoord is dus:", procent(juist), "."));
}

void oefeningen::L_museum_02_16_click() {
    struct grenzen {
        int minste, meeste;
    };
    static constexpr std::array<grenzen, 5> een_op{{{3, 5}, {6, 8}, {9, 11}, {12, 15}, {16, 20}}};
    kies_variant(5);
    const auto [minste, meeste] = rij(een_op, variant);
    const int k = trek_van(minste, meeste);
    const int deelbaar = k * (k + 1); // also by the wrong divisor
    const int mensen = deelbaar * trek_van(400 / deelbaar + 1, 4000 / deelbaar);
    const int buitenlanders = mensen / k;
    const std::string woord = telwoord(k);

    bord(cyaan, geel, 16);
    const std::vector<point> dak{{900, 800}, {2690, 150}, {4480, 800}, {900, 800}};
    plaatje.polygon(dak, donkerblauw, true);
    plaatje.polygon(dak, wit, false);
    for (int x = 1100; x <= 4100; x += 600) plaatje.filled_box(x, 860, 180, 900, lichtgrijs);
    const auto balk = [this](int breedte, int boven, int hoogte, kleur in) {
        plaatje.filled_box((drawing::inner_width - breedte) / 2, boven, breedte, hoogte, in);
    };
    balk(3580, 800, 70, wit);
    balk(3780, 1760, 90, wit);
    balk(3980, 1850, 90, lichtgrijs);
    druk_midden(2690, 430, "MUSEUM");

    vraag("In een museum komen per dag gemiddeld", regel(kaal(duizend(mensen)), " mensen."),
          regel("Eén op de ", woord, " bezoekers is een"), "buitenlander.", "Hoeveel buitenlandse gasten krijgt dit",
          "museum gemiddeld per dag?");

    goed(duizend(buitenlanders));
    fout(duizend(mensen - buitenlanders), "Jij hebt het aantal mensen gekozen dat niet", "uit het buitenland komt.");
    fout(duizend(mensen * k), "Je hebt vermenigvuldigd, maar je had moeten delen.");
    fout(duizend(mensen / (k + 1)), regel("Je hebt door", k + 1, " gedeeld. Maar die ene buitenlander"),
         regel("hoort zelf ook bij de ", woord, " bezoekers."));

    uitleg(regel("Van elke ", woord, " mensen is er één buitenlander."),
           regel("Deel je het totale aantal bezoekers door ", woord, ","), "dan vind je het aantal buitenlanders.",
           regel("Dus:", duizend(mensen), " delen door", k, " is", duizend(buitenlanders), " buitenlanders."));
}

void oefeningen::Z_tuinman_02_16_click() {
    static constexpr std::array<std::string_view, 4> plaatsen{"Hillegom", "Lisse", "Vogelenzang", "de Keukenhof"};
    kies_variant(5);
    const int r = variant + 1;
    const int samen = r + 1;
    const int deelbaar = r * samen; // also by the wrong divisor
    const int tuinaarde = deelbaar * trek_van(30 / deelbaar + 1, 240 / deelbaar);
    const int potgrond = tuinaarde / samen;
    const int turfmolm = potgrond * r;
    const std::string_view plaats = kies(plaatsen);
    const auto kg = [](int hoeveel) { return regel(duizend(hoeveel), " kg"); };

    bord(wit, donkerblauw, 14);
    plaatje.picture("tuinman.bmp");
    druk(240, 160, "Groeten uit... ", plaats);

    vraag("Een tuinman maakt tuinaarde door", "potgrond met turfmolm te mengen.",
          regel("Op elke kilogram potgrond doet hij", r), "kilogram turfmolm. Hoeveel",
          "kilogram turfmolm heeft hij nodig om", regel(kaal(tuinaarde), " kilogram tuinaarde te maken?"));

    goed(kg(turfmolm));
    fout(kg(potgrond), "Je hebt het aantal kg potgrond berekend. Het gaat", "om het aantal kg turfmolm.");
    fout(kg(tuinaarde / r), "Je hebt niet door het goede getal gedeeld.");
    fout(kg(tuinaarde * r), "Je had moeten delen in plaats van vermenigvuldigen.");

    uitleg(regel("Mengt hij 1 kilogram potgrond met", r, " kilogram"),
           regel("turfmolm, dan heeft hij", samen, " kilogram tuinaarde."),
           regel("Hij moet echter", tuinaarde, " kilogram maken, dus dat is"),
           regel(kaal(potgrond), " keer zo veel (want", tuinaarde, " delen door", samen, " is", potgrond, ")."),
           regel("Dan heeft hij ook", potgrond, " x", r, " kg =", kg(turfmolm), " turfmolm nodig."));
}

void oefeningen::Z_uitgaven_02_16_click() {
    static constexpr std::array<std::string_view, 10> families{"Prins",    "Aajoud",  "Lie-Atjam", "Vink",  "Goeree",
                                                               "Khodabux", "van Zon", "Carelse",   "Groot", "pletri"};
    static constexpr std::array<std::string_view, 8> uitstapjes{
        "weekje Egmond",    "weekje Zandvoort", "weekje Scheveningen", "weekje Zeeland",
        "weekje Amsterdam", "weekje Drente",    "weekje Rotterdam",    "weekje Katwijk"};
    kies_variant(2);
    const auto namen = geschud(families);
    const auto personen = geschud(std::array{2, 3, 4, 5, 6, 7});
    const std::string_view een = namen[0], ander = namen[1], uitstapje = kies(uitstapjes);
    const int samen = personen[0] + personen[1];
    // Above 20, so that two families never differ by what a slip may be.
    const int per_persoon = trek_van(30, 999 / samen);
    const auto bedrag = [](int euros) { return kaal(euro(100LL * euros)); };
    const number_text totaal = bedrag(samen * per_persoon);
    const std::size_t gevraagd = variant == 1 ? 0 : 1;
    const int juist = personen[gevraagd] * per_persoon, andere_familie = personen[1 - gevraagd] * per_persoon;
    const int foutje = kop() ? 10 : -10;
    const int ander_foutje = kop() ? 10 : -10;

    bord(lichtgrijs, zwart, 12);
    teken_blad(plaatje, {900, 100, 3580, 1900}, bladsoort::brief, " ONKOSTEN",
               {regel(uitstapje), regel("familie ", een, ":", personen[0], " personen"),
                regel("familie ", ander, ":", personen[1], " personen"), regel("samen: ", totaal)},
               donkerblauw);

    vraag(regel("Familie ", een, " gaat samen met familie"), regel(ander, " een weekje uit. Famile ", een),
          regel("bestaat uit", personen[0], " personen, familie ", ander, " uit", personen[1]),
          regel("personen. Ze geven bij elkaar ", totaal, " uit."), "Voor elke persoon wordt evenveel uitgegeven.",
          regel("Hoeveel moet familie ", namen[gevraagd], " betalen?"));

    goed(bedrag(juist));
    fout(bedrag(andere_familie), "Je hebt de uitgaven van de verkeerde familie", "berekend.");
    fout(bedrag(juist + foutje), "Heb je soms een rekenfoutje gemaakt?");
    fout(bedrag(andere_familie + ander_foutje), "Je hebt een rekenfoutje gemaakt en ook nog de",
         "verkeerde familie genomen...");

    uitleg(regel("De twee gezinnen hebben samen", samen, " personen."),
           regel("Voor elke persoon wordt dus ", totaal, "/", kaal(samen), " = ", bedrag(per_persoon), " uitgegeven."),
           regel("Familie ", namen[gevraagd], " van", personen[gevraagd], " personen moet dus"),
           regel(kaal(personen[gevraagd]), " x ", bedrag(per_persoon), " = ", bedrag(juist), " betalen."));
}

} // namespace cijferwerf
