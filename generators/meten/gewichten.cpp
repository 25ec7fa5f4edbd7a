// Weights: read from scales, in another unit, and two of them added.
#include "generators/gedeeld/tekening_meter.h"
#include "generators/meten/meten.h"
#include "generators/oefeningen.h"

#include <cstdlib>
#include <tuple>

namespace cijferwerf {

void oefeningen::L_gewichten_08_17_click() {
    kies_variant(2);
    const bool naar_kleiner = variant == 1;
    const int stappen = trek(3) + 1;
    const auto plaats = static_cast<std::size_t>(trek(7 - stappen));
    const int cijfers = trek_tot([this] { return trek_van(11, 99); }, [](int drawn) { return drawn % 10 != 0; });
    const eenheid &groot = gewichtsmaten.at(plaats),
                  &klein = gewichtsmaten.at(plaats + static_cast<std::size_t>(stappen));
    const eenheid &van = naar_kleiner ? groot : klein, &naar = naar_kleiner ? klein : groot;
    const kommagetal getal{cijfers, naar_kleiner ? 1 : 0}, juist = omgerekend(getal, van, naar);

    // The scale: its plate, its case, and the display.
    bord(lichtcyaan, lichtgroen, 26);
    plaatje.filled_box(1690, 300, 2000, 90, grijs);
    plaatje.filled_box(2540, 390, 300, 160, grijs);
    plaatje.polygon({{1290, 550}, {4090, 550}, {4490, 1850}, {890, 1850}}, donkerblauw, true);
    plaatje.filled_box(1540, 860, 2300, 700, zwart);
    plaatje.box(1540, 860, 2300, 700, lichtgrijs);
    druk_midden(2690, 920, kaal(komma_kort(getal)), " ", van.teken);

    vraag("Hiernaast zie je een elektrische", "weegschaal. De weegschaal geeft", "een bepaald gewicht aan.", leeg,
          regel("Reken dat gewicht om in ", naar.teken, "."));

    // What the number is multiplied or divided by, as steps of ten.
    const auto bewerking = [naar_kleiner](int macht) {
        return regel(naar_kleiner ? " x" : " :", duizend(tien_tot_de(macht)));
    };
    std::vector<keuze<kommagetal>> vergissingen{
        {getal.verschoven(naar_kleiner ? -stappen : stappen),
         {"Je hebt de verkeerde kant op gerekend:",
          regel("een ", naar.teken, naar_kleiner ? " is kleiner dan een " : " is groter dan een ", van.teken, ".")}}};
    for (int gezet = std::max(0, stappen - 2); gezet <= 4; ++gezet)
        if (gezet != stappen)
            vergissingen.push_back(
                {getal.verschoven(naar_kleiner ? gezet : -gezet),
                 {gezet == 0 ? "Je hebt het getal niet omgerekend."
                             : regel("Je hebt", gezet, gezet == 1 ? " stap" : " stappen", " gezet, dus",
                                     bewerking(gezet), "."),
                  regel("Van ", van.teken, " naar ", naar.teken, stappen == 1 ? " is het" : " zijn het", stappen,
                        stappen == 1 ? " stap." : " stappen.")}});
    drie_andere(
        juist, [&](kommagetal k) { return regel(komma_kort(k), " ", naar.teken); }, vergissingen);

    uitleg("De gewichtsmaten van groot naar klein zijn:", "kg, hg, dag, g, dg, cg, mg.",
           naar_kleiner ? "Elke stap naar een kleinere maat is x 10." : "Elke stap naar een grotere maat is : 10.",
           regel("Van ", van.teken, " naar ", naar.teken, stappen == 1 ? " is het" : " zijn het", stappen,
                 stappen == 1 ? " stap" : " stappen", ", dus", bewerking(stappen), "."),
           regel(kaal(komma_kort(getal)), bewerking(stappen), " =", komma_kort(juist), ", dus het gewicht is ",
                 juiste_antwoord(), "."));
}

void oefeningen::L_optellen_08_17_click() {
    kies_variant(4);
    const bool eerste_om = variant % 2 == 1, naar_kleiner = variant <= 2;
    const auto stap = static_cast<std::size_t>(trek(6));
    const eenheid &groot = gewichtsmaten.at(stap), &klein = gewichtsmaten.at(stap + 1);
    const maatsom s = trek_tot(
        [&] { return trek_maatsom(toeval, naar_kleiner ? groot : klein, naar_kleiner ? klein : groot, eerste_om); },
        [](const maatsom& drawn) { return drawn.geschikt(); });

    bord(paars, geel, 18);
    druk(400, 850, s.opgave());
    antwoord_over_stippen(plaatje.x(), 850, wit, "...", komma_kort(s.totaal()));
    druk(plaatje.x() + 110, 850, s.gevraagd().teken);

    vraag("Hiernaast zie twee gewichten die", "je moet optellen. De eenheden zijn", "echter verschillend.", leeg,
          "Welk getal moet op de stippen staan?");

    drie_andere(
        s.totaal(), [](kommagetal k) { return komma_kort(k); }, s.vergissingen());

    std::apply([this](const auto&... regels) { uitleg(regels...); }, s.uitleg());
}

void oefeningen::M_worst_08_17_click() {
    struct weegschaal {
        std::string_view maximum;
        int gram_per_streepje;
        std::string_view streepje;
    };
    static constexpr std::array<weegschaal, 5> weegschalen{{{"0,5 kg", 50, "50 gram"},
                                                            {"1,0 kg", 100, "100 gram"},
                                                            {"2,0 kg", 200, "200 gram"},
                                                            {"5,0 kg", 500, "500 gram"},
                                                            {" 10 kg", 1000, "1.000 gram"}}};
    kies_variant(5);
    const weegschaal& schaal = rij(weegschalen, variant);
    const int per_streepje = schaal.gram_per_streepje, maximum = 10 * per_streepje;
    const int streepje = trek_van(2, 9);
    const int juist = streepje * per_streepje;

    // The sausage on its plate beside the dial.
    bord(lichtcyaan, zwart, 10);
    const point midden{3500, 1110};
    plaatje.filled_box(midden.x - 1080, 30, 2160, 2070, donkerblauw);
    teken_wijzerplaat(plaatje, midden, 960, {.tot = maximum, .kort = per_streepje / 2, .lang = per_streepje}, juist,
                      regel("MAX. ", schaal.maximum));
    plaatje.fore_colour = wit;
    druk_om(plaatje, op_cirkel(midden, 1080, 225), "0");
    plaatje.filled_box(1250, 1250, 300, 850, donkerblauw);
    plaatje.filled_box(400, 1180, 2000, 90, grijs);
    plaatje.ellipse(1400, 1020, 800, 165, donkerrood, true);
    for (const int eind : {580, 2220}) plaatje.filled_circle(eind, 1010, 70, donkerrood);
    for (const int x : {1000, 1400, 1800}) plaatje.line(x - 60, 1090, x + 60, 950, wit);

    vraag("Op een weegschaal wordt een", "stuk worst afgewogen.", leeg, "Hoeveel gram weegt die worst", "ongeveer?");

    const auto gram = [](int aantal) { return regel(duizend(aantal), " gram"); };
    const plakregel kijk_eerst = "Kijk eerst hoeveel gram elk streepje is.";
    drie_andere(
        juist, gram,
        {{(streepje + 1) * per_streepje, {"Je bent bij 1 begonnen met tellen.", "(de schaal begint met een nul!)"}},
         {(streepje - 1) * per_streepje, {"Je hebt een streepje te weinig geteld."}},
         {(10 - streepje) * per_streepje,
          {"Je hebt de streepjes vanaf de verkeerde kant geteld:", "je begint bij de nul, links onder."}},
         {2 * juist, {kijk_eerst, regel("Een lang streepje is hier niet", gram(2 * per_streepje), ".")}},
         {juist / 2, {kijk_eerst, regel("Een lang streepje is hier niet", gram(per_streepje / 2), ".")}},
         {10 * juist, {kijk_eerst, "Eén kg is 1.000 gram."}}});

    uitleg("De lange streepjes verdelen de schaal in tien gelijke stukken", "(de schaal begint met een nul!)",
           regel("Elk stuk is dus", gram(maximum), " : 10 = ", schaal.streepje, "."),
           regel("De wijzer staat", streepje, " lange streepjes voorbij de nul."),
           regel("De worst weegt dus", streepje, " x", duizend(per_streepje), " =", gram(juist), "."));
}

} // namespace cijferwerf
