#include "generators/gedeeld/tekening_grafiek.h"

#include "generators/gedeeld/telwoord.h"
#include "runtime/stop_run.h"

#include <algorithm>
#include <array>
#include <numbers>
#include <numeric>

namespace cijferwerf {

namespace {

constexpr int room = 50; // between an axis and its labels

// The place of a value between two ends, half up.
int tussen(int waarde, const asschaal& langs, int van, int tot) {
    return van + heel(1.0 * (waarde - langs.van) * (tot - van) / (langs.tot - langs.van));
}

// "0, 20 enzovoort tot 160, bij elke tweede streep"
plakregel getallen_langs(const asschaal& langs, int om, std::string_view achter) {
    const auto getal = [&](int waarde) { return plak_even({kaal(duizend(waarde / langs.een)), achter}); };
    const int laatste = langs.van + (langs.tot - langs.van) / om * om, strepen = om / langs.stap;
    return plak_even(
        {getal(langs.van), ", ", getal(langs.van + om), " enzovoort tot ", getal(laatste),
         strepen == 1 ? ", bij elke streep" : plak_even({", bij elke ", rangtelwoord(strepen), " streep"})});
}

} // namespace

assen::assen(drawing& on, const vlak& plot, asschaal langs_x, asschaal langs_y)
    : on_(on),
      plot_(plot),
      langs_x_(langs_x),
      langs_y_(langs_y),
      zin_(on.spoken.size()) {
    cijferwerf::vertel(on, "");
    if (langs_x.tot <= langs_x.van || langs_y.tot <= langs_y.van || langs_x.stap < 1 || langs_y.stap < 1 ||
        langs_x.een < 1 || langs_y.een < 1)
        stop_run("an axis without length");
    const zelfde_stand bewaard(on);
    on.filled_box(plot.links, plot.boven, plot.breedte, plot.hoogte, wit);
    on.line_width = 2;
    on.line(plot.links, plot.boven, plot.links, plot.onder(), on.fore_colour);
    on.line(plot.links, plot.onder(), plot.rechts(), plot.onder(), on.fore_colour);
}

int assen::x(int waarde) const { return tussen(waarde, langs_x_, plot_.links, plot_.rechts()); }
int assen::y(int waarde) const { return tussen(waarde, langs_y_, plot_.onder(), plot_.boven); }

std::string assen::hoogte(int waarde) const { return in_stappen(waarde - langs_y_.van, langs_y_.stap); }

void assen::vertel() {
    std::string zin = "Een grafiek.";
    zin.reserve(500); // more than most need
    const auto as = [&zin](std::string_view kant, const beschrift& van) {
        if (van.getallen.empty()) return;
        zin += plak_even(
            {" ", kant, van.naam.empty() ? "" : " (", van.naam, van.naam.empty() ? ": " : "): ", van.getallen, "."});
    };
    as("Omhoog", omhoog_);
    as("Naar rechts", opzij_);
    const bool benoemd = namen_.size() == kolommen_.size();
    for (std::size_t i = 0; i < kolommen_.size(); ++i) {
        const auto [in, waarde] = kolommen_[i];
        const bool andere = !benoemd && (i == 0 || in != kolommen_[i - 1].in);
        zin += i == 0 ? " De kolommen van links naar rechts, in strepen hoog: " : andere ? "; " : ", ";
        if (andere) zin.append(woord(in)).append(" ");
        if (benoemd) zin.append(namen_[i]).append(" ");
        zin += hoogte(waarde);
    }
    if (!kolommen_.empty()) zin += '.';
    for (const auto& [in, waarden] : lijnen_) {
        const bool op_naam = namen_.size() == waarden.size();
        zin += regel(" De ", bijvoeglijk(in),
                     op_naam ? " lijn, in strepen hoog: " : " lijn, in strepen naar rechts en omhoog: ");
        for (std::size_t i = 0; i < waarden.size(); ++i) {
            if (i > 0) zin += ", ";
            zin += op_naam ? namen_[i] : plakregel(in_stappen(waarden[i].x - langs_x_.van, langs_x_.stap));
            zin += op_naam ? " " : " en ";
            zin += hoogte(waarden[i].y);
        }
        zin += '.';
    }
    on_.spoken[zin_].sentence = on_.keep({zin});
}

void assen::lijnen_op() {
    const zelfde_stand bewaard(on_);
    for (int waarde = langs_y_.van + langs_y_.stap; waarde <= langs_y_.tot; waarde += langs_y_.stap)
        on_.line(plot_.links, y(waarde), plot_.rechts(), y(waarde), lichtgrijs);
}

void assen::lijnen_langs() {
    const zelfde_stand bewaard(on_);
    for (int waarde = langs_x_.van + langs_x_.stap; waarde <= langs_x_.tot; waarde += langs_x_.stap)
        on_.line(x(waarde), plot_.boven, x(waarde), plot_.onder(), lichtgrijs);
}

void assen::getallen_links(std::string_view achter, int om) {
    omhoog_.getallen = getallen_langs(langs_y_, om == 0 ? langs_y_.stap : om, achter);
    const verteld_als stil(on_);
    for (int waarde = langs_y_.van; waarde <= langs_y_.tot; waarde += om == 0 ? langs_y_.stap : om)
        on_.print_right(plot_.links - room, y(waarde) - halve_regel(on_.text_size),
                        plak_even({kaal(duizend(waarde / langs_y_.een)), achter}));
}

void assen::getallen_onder(int om) {
    opzij_.getallen = getallen_langs(langs_x_, om == 0 ? langs_x_.stap : om, "");
    const verteld_als stil(on_);
    for (int waarde = langs_x_.van; waarde <= langs_x_.tot; waarde += om == 0 ? langs_x_.stap : om)
        on_.print_centred(x(waarde), plot_.onder() + room / 2, kaal(duizend(waarde / langs_x_.een)));
}

void assen::namen_onder(const std::vector<plakregel>& namen) {
    namen_ = namen;
    const verteld_als stil(on_);
    int links = langs_x_.van;
    for (const plakregel& naam : namen) {
        on_.print_centred((x(links) + x(links + langs_x_.stap)) / 2, plot_.onder() + room / 2, naam);
        links += langs_x_.stap;
    }
}

void assen::naam_boven(std::string_view naam) {
    omhoog_.naam = naam;
    const verteld_als stil(on_);
    // Clear of the uppermost number, half of which rises above the plot.
    const int left = std::max(plot_.links - text_width(naam, on_.text_size) / 2, 60);
    on_.print_at(left, plot_.boven - text_height(on_.text_size) * 3 / 2, naam);
}

void assen::naam_rechts(std::string_view naam) {
    opzij_.naam = naam;
    const verteld_als stil(on_);
    on_.print_at(plot_.rechts() + 2 * room, plot_.onder() - halve_regel(on_.text_size), naam);
}

void assen::lijn(const std::vector<point>& waarden, kleur met, bool stippen) {
    constexpr int dot = 32;
    lijnen_.push_back({met, waarden});
    const zelfde_stand bewaard(on_, 2);
    std::vector<point> plaatsen;
    plaatsen.reserve(waarden.size());
    for (const point& waarde : waarden) plaatsen.push_back({x(waarde.x), y(waarde.y)});
    for (std::size_t i = 1; i < plaatsen.size(); ++i)
        on_.line(plaatsen[i - 1].x, plaatsen[i - 1].y, plaatsen[i].x, plaatsen[i].y, met);
    if (!stippen) return;
    for (const point& plaats : plaatsen) on_.filled_circle(plaats.x, plaats.y, dot, met);
}

vlak assen::kolom(int van, int tot, int waarde, kleur met) {
    kolommen_.push_back({met, waarde});
    const vlak staat{x(van), y(waarde), x(tot) - x(van), plot_.onder() - y(waarde)};
    const zelfde_stand bewaard(on_);
    on_.filled_box(staat.links, staat.boven, staat.breedte, staat.hoogte, met);
    on_.box(staat.links, staat.boven, staat.breedte, staat.hoogte, zwart);
    return staat;
}

void teken_taart(drawing& on, point midden, int straal, const std::vector<taartdeel>& delen, double vanaf) {
    const zelfde_stand bewaard(on);
    const int geheel =
        std::accumulate(delen.begin(), delen.end(), 0, [](int sum, const taartdeel& each) { return sum + each.deel; });
    std::string zin = "Een cirkel in delen. In twaalfden van de cirkel: ";
    for (const taartdeel& each : delen)
        zin +=
            regel(&each == &delen.front() ? "" : ", ", each.tekst.empty() ? plakregel(woord(each.vulling)) : each.tekst,
                  each.gestreept ? " gestreept " : " ", in_stappen(12.0 * each.deel, geheel));
    vertel(on, zin + '.');
    const verteld_als stil(on);
    struct sector {
        double vanaf, sweep;
    };
    std::vector<sector> sectoren;
    for (const taartdeel& each : delen) {
        sectoren.push_back({vanaf, 360.0 * each.deel / geheel});
        vanaf += sectoren.back().sweep;
    }
    for (std::size_t i = 0; i < delen.size(); ++i) {
        on.sector(midden.x, midden.y, straal, sectoren[i].vanaf, sectoren[i].sweep, delen[i].vulling, true);
        if (delen[i].gestreept)
            arceer_sector(on, midden, straal, sectoren[i].vanaf, sectoren[i].sweep, letterkleur(delen[i].vulling));
    }
    on.line_width = 2;
    for (const sector& each : sectoren) on.sector(midden.x, midden.y, straal, each.vanaf, each.sweep, zwart, false);
    for (std::size_t i = 0; i < delen.size(); ++i) {
        if (delen[i].tekst.empty()) continue;
        on.fore_colour = letterkleur(delen[i].vulling);
        druk_om(on, op_cirkel(midden, straal * 0.63, sectoren[i].vanaf + sectoren[i].sweep / 2), delen[i].tekst);
    }
}

void arceer_sector(drawing& on, point midden, int straal, double vanaf, double sweep, kleur met) {
    constexpr int distance = 75; // from line to line
    const zelfde_stand bewaard(on);
    const auto in_sector = [&](double right, double up) {
        const double past = std::atan2(up, right) * 180 / std::numbers::pi - vanaf;
        return past - std::floor(past / 360) * 360 <= sweep;
    };
    // Each line runs at 45 degrees; its points are c · (-√½, √½) + t · (√½, √½), up being positive.
    const double r = std::sqrt(0.5);
    for (int c = -straal + distance / 2; c < straal; c += distance) {
        const double half = std::sqrt(1.0 * straal * straal - 1.0 * c * c);
        std::vector<double> cuts{-half, half};
        for (const double edge : {vanaf, vanaf + sweep}) {
            const double hoek = edge * std::numbers::pi / 180;
            // Where the radius crosses the line: its point there has the same distance c.
            const double across = r * (std::sin(hoek) - std::cos(hoek));
            const double length = across == 0 ? -1 : c / across;
            if (length > 0 && length < straal && sweep < 360)
                cuts.push_back(length * r * (std::cos(hoek) + std::sin(hoek)));
        }
        std::ranges::sort(cuts);
        for (std::size_t i = 1; i < cuts.size(); ++i) {
            const auto at = [&](double t) { return std::array{(t - c) * r, (t + c) * r}; };
            const auto [right, up] = at((cuts[i - 1] + cuts[i]) / 2);
            if (!in_sector(right, up)) continue;
            const auto from = at(cuts[i - 1]), to = at(cuts[i]);
            on.line(midden.x + heel(from[0]), midden.y - heel(from[1]), midden.x + heel(to[0]), midden.y - heel(to[1]),
                    met);
        }
    }
}

int teken_legenda(drawing& on, int x, int y, const std::vector<legendaregel>& regels) {
    const zelfde_stand bewaard(on);
    const int step = text_height(on.text_size) * 5 / 4, side = step * 3 / 5;
    for (const legendaregel& each : regels) {
        const std::string_view naam = each.naam;
        const bool noemt = naam.find(woord(each.vulling)) != naam.npos;
        const verteld_als genoemd(on, noemt ? each.naam : plak_even({woord(each.vulling), ": ", each.naam, "."}));
        on.filled_box(x, y + (step - side) / 2, side, side, each.vulling);
        on.box(x, y + (step - side) / 2, side, side, on.fore_colour);
        on.print_at(x + side * 3 / 2, y + step / 2 - halve_regel(on.text_size), each.naam);
        y += step;
    }
    return y;
}

} // namespace cijferwerf
