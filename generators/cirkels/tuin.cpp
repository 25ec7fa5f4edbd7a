// Circles out of doors: the grass inside a track, the fence of a pond, the costs of a terrace.
#include "generators/gedeeld/cirkel.h"
#include "generators/gedeeld/tekening.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::M_skelterbaan_00_13_click() {
    kies_variant(2);
    // The radius is a whole number of metres, or half a metre more. The straight part is clearly longer than the track
    // is wide, as the picture shows it.
    const int breedte = trek(7) * 2 + 19 + variant;
    const int recht = trek_van(breedte + 6, 39);
    const kommagetal straal{5LL * breedte, 1}, cirkel = cirkeloppervlakte(straal), rechthoek{recht * breedte};
    const kommagetal gras = cirkel + rechthoek;
    const auto m2 = [](kommagetal k) { return regel(komma(k, 2), " m²"); };

    plaatje.picture("skelterbaan.bmp");
    bord(wit, donkerblauw, 12);
    druk_midden(2250, 80, kaal(recht), " m");
    druk_midden(4520, 1250 - halve_regel(12), kaal(breedte), " m");

    vraag("Hiernaast zie je het bovenaanzicht", "van een skelterbaan. De afmetingen", "zijn ook aangegeven.",
          "Binnen de skelterbaan bevindt zich gras.", "Hoeveel m² gras is er ongeveer?");

    drie_andere(gras, m2,
                {{cirkel * 4 + rechthoek, {"Heb je soms de diameter voor de straal gebruikt?"}},
                 {cirkel, {"Je hebt alleen de twee halve cirkels berekend.", "Je bent de rechthoek vergeten."}},
                 {rechthoek, {"Je hebt alleen de rechthoek berekend.", "Je bent de twee halve cirkels vergeten."}},
                 {kommagetal{(recht + breedte) * breedte},
                  {"Je hebt gerekend alsof het gras één grote rechthoek is,", "maar de uiteinden zijn rond."}},
                 {kommagetal{2 * recht} + cirkelomtrek(straal), {"Heb je soms de omtrek van het gras berekend?"}}});

    uitleg(
        regel("Samen zijn de halve cirkels één cirkel. De straal is", breedte, " : 2 =", komma_kort(straal), " m."),
        regel("De oppervlakte van die cirkel is 3,14 x", komma_kort(straal), " x", komma_kort(straal), " =",
              komma_kort(cirkel), " m²."),
        regel("De oppervlakte van de rechthoek is", recht, " x", breedte, " =", duizend(rechthoek.geschaald), " m²."),
        regel("Samen is dat", komma_kort(cirkel), " +", duizend(rechthoek.geschaald), " =", komma_kort(gras), " m²."),
        regel("Er is dus ongeveer ", juiste_antwoord(), " gras."));
}

void oefeningen::M_vijver_00_13_click() {
    kies_variant(2);
    const int cm = variant == 1 ? trek(10) * 10 + 150 : trek(11) * 10 + 250;
    const kommagetal straal = kommagetal{cm, 2}.kort(), boog = pi * straal, recht = straal * 2;
    const kommagetal hekwerk = boog + recht;
    const auto m = [](kommagetal k) { return regel(komma(k, 2), " m"); };

    plaatje.picture("vijver.bmp");
    bord(wit, donkerblauw, 12);
    druk_midden(3350, 1150 - halve_regel(12), kaal(cm), " cm");

    vraag("In een tuin bevindt zich een vijver die", "de vorm heeft van een halve cirkel. De vijver",
          "wordt geheel van een hekwerk voorzien. Dat", "is in het plaatje met geel aangegeven.",
          "Hoeveel m hekwerk moet er in totaal", "ongeveer aangebracht worden?");

    const kommagetal oppervlakte = cirkeloppervlakte(straal) * kommagetal{5, 1};
    std::vector<keuze<kommagetal>> vergissingen{
        {boog * 2, {"Is de vijver soms helemaal rond?"}},
        {boog, {"Je bent het rechte stuk vergeten."}},
        {boog + straal, {"Voor het rechte stuk heb je de straal genomen in", "plaats van de diameter."}}};
    // The number of the area is the larger one only in the largest ponds; so rare a rank would give itself away.
    if (oppervlakte < hekwerk)
        vergissingen.push_back(
            {oppervlakte, {"Je hebt de oppervlakte van de vijver berekend.", "Het hekwerk staat om de vijver heen."}});
    drie_andere(hekwerk, m, vergissingen);

    uitleg(regel("De straal is", cm, " cm, dat is", komma_kort(straal), " m."),
           regel("De halve cirkel is de helft van 2 x 3,14 x r, dus 3,14 x", komma_kort(straal), " =", komma_kort(boog),
                 " m."),
           regel("Het rechte stuk is de diameter: 2 x", komma_kort(straal), " =", komma_kort(recht), " m."),
           regel("Samen is dat", komma_kort(boog), " +", komma_kort(recht), " =", komma_kort(hekwerk), " m."),
           regel("Er is dus ongeveer ", juiste_antwoord(), " hekwerk nodig."));
}

void oefeningen::Z_terras_00_13_click() {
    kies_variant(2);
    const int cm = variant == 1 ? trek(10) * 10 + 150 : trek(11) * 10 + 250;
    const int prijs = trek_van(25, 60);
    const kommagetal straal = kommagetal{cm, 2}.kort(), oppervlakte = cirkeloppervlakte(straal);
    const auto kosten = [prijs](kommagetal m2) { return (m2 * prijs).op(0); };
    const auto hele_euro = [](long long euros) { return euro(100 * euros); };

    plaatje.picture("terras.bmp");
    bord(wit, donkerblauw, 12);
    druk(220, 110, "Straal:", cm, " cm");

    vraag("In een tuin wordt een cirkelvormig", regel("terras aangelegd. De aanleg kost", hele_euro(prijs), " per m²."),
          regel("De straal van dit terras is", cm, " cm."), leeg, "Hoeveel kost de aanleg van het",
          "terras (ongeveer)?");

    const std::string_view zoek = "Zoek eerst de formule voor de oppervlakte van";
    drie_andere(kosten(oppervlakte), hele_euro,
                {{kosten(cirkelomtrek(straal)),
                  {"Je hebt met de omtrek van de cirkel gerekend.", "Bereken eerst de oppervlakte van die cirkel."}},
                 {kosten(pi * straal), {zoek, "een cirkel. De straal moet in het kwadraat."}},
                 {kosten(straal * straal), {zoek, "een cirkel. Je bent 3,14 vergeten."}},
                 {kosten(oppervlakte * 4), {"Heb je soms de diameter voor de straal gebruikt?"}}});

    uitleg(regel("De straal is", cm, " cm, dat is", komma_kort(straal), " m."),
           regel("De oppervlakte is 3,14 x", komma_kort(straal), " x", komma_kort(straal), " =",
                 komma_kort(oppervlakte), " m²."),
           regel("Elke m² kost", hele_euro(prijs), ", dus de aanleg kost in euro's:"),
           regel(kaal(komma_kort(oppervlakte)), " x", prijs, " =", komma_kort(oppervlakte * prijs), "."),
           regel("Dat is (afgerond) ", juiste_antwoord()));
}

} // namespace cijferwerf
