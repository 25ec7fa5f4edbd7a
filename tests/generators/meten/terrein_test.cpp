// Pieces of land and figures: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// The corners of the figures on the grid, in squares.
std::vector<std::vector<point>> figures(const reading& n) {
    std::vector<std::vector<point>> found;
    for (const drawing_op& operation : n.exercise.made.plaatje.operations())
        if (const auto* drawn = std::get_if<polygon_op>(&operation)) {
            found.push_back(drawn->corners);
            for (point& corner : found.back()) corner = {(corner.x - 125) / 270, corner.y / 270};
        }
    return found;
}
double area(const std::vector<point>& corners) {
    double twice = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const point a = corners[i], b = corners[(i + 1) % corners.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2;
}
// How wide or high a figure with four corners is.
formula across(std::size_t which, int point::*along) {
    return [=](const reading& n) {
        const auto corners = figures(n).at(which);
        return std::abs(corners[0].*along - corners[2].*along);
    };
}

// The one figure whose area is smallest or largest; each is told and shown as it is counted from what is drawn.
void check_areas(const reading& n) {
    std::vector<double> areas;
    std::string drawn, shown = n.exercise.when_explained().words.back();
    for (const auto& corners : figures(n)) {
        areas.push_back(area(corners));
        const auto place = static_cast<int>(areas.size());
        const std::string figure = n.exercise.answer(place),
                          cm2 = regel(komma_kort(static_cast<int>(areas.back() * 10), 1), " cm²");
        n.exercise.told((figure + ":" + cm2).c_str());
        drawn += cm2;
        EXPECT_EQ(figure, regel("figuur", place));
        EXPECT_TRUE(place == n.exercise.right_place() ||
                    n.exercise.feedback(place).starts_with(regel("De oppervlakte van ", figure, " is", cm2,
                                                                 ". Er is een figuur die ",
                                                                 n.variant() == 1 ? "kleiner" : "groter")));
    }
    const auto most = n.variant() == 1 ? std::ranges::min_element(areas) : std::ranges::max_element(areas);
    EXPECT_TRUE(areas.size() == 4 && std::ranges::count(areas, *most) == 1);
    EXPECT_EQ(n.exercise.right_place(), most - areas.begin() + 1);
    std::erase(shown, ' '), std::erase(drawn, ' ');
    EXPECT_EQ(shown, drawn);
}

// The one piece whose edge is shortest or longest, along the corners as drawn, or "overal even lang".
void check_wire(const reading& n) {
    std::map<int, std::vector<int>> by_edge;
    std::set<double> areas;
    int number = 0;
    for (const auto& corners : figures(n)) {
        int edge = 0;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const point a = corners[i], b = corners[(i + 1) % corners.size()];
            edge += std::abs(a.x - b.x) + std::abs(a.y - b.y);
        }
        areas.insert(area(corners));
        n.exercise.told(
            ("om " + n.exercise.words.at(static_cast<std::size_t>(number)) + regel(" is die", edge, " lang")).c_str());
        by_edge[n[0] == 0 ? edge : -edge].push_back(++number);
    }
    const int right = n.exercise.right_place();
    EXPECT_TRUE(number == 3 && (areas.size() == 1 || areas.size() == 3));
    EXPECT_EQ(by_edge.begin()->second, right == 4 ? (std::vector{1, 2, 3}) : std::vector{right});
    EXPECT_TRUE(right == 4 || n.exercise.feedback(4).find(areas.size() == 1 ? "wel even groot" : "elk stukje even") !=
                                  std::string::npos);
}

// A rectangle so long with its square, so high, and the side of the square, as drawn in these colours; the square at
// its foot or at its top.
const formula wide = v[0] - v[2];
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
    EXPECT_TRUE(same(area(site), (n[0] + n[1]) / 2 * n[2]));
    EXPECT_TRUE(same(area(shed), n[3] * n[4]));
    EXPECT_EQ(site[0].y > site[2].y, n.variant() == 1);
    EXPECT_TRUE(site[1].x - site[0].x == n[0] && site[2].x - site[3].x == n[1]);
    for (const point corner : shed)
        EXPECT_TRUE(corner.x >= site[3].x && corner.x <= site[2].x &&
                    (corner.y - site[0].y) * (corner.y - site[2].y) <= 0);
}

const formula both_edges = (wide + v[1]) * 2 + v[2] * 4;
const formula site = (v[0] + v[1]) * v[2] / 2, shed = v[3] * v[4];

