// Decimal numbers of any length, exact: 0,1 + 0,2 is 0,3. Only a quotient is cut.
// How long a number may get, and what a display shows of it, is left to the calculator.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

class decimal {
public:
    // The number written as these digits before and behind the point: ("-12", "5") is -12.5. Digits only, but for the
    // "-".
    decimal(std::string_view whole, std::string_view fraction);

    bool zero() const { return digits_.empty(); }
    decimal operator-() const;
    // The shortest text with "." as decimal point, never an exponent: "0.5", "-0.5", "3".
    std::string text() const;

    friend decimal operator+(const decimal& a, const decimal& b);
    friend decimal operator-(const decimal& a, const decimal& b) { return a + -b; }
    friend decimal operator*(const decimal& a, const decimal& b);
    // Cut after twenty decimals or more; the divisor is not 0.
    friend decimal operator/(const decimal& a, const decimal& b);

private:
    decimal(std::vector<int> digits, std::size_t decimals);

    std::vector<int> digits_; // of the magnitude, the last one first, without zeros at the end
    std::size_t decimals_ = 0;
    bool negative_ = false;
};

} // namespace cijferwerf
