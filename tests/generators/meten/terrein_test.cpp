// Pieces of land and figures: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// The corners of the figures on the grid, in squares.
using figure = std::vector<point>;
std::vector<figure> figures(const reading& n) {
    std::vector<figure> found;
    for (const polygon_op& drawn : all<polygon_op>(n)) {
        figure corners(drawn.corners.begin(), drawn.corners.end());
        for (point& corner : corners) corner = {(corner.x - 125) / 270, corner.y / 270};
        found.push_back(corners);
    }
    return found;
}
// What its sides, each from corner to corner, make together.
template<class Side>
formula summed(std::size_t which, Side side) {
    return [=](const reading& n) {
        const figure corners = figures(n).at(which);
        double sum = 0;
        for (std::size_t i = 0; i < corners.size(); ++i) sum += side(corners[i], corners[(i + 1) % corners.size()]);
        return sum;
    };
}
formula area_of(std::size_t which) {
    return abs(summed(which, [](point a, point b) { return (a.x * b.y - b.x * a.y) / 2.0; }));
}
formula edge_of(std::size_t which) {
    return summed(which, [](point a, point b) { return std::abs(a.x - b.x) + std::abs(a.y - b.y); });
}
// How wide or high a figure with four corners is.
formula across(std::size_t which, int point::*along) {
    return [=](const reading& n) {
        const auto corners = figures(n).at(which);
        return std::abs(corners[0].*along - corners[2].*along);
    };
}

// The only piece with the edge that is asked for, or 0.
const formula piece = place_of(chosen(A, {smallest(B, C, D), largest(B, C, D)}), {B, C, D});
// A rectangle so long with its square, so high, and the side of the square, as drawn in these colours; the square at
// its foot or at its top.
const formula wide = A - C;
const formula at_foot = [](const reading& n) { return n.exercise.blocks.at(1).y > n.exercise.blocks.at(0).y ? 1 : 0; };
auto check_L(kleur rectangle, kleur square) {
    return [=](const reading& n) {
        const box_op &large = n.exercise.blocks.at(0), &small = n.exercise.blocks.at(1);
        EXPECT_TRUE(large.pen.colour == rectangle && small.pen.colour == square);
        EXPECT_TRUE(same(large.width * n[1], large.height * (n[0] - n[2])));
        EXPECT_TRUE(same(small.width * n[1], large.height * n[2]) && small.width == small.height);
        EXPECT_TRUE(n.variant() == 1 ? large.x + large.width == small.x : small.x + small.width == large.x);
        EXPECT_EQ(small.y, large.y + n[3] * (large.height - small.height));
    };
}

// The shed lies on the site, and the long side of that below or above.
void check_site(const reading& n) {
    const auto drawn = figures(n);
    const auto &site = drawn.at(0), &shed = drawn.at(1);
    EXPECT_TRUE(same(area_of(0).in(n), (n[0] + n[1]) / 2 * n[2]) && same(area_of(1).in(n), n[3] * n[4]));
    EXPECT_EQ(site[0].y > site[2].y, n.variant() == 1);
    EXPECT_TRUE(site[1].x - site[0].x == n[0] && site[2].x - site[3].x == n[1]);
    for (const point corner : shed)
        EXPECT_TRUE(corner.x >= site[3].x && corner.x <= site[2].x &&
                    (corner.y - site[0].y) * (corner.y - site[2].y) <= 0);
}

const formula both_edges = (wide + B) * 2 + C * 4;
const formula site = (A + B) * C / 2, shed = D * E;

