// What every drawing of the exercises is made of: a rectangle, the state that is put back, text around a place, arrows
// and lines that tell a measure. Whole drawings are made in the other files beside this one.
//
// Everything here is in twips. Text is printed in the drawing's own colour and text size, unless a verb says otherwise,
// and every verb leaves colour, text size and lines as it found them.
#pragma once

#include "generators/gedeeld/kleuren.h"
#include "runtime/picture_box.h"

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace cijferwerf {

struct vlak {
    int links = 0, boven = 0, breedte = 0, hoogte = 0;

    constexpr int rechts() const { return links + breedte; }
    constexpr int onder() const { return boven + hoogte; }
    constexpr point midden() const { return {links + breedte / 2, boven + hoogte / 2}; }
    bool operator==(const vlak&) const = default;
};

// Lines are so many pixels wide until it goes; then they, the colour and the text size are as they were.
class zelfde_stand {
public:
    explicit zelfde_stand(drawing& on, int line_width = 1)
        : on_(on),
          colour_(on.fore_colour),
          size_(on.text_size),
          width_(on.line_width) {
        on.line_width = line_width;
    }
    ~zelfde_stand() {
        on_.fore_colour = colour_;
        on_.text_size = size_;
        on_.line_width = width_;
    }
    zelfde_stand(const zelfde_stand&) = delete;
    zelfde_stand& operator=(const zelfde_stand&) = delete;

private:
    drawing& on_;
    kleur colour_;
    double size_;
    int width_;
};

// Tells what is seen and not read, in a sentence, glued from texts and numbers, for who cannot see it. It says how
// something lies or how many marks high it is, in words, and leaves to the pupil what that is worth.
template<line_part... Parts>
void vertel(drawing& on, const Parts&... zin) {
    on.spoken.push_back({on.operations().size(), on.operations().size(), on.keep({regeldeel(zin)...})});
}

// The texts that are drawn while it lives are read as this sentence, or, without one, not at all.
class verteld_als {
public:
    template<line_part... Parts>
    explicit verteld_als(drawing& on, const Parts&... zin)
        : on_(on),
          eerste_(on.operations().size()),
          zin_(on.keep({regeldeel(zin)...})) {}
    ~verteld_als() { on_.spoken.push_back({eerste_, on_.operations().size(), zin_}); }
    verteld_als(const verteld_als&) = delete;
    verteld_als& operator=(const verteld_als&) = delete;

private:
    drawing& on_;
    std::size_t eerste_;
    std::string_view zin_;
};

// The nearest whole number, halves away from zero.
constexpr int heel(double waarde) { return static_cast<int>(waarde < 0 ? waarde - 0.5 : waarde + 0.5); }

// How many steps a value is: "zeven", or to a tenth "7,5".
std::string in_stappen(double waarde, double stap);

// From the top of a line of text to the middle of its digits.
constexpr int halve_regel(double points) { return static_cast<int>(points * 20 * 0.5585 + 0.5); }

// The point at this distance, at this angle: degrees, counter-clockwise from three o'clock.
point op_cirkel(point midden, double straal, double graden);

// One line of text with its middle at a point.
void druk_om(drawing& on, point midden, std::string_view tekst);

// An arrow from one point to another, in a colour, with a black edge so that light colours show on a light ground.
// The first corner of its polygon is the tip.
void teken_pijl(drawing& on, point van, point naar, kleur kleur_pijl);

// A line that tells a measure: a dash across each end, the text in a gap in the middle. Where the line is too short for
// that, the text stands below it; beside an upright one to the right when it is drawn downward, else to the left. The
// text of a slanting line, which rises to the right, stands below its right.
void teken_maat(drawing& on, point van, point naar, std::string_view tekst);

} // namespace cijferwerf
