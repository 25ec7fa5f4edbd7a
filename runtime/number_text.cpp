#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace cijferwerf {

namespace {

constexpr std::array<std::uint64_t, 10> powers_of_ten{1,       10,        100,        1'000,       10'000,
                                                      100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

std::uint64_t magnitude(long long number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return number < 0 ? 0 - bits : bits;
}

// The digits of a number, at least so many of them.
std::string_view digits(std::uint64_t number, std::array<char, 32>& buffer, int at_least = 1) {
    char* const end = buffer.data() + buffer.size();
    char* begin = end;
    for (int n = 0; n < at_least || number > 0; ++n, number /= 10) *--begin = static_cast<char>('0' + number % 10);
    return {begin, static_cast<std::size_t>(end - begin)};
}

number_text signed_blank(long long number) {
    number_text text;
    text.append(number < 0 ? "-" : " ");
    return text;
}

void append_thousands(number_text& text, std::uint64_t number) {
    std::array<char, 32> buffer{};
    const std::string_view all = digits(number, buffer);
    if (all.size() > 3) {
        text.append(all.substr(0, all.size() - 3));
        text.append(".");
        text.append(all.substr(all.size() - 3));
    } else
        text.append(all);
}

void append_groups(number_text& text, std::uint64_t number) {
    std::array<char, 32> buffer{};
    std::string_view all = digits(number, buffer);
    const std::size_t first = (all.size() - 1) % 3 + 1;
    text.append(all.substr(0, first));
    for (all.remove_prefix(first); !all.empty(); all.remove_prefix(3)) {
        text.append(".");
        text.append(all.substr(0, 3));
    }
}

number_text decimal(long long scaled, int decimals, std::string_view separator, bool shortest, bool thousands) {
    const std::uint64_t one = powers_of_ten.at(static_cast<std::size_t>(decimals));
    std::uint64_t fraction = magnitude(scaled) % one;
    while (shortest && decimals > 0 && fraction % 10 == 0) {
        fraction /= 10;
        --decimals;
    }
    std::array<char, 32> buffer{};
    number_text text = signed_blank(scaled);
    if (thousands)
        append_thousands(text, magnitude(scaled) / one);
    else
        text.append(digits(magnitude(scaled) / one, buffer));
    if (decimals > 0) {
        text.append(separator);
        text.append(digits(fraction, buffer, decimals));
    }
    return text;
}

} // namespace

number_text tekst(long long number) {
    std::array<char, 32> buffer{};
    number_text text = signed_blank(number);
    text.append(digits(magnitude(number), buffer));
    return text;
}

number_text duizend(long long number) {
    number_text text = signed_blank(number);
    append_thousands(text, magnitude(number));
    return text;
}

number_text komma(long long scaled, int decimals) { return decimal(scaled, decimals, ",", false, true); }
number_text komma_kort(long long scaled, int decimals) { return decimal(scaled, decimals, ",", true, true); }
number_text punt(long long scaled, int decimals) { return decimal(scaled, decimals, ".", true, false); }

number_text groepen(long long number) {
    number_text text = signed_blank(number);
    append_groups(text, magnitude(number));
    return text;
}

number_text euro(long long cents) {
    number_text text;
    text.append(cents < 0 ? " € -" : " € ");
    append_groups(text, magnitude(cents) / 100);
    text.append(",");
    std::array<char, 32> buffer{};
    const std::uint64_t rest = magnitude(cents) % 100;
    text.append(rest == 0 ? "-" : digits(rest, buffer, 2));
    return text;
}

long long afgerond(double value, int decimals) {
    const double scaled = value * static_cast<double>(powers_of_ten.at(static_cast<std::size_t>(decimals)));
    return std::abs(scaled) < 9e18 ? std::llround(scaled) : 0;
}

number_text kaal(const number_text& number) {
    number_text text;
    text.append(kaal(std::string_view(number)));
    return text;
}

number_text kaal(long long number) { return kaal(tekst(number)); }

namespace {

// Copies a text and returns the end of the copy. The lengths come as they like, which the library's copying, made for
// long ones, guesses wrong at every step: here pieces overlap instead.
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

} // namespace

char* regeldeel::schrijf(const char* begin, char* end) const {
    const bool after_blank = end != begin && end[-1] == ' ';
    if (maat_ == geheel) {
        if (geheel_ < 0)
            *end++ = '-';
        else if (!after_blank)
            *end++ = ' ';
        std::array<char, 32> buffer;
        const std::string_view all = digits(magnitude(geheel_), buffer);
        return copied(all, end);
    }
    std::string_view text = tekst();
    if ((maat_ & getal) != 0 && after_blank && text.starts_with(' ')) text.remove_prefix(1);
    return copied(text, end);
}

char* regeldeel::schrijf_kaal(char* end) const {
    const number_text number = maat_ == geheel ? cijferwerf::tekst(geheel_) : number_text();
    const std::string_view text = kaal(maat_ == geheel ? std::string_view(number) : tekst());
    return copied(text, end);
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

// Where the lines of one exercise stand: one piece of memory that serves each anew, and more pieces once it is full.
class scratch_pad {
public:
    // Where the next line is to be written.
    char* room(std::size_t characters) {
        if (left_ < characters) {
            left_ = std::max(characters, first_.size());
            next_ = more_.emplace_back(std::make_unique<char[]>(left_)).get();
        }
        return next_;
    }
    // The line that was written there, up to this end.
    plakregel written(char* end) {
        const std::string_view line(next_, static_cast<std::size_t>(end - next_));
        left_ -= line.size();
        next_ = end;
        return plakregel(line);
    }
    void clear() {
        more_.clear();
        next_ = first_.data();
        left_ = first_.size();
    }

private:
    std::array<char, 16'384> first_;
    std::vector<std::unique_ptr<char[]>> more_;
    char* next_ = first_.data();
    std::size_t left_ = first_.size();
};
thread_local scratch_pad this_exercise;

} // namespace

std::string plak(std::initializer_list<regeldeel> delen) {
    std::string line(room_for(delen), ' ');
    line.resize(static_cast<std::size_t>(schrijf(delen, line.data()) - line.data()));
    return line;
}

plakregel plak_even(std::initializer_list<regeldeel> delen) {
    return this_exercise.written(schrijf(delen, this_exercise.room(room_for(delen))));
}

plakregel plak_velden(std::initializer_list<regeldeel> delen) {
    char* const begin = this_exercise.room(room_for(delen));
    char* end = begin;
    for (const regeldeel& deel : delen) {
        if (end != begin) *end++ = '_';
        end = deel.schrijf_kaal(end);
    }
    return this_exercise.written(end);
}

void vergeet_plakregels() { this_exercise.clear(); }

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
