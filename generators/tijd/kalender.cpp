// Dates and the units of time: a date in figures, the day on which books are due, years in months, weeks and so on.
// The wrong answers exchange the parts of a date, take weeks for days, or divide by the wrong number of months or
// weeks.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::M_snel_06_04_click() {
    struct tijdmaat {
        std::string_view meer, een, klein;
        int factor, ticks;
    };
    static constexpr std::array<tijdmaat, 5> maten{{{"jaren", "jaar", "maanden", 12, 9},
                                                    {"weken", "week", "dagen", 7, 9},
                                                    {"dagen", "dag", "uren", 24, 15},
                                                    {"uren", "uur", "minuten", 60, 9},
                                                    {"minuten", "minuut", "seconden", 60, 9}}};
    kies_variant(5);
    const int k = trek(8) + 2;
    const tijdmaat& maat = rij(maten, variant);
    const int juist = k * maat.factor;

    snel_bord(maat.ticks, 15);
    druk(900, 500, k, " ", maat.meer, " = ... ", maat.klein, "?");

    vraag("Kijk hiernaast...", leeg, "Je hebt niet veel tijd!");

    goed(juist);
    for (int i = 1; i <= 3; ++i) fout(juist - 2 * i + trek(2) * 4 * i);

    uitleg(regel("Eén ", maat.een, " bestaat uit", maat.factor, " ", maat.klein, "."),
           regel("Dan hebben", k, " ", maat.meer, k, " keer zo veel ", maat.klein, "."),
           regel("Je moet dus vermenigvuldigen:", k, " x", maat.factor, " =", juist, " ", maat.klein, "."));
}

void oefeningen::B_datum_06_04_click() {
    kies_variant(2);
    const int dag = variant == 1 ? trek(19) + 10 : trek(9) + 1;
    const int maand = trek(12) + 1;
    const int jaar = trek(50) + 1950;
    const datum geboren{dag, maand};
    const auto twee_cijfers = [](int getal) { return regel(getal < 10 ? "0" : "", kaal(getal)); };
    const std::string d = twee_cijfers(dag), m = twee_cijfers(maand), j = regel(kaal(jaar));

    bord(cyaan, zwart, 20);
    teken_blad(plaatje, {690, 340, 4000, 1400}, bladsoort::reclame, "GEBOREN OP", {}, donkerrood);
    druk_midden(2690, 1150, kaal(dag), "  ", geboren.in().naam, "  ", j);

    vraag("Iemand is geboren op de dag", "waarvan je hiernaast de", "datum ziet...", "Hoe kun je die datum ook",
          "schrijven?");

    goed(regel(d, "-", m, "-", j));
    if (variant == 1) {
        fout(regel(m, "-", d, "-", j), "Je hebt de maand en de dag verwisseld.");
        fout(regel(d, "-", j, "-", m), "Je hebt het jaar en de maand verwisseld.");
        fout(regel(j, "-", m, "-", d), "Je hebt de dag en het jaar verwisseld.");
    } else {
        fout(regel(m, "-", d, "-", j), "Heb je de maand en de dag door elkaar gehaald?");
        fout(regel(d, "-", j, "-", m), "Heb je de maand en het jaar verwisseld?");
        fout(regel(j, "-", m, "-", d), "Heb je soms de het jaar en de dag door elkaar", "gehaald?");
    }

    uitleg(regel("Je begint met het getal ", d, ", dan noteer je"),
           regel("het nummer van de maand ", geboren.in().naam, " en ten"), regel("slotte het jaartal ", j, "."),
           regel("Achter elkaar geschreven dus: ", juiste_antwoord()));
}

