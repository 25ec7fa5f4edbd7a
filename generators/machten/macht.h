// A power: what it amounts to, how it is written on a picture and how it is written out.
// Its name is in machtnaam.h; which powers an exercise uses, and which mistakes are made with them, is its own.
#pragma once

#include "runtime/number_text.h"

#include <compare>

namespace cijferwerf {

struct macht {
    int grondtal = 0, exponent = 1;

    constexpr long long waarde() const {
        long long product = 1;
        for (int i = 0; i < exponent; ++i) product *= grondtal;
        return product;
    }
    constexpr macht verwisseld() const { return {exponent, grondtal}; }
    // "5^3", as pictures take it.
    plakregel op_plaatje() const { return plak_even({kaal(grondtal), "^", kaal(exponent)}); }
    // "5 x 5 x 5"
    std::string uitgeschreven() const {
        std::string product(kaal(grondtal));
        for (int i = 1; i < exponent; ++i) product += regel(" x", grondtal);
        return product;
    }
};

} // namespace cijferwerf
