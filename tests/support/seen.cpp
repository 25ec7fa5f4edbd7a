#include "tests/support/seen.h"

#include "tests/support/rows_of.h"

namespace cijferwerf {

double decimal(std::string text) {
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
    texts.clear();
    words.clear();
    blocks.clear();
    for (const drawing_op& operation : drawn.operations()) {
        if (const auto* text = std::get_if<text_op>(&operation)) {
            texts.push_back(*text);
            words.push_back(text->text);
        }
        if (const auto* box = std::get_if<box_op>(&operation); box != nullptr && box->filled) blocks.push_back(*box);
    }
}

} // namespace cijferwerf