void oefeningen::L_boeken_06_04_click() {
    static constexpr std::array<persoon, 2> lezers{{{"Een meisje", vrouw}, {"Een jongen", man}}};
    static constexpr std::array<int, 4> maanden_van_30{4, 6, 9, 11};
    static constexpr std::array<int, 6> maanden_van_31{1, 3, 5, 7, 8, 10};
    static constexpr std::array<std::string_view, 3> eerste_tips{"Hoeveel dagen mag het uitlenen duren?",
                                                                 "Je moet van de weken eerst dagen maken...",
                                                                 "Heb je de uitleentermijn wel in dagen omgezet?"};
    static constexpr std::array<std::array<std::string_view, 2>, 3> tweede_tips{
        {{"Maak van de weken eerst dagen. Tel die dagen dan", "bij de datum van het kaartje op."},
         {"Maak van de weken eerst dagen. Kijk dan hoeveel", "daarvan nog in dezelfde maand vallen."},
         {"Reken eerst uit hoeveel dagen het zijn. Hoeveel", "daarvan vallen er al in de volgende maand?"}}};
    // The month is over before the books are due, or not: those who cross its end leave two days on either side.
    kies_variant(3);
    const bool over_de_maand = variant > 1;
    const persoon& lezer = kies(lezers);
    const int weken = over_de_maand ? trek_van(2, 4) : trek_van(2, 3);
    const int dagen = 7 * weken;
    const int maandnummer = variant == 1 ? trek_van(1, 11) : variant == 2 ? kies(maanden_van_30) : kies(maanden_van_31);
    const int maandlengte = rij(maanden, maandnummer).dagen;
    const int rest = over_de_maand ? trek_van(2, dagen - 2) : trek_van(dagen, maandlengte - 1);
    const datum uitgeleend{maandlengte - rest, maandnummer};
    const auto na = [&](int aantal) { return (uitgeleend + aantal).tekst(); };

    bord(olijf, donkerblauw, 16);
    teken_blad(plaatje, {540, 240, 4300, 1650}, bladsoort::brief, "BIBLIOTHEEK", {}, donkerblauw);
    druk(700, 900, "UITGELEEND:");
    druk_rechts(4680, 900, uitgeleend.tekst());
    druk(700, 1330, " uitleentermijn:");
    druk_rechts(4680, 1330, weken, " weken");

    vraag(regel(lezer.naam, " neemt een paar"), "boeken mee van de bibliotheek.", "Hiernaast zie je het kaartje",
          regel("dat in de bibliotheek voor ", lezer.hem(), " ingevuld is."),
          lezer.is == vrouw ? "Op welke datum moet zij de boeken" : "Op welke datum moet hij ze",
          "weer ingeleverd hebben?");

    // Weeks that count as days or as five days, a week too many or too few, and a month of another length.
    drie_andere(dagen, na, {{weken}, {5 * weken}, {dagen - 7}, {dagen - 1}, {dagen + 1}, {dagen + 2}, {dagen + 7}});
    tip_1(rij(eerste_tips, variant));
    const auto& [tip, slot] = rij(tweede_tips, variant);
    tip_2(tip, slot);

    const std::string begin = regel("Op ", uitgeleend.tekst(), " worden de boeken meegegeven.");
    const std::string termijn = regel("Die", weken, " weken hebben", dagen, " dagen. Tot het");
    const std::string tot_einde =
        regel("einde van de maand duurt het nog", maandlengte, " -", uitgeleend.dag, " =", rest, " dagen.");
    const std::string besluit = regel("Dus na", weken, " weken (", kaal(dagen), " dagen) is het ", na(dagen), ".");
    if (over_de_maand)
        uitleg(begin, termijn, tot_einde,
               regel("De volgende", dagen, " -", rest, " =", dagen - rest, " dagen zitten dus in de"),
               "volgende maand.", besluit);
    else
        uitleg(begin, termijn, tot_einde, regel(lezer.Hij(), " moet de boeken dus dezelfde maand nog terugbrengen."),
               besluit);
}

void oefeningen::M_kilometers_06_04_click() {
    kies_variant(2);
    const bool per_maand = variant == 1;
    // A round number that twelve or fifty-two divides, and on the counter one near it. With 15.600 a year of 48 weeks
    // would give what a wrong rounding gives.
    const int rond = per_maand ? 300 * trek_van(30, 130) : 1300 * trek_van(13, 30);
    const int ernaast = trek_van(3, 30);
    const int stand = kop() ? rond + ernaast : rond - ernaast;
    // So far off that it divides as nicely.
    const int verkeerd = per_maand ? 1200 : 1300;
    const int verkeerd_rond = kop() ? rond + verkeerd : rond - verkeerd;
    const int deler = per_maand ? 12 : 52;
    const auto km = [](int afstand) { return regel(duizend(afstand), " km"); };
    const auto gedeeld = [&](int afstand, int door) { return km(static_cast<int>(deel_afgerond(afstand, door))); };

    bord(donkerblauw, wit, 14);
    druk_midden(2690, 300, "kilometers dit jaar");
    plaatje.text_size = 28;
    const number_text cijfers = kaal(stand);
    teken_teller(plaatje, 2690 - teller_breedte(cijfers, 28) / 2, 850, cijfers);

    vraag("Iemand rijdt met zijn auto per", "jaar een afstand die je hiernaast", "op de kilometerteller",
          "weergegeven ziet.", "Hoeveel rijdt deze persoon",
          per_maand ? "gemiddeld ongeveer per maand?" : "gemiddeld ongeveer per week? ");

    goed(km(rond / deler));
    if (per_maand) {
        fout(gedeeld(rond, 52), "Je hebt het voor een week berekend in plaats", "van voor een maand!");
        fout(gedeeld(verkeerd_rond, 12), "Je hebt niet goed afgerond. Waar ligt het", "getal het dichtst bij?");
        fout(km(rond / 10), "Je antwoord zou goed geweest zijn, als een", "jaar tien maanden had!");
    } else {
        fout(gedeeld(rond, 12), "Je hebt het voor een maand berekend in plaats", "van voor een week!");
        fout(gedeeld(verkeerd_rond, 52), "Je hebt niet goed afgerond. Waar ligt het", "getal het dichtst bij?");
        fout(gedeeld(rond, 48), "Je antwoord zou goed geweest zijn, als een", "jaar 48 weken had!");
    }

    uitleg(regel("Het getal ", kaal(duizend(stand)), " ligt vlak bij het"), regel("getal ", kaal(duizend(rond)), "."),
           per_maand ? "Dit getal moet je delen door twaalf, want een" : "Dit getal moet je delen door 52, want een",
           per_maand ? "jaar heeft twaalf maanden." : "jaar heeft 52 weken.",
           regel(kaal(duizend(rond)), " :", deler, " =", duizend(rond / deler)),
           regel("Zo kom je op ", juiste_antwoord(), per_maand ? " per maand." : " per week."));
}

} // namespace cijferwerf
