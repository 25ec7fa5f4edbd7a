// Estimates with numbers from a table, a counter, a letter and a results sheet: round first, then reckon.
// The wrong answers do not round, take another number of months or weeks, or overlook the decimals.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <utility>

namespace cijferwerf {

void oefeningen::L_bezoekers_10_00_click() {
    static constexpr std::array<std::string_view, 20> namen{
        " Jan", " Erik", " Sven", " Onno", " Rob",  " Job",  " Lex", " Wim",  " Jur", " Pim",
        " Pat", " Anja", " Asha", " Ria",  " Arja", " Mira", " Mia", " Aili", " Pia", " Sily"};
    struct museum {
        bool genoeg;
        int vorig_duizend, dit_duizend, vorig_rest, dit_rest;
    };
    kies_variant(2);
    const auto kinderen = geschud(namen);
    const int duizenden = variant == 1 ? 1000 : 500; // so many thousands are claimed
    const std::string_view aantal = variant == 1 ? "1 miljoen" : "een half miljoen";
    // The thousands alone tell whether it is more: at most 998 with what is left of two years makes no 1.000.
    const auto trek_museum = [&](bool genoeg) {
        const int samen = duizenden + (genoeg ? trek_van(1, 9) : trek_van(-9, -2));
        const int vorig = duizenden / 2 + trek_van(-60, 60);
        const int vorig_rest = trek_van(1, 999);
        const int dit_rest = trek_van(1, 999);
        return museum{genoeg, vorig, samen - vorig, vorig_rest, dit_rest};
    };
    const int plaats = trek_van(1, 4);
    const museum a = trek_museum(plaats == 1 || plaats == 3);
    const museum b = trek_museum(plaats == 2 || plaats == 3);

    bord(wit, donkerblauw, 14);
    tabel bezoekers(plaatje, 250, 450, 4880, 400, {{"", 400}, {"vorig jaar", 3250, true}, {"dit jaar", 4950, true}});
    for (const auto& [naam, m] : {std::pair{"museum A", a}, std::pair{"museum B", b}})
        bezoekers.rij(naam, duizend(1000 * m.vorig_duizend + m.vorig_rest), duizend(1000 * m.dit_duizend + m.dit_rest));

    vraag(regel(kaal(kinderen[0]), " zegt dat museum A in twee jaar"), regel("meer dan ", aantal, " bezoekers"),
          regel("had.", kinderen[1], " zegt dat van museum B."), leeg, "Wie heeft gelijk?");

    juist_op(plaats);
    const std::array<std::string, 4> antwoorden{regel("alleen", kinderen[0]), regel("alleen", kinderen[1]), "allebei",
                                                "niemand"};
    for (int i = 1; i <= 4; ++i) {
        // The first two, and the last two, are wrong about both museums when the other is right.
        if ((i - 1) / 2 == (plaats - 1) / 2)
            op_plaats(i, rij(antwoorden, i), "Eerst moet je de duizendtallen vergelijken en",
                      "daarna de honderdtallen, tientallen en eenheden....");
        else
            op_plaats(i, rij(antwoorden, i), "Vergelijk eerst de duizendtallen.");
    }

    const auto samen = [&](std::string_view welk, const museum& m) {
        return regel(welk, m.vorig_duizend, " +", m.dit_duizend, " =", duizend(m.vorig_duizend + m.dit_duizend),
                     " duizend, dus ", m.genoeg ? "meer" : "minder", " dan ", aantal, ".");
    };
    uitleg("Tel bij elk museum de duizendtallen van de twee jaren op.",
           "De rest is in twee jaar samen minder dan 2 duizend.", samen("Museum A:", a), samen("Museum B:", b),
           regel("Het goede antwoord is dus: ", rij(antwoorden, plaats), "."));
}

void oefeningen::L_schatten_2_10_09_click() {
    kies_variant(2);
    const bool per_maand = variant == 1;
    // The answer, as round as the wrong ones, makes whole hundreds in a year; the counter shows a little more or less.
    constexpr int stap = 50;
    const int gemiddeld = per_maand ? trek_van(900, 3000, stap) : trek_van(200, 700, stap);
    const int afgerond_jaar = gemiddeld * (per_maand ? 12 : 52);
    const int scheef = trek_van(11, 49);
    const int jaar = kop() ? afgerond_jaar + scheef : afgerond_jaar - scheef;
    const auto door = [&](int delen) { return static_cast<int>(deel_afgerond(afgerond_jaar, delen * stap)) * stap; };
    const int beetje = (gemiddeld / 8 / stap + 1) * stap;

    bord(wit, zwart, 14);
    druk_midden(2690, 380, "Gereden in een jaar (in km):");
    plaatje.text_size = 24;
    const std::string stand = regel(kaal(jaar));
    teken_teller(plaatje, 2690 - teller_breedte(stand, 24) / 2, 880, stand);

    vraag("Op de kilometerteller zie je", "hoeveel kilometer iemand in een", "jaar gereden heeft.", leeg,
          "Hoeveel rijdt deze persoon", per_maand ? "gemiddeld ongeveer per maand?" : "gemiddeld ongeveer per week? ");

    const melding ernaast{"Je zit er een beetje naast."};
    const std::string_view soms = "Ben jij er soms van uit gegaan dat een jaar";
    drie_andere(gemiddeld, [](int km) { return regel(duizend(km), " km"); },
                {per_maand ? keuze<int>{door(52), {"Je hebt 't per week uitgerekend."}}
                           : keuze<int>{door(12), {"Je hebt 't per maand uitgerekend."}},
                 per_maand ? keuze<int>{door(10), {soms, "tien maanden heeft?"}}
                           : keuze<int>{door(48), {soms, "48 weken heeft?"}},
                 {gemiddeld - beetje, ernaast},
                 {gemiddeld + beetje, ernaast},
                 {gemiddeld - 2 * beetje, ernaast}});

    const int delen = per_maand ? 12 : 52;
    uitleg(
        regel("Rond eerst af: de teller staat op ongeveer", duizend(afgerond_jaar), " km."),
        regel("Een jaar heeft", delen, per_maand ? " maanden." : " weken."),
        regel("Je deelt dus door", delen, ":", duizend(afgerond_jaar), " :", delen, " =", duizend(gemiddeld), "."),
        regel("Deze persoon rijdt gemiddeld ongeveer", duizend(gemiddeld), " km per ", per_maand ? "maand." : "week."));
}

void oefeningen::M_erfenis_10_07_click() {
    struct aankoop {
        std::string_view wat;
        int duizenden; // at most
    };
    static constexpr std::array<aankoop, 9> aankopen{{{"een videorecorder", 1},
                                                      {"een stereotoren", 2},
                                                      {"een CD-speler", 1},
                                                      {"een televisie", 3},
                                                      {"een computer", 3},
                                                      {"een zitbank", 4},
                                                      {"een antiek meubel", 6},
                                                      {"een bromfiets", 3},
                                                      {"een antieke vaas", 6}}};
    kies_variant(3); // both amounts just under thousands, both just over, one of each
    const int erfenis = 1000 * trek_van(20, 60);
    const int belasting = 1000 * trek_van(3, 9);
    const aankoop& koopt = kies(aankopen);
    const int prijs = 1000 * trek_van(1, koopt.duizenden);
    const bool belasting_onder = variant == 3 ? kop() : variant == 1;
    const bool prijs_onder = variant == 3 ? !belasting_onder : variant == 1;
    const int kant_belasting = belasting_onder ? -1 : 1;
    const int kant_prijs = prijs_onder ? -1 : 1;
    const int echte_belasting = belasting + kant_belasting * trek_van(11, 189);
    const int echte_prijs = prijs + kant_prijs * trek_van(1, 9) * 15;
    const int over = erfenis - belasting - prijs;
    const auto euros = [](int bedrag) { return euro(100LL * bedrag); };

    bord(lichtgrijs, zwart, 13);
    teken_blad(plaatje, {350, 150, 4600, 1780}, bladsoort::brief, "BELASTINGDIENST",
               {"Geachte heer,", regel("Over uw erfenis van", euros(erfenis)),
                regel("moet u", euros(echte_belasting), " belasting betalen.")});

    vraag(regel("Een man erft", euros(erfenis), ". Hij krijgt"), "de brief hiernaast. Verder koopt hij",
          regel(koopt.wat, " van", euros(echte_prijs), "."), leeg, "Hoeveel geld", "heeft hij dan nog ongeveer over?");

    // A thousand too little or too much for one amount or for both; one of the two forgotten, or taken off twice.
    const melding rond_af{"Rond de bedragen eerst af."};
    const melding afronden{"Eerst moet je de bedragen afronden."};
    drie_andere(over, euros,
                {{over - kant_belasting * 1000, rond_af},
                 {over - kant_prijs * 1000, afronden},
                 {over - (kant_belasting + kant_prijs) * 1000, afronden},
                 {erfenis - belasting, {regel("Hij koopt ook nog ", koopt.wat, ".")}},
                 {erfenis - prijs, {"Hij moet ook nog belasting betalen."}},
                 {over - belasting, {"Je hebt de belasting twee keer afgetrokken."}},
                 {over - prijs, {"Je hebt de prijs twee keer afgetrokken."}}});

    uitleg(regel("Rond af:", duizend(echte_belasting), " is ongeveer", duizend(belasting), " en", duizend(echte_prijs),
                 " is ongeveer", duizend(prijs), "."),
           "EERSTE MANIER: trek van het bedrag van de erfenis eerst de",
           regel("belasting af en dan de prijs:", duizend(erfenis), " -", duizend(belasting), " -", duizend(prijs),
                 " =", duizend(over), "."),
           regel("TWEEDE MANIER: tel de belasting en de prijs op:", duizend(belasting), " +", duizend(prijs), " =",
                 duizend(belasting + prijs), "."),
           regel("Trek dat van de erfenis af:", duizend(erfenis), " -", duizend(belasting + prijs), " =", duizend(over),
                 "."),
           regel("Hij heeft dus nog ongeveer", euros(over), " over."));
}

void oefeningen::M_seconden_10_06_click() {
    static constexpr std::array<std::string_view, 20> namen{
        "Carel",  "Petra", "Daiflu", "Giklun", "Zaimesa", "Thomas", "Glioskef", "Zoran", "Rupiot", "Carla",
        "Harrie", "Jan",   "Probaf", "Joris",  "Joanni",  "Loes",   "Lisa",     "Zayla", "Petra",  "Joyce"};
    struct uitslag {
        std::vector<int> seconden, tienden;
    };
    kies_variant(3); // three, four or five runners
    const int lopers = variant + 2;
    std::vector<std::string_view> op_het_blad;
    for (const std::string_view naam : geschud(namen))
        if (std::ranges::find(op_het_blad, naam) == op_het_blad.end() && std::ssize(op_het_blad) < lopers)
            op_het_blad.push_back(naam);
    const auto som = [](const std::vector<int>& getallen) {
        int totaal = 0;
        for (const int g : getallen) totaal += g;
        return totaal;
    };
    // Who rounds each time on its own finds the same, so that there is one right estimate.
    const uitslag tijden = trek_tot(
        [&] {
            uitslag u;
            for (int i = 0; i < lopers; ++i) {
                u.seconden.push_back(trek_van(11, 19));
                u.tienden.push_back(trek_van(1, 9));
            }
            return u;
        },
        [&](const uitslag& u) {
            const int samen = som(u.tienden);
            return samen % 10 != 5 &&
                   (samen + 5) / 10 == std::ranges::count_if(u.tienden, [](int t) { return t >= 5; });
        });
    const int heel = som(tijden.seconden);
    const int tienden = som(tijden.tienden);
    const int erbij = (tienden + 5) / 10;
    const int totaal = heel + erbij;

    bord(wit, zwart, 13);
    druk(900, 100, "UITSLAG:");
    tabel blad(plaatje, 800, 420, 3780, 320, {{"", 900}, {"", 4450, true}});
    std::string secondensom, tiendensom;
    for (std::size_t i = 0; i < op_het_blad.size(); ++i) {
        const int s = tijden.seconden[i], t = tijden.tienden[i];
        blad.rij(op_het_blad[i], regel(komma(10 * s + t, 1), " sec."));
        secondensom += regel(i == 0 ? "" : " +", s);
        tiendensom += regel(i == 0 ? "" : " +", komma(t, 1));
    }

    vraag("Bij een estafetteloop op school", "worden de tijden van leerlingen", "opgeteld.", leeg,
          "Hoeveel seconden is dat ongeveer", "bij elkaar?");

    drie_andere(totaal, [](int s) { return regel(kaal(s), " seconden"); },
                {{heel, {"Heb je wel gekeken naar de cijfers achter", "de komma?"}},
                 {heel + lopers, {"Je hebt alle tijden naar boven afgerond.", "Kijk naar de cijfers achter de komma!"}},
                 {totaal - 1, {"Tel de cijfers achter de komma nog eens op."}},
                 {totaal + 1, {"Tel de cijfers achter de komma nog eens op."}},
                 {totaal - 10, {"Tel de cijfers vóór de komma nog eens op."}},
                 {totaal + 10, {"Tel de cijfers vóór de komma nog eens op."}}});

    uitleg(regel("Tel eerst de hele seconden op:", secondensom, " =", heel, "."),
           regel("Achter de komma:", tiendensom, " =", komma(tienden, 1), ", dus ongeveer", erbij, "."),
           regel("Bij elkaar is dat", heel, " +", erbij, " =", totaal, "."),
           regel("Het goede antwoord is dus ongeveer", totaal, " seconden."));
}

} // namespace cijferwerf
