// Four advertisements, and what renting costs for a while. The wrong answers do not know how long a week, a month, a
// quarter or a year is.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// What is asked about one advertisement, with everything that is told about it. Amounts are in cents.
struct huursom {
    std::array<std::string, 3> vraag;
    int kosten;
    std::vector<keuze<int>> vergissingen;
    std::array<std::string, 4> uitleg;
};

huursom televisie(int prijs, int weken) {
    const int dagen = weken * 7;
    return {{"Een meneer huurt een T.V. voor", regel("een periode van", weken, " weken."), "Hoeveel kost dat?"},
            dagen * prijs,
            {{weken * 5 * prijs, {"Als een week vijf dagen telt, zou dat", "goed zijn! Maar ja..."}},
             {weken * 14 * prijs, {"Denk jij misschien dat een week 14 dagen", "heeft?"}},
             {weken * prijs, {"Dat is de prijs per dag maal het aantal weken.", "Hoeveel dagen zijn dat?"}},
             {weken * 6 * prijs, {"Een week heeft geen zes dagen!"}},
             {weken * 8 * prijs, {"Een week heeft geen acht dagen!"}},
             {(weken + 1) * 7 * prijs, {"Je hebt een week te veel gerekend."}}},
            {regel("Een week heeft zeven dagen, dus in", weken, " weken"),
             regel("zitten", weken, " x 7 =", dagen, " dagen. Elke dag"),
             regel("kost", euro(prijs), ". Dat bedrag moet je vermenigvuldigen met het"),
             regel("aantal dagen, dus", dagen, " x", euro(prijs), " =", euro(dagen * prijs), ".")}};
}

huursom auto_voor(int prijs, const maand& m) {
    const int andere_maand = 61 - m.dagen;
    return {{"Een mevrouw huurt een auto gedurende", regel("de hele maand ", m.naam, "."), "Hoeveel kost dat?"},
            m.dagen * prijs,
            {{28 * prijs, {"Denk je soms dat er in die maand 28 dagen", "zitten? Dat geldt alleen voor februari."}},
             {andere_maand * prijs, {regel("De maand ", m.naam, " heeft geen", andere_maand, " dagen!")}},
             {32 * prijs, {"Er is geen maand met 32 dagen!"}},
             {35 * prijs, {"Je hebt vijf hele weken gerekend.", "Zo lang duurt geen enkele maand."}},
             {20 * prijs, {"Je hebt vier weken van vijf dagen gerekend.", "Tel alle dagen van de maand."}},
             {(m.dagen + 7) * prijs, {"Je hebt een week te veel gerekend."}},
             {7 * prijs, {"Dat kost de auto voor één week."}}},
            {"Om deze som te doen moet je weten dat de maand", regel(m.naam, m.dagen, " dagen heeft. "),
             regel("Elke dag kost", euro(prijs), ", dus de hele maand kost"),
             regel(kaal(m.dagen), " x", euro(prijs), " =", euro(m.dagen * prijs), ".")}};
}

// How long is rented, and how one comes to the weeks of it.
struct huurperiode {
    std::string_view naam;
    int maanden;
    std::string_view weken_uit_jaar, maanden_som;

    bool in_kwartalen() const { return naam.ends_with("kwartaal") || naam.ends_with("kwartalen"); }
    int weken() const { return maanden * 13 / 3; }
};
// The last one, of which a year's price is right, is for the hall alone.
constexpr std::array<huurperiode, 8> huurperiodes{{{"een kwartaal", 3, "52 : 4 =", ""},
                                                   {"twee kwartalen", 6, "52 : 4 x 2 =", "2 x 3 ="},
                                                   {"drie kwartalen", 9, "52 : 4 x 3 =", "3 x 3 ="},
                                                   {"een half jaar", 6, "52 : 2 =", "12 : 2 ="},
                                                   {"anderhalf jaar", 18, "52 + 26 =", "12 + 6 ="},
                                                   {"twee jaar", 24, "2 x 52 =", "2 x 12 ="},
                                                   {"twee en een half jaar", 30, "2 x 52 + 26 =", "2 x 12 + 6 ="},
                                                   {"een jaar", 12, "", ""}}};

