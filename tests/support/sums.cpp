#include "tests/support/sums.h"

#include "generators/gedeeld/maten.h"
#include "tests/support/pattern.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace cijferwerf {

namespace {

enum class kind { number, sign, equals, open, close, word, stop };

struct token {
    kind is;
    std::string_view text;
    std::size_t at;      // in the text
    double value = 0;    // of a number
    double step = 0;     // of its last digit
    bool clock = false;  // a number written "9:05"
    bool rounds = false; // a word such as "ongeveer"
};

bool digit(char c) { return c >= '0' && c <= '9'; }
bool letter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80;
}

// The step of the last digit that counts: 0.01 of "3,14", 100 of "4.200".
double last_step(std::string_view number) {
    if (const auto comma = number.find(','); comma != number.npos)
        return std::pow(10, -static_cast<double>(number.size() - comma - 1));
    double step = 1;
    for (std::size_t i = number.size(); i > 1 && (number[i - 1] == '0' || number[i - 1] == '.'); --i)
        if (number[i - 1] == '0') step *= 10;
    return step;
}

class reader {
public:
    explicit reader(std::string_view text) : text_(text) {
        split();
        for (const token& each : tokens_) rounds_ = rounds_ || each.rounds;
    }

    checked_sums check() {
        checked_sums all;
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            if (tokens_[i].is != kind::equals) continue;
            const auto left = side_before(i);
            const auto right = side_from(i + 1);
            // "is" is an equals sign behind a sum only.
            if (!left || !right || (tokens_[i].text == "is" && left->terms < 2)) continue;
            if (!comparable(*left, *right)) continue;
            ++all.steps;
            if (!agree(*left, *right)) all.wrong.emplace_back(text_.substr(left->begin, right->end - left->begin));
        }
        return all;
    }