const exercise_rows land([] {
    row(M_figuren_07_12_click, 2,
        "Elk hokje stelt 1 cm² voor. Welke figuur heeft de (KLEINSTE|GROOTSTE) oppervlakte? | figuur 1 | figuur 2 "
        "| figuur 3 | figuur 4 ",
        range({{0, 0}}), range({{1, 1}}), check_areas);
    row(M_draad_07_12_click, 2, "de (KORTSTE|LANGSTE) draad nodig? Of is de draad overal even lang? | A | B | C",
        range({{0, 0}}), range({{1, 1}}), check_wire);
    row(M_L_vorm_07_12_click, 2,
        "Niet alle maten * zijn gegeven. Hoe groot is de oppervlakte van de hele figuur? | # | # | # ", counts(at_foot),
        range({{8, 33, 1}, {12, 14}, {3, 9}, {0, 1}}), right(wide * v[1] + v[2] * v[2]),
        wrong("stukje afhalen", v[0] * v[1]), wrong("te lange rechthoek", v[0] * v[1] + v[2] * v[2]),
        wrong("de omtrek berekend", (v[0] + v[1]) * 2), wrong("blauwe vierkant vergeten", wide * v[1]),
        explains("# - # = # cm breed en # cm hoog. De oppervlakte ervan is # x # =", v[0], v[2], wide, v[1], wide,
                 v[1]),
        explains("Samen is dat # + # =", wide * v[1], v[2] * v[2]),
        explains("| # | # | # | # ", v[0], v[1], v[2], wide), check_L(geel, blauw));
    row(M_tuin_07_09_click, 2, "totale lengte van het hek om deze L-vormige tuin. | # m | # m | # m ", counts(at_foot),
        range({{10, 32, 1}, {7, 21}, {4, 12}, {0, 1}}), right((v[0] + v[1]) * 2),
        wrong("die van de rechthoek opgeteld", both_edges), wrong("twee keer af", both_edges - v[2]),
        wrong("oppervlakte berekend", wide * v[1] + v[2] * v[2]),
        wrong("een stuk hek vergeten", (v[0] + v[1]) * 2 - (v[1] - v[2])), wrong("maar de helft", v[0] + v[1]),
        wrong("alleen de omtrek van de rechthoek", (wide + v[1]) * 2),
        explains("# - # = # m breed; naast het vierkant houdt hij # - # = # m over.", v[0], v[2], wide, v[1], v[2],
                 v[1] - v[2]),
        explains("# + # + # + # + # + # =", v[1], wide, v[1] - v[2], v[2], v[2], v[0]),
        explains("| # m | # m | # m | # m | # m ", v[0], v[1], v[2], wide, v[2]), check_L(groen, lichtgroen));
    row(Z_tegels_07_12_click, 2,
        "grootste lengte van # m en een kleinste lengte van # m wordt betegeld. * nodig? | Eén hokje is 1 bij 1 meter.",
        counts(across(0, &point::y), across(1, &point::x), across(1, &point::y)),
        range({{8, 18}, {6, 12}, {4, 6}, {2, 4}, {1, 4}}), right(site - shed), wrong("ervan af te trekken?", site),
        wrong("erbij opgeteld", site + shed), wrong("de kleinste lengte is", v[0] * v[2] - shed),
        wrong("de grootste lengte is", v[1] * v[2] - shed), wrong("omtrek van de schuur", site - (v[3] + v[4]) * 2),
        explains("# + #) : 2 = # m lang. Het is # hokjes hoog", v[0], v[1], (v[0] + v[1]) / 2, v[2]),
        explains("schuur is # x # = # m². Er is dus # - # =", v[3], v[4], shed, site, shed), check_site);
    row(M_opbrengst_08_12_click, 2,
        "vierkant stuk land is # m. Het land wordt verkocht voor € #*per m². Hoeveel * op? | TE KOOP "
        "| bouwgrond voor een | prijs van | € $1*per m² ",
        range({{100, 496}, {2, 20}}), range({{500, 896}, {2, 15}}), right(v[0] * v[0] * v[1] / 16),
        wrong("voor de oppervlakte aangezien", v[0] * v[1]), wrong("in het kwadraat te zetten", v[0] * v[1] / 4),
        wrong("eerst door 2 gedeeld", v[0] * v[0] * v[1] / 4), wrong("niet met de prijs", v[0] * v[0] / 16),
        explains("# : 4 = # m. De oppervlakte is # x # =", v[0], v[0] / 4, v[0] / 4, v[0] / 4),
        explains("dus # x # =", v[0] * v[0] / 16, v[1]), explains("| # m ", v[0] / 4),
        [](const reading& n) { EXPECT_LT(n[0] * n[0] * n[1] / 4, 1e6); });
});

} // namespace
} // namespace cijferwerf
