// Rectangles, boxes and pieces of land: measured again from what is drawn.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// One completion is of the kind asked for, and each other is told what it is instead.
void check_kinds(const reading& n, const std::string& asked) {
    static const std::array<std::string, 4> ladders{"lengtemaat", "oppervlaktemaat", "inhoudsmaat",
                                                    "maat voor gewicht"};
    std::set<std::string> kinds;
    for (int place = 1; place <= 4; ++place) {
        const std::string& unit = n.words[static_cast<std::size_t>(place) + 1];
        const std::string& kind = ladders.at(static_cast<std::size_t>(find_unit(unit).value().ladder));
        kinds.insert(kind);
        EXPECT_EQ(place == n.exercise.right_place(), kind == asked);
        if (kind == asked)
            n.exercise.told((" " + unit + " ' is een " + asked + ",").c_str());
        else
            EXPECT_NE(n.exercise.feedback(place).find(kind), std::string::npos) << kind;
    }
    EXPECT_EQ(kinds.size(), 4U);
}

// One side told in metres and one in centimetres; the answers in either.
void rectangle(int variant, const char* reads, std::vector<span> ranges, const formula& m, const formula& cm) {
    const formula length = variant == 1 ? m * 100 : cm, width = variant == 1 ? cm : m * 100;
    const formula edge = (length + width) * 2;
    const auto told = [](const char* piece, const formula& in_cm) {
        return wrong(piece, says("# cm", in_cm), says("# m", in_cm / 100));
    };
    row(B_rechthoek_07_12_click, 2, reads, of({variant}), counts(length / width), range(std::move(ranges)),
        right([=](const reading& n) {
            return std::get<double>(edge(n)) / (n.exercise.right.ends_with(" cm") ? 1 : 100);
        }),
        wrong("zomaar bij elkaar", says("# cm", (m + cm) * 2), says("# m", (m + cm) * 2)),
        wrong("niet 10 cm", says("# cm", (m * 10 + cm) * 2), says("# m", (m + cm / 10) * 2)),
        told("maar twee zijden", length + width), told("maar drie zijden", length * 2 + width),
        told("maar drie zijden", length + width * 2), told("even lang", length * 4), told("even lang", width * 4));
}

// Of a box so wide, high and deep: the first or second side of the face that is asked for.
formula face_side(bool first) {
    return [=](const reading& n) { return first ? n[n[0] == 0 ? 3 : 1] : n[n[0] == 2 ? 3 : 2]; };
}

// A floor given in one unit, with so many of the squares asked for in one of its own.
void floor_plan(int first, const char* reads, const row_part& small, const row_part& large, double squares) {
    const double sides = squares > 1 ? 10 : 0.1;
    row(M_bedrijfsruimte_07_12_click, 4, reads, of({first, first + 2}), small, large, right(v[2] * v[3] * squares),
        wrong("Reken eerst de lengte en de breedte om.", v[0] * v[1]), wrong("niet 10 dm²", v[0] * v[1] * sides),
        wrong("niet 1.000 dm²", v[0] * v[1] * squares * sides), wrong("omtrek", (v[0] + v[1]) * 2 * sides),
        wrong("breedte met zichzelf", v[3] * v[3] * squares), wrong("lengte met zichzelf", v[2] * v[2] * squares),
        explains("# * = #*, # * = #", v[0], v[0] * sides, v[1], v[1] * sides), [squares](const reading& n) {
            EXPECT_TRUE(same(n[2], n[3] * 1.3) && n.exercise.right.ends_with(squares > 1 ? " dm²" : " m²"));
        });
}

const formula volume = v[1] * v[2] * v[3];

const exercise_rows surfaces([] {
    row(B_oppervlakte_07_12_click, 5,
        "oppervlakte van een @. Slechts * kleur. | De oppervlakte van een @ is ongeveer | rood | # @ | geel | $0 @ "
        "| wit | $0 @ | groen | $0 @ ",
        range({{50, 5600}}), range({{4, 450}}), range({{2, 9600}}), range({{1, 7000}}), range({{2, 20000}}),
        [](const reading& n) { check_kinds(n, "oppervlaktemaat"); });
    row(B_inhoud_08_17_click, 5,
        "inhoud van een @. Slechts * kleur. | De inhoud van een @ is ongeveer... | rood | # @ | groen | $0 @ "
        "| blauw | $0 @ | grijs | $0 @ ",
        range({{25, 30}}), range({{2, 250}}), range({{1, 12}}), range({{350, 500}}), range({{1, 500}}),
        [](const reading& n) { check_kinds(n, "inhoudsmaat"); });
    rectangle(1, "rechthoek. | # m | # cm ", {{0.4, 4.9, 0.3}, {25, 375, 30}, {1.3, 4, 0.1}}, v[0], v[1]);
    rectangle(2, "rechthoek. | # cm | # m ", {{55, 495, 30}, {0.4, 3.8, 0.3}, {1.3, 4, 0.1}}, v[1], v[0]);
    row(L_doos_07_12_click, 3, "van (een zijkant|de voorkant|de bovenkant)? | # | # | #",
        range({{0, 2}, {2, 19}, {2, 19}, {2, 19}}), right(face_side(true) * face_side(false)),
        wrong("oppervlakte van de zijkant", v[3] * v[2]), wrong("oppervlakte van de voorkant", v[1] * v[2]),
        wrong("oppervlakte van de bovenkant", v[1] * v[3]),
        wrong("de omtrek van", (face_side(true) + face_side(false)) * 2),
        explains("kant heeft afmetingen van # bij # cm", face_side(true), face_side(false)));
    row(L_doos_08_17_click, 2, "maten zijn in (dm|cm). Hoe groot is de inhoud van deze doos? | # | # | # ",
        range({{0, 0}, {3, 6}, {2, 5}, {2, 3}}), range({{1, 1}, {3, 6}, {2, 5}, {2, 3}}), right(volume),
        wrong("maten opgeteld", v[1] + v[2] + v[3]), wrong("alleen de lengte en de breedte", v[1] * v[3]),
        wrong("alle zijvlakken", (v[1] * v[2] + v[2] * v[3] + v[1] * v[3]) * 2),
        wrong("1 liter, niet aan 1 mL", volume), wrong("1 liter, niet aan 1.000 liter", volume * 1000),
        wrong("1 mL, niet aan 1 liter", volume), wrong("1 mL, niet aan 1.000 mL", volume * 1000),
        explains("= # (dm³|cm³). Eén {dm³|cm³} is gelijk aan 1 {liter|mL}.", volume, v[0]), [](const reading& n) {
            for (int which = 1; which <= 4; ++which) {
                const bool other = which > 1 && n.exercise.feedback(which).find("niet aan 1 ") != std::string::npos;
                EXPECT_TRUE(n.exercise.answer(which).ends_with((n[0] == 0) != other ? " liter" : " mL"));
            }
        });
    floor_plan(1, "van # x # m. Hiernaast * | # m | # m", range({{4, 19.5}, {4, 19.5}, {5.2, 19.5}, {4, 15}}),
               range({{16, 35.1}, {16, 35.1}, {20.8, 35.1}, {16, 27}}), 100);
    floor_plan(2, "van # x # dm. Hiernaast * | # dm | # dm", range({{40, 195}, {40, 195}, {52, 195}, {40, 150}}),
               range({{160, 351}, {160, 351}, {208, 351}, {160, 270}}), 0.01);
});

} // namespace
} // namespace cijferwerf
