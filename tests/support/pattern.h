// Reads numbers and words back from a text by a pattern that looks like the text. It judges nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

struct found_in_text {
    std::vector<double> numbers;
    std::vector<std::string> words;
};

// The first place of the text that looks like the pattern, in which
//
//     #          is a number as pupils write it: "1.250,5", "-3"; it becomes one of the numbers
//     ~          is a time as "9:05", in minutes, or "0:01:10", in seconds; likewise
//     &          is a mixed number, a fraction or a whole number: "1 3/8", "3/4", "12"; likewise
//     (one|two)  is one of these texts; which of them, counted from 0, becomes one of the numbers
//     {one|two}  is the text at the place that the first of those had
//     @          is some text, as short as possible; it becomes one of the words
//     *          is some text or none, as short as possible
//     $0         is the number that was found as number 0, once more (0 to 9)
//     $a         is the text that was found as word 0, once more (a to z)
//     \#         is "#" itself
//
// and everything else stands for itself; nothing where no place does. A bracket that is never closed ends the test.
std::optional<found_in_text> find_pattern(std::string_view text, std::string_view pattern);

// What an answer is worth, whatever its unit: "€ 5,-" is 5, "1 3/8 liter" 1.375, "9:05 uur" 545 (minutes), "0:01:10"
// 70 (seconds), "12 %" 12. Nothing where it has no number or several.
std::optional<double> number_of(std::string_view answer);

// The number that stands at a place of the text, as any of those, and moves past it; nothing in the midst of another.
std::optional<double> take_number(std::string_view text, std::size_t& at);

} // namespace cijferwerf
