// Rectangles, boxes and pieces of land: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

// One completion is of the kind asked for, and each other is told what it is instead.
void check_kinds(const reading& n, const std::string& asked) {
    static const std::map<std::string, std::set<std::string>> kinds{
        {"oppervlaktemaat", {"m²", "dm²", "cm²", "mm²", "are", "ha"}},
        {"lengtemaat", {"m", "dm", "cm", "mm", "dam", "hm"}},
        {"maat voor gewicht", {"kg", "hg", "gram", "mg"}},
        {"inhoudsmaat", {"liter", "hL", "daL", "dL", "cL", "mL", "m³", "dm³", "cm³"}}};
    const int right = n.exercise.right_place();
    for (const auto& [kind, units] : kinds) {
        int place = 1;
        while (place < 4 && !units.contains(n.words[static_cast<std::size_t>(place) + 1])) ++place;
        EXPECT_TRUE(units.contains(n.words[static_cast<std::size_t>(place) + 1])) << "no " << kind;
        EXPECT_EQ(place == right, kind == asked);
        EXPECT_TRUE(place == right || n.exercise.feedback(place).find(kind) != std::string::npos) << kind;
    }
    n.exercise.told((" " + n.words[static_cast<std::size_t>(right) + 1] + " ' is een " + asked + ",").c_str());
}

// The long side and the short one as drawn, and the perimeters in centimetres that the mistakes give.
void check_perimeter(const reading& n) {
    const auto in_cm = [](double number, bool m) { return m ? number * 100 : number; };
    const std::size_t m = n.variant() == 1 ? 0 : 1;
    EXPECT_TRUE(n.words[m] == "m" && n.words[1 - m] == "cm");
    const double length = in_cm(n[0], m == 0), width = in_cm(n[1], m == 1), as_read = 2 * (n[0] + n[1]);
    EXPECT_TRUE(length > width * 1.29 && length <= width * 4);
    const std::multimap<std::string, double> mistakes{{"maar twee zijden", length + width},
                                                      {"maar drie zijden", length + width + length},
                                                      {"maar drie zijden", width + length + width},
                                                      {"zomaar bij elkaar", as_read},
                                                      {"zomaar bij elkaar", 100 * as_read},
                                                      {"niet 10 cm", 2 * (10 * n[m] + n[1 - m])},
                                                      {"niet 10 cm", 2 * (100 * n[m] + 10 * n[1 - m])},
                                                      {"even lang", 4 * length},
                                                      {"even lang", 4 * width},
                                                      {"", 2 * (length + width)}};
    for (int which = 1; which <= 4; ++which) {
        const std::string answer = n.exercise.answer(which), told = which == 1 ? "" : n.exercise.feedback(which);
        EXPECT_TRUE(std::ranges::any_of(mistakes,
                                        [&](const auto& mistake) {
                                            return mistake.first.empty() == told.empty() &&
                                                   told.find(mistake.first) != std::string::npos &&
                                                   same(mistake.second, in_cm(decimal(answer), answer.ends_with(" m")));
                                        }))
            << answer << told;
    }
}

// Of a box so wide, high and deep: the first or second side of the face that is asked for.
formula face_side(bool first) {
    return [=](const reading& n) { return first ? n[n[0] == 0 ? 3 : 1] : n[n[0] == 2 ? 3 : 2]; };
}

// Which edge is the shortest or longest, along the corners as drawn.
void check_wire(const reading& n) {
    std::map<int, std::vector<int>> by_edge;
    std::set<int> areas;
    int number = 0;
    for (const drawing_op& operation : n.exercise.made.plaatje.operations()) {
        const auto* drawn = std::get_if<polygon_op>(&operation);
        if (drawn == nullptr) continue;
        int edge = 0, area = 0;
        for (std::size_t i = 0; i < drawn->corners.size(); ++i) {
            const point a = drawn->corners[i], b = drawn->corners[(i + 1) % drawn->corners.size()];
            edge += (std::abs(a.x - b.x) + std::abs(a.y - b.y)) / 270;
            area += a.x / 27 * (b.y - a.y) / 27;
        }
        areas.insert(std::abs(area));
        n.exercise.told(
            regel("om ", std::string(1, static_cast<char>('A' + number)), " is die", edge, " lang").c_str());
        by_edge[n[0] == 0 ? edge : -edge].push_back(++number);
    }
    const int right = n.exercise.right_place();
    EXPECT_TRUE(number == 3 && (areas.size() == 1 || areas.size() == 3));
    EXPECT_EQ(by_edge.begin()->second, right == 4 ? (std::vector{1, 2, 3}) : std::vector{right});
    for (int place = 1; place <= 4; ++place) {
        const char* piece = place < 4           ? "Tel de stukken tussen"
                            : areas.size() == 1 ? "wel even groot"
                                                : "bij elk stukje even";
        EXPECT_TRUE(place == right || n.exercise.feedback(place).find(piece) != std::string::npos) << piece;
    }
}

