// Rectangles: the kind of unit of an area, perimeters and areas whose sides have to be converted or found first.
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/meten/meten.h"
#include "generators/oefeningen.h"

#include <compare>

namespace cijferwerf {

void oefeningen::B_oppervlakte_07_12_click() {
    static constexpr std::array<gemeten_ding, 5> dingen{
        {{"klaslokaal",
          {{{50, maat("m²")}, {54, maat("m²")}, {60, maat("m²")}, {5600, maat("dm²")}}},
          {{{maat("m"), maat("dm")}, {maat("kg"), maat("g")}, {maat("liter"), maat("m³")}}}},
         {"muntstuk",
          {{{4, maat("cm²")}, {5, maat("cm²")}, {400, maat("mm²")}, {450, maat("mm²")}}},
          {{{maat("mm"), maat("cm")}, {maat("g"), maat("mg")}, {maat("mL"), maat("cm³")}}}},
         {"tafel",
          {{{2, maat("m²")}, {120, maat("dm²")}, {150, maat("dm²")}, {9600, maat("cm²")}}},
          {{{maat("m"), maat("cm")}, {maat("kg"), maat("g")}, {maat("liter"), maat("dm³")}}}},
         {"sportveld",
          {{{5000, maat("m²")}, {7000, maat("m²")}, {70, maat("are")}, {1, maat("ha")}}},
          {{{maat("m"), maat("hm")}, {maat("kg"), maat("hg")}, {maat("m³"), maat("hL")}}}},
         {"weiland",
          {{{2, maat("ha")}, {3, maat("ha")}, {250, maat("are")}, {20000, maat("m²")}}},
          {{{maat("m"), maat("dam")}, {maat("kg"), maat("g")}, {maat("liter"), maat("hL")}}}}}};
    static constexpr std::array<kleur, 4> kleuren{rood, geel, wit, groen};
    kies_variant(5);
    const gemeten_ding& ding = rij(dingen, variant);
    const auto opties = aanvullingen(toeval, ding);

    bord(donkerblauw, wit, 12);
    druk(180, 110, "De oppervlakte van een ", ding.ding, " is ongeveer");
    plaatje.text_size = 14;
    kleurkeuze({180, 470}, 405, kleuren, opties);

    vraag("Hiernaast zie je een uitspraak", "die te maken heeft met de", regel("oppervlakte van een ", ding.ding, "."),
          "Slechts één van de mogelijkheden", "kan juist zijn.", "Kies de juiste kleur.");

    uitleg("Deze som gaat over een oppervlakte.", regel("Alleen ' ", opties[0].waarde, " ' is een oppervlaktemaat,"),
           "alle andere mogelijkheden zijn dat niet.", regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::B_rechthoek_07_12_click() {
    // Told in metres or in centimetres; compared by its length.
    struct lengte {
        int mm = 0;
        bool in_m = false;
        bool operator==(const lengte& other) const { return mm == other.mm; }
        auto operator<=>(const lengte& other) const { return mm <=> other.mm; }
        plakregel tekst() const {
            return in_m ? plak_even({komma_kort(mm, 3), " m"}) : plak_even({komma_kort(mm, 1), " cm"});
        }
    };
    struct rechthoek {
        int lang, kort; // cm
    };
    kies_variant(2);
    const bool lange_in_m = variant == 1;
    // The side in metres has one decimal; the other one could not be written in whole metres.
    const rechthoek r = trek_tot(
        [&] {
            const int in_m = trek_van(40, 490, 10);
            const int in_cm = trek_van(25, 495, 5);
            return lange_in_m ? rechthoek{in_m, in_cm} : rechthoek{in_cm, in_m};
        },
        [&](const rechthoek& drawn) {
            const int in_m = lange_in_m ? drawn.lang : drawn.kort, in_cm = lange_in_m ? drawn.kort : drawn.lang;
            return in_m % 100 != 0 && in_cm % 100 != 0 && drawn.lang * 10 >= drawn.kort * 13 &&
                   drawn.lang <= drawn.kort * 4;
        });
    const int in_m = lange_in_m ? r.lang : r.kort, in_cm = lange_in_m ? r.kort : r.lang;
    const bool antwoord_in_m = kop();
    // In which unit the mistakes are told that could be made in either.
    std::array<bool, 5> ook_in_m{};
    for (bool& elk : ook_in_m) elk = kop();
    const lengte juist{20 * (r.lang + r.kort), antwoord_in_m};
    const std::string zijde_m = regel(komma_kort(in_m, 2), " m"), zijde_cm = regel(in_cm, " cm");

    bord(wit, donkerblauw, 14);
    const int hoogte = std::min(1300, 3000 * r.kort / r.lang), breedte = hoogte * r.lang / r.kort;
    const vlak binnen{(drawing::inner_width + 400 - breedte) / 2, (drawing::inner_height - 330 - hoogte) / 2, breedte,
                      hoogte};
    plaatje.filled_box(binnen.links, binnen.boven, breedte, hoogte, lichtcyaan);
    plaatje.line_width = 2;
    plaatje.box(binnen.links, binnen.boven, breedte, hoogte, donkerblauw);
    plaatje.line_width = 1;
    druk_midden(binnen.midden().x, binnen.onder() + 60, kaal(lange_in_m ? zijde_m : zijde_cm));
    druk_rechts(binnen.links - 110, binnen.midden().y - halve_regel(14), kaal(lange_in_m ? zijde_cm : zijde_m));

    vraag("Hiernaast zie je een", "langwerpige rechthoek met", "bepaalde afmetingen.", leeg,
          "Bereken de omtrek van deze", "rechthoek.");

    const std::vector<keuze<lengte>> vergissingen{
        {{10 * (r.lang + r.kort), ook_in_m[0]},
         {"Je hebt maar twee zijden opgeteld.", "Een rechthoek heeft vier zijden."}},
        {{10 * (2 * r.lang + r.kort), ook_in_m[1]},
         {"Je hebt maar drie zijden opgeteld.", "Een rechthoek heeft vier zijden."}},
        {{10 * (r.lang + 2 * r.kort), ook_in_m[2]},
         {"Je hebt maar drie zijden opgeteld.", "Een rechthoek heeft vier zijden."}},
        {{2 * (in_m / 10 + in_cm * 10), false}, {"Je hebt meters en centimeters zomaar bij elkaar", "opgeteld."}},
        {{200 * (in_m / 10 + in_cm * 10), true}, {"Je hebt meters en centimeters zomaar bij elkaar", "opgeteld."}},
        {{20 * (in_m / 10 + in_cm), false}, {"Eén meter is niet 10 cm, maar 100 cm."}},
        {{20 * (in_m + 10 * in_cm), true}, {"Eén meter is niet 10 cm, maar 100 cm."}},
        {{40 * r.lang, ook_in_m[3]}, {"Niet alle vier de zijden zijn even lang."}},
        {{40 * r.kort, ook_in_m[4]}, {"Niet alle vier de zijden zijn even lang."}}};
    drie_andere(
        juist, [](const lengte& l) { return l.tekst(); }, vergissingen);

    const lengte lang{r.lang * 10, antwoord_in_m}, kort{r.kort * 10, antwoord_in_m};
    const auto getal = [&](const lengte& l) { return antwoord_in_m ? komma_kort(l.mm, 3) : komma_kort(l.mm, 1); };
    uitleg("Voordat je alle zijden bij elkaar gaat optellen,", "moet je ze eerst omrekenen naar dezelfde eenheid.",
           antwoord_in_m ? regel(kaal(zijde_cm), " =", lange_in_m ? kort.tekst() : lang.tekst(), ".")
                         : regel(kaal(zijde_m), " =", lange_in_m ? lang.tekst() : kort.tekst(), "."),
           regel("De omtrek is dan", getal(lang), " +", getal(kort), " +", getal(lang), " +", getal(kort), " =",
                 juist.tekst(), "."));
}

void oefeningen::L_doos_07_12_click() {
    struct zijvlak {
        int a, b;
        std::string_view vlak, vraag, afmetingen;
        int oppervlakte() const { return a * b; }
        int omtrek() const { return 2 * (a + b); }
    };
    struct doos {
        int breedte, diepte, hoogte;
        std::array<zijvlak, 3> zijvlakken() const {
            return {{{diepte, hoogte, "de zijkant", "van een zijkant?", "De zijkant heeft afmetingen van "},
                     {breedte, hoogte, "de voorkant", "van de voorkant?", "De voorkant heeft afmetingen van "},
                     {breedte, diepte, "de bovenkant", "van de bovenkant?", "De bovenkant heeft afmetingen van "}}};
        }
    };
    kies_variant(3);
    // One measure is small, and which one is drawn.
    const doos d = trek_tot(
        [this] {
            const int klein = trek(8) + 2;
            const int een = trek(10) + 10;
            const int ander = trek(10) + 10;
            const auto maten = geschud(std::array{klein, een, ander});
            return doos{maten[0], maten[1], maten[2]};
        },
        [this](const doos& drawn) {
            const auto vlakken = drawn.zijvlakken();
            return alle_verschillend(std::array{drawn.breedte, drawn.diepte, drawn.hoogte}) &&
                   alle_verschillend(std::array{vlakken[0].oppervlakte(), vlakken[1].oppervlakte(),
                                                vlakken[2].oppervlakte(), rij(vlakken, variant).omtrek()});
        });
    const auto vlakken = d.zijvlakken();
    const zijvlak& gevraagd = rij(vlakken, variant);
    const auto cm2 = [](int getal) { return regel(getal, " cm²"); };

    bord(lichtcyaan, zwart, 14);
    teken_doos(plaatje, {150, 80, drawing::inner_width - 300, drawing::inner_height - 160}, d.breedte, d.diepte,
               d.hoogte);

    vraag("Rechts zie je een doos", "met bepaalde afmetingen.", "De gegeven maten zijn in cm.", leeg,
          "Hoe groot is de oppervlakte", gevraagd.vraag);

    goed(cm2(gevraagd.oppervlakte()));
    for (const zijvlak& ander : vlakken)
        if (ander.vlak != gevraagd.vlak)
            fout(cm2(ander.oppervlakte()), regel("Je hebt de oppervlakte van ", ander.vlak, " berekend."));
    fout(cm2(gevraagd.omtrek()), regel("Je hebt de omtrek van ", gevraagd.vlak, " berekend"),
         "in plaats van de oppervlakte.");

    uitleg(regel(gevraagd.afmetingen, gevraagd.a, " bij", gevraagd.b, " cm."),
           "De oppervlakte vind je door die twee te vermenigvuldigen.",
           regel("De oppervlakte is dus", gevraagd.a, " x", gevraagd.b, " =", cm2(gevraagd.oppervlakte()), "."));
}

void oefeningen::M_bedrijfsruimte_07_12_click() {
    kies_variant(4);
    const bool in_m = variant % 2 == 1;
    const int stap = trek(12);
    const int kort = stap * 10 + (variant <= 2 ? 40 : 160), lang = kort * 13 / 10; // dm
    const bool lang_eerst = kop();
    const eenheid gegeven = in_m ? maat("m") : maat("dm"), gevraagd = in_m ? maat("dm") : maat("m");
    // A number of dm, or of dm², in the unit of the sides and in the one of the answer.
    const auto zijde = [](int dm, const eenheid& in) { return omgerekend({dm}, maat("dm"), in); };
    const auto vlak_in = [](int dm2, const eenheid& in) {
        return kommagetal{dm2}.verschoven(in == maat("m") ? -2 : 0);
    };
    const auto met = [](kommagetal k, const eenheid& e) { return regel(komma_kort(k), " ", e.teken); };
    const int een = lang_eerst ? lang : kort, ander = lang_eerst ? kort : lang;
    const kommagetal juist = vlak_in(kort * lang, gevraagd);

    bord(wit, zwart, 14);
    const int hoogte = 1040 + kort * 2, breedte = hoogte * 13 / 10;
    const vlak plan{(drawing::inner_width + 500 - breedte) / 2, 80, breedte, hoogte};
    plaatje.filled_box(plan.links, plan.boven, breedte, hoogte, lichtgrijs);
    plaatje.line_width = 6;
    plaatje.box(plan.links, plan.boven, breedte, hoogte, zwart);
    // The door, and the quarter circle in which it turns.
    const int deur = 260, deur_x = plan.links + breedte / 5;
    plaatje.line(deur_x, plan.onder(), deur_x + deur, plan.onder(), wit);
    plaatje.line_width = 1;
    plaatje.sector(deur_x, plan.onder(), deur, 0, 90, grijs, false);
    druk_midden(plan.midden().x, plan.onder() + 50, kaal(met(zijde(lang, gegeven), gegeven)));
    druk_rechts(plan.links - 130, plan.midden().y - halve_regel(14), kaal(met(zijde(kort, gegeven), gegeven)));

    vraag("Een bedrijfsruimte heeft afmetingen",
          regel("van", komma_kort(zijde(een, gegeven)), " x", met(zijde(ander, gegeven), gegeven), "."), leeg,
          "Hiernaast zie je een plattegrond.", "Bereken de oppervlakte van", "deze bedrijfsruimte.");

    const std::vector<keuze<kommagetal>> vergissingen{
        {juist.verschoven(in_m ? -2 : 2), {"Reken eerst de lengte en de breedte om."}},
        {juist.verschoven(in_m ? -1 : 1), {"Eén m² is niet 10 dm², maar 100 dm²."}},
        {juist.verschoven(in_m ? 1 : -1), {"Eén m² is niet 1.000 dm², maar 100 dm²."}},
        {zijde(2 * (kort + lang), gevraagd), {"Je hebt de omtrek berekend in plaats van", "de oppervlakte."}},
        {vlak_in(kort * kort, gevraagd), {"Je hebt de breedte met zichzelf vermenigvuldigd."}},
        {vlak_in(lang * lang, gevraagd), {"Je hebt de lengte met zichzelf vermenigvuldigd."}}};
    drie_andere(
        juist, [&](kommagetal k) { return regel(met(k, gevraagd), "²"); }, vergissingen);

    uitleg("Reken eerst de lengte en de breedte om:",
           regel(kaal(met(zijde(een, gegeven), gegeven)), " =", met(zijde(een, gevraagd), gevraagd), ",",
                 met(zijde(ander, gegeven), gegeven), " =", met(zijde(ander, gevraagd), gevraagd), "."),
           "De oppervlakte is de lengte x de breedte:",
           regel(kaal(komma_kort(zijde(een, gevraagd))), " x", komma_kort(zijde(ander, gevraagd)), " =",
                 komma_kort(juist), "."),
           regel("De oppervlakte is dus ", juiste_antwoord(), "."));
}

} // namespace cijferwerf
