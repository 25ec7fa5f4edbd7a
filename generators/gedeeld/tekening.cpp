#include "generators/gedeeld/tekening.h"

#include "generators/gedeeld/telwoord.h"
#include "runtime/number_text.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace cijferwerf {

std::string in_stappen(double waarde, double stap) {
    const int tienden = heel(10 * waarde / stap);
    return tienden % 10 == 0 ? telwoord(tienden / 10) : regel(kaal(komma(tienden, 1)));
}

point op_cirkel(point midden, double straal, double graden) {
    const double hoek = graden * std::numbers::pi / 180;
    return {midden.x + heel(straal * std::cos(hoek)), midden.y - heel(straal * std::sin(hoek))};
}

void druk_om(drawing& on, point midden, std::string_view tekst) {
    on.print_centred(midden.x, midden.y - halve_regel(on.text_size), tekst);
}

void teken_pijl(drawing& on, point van, point naar, kleur kleur_pijl) {
    constexpr double half_shaft = 28, half_head = 85, longest_head = 180;
    const zelfde_stand bewaard(on);
    const double dx = naar.x - van.x, dy = naar.y - van.y, length = std::max(std::hypot(dx, dy), 1.0);
    const double head = std::min(longest_head, length / 2);
    const auto at = [&](double along, double aside) {
        return point{van.x + heel((dx * along - dy * aside) / length),
                     van.y + heel((dy * along + dx * aside) / length)};
    };
    const std::array omtrek{naar,
                            at(length - head, half_head),
                            at(length - head, half_shaft),
                            at(0, half_shaft),
                            at(0, -half_shaft),
                            at(length - head, -half_shaft),
                            at(length - head, -half_head)};
    on.polygon(omtrek, kleur_pijl, true);
    if (kleur_pijl != zwart) on.polygon(omtrek, zwart, false);
}

void teken_maat(drawing& on, point van, point naar, std::string_view tekst) {
    constexpr int half_dash = 45, room = 35;
    const zelfde_stand bewaard(on);
    const double dx = naar.x - van.x, dy = naar.y - van.y, length = std::max(std::hypot(dx, dy), 1.0);
    const point across{heel(-dy / length * half_dash), heel(dx / length * half_dash)};
    for (const point end : {van, naar})
        on.line(end.x - across.x, end.y - across.y, end.x + across.x, end.y + across.y, on.fore_colour);

    const int half_width = text_width(tekst, on.text_size) / 2, half_height = heel(on.text_size * 20 * 0.36);
    const point midden{(van.x + naar.x) / 2, (van.y + naar.y) / 2};
    const bool flat = van.y == naar.y, upright = van.x == naar.x;
    const int half_gap = room + (flat ? half_width : half_height);
    if ((flat || upright) && half_gap < length / 2 - room) {
        const point gap{heel(dx / length * half_gap), heel(dy / length * half_gap)};
        on.line(van.x, van.y, midden.x - gap.x, midden.y - gap.y, on.fore_colour);
        on.line(midden.x + gap.x, midden.y + gap.y, naar.x, naar.y, on.fore_colour);
        druk_om(on, midden, tekst);
        return;
    }
    on.line(van.x, van.y, naar.x, naar.y, on.fore_colour);
    const int aside = half_width + half_dash + room;
    if (flat)
        druk_om(on, {midden.x, midden.y + half_dash + room + half_height}, tekst);
    else if (upright)
        druk_om(on, {midden.x + (van.y < naar.y ? aside : -aside), midden.y}, tekst);
    else
        druk_om(on, {midden.x + room + half_width, midden.y + half_height + room}, tekst);
}

} // namespace cijferwerf
