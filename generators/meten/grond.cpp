// Pieces of land on a grid: which has the shortest or the longest edge.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <numeric>

namespace cijferwerf {

namespace {

// Columns of squares on one base line, or hanging from one: so high from left to right.
struct kolommen {
    std::vector<int> hoogten;

    roosterfiguur figuur(bool hangt = false) const {
        const int omhoog = hangt ? 1 : -1;
        std::vector<point> hoeken;
        int x = 0, hoog = 0;
        const auto naar = [&](int volgende) {
            if (volgende != hoog) hoeken.insert(hoeken.end(), {{x, omhoog * hoog}, {x, omhoog * volgende}});
            hoog = volgende;
        };
        for (const int hoogte : hoogten) {
            naar(hoogte);
            ++x;
        }
        naar(0);
        return roosterfiguur(std::move(hoeken));
    }
    int breed() const { return static_cast<int>(hoogten.size()); }
    // Two pieces with the same columns, in whatever order, look too much alike.
    std::vector<int> op_hoogte() const {
        std::vector<int> sorted = hoogten;
        std::ranges::sort(sorted);
        return sorted;
    }
};

// All pieces of three to five columns, each one to four squares high.
const std::vector<kolommen>& alle_kolommen() {
    static const auto all = [] {
        std::vector<kolommen> found{{{}}}, wanted;
        for (std::size_t breed = 1; breed <= 5; ++breed) {
            std::vector<kolommen> longer;
            for (const kolommen& k : found)
                for (int hoogte = 1; hoogte <= 4; ++hoogte) {
                    longer.push_back(k);
                    longer.back().hoogten.push_back(hoogte);
                }
            found = std::move(longer);
            if (breed >= 3) wanted.insert(wanted.end(), found.begin(), found.end());
        }
        return wanted;
    }();
    return all;
}

} // namespace

void oefeningen::M_draad_07_12_click() {
    static constexpr std::array<std::string_view, 3> letters{"A", "B", "C"};
    struct stukje {
        kolommen vorm;
        int omtrek, oppervlakte;
    };
    static const auto stukjes = [] {
        std::vector<stukje> all;
        for (const kolommen& k : alle_kolommen()) {
            const roosterfiguur f = k.figuur();
            all.push_back({k, f.omtrek(), f.oppervlakte()});
        }
        return all;
    }();
    kies_variant(2);
    zaai();
    const bool kortste = variant == 1;
    const int juist = trek(4) + 1;
    const bool even_lang = juist == 4;
    const bool even_groot = kop();
    // Pieces that are even large tempt to say that their edges are even long.
    const int oppervlakte = trek_van(10, 12);
    std::array<int, 3> omtrekken{};
    if (even_lang) {
        omtrekken.fill(trek_van(16, 20, 2));
    } else {
        auto drie = geschud(std::array{16, 18, 20, 22});
        std::ranges::copy(drie.begin(), drie.begin() + 3, omtrekken.begin());
        const auto uiterste = kortste ? std::ranges::min_element(omtrekken) : std::ranges::max_element(omtrekken);
        std::swap(*uiterste, rij(omtrekken, juist));
    }
    std::vector<stukje> gekozen;
    for (const int omtrek : omtrekken) {
        std::vector<const stukje*> mogelijk;
        for (const stukje& s : stukjes) {
            const bool andere_vorm = std::ranges::none_of(gekozen, [&](const stukje& eerder) {
                return even_groot ? even_lang && eerder.vorm.op_hoogte() == s.vorm.op_hoogte()
                                  : eerder.oppervlakte == s.oppervlakte;
            });
            if (s.omtrek == omtrek && s.oppervlakte >= 9 && s.oppervlakte <= 13 &&
                (!even_groot || s.oppervlakte == oppervlakte) && andere_vorm)
                mogelijk.push_back(&s);
        }
        gekozen.push_back(*kies(mogelijk));
    }

    bord(wit, zwart, 14);
    constexpr int hokje = 270;
    const rooster op{{125, 400}, hokje, 19, 6};
    std::vector<gekleurde_figuur> figuren;
    std::vector<int> middens;
    int breed = 0;
    for (const stukje& s : gekozen) breed += s.vorm.breed();
    int x = (op.breed - breed - 2) / 2;
    for (const stukje& s : gekozen) {
        const bool hangt = kop();
        figuren.push_back({s.vorm.figuur(hangt).verschoven(x, hangt ? 1 : 5), lichtgroen});
        middens.push_back(op.hoek({x, 0}).x + s.vorm.breed() * hokje / 2);
        x += s.vorm.breed() + 1;
    }
    teken_rooster(plaatje, op, figuren);
    for (std::size_t i = 0; i < 3; ++i) {
        druk_midden(middens[i], 40, letters[i]);
        opdracht(druk_opdracht(middens[i] + 160, 40, donkerrood, 14, "(", kaal(gekozen[i].omtrek), ")"));
    }

    vraag("Om deze stukjes wordt", "een draad gespannen.", "Voor welk stukje grond heb je",
          kortste ? "de KORTSTE draad nodig?" : "de LANGSTE draad nodig?", "Of is de draad overal even lang?");

    juist_op(juist);
    for (int i = 1; i <= 3; ++i)
        op_plaats(i, rij(letters, i), "Loop in gedachten om een stukje grond heen.",
                  "Tel de stukken tussen de hoekpunten van elk", "stukje grond bij elkaar op.");
    op_plaats(4, "overal even lang", "Loop in gedachten om elk stukje grond heen en tel.",
              even_groot ? "De stukjes zijn wel even groot, maar de draad is niet" : "De draad is niet bij elk stukje",
              "even lang.");

    const auto draad = [&](std::size_t i) { return regel("om ", letters[i], " is die", gekozen[i].omtrek, " lang"); };
    uitleg("Tel bij elk stukje grond de zijden van hokjes langs de rand.",
           regel("Zo lang is de draad: ", draad(0), ","), regel(draad(1), " en ", draad(2), "."),
           even_lang ? regel("De draad is dus overal even lang.")
                     : regel("De ", kortste ? "kortste" : "langste", " draad is dus nodig voor stukje ",
                             rij(letters, juist), "."));
}

} // namespace cijferwerf
