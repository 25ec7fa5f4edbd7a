// Rectangles, boxes and pieces of land: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

// One completion is an area, and each other is told what it is instead.
void check_kinds(const reading& n) {
    static const std::map<std::string, std::string> told{
        {"m", "lengtemaat"},         {"dm", "lengtemaat"},          {"cm", "lengtemaat"},
        {"mm", "lengtemaat"},        {"hm", "lengtemaat"},          {"dam", "lengtemaat"},
        {"kg", "maat voor gewicht"}, {"gram", "maat voor gewicht"}, {"mg", "maat voor gewicht"},
        {"hg", "maat voor gewicht"}, {"liter", "inhoudsmaat."},     {"mL", "inhoudsmaat."},
        {"hL", "inhoudsmaat."},      {"m³", "inhoudsmaat."},        {"dm³", "inhoudsmaat."},
        {"cm³", "inhoudsmaat."}};
    static const std::set<std::string> areas{"m²", "dm²", "cm²", "mm²", "are", "ha"};
    EXPECT_EQ(n.words[0], n.words[1]);
    std::set<std::string> kinds;
    for (int place = 1; place <= 4; ++place) {
        const std::string& unit = n.words[static_cast<std::size_t>(place) + 1];
        if (place == n.exercise.right_place()) {
            EXPECT_TRUE(areas.contains(unit)) << unit;
            n.exercise.told((" " + unit + " ' is een oppervlaktemaat,").c_str());
        } else {
            EXPECT_NE(n.exercise.feedback(place).find(told.at(unit)), std::string::npos) << unit;
            kinds.insert(told.at(unit));
        }
    }
    EXPECT_EQ(kinds.size(), 3U);
    EXPECT_EQ(n.exercise.answers(), (std::array<std::string, 4>{"rood", "geel", "wit", "groen"}));
}

// "# @ | # @": the long side and the short one, and which mistake gives what perimeter, in centimetres.
void check_perimeter(const reading& n) {
    const auto in_cm = [](double number, const std::string& unit) { return unit == "m" ? number * 100 : number; };
    const auto answer = [&](int which) {
        const std::string text = n.exercise.answer(which);
        return in_cm(decimal(text), text.substr(text.find(' ') + 1));
    };
    EXPECT_EQ(n.words,
              n.variant() == 1 ? (std::vector<std::string>{"m", "cm"}) : (std::vector<std::string>{"cm", "m"}));
    const double length = in_cm(n[0], n.words[0]), width = in_cm(n[1], n.words[1]);
    EXPECT_TRUE(length > width * 1.29 && length <= width * 4);
    EXPECT_TRUE(same(answer(1), length + width + length + width));
    const std::size_t m = n.words[0] == "m" ? 0 : 1;
    const double as_read = 2 * (n[0] + n[1]);
    const std::map<std::string, std::vector<double>> mistakes{
        {"maar twee zijden", {length + width}},
        {"maar drie zijden", {length + width + length, width + length + width}},
        {"zomaar bij elkaar", {as_read, 100 * as_read}},
        {"niet 10 cm", {2 * (10 * n[m] + n[1 - m]), 2 * (100 * n[m] + 10 * n[1 - m])}},
        {"even lang", {4 * length, 4 * width}}};
    for (int which = 2; which <= 4; ++which) {
        const auto mistake = std::ranges::find_if(mistakes, [&](const auto& each) {
            return n.exercise.feedback(which).find(each.first) != std::string::npos;
        });
        ASSERT_NE(mistake, mistakes.end());
        EXPECT_TRUE(std::ranges::any_of(mistake->second, [&](double value) { return same(value, answer(which)); }))
            << mistake->first << answer(which);
    }
}

// The sides of the face that is asked for, of a box so wide, high and deep.
double side(const reading& n, int which) {
    const double width = n[1], height = n[2], depth = n[3];
    return n[0] == 0   ? (which == 0 ? depth : height)
           : n[0] == 1 ? (which == 0 ? width : height)
                       : (which == 0 ? width : depth);
}
formula face(int which) {
    return [which](const reading& n) { return which == 0 ? n[3] * n[2] : which == 1 ? n[1] * n[2] : n[1] * n[3]; };
}
const formula face_side_1 = [](const reading& n) { return side(n, 0); };
const formula face_side_2 = [](const reading& n) { return side(n, 1); };

// Sides in squares, counted along the corners as drawn.
struct piece {
    double edge = 0, area = 0;
};
std::vector<piece> pieces(const seen& e) {
    std::vector<piece> all;
    for (const drawing_op& operation : e.made.plaatje.operations()) {
        const auto* polygon = std::get_if<polygon_op>(&operation);
        if (polygon == nullptr || !polygon->filled) continue;
        piece p;
        const auto& corners = polygon->corners;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const point a = corners[i], b = corners[(i + 1) % corners.size()];
            p.edge += (std::abs(a.x - b.x) + std::abs(a.y - b.y)) / 270.0;
            p.area += (a.x + b.x) * (b.y - a.y) / 2.0 / 270 / 270;
        }
        p.area = std::abs(p.area);
        all.push_back(p);
    }
    return all;
}

