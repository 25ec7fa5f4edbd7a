// At the till: what is to be paid, and what comes back. The wrong answers count the change the wrong way, forget what
// was added, or forget or misplace a discount.
#include "generators/gedeeld/munten.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

namespace {

// The banner of a sale, with CDs below it.
void teken_uitverkoop(drawing& on) {
    const zelfde_stand bewaard(on);
    on.filled_box(150, 150, 5080, 980, donkerrood);
    on.line_width = 2;
    on.box(200, 200, 4980, 880, geel);
    on.fore_colour = geel;
    on.text_size = 18;
    const int midden = drawing::inner_width / 2;
    on.print_centred(midden, 260, kaal("  CD's   CD's   CD's   CD's   CD's"));
    on.fore_colour = wit;
    on.print_centred(midden, 660, kaal("        U I T V E R K O O P"));
    on.line_width = 1;
    for (int x = 720; x < 5000; x += 985) {
        on.filled_circle(x, 1630, 400, lichtgrijs);
        on.circle(x, 1630, 400, zwart);
        on.sector(x, 1630, 400, 20, 40, lichtcyaan, true);
        on.sector(x, 1630, 400, 200, 40, lichtcyaan, true);
        on.circle(x, 1630, 150, grijs);
        on.filled_circle(x, 1630, 70, wit);
        on.circle(x, 1630, 70, zwart);
    }
}

} // namespace

