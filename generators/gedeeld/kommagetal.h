// An exact decimal number: so many tenths, hundredths, ... in one whole number, and the rounding of quotients.
// How an exercise came by it, and with which unit it is written, is the exercise's.
#pragma once

#include "runtime/number_text.h"

#include <algorithm>
#include <compare>

namespace cijferwerf {

constexpr long long tien_tot_de(int exponent) {
    long long macht = 1;
    for (; exponent > 0; --exponent) macht *= 10;
    return macht;
}

// The quotient as a whole number, halves upwards; the divisor is above 0.
constexpr long long deel_afgerond(long long teller, long long noemer) {
    const long long dubbel = 2 * teller + noemer;
    return dubbel / (2 * noemer) - (dubbel % (2 * noemer) < 0 ? 1 : 0);
}

struct kommagetal {
    long long geschaald = 0; // {125, 1} is 12,5
    int decimalen = 0;

    // The same number without zeros at its end.
    constexpr kommagetal kort() const {
        kommagetal k = *this;
        for (; k.decimalen > 0 && k.geschaald % 10 == 0; --k.decimalen) k.geschaald /= 10;
        return k;
    }
    // The number as so many tenths (1), hundredths (2), ...; what lies beyond is rounded, halves upwards.
    constexpr long long op(int plaatsen) const {
        return plaatsen >= decimalen ? geschaald * tien_tot_de(plaatsen - decimalen)
                                     : deel_afgerond(geschaald, tien_tot_de(decimalen - plaatsen));
    }
    // 10 to this power times as large: the decimal point moves.
    constexpr kommagetal verschoven(int plaatsen) const {
        return plaatsen <= decimalen ? kommagetal{geschaald, decimalen - plaatsen}.kort()
                                     : kommagetal{geschaald * tien_tot_de(plaatsen - decimalen), 0};
    }

    // By value: 2,50 equals 2,5.
    friend constexpr bool operator==(kommagetal a, kommagetal b) { return (a <=> b) == 0; }
    friend constexpr std::strong_ordering operator<=>(kommagetal a, kommagetal b) {
        const int samen = std::max(a.decimalen, b.decimalen);
        return a.op(samen) <=> b.op(samen);
    }
};

constexpr kommagetal operator+(kommagetal a, kommagetal b) {
    const int samen = std::max(a.decimalen, b.decimalen);
    return kommagetal{a.op(samen) + b.op(samen), samen}.kort();
}
constexpr kommagetal operator-(kommagetal a, kommagetal b) { return a + kommagetal{-b.geschaald, b.decimalen}; }
constexpr kommagetal operator*(kommagetal a, kommagetal b) {
    return kommagetal{a.geschaald * b.geschaald, a.decimalen + b.decimalen}.kort();
}
constexpr kommagetal operator*(kommagetal a, long long n) { return a * kommagetal{n}; }

// " 12,5": in its shortest form; and with so many decimals, rounded: " 12,50".
inline number_text komma_kort(kommagetal k) { return komma_kort(k.kort().geschaald, k.kort().decimalen); }
inline number_text komma(kommagetal k, int decimalen) { return komma(k.op(decimalen), decimalen); }

} // namespace cijferwerf
