// Volume, density, and the part of a drink that is alcohol.
#include "generators/gedeeld/cirkel.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::M_cilinder_00_17_click() {
    struct maten {
        int middellijn, hoogte;
        // Circumference times height is then neither the volume nor the area of the circle.
        bool geschikt() const { return middellijn != 4 && middellijn != 4 * hoogte; }
    };
    kies_variant(2);
    const auto [middellijn, hoogte] = trek_tot(
        [this] {
            const int d = variant == 1 ? trek(6) + 2 : trek(8) + 8;
            const int h = trek(15) + 3;
            return maten{d, h};
        },
        [](const maten& drawn) { return drawn.geschikt(); });
    const kommagetal straal = kommagetal{5LL * middellijn, 1}.kort(), cirkel = cirkeloppervlakte(straal);
    const kommagetal inhoud = cirkel * hoogte;
    const auto cm3 = [](kommagetal k) { return regel(komma(k, 2), " cm³"); };

    bord(donkerblauw, wit, 12);
    teken_cilinder(plaatje, {300, 60, 4780, 2000}, middellijn, hoogte, " cm");

    vraag("Een cilinder heeft een middellijn", regel("van", middellijn, " cm en een"),
          regel("hoogte van", hoogte, " cm."), leeg, "Hoe groot is de inhoud?");

    drie_andere(
        inhoud, cm3,
        {{cirkel,
          {"Je hebt de oppervlakte van de cirkel berekend, maar", "je moet dan nog met de hoogte vermenigvuldigen..."}},
         {cirkelomtrek(straal) * hoogte, {"Heb je soms omtrek x hoogte gedaan?"}},
         {cirkel * 4 * hoogte, {"Heb je soms de middellijn genomen in", "plaats van de straal?"}},
         {pi * straal * hoogte, {"Je hebt 3,14 x straal x hoogte gedaan, maar de straal", "moet in het kwadraat."}}});

    const bool precies = inhoud.kort().decimalen <= 2;
    uitleg(regel("De straal is de helft van de middellijn:", middellijn, " : 2 =", komma_kort(straal), " cm."),
           regel("De oppervlakte van de cirkel is 3,14 x", komma_kort(straal), " x", komma_kort(straal), " =",
                 komma_kort(cirkel), " cm²."),
           "Vermenigvuldig die oppervlakte met de hoogte:",
           regel(kaal(komma_kort(cirkel)), " x", hoogte, " =", komma_kort(inhoud), "."),
           regel("De inhoud is dus ", precies ? "" : "afgerond ", juiste_antwoord(), "."));
}

void oefeningen::Z_dichtheid_00_17_click() {
    kies_variant(2);
    const int lengte = trek(8) + 2;
    const int breedte = trek(7) + 3;
    const int hoogte = trek(8) + 2;
    const int inhoud = lengte * breedte * hoogte;
    // Of wood and the like, or of stone and metal; the product of mass and volume stays below a million.
    const int massa = variant == 1 ? trek_van((3 * inhoud + 9) / 10, 8 * inhoud / 10)
                                   : trek_van((5 * inhoud + 3) / 4, std::min(12 * inhoud, 999'999 / inhoud));
    const int rekenfout = trek_van(1, 3); // so many tenths
    const bool te_groot = kop();
    const long long dichtheid = deel_afgerond(100LL * massa, inhoud); // hundredths
    const auto per_cm3 = [](long long honderdsten) { return regel(komma(honderdsten, 2), " g/cm³"); };

    bord(lichtgrijs, zwart, 12);
    teken_doos(plaatje, {300, 60, 4780, 2000}, lengte, breedte, hoogte);

    vraag("Rechts zie je een voorwerp", "met bepaalde afmetingen.", "De gegeven maten zijn in cm.",
          "Het voorwerp heeft een gewicht", regel("van", duizend(massa), " g."), "Hoe groot is de dichtheid?");

    goed(per_cm3(dichtheid));
    fout(per_cm3(100LL * massa * inhoud), "Heb jij soms een vermenigvuldiging gedaan?", "Je moet een deling doen...");
    fout(per_cm3(deel_afgerond(dichtheid * (te_groot ? 10 + rekenfout : 10 - rekenfout), 10)),
         "Kies iets anders, want je hebt waarschijnlijk een", "rekenfoutje gemaakt!");
    fout(per_cm3(deel_afgerond(100LL * inhoud, massa)), "Je hebt wel een deling gedaan, maar daarbij ",
         "de teller en noemer verwisseld.");

    const bool precies = 100 * massa % inhoud == 0;
    uitleg(regel("De inhoud van het voorwerp is", lengte, " x", breedte, " x", hoogte, " =", inhoud, " cm³."),
           "De dichtheid is het gewicht gedeeld door de inhoud:",
           regel(kaal(duizend(massa)), " :", inhoud, precies ? " =" : " = afgerond", komma(dichtheid, 2), "."),
           regel("De dichtheid is dus ", precies ? "" : "ongeveer ", juiste_antwoord(), "."));
}

void oefeningen::Z_volumeprocent_00_17_click() {
    struct drank {
        std::string_view naam;
        std::array<int, 3> procenten;
        std::array<int, 3> glazen; // mL
    };
    static constexpr std::array<drank, 3> dranken{{{"jenever", {35, 38, 40}, {30, 35, 40}},
                                                   {"wijn", {11, 12, 13}, {100, 120, 150}},
                                                   {"bier", {4, 5, 6}, {200, 220, 250}}}};
    kies_variant(3);
    const drank& drank = rij(dranken, variant);
    const int aantal = trek_van(2, 6);
    const int procent = kies(drank.procenten);
    const int glas = kies(drank.glazen);
    const int samen = aantal * glas;
    // Hundredths of a mL.
    const int alcohol = samen * procent, per_glas = glas * procent;
    const auto ml = [](int honderdsten) { return regel(komma(honderdsten, 2), " mL"); };

    plaatje.picture("volumeprocent.bmp");
    bord(wit, donkerrood, 12);
    druk_midden(950, 1170, drank.naam);
    druk_midden(950, 1450, kaal(procent), " vol.%");

    vraag(regel("Iemand drinkt", aantal, " glazen ", drank.naam, "."),
          regel("Op de fles staat vermeld:", procent, " vol.%."), regel("Elk glas bevat", glas, " mL."), leeg,
          "Hoeveel mL alcohol krijgt deze persoon", "binnen?");

    drie_andere(alcohol, ml,
                {{per_glas},
                 {alcohol - per_glas},
                 {static_cast<int>(deel_afgerond(alcohol, 10))},
                 {alcohol + per_glas},
                 {2 * alcohol},
                 {10 * alcohol}});
    const std::string eerst = regel("Eerste stap: bereken het aantal mL ", drank.naam, "...");
    tip_1(eerst);
    tip_2(eerst, "Tweede stap: bekijk hoeveel % daarvan uit alcohol bestaat...");

    uitleg(
        regel("In", aantal, " glazen zit in totaal", aantal, " x", glas, " =", duizend(samen), " mL ", drank.naam, "."),
        regel("Hiervan is", procent, " % alcohol."),
        regel("Dat is", procent, " % van", duizend(samen), " =", komma(alcohol, 2), "."),
        regel("Deze persoon krijgt dus ", juiste_antwoord(), " alcohol binnen."));
}

} // namespace cijferwerf
