#include "tests/support/sums.h"

#include "generators/gedeeld/maten.h"
#include "tests/support/pattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace cijferwerf {

namespace {

enum class kind { number, sign, equals, open, close, word, stop };

struct token {
    kind is;
    std::string_view text;
    double value = 0; // of a number

    bool has(char c) const { return text.find(c) != text.npos; }
    // A word or sign after which digits may be left out.
    bool rounds() const {
        constexpr std::array words{"≈",     "ongeveer", "Ongeveer", "afgerond", "Afgerond",
                                   "bijna", "rond",     "Rond",     "ruim",     "af"};
        return is != kind::number && std::ranges::find(words, text) != words.end();
    }
    // The step of the last digit that counts: 0.01 of "3,14", 100 of "4.200".
    double step() const {
        if (is != kind::number || has('/') || has(':')) return 0;
        if (const auto comma = text.find(','); comma != text.npos)
            return std::pow(10, -static_cast<double>(text.size() - comma - 1));
        const auto last = text.find_last_not_of("0.");
        const std::string_view zeros = text.substr(last == text.npos ? 1 : last + 1);
        return std::pow(10, std::ranges::count(zeros, '0'));
    }
};

bool digit(char c) { return c >= '0' && c <= '9'; }
bool letter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80;
}

// One side of an equals sign, or a part of it.
struct side {
    std::size_t begin, end; // its tokens
    double value = 0;
    int terms = 0;
    std::string_view unit = {}; // the last one
    bool percent = false;
    double step = 0; // of its last number

    // What the two make, of which this one comes first.
    side with(const side& next, char sign) const {
        side both = next;
        both.begin = begin;
        both.value = sign == '+'   ? value + next.value
                     : sign == '-' ? value - next.value
                     : sign == 'x' ? value * next.value
                                   : value / next.value;
        both.terms += terms;
        if (next.unit.empty()) both.unit = unit;
        both.percent |= percent;
        return both;
    }
};

class reader {
public:
    explicit reader(std::string_view text) : text_(text) {
        for (std::size_t at = 0; at < text_.size();) split(at);
        rounds_ = std::ranges::any_of(tokens_, &token::rounds);
    }

    checked_sums check() const {
        checked_sums all;
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            if (!is(i, kind::equals)) continue;
            const auto left = side_before(i), right = side_from(i + 1);
            // "is" is an equals sign behind a sum only.
            if (!left || !right || (tokens_[i].text == "is" && left->terms < 2) || !comparable(*left, *right)) continue;
            ++all.steps;
            const std::string_view one(tokens_[left->begin].text.data(), end_of(*left));
            const std::string_view other(tokens_[right->begin].text.data(), end_of(*right));
            if (one == other || !agree(*left, *right))
                all.wrong.emplace_back(tokens_[left->begin].text.data(), end_of(*right));
        }
        return all;
    }

