#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace cijferwerf {

namespace {

constexpr auto powers_of_ten = [] {
    std::array<std::uint64_t, 20> made{1};
    for (std::size_t i = 1; i < made.size(); ++i) made[i] = made[i - 1] * 10;
    return made;
}();

std::uint64_t magnitude(long long number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

// Each of these writes from a place on and returns the end of what it wrote.

// The lengths come as they like, which the library's copying, made for long texts, guesses wrong at every step: here
// pieces from the front and from the back overlap. A call would cost as much as most of the copies.
[[gnu::always_inline]] inline char* copied(std::string_view text, char* to) {
    const char* const from = text.data();
    const std::size_t length = text.size();
    const auto sixteen = [&](std::size_t at) { std::memcpy(to + at, from + at, 16); };
    const auto four = [&](std::size_t at) { std::memcpy(to + at, from + at, 4); };
    const auto one = [&](std::size_t at) { to[at] = from[at]; };
    if (length >= 16) {
        sixteen(0);
        sixteen(length - 16);
        for (std::size_t at = 16; at + 16 < length; at += 16) sixteen(at);
    } else if (length >= 4) {
        const std::size_t half = length / 8 * 4;
        four(0);
        four(half);
        four(length - 4 - half);
        four(length - 4);
    } else if (length > 0) {
        one(0);
        one(length / 2);
        one(length - 1);
    }
    return to + length;
}

char* character(char c, char* to) {
    *to = c;
    return to + 1;
}

// "000" to "999", four bytes from one to the next.
constexpr auto triples = [] {
    std::array<char, 4'004> made{};
    for (std::size_t i = 0; i < 1'000; ++i) {
        made[4 * i] = static_cast<char>('0' + i / 100);
        made[4 * i + 1] = static_cast<char>('0' + i / 10 % 10);
        made[4 * i + 2] = static_cast<char>('0' + i % 10);
    }
    return made;
}();

// The last so many digits of a number. What is written behind them does not count.
char* last_digits(std::uint64_t number, int count, char* to) {
    if (count > 3) {
        to = last_digits(number / 1'000, count - 3, to);
        count = 3;
    }
    std::memcpy(to, &triples[number % 1'000 * 4 + static_cast<std::size_t>(3 - count)], 4);
    return to + count;
}

char* digits(std::uint64_t number, char* to) {
    if (number >= 1'000) return last_digits(number, 3, digits(number / 1'000, to));
    return last_digits(number, 1 + (number >= 10) + (number >= 100), to);
}

// A "." before the last three of them.
char* thousands(std::uint64_t number, char* to) {
    if (number < 1000) return digits(number, to);
    return last_digits(number % 1000, 3, character('.', digits(number / 1000, to)));
}

// A "." before every three of them.
char* groups(std::uint64_t number, char* to) {
    if (number < 1000) return digits(number, to);
    return last_digits(number % 1000, 3, character('.', groups(number / 1000, to)));
}

// What stands in front of a number.
char* sign(long long number, char* to) { return character(number < 0 ? '-' : ' ', to); }

number_text decimal(long long scaled, int decimals, char separator, bool shortest,
                    char* (*whole)(std::uint64_t, char*)) {
    const std::uint64_t one = powers_of_ten.at(static_cast<std::size_t>(decimals));
    std::uint64_t fraction = magnitude(scaled) % one;
    while (shortest && decimals > 0 && fraction % 10 == 0) {
        fraction /= 10;
        --decimals;
    }
    return number_text([&](char* to) {
        to = whole(magnitude(scaled) / one, sign(scaled, to));
        return decimals == 0 ? to : last_digits(fraction, decimals, character(separator, to));
    });
}

} // namespace

number_text tekst(long long number) {
    return number_text([=](char* to) { return digits(magnitude(number), sign(number, to)); });
}

number_text duizend(long long number) {
    return number_text([=](char* to) { return thousands(magnitude(number), sign(number, to)); });
}

number_text komma(long long scaled, int decimals) { return decimal(scaled, decimals, ',', false, thousands); }
number_text komma_kort(long long scaled, int decimals) { return decimal(scaled, decimals, ',', true, thousands); }
number_text punt(long long scaled, int decimals) { return decimal(scaled, decimals, '.', true, digits); }

number_text groepen(long long number) {
    return number_text([=](char* to) { return groups(magnitude(number), sign(number, to)); });
}

number_text euro(long long cents) {
    return number_text([=](char* to) {
        to = groups(magnitude(cents) / 100, copied(cents < 0 ? " € -" : " € ", to));
        const std::uint64_t rest = magnitude(cents) % 100;
        to = character(',', to);
        return rest == 0 ? character('-', to) : last_digits(rest, 2, to);
    });
}

long long afgerond(double value, int decimals) {
    const double scaled = value * static_cast<double>(powers_of_ten.at(static_cast<std::size_t>(decimals)));
    return std::abs(scaled) < 9e18 ? std::llround(scaled) : 0;
}

number_text kaal(const number_text& number) {
    return number_text([&](char* to) { return copied(kaal(std::string_view(number)), to); });
}

number_text kaal(long long number) {
    return number_text([=](char* to) { return digits(magnitude(number), number < 0 ? character('-', to) : to); });
}

inline char* regeldeel::schrijf(const char* begin, char* end) const {
    const bool after_blank = end != begin && end[-1] == ' ';
    if (maat_ == geheel) return digits(magnitude(geheel_), geheel_ >= 0 && after_blank ? end : sign(geheel_, end));
    std::string_view text = tekst();
    if ((maat_ & getal) != 0) {
        if (after_blank && text.starts_with(' ')) text.remove_prefix(1);
        std::memcpy(end, text.data(), 16);
        if (text.size() > 16) std::memcpy(end + 16, text.data() + 16, text.size() - 16);
        return end + text.size();
    }
    return copied(text, end);
}

char* regeldeel::schrijf_kaal(char* end) const {
    if (maat_ == geheel) return digits(magnitude(geheel_), geheel_ < 0 ? sign(geheel_, end) : end);
    return copied(kaal(tekst()), end);
}

namespace {

// Where lines are glued now; without an exercise under way it is a place of the thread's own.
constinit thread_local kladblok* onder_handen = nullptr;

kladblok& nu() {
    if (onder_handen != nullptr) return *onder_handen;
    thread_local kladblok los;
    return los;
}

} // namespace

kladblok::~kladblok() {
    if (onder_handen == this) onder_handen = nullptr;
}

void kladblok::vergeet() {
    more_.clear();
    next_ = first_.data();
    limit_ = next_ + first_.size();
}

void kladblok::begin() {
    onder_handen = this;
    vergeet();
}

char* kladblok::verhuis(char* end, std::size_t room) {
    const std::string_view line(next_, static_cast<std::size_t>(end - next_));
    const std::size_t size = line.size() + std::max(room, first_.size());
    next_ = more_.emplace_back(std::make_unique<char[]>(size)).get();
    limit_ = next_ + size;
    return std::ranges::copy(line, next_).out;
}

plakregel kladblok::plak(std::initializer_list<regeldeel> delen) {
    char* end = next_;
    for (const regeldeel& deel : delen) {
        end = met_ruimte(end, deel.ruimte());
        end = deel.schrijf(next_, end);
    }
    return tot(end);
}

plakregel kladblok::plak_velden(std::initializer_list<regeldeel> delen) {
    char* end = next_;
    for (const regeldeel& deel : delen) {
        end = met_ruimte(end, deel.ruimte());
        if (end != next_) *end++ = '_';
        end = deel.schrijf_kaal(end);
    }
    return tot(end);
}

std::string plak(std::initializer_list<regeldeel> delen) {
    std::size_t room = 0;
    for (const regeldeel& deel : delen) room += deel.ruimte();
    std::array<char, 512> here;
    std::string elsewhere(room > here.size() ? room : 0, ' ');
    char* const begin = elsewhere.empty() ? here.data() : elsewhere.data();
    char* end = begin;
    for (const regeldeel& deel : delen) end = deel.schrijf(begin, end);
    return {begin, end};
}

plakregel plak_even(std::initializer_list<regeldeel> delen) { return nu().plak(delen); }
plakregel plak_velden(std::initializer_list<regeldeel> delen) { return nu().plak_velden(delen); }

double lees_getal(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty() || !(text.front() == '.' || (text.front() >= '0' && text.front() <= '9'))) return 0;
    constexpr double most = 1e300, most_parts = 1e15; // digits past these change nothing
    double value = 0, parts = 1;
    bool behind_point = false;
    for (const char c : text) {
        if (c == '.' && !behind_point)
            behind_point = true;
        else if (c < '0' || c > '9')
            break;
        else if (parts < most_parts) {
            value = std::min(value * 10 + (c - '0'), most);
            if (behind_point) parts *= 10;
        }
    }
    value /= parts;
    return negative ? -value : value;
}

} // namespace cijferwerf
