// Feeds the drawing commands of an explanation with mutated and random lines: none may crash, hang or leave anything on
// the list that a front end could not draw. The lines are the same in every run.
// usage: explanation_fuzz LINES
#include "forms/practice/explanation.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace cijferwerf;

const std::array<std::string, 8> starts{
    "PRINT_2620_600_12_9.25_H",
    "LINE_1420_1670_300_-500_1_B_1",
    "LINE_3000_0_2380_2130_1_BF_1",
    "BREUK1_700_1400_12_13_100",
    "TELLERSNOEMERS_1_2_3_4_5_6_7_8_9_10_11_12",
    "DOORSTREPEN_2050_1350_2120_1050_12",
    "PARTJES_1500_1000_4_",
    "PRINT_0_0_15_12_één ¾",
};
const std::array<std::string, 14> pieces{
    "_", "__", "-", ".", "9999999999999999999999", "-1", "1e308", "nan", "-inf", "0x1p-1074", " ", "\xC3", "B", "16"};

class mutator {
public:
    std::string line() {
        std::string made = pick(starts);
        for (unsigned changes = draw(6); changes > 0; --changes) change(made);
        return made;
    }

private:
    unsigned draw(std::size_t n) { return static_cast<unsigned>(engine_() % n); }
    template<std::size_t N>
    const std::string& pick(const std::array<std::string, N>& list) {
        return list[draw(N)];
    }
    void change(std::string& made) {
        const std::size_t at = draw(made.size() + 1);
        switch (draw(5)) {
        case 0: made.insert(at, pick(pieces)); break;
        case 1: made.insert(at, 1, static_cast<char>(draw(256))); break;
        case 2: made.erase(at, draw(8)); break;
        case 3: made.resize(at); break;
        default: made += pick(starts).substr(draw(20) % 15); break;
        }
    }

    std::mt19937 engine_{1};
};

bool drawable(const text_op& op) { return op.size >= 1 && op.size <= 200 && op.colour < aantal_kleuren; }
bool drawable(const box_op& op) { return op.width >= 0 && op.height >= 0 && op.pen.colour < aantal_kleuren; }
bool drawable(const line_op& op) { return std::abs(op.to.x) <= 1'000'770 && std::abs(op.to.y) <= 1'000'770; }
template<class Other>
bool drawable(const Other&) {
    return false; // no command draws anything else
}

bool survives(const std::string& opdracht) {
    drawing board;
    teken_opdracht(board, opdracht);
    teken_opdracht(board, "PRINT_0_0_0_8_x");
    if (board.operations().size() > 1001) return false;
    for (const drawing_op& operation : board.operations())
        if (!std::visit([](const auto& op) { return drawable(op); }, operation)) return false;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const int lines = argc == 2 ? std::atoi(argv[1]) : 0;
    if (lines <= 0) {
        std::fputs("usage: explanation_fuzz LINES\n", stderr);
        return 2;
    }
    mutator mutate;
    for (int i = 0; i < lines; ++i)
        if (const std::string line = mutate.line(); !survives(line)) {
            std::fprintf(stderr, "not drawable: %s\n", line.c_str());
            return 1;
        }
    return 0;
}
