// On the road: distances and times that are read from counters and dials.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/oefeningen.h"

#include <tuple>

namespace cijferwerf {

void oefeningen::L_fietsen_07_09_click() {
    static constexpr std::array<std::string_view, 8> fietsers{"Harald", "Klazien", "Gijsbert", "Ineke",
                                                              "Peter",  "Betty",   "Jochem",   "Jiska"};
    // Two distances that are nearly right, in tenths of a kilometre from it: below, around and above.
    static constexpr std::array<std::array<int, 2>, 9> bijna_goed{
        {{-10, -1}, {-11, -9}, {-2, -1}, {-1, 1}, {-10, 1}, {-1, 10}, {1, 10}, {9, 11}, {1, 2}}};
    kies_variant(2);
    zaai();
    const bool in_km = variant == 1;
    const std::string_view fietser = kies(fietsers);
    // Tenths of a kilometre.
    const int begin = trek_van(10000, 93999);
    const int tocht = trek_van(152, 598);
    const int einde = begin + tocht;
    const auto& bijna = kies(bijna_goed);
    const int ver_ernaast = trek_van(80, 120);
    const bool te_weinig = kop();
    const auto afstand = [in_km](int tienden) {
        return in_km ? regel(komma_kort(tienden, 1), " km") : regel(duizend(tienden * 100), " m");
    };

    bord(lichtgrijs, zwart, 16);
    for (const auto& [woord, y, stand] : {std::tuple{"BEGIN", 330, begin}, std::tuple{"EINDE", 1230, einde}}) {
        druk(600, y + 90, woord);
        plaatje.text_size = 20;
        teken_teller(plaatje, 2050, y, regel(kaal(stand / 10), ",", kaal(stand % 10)));
        plaatje.text_size = 16;
        druk(2050 + teller_breedte("1000,0", 20) + 180, y + 90, "km");
    }

    vraag(regel(fietser, " maakt een fietstocht."), "Hiernaast zie je de stand van de",
          "kilometerteller vóór en na de tocht.", leeg, "Hoe lang was de fietstocht?");

    goed(afstand(tocht));
    for (const int verschil : bijna)
        fout(afstand(tocht + verschil), "Je zit wel in de buurt van het juiste", "antwoord, het is bijna goed.");
    fout(afstand(tocht + (te_weinig ? -ver_ernaast : ver_ernaast)), "Je zit er heel wat naast!");

    const std::string som = regel(komma(einde, 1), " -", komma(begin, 1), " =", komma(tocht, 1));
    if (in_km)
        uitleg("Trek de beginstand van de eindstand af:", regel(kaal(som), "."),
               regel("De fietstocht was dus", afstand(tocht), " lang."));
    else
        uitleg("Trek de beginstand van de eindstand af:",
               regel(kaal(som), ", dus de tocht was", komma_kort(tocht, 1), " km."),
               regel("In meters is dat", komma_kort(tocht, 1), " x 1.000 =", duizend(tocht * 100), "."),
               regel("De fietstocht was dus", afstand(tocht), " lang."));
}

void oefeningen::L_vakantie_07_09_click() {
    kies_variant(2);
    zaai();
    // On a mark with a number beside it, or on one between two of those.
    const int snelheid = variant == 1 ? trek_van(60, 120, 20) : trek_van(50, 110, 20);
    const int uren = trek_van(3, 12);
    const int afstand = uren * snelheid;

    bord(lichtgrijs, zwart, 10);
    teken_wijzerplaat(plaatje, {drawing::inner_width / 2, 1130}, 820, {.tot = 200, .kort = 10, .lang = 20, .getal = 20},
                      snelheid, "km/uur");

    vraag("Een gezin gaat op vakantie.", "Ze moeten een afstand afleggen", regel("van", duizend(afstand), " km."), leeg,
          "Hoeveel uur moeten zij minstens", "rijden?");

    const auto in_uur = [](int aantal) { return regel(aantal, " uur"); };
    const auto te_kort = [&](int aantal) {
        return keuze<int>{aantal,
                          {regel("In", aantal, " uur kunnen zij maar", duizend(aantal * snelheid), " km rijden.")}};
    };
    const auto te_lang = [&](int aantal) {
        return keuze<int>{aantal,
                          {regel("In", aantal, " uur kunnen zij", duizend(aantal * snelheid), " km rijden."),
                           "Zo ver hoeven zij niet te rijden."}};
    };
    const melding afgelezen{"Heb je de snelheid goed afgelezen?", "Elk streepje is 10 km/uur."};
    drie_andere(uren, in_uur,
                std::vector<keuze<int>>{te_kort(uren - 3),
                                        te_kort(uren - 2),
                                        te_kort(uren - 1),
                                        te_lang(uren + 1),
                                        te_lang(uren + 2),
                                        {2 * uren, afgelezen}});

    uitleg(
        regel("Eerst moet je de snelheid goed aflezen:", snelheid, " km/uur."),
        "Daarna deel je de afstand door de snelheid:", regel(kaal(duizend(afstand)), " :", snelheid, " =", uren, "."),
        regel("Zij moeten dus minstens", uren, " uur rijden."));
}

} // namespace cijferwerf
