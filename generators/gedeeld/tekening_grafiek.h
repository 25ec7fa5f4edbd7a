// Graphs: axes with gridlines, scales, lines and columns; pies and legends.
// The numbers that are shown, and the words beside them, are the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// The values along an axis: from and to at its ends, a gridline and a label at each step. Where values are tenths of
// what the labels count, `een` is 10.
struct asschaal {
    int van = 0, tot = 0, stap = 1;
    int een = 1;
};

// Two axes around a plot rectangle. The labels stand outside it, so that no gridline crosses one: leave about 230 below
// it at 8 points, 400 to its left, and 230 above it for the name of the upright axis.
class assen {
public:
    // Draws a white plot with its axes. Gridlines and labels come when they are asked for, before lines and columns.
    assen(drawing& on, const vlak& plot, asschaal langs_x, asschaal langs_y);
    // Tells what the graph shows, once all of it is known.
    ~assen() { vertel(); }
    assen(const assen&) = delete;
    assen& operator=(const assen&) = delete;

    // The place of a value, also of one outside the plot.
    int x(int waarde) const;
    int y(int waarde) const;
    const vlak& plot() const { return plot_; }

    void lijnen_op();    // a horizontal gridline at each step of y
    void lijnen_langs(); // an upright one at each step of x

    // The numbers beside the gridlines of y, each with this behind it, and below those of x: at every step, or at every
    // so many units where the steps are too close for that.
    void getallen_links(std::string_view achter = "", int om = 0);
    void getallen_onder(int om = 0);
    // A text in the middle of each step of x: a month, a family.
    void namen_onder(const std::vector<plakregel>& namen);
    // What the numbers count: above the upright axis, and at the right end of the other.
    void naam_boven(std::string_view naam);
    void naam_rechts(std::string_view naam);

    // A line through these values, 2 pixels wide, with a dot at each where asked.
    void lijn(const std::vector<point>& waarden, kleur met, bool stippen = true);
    // A column from x = van to x = tot, as high as its value, with a dark edge. Returns where it stands.
    vlak kolom(int van, int tot, int waarde, kleur met);

private:
    void vertel();
    std::string hoogte(int waarde) const;

    struct beschrift { // how an axis is
        plakregel naam, getallen;
    };
    struct staaf {
        kleur in;
        int waarde;
    };
    struct verloop {
        kleur in;
        std::vector<point> waarden;
    };
    drawing& on_;
    vlak plot_;
    asschaal langs_x_, langs_y_;
    std::size_t zin_; // its place among what the drawing tells
    beschrift omhoog_, opzij_;
    std::vector<plakregel> namen_;
    std::vector<staaf> kolommen_;
    std::vector<verloop> lijnen_;
};

// A part of a pie: its size in any unit (the parts together are the whole), its colour, a text in it or none, and
// whether it is hatched.
struct taartdeel {
    int deel = 0;
    kleur vulling = wit;
    plakregel tekst = {};
    bool gestreept = false;
};

// A pie with black edges, its parts laid counter-clockwise from an angle on (degrees from three o'clock).
void teken_taart(drawing& on, point midden, int straal, const std::vector<taartdeel>& delen, double vanaf = 90);

// Hatches the sector of a circle from start over sweep degrees (360 for all of it) with slanting lines.
void arceer_sector(drawing& on, point midden, int straal, double vanaf, double sweep, kleur met);

struct legendaregel {
    kleur vulling = wit;
    plakregel naam;
};

// Boxes of colour under one another, each with its name to the right, from a top-left corner on. Returns the y below.
int teken_legenda(drawing& on, int x, int y, const std::vector<legendaregel>& regels);

} // namespace cijferwerf