huursom woning(int prijs, const huurperiode& p) {
    huursom som{{"Een meneer huurt gedurende", regel(p.naam, " een woning."), "Hoeveel kost dat?"},
                p.maanden * prijs,
                {{12 * prijs, {"Heb je soms de huurprijs voor een", "jaar berekend...?"}},
                 {prijs, {"Dat kost de woning voor één maand."}},
                 {(p.maanden + 6) * prijs, {"Je hebt een half jaar te veel gerekend."}},
                 {(p.maanden + 3) * prijs, {"Je hebt een kwartaal te veel gerekend."}},
                 {(p.maanden + 1) * prijs, {"Je hebt een maand te veel gerekend."}},
                 {(p.maanden - 1) * prijs, {"Je hebt een maand te weinig gerekend."}}},
                {"", "", "", regel("Dat kost", p.maanden, " x", euro(prijs), " =", euro(p.maanden * prijs), ".")}};
    if (p.in_kwartalen()) {
        const int kwartalen = p.maanden / 3;
        som.vergissingen.push_back(
            {kwartalen * 4 * prijs, {"Als een kwartaal vier maanden telt, zou", "jouw antwoord goed zijn!"}});
        som.vergissingen.push_back({kwartalen * 2 * prijs, {"Een kwartaal duurt langer dan twee maanden!"}});
        som.uitleg[0] = "Een kwartaal is een kwart van een";
        som.uitleg[1] = "jaar en duurt dus drie maanden.";
    } else {
        som.vergissingen.push_back({p.maanden * 10 / 12 * prijs, {"Een jaar heeft meer dan tien maanden!"}});
        som.uitleg[0] = "Een jaar heeft twaalf maanden";
        som.uitleg[1] = "en een half jaar heeft er zes.";
    }
    som.uitleg[2] = regel("In ", p.naam, " zitten ", p.maanden_som, p.maanden, " maanden.");
    return som;
}

huursom sporthal(int prijs, int uren, const huurperiode& p) {
    const int weken = p.weken(), alle_uren = weken * uren, per_week = uren * prijs;
    const bool heel_jaar = p.weken_uit_jaar.empty();
    const std::string elke_week = regel("Elke week huurt zij", uren, " uur,");
    return {{"Een mevrouw huurt een sporthal voor", regel(kaal(uren), " uur per week gedurende"),
             regel(p.naam, ". Hoeveel kost dat?")},
            alle_uren * prijs,
            {{52 * per_week, {"Heb je soms de huurprijs voor een", "jaar berekend...?"}},
             {weken * prijs, {"Je hebt met één uur per week gerekend."}},
             {p.maanden * 4 * per_week, {"Een maand duurt iets langer dan vier weken.", "Een jaar heeft 52 weken."}},
             {p.maanden * 5 * per_week, {"Een maand duurt geen vijf weken.", "Een jaar heeft 52 weken."}},
             {p.maanden * per_week, {"Je hebt met de maanden gerekend in plaats van", "met de weken."}},
             {(weken + 1) * per_week, {"Je hebt een week te veel gerekend."}},
             {(weken - 1) * per_week, {"Je hebt een week te weinig gerekend."}}},
            {heel_jaar ? "Een jaar heeft 52 weken." : regel("Een jaar heeft 52 weken, dus in ", p.naam),
             heel_jaar ? elke_week : regel("zitten ", p.weken_uit_jaar, weken, " weken. ", elke_week),
             regel("dus in totaal", weken, " x", uren, " =", alle_uren, " uur. Elk uur kost", euro(prijs), ","),
             regel("dus dat is", alle_uren, " x", euro(prijs), " =", euro(alle_uren * prijs), ".")}};
}

} // namespace

void oefeningen::Z_huren_05_07_click() {
    kies_variant(4);
    const int televisieprijs = trek_van(75, 250, 5);
    const int autoprijs = trek_van(30, 75) * 100;
    const int woningprijs = trek_van(400, 900, 25) * 100;
    const int sporthalprijs = trek_van(15, 45) * 100;
    const int weken = trek_van(2, 9);
    const maand& in = trek_tot(
                          [this] {
                              return datum{1, trek_van(1, 12)};
                          },
                          [](datum d) { return d.in().dagen != 28; })
                          .in();
    const int uren = trek_van(2, 6);
    const huurperiode& hoelang = rij(huurperiodes, trek_van(1, variant == 3 ? 7 : 8));

    bord(lichtgrijs, zwart, 11);
    teken_advertentie(plaatje, 1,
                      {"Te huur aangeboden:", "KLEURENTELEVISIE", regel("Kosten:", euro(televisieprijs), " per dag")});
    teken_advertentie(plaatje, 2, {"Te huur:", "AUTO", regel("Kosten:", euro(autoprijs), " per dag")});
    teken_advertentie(plaatje, 3, {"Te huur:", "WONING", regel("Kosten:", euro(woningprijs), " per maand")});
    teken_advertentie(plaatje, 4, {"Te huur:", "SPORTHAL", regel("Kosten:", euro(sporthalprijs), " per uur")});

    const huursom som = variant == 1   ? televisie(televisieprijs, weken)
                        : variant == 2 ? auto_voor(autoprijs, in)
                        : variant == 3 ? woning(woningprijs, hoelang)
                                       : sporthal(sporthalprijs, uren, hoelang);
    vraag("Hiernaast zie je vier advertenties.", "Bekijk ze eerst.", leeg, som.vraag[0], som.vraag[1], som.vraag[2]);
    drie_andere(som.kosten, euro, som.vergissingen);
    uitleg(som.uitleg[0], som.uitleg[1], som.uitleg[2], som.uitleg[3]);
}

} // namespace cijferwerf
