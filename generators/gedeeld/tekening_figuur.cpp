#include "generators/gedeeld/tekening_figuur.h"

#include "generators/gedeeld/telwoord.h"

#include "runtime/stop_run.h"

#include <algorithm>

namespace cijferwerf {

int roosterfiguur::omtrek() const {
    int som = 0;
    for (std::size_t i = 0; i < hoeken_.size(); ++i) {
        const point &van = hoeken_[i], &naar = hoeken_[(i + 1) % hoeken_.size()];
        if (van.x != naar.x && van.y != naar.y) stop_run("the perimeter of a figure with a slanting side");
        som += std::abs(naar.x - van.x) + std::abs(naar.y - van.y);
    }
    return som;
}

int roosterfiguur::halve_hokjes() const {
    int som = 0;
    for (std::size_t i = 0; i < hoeken_.size(); ++i) {
        const point &van = hoeken_[i], &naar = hoeken_[(i + 1) % hoeken_.size()];
        som += van.x * naar.y - naar.x * van.y;
    }
    return std::abs(som);
}

int roosterfiguur::oppervlakte() const {
    if (halve_hokjes() % 2 != 0) stop_run("a figure with half a square left");
    return halve_hokjes() / 2;
}

roosterfiguur roosterfiguur::verschoven(int rechts, int omlaag) const {
    roosterfiguur elders = *this;
    for (point& hoek : elders.hoeken_) hoek = {hoek.x + rechts, hoek.y + omlaag};
    return elders;
}

void roosterfiguur::teken(drawing& on, const rooster& op, kleur vulling) const {
    const zelfde_stand bewaard(on);
    std::vector<point> hoeken;
    hoeken.reserve(hoeken_.size());
    for (const point& hoek : hoeken_) hoeken.push_back(op.hoek(hoek));
    on.polygon(hoeken, vulling, true);
    teken_rand(on, op);
}

void roosterfiguur::teken_rand(drawing& on, const rooster& op) const {
    const zelfde_stand bewaard(on, 2);
    for (std::size_t i = 0; i < hoeken_.size(); ++i) {
        const point van = op.hoek(hoeken_[i]), naar = op.hoek(hoeken_[(i + 1) % hoeken_.size()]);
        on.line(van.x, van.y, naar.x, naar.y, zwart);
    }
}

std::string roosterfiguur::rand() const {
    std::string zin;
    zin.reserve(30 * hoeken_.size());
    for (std::size_t i = 0; i < hoeken_.size(); ++i) {
        const point &van = hoeken_[i], &naar = hoeken_[(i + 1) % hoeken_.size()];
        const int opzij = naar.x - van.x, omlaag = naar.y - van.y;
        if (i > 0) zin += ", ";
        if (opzij != 0) zin.append(telwoord(std::abs(opzij))).append(opzij > 0 ? " naar rechts" : " naar links");
        if (opzij != 0 && omlaag != 0) zin += " met ";
        if (omlaag != 0) zin.append(telwoord(std::abs(omlaag))).append(omlaag > 0 ? " omlaag" : " omhoog");
    }
    return zin;
}

void teken_rooster(drawing& on, const rooster& op, const std::vector<gekleurde_figuur>& figuren) {
    for (int nummer = 0; const auto& [figuur, vulling] : figuren)
        vertel(on, "De ", rangtelwoord(++nummer), " figuur is ", woord(vulling),
               ". In hokjes loopt de rand: ", figuur.rand(), ".");
    const zelfde_stand bewaard(on);
    for (const auto& [figuur, vulling] : figuren) figuur.teken(on, op, vulling);
    const point eind = op.hoek({op.breed, op.hoog});
    for (int i = 0; i <= op.breed; ++i) on.line(op.hoek({i, 0}).x, op.oorsprong.y, op.hoek({i, 0}).x, eind.y, grijs);
    for (int i = 0; i <= op.hoog; ++i) on.line(op.oorsprong.x, op.hoek({0, i}).y, eind.x, op.hoek({0, i}).y, grijs);
    for (const auto& each : figuren) each.figuur.teken_rand(on, op);
}

namespace {

constexpr int maatlijn = 120; // from an edge to the line that tells its measure

// The largest scale, in twips to a unit, at which so much fits in so many.
double schaal_voor(int breed, double eenheden_breed, int hoog, double eenheden_hoog) {
    return std::min(breed / eenheden_breed, hoog / eenheden_hoog);
}

// From an edge to the upright line that tells its height, so that the text in its gap clears the edge.
int naast_hoogte(const drawing& on, std::string_view maat) {
    return std::max(maatlijn, text_width(maat, on.text_size) / 2 + 60);
}

} // namespace

void teken_doos(drawing& on, const vlak& binnen, int breedte, int diepte, int hoogte, std::string_view achter) {
    constexpr double naar_rechts = 0.5, omhoog = 0.38; // of what lies behind, per unit of depth
    const auto maat = [&](int waarde) { return plak_even({kaal(waarde), achter}); };
    vertel(on, "Een doos: ", maat(breedte), " breed, ", maat(diepte), " diep en ", maat(hoogte), " hoog.");
    const verteld_als stil(on);
    const int naast = naast_hoogte(on, maat(hoogte)), links = 2 * naast;
    const int rechts = text_width(maat(diepte), on.text_size), onder = maatlijn + text_height(on.text_size);
    const double schaal = schaal_voor(binnen.breedte - links - rechts, breedte + naar_rechts * diepte,
                                      binnen.hoogte - onder, hoogte + omhoog * diepte);
    const int b = heel(breedte * schaal), h = heel(hoogte * schaal);
    const point schuin{heel(diepte * schaal * naar_rechts), -heel(diepte * schaal * omhoog)};
    const int over_breed = binnen.breedte - links - rechts - b - schuin.x,
              over_hoog = binnen.hoogte - onder - h + schuin.y;
    const int x = binnen.links + links + over_breed / 2, y = binnen.onder() - onder - h - over_hoog / 2;

    const zelfde_stand bewaard(on);
    const std::vector<point> boven{{x, y}, {x + b, y}, {x + b + schuin.x, y + schuin.y}, {x + schuin.x, y + schuin.y}};
    const std::vector<point> zij{
        {x + b, y}, {x + b + schuin.x, y + schuin.y}, {x + b + schuin.x, y + h + schuin.y}, {x + b, y + h}};
    on.filled_box(x, y, b, h, lichtgrijs);
    on.polygon(boven, wit, true);
    on.polygon(zij, grijs, true);
    on.line_width = 2;
    on.box(x, y, b, h, zwart);
    on.polygon(boven, zwart, false);
    on.polygon(zij, zwart, false);

    teken_maat(on, {x, y + h + maatlijn}, {x + b, y + h + maatlijn}, maat(breedte));
    teken_maat(on, {x - naast, y + h}, {x - naast, y}, maat(hoogte));
    const point langs{x + b + maatlijn * 3 / 4, y + h + maatlijn / 2};
    teken_maat(on, langs, {langs.x + schuin.x, langs.y + schuin.y}, maat(diepte));
}

void teken_cilinder(drawing& on, const vlak& binnen, int middellijn, int hoogte, std::string_view achter) {
    constexpr double plat = 0.28; // how flat the circles are seen
    const auto maat = [&](int waarde) { return plak_even({kaal(waarde), achter}); };
    vertel(on, "Een cilinder met een middellijn van ", maat(middellijn), " en ", maat(hoogte), " hoog.");
    const verteld_als stil(on);
    const int naast = naast_hoogte(on, maat(hoogte)), onder = maatlijn + text_height(on.text_size);
    const double schaal =
        schaal_voor(binnen.breedte - 4 * naast, middellijn, binnen.hoogte - onder, hoogte + plat * middellijn);
    const int straal = heel(middellijn * schaal / 2), h = heel(hoogte * schaal), boog = heel(straal * plat);
    const int over = binnen.hoogte - onder - h - 2 * boog;
    const int x = binnen.midden().x, y = binnen.onder() - onder - boog - h - over / 2;

    const zelfde_stand bewaard(on, 2);
    on.ellipse(x, y + h, straal, boog, lichtgrijs, true);
    on.ellipse(x, y + h, straal, boog, zwart, false);
    on.filled_box(x - straal, y, 2 * straal, h, lichtgrijs);
    on.line(x - straal, y, x - straal, y + h, zwart);
    on.line(x + straal, y, x + straal, y + h, zwart);
    on.ellipse(x, y, straal, boog, wit, true);
    on.ellipse(x, y, straal, boog, zwart, false);

    const int onder_y = y + h + boog + maatlijn;
    teken_maat(on, {x - straal, onder_y}, {x + straal, onder_y}, maat(middellijn));
    teken_maat(on, {x + straal + naast, y}, {x + straal + naast, y + h}, maat(hoogte));
}

} // namespace cijferwerf