const exercise_rows land([] {
    row(M_figuren_07_12_click, 2, "Welke figuur heeft de (KLEINSTE|GROOTSTE) oppervlakte?",
        counts(area_of(0), area_of(1), area_of(2), area_of(3)), range({{0, 0}}), range({{1, 1}}),
        right(place_of(chosen(A, {smallest(B, C, D, E), largest(B, C, D, E)}), {B, C, D, E})),
        wrong({"figuur # is # cm². Er", {button, chosen(button - 1, {B, C, D, E})}}, button),
        explains("figuur 1: # cm², figuur 2: # cm², figuur 3: # cm² en figuur 4: # cm². *| # cm²* # cm²* # cm²* # cm²",
                 B, C, D, E, B, C, D, E));
    row(M_draad_07_12_click, 2, "de (KORTSTE|LANGSTE) draad nodig?", counts(edge_of(0), edge_of(1), edge_of(2)),
        range({{0, 0}}), range({{1, 1}}), right(chosen(piece, {"overal even lang", "A", "B", "C"})),
        explains("om A is die # lang, om B is die # lang en om C is die # lang.", B, C, D), [](const reading& n) {
            EXPECT_TRUE(piece.in(n) > 0 || (n[1] == n[2] && n[2] == n[3])) << "two as long";
            const bool alike = area_of(0).in(n) == area_of(1).in(n);
            EXPECT_TRUE(piece.in(n) == 0 || (n.exercise.feedback(4).find("wel even groot") < 999) == alike);
        });
    row(M_L_vorm_07_12_click, 2,
        "Niet alle maten * zijn gegeven. Hoe groot is de oppervlakte van de hele figuur? | # | # | # ", counts(at_foot),
        range({{8, 33, 1}, {12, 14}, {3, 9}, {0, 1}}), right(wide * B + C * C), wrong("stukje afhalen", A * B),
        wrong("te lange rechthoek", A * B + C * C), wrong("de omtrek berekend", (A + B) * 2),
        wrong("blauwe vierkant vergeten", wide * B),
        explains("cm breed en # cm hoog*| # | # | # | # ", B, A, B, C, wide), check_L(geel, blauw));
    row(M_tuin_07_09_click, 2, "totale lengte van het hek om deze L-vormige tuin. | # m | # m | # m ", counts(at_foot),
        range({{10, 32, 1}, {7, 21}, {4, 12}, {0, 1}}), right((A + B) * 2),
        wrong("die van de rechthoek opgeteld", both_edges), wrong("twee keer af", both_edges - C),
        wrong("oppervlakte berekend", wide * B + C * C), wrong("een stuk hek vergeten", (A + B) * 2 - (B - C)),
        wrong("maar de helft", A + B), wrong("alleen de omtrek van de rechthoek", (wide + B) * 2),
        explains("# - # = # m breed; naast het vierkant houdt hij # - # = # m over.", A, C, wide, B, C, B - C),
        explains("| # m | # m | # m | # m | # m ", A, B, C, wide, C), check_L(groen, lichtgroen));
    row(Z_tegels_07_12_click, 2,
        "grootste lengte van # m en een kleinste lengte van # m wordt betegeld. * nodig? | Eén hokje is 1 bij 1 meter.",
        counts(across(0, &point::y), across(1, &point::x), across(1, &point::y)),
        range({{8, 18}, {6, 12}, {4, 6}, {2, 4}, {1, 4}}), right(site - shed), wrong("ervan af te trekken?", site),
        wrong("erbij opgeteld", site + shed), wrong("de kleinste lengte is", A * C - shed),
        wrong("de grootste lengte is", B * C - shed), wrong("omtrek van de schuur", site - (D + E) * 2),
        explains("Het is # hokjes hoog", C), check_site);
    row(M_opbrengst_08_12_click, 2,
        "vierkant stuk land is # m. Het land wordt verkocht voor € #*per m². Hoeveel * op? | TE KOOP "
        "| bouwgrond voor een | prijs van | € $1*per m² ",
        range({{100, 496}, {2, 20}}), range({{500, 896}, {2, 15}}), right(A * A * B / 16),
        wrong("voor de oppervlakte aangezien", A * B), wrong("in het kwadraat te zetten", A * B / 4),
        wrong("eerst door 2 gedeeld", A * A * B / 4), wrong("niet met de prijs", A * A / 16), explains("| # m ", A / 4),
        [](const reading& n) { EXPECT_LT(n[0] * n[0] * n[1] / 4, 1e6); });
});

} // namespace
} // namespace cijferwerf