private:
    struct side {
        double value = 0;
        int terms = 0;
        std::string_view unit{};
        bool percent = false, clock = false, fraction = false;
        double step = 0; // of the digits of a single number
        std::size_t begin = 0, end = 0;
    };

    // ---- tokens ----

    void split() {
        for (std::size_t at = 0; at < text_.size();) {
            const char c = text_[at];
            if (c == ' ') {
                ++at;
            } else if (digit(c)) {
                at = number(at);
            } else if (c == '(' || c == ')') {
                push(c == '(' ? kind::open : kind::close, at, 1);
                ++at;
            } else if (c == '=' || text_.substr(at).starts_with("≈")) {
                push(kind::equals, at, c == '=' ? 1 : 3);
                tokens_.back().rounds = c != '=';
                at += c == '=' ? 1 : 3;
            } else if (text_.substr(at).starts_with("€")) {
                push(kind::word, at, 3);
                at += 3;
            } else if (text_.substr(at).starts_with("×")) {
                push(kind::sign, at, 2);
                at += 2;
            } else if (c == '%') {
                push(kind::word, at, 1);
                ++at;
            } else if (c == '+' || c == '-' || c == '/' || c == ':' || c == '^') {
                // A colon that is glued to what stands before it is one of the sentence.
                const bool glued =
                    c == ':' && at > 0 && text_[at - 1] != ' ' && (at + 1 == text_.size() || text_[at + 1] == ' ');
                push(glued ? kind::stop : kind::sign, at, 1);
                ++at;
            } else if (letter(c)) {
                at = word(at);
            } else {
                push(kind::stop, at, 1);
                ++at;
            }
        }
    }
    void push(kind is, std::size_t at, std::size_t length) { tokens_.push_back({is, text_.substr(at, length), at}); }

    // "3.400", "12,50", "5,-", "3/4", "9:05"; a mixed number comes apart and is put together in term().
    std::size_t number(std::size_t at) {
        std::size_t end = at;
        while (end < text_.size() && digit(text_[end])) ++end;
        const auto digits_at = [&](std::size_t from) {
            std::size_t n = 0;
            while (from + n < text_.size() && digit(text_[from + n])) ++n;
            return n;
        };
        while (end < text_.size() && text_[end] == '.' && digits_at(end + 1) == 3) end += 4;
        if (end < text_.size() && text_[end] == ',') {
            if (digits_at(end + 1) > 0)
                end += 1 + digits_at(end + 1);
            else if (end + 1 < text_.size() && text_[end + 1] == '-') {
                push(kind::number, at, end - at);
                tokens_.back().value = number_of(text_.substr(at, end - at)).value_or(0);
                tokens_.back().step = 1;
                return end + 2;
            }
        }
        if (end < text_.size() && text_[end] == ':' && digits_at(end + 1) == 2) {
            std::size_t clock = end + 3;
            if (clock < text_.size() && text_[clock] == ':' && digits_at(clock + 1) == 2) clock += 3;
            push(kind::number, at, clock - at);
            tokens_.back().value = number_of(text_.substr(at, clock - at)).value_or(0);
            tokens_.back().clock = true;
            return clock;
        }
        push(kind::number, at, end - at);
        token& made = tokens_.back();
        made.value = number_of(made.text).value_or(0);
        made.step = last_step(made.text);
        if (end < text_.size() && text_[end] == '/' && digits_at(end + 1) > 0) {
            const std::size_t under = digits_at(end + 1);
            const double denominator = number_of(text_.substr(end + 1, under)).value_or(1);
            made.text = text_.substr(at, end + 1 + under - at);
            made.value /= denominator;
            made.step = 0;
            return end + 1 + under;
        }
        for (const auto& [raised, power] : {std::pair{"²", 2}, std::pair{"³", 3}})
            if (text_.substr(end).starts_with(raised)) {
                made.value = std::pow(made.value, power);
                return end + 2;
            }
        return end;
    }
    std::size_t word(std::size_t at) {
        std::size_t end = at;
        while (end < text_.size() && (letter(text_[end]) || (end > at && digit(text_[end])))) ++end;
        const std::string_view found = text_.substr(at, end - at);
        const auto any_of = [&](auto... names) { return ((found == names) || ...); };
        if (any_of("x", "X"))
            push(kind::sign, at, 1);
        else if (any_of("is"))
            push(kind::equals, at, 2);
        else
            push(kind::word, at, end - at);
        tokens_.back().rounds =
            any_of("ongeveer", "Ongeveer", "afgerond", "Afgerond", "bijna", "rond", "Rond", "ruim", "af");
        return end;
    }

    // ---- expressions ----

    const token* get(std::size_t i) const { return i < tokens_.size() ? &tokens_[i] : nullptr; }
    bool is(std::size_t i, kind what) const { return i < tokens_.size() && tokens_[i].is == what; }
    bool is_word(std::size_t i, std::string_view what) const { return is(i, kind::word) && tokens_[i].text == what; }

    // A sign, or the words for one: ' ' for none. Moves past it.
    char sign(std::size_t& i) const {
        if (is(i, kind::sign)) {
            const char c = tokens_[i++].text[0];
            return c == '/' ? ':' : c == 'X' || c == '\xC3' ? 'x' : c;
        }
        if ((is_word(i, "delen") || is_word(i, "gedeeld")) && is_word(i + 1, "door")) return i += 2, ':';
        for (const auto& [name, c] : {std::pair{"plus", '+'}, std::pair{"keer", 'x'}, std::pair{"maal", 'x'}})
            if (is_word(i, name) && is(i + 1, kind::number)) return ++i, c;
        // "3/4 van 12", "5 % van 12"
        if (is_word(i, "van") && is(i + 1, kind::number) && i > 0 &&
            (is_word(i - 1, "%") || tokens_[i - 1].text.find('/') != std::string_view::npos))
            return ++i, 'x';
        return ' ';
    }

    // A number with its unit, or an expression in brackets.
    bool term(std::size_t& i, side& of, double& value) {
        bool euro = false;
        if (is_word(i, "€")) euro = true, ++i;
        if (is(i, kind::open)) {
            side inner;
            std::size_t from = i + 1;
            if (!expression(from, inner) || !is(from, kind::close)) return false;
            value = inner.value;
            of.terms += inner.terms;
            if (!inner.unit.empty()) of.unit = inner.unit;
            i = from + 1;
        } else if (is(i, kind::number)) {
            const token& here = tokens_[i++];
            value = here.value;
            of.step = here.step;
            of.clock = of.clock || here.clock;
            of.fraction = here.text.find('/') != std::string_view::npos;
            ++of.terms;
            // "1 3/8"
            if (is(i, kind::number) && tokens_[i].text.find('/') != std::string_view::npos && here.step >= 1 &&
                text_[tokens_[i].at - 1] == ' ' && value == std::floor(value)) {
                value += tokens_[i++].value;
                of.step = 0;
            }
            of.end = tokens_[i - 1].at + tokens_[i - 1].text.size();
        } else
            return false;
        if (is(i, kind::sign) && tokens_[i].text == "^" && is(i + 1, kind::number)) {
            value = std::pow(value, tokens_[i + 1].value);
            i += 2;
        }
        if (euro) of.unit = "€";
        unit(i, of, value);
        // "2 uur en 46 minuten"
        std::size_t next = is_word(i, "en") ? i + 1 : i;
        if (const auto large = find_unit(of.unit); large && is(next, kind::number)) {
            side part;
            double more = 0;
            if (term(next, part, more))
                if (const auto small = find_unit(part.unit);
                    small && small->ladder == large->ladder && small->size < large->size) {
                    value += more * small->size / large->size;
                    i = next;
                }
        }
        return true;
    }
    // Words behind a number, as far as the sum goes on behind them.
    void unit(std::size_t& i, side& of, double& value) const {
        if (is_word(i, "%")) {
            ++i;
            if (is_word(i, "van") && is(i + 1, kind::number))
                value /= 100;
            else
                of.percent = true;
            of.end = tokens_[i - 1].at + 1;
            return;
        }
        std::size_t end = i;
        while (is(end, kind::word) && end < i + 4) {
            std::size_t next = end;
            if (sign(next) != ' ') break;
            ++end;
        }
        if (end == i) return;
        std::size_t next = end;
        if (find_unit(tokens_[i].text) || is(end, kind::equals) || is(end, kind::close) || is(end, kind::sign)) {
            if (!is(end, kind::equals) && !is(end, kind::close) && sign(next) == ' ') end = i + 1;
            of.unit = tokens_[i].text;
            of.end = tokens_[i].at + tokens_[i].text.size();
            i = end;
        }
    }
    bool product(std::size_t& i, side& of, double& value) {
        if (!term(i, of, value)) return false;
        for (;;) {
            std::size_t next = i;
            const char c = sign(next);
            double factor = 0;
            if ((c != 'x' && c != ':') || !term(next, of, factor)) return true;
            value = c == 'x' ? value * factor : value / factor;
            i = next;
        }
    }
    bool expression(std::size_t& i, side& of) {
        if (i < tokens_.size()) of.begin = tokens_[i].at;
        if (!product(i, of, of.value)) return false;
        for (;;) {
            std::size_t next = i;
            const char c = sign(next);
            double other = 0;
            if ((c != '+' && c != '-') || !product(next, of, other)) return true;
            of.value = c == '+' ? of.value + other : of.value - other;
            i = next;
        }
    }
    // Whether a sum that could not be read from its beginning has this token before what could be read.
    bool goes_on_from(std::size_t i, const side& found) const {
        const bool part =
            is_word(i, "van") && i > 0 && (!is(i - 1, kind::word) || is_word(i - 1, "%") || is_word(i - 1, "deel"));
        if (is(i, kind::sign) || is(i, kind::number) || part || is_word(i, "door")) return true;
        const std::size_t unit = i > 0 && is_word(i, "en") ? i - 1 : i;
        return found.terms == 1 && find_unit(tokens_[unit].text);
    }
    // The longest expression that ends before the equals sign.
    std::optional<side> side_before(std::size_t equals) {
        std::size_t first = equals;
        while (first > 0 && tokens_[first - 1].is != kind::stop && tokens_[first - 1].is != kind::equals) --first;
        for (std::size_t from = first; from < equals; ++from) {
            if (!is(from, kind::number) && !is(from, kind::open) && !is_word(from, "€")) continue;
            side found;
            std::size_t i = from;
            if (!expression(i, found) || i != equals) continue;
            // The rest of a sum that could not be read.
            if (from > 0 && goes_on_from(from - 1, found)) return {};
            return found;
        }
        return {};
    }
    std::optional<side> side_from(std::size_t i) {
        while (i < tokens_.size() &&
               (tokens_[i].rounds || is_word(i, "dus") || is_word(i, "nog") || is_word(i, "precies")))
            ++i;
        side found;
        if (is(i, kind::sign) && tokens_[i].text == "-" && is(i + 1, kind::number)) {
            ++i;
            if (!expression(i, found) || found.terms != 1) return {};
            found.value = -found.value;
        } else if (!expression(i, found))
            return {};
        std::size_t next = i;
        const char c = sign(next);
        if (c != ' ' && (c != '-' || is(next, kind::stop))) return {}; // it goes on with what is no number
        return found;
    }

    // ---- judging ----

    static bool comparable(const side& left, const side& right) {
        if (left.clock != right.clock) return false;
        if (left.terms > 1 || right.terms > 1) return true;
        if (left.percent != right.percent) return (left.percent ? right : left).fraction;
        if (left.unit.empty() || right.unit.empty() || left.unit == right.unit) return true;
        const auto from = find_unit(left.unit), to = find_unit(right.unit);
        return from && to && from->ladder == to->ladder;
    }
    bool agree(const side& left, const side& right) const {
        double slack = 1e-9 * std::max({1.0, std::abs(left.value), std::abs(right.value)});
        if (rounds_ && right.step > 0) slack += right.step / 2;
        const auto near = [&](double a, double b) { return std::abs(a - b) <= slack; };
        if (near(left.value, right.value)) return true;
        if (left.percent != right.percent && near(left.percent ? left.value / 100 : left.value * 100, right.value))
            return true;
        const auto from = find_unit(left.unit), to = find_unit(right.unit);
        return from && to && from->ladder == to->ladder && near(left.value * from->size / to->size, right.value);
    }

    std::string_view text_;
    std::vector<token> tokens_;
    bool rounds_ = false;
};

} // namespace

