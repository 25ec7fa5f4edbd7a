// Distances and times on the road, and jobs whose last pot or roll is used only in part.
#include "tests/support/exercise_rows.h"

#include <numbers>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

// Where the red needle points, on a scale from 0 to 200 that runs clockwise over 270 degrees from the lower left.
double needle(const reading& n) {
    for (const drawing_op& operation : n.exercise.made.plaatje.operations())
        if (const auto* hand = std::get_if<polygon_op>(&operation); hand != nullptr && hand->pen.colour == rood) {
            const point tip = hand->corners.at(1), end = hand->corners.at(3);
            const double angle = std::atan2(end.y - tip.y, tip.x - end.x) * 180 / std::numbers::pi;
            return rounded(std::fmod(225 - angle + 360, 360) / 270 * 200 / 10) * 10;
        }
    return 0;
}

// "3  0  8  0, 8"
double counter(const std::string& text) {
    std::string digits;
    for (const char c : text)
        if (c != ' ') digits += c;
    return decimal(digits);
}
formula ride() {
    return [](const reading& n) {
        const double km = rounded(counter(n.words[2]) - counter(n.words[1]), 1);
        return n.variant() == 1 ? km : rounded(km * 1000);
    };
}

// Four counts in a row; where one is too few, the rest was forgotten, and the others are told three different things.
void check_row(const reading& n, const char* forgotten) {
    const std::array<double, 4> counts = n.exercise.numbers();
    std::set<std::string> told;
    for (int place = 1; place <= 4; ++place) {
        EXPECT_EQ(counts[static_cast<std::size_t>(place - 1)], counts[0] + place - 1);
        if (place == n.exercise.right_place()) continue;
        const bool one_less = place == n.exercise.right_place() - 1;
        EXPECT_EQ(n.exercise.feedback(place).find(forgotten) != std::string::npos, one_less);
        told.insert(n.exercise.feedback(place));
    }
    EXPECT_EQ(told.size(), 3U);
    EXPECT_GE(counts[0], 1);
    EXPECT_GE(decimal(n.exercise.right), 4);
}

const formula up(const formula& a, const formula& b) {
    return [=](const reading& n) { return std::ceil(std::get<double>(a(n)) / std::get<double>(b(n)) - 1e-9); };
}
const formula down(const formula& a, const formula& b) {
    return [=](const reading& n) { return std::floor(std::get<double>(a(n)) / std::get<double>(b(n)) + 1e-9); };
}
const formula area = v[0] * v[1], strips_per_roll = down(v[2], v[1]), strips = up(v[0] * 100, v[3]);
const formula speed = needle;

const exercise_rows on_the_road{
    {.id = L_fietsen_07_09_click,
     .variants = 2,
     .reads = "@ maakt een fietstocht. * Hoe lang was de fietstocht? | BEGIN | @ | km | EINDE | @ | km",
     .counts = {ride()},
     .ranges = {{{15.2, 59.8, 0.2}}, {{15200, 59800, 200}}},
     .words = {8},
     .right = ride(),
     .wrong = {{"bijna goed", lies::elsewhere}, {"heel wat naast", lies::elsewhere}},
     .explains = {{"fietstocht was dus #", {ride()}}},
     .check =
         [](const reading& n) {
             const auto numbers = n.exercise.numbers();
             for (std::size_t i = 1; i < 4; ++i) {
                 const double tenths = std::abs(numbers[i] - numbers[0]) * (n.variant() == 1 ? 10 : 0.01);
                 const bool near = n.exercise.feedback(static_cast<int>(i) + 1).find("bijna") != std::string::npos;
                 EXPECT_TRUE(near ? tenths < 12 : tenths > 79) << tenths;
             }
         }},
    {.id = L_vakantie_07_09_click,
     .variants = 2,
     .reads = "afleggen van # km. Hoeveel uur moeten zij minstens rijden? |",
     .counts = {speed},
     .ranges = {{{180, 1440, 60}, {60, 120}}, {{150, 1320, 60}, {50, 110}}},
     .right = v[0] / v[1],
     .wrong = {{"kunnen zij maar", lies::below},
               {"Zo ver hoeven zij niet", lies::above},
               {"goed afgelezen?", v[0] / v[1] * 2}},
     .explains = {{"aflezen: # km/uur", {v[1]}}, {"# : # = #.", {v[0], v[1], v[0] / v[1]}}},
     .check =
         [](const reading& n) {
             const auto numbers = n.exercise.numbers();
             for (int which = 2; which <= 4; ++which) {
                 const double hours = numbers[static_cast<std::size_t>(which - 1)];
                 const std::string told = n.exercise.feedback(which);
                 if (told.find("In") != 0) continue;
                 EXPECT_NE(told.find(regel("In", static_cast<int>(hours), " uur")), std::string::npos);
                 EXPECT_NE(told.find(regel(duizend(static_cast<int>(hours * n[1])), " km rijden.")), std::string::npos);
             }
         }},
    {.id = L_schilder_07_12_click,
     .variants = 2,
     .reads = "schilderen van # m breed en # m lang. * nodig? | # m²",
     .ranges = {{{3, 12}, {3, 12}, {4, 10}}},
     .right = up(area, v[2]),
     .explains = {{"# x # = # m².", {v[0], v[1], area}},
                  {"dus # : # = #, rest #. Voor", {area, v[2], down(area, v[2]), area - down(area, v[2]) * v[2]}}},
     .check =
         [](const reading& n) {
             EXPECT_NE(std::fmod(n[0] * n[1], n[2]), 0) << "the explanation speaks of a rest";
             check_row(n, "rest vergeten");
         }},
    {.id = M_behangen_07_09_click,
     .variants = 2,
     .reads =
         "De lengte van de muur is # m. De hoogte van de muur is # m. De rollen behang zijn # m lang en # cm breed. * nodig? | $0 m | $1 m | rol: $2 m | $3 cm",
     .ranges = {{{5, 12, 0.2}, {2.2, 3, 0}, {8, 10, 0}, {45, 60, 1}},
                {{5, 12, 0.4}, {2.2, 3, 0}, {10.5, 15, 0}, {45, 60, 1}}},
     .right = up(strips, strips_per_roll),
     .explains = {{"# : # = #, rest #. Dus",
                   {v[2] * 100, v[1] * 100, strips_per_roll, v[2] * 100 - strips_per_roll* v[1] * 100}},
                  {"# : # = #, rest #. Er zijn dus # banen",
                   {v[0] * 100, v[3], strips - 1, v[0] * 100 - (strips - 1) * v[3], strips}},
                  {"rollen: # : # = #, rest #.",
                   {strips, strips_per_roll, down(strips, strips_per_roll),
                    strips - down(strips, strips_per_roll) * strips_per_roll}}},
     .check = [](const reading& n) { check_row(n, "rest vergeten"); }},
};

} // namespace
} // namespace cijferwerf
