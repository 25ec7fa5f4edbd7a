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
// pieces overlap instead.
char* copied(std::string_view text, char* to) {
    const char* from = text.data();
    const std::size_t length = text.size();
    char* const end = to + length;
    if (length >= 16) {
        const char* const last = from + length - 16;
        for (; from < last; from += 16, to += 16) std::memcpy(to, from, 16);
        std::memcpy(end - 16, last, 16);
    } else if (length >= 8) {
        std::memcpy(to, from, 8);
        std::memcpy(end - 8, from + length - 8, 8);
    } else if (length >= 4) {
        std::memcpy(to, from, 4);
        std::memcpy(end - 4, from + length - 4, 4);
    } else if (length > 0) {
        to[0] = from[0];
        to[length / 2] = from[length / 2];
        end[-1] = from[length - 1];
    }
    return end;
}

char* character(char c, char* to) {
    *to = c;
    return to + 1;
}

// The last so many digits of a number.
char* last_digits(std::uint64_t number, int count, char* to) {
    char* const end = to + count;
    for (char* at = end; at != to; number /= 10) *--at = static_cast<char>('0' + number % 10);
    return end;
}

char* digits(std::uint64_t number, char* to) {
    int count = 1;
    while (count < static_cast<int>(powers_of_ten.size()) && number >= powers_of_ten[static_cast<std::size_t>(count)])
        ++count;
    return last_digits(number, count, to);
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

char* regeldeel::schrijf(const char* begin, char* end) const {
    const bool after_blank = end != begin && end[-1] == ' ';
    if (maat_ == geheel) return digits(magnitude(geheel_), geheel_ >= 0 && after_blank ? end : sign(geheel_, end));
    std::string_view text = tekst();
    if ((maat_ & getal) != 0 && after_blank && text.starts_with(' ')) text.remove_prefix(1);
    return copied(text, end);
}

char* regeldeel::schrijf_kaal(char* end) const {
    if (maat_ == geheel) return digits(magnitude(geheel_), geheel_ < 0 ? sign(geheel_, end) : end);
    return copied(kaal(tekst()), end);
}

namespace {

// Characters for which there must be room, with a separator each.
std::size_t room_for(std::initializer_list<regeldeel> delen) {
    std::size_t room = 0;
    for (const regeldeel& deel : delen) room += deel.hoogstens() + 1;
    return room;
}

char* schrijf(std::initializer_list<regeldeel> delen, char* const begin) {
    char* end = begin;
    for (const regeldeel& deel : delen) end = deel.schrijf(begin, end);
    return end;
}

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

void kladblok::begin() {
    onder_handen = this;
    meer_.clear();
    vul(eerste_.data(), eerste_.size());
}

void kladblok::ruimte(std::size_t characters) {
    if (rest_ >= characters) return;
    const std::size_t size = std::max(characters, eerste_.size());
    vul(meer_.emplace_back(std::make_unique<char[]>(size)).get(), size);
}

plakregel kladblok::tot(char* end) {
    const plakregel line(vrij_, end);
    rest_ -= static_cast<std::size_t>(end - vrij_);
    vrij_ = end;
    return line;
}

plakregel kladblok::plak(std::initializer_list<regeldeel> delen) {
    ruimte(room_for(delen));
    return tot(schrijf(delen, vrij_));
}

plakregel kladblok::plak_velden(std::initializer_list<regeldeel> delen) {
    ruimte(room_for(delen));
    char* end = vrij_;
    for (const regeldeel& deel : delen) {
        if (end != vrij_) *end++ = '_';
        end = deel.schrijf_kaal(end);
    }
    return tot(end);
}

std::string plak(std::initializer_list<regeldeel> delen) {
    std::string line(room_for(delen), ' ');
    line.resize(static_cast<std::size_t>(schrijf(delen, line.data()) - line.data()));
    return line;
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