void oefeningen::L_bijbetalen_05_07_click() {
    kies_variant(2);
    const persoon klant = variant == 1 ? persoon{"Een man", man} : persoon{"Een vrouw", vrouw};
    const int briefje = kies(std::array{2000, 5000, 10'000});
    // A whole number of euros comes back because of the coins.
    const int terug = trek_van(500, briefje - 500, 100);
    const int euromunt = kies(std::array{100, 200});
    const int centmunt = kies(std::array{10, 20, 50});
    const int extra = euromunt + centmunt;
    const int prijs = briefje + extra - terug;
    const int zonder = terug - extra;
    const int ernaast = kop() ? terug + 100 : terug - 100;

    bord(wit, zwart, 12);
    teken_uitverkoop(plaatje);

    vraag(regel(klant.naam, " koopt voor", euro(prijs)), regel("een stel CD's. ", klant.Hij(), " betaalt eerst"),
          regel("met een ", geldstuk(briefje), ", maar ", klant.hij()),
          regel("geeft er ook nog een ", geldstuk(euromunt), " en"), regel("een ", geldstuk(centmunt), " bij."),
          regel("Hoeveel moet ", klant.hij(), " terug krijgen?"));

    goed(euro(terug));
    if (variant == 1) {
        fout(euro(terug + extra), "Op deze manier krijgt de klant te veel terug.",
             regel("Je hebt de", euro(extra), " dubbel geteld."));
        fout(euro(zonder), "Op deze manier krijgt de klant te weinig terug.",
             regel("Je hebt de", euro(extra), " vergeten."));
        fout(euro(ernaast), "Je zit er een euro naast!");
    } else {
        fout(euro(terug + extra), "Zo krijgt de klant teveel terug...", "Heb je de munten twee keer meegeteld?");
        fout(euro(zonder), "Zo krijgt de klant te weinig terug...", "Denk ook aan de munten!");
        fout(euro(ernaast), "Je hebt je een euro verteld.");
    }

    uitleg("Eigenlijk is dit een wisseltruc, waarbij de klant",
           "het de winkelier makkelijker maakt wisselgeld te geven.",
           regel("De winkelier had ZONDER bijbetaling", euro(zonder), " moeten"),
           regel("geven, maar doordat de klant", euro(extra), " bijbetaalde kan"),
           regel("hij", euro(zonder), " +", euro(extra), " =", euro(terug), " teruggeven."));
}

void oefeningen::L_terugbetalen_05_07_click() {
    static constexpr std::array<persoon, 10> namen{{{"Femke", vrouw},
                                                    {"Vanessa", vrouw},
                                                    {"Marjolein", vrouw},
                                                    {"Kathleen", vrouw},
                                                    {"Patricia", vrouw},
                                                    {"Mark", man},
                                                    {"Rick", man},
                                                    {"Edgar", man},
                                                    {"Danny", man},
                                                    {"Menno", man}}};
    static constexpr std::array briefsoorten{500, 1000, 2000, 5000, 10'000};
    kies_variant(5);
    const persoon& wie = kies(namen);
    const stapel briefjes{rij(briefsoorten, variant), trek_van(1, 3)};
    const stapel munten{kies(std::array{100, 200}), trek_van(1, 3)};
    const int zonder_munten = briefjes.cent * briefjes.aantal;
    const int betaald = zonder_munten + munten.cent * munten.aantal;
    // Less than a coin comes back: each of them was needed.
    const int terug = trek_van(5, munten.cent - 5, 5);
    const int prijs = betaald - terug;
    const auto stuks = [](stapel s) {
        const plakregel stuk = geldstuk(s.cent, s.aantal);
        return s.aantal == 1 ? regel("een ", stuk) : regel(kaal(s.aantal), " ", stuk);
    };

    plaatje.picture("terugbetalen.bmp");
    plaatje.fore_colour = lichtgroen;
    plaatje.text_size = 18;
    druk_midden(4000, 290, kaal(euro(prijs)));

    vraag(regel(wie.naam, " heeft boodschappen gedaan."), regel(wie.Hij(), " moet bij de kassa afrekenen."),
          regel(wie.naam, " betaalt met"), regel(stuks(briefjes), " en"), regel(stuks(munten), "."),
          regel("Hoeveel krijgt ", wie.ze(), " terug?"));

    // Counted up wrongly: a coin or a euro too many or too few, or from the notes alone.
    drie_andere(terug, euro,
                {{terug - 100},
                 {terug + 100},
                 {terug - 50},
                 {terug + 50},
                 {terug - 10},
                 {terug + 10},
                 {terug - 5},
                 {prijs - zonder_munten}});
    tip_1(regel("Reken eerst uit hoeveel ", wie.naam, " heeft gegeven..."));
    tip_2(regel("Bereken met hoeveel ", wie.naam, " het te betalen"), "bedrag aan moet vullen...");

    uitleg(regel("Het bedrag van", euro(prijs), " moet je aanvullen"),
           regel("tot", euro(betaald), ". Dat doe je met", euro(terug), "."),
           regel("Je krijgt dat bedrag (", kaal(euro(terug)), ") dus terug."));
}

void oefeningen::M_boodschap_05_07_click() {
    static constexpr std::array<persoon, 20> namen{
        {{"Harald", man},   {"Gerda", vrouw}, {"Griofed", man},  {"Martha", vrouw}, {"Evert", man},
         {"Nel", vrouw},    {"Henk", man},    {"Stien", vrouw},  {"Govert", man},   {"Mirjam", vrouw},
         {"Leo", man},      {"Marry", vrouw}, {"Sander", man},   {"Diana", vrouw},  {"Ruud", man},
         {"Ingrid", vrouw}, {"Robert", man},  {"Peibro", vrouw}, {"Arjan", man},    {"Nancy", vrouw}}};
    struct artikel {
        std::string_view soort, een, meer, per;
        std::array<int, 4> prijzen; // cents
    };
    static constexpr std::array<artikel, 4> winkel{
        {{"suiker", "pak suiker", "pakken suiker", "/pak", {70, 80, 90, 120}},
         {"brood", "brood", "broden", "/stuk", {140, 160, 180, 200}},
         {"melk", "pak melk", "pakken melk", "/pak", {60, 70, 80, 90}},
         {"zout", "pak zout", "pakken zout", "/pak", {40, 50, 60, 70}}}};
    struct boodschap {
        std::string_view soort;
        std::string op_briefje;
        int kosten, van_een;
    };
    using boodschappen = std::vector<boodschap>;
    const auto optellen = [](const boodschappen& alle) {
        return std::accumulate(alle.begin(), alle.end(), 0, [](int som, const boodschap& b) { return som + b.kosten; });
    };
    kies_variant(4);
    const persoon& wie = kies(namen);
    const bool vader = variant % 2 == 1;
    const std::size_t hoeveel = variant <= 2 ? 3 : 4;
    // The potatoes make the total end in 5 cents. An amount of 10 or 30 cents and some euros is paid with a euro less
    // in whole coins, and that is not what is asked here.
    const boodschappen briefje = trek_tot(
        [&] {
            const int halve_kilos = kies(std::array{3, 5});
            const int kiloprijs = kies(std::array{50, 70, 90, 150, 170, 190});
            boodschappen alle{
                {"aardappelen",
                 regel(kaal(komma(halve_kilos * 5, 1)), " kg aardappelen (", kaal(euro(kiloprijs)), "/kg)"),
                 halve_kilos * kiloprijs / 2, kiloprijs}};
            for (const artikel& a : geschud(winkel)) {
                if (alle.size() == hoeveel) break;
                const int aantal = trek_van(1, 4);
                const int prijs = kies(a.prijzen);
                alle.push_back(
                    {a.soort,
                     regel(kaal(aantal), " ", aantal == 1 ? a.een : a.meer, " (", kaal(euro(prijs)), a.per, ")"),
                     aantal * prijs, prijs});
            }
            return alle;
        },
        [&](const boodschappen& alle) {
            const int centen = optellen(alle) % 100;
            return centen != 5 && centen != 25;
        });
    const int totaal = optellen(briefje);
    const int mee = totaal + 5;
    const std::string_view ouder = vader ? "Vader" : "Moeder";

    plaatje.picture("boodschap.bmp");
    plaatje.fore_colour = donkerblauw;
    plaatje.text_size = 12;
    std::string soorten, som;
    for (int y = 300; const boodschap& b : briefje) {
        druk(2290, y, b.op_briefje);
        y += 320;
        soorten += regel(soorten.empty() ? "" : &b == &briefje.back() ? " en " : ", ", b.soort);
        som += regel(som.empty() ? "" : " +", euro(b.kosten));
    }

    vraag(regel(wie.naam, " haalt voor ", wie.zijn(), vader ? " vader" : " moeder"), regel(soorten, "."),
          regel(ouder, " geeft zo min mogelijk geld mee."), regel(ouder, " heeft geen munten van 1, 2, 5 en"),
          "10 eurocent. ", regel("Hoeveel krijgt ", wie.naam, " mee?"));

    // Not rounded, rounded down, to a larger coin or the next euro; something left out or one too many.
    drie_andere(mee, euro,
                {{totaal},
                 {totaal - 5},
                 {mee + 10},
                 {mee + 20},
                 {(mee + 99) / 100 * 100},
                 {mee - briefje.back().kosten},
                 {mee + briefje.back().van_een}});
    tip_1("De afzonderlijke bedragen moet je eerst optellen.");
    tip_2("Tel alle bedragen op en bedenk dan dat", regel(ouder, " niet kan betalen met munten van"),
          regel(kaal(euro(5)), " en", euro(10), " (maar wel met"), "munten van 20 en 50 eurocent).");

    uitleg("Als je alle bedragen goed bij elkaar optelt,",
           regel("zie je dat deze boodschappen", euro(totaal), " kosten."), regel("Want", som, " =", euro(totaal), "."),
           regel("Aangezien ", ouder, " geen munten van 1, 2, 5 en 10 eurocent heeft,"),
           regel("krijgt ", wie.naam, " dus", euro(mee), " mee."));
}

void oefeningen::M_CDs_05_07_click() {
    kies_variant(2);
    const int drietallen = trek_van(2, 5);
    const int aantal = 3 * drietallen + (variant == 1 ? 0 : trek_van(1, 2));
    const int prijs = trek_van(690, 1990, 20);
    const int zonder_korting = aantal * prijs;
    const int korting = drietallen * prijs / 2;

    bord(wit, zwart, 12);
    teken_uitverkoop(plaatje);

    vraag("Er zijn CD's in de aanbieding.", regel("Ze kosten", euro(prijs), " per stuk."),
          "Maar bij elk drietal CD's heb", "je er één voor de halve prijs.",
          regel("Een meneer koopt", aantal, " CD's."), "Hoeveel moet hij betalen?");

    goed(euro(zonder_korting - korting));
    fout(euro(zonder_korting), "Je hebt vergeten dat die meneer nog", "korting krijgt.");
    fout(euro(zonder_korting + korting), "Je hebt elke derde CD juist duurder gemaakt in", "plaats van goedkoper...");
    fout(euro(zonder_korting - prijs / 2), "Je hebt maar één CD voor de helft", "gerekend.");

    uitleg(regel("Als elke CD even veel zou kosten, zou hij", aantal, " x", euro(prijs), " ="),
           regel(kaal(euro(zonder_korting)), " moeten betalen. Maar in", aantal, " zitten", drietallen,
                 " hele drietallen."),
           "Die meneer krijgt dus nog een korting van",
           regel(kaal(drietallen), " x", euro(prijs / 2), " =", euro(korting), "."),
           regel("Hij moet dus betalen:", euro(zonder_korting), " -", euro(korting), " =",
                 euro(zonder_korting - korting), "."));
}

} // namespace cijferwerf
