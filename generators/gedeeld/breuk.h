// An exact fraction: a pair of whole numbers, kept as written until it is simplified on purpose.
// How an exercise came by it, and whether it had to be simplified, is the exercise's.
#pragma once

#include "runtime/number_text.h"
#include "runtime/picture_box.h"

#include <compare>
#include <numeric>
#include <string>

namespace cijferwerf {

struct breuk {
    int teller = 0;
    int noemer = 1; // above 0

    constexpr int geheel() const { return teller / noemer; }
    // What is left when the wholes are taken out.
    constexpr breuk rest() const { return {teller % noemer, noemer}; }
    // The number by which both parts can be divided.
    constexpr int deler() const { return std::gcd(teller, noemer); }
    constexpr breuk vereenvoudigd() const { return {teller / deler(), noemer / deler()}; }
    constexpr bool vereenvoudigbaar() const { return deler() > 1; }
    // The same fraction with both parts this many times as large.
    constexpr breuk maal(int factor) const { return {teller * factor, noemer * factor}; }
    constexpr breuk omgekeerd() const { return {noemer, teller}; }

    // By value: 2/4 equals 1/2.
    friend constexpr bool operator==(breuk a, breuk b) { return a.teller * b.noemer == b.teller * a.noemer; }
    friend constexpr auto operator<=>(breuk a, breuk b) { return a.teller * b.noemer <=> b.teller * a.noemer; }
};

constexpr breuk gemengd_getal(int geheel, int teller, int noemer) { return {geheel * noemer + teller, noemer}; }

// Sums and differences over the least common denominator, products and quotients, none of them simplified.
constexpr breuk operator+(breuk a, breuk b) {
    const int samen = std::lcm(a.noemer, b.noemer);
    return {a.teller * (samen / a.noemer) + b.teller * (samen / b.noemer), samen};
}
constexpr breuk operator-(breuk a, breuk b) { return a + breuk{-b.teller, b.noemer}; }
constexpr breuk operator*(breuk a, breuk b) { return {a.teller * b.teller, a.noemer * b.noemer}; }
constexpr breuk operator/(breuk a, breuk b) { return a * b.omgekeerd(); }

// "7/4", without a blank in front.
inline plakregel streepbreuk(breuk b) { return plak_even({kaal(b.teller), "/", kaal(b.noemer)}); }

// "1 3/4", "3/4", "2": the wholes taken out, the rest as it stands. Without a blank in front.
inline plakregel gemengd(breuk b) {
    if (b.rest().teller == 0) return kaal(b.geheel());
    return b.geheel() == 0 ? streepbreuk(b) : plak_even({kaal(b.geheel()), " ", streepbreuk(b.rest())});
}

// Draws a mixed number with its fraction upright - numerator over bar over denominator - in the picture's colour and
// text size. The middle of the bar lies at y, the left end of the number at x. A whole of 0 is left out, and with a
// denominator of 0 the fraction is. Returns the x at its right end.
int teken_breuk(drawing& on, int x, int y, int geheel, int teller, int noemer);
// The same with the numerator and denominator as texts, for a part that is asked ("..").
int teken_breuk(drawing& on, int x, int y, std::string_view geheel, std::string_view teller, std::string_view noemer);

} // namespace cijferwerf
