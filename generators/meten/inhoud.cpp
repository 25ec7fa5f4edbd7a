// Capacities, and sensible sizes of everyday things.
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/meten/meten.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <compare>
#include <cstdlib>

namespace cijferwerf {

void oefeningen::B_inhoud_08_17_click() {
    static constexpr std::array<gemeten_ding, 5> dingen{
        {{"luciferdoosje",
          {{{25, maat("cm³")}, {28, maat("cm³")}, {30, maat("cm³")}, {30, maat("mL")}}},
          {{{maat("cm"), maat("mm")}, {maat("cm²"), maat("mm²")}, {maat("g"), maat("mg")}}}},
         {"regenton",
          {{{200, maat("liter")}, {150, maat("liter")}, {250, maat("dm³")}, {2, maat("hL")}}},
          {{{maat("m"), maat("dm")}, {maat("m²"), maat("dm²")}, {maat("kg"), maat("hg")}}}},
         {"emmer",
          {{{8, maat("liter")}, {10, maat("liter")}, {12, maat("dm³")}, {1, maat("daL")}}},
          {{{maat("cm"), maat("dm")}, {maat("cm²"), maat("dm²")}, {maat("kg"), maat("g")}}}},
         {"huis",
          {{{350, maat("m³")}, {400, maat("m³")}, {450, maat("m³")}, {500, maat("m³")}}},
          {{{maat("m"), maat("dm")}, {maat("m²"), maat("dm²")}, {maat("kg"), maat("hg")}}}},
         {"fles",
          {{{1, maat("liter")}, {75, maat("cL")}, {7, maat("dL")}, {500, maat("mL")}}},
          {{{maat("cm"), maat("mm")}, {maat("cm²"), maat("dm²")}, {maat("g"), maat("kg")}}}}}};
    static constexpr std::array<kleur, 4> kleuren{rood, groen, blauw, lichtgrijs};
    kies_variant(5);
    const gemeten_ding& ding = rij(dingen, variant);
    const auto opties = aanvullingen(toeval, ding);

    bord(zwart, wit, 12);
    druk(180, 110, "De inhoud van een ", ding.ding, " is ongeveer...");
    plaatje.text_size = 14;
    kleurkeuze({180, 470}, 405, kleuren, opties);

    vraag("Hiernaast zie je een uitspraak", "die te maken heeft met de", regel("inhoud van een ", ding.ding, "."),
          "Slechts één van de mogelijkheden", "kan juist zijn.", "Kies de juiste kleur.");

    uitleg("Deze som gaat over een inhoud.", regel("Alleen ' ", opties[0].waarde, " ' is een inhoudsmaat,"),
           "alle andere mogelijkheden zijn dat niet.", regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::B_schatten_08_17_click() {
    // A size that everyone knows; the same a hundred and ten times too small and too large, in units that suit; and two
    // units of another kind.
    struct ding {
        std::string_view wat;
        kommagetal getal;
        eenheid maat;
        std::array<eenheid, 4> ernaast;
        std::array<eenheid, 2> andere;
    };
    static constexpr std::array<int, 4> machten{-2, -1, 1, 2};
    static constexpr std::array<std::array<ding, 4>, 4> dingen{
        {{{{"De lengte van een lucifer",
            {4},
            maat("cm"),
            {maat("mm"), maat("mm"), maat("cm"), maat("m")},
            {maat("g"), maat("cm²")}},
           {"De lengte van een potlood",
            {17},
            maat("cm"),
            {maat("mm"), maat("mm"), maat("dm"), maat("m")},
            {maat("g"), maat("cm³")}},
           {"De hoogte van een deur",
            {2},
            maat("m"),
            {maat("cm"), maat("dm"), maat("m"), maat("m")},
            {maat("kg"), maat("m²")}},
           {"De lengte van een auto",
            {4},
            maat("m"),
            {maat("cm"), maat("dm"), maat("m"), maat("hm")},
            {maat("kg"), maat("m³")}}}},
         {{{"Het gewicht van een pasgeboren baby",
            {25, 1},
            maat("kg"),
            {maat("g"), maat("g"), maat("kg"), maat("kg")},
            {maat("liter"), maat("dm")}},
           {"Het gewicht van een appel",
            {150},
            maat("g"),
            {maat("g"), maat("g"), maat("kg"), maat("kg")},
            {maat("mL"), maat("cm")}},
           {"Het gewicht van een brood",
            {800},
            maat("g"),
            {maat("g"), maat("g"), maat("kg"), maat("kg")},
            {maat("cm³"), maat("cm²")}},
           {"Het gewicht van een fiets",
            {15},
            maat("kg"),
            {maat("g"), maat("kg"), maat("kg"), maat("kg")},
            {maat("liter"), maat("dm")}}}},
         {{{"De oppervlakte van een klaslokaal",
            {50},
            maat("m²"),
            {maat("dm²"), maat("m²"), maat("m²"), maat("are")},
            {maat("m"), maat("m³")}},
           {"De oppervlakte van een ansichtkaart",
            {150},
            maat("cm²"),
            {maat("mm²"), maat("cm²"), maat("dm²"), maat("dm²")},
            {maat("cm"), maat("g")}},
           {"De oppervlakte van een deur",
            {2},
            maat("m²"),
            {maat("dm²"), maat("dm²"), maat("m²"), maat("m²")},
            {maat("m"), maat("kg")}},
           {"De oppervlakte van een postzegel",
            {6},
            maat("cm²"),
            {maat("mm²"), maat("mm²"), maat("cm²"), maat("dm²")},
            {maat("cm"), maat("cm³")}}}},
         {{{"De inhoud van een emmer",
            {10},
            maat("liter"),
            {maat("dL"), maat("liter"), maat("liter"), maat("m³")},
            {maat("kg"), maat("dm²")}},
           {"De inhoud van een theelepel",
            {5},
            maat("mL"),
            {maat("mL"), maat("mL"), maat("mL"), maat("dL")},
            {maat("g"), maat("cm")}},
           {"De inhoud van een badkuip",
            {150},
            maat("liter"),
            {maat("cL"), maat("liter"), maat("liter"), maat("m³")},
            {maat("kg"), maat("m²")}},
           {"De inhoud van een pak melk",
            {1},
            maat("liter"),
            {maat("cL"), maat("dL"), maat("daL"), maat("hL")},
            {maat("kg"), maat("dm")}}}}}};
    kies_variant(4);
    const ding& d = kies(rij(dingen, variant));
    const auto met = [](kommagetal getal, const eenheid& e) {
        return regel(komma_kort(getal), " ", e.teken == "g" ? "gram" : e.teken);
    };
    // Two other sizes, of which none, one or both are too small.
    const int te_klein = trek(3);
    const auto klein = static_cast<std::size_t>(trek(2));
    const auto groot = static_cast<std::size_t>(trek(2) + 2);
    const std::array<std::size_t, 2> ernaast = te_klein == 0   ? std::array<std::size_t, 2>{2, 3}
                                               : te_klein == 1 ? std::array{klein, groot}
                                                               : std::array<std::size_t, 2>{0, 1};
    const auto getal_van = [&](std::size_t i) {
        return omgerekend(d.getal, d.maat, d.ernaast[i]).verschoven(machten[i]);
    };
    // The answer of another kind has the number of one of the three, or it would give away that of the right one.
    const kommagetal zelfde_getal = kies(std::array{d.getal, getal_van(ernaast[0]), getal_van(ernaast[1])});
    const eenheid& andere = kies(d.andere);

    // A blackboard with a piece of chalk.
    bord(olijf, wit, 15);
    plaatje.filled_box(120, 120, drawing::inner_width - 240, 1700, zwart);
    plaatje.filled_box(120, 1820, drawing::inner_width - 240, 90, lichtgrijs);
    plaatje.filled_box(4300, 1775, 420, 55, wit);
    druk(420, 500, d.wat);
    druk(420, 950, "is ongeveer...");

    vraag("Op het bord staat een zin.", "Het laatste stuk moet er nog bij.", leeg, "Welke maat past het beste",
          "op de stippen?");

    goed(met(d.getal, d.maat));
    for (const std::size_t i : ernaast)
        fout(met(getal_van(i), d.ernaast[i]), regel("Dat is ", factor_tekst(machten[i]), " als in werkelijkheid."));
    const melding soort = verkeerde_soort(andere.soort, d.maat.soort);
    const std::string_view vervolg = soort[1];
    fout(met(zelfde_getal, andere), std::string_view(soort[0]), vervolg.empty() ? leeg : vervolg);

    static constexpr std::array<std::string_view, 4> soorten{"een lengtemaat", "een maat voor gewicht",
                                                             "een oppervlaktemaat", "een inhoudsmaat"};
    uitleg(regel("Hier hoort ", rij(soorten, variant), " bij, die ook ongeveer"), "zo groot is als in werkelijkheid.",
           regel(d.wat, " is ongeveer ", juiste_antwoord(), "."));
}

void oefeningen::L_doos_08_17_click() {
    // Compared by its size.
    struct inhoud {
        long long mL = 0;
        bool in_liter = false;
        bool operator==(const inhoud& other) const { return mL == other.mL; }
        auto operator<=>(const inhoud& other) const { return mL <=> other.mL; }
        plakregel tekst() const {
            return in_liter ? plak_even({duizend(mL / 1000), " liter"}) : plak_even({duizend(mL), " mL"});
        }
    };
    kies_variant(2);
    const bool in_dm = variant == 1;
    // A measure of 1 would make the area of a face equal to the volume.
    const int lang = trek(2) + 2;
    const int breed = trek(4) + 3;
    const int hoog = trek(4) + 2;
    const bool andere_eenheid = kop();
    const int volume = lang * breed * hoog;
    const std::string_view kubiek = in_dm ? "dm³" : "cm³", eenheid = in_dm ? "liter" : "mL";
    const auto gevraagd = [in_dm](int aantal) { return inhoud{in_dm ? aantal * 1000LL : aantal, in_dm}; };

    bord(lichtcyaan, zwart, 14);
    teken_doos(plaatje, {150, 80, drawing::inner_width - 300, drawing::inner_height - 160}, breed, lang, hoog);

    vraag("Rechts zie je een doos", "met bepaalde afmetingen.",
          in_dm ? "De gegeven maten zijn in dm." : "De gegeven maten zijn in cm.", leeg,
          "Hoe groot is de inhoud van deze", "doos?");

    std::vector<keuze<inhoud>> vergissingen{
        {gevraagd(lang + breed + hoog), {"Je hebt de maten opgeteld.", "Je moet ze met elkaar vermenigvuldigen."}},
        {gevraagd(lang * breed),
         {"Je hebt alleen de lengte en de breedte", "vermenigvuldigd. De hoogte moet ook nog."}},
        {gevraagd(2 * (lang * breed + lang * hoog + breed * hoog)),
         {"Je hebt de oppervlakte van alle zijvlakken berekend", "in plaats van de inhoud."}}};
    if (in_dm) {
        vergissingen.push_back({{volume, false}, {"Eén dm³ is gelijk aan 1 liter, niet aan 1 mL."}});
        vergissingen.push_back({gevraagd(1000 * volume), {"Eén dm³ is gelijk aan 1 liter, niet aan 1.000 liter."}});
    } else {
        vergissingen.push_back({{1000LL * volume, andere_eenheid},
                                {andere_eenheid ? "Eén cm³ is gelijk aan 1 mL, niet aan 1 liter."
                                                : "Eén cm³ is gelijk aan 1 mL, niet aan 1.000 mL."}});
    }
    drie_andere(
        gevraagd(volume), [](const inhoud& i) { return i.tekst(); }, vergissingen);

    uitleg("De inhoud is de lengte x de breedte x de hoogte:",
           regel(kaal(lang), " x", breed, " x", hoog, " =", volume, " ", kubiek, "."),
           regel("Eén ", kubiek, " is gelijk aan 1 ", eenheid, "."),
           regel("De inhoud van de doos is dus", volume, " ", eenheid, "."));
}

void oefeningen::L_watertank_07_17_click() {
    static constexpr std::array<eenheid, 8> gevraagde{maat("mL"), maat("cL"),  maat("dL"),  maat("daL"),
                                                      maat("hL"), maat("cm³"), maat("dm³"), maat("m³")};
    kies_variant(8);
    const eenheid liter = maat("liter");
    const eenheid& gevraagd = rij(gevraagde, variant);
    const int liters = trek_tot([this] { return trek_van(2, 89); }, [](int drawn) { return drawn % 10 != 0; });
    const int macht = macht_tussen(liter, gevraagd);
    const kommagetal juist = kommagetal{liters}.verschoven(macht);

    plaatje.picture("watertank.bmp");
    bord(wit, donkerblauw, 24);
    druk_midden(2700, 770, kaal(liters), " liter");

    vraag("Hiernaast zie je een watertank.", "Er staat op vermeld hoeveel", "water er in zit.", leeg,
          regel("Hoeveel ", gevraagd.teken, " is dat?"));

    std::vector<keuze<kommagetal>> vergissingen;
    for (int andere = std::min(-3, macht - 1); andere <= std::max(3, macht + 1); ++andere) {
        if (andere == macht) continue;
        const bool verkeerde_kant = andere * macht < 0;
        const plakregel gedaan = andere == 0 ? "Je hebt het getal gelijk gelaten."
                                             : regel("Je hebt", andere > 0 ? " vermenigvuldigd met" : " gedeeld door",
                                                     duizend(tien_tot_de(std::abs(andere))), ".");
        if (verkeerde_kant)
            vergissingen.push_back({kommagetal{liters}.verschoven(andere),
                                    {"Denk nog eens goed na over hoe je", "liters moet omrekenen.", gedaan}});
        else
            vergissingen.push_back({kommagetal{liters}.verschoven(andere), {"Je hebt niet goed omgerekend.", gedaan}});
    }
    drie_andere(
        juist, [&](kommagetal k) { return regel(komma_kort(k), " ", gevraagd.teken); }, vergissingen);

    const number_text keer = duizend(tien_tot_de(std::abs(macht)));
    uitleg("Om deze som op te lossen moet je weten",
           macht >= 0 ? regel("dat 1 liter gelijk is aan", keer, " ", gevraagd.teken, ".")
                      : regel("dat 1 ", gevraagd.teken, " gelijk is aan", keer, " liter."),
           macht == 0 ? regel("Het getal blijft dus gelijk:", liters, " liter =", liters, " ", gevraagd.teken, ".")
                      : regel(macht > 0 ? "Vermenigvuldig dus met" : "Deel dus door", keer, ":", liters,
                              macht > 0 ? " x" : " :", keer, " =", komma_kort(juist), "."),
           regel("In de tank zit dus ", juiste_antwoord(), " water."));
}

} // namespace cijferwerf
