// On the road: distances and times that are read from counters, dials and boards.
#include "generators/gedeeld/kloktijd.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <tuple>

namespace cijferwerf {

void oefeningen::L_fietsen_07_09_click() {
    static constexpr std::array<std::string_view, 8> fietsers{"Harald", "Klazien", "Gijsbert", "Ineke",
                                                              "Peter",  "Betty",   "Jochem",   "Jiska"};
    // Two distances that are nearly right, in tenths of a kilometre from it: below, around and above.
    static constexpr std::array<std::array<int, 2>, 9> bijna_goed{
        {{-10, -1}, {-11, -9}, {-2, -1}, {-1, 1}, {-10, 1}, {-1, 10}, {1, 10}, {9, 11}, {1, 2}}};
    kies_variant(2);
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

void oefeningen::Z_vliegtuig_07_09_click() {
    struct vlucht {
        std::string nummer, uitgang;
        kloktijd vertrek, aankomst;
        int halve_uren = 0;
    };
    static constexpr std::array<std::string_view, 5> maatschappijen{"KL", "CT", "AC", "BP", "SD"};
    static constexpr std::array<std::string_view, 6> pieren{"A", "B", "C", "D", "E", "F"};
    kies_variant(2);
    const int snelheid = trek_van(600, 900, 20);
    const int halve_uren = variant == 1 ? trek_van(4, 16, 2) : trek_van(3, 15, 2);
    // Four flights of different lengths, one of them so long, with different numbers.
    auto duren = geschud(std::array{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    std::swap(duren[0], *std::ranges::find(duren, halve_uren));
    const auto honderden = geschud(std::array{100, 325, 550, 775});
    std::array<vlucht, 4> vluchten;
    for (std::size_t i = 0; i < vluchten.size(); ++i) {
        const std::string_view maatschappij = kies(maatschappijen);
        const int nummer = honderden[i] + trek(225);
        const std::string_view pier = kies(pieren);
        const int poort = trek_van(1, 20);
        const int duur = duren[i] * 30;
        const kloktijd vertrek{trek_van(6 * 60, 23 * 60 + 30 - duur, 5)};
        vluchten[i] = {regel(maatschappij, nummer), regel(pier, poort), vertrek, vertrek + duur, duren[i]};
    }
    const vlucht gevraagd = vluchten[0];
    const std::array andere{vluchten[1].halve_uren, vluchten[2].halve_uren, vluchten[3].halve_uren};
    std::ranges::sort(vluchten, {}, &vlucht::aankomst);
    const int juist = halve_uren * snelheid / 2;
    const auto km = [](int getal) { return regel(duizend(getal), " km"); };

    bord(zwart, geel, 12);
    constexpr int rijhoogte = 390, boven = 90;
    tabel aankomsten(plaatje, 120, boven, drawing::inner_width - 240, rijhoogte,
                     {{"NUMMER", 220}, {"VERTREK", 2450, true}, {"AANKOMST", 3900, true}, {"UITGANG", 4160}});
    for (const vlucht& v : vluchten) {
        if (v.nummer == gevraagd.nummer)
            opdracht(kader_opdracht(150, aankomsten.onder() + 30, drawing::inner_width - 300, rijhoogte - 60, wit));
        aankomsten.rij(v.nummer, v.vertrek.cijfers(), v.aankomst.cijfers(), v.uitgang);
    }

    vraag(regel("Het vliegtuig met vluchtnummer ", gevraagd.nummer), "is geland. Het vloog met een snelheid",
          regel("van", snelheid, " km per uur."), leeg, "Hoe groot is de afstand die", "het vliegtuig heeft afgelegd?");

    const melding ander_vliegtuig{"Je hebt de tijden van een ander vliegtuig gebruikt.",
                                  regel("Kijk bij vluchtnummer ", gevraagd.nummer, ".")};
    const melding verkeerde_tijd{"Bereken eerst hoe lang het vliegtuig gevlogen",
                                 "heeft en vermenigvuldig dan dat aantal uren", "met de snelheid...."};
    std::vector<keuze<int>> vergissingen;
    vergissingen.reserve(7);
    for (const int halve : andere) vergissingen.push_back({halve * snelheid / 2, ander_vliegtuig});
    for (const int verschil : {-2, 2}) vergissingen.push_back({(halve_uren + verschil) * snelheid / 2, verkeerde_tijd});
    if (halve_uren % 2 != 0) {
        vergissingen.push_back({(halve_uren - 1) * snelheid / 2, {"Je hebt het halve uur vergeten."}});
        vergissingen.push_back(
            {(halve_uren / 2 * 10 + 3) * snelheid / 10, {"30 minuten is een half uur, dus 0,5 uur en niet 0,3 uur."}});
    }
    drie_andere(juist, km, vergissingen);

    const number_text uren = komma_kort(halve_uren * 5, 1);
    uitleg(
        regel("Het vliegtuig vertrok om ", gevraagd.vertrek.tekst(), " en landde om ", gevraagd.aankomst.tekst(), "."),
        regel("Het vloog dus", uren, " uur met een snelheid van", snelheid, " km per uur."),
        regel("De afstand is", uren, " x", snelheid, " =", km(juist), "."));
}

} // namespace cijferwerf
