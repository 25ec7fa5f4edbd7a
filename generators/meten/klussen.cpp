// Jobs about the house: how many pots or rolls are needed, where the last one is used only in part.
#include "generators/gedeeld/tekening.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// Quotient and remainder, as a pupil divides.
struct staartdeling {
    int teller, noemer;
    int uitkomst() const { return teller / noemer; }
    int rest() const { return teller % noemer; }
    int naar_boven() const { return (teller + noemer - 1) / noemer; }
    // "46 : 7 = 6, rest 4"
    plakregel tekst() const {
        return plak_even({kaal(duizend(teller)), " :", noemer, " =", uitkomst(), ", rest", rest()});
    }
};

} // namespace

void oefeningen::L_schilder_07_12_click() {
    struct klus {
        int breed, lang, per_pot;
        staartdeling potten() const { return {breed * lang, per_pot}; }
    };
    static constexpr std::array<std::array<std::string_view, 4>, 3> aanwijzingen{
        {{"Bereken eerst de oppervlakte.", leeg, leeg, leeg},
         {"Bereken eerst de oppervlakte en deel dan die", "oppervlakte door het aantal m² dat met",
          "één pot gedaan kan worden.", leeg},
         {"Heb je wel eerst de oppervlakte van het plafond", "berekend?", "Daarna moet je dat aantal m² delen door het",
          "aantal m² dat uit een pot te halen is."}}};
    kies_variant(2);
    const klus k = trek_tot(
        [this] {
            const int breed = trek(10) + 3;
            const int lang = trek(10) + 3;
            const int per_pot = trek(7) + 4;
            return klus{breed, lang, per_pot};
        },
        [](const klus& drawn) { return drawn.potten().rest() > 0 && drawn.potten().naar_boven() >= 4; });
    const staartdeling potten = k.potten();
    const int juist = potten.naar_boven();
    const auto meldingen = geschud(aanwijzingen);
    juist_op(trek(4) + 1);

    plaatje.picture("schilder.bmp");
    bord(wit, zwart, 24);
    druk_midden(4150, 1070, kaal(k.per_pot), " m²");

    vraag("Een schilder moet een plafond", regel("schilderen van", k.breed, " m breed"),
          regel("en", k.lang, " m lang. Daarvoor koopt"), "hij verf. Hiernaast zie je hoeveel m²",
          "hij met één pot kan verven.", "Hoeveel potten heeft hij nodig?");

    auto volgende = meldingen.begin();
    for (int i = 1; i <= 4; ++i) {
        const int aantal = juist + i - juiste_positie;
        if (aantal == juist - 1)
            op_plaats(i, tekst(aantal), "Je hebt de rest vergeten: ook voor het laatste stukje",
                      "is nog een pot nodig.");
        else if (aantal == juist)
            op_plaats(i, tekst(aantal));
        else {
            const auto& [a, b, c, d] = *volgende++;
            op_plaats(i, tekst(aantal), a, b, c, d);
        }
    }

    uitleg("Je moet eerst de oppervlakte van het plafond",
           regel("uitrekenen. Dat is in dit geval:", k.breed, " x", k.lang, " =", potten.teller, " m²."),
           "Dan deel je door het aantal m², dat je met één pot kunt",
           regel("schilderen, dus ", potten.tekst(), ". Voor het hele plafond"),
           regel("is dus nog een extra pot nodig. In totaal", juist, " potten."));
}

