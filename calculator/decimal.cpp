#include "calculator/decimal.h"

#include "runtime/stop_run.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr std::size_t quotient_decimals = 20;

std::vector<int> signed_digits(std::string_view whole, std::string_view fraction) {
    const bool minus = whole.starts_with('-');
    whole.remove_prefix(minus ? 1 : 0);
    std::vector<int> digits;
    for (const std::string_view part : {fraction, whole})
        for (auto c = part.rbegin(); c != part.rend(); ++c) digits.push_back(minus ? '0' - *c : *c - '0');
    return digits;
}

} // namespace

decimal::decimal(std::string_view whole, std::string_view fraction)
    : decimal(signed_digits(whole, fraction), fraction.size()) {}

// Takes digits of any size and sign and carries until each is one digit of the magnitude.
decimal::decimal(std::vector<int> digits, std::size_t decimals) : digits_(std::move(digits)), decimals_(decimals) {
    int carry = 0;
    for (std::size_t i = 0; i < digits_.size() || carry > 0; ++i) {
        if (i == digits_.size()) digits_.push_back(0);
        carry += digits_[i];
        digits_[i] = (carry % 10 + 10) % 10;
        carry = (carry - digits_[i]) / 10;
    }
    if (carry < 0) { // below zero: what was carried over the end outweighs all digits
        digits_.push_back(carry);
        for (int& digit : digits_) digit = -digit;
        *this = decimal(std::move(digits_), decimals);
        negative_ = true;
    }
    while (!digits_.empty() && digits_.back() == 0) digits_.pop_back();
}

decimal decimal::operator-() const {
    decimal opposite = *this;
    opposite.negative_ = !negative_ && !zero();
    return opposite;
}

decimal operator+(const decimal& a, const decimal& b) {
    const std::size_t decimals = std::max(a.decimals_, b.decimals_);
    std::vector<int> sum(decimals + std::max(a.digits_.size(), b.digits_.size()));
    for (const decimal* term : {&a, &b})
        for (std::size_t i = 0; i < term->digits_.size(); ++i)
            sum[i + decimals - term->decimals_] += term->negative_ ? -term->digits_[i] : term->digits_[i];
    return {std::move(sum), decimals};
}

decimal operator*(const decimal& a, const decimal& b) {
    std::vector<int> product(a.digits_.size() + b.digits_.size());
    for (std::size_t i = 0; i < a.digits_.size(); ++i)
        for (std::size_t j = 0; j < b.digits_.size(); ++j) product[i + j] += a.digits_[i] * b.digits_[j];
    const decimal magnitude(std::move(product), a.decimals_ + b.decimals_);
    return a.negative_ == b.negative_ ? magnitude : -magnitude;
}

// Long division, digit by digit, of the magnitudes without their points.
decimal operator/(const decimal& a, const decimal& b) {
    if (b.zero()) stop_run("a decimal divided by zero");
    const decimal divisor(b.digits_, 0);
    std::vector<int> dividend(quotient_decimals + b.decimals_);
    dividend.insert(dividend.end(), a.digits_.begin(), a.digits_.end());

    std::vector<int> quotient(dividend.size());
    decimal rest({}, 0);
    for (std::size_t i = dividend.size(); i-- > 0;) {
        rest.digits_.insert(rest.digits_.begin(), dividend[i]);
        rest = decimal(std::move(rest.digits_), 0);
        for (decimal less = rest - divisor; !less.negative_; less = rest - divisor) {
            rest = less;
            ++quotient[i];
        }
    }
    const decimal magnitude(std::move(quotient), quotient_decimals + a.decimals_);
    return a.negative_ == b.negative_ ? magnitude : -magnitude;
}

std::string decimal::text() const {
    std::string written;
    for (const int digit : digits_) written += static_cast<char>('0' + digit);
    written.resize(std::max(written.size(), decimals_ + 1), '0');
    written += negative_ ? "-" : "";
    std::ranges::reverse(written);
    if (decimals_ == 0) return written;

    written.insert(written.size() - decimals_, ".");
    written.erase(written.find_last_not_of('0') + 1);
    if (written.back() == '.') written.pop_back();
    return written;
}

} // namespace cijferwerf