private:
    // ---- tokens ----

    void split(std::size_t& at) {
        static constexpr std::pair<std::string_view, kind> symbols[]{
            {"(", kind::open}, {")", kind::close}, {"=", kind::equals}, {"≈", kind::equals},
            {"€", kind::word}, {"%", kind::word},  {"×", kind::sign},   {"+", kind::sign},
            {"-", kind::sign}, {"/", kind::sign},  {":", kind::sign},   {"^", kind::sign}};
        const std::string_view rest = text_.substr(at);
        const auto push = [&](kind is, std::size_t length) {
            tokens_.push_back({is, rest.substr(0, length)});
            at += length;
        };
        if (digit(rest[0])) return number(at);
        for (const auto& [symbol, is] : symbols) {
            if (!rest.starts_with(symbol)) continue;
            // A colon that is glued to what stands before it is one of the sentence.
            const bool glued = rest[0] == ':' && at > 0 && text_[at - 1] != ' ' && (rest.size() == 1 || rest[1] == ' ');
            return push(glued ? kind::stop : is, symbol.size());
        }
        std::size_t length = 0;
        while (length < rest.size() && (letter(rest[length]) || (length > 0 && digit(rest[length])))) ++length;
        const std::string_view word = rest.substr(0, length);
        if (length > 0)
            return push(word == "x" || word == "X" ? kind::sign : word == "is" ? kind::equals : kind::word, length);
        if (rest[0] == ' ')
            ++at;
        else
            push(kind::stop, 1);
    }
    // "3.400", "12,50", "5,-", "1 3/4", "9:05", "2³".
    void number(std::size_t& at) {
        const std::size_t from = at;
        const double value = take_number(text_, at).value();
        tokens_.push_back({kind::number, text_.substr(from, at - from), value});
        if (text_.substr(at).starts_with(",-")) at += 2;
        for (const auto& [raised, power] : {std::pair{"²", 2}, std::pair{"³", 3}})
            if (text_.substr(at).starts_with(raised)) {
                tokens_.back().value = std::pow(value, power);
                at += 2;
            }
    }

    // ---- expressions: each moves i past what it reads ----

    bool is(std::size_t i, kind what) const { return i < tokens_.size() && tokens_[i].is == what; }
    bool is_word(std::size_t i, std::string_view what) const { return is(i, kind::word) && tokens_[i].text == what; }

    // A sign, or the words for one: ' ' for none.
    char sign(std::size_t& i) const {
        if (is(i, kind::sign)) {
            const char c = tokens_[i++].text[0];
            return c == '/' ? ':' : c == 'X' || c == '\xC3' ? 'x' : c;
        }
        if ((is_word(i, "delen") || is_word(i, "gedeeld")) && is_word(i + 1, "door")) return i += 2, ':';
        if (!is(i + 1, kind::number)) return ' ';
        for (const auto& [name, c] : {std::pair{"plus", '+'}, std::pair{"keer", 'x'}, std::pair{"maal", 'x'}})
            if (is_word(i, name)) return ++i, c;
        // "3/4 van 12", "5 % van 12"
        if (is_word(i, "van") && i > 0 && (is_word(i - 1, "%") || tokens_[i - 1].has('/'))) return ++i, 'x';
        return ' ';
    }

    // Products joined by + and -, or terms joined by x and :, as far as they go.
    std::optional<side> expression(std::size_t& i, bool product = false) const {
        const auto part = [&](std::size_t& at) { return product ? term(at) : expression(at, true); };
        auto all = part(i);
        while (all) {
            std::size_t next = i;
            const char c = sign(next);
            if (std::string_view(product ? "x:" : "+-").find(c) > 1) break;
            const auto more = part(next);
            if (!more) break;
            all = all->with(*more, c);
            i = next;
        }
        return all;
    }
    // A number with its unit, or an expression in brackets.
    std::optional<side> term(std::size_t& i) const {
        side found{i, i};
        std::size_t at = i + is_word(i, "€");
        if (is(at, kind::open)) {
            const auto inner = expression(++at);
            if (!inner || !is(at, kind::close)) return {};
            found = *inner;
        } else if (is(at, kind::number)) {
            const token& here = tokens_[at];
            found.value = here.value;
            found.terms = 1;
            found.step = here.step();
        } else
            return {};
        ++at;
        if (is(at, kind::sign) && tokens_[at].text == "^" && is(at + 1, kind::number)) {
            found.value = std::pow(found.value, tokens_[at + 1].value);
            at += 2;
        }
        if (is_word(i, "€")) found.unit = "€";
        found.begin = i;
        found.end = at;
        unit(at, found);
        i = at;
        return found;
    }
    // Words behind a number, as far as the sum goes on behind them.
    void unit(std::size_t& i, side& of) const {
        if (is_word(i, "%")) {
            of.percent = !(is_word(++i, "van") && is(i + 1, kind::number));
            if (!of.percent) of.value /= 100;
            of.end = i;
            return;
        }
        const auto goes_on = [&](std::size_t at) { return sign(at) != ' '; };
        std::size_t end = i;
        while (is(end, kind::word) && !goes_on(end)) ++end;
        if (end == i) return;
        const bool ends = is(end, kind::equals) || is(end, kind::close);
        if (!find_unit(tokens_[i].text) && !ends && !is(end, kind::sign)) return;
        of.unit = tokens_[i].text;
        of.end = i + 1;
        i = ends || goes_on(end) ? end : i + 1;
    }

    // ---- sides ----

    // The longest expression that ends before the equals sign, unless it is the rest of a sum that could not be read.
    std::optional<side> side_before(std::size_t equals) const {
        std::size_t first = equals;
        while (first > 0 && !is(first - 1, kind::stop) && !is(first - 1, kind::equals)) --first;
        for (std::size_t from = first; from < equals; ++from) {
            if (!is(from, kind::number) && !is(from, kind::open) && !is_word(from, "€")) continue;
            std::size_t i = from;
            const auto found = expression(i);
            if (!found || i != equals) continue;
            if (from > 0 && goes_on_from(from - 1, *found)) return {};
            return found;
        }
        return {};
    }
    bool goes_on_from(std::size_t i, const side& found) const {
        const bool part =
            is_word(i, "van") && i > 0 && (!is(i - 1, kind::word) || is_word(i - 1, "%") || is_word(i - 1, "deel"));
        if (is(i, kind::sign) || is(i, kind::number) || part || is_word(i, "door")) return true;
        return found.terms == 1 && find_unit(tokens_[i > 0 && is_word(i, "en") ? i - 1 : i].text);
    }
    std::optional<side> side_from(std::size_t i) const {
        while (i < tokens_.size() && tokens_[i].rounds()) ++i;
        return expression(i);
    }
    const char* end_of(const side& of) const {
        const std::string_view last = tokens_[of.end - 1].text;
        return last.data() + last.size();
    }

    // ---- judging ----

    static bool comparable(const side& left, const side& right) {
        if (left.terms > 1 || right.terms > 1) return true;
        if (left.unit.empty() || right.unit.empty() || left.unit == right.unit) return true;
        const auto from = find_unit(left.unit), to = find_unit(right.unit);
        return from && to && from->ladder == to->ladder;
    }
    bool agree(const side& left, const side& right) const {
        double slack = 1e-9 * std::max({1.0, std::abs(left.value), std::abs(right.value)});
        if (rounds_) slack += right.step / 2;
        const auto near = [&](double a) { return std::abs(a - right.value) <= slack; };
        const auto from = find_unit(left.unit), to = find_unit(right.unit);
        return near(left.value) || (left.percent != right.percent && near(left.value * (left.percent ? 0.01 : 100))) ||
               (from && to && from->ladder == to->ladder && near(left.value * from->size / to->size));
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
