// Rectangles, boxes and pieces of land: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// The completion behind a colour is of this kind.
formula kind(int ladder) {
    return
        [=](const reading& n) { return find_unit(n.option.substr(n.option.find(' ') + 1)).value().ladder == ladder; };
}

// One side told in metres and one in centimetres; the answers in either.
void rectangle(int variant, const char* reads, std::vector<span> ranges, const formula& m, const formula& cm) {
    const formula length = variant == 1 ? m * 100 : cm, width = variant == 1 ? cm : m * 100;
    const formula edge = (length + width) * 2;
    const auto told = [](const char* piece, const formula& in_cm) {
        return wrong(piece, says("# cm", in_cm), says("# m", in_cm / 100));
    };
    row(B_rechthoek_07_12_click, 2, reads, of({variant}), counts(length / width), range(std::move(ranges)),
        right([=](const reading& n) { return edge.in(n) / (n.exercise.right.ends_with(" cm") ? 1 : 100); }),
        wrong("zomaar bij elkaar", says("# cm", (m + cm) * 2), says("# m", (m + cm) * 2)),
        wrong("niet 10 cm", says("# cm", (m * 10 + cm) * 2), says("# m", (m + cm / 10) * 2)),
        told("maar twee zijden", length + width), told("maar drie zijden", length * 2 + width),
        told("maar drie zijden", length + width * 2), told("even lang", length * 4), told("even lang", width * 4));
}

// Of a box so wide, high and deep: the sides of the face that is asked for.
const formula one_side = chosen(A, {D, B, B}), other_side = chosen(A, {C, C, D});

// A floor given in one unit, with so many of the squares asked for in one of its own.
void floor_plan(int first, const char* reads, const row_part& small, const row_part& large, double squares) {
    const double sides = squares > 1 ? 10 : 0.1;
    row(M_bedrijfsruimte_07_12_click, 4, reads, of({first, first + 2}), small, large,
        right(says(squares > 1 ? "# dm²" : "# m²", C * D * squares)),
        wrong("Reken eerst de lengte en de breedte om.", A * B), wrong("niet 10 dm²", A * B * sides),
        wrong("niet 1.000 dm²", A * B * squares * sides), wrong("omtrek", (A + B) * 2 * sides),
        wrong("breedte met zichzelf", D * D * squares), wrong("lengte met zichzelf", C * C * squares));
}

const formula volume = B * C * D;

const exercise_rows surfaces([] {
    row(B_oppervlakte_07_12_click, 5, "van een @. *| De oppervlakte van een $a is ongeveer | rood | # ",
        range({{50, 5600}}), range({{4, 450}}), range({{2, 9600}}), range({{1, 7000}}), range({{2, 20000}}),
        right(kind(1)), wrong("een lengtemaat gekozen in plaats van een oppervlaktemaat.", kind(0)),
        wrong("bevat een inhoudsmaat", kind(2)), wrong("bevat een maat voor gewicht", kind(3)),
        explains("' is een (lengtemaat|oppervlaktemaat|inhoudsmaat), alle", 1));
    row(B_inhoud_08_17_click, 5, "van een @. *| De inhoud van een $a is ongeveer... | rood | # ", range({{25, 30}}),
        range({{2, 250}}), range({{1, 12}}), range({{350, 500}}), range({{1, 500}}), right(kind(2)),
        wrong("een lengtemaat gekozen in plaats van een inhoudsmaat.", kind(0)),
        wrong("bevat een oppervlaktemaat", kind(1)), wrong("bevat een maat voor gewicht", kind(3)),
        explains("' is een (lengtemaat|oppervlaktemaat|inhoudsmaat), alle", 2));
    rectangle(1, "rechthoek. | # m | # cm ", {{0.4, 4.9, 0.3}, {25, 375, 30}, {1.3, 4, 0.1}}, A, B);
    rectangle(2, "rechthoek. | # cm | # m ", {{55, 495, 30}, {0.4, 3.8, 0.3}, {1.3, 4, 0.1}}, B, A);
    row(L_doos_07_12_click, 3, "van (een zijkant|de voorkant|de bovenkant)? | # | # | #",
        range({{0, 2}, {2, 19}, {2, 19}, {2, 19}}), right(one_side * other_side),
        wrong("oppervlakte van de zijkant", D * C), wrong("oppervlakte van de voorkant", B * C),
        wrong("oppervlakte van de bovenkant", B * D), wrong("de omtrek van", (one_side + other_side) * 2),
        explains("kant heeft afmetingen van # bij # cm", one_side, other_side));
    row(L_doos_08_17_click, 2, "maten zijn in (dm|cm). Hoe groot is de inhoud van deze doos? | # | # | # ",
        range({{0, 0}, {3, 6}, {2, 5}, {2, 3}}), range({{1, 1}, {3, 6}, {2, 5}, {2, 3}}),
        right(chosen(A, {says("# liter", volume), says("# mL", volume)})), wrong("maten opgeteld", B + C + D),
        wrong("alleen de lengte en de breedte", B * D), wrong("alle zijvlakken", (B * C + C * D + B * D) * 2),
        wrong("1 liter, niet aan 1 mL", says("# mL", volume)),
        wrong("1 liter, niet aan 1.000 liter", says("# liter", volume * 1000)),
        wrong("1 mL, niet aan 1 liter", says("# liter", volume)),
        wrong("1 mL, niet aan 1.000 mL", says("# mL", volume * 1000)),
        explains("= # (dm³|cm³). Eén {dm³|cm³} is gelijk aan 1 {liter|mL}.", volume, A));
    floor_plan(1, "van # x # m. Hiernaast * | # m | # m", range({{4, 19.5}, {4, 19.5}, {5.2, 19.5}, {4, 15}}),
               range({{16, 35.1}, {16, 35.1}, {20.8, 35.1}, {16, 27}}), 100);
    floor_plan(2, "van # x # dm. Hiernaast * | # dm | # dm", range({{40, 195}, {40, 195}, {52, 195}, {40, 150}}),
               range({{160, 351}, {160, 351}, {208, 351}, {160, 270}}), 0.01);
});

} // namespace
} // namespace cijferwerf
