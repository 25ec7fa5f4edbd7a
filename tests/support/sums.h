// The arithmetic that a text writes out, step by step, worked out again: "3 x 12 = 36 cm", "5 % van 200 = 10", "1/2 +
// 1/3 = 3/6 + 2/6 = 5/6", "17 gedeeld door 3 is ongeveer 5,67", "2,5 m = 250 cm". What it cannot read it passes over.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

struct checked_sums {
    int steps = 0;                  // equalities that were worked out
    std::vector<std::string> wrong; // those that do not hold, as written
};

// Exact, save where the text says "ongeveer", "afgerond" and the like: then as exact as its digits.
checked_sums check_sums(std::string_view text);

// How large a unit is ("cm", "liter", "minuten", "€"), and a number for what it measures; nothing for another word.
struct unit_size {
    int ladder;
    double size;
};
std::optional<unit_size> find_unit(std::string_view name);

// What an answer is worth, so that "1/2", "0,5" and "50 %" are one, "€ 5,-" and "€ 5,00", "760 cm" and "7,6 m"; a text
// that is no number stands for itself.
std::string worth(std::string_view answer);
// The same as a number, of units that measure one thing in the smallest of them, and what it is a number of; nothing
// for a text.
struct amount {
    double value;
    std::string of;
};
std::optional<amount> amount_of(std::string_view answer);

} // namespace cijferwerf
