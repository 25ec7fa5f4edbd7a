#include "generators/gedeeld/tekening_macht.h"

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

namespace {

constexpr double exponent_size = 0.6; // of the base

// Takes the text apart into bases and exponents and hands them on in turn.
template<class Base, class Exponent>
void lees_machten(std::string_view text, Base base, Exponent exponent) {
    while (!text.empty()) {
        const std::string_view plain = text.substr(0, text.find('^'));
        if (!plain.empty()) base(plain);
        text.remove_prefix(plain.size());
        if (text.empty()) return;
        text.remove_prefix(1);
        const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
        exponent(digits);
        text.remove_prefix(digits.size());
    }
}

} // namespace

int teken_met_machten(drawing& on, int x, int y, std::string_view text) {
    std::string gelezen;
    lees_machten(
        text, [&](std::string_view base) { gelezen += base; },
        [&](std::string_view exponent) { gelezen.append(" tot de macht ").append(exponent); });
    const verteld_als macht(on, gelezen);
    const double points = on.text_size;
    // The exponent's digits begin a little above those of the base.
    const int raised = y + digit_top(points) - digit_top(points * exponent_size) - static_cast<int>(points * 2);
    on.move_to(x, y);
    lees_machten(
        text, [&](std::string_view base) { on.print_at(on.x(), y, base); },
        [&](std::string_view exponent) {
            on.text_size = points * exponent_size;
            on.print_at(on.x(), raised, exponent);
            on.text_size = points;
        });
    on.move_to(on.x(), y);
    return on.x();
}

int breedte_met_machten(std::string_view text, double points) {
    int width = 0;
    lees_machten(
        text, [&](std::string_view base) { width += text_width(base, points); },
        [&](std::string_view exponent) { width += text_width(exponent, points * exponent_size); });
    return width;
}

} // namespace cijferwerf
