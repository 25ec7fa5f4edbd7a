#include "tests/support/seen.h"

#include "tests/support/ink.h"

#include <cmath>

namespace cijferwerf {

double decimal(std::string_view shown) {
    std::string text(shown);
    std::erase_if(text, [](char c) { return c == '.' || c == ' '; });
    std::ranges::replace(text, ',', '.');
    return lees_getal(text);
}

drawing explained(const oefening& made) {
    drawing board = made.plaatje;
    teken_opdrachten(board, made.uitlegopdrachten);
    return board;
}

std::string joined(const tekstregels& lines) {
    std::string all;
    for (const std::string line : lines)
        if (line != leeg) all += line + ' ';
    return all;
}

seen::seen(const oefening& exercise)
    : made(exercise),
      question(joined(exercise.vraagregels)),
      explanation(joined(exercise.uitlegregels)) {
    for (const plakregel& line : made.uitlegregels)
        if (line != leeg) last = line;
    look_at(made.plaatje);
    right = answer(right_place());
}

std::string seen::feedback(int which) const {
    const std::array all{&made.foutregels_2, &made.foutregels_3, &made.foutregels_4};
    return joined(*all.at(static_cast<std::size_t>(oefening::getoond_antwoord(which, right_place()) - 2)));
}

std::array<std::string, 4> seen::options() const {
    std::array<std::string, 4> all = answers();
    const auto has_digit = [](const std::string& text) { return text.find_first_of("0123456789") != text.npos; };
    if (std::ranges::any_of(all, has_digit)) return all;
    const std::vector<std::string> rows = rows_of(made.plaatje);
    for (std::string& answer : all)
        for (const std::string& row : rows)
            if (row.starts_with(answer) && row.size() > answer.size() &&
                std::string_view(" .:").find(row[answer.size()]) < 3) {
                answer = row.substr(std::min(row.find_first_not_of(" .:", answer.size()), row.size()));
                break;
            }
    return all;
}

std::string seen::sheet() const {
    std::string all = question;
    for (const std::string& word : words) all.append("| ").append(kaal(std::string_view(word))).append(" ");
    return all;
}

void seen::look_at(const drawing& drawn) {
    texts = all<text_op>(drawn);
    words.clear();
    for (const text_op& text : texts) words.emplace_back(text.text);
    blocks = all<box_op>(drawn);
    std::erase_if(blocks, [](const box_op& box) { return !box.filled; });
}

// ---- rows ----

namespace {

constexpr double far_apart = 700;

bool is_number(const ink& word) { return word.word.find_first_not_of("0123456789") == std::string::npos; }

struct bar {
    double left, right, y;
};

// The short horizontal lines.
std::vector<bar> bars_of(const drawing& drawn) {
    std::vector<bar> bars;
    for (const auto& [from, to, pen] : all<line_op>(drawn))
        if (from.y == to.y)
            bars.push_back({double(std::min(from.x, to.x)), double(std::max(from.x, to.x)), double(from.y)});
    for (const box_op& box : all<box_op>(drawn))
        if (box.filled && box.height <= 30)
            bars.push_back({double(box.x), double(box.x + box.width), box.y + box.height / 2.0});
    std::erase_if(bars, [](const bar& b) { return b.right - b.left > far_apart; });
    return bars;
}

} // namespace

std::vector<std::string> rows_of(const drawing& drawn) {
    struct item {
        double left, right, middle;
        std::string text;
    };
    std::vector<item> items;
    std::vector<ink> words = visible_words(drawn);
    std::vector<bar> bars = bars_of(drawn);
    for (const ink& w : words)
        if (w.word == "---") bars.push_back({w.left, w.right, w.bottom - w.size * 20 * 0.275});
    const auto take = [&](auto holds) {
        const auto found = std::ranges::find_if(words, [&](const ink& w) { return is_number(w) && holds(w); });
        ink taken{};
        if (found != words.end()) {
            taken = *found;
            words.erase(found);
        }
        return taken;
    };
    for (const bar& b : bars) {
        const auto at_middle = [&](const ink& w) { return std::abs(w.middle() - (b.left + b.right) / 2) < 65; };
        const ink over = take([&](const ink& w) { return at_middle(w) && std::abs(b.y - w.bottom) < 160; });
        if (over.word.empty()) continue;
        const ink under = take([&](const ink& w) { return at_middle(w) && std::abs(w.top - b.y) < 160; });
        if (under.word.empty()) continue;
        const ink wholes = take([&](const ink& w) {
            return w.right <= b.left + 15 && w.right > b.left - 200 && w.top < b.y && w.bottom > b.y;
        });
        items.push_back({wholes.word.empty() ? b.left : wholes.left, b.right, b.y,
                         (wholes.word.empty() ? "" : wholes.word + " ") + over.word + "/" + under.word});
    }
    std::erase_if(words, [](const ink& w) { return w.word == "---"; });
    for (const ink& w : words) {
        const double middle = w.top + w.size * 20 * 0.35;
        const auto base = std::ranges::find_if(words, [&](const ink& other) {
            return is_number(w) && w.size < other.size * 0.8 && w.left > other.right - 40 &&
                   w.left < other.right + 120 && middle < other.top + other.size * 20 * 0.3 &&
                   middle > other.top - other.size * 20 * 0.3;
        });
        if (base == words.end())
            items.push_back({w.left, w.right, middle, w.word});
        else
            items.push_back({w.left, w.right, base->top + base->size * 20 * 0.35, "^" + w.word});
    }
    std::ranges::sort(items, {}, &item::middle);
    std::vector<std::string> rows;
    for (std::size_t first = 0; first < items.size();) {
        std::size_t end = first;
        while (end < items.size() && items[end].middle - items[first].middle < 60) ++end;
        std::ranges::sort(items.begin() + static_cast<std::ptrdiff_t>(first),
                          items.begin() + static_cast<std::ptrdiff_t>(end), {}, &item::left);
        for (std::size_t i = first; i < end; ++i)
            if (i > first && items[i].left - items[i - 1].right < far_apart)
                rows.back() += (items[i].text.starts_with('^') ? "" : " ") + items[i].text;
            else
                rows.push_back(items[i].text);
        first = end;
    }
    return rows;
}

} // namespace cijferwerf