void oefeningen::M_behangen_07_09_click() {
    struct klus {
        int lang, hoog, rol_lang, rol_breed; // cm
        staartdeling per_rol() const { return {rol_lang, hoog}; }
        staartdeling banen() const { return {lang, rol_breed}; }
        staartdeling rollen() const { return {banen().naar_boven(), per_rol().uitkomst()}; }
        bool geschikt() const {
            return per_rol().rest() > 0 && banen().rest() > 0 && rollen().rest() > 0 && rollen().naar_boven() >= 4;
        }
    };
    static constexpr std::array<std::array<std::string_view, 2>, 3> aanwijzingen{
        {{"Bereken eerst hoeveel banen van de hoogte van de", "muur je uit één rol kunt halen."},
         {"Bereken hoeveel banen er naast elkaar nodig zijn", "en deel dat door het aantal banen per rol."},
         {"Wat er van een rol overblijft, is te kort voor een baan.",
          "Rond het aantal banen per rol dus naar beneden af."}}};
    kies_variant(2);
    const bool korte_rollen = variant == 1;
    const klus k = trek_tot(
        [&] {
            const int lang = trek_van(500, 1200, 10);
            const int hoog = trek_van(220, 300, 10);
            const int rol_lang = korte_rollen ? trek_van(800, 1000, 50) : trek_van(1050, 1500, 50);
            const int rol_breed = trek_van(45, 60);
            return klus{lang, hoog, rol_lang, rol_breed};
        },
        [](const klus& drawn) { return drawn.geschikt(); });
    const int juist = k.rollen().naar_boven();
    const auto meldingen = geschud(aanwijzingen);
    juist_op(trek(4) + 1);
    const auto meter = [](int cm) { return komma_kort(cm, 2); };
    const std::string hoogte = regel(kaal(meter(k.hoog)), " m"), breedte = regel(kaal(k.rol_breed), " cm");

    // The wall with its first strips, and a roll.
    bord(lichtgrijs, zwart, 12);
    constexpr vlak muur{850, 150, 2500, 1450}, rol{3700, 300, 520, 1300};
    plaatje.filled_box(muur.links, muur.boven, muur.breedte, muur.hoogte, wit);
    constexpr int baan = 260;
    for (int x = muur.links; x < muur.links + 4 * baan; x += baan) {
        plaatje.filled_box(x, muur.boven, baan, muur.hoogte, geel);
        plaatje.box(x, muur.boven, baan, muur.hoogte, olijf);
        for (int y = muur.boven + 145; y < muur.onder(); y += 290) plaatje.filled_circle(x + baan / 2, y, 50, olijf);
    }
    plaatje.box(muur.links, muur.boven, muur.breedte, muur.hoogte, zwart);
    teken_maat(plaatje, {muur.links, muur.onder() + 200}, {muur.rechts(), muur.onder() + 200},
               regel(kaal(meter(k.lang)), " m"));
    druk_rechts(muur.links - 120, muur.midden().y - halve_regel(12), hoogte);
    plaatje.filled_box(rol.links, rol.boven, rol.breedte, rol.hoogte, geel);
    plaatje.box(rol.links, rol.boven, rol.breedte, rol.hoogte, olijf);
    for (int y = rol.boven + 220; y < rol.onder() - 50; y += 290)
        for (const int x : {rol.links + 130, rol.links + 390}) plaatje.filled_circle(x, y, 50, olijf);
    plaatje.ellipse(rol.midden().x, rol.boven, rol.breedte / 2, 110, wit, true);
    plaatje.ellipse(rol.midden().x, rol.boven, rol.breedte / 2, 110, olijf, false);
    plaatje.ellipse(rol.midden().x, rol.boven, 110, 45, olijf, false);
    druk_midden(rol.midden().x + 100, rol.onder() + 110, "rol:", meter(k.rol_lang), " m");
    teken_maat(plaatje, {rol.rechts() + 370, rol.boven}, {rol.rechts() + 370, rol.onder()}, breedte);

    vraag("Een muur moet behangen worden.", regel("De lengte van de muur is", meter(k.lang), " m."),
          regel("De hoogte van de muur is", meter(k.hoog), " m."),
          regel("De rollen behang zijn", meter(k.rol_lang), " m"), regel("lang en", k.rol_breed, " cm breed."),
          "Hoeveel hele rollen behang zijn er nodig?");

    auto volgende = meldingen.begin();
    for (int i = 1; i <= 4; ++i) {
        const int aantal = juist + i - juiste_positie;
        if (aantal == juist - 1)
            op_plaats(i, tekst(aantal), "Je hebt de rest vergeten: voor de laatste banen", "is nog een rol nodig.");
        else if (aantal == juist)
            op_plaats(i, tekst(aantal));
        else {
            const auto& [a, b] = *volgende++;
            op_plaats(i, tekst(aantal), a, b);
        }
    }

    const int per_rol = k.per_rol().uitkomst(), banen = k.banen().naar_boven();
    uitleg("Deel eerst de lengte van een rol door de hoogte van de",
           regel("muur, uitkomst: ", k.per_rol().tekst(), ". Dus", per_rol, " banen per rol."),
           "Deel dan de lengte van de muur door de breedte van een rol:",
           regel(k.banen().tekst(), ". Er zijn dus", banen, " banen nodig."),
           regel("Aantal rollen: ", k.rollen().tekst(), ". Voor de rest nog een rol."),
           regel("In totaal zijn er dus", juist, " rollen nodig."));
}

} // namespace cijferwerf
