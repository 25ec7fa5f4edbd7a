#include "tests/support/pattern.h"

#include <cctype>
#include <cmath>
#include <stdexcept>

namespace cijferwerf {

namespace {

bool digit(std::string_view text, std::size_t at) { return at < text.size() && text[at] >= '0' && text[at] <= '9'; }

double take_digits(std::string_view text, std::size_t& at) {
    double value = 0;
    for (; digit(text, at); ++at) value = value * 10 + (text[at] - '0');
    return value;
}

// Whether a number may begin here, and not in the middle of another.
bool begins(std::string_view text, std::size_t at) {
    if (!digit(text, at) || (at > 0 && digit(text, at - 1))) return false;
    return at < 2 || (text[at - 1] != '.' && text[at - 1] != ',') || !digit(text, at - 2);
}

// "1.250,5", "-3": points before groups of three, a comma before decimals.
std::optional<double> take_decimal(std::string_view text, std::size_t& at) {
    const bool negative = at < text.size() && text[at] == '-' && (at == 0 || !digit(text, at - 1));
    std::size_t here = at + negative;
    if (!begins(text, here)) return {};
    double value = take_digits(text, here);
    while (here < text.size() && text[here] == '.' && digit(text, here + 1) && digit(text, here + 2) &&
           digit(text, here + 3) && !digit(text, here + 4)) {
        ++here;
        value = value * 1000 + take_digits(text, here);
    }
    if (here < text.size() && text[here] == ',' && digit(text, here + 1)) {
        const std::size_t comma = here++;
        const double decimals = take_digits(text, here);
        value += decimals / std::pow(10, here - comma - 1);
    }
    at = here;
    return negative ? -value : value;
}

// "1 3/8", "3/4", or a number.
std::optional<double> take_fraction(std::string_view text, std::size_t& at) {
    const auto part = [&](std::size_t& from) -> std::optional<double> {
        if (!digit(text, from)) return {};
        const double over = take_digits(text, from);
        if (from >= text.size() || text[from] != '/' || !digit(text, ++from)) return {};
        const double under = take_digits(text, from);
        if (from < text.size() && text[from] == ',' && digit(text, from + 1)) return {}; // "600/0,75" is a division
        return over / under;
    };
    std::size_t here = at;
    if (!begins(text, here)) return take_decimal(text, at);
    if (const auto alone = part(here)) return at = here, alone;
    here = at;
    const double whole = take_digits(text, here);
    if (here < text.size() && text[here++] == ' ')
        if (const auto rest = part(here)) return at = here, whole + *rest;
    return take_decimal(text, at);
}

// "9:05", "0:01:10".
std::optional<double> take_time(std::string_view text, std::size_t& at) {
    if (!begins(text, at)) return {};
    std::size_t here = at, parts = 1;
    double value = take_digits(text, here);
    for (; here < text.size() && text[here] == ':' && digit(text, here + 1) && digit(text, here + 2); ++parts) {
        std::size_t next = here + 1;
        value = value * 60 + take_digits(text, next);
        here = next;
    }
    if (parts == 1) return {};
    at = here;
    return value;
}

struct matcher {
    std::string_view text, pattern;
    found_in_text found{};
    std::optional<std::size_t> first_choice{}; // its place among the numbers

    bool number(std::optional<double> (*take)(std::string_view, std::size_t&), std::size_t t, std::size_t p) {
        const auto value = take(text, t);
        if (!value) return false;
        found.numbers.push_back(*value);
        if (rest(t, p)) return true;
        found.numbers.pop_back();
        return false;
    }
    bool some_text(bool keep, std::size_t t, std::size_t p) {
        for (std::size_t end = t + keep; end <= text.size(); ++end) {
            if (keep) found.words.emplace_back(text.substr(t, end - t));
            if (rest(end, p)) return true;
            if (keep) found.words.pop_back();
        }
        return false;
    }
    // One of the texts up to the bracket, or the one at that place.
    bool one_of(std::size_t t, std::size_t p, char bracket, std::optional<double> only = {}) {
        const std::size_t close = pattern.find(bracket, p);
        if (close == pattern.npos) throw std::invalid_argument("no bracket closes: " + std::string(pattern));
        if (!first_choice && !only) first_choice = found.numbers.size();
        const bool is_first = first_choice == found.numbers.size() && !only;
        double which = 0;
        for (std::size_t end; p <= close; p = end + 1, ++which) {
            end = std::min(pattern.find('|', p), close);
            if ((only && only != which) || !text.substr(t).starts_with(pattern.substr(p, end - p))) continue;
            if (!only) found.numbers.push_back(which);
            if (rest(t + end - p, close + 1)) return true;
            if (!only) found.numbers.pop_back();
        }
        if (is_first) first_choice = {};
        return false;
    }
    bool rest(std::size_t t, std::size_t p) {
        for (; p < pattern.size(); ++p, ++t) switch (pattern[p]) {
            case '#': return number(take_decimal, t, p + 1);
            case '&': return number(take_fraction, t, p + 1);
            case '~': return number(take_time, t, p + 1);
            case '@': return some_text(true, t, p + 1);
            case '*': return some_text(false, t, p + 1);
            case '(': return one_of(t, p + 1, ')');
            case '{': return one_of(t, p + 1, '}', found.numbers.at(first_choice.value()));
            case '$':
                if (const char which = pattern[++p]; which >= 'a') {
                    const std::string& word = found.words.at(static_cast<std::size_t>(which - 'a'));
                    if (!text.substr(t).starts_with(word)) return false;
                    t += word.size();
                } else if (take_decimal(text, t) != found.numbers.at(static_cast<std::size_t>(which - '0')))
                    return false;
                --t;
                break;
            case '\\': ++p; [[fallthrough]];
            default:
                if (t >= text.size() || text[t] != pattern[p]) return false;
            }
        return true;
    }
};

} // namespace

std::optional<found_in_text> find_pattern(std::string_view text, std::string_view pattern) {
    matcher looking{text, pattern};
    for (std::size_t at = 0; at <= text.size(); ++at)
        if (looking.rest(at, 0)) return std::move(looking.found);
    return {};
}

std::optional<double> take_number(std::string_view text, std::size_t& at) {
    const auto time = take_time(text, at);
    return time ? time : take_fraction(text, at);
}

std::optional<double> number_of(std::string_view answer) {
    std::optional<double> value;
    for (std::size_t at = 0; at < answer.size();) {
        if (!digit(answer, at) && !(answer[at] == '-' && digit(answer, at + 1))) {
            ++at;
        } else if (at > 0 && std::isalpha(static_cast<unsigned char>(answer[at - 1]))) { // of "m2"
            take_digits(answer, at);
        } else {
            if (value) return {};
            value = take_number(answer, at);
            if (!value) return {};
        }
    }
    return value;
}

} // namespace cijferwerf
