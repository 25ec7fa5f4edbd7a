// The words of a drawing that are still to be seen when all is drawn, and where each leaves ink. Judges nothing.
#pragma once

#include "runtime/picture_box.h"

namespace cijferwerf {

struct ink {
    double left, top, right, bottom; // from the top of its digits to its base line, or to the end of its tails
    std::string word;
    kleur colour = zwart;
    double size = 0;           // points
    std::size_t operation = 0; // that printed it

    double middle() const { return (left + right) / 2; }
    bool meets(const ink& other) const {
        constexpr double slack = 8; // half a pixel
        return left + slack < other.right && other.left + slack < right && top + slack < other.bottom &&
               other.top + slack < bottom;
    }
    bool within(double x, double y, double width, double height) const {
        return left >= x && right <= x + width && top >= y && bottom <= y + height;
    }
};

inline void add_words(std::vector<ink>& to, const text_op& text, std::size_t operation) {
    constexpr double base_line = 0.905, tail = 0.21;
    const double em = text.size * 20;
    for (std::size_t at = text.text.find_first_not_of(' '); at != std::string::npos;) {
        const std::size_t end = std::min(text.text.find(' ', at), text.text.size());
        const std::string word(text.text.substr(at, end - at));
        const bool tailed = word.find_first_of("gjpqyQ,;()") != std::string::npos;
        const double left = text.x + text_width(text.text.substr(0, at), text.size);
        const bool dots = word.find_first_not_of('.') == std::string::npos;
        const double top = text.y + (dots ? em * (base_line - 0.11) : digit_top(text.size));
        to.push_back({left, top, left + text_width(word, text.size), text.y + em * (base_line + (tailed ? tail : 0)),
                      word, text.colour, text.size, operation});
        at = text.text.find_first_not_of(' ', end);
    }
}

// Filled boxes and pictures cover what lies beneath.
inline std::vector<ink> visible_words(const drawing& drawn) {
    std::vector<ink> words;
    for (std::size_t i = 0; i < drawn.operations().size(); ++i) {
        const drawing_op& operation = drawn.operations()[i];
        if (const auto* text = std::get_if<text_op>(&operation)) add_words(words, *text, i);
        if (const auto* box = std::get_if<box_op>(&operation); box != nullptr && box->filled)
            std::erase_if(words, [&](const ink& word) { return word.within(box->x, box->y, box->width, box->height); });
        if (std::holds_alternative<picture_op>(operation)) words.clear();
    }
    return words;
}

} // namespace cijferwerf
