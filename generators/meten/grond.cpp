// Pieces of land on a grid: which has the shortest or the longest edge.
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace cijferwerf {

namespace {

// Columns of squares on one base line, or hanging from one: so high from left to right.
struct stuk_grond {
    std::vector<int> hoogten;
    int omtrek = 0, oppervlakte = 0; // in sides and squares

    explicit stuk_grond(std::vector<int> kolommen) : hoogten(std::move(kolommen)) {
        omtrek = figuur(false).omtrek();
        oppervlakte = figuur(false).oppervlakte();
    }
    roosterfiguur figuur(bool hangt) const {
        std::vector<point> hoeken;
        int x = 0, hoog = 0;
        const auto ga_naar = [&](int volgende) {
            const int omlaag = hangt ? 1 : -1;
            if (volgende != hoog) hoeken.insert(hoeken.end(), {{x, omlaag * hoog}, {x, omlaag * volgende}});
            hoog = volgende;
        };
        for (const int hoogte : hoogten) {
            ga_naar(hoogte);
            ++x;
        }
        ga_naar(0);
        return roosterfiguur(std::move(hoeken));
    }
    int breed() const { return static_cast<int>(hoogten.size()); }
    // The same columns in another order look much alike.
    bool lijkt_op(const stuk_grond& ander) const { return std::ranges::is_permutation(hoogten, ander.hoogten); }
};

// The pieces of three to five columns, each one to four squares high, with this edge and this many squares.
const std::vector<stuk_grond>& stukken(int omtrek, int oppervlakte) {
    static const auto op_maat = [] {
        std::map<std::pair<int, int>, std::vector<stuk_grond>> found;
        for (int breed = 3; breed <= 5; ++breed)
            for (int code = 0; code < 1 << 2 * breed; ++code) { // two bits a column
                std::vector<int> kolommen;
                for (int x = 0; x < breed; ++x) kolommen.push_back((code >> 2 * x & 3) + 1);
                const stuk_grond stuk(std::move(kolommen));
                found[{stuk.omtrek, stuk.oppervlakte}].push_back(stuk);
            }
        return found;
    }();
    return op_maat.at({omtrek, oppervlakte});
}

} // namespace

void oefeningen::M_draad_07_12_click() {
    static constexpr std::array<std::string_view, 3> letters{"A", "B", "C"};
    kies_variant(2);
    const bool kortste = variant == 1;
    const int juist = trek(4) + 1;
    const bool even_lang = juist == 4;
    const bool even_groot = kop();
    // Pieces that are even large tempt to say that their edges are even long.
    auto oppervlakten = geschud(std::array{10, 11, 12, 13});
    if (even_groot) oppervlakten.fill(trek_van(10, 12));
    std::array<int, 3> omtrekken{};
    if (even_lang) {
        omtrekken.fill(trek_van(16, 20, 2));
    } else {
        auto drie = geschud(std::array{16, 18, 20, 22});
        std::ranges::copy(drie.begin(), drie.begin() + 3, omtrekken.begin());
        const auto uiterste = kortste ? std::ranges::min_element(omtrekken) : std::ranges::max_element(omtrekken);
        std::swap(*uiterste, rij(omtrekken, juist));
    }
    // Of even large pieces there are at least three that look different for each of these edges.
    std::vector<const stuk_grond*> gekozen;
    for (std::size_t i = 0; i < omtrekken.size(); ++i)
        gekozen.push_back(trek_tot([&] { return &kies(stukken(omtrekken[i], oppervlakten[i])); },
                                   [&](const stuk_grond* drawn) {
                                       return std::ranges::none_of(gekozen, [drawn](const stuk_grond* eerder) {
                                           return eerder->omtrek == drawn->omtrek && eerder->lijkt_op(*drawn);
                                       });
                                   }));

    bord(wit, zwart, 14);
    constexpr int hokje = 270;
    const rooster op{{125, 400}, hokje, 19, 6};
    std::vector<gekleurde_figuur> figuren;
    std::vector<int> middens;
    int breed = 0;
    for (const stuk_grond* s : gekozen) breed += s->breed();
    int x = (op.breed - breed - 2) / 2;
    for (const stuk_grond* s : gekozen) {
        const bool hangt = kop();
        figuren.push_back({s->figuur(hangt).verschoven(x, hangt ? 1 : 5), lichtgroen});
        middens.push_back(op.hoek({x, 0}).x + s->breed() * hokje / 2);
        x += s->breed() + 1;
    }
    teken_rooster(plaatje, op, figuren);
    for (std::size_t i = 0; i < 3; ++i) {
        druk_midden(middens[i], 40, letters[i]);
        opdracht(druk_opdracht(middens[i] + 160, 40, donkerrood, 14, "(", kaal(gekozen[i]->omtrek), ")"));
    }

    vraag("Om deze stukjes wordt", "een draad gespannen.", "Voor welk stukje grond heb je",
          kortste ? "de KORTSTE draad nodig?" : "de LANGSTE draad nodig?", "Of is de draad overal even lang?");

    juist_op(juist);
    for (int i = 1; i <= 3; ++i)
        op_plaats(i, rij(letters, i), "Loop in gedachten om een stukje grond heen.",
                  "Tel de stukken tussen de hoekpunten van elk", "stukje grond bij elkaar op.");
    op_plaats(4, "overal even lang", "Loop in gedachten om elk stukje grond heen en tel.",
              even_groot ? "De stukjes zijn wel even groot, maar de draad"
                         : "De draad is niet bij elk stukje even lang.",
              even_groot ? "is niet overal even lang." : leeg);

    const auto draad = [&](std::size_t i) { return regel("om ", letters[i], " is die", gekozen[i]->omtrek, " lang"); };
    uitleg("Tel bij elk stukje grond de zijden van hokjes langs de rand.",
           regel("Zo lang is de draad: ", draad(0), ","), regel(draad(1), " en ", draad(2), "."),
           even_lang ? regel("De draad is dus overal even lang.")
                     : regel("De ", kortste ? "kortste" : "langste", " draad is dus nodig voor stukje ",
                             rij(letters, juist), "."));
}

} // namespace cijferwerf
