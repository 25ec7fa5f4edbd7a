// Estimates of what can be seen or pictured: part of a circle, everyday lengths, a floor.
// The wrong answers think of a clock, are a power of ten off, or round in a wrong way.
#include "generators/gedeeld/maten.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

#include <cstdlib>

namespace cijferwerf {

namespace {

// The units of length as a flight of stairs.
void teken_matentrap(drawing& on) {
    constexpr int breedte = 700, trede = 210;
    const zelfde_stand bewaard(on);
    on.text_size = 14;
    for (int i = 0; const eenheid& e : lengtematen) {
        const vlak tree{240 + i * breedte, 330 + i * trede, breedte, drawing::inner_height - 330 - i * trede};
        on.filled_box(tree.links, tree.boven, tree.breedte, tree.hoogte, i % 2 == 0 ? lichtcyaan : geel);
        on.box(tree.links, tree.boven, tree.breedte, tree.hoogte, donkerblauw);
        druk_om(on, {tree.midden().x, tree.boven + 200}, e.teken);
        ++i;
    }
    on.text_size = 12;
    on.print_right(5200, 120, "elke trede omlaag: x 10");
}

} // namespace

void oefeningen::B_gestreept_10_03_click() {
    constexpr point midden{2690, 1065};
    constexpr int straal = 880;
    kies_variant(4); // where the hatched part begins: above, at the right, below, at the left
    const int stukken = trek_van(1, 3);
    const int procent = 25 * stukken;
    // A little more or less than whole pieces.
    const int scheef = trek_van(1, 4);
    const bool meer = kop();
    const double boog = 3.6 * (meer ? procent + scheef : procent - scheef);
    const double vanaf = (5 - variant) * 90 - boog;

    bord(wit, zwart, 12);
    vertel(plaatje, "Een cirkel in vier gelijke stukken. Gestreept is iets ", meer ? "meer" : "minder", " dan ",
           telwoord(stukken), stukken == 1 ? " stuk." : " stukken.");
    arceer_sector(plaatje, midden, straal, vanaf, boog, donkerblauw);
    plaatje.line_width = 2;
    plaatje.circle(midden.x, midden.y, straal, zwart);
    plaatje.line(midden.x - straal, midden.y, midden.x + straal, midden.y, zwart);
    plaatje.line(midden.x, midden.y - straal, midden.x, midden.y + straal, zwart);
    plaatje.sector(midden.x, midden.y, straal, vanaf, boog, donkerblauw, false);
    for (const int y : {250, 1600}) {
        opdracht(druk_rechts_opdracht(1850, y, donkerrood, 14, "25 %"));
        opdracht(druk_opdracht(3530, y, donkerrood, 14, "25 %"));
    }

    vraag("Een cirkel is voor een deel gestreept.", "Om je te helpen is de cirkel al in", "vier stukken verdeeld.",
          "Voor welk deel ongeveer is de cirkel", "gestreept?");

    const auto in_procenten = [](int p) { return regel(kaal(p), " %"); };
    // A quarter is 15 minutes, the part that is not hatched, other pieces.
    drie_andere(procent, in_procenten,
                {{15 * stukken,
                  {variant % 2 == 0 ? "Heb je soms aan een klok gedacht?" : "Je hebt te veel aan een klok gedacht!"}},
                 {100 - procent, {"Je haalt twee dingen door elkaar...."}},
                 {25, {"Heb je zomaar een gokje gewaagd?"}},
                 {50, {"Heb je zomaar een gokje gewaagd?"}},
                 {75, {"Heb je zomaar een gokje gewaagd?"}},
                 {90, {"Heb je zomaar een gokje gewaagd?"}}});

    uitleg("De hele cirkel is 100 %, dus elk stuk is 25 %.",
           stukken == 1 ? "Er is ongeveer 1 stuk gestreept."
                        : regel("Er zijn ongeveer", stukken, " stukken gestreept."),
           regel("Het gestreepte deel is dus ongeveer", stukken, " x 25 % =", procent, " %."));
}

void oefeningen::B_schatten_1_10_09_click() {
    struct ding {
        std::array<std::string_view, 3> vraag; // the last line runs on in the answer
        kommagetal grootte;
        eenheid maat;
        std::array<eenheid, 2> andere; // in one of these the answers stand
        std::string_view voor, na;     // of the size, in the sentence that closes
    };
    static constexpr std::array<ding, 10> dingen{
        {{{"De lengte van een gewone lucifer", "  is ongeveer...", leeg},
          {4},
          maat("cm"),
          {maat("mm"), maat("dm")},
          "Een lucifer is ongeveer",
          " lang."},
         {{"De lengte van de aanwijsstok", "van de leerkracht", "  is ongeveer..."},
          {11, 1},
          maat("m"),
          {maat("cm"), maat("dm")},
          "Een aanwijsstok is ongeveer",
          " lang."},
         {{"Iemand die rustig fietst legt in een uur", "  ongeveer deze afstand af:", leeg},
          {15},
          maat("km"),
          {maat("hm"), maat("dam")},
          "Iemand die rustig fietst, legt in een uur ongeveer",
          " af."},
         {{"De omtrek van een voetbal", "  is ongeveer...", leeg},
          {80},
          maat("cm"),
          {maat("mm"), maat("dm")},
          "De omtrek van een voetbal is ongeveer",
          "."},
         {{"De lengte van een pasgeboren baby", "  is ongeveer...", leeg},
          {5, 1},
          maat("m"),
          {maat("cm"), maat("dm")},
          "Een pasgeboren baby is ongeveer",
          " lang."},
         {{"De hoogte van een aanrecht", "  is ongeveer...", leeg},
          {9, 1},
          maat("m"),
          {maat("cm"), maat("dm")},
          "Een aanrecht is ongeveer",
          " hoog."},
         {{"De hoogte van een deur", "  is ongeveer...", leeg},
          {2},
          maat("m"),
          {maat("cm"), maat("dm")},
          "Een deur is ongeveer",
          " hoog."},
         {{"Een auto rijdt op de snelweg", "  per uur ongeveer...", leeg},
          {120},
          maat("km"),
          {maat("hm"), maat("dam")},
          "Een auto rijdt op de snelweg ongeveer",
          " per uur."},
         {{"Iemand die rustig loopt, loopt per", "  uur ongeveer...", leeg},
          {5},
          maat("km"),
          {maat("hm"), maat("m")},
          "Iemand die rustig loopt, loopt ongeveer",
          " per uur."},
         {{"Een bed heeft een lengte", "  van ongeveer...", leeg},
          {2},
          maat("m"),
          {maat("cm"), maat("dm")},
          "Een bed is ongeveer",
          " lang."}}};
    kies_variant(10);
    const ding& d = rij(dingen, variant);
    const eenheid& in = kies(d.andere);
    const auto met_maat = [](kommagetal getal, std::string_view teken) {
        return regel(kaal(komma_kort(getal)), " ", teken);
    };
    const auto antwoord = [&](kommagetal grootte, std::string_view tussen) {
        return regel(met_maat(omgerekend(grootte, d.maat, in), in.teken), tussen, "= ",
                     met_maat(grootte, d.maat.teken));
    };

    bord(wit, donkerblauw, 14);
    teken_matentrap(plaatje);

    vraag("Maak een schatting.", leeg, d.vraag[0], d.vraag[1], d.vraag[2]);

    // Powers of ten off, and no more than pupils can read: what is measured in kilometres is made smaller rather.
    const bool ver = d.maat == maat("km");
    std::vector<keuze<kommagetal>> vergissingen;
    for (int plaatsen = ver ? -3 : -2; plaatsen <= (ver ? 2 : 3); ++plaatsen)
        if (plaatsen != 0)
            vergissingen.push_back({d.grootte.verschoven(plaatsen),
                                    {plaatsen < 0 ? "Dat is veel te weinig!" : "Dat is veel te veel!",
                                     "Lees ook de tweede regel van het antwoord."}});
    drie_andere(
        d.grootte, [&](kommagetal grootte) { return antwoord(grootte, "\r"); }, vergissingen);

    const int treden = macht_tussen(in, d.maat); // down the stairs, or up when below 0
    uitleg(regel(d.voor, " ", met_maat(d.grootte, d.maat == maat("m") ? "meter" : d.maat.teken), d.na),
           regel("Van ", in.teken, " naar ", d.maat.teken, " ga je", std::abs(treden),
                 std::abs(treden) == 1 ? " trede " : " treden ",
                 treden > 0 ? "omlaag:" : "omhoog:", komma_kort(omgerekend(d.grootte, d.maat, in)),
                 treden > 0 ? " x" : " :", duizend(tien_tot_de(std::abs(treden))), " =", komma_kort(d.grootte), "."),
           regel("Het goede antwoord is dus ", antwoord(d.grootte, " "), "."));
}

void oefeningen::L_betegelen_10_12_click() {
    kies_variant(3); // the width just under whole metres, the length, or both
    const int breed = trek_van(2, 6);
    const int lang = trek_van(breed + 1, 9);
    const bool breed_krom = variant != 2;
    const bool lang_krom = variant != 1;
    const int breedte = 10 * breed - (breed_krom ? 1 : 0); // in tenths
    const int lengte = 10 * lang - (lang_krom ? 1 : 0);
    const auto meter = [](int tienden) { return regel(komma(tienden, 1), " m"); };

    constexpr int schaal = 24; // twips for a tenth of a metre
    bord(wit, zwart, 12);
    const vlak vloer{2690 - lengte * schaal / 2, 220, lengte * schaal, breedte * schaal};
    plaatje.filled_box(vloer.links, vloer.boven, vloer.breedte, vloer.hoogte, lichtcyaan);
    for (int x = 10; x < lengte; x += 10)
        plaatje.line(vloer.links + x * schaal, vloer.boven, vloer.links + x * schaal, vloer.onder(), cyaan);
    for (int y = 10; y < breedte; y += 10)
        plaatje.line(vloer.links, vloer.boven + y * schaal, vloer.rechts(), vloer.boven + y * schaal, cyaan);
    plaatje.box(vloer.links, vloer.boven, vloer.breedte, vloer.hoogte, zwart);
    teken_maat(plaatje, {vloer.links, vloer.onder() + 220}, {vloer.rechts(), vloer.onder() + 220}, kaal(meter(lengte)));
    druk(vloer.rechts() + 120, vloer.midden().y - halve_regel(12), kaal(meter(breedte)));

    vraag("Een tegelzetter moet in een", "woning een vloer betegelen.", regel("De vloer is", meter(breedte), " breed"),
          regel("en", meter(lengte), " lang."), "Hoeveel m² heeft hij", "ongeveer nodig?");

    const melding afronden{"Eerst moet je de lengte en de breedte afronden."};
    const melding vermenigvuldigen{"Als je de lengte en de breedte afgerond hebt,",
                                   "moet je ze met elkaar vermenigvuldigen."};
    const int kort_breed = breedte / 10, kort_lang = lengte / 10; // what stands before the comma
    // Cut off, or a metre too little or too much; added, or walked around.
    std::vector<keuze<int>> vergissingen{{kort_breed * kort_lang, afronden}, {(breed - 1) * lang, afronden},
                                         {breed * (lang - 1), afronden},     {(breed + 1) * lang, afronden},
                                         {breed * (lang + 1), afronden},     {(breed + 1) * (lang + 1), afronden},
                                         {breed + lang, vermenigvuldigen},   {2 * (breed + lang), vermenigvuldigen}};
    // Who does not round at all must not find a wrong answer nearly as near as the right one.
    const auto ernaast = [&](int m2) { return std::abs(100 * m2 - breedte * lengte); };
    std::erase_if(vergissingen, [&](const keuze<int>& k) { return ernaast(k.waarde) < 2 * ernaast(breed * lang); });
    drie_andere(
        breed * lang, [](int m2) { return regel(kaal(m2), " m²"); }, vergissingen);

    uitleg("Rond eerst de breedte en de lengte af.",
           regel("De breedte is ongeveer", breed, " m en de lengte is ongeveer", lang, " m."),
           regel(kaal(breed), " x", lang, " =", breed * lang, ", dus hij heeft ongeveer", breed * lang, " m² nodig."));
}

} // namespace cijferwerf