std::optional<unit_size> find_unit(std::string_view name) {
    static const auto all = [] {
        std::map<std::string, unit_size, std::less<>> found{
            {"uur", {5, 3600}},   {"uren", {5, 3600}},  {"minuut", {5, 60}}, {"minuten", {5, 60}},  {"min", {5, 60}},
            {"seconde", {5, 1}},  {"seconden", {5, 1}}, {"sec", {5, 1}},     {"dagen", {5, 86400}}, {"cent", {6, 1}},
            {"eurocent", {6, 1}}, {"euro", {6, 100}},   {"€", {6, 100}},     {"Wh", {7, 1}},        {"kWh", {7, 1000}},
            {"watt", {8, 1}},     {"W", {8, 1}},        {"kW", {8, 1000}},   {"l", {2, 1e3}},       {"ml", {2, 1}},
            {"cl", {2, 10}},      {"dl", {2, 100}},     {"L", {2, 1e3}},     {"ton", {3, 1e9}},     {"kilo", {3, 1e6}}};
        const auto add = [&](const auto& ladder) {
            for (const eenheid& each : ladder) {
                const unit_size size{static_cast<int>(each.soort), std::pow(10, each.macht)};
                found.try_emplace(std::string(each.teken), size);
                found.try_emplace(std::string(each.naam), size);
                for (const auto& [raised, plain] : {std::pair{"²", "2"}, std::pair{"³", "3"}})
                    if (each.teken.ends_with(raised))
                        found.try_emplace(std::string(each.teken.substr(0, each.teken.size() - 2)) + plain, size);
            }
        };
        add(lengtematen), add(oppervlaktematen), add(landmaten), add(gewichtsmaten), add(inhoudsmaten),
            add(kubieke_maten);
        found.erase("dag"); // a day, too
        return found;
    }();
    const auto found = all.find(name);
    if (found == all.end()) return {};
    return found->second;
}

std::optional<amount> amount_of(std::string_view answer) {
    const auto number = number_of(answer);
    if (!number) return {};
    std::string rest; // without the number and its blanks
    for (const char c : answer)
        if (!digit(c) && std::string_view(" .,/:-").find(c) == std::string_view::npos) rest += c;
    if (rest == "%") return amount{*number / 100, ""};
    if (const auto unit = find_unit(rest.starts_with("€") ? "€" : rest))
        return amount{*number * unit->size, "ladder " + std::to_string(unit->ladder)};
    return amount{*number, rest};
}

std::string worth(std::string_view answer) {
    const auto found = amount_of(answer);
    return found ? std::to_string(found->value) + found->of : std::string(kaal(answer));
}

checked_sums check_sums(std::string_view text) { return reader(text).check(); }

} // namespace cijferwerf