// A floor given in one unit, with so many of the squares asked for in one of its own.
exercise_row floor_plan(std::vector<int> of, const char* reads, std::vector<std::vector<span>> ranges, double squares) {
    const double sides = squares > 1 ? 10 : 0.1;
    return {.id = M_bedrijfsruimte_07_12_click,
            .variants = 4,
            .of = std::move(of),
            .reads = reads,
            .ranges = std::move(ranges),
            .right = v[2] * v[3] * squares,
            .wrong = {{"Reken eerst de lengte en de breedte om.", v[0] * v[1]},
                      {"niet 10 dm²", v[0] * v[1] * sides},
                      {"niet 1.000 dm²", v[0] * v[1] * squares * sides},
                      {"omtrek", (v[0] + v[1]) * 2 * sides},
                      {"breedte met zichzelf", v[3] * v[3] * squares},
                      {"lengte met zichzelf", v[2] * v[2] * squares}},
            .explains = {{"# * = #*, # * = #", {v[0], v[0] * sides, v[1], v[1] * sides}}},
            .check = [squares](const reading& n) {
                EXPECT_TRUE(same(n[2], n[3] * 1.3) && n.exercise.right.ends_with(squares > 1 ? " dm²" : " m²"));
            }};
}

const formula volume = v[1] * v[2] * v[3];

const exercise_rows surfaces{
    {.id = B_oppervlakte_07_12_click,
     .variants = 5,
     .reads =
         "oppervlakte van een @. Slechts * kleur. | De oppervlakte van een @ is ongeveer | rood | # @ | geel | $0 @ "
         "| wit | $0 @ | groen | $0 @ ",
     .ranges = {{{50, 5600}}, {{4, 450}}, {{2, 9600}}, {{1, 7000}}, {{2, 20000}}},
     .check = [](const reading& n) { check_kinds(n, "oppervlaktemaat"); }},
    {.id = B_inhoud_08_17_click,
     .variants = 5,
     .reads = "inhoud van een @. Slechts * kleur. | De inhoud van een @ is ongeveer... | rood | # @ | groen | $0 @ "
              "| blauw | $0 @ | grijs | $0 @ ",
     .ranges = {{{25, 30}}, {{2, 250}}, {{1, 12}}, {{350, 500}}, {{1, 500}}},
     .check = [](const reading& n) { check_kinds(n, "inhoudsmaat"); }},
    {.id = B_rechthoek_07_12_click,
     .variants = 2,
     .reads = "langwerpige rechthoek * rechthoek. | # @ | # @ ",
     .ranges = {{{0.4, 4.9, 0.3}, {25, 375, 30}}, {{55, 495, 30}, {0.4, 3.8, 0.3}}},
     .check = check_perimeter},
    {.id = L_doos_07_12_click,
     .variants = 3,
     .reads = "van (een zijkant|de voorkant|de bovenkant)? | # | # | #",
     .ranges = {{{0, 0}, {2, 19}, {2, 19}, {2, 19}},
                {{1, 1}, {2, 19}, {2, 19}, {2, 19}},
                {{2, 2}, {2, 19}, {2, 19}, {2, 19}}},
     .right = face_side(true) * face_side(false),
     .wrong = {{"oppervlakte van de zijkant", v[3] * v[2]},
               {"oppervlakte van de voorkant", v[1] * v[2]},
               {"oppervlakte van de bovenkant", v[1] * v[3]},
               {"de omtrek van", (face_side(true) + face_side(false)) * 2}},
     .explains = {{"kant heeft afmetingen van # bij # cm", {face_side(true), face_side(false)}}}},
    {.id = L_doos_08_17_click,
     .variants = 2,
     .reads = "maten zijn in (dm|cm). Hoe groot is de inhoud van deze doos? | # | # | # ",
     .ranges = {{{0, 0}, {3, 6}, {2, 5}, {2, 3}}, {{1, 1}, {3, 6}, {2, 5}, {2, 3}}},
     .right = volume,
     .wrong = {{"maten opgeteld", v[1] + v[2] + v[3]},
               {"alleen de lengte en de breedte", v[1] * v[3]},
               {"alle zijvlakken", (v[1] * v[2] + v[2] * v[3] + v[1] * v[3]) * 2},
               {"1 liter, niet aan 1 mL", volume},
               {"1 liter, niet aan 1.000 liter", volume * 1000},
               {"1 mL, niet aan 1 liter", volume},
               {"1 mL, niet aan 1.000 mL", volume * 1000}},
     .explains = {{"= # (dm³|cm³). Eén {dm³|cm³} is gelijk aan 1 {liter|mL}.", {volume, v[0]}}},
     .check =
         [](const reading& n) {
             const bool in_dm = n[0] == 0;
             for (int which = 1; which <= 4; ++which) {
                 const bool other = which > 1 && (n.exercise.feedback(which).find("niet aan 1 ") != std::string::npos);
                 EXPECT_TRUE(n.exercise.answer(which).ends_with(in_dm != other ? " liter" : " mL"));
             }
         }},
    floor_plan({1, 3}, "van # x # m. Hiernaast * | # m | # m",
               {{{4, 19.5}, {4, 19.5}, {5.2, 19.5}, {4, 15}}, {{16, 35.1}, {16, 35.1}, {20.8, 35.1}, {16, 27}}}, 100),
    floor_plan({2, 4}, "van # x # dm. Hiernaast * | # dm | # dm",
               {{{40, 195}, {40, 195}, {52, 195}, {40, 150}}, {{160, 351}, {160, 351}, {208, 351}, {160, 270}}}, 0.01),
    {.id = M_draad_07_12_click,
     .variants = 2,
     .reads = "de (KORTSTE|LANGSTE) draad nodig? Of is de draad overal even lang? | A | B | C",
     .ranges = {{{0, 0}}, {{1, 1}}},
     .check = check_wire},
};

} // namespace
} // namespace cijferwerf