void check_wire(const reading& n) {
    const std::vector<piece> drawn = pieces(n.exercise);
    ASSERT_EQ(drawn.size(), 3U);
    const double sign = n[0] == 0 ? 1 : -1;
    std::map<double, std::vector<int>> by_edge;
    std::set<double> areas;
    for (int i = 0; i < 3; ++i) {
        by_edge[sign * drawn[static_cast<std::size_t>(i)].edge].push_back(i + 1);
        areas.insert(rounded(drawn[static_cast<std::size_t>(i)].area, 3));
        n.exercise.told(regel("om ", std::string(1, static_cast<char>('A' + i)), " is die",
                              static_cast<int>(drawn[static_cast<std::size_t>(i)].edge + 0.5), " lang")
                            .c_str());
    }
    EXPECT_TRUE(areas.size() == 1 || areas.size() == 3);
    if (by_edge.size() == 1) {
        EXPECT_EQ(n.exercise.right, "overal even lang");
    } else {
        EXPECT_EQ(by_edge.begin()->second, std::vector{n.exercise.right_place()});
        EXPECT_EQ(n.exercise.feedback(4).find("wel even groot") != std::string::npos, areas.size() == 1);
    }
    for (int place = 1; place <= 3; ++place)
        if (place != n.exercise.right_place()) {
            EXPECT_NE(n.exercise.feedback(place).find("Tel de stukken tussen"), std::string::npos);
        }
}

const formula product = v[0] * v[1];

const exercise_rows surfaces{
    {.id = B_oppervlakte_07_12_click,
     .variants = 5,
     .reads =
         "oppervlakte van een @. Slechts * kleur. | De oppervlakte van een @ is ongeveer | rood | # @ | geel | $0 @ "
         "| wit | $0 @ | groen | $0 @ ",
     .ranges = {{{50, 5600}}, {{4, 450}}, {{2, 9600}}, {{1, 7000}}, {{2, 20000}}},
     .check = check_kinds},
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
     .right = face_side_1 * face_side_2,
     .wrong = {{"oppervlakte van de zijkant", face(0)},
               {"oppervlakte van de voorkant", face(1)},
               {"oppervlakte van de bovenkant", face(2)},
               {"de omtrek van", face_side_1 + face_side_1 + face_side_2 + face_side_2}},
     .explains = {{"kant heeft afmetingen van # bij # cm", {face_side_1, face_side_2}}}},
    {.id = M_bedrijfsruimte_07_12_click,
     .variants = 4,
     .of = {1, 3},
     .reads = "van # x # m. Hiernaast * | # m | # m",
     .ranges = {{{4, 19.5}, {4, 19.5}, {5.2, 19.5}, {4, 15}}, {{16, 35.1}, {16, 35.1}, {20.8, 35.1}, {16, 27}}},
     .right = v[2] * v[3] * 100,
     .wrong = {{"Reken eerst de lengte en de breedte om.", product},
               {"niet 10 dm²", product * 10},
               {"niet 1.000 dm²", product * 1000},
               {"omtrek", (v[0] + v[1]) * 20},
               {"breedte met zichzelf", v[3] * v[3] * 100},
               {"lengte met zichzelf", v[2] * v[2] * 100}},
     .explains = {{"# m = # dm, # m = # dm.", {v[0], v[0] * 10, v[1], v[1] * 10}}},
     .check = [](const reading& n) { EXPECT_TRUE(same(n[2], n[3] * 1.3) && n.exercise.right.ends_with(" dm²")); }},
    {.id = M_bedrijfsruimte_07_12_click,
     .variants = 4,
     .of = {2, 4},
     .reads = "van # x # dm. Hiernaast * | # dm | # dm",
     .ranges = {{{40, 195}, {40, 195}, {52, 195}, {40, 150}}, {{160, 351}, {160, 351}, {208, 351}, {160, 270}}},
     .right = v[2] * v[3] / 100,
     .wrong = {{"Reken eerst de lengte en de breedte om.", product},
               {"niet 10 dm²", product / 10},
               {"niet 1.000 dm²", product / 1000},
               {"omtrek", (v[0] + v[1]) / 5},
               {"breedte met zichzelf", v[3] * v[3] / 100},
               {"lengte met zichzelf", v[2] * v[2] / 100}},
     .explains = {{"# dm = # m, # dm = # m.", {v[0], v[0] / 10, v[1], v[1] / 10}}},
     .check = [](const reading& n) { EXPECT_TRUE(same(n[2], n[3] * 1.3) && n.exercise.right.ends_with(" m²")); }},
    {.id = M_draad_07_12_click,
     .variants = 2,
     .reads = "de (KORTSTE|LANGSTE) draad nodig? Of is de draad overal even lang? | A | B | C",
     .ranges = {{{0, 0}}, {{1, 1}}},
     .check = check_wire},
};

} // namespace
} // namespace cijferwerf
