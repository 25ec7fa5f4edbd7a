// Figures with corners on a grid, whose perimeter and area are counted from the corners that are drawn; boxes and
// cylinders with their measures. Which figures are compared, and in what unit, is the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// Squares of so many twips from a corner of the picture on.
struct rooster {
    point oorsprong;
    int hokje = 0;
    int breed = 0, hoog = 0; // squares
    point hoek(point op) const { return {oorsprong.x + op.x * hokje, oorsprong.y + op.y * hokje}; }
};

class roosterfiguur {
public:
    // The corners in order, in squares from the grid's origin.
    explicit roosterfiguur(std::vector<point> hoeken) : hoeken_(std::move(hoeken)) {}

    const std::vector<point>& hoeken() const { return hoeken_; }
    // In sides of a square; a slanting side ends the run.
    int omtrek() const;
    // In half squares, which is exact for any corners on the grid, and in whole ones: half a square left ends the run.
    int halve_hokjes() const;
    int oppervlakte() const;
    // The way along its edge in words, from its first corner on; a slanting side goes aside "met" up or down.
    std::string rand() const;
    roosterfiguur verschoven(int rechts, int omlaag) const;

    // One filled polygon, and its edge as lines.
    void teken(drawing& on, const rooster& op, kleur vulling) const;

private:
    friend void teken_rooster(drawing&, const rooster&, const std::vector<struct gekleurde_figuur>&);
    void teken_rand(drawing& on, const rooster& op) const;

    std::vector<point> hoeken_;
};

struct gekleurde_figuur {
    roosterfiguur figuur;
    kleur vulling;
};

// Figures, one over another, with the lines of the grid seen through them.
void teken_rooster(drawing& on, const rooster& op, const std::vector<gekleurde_figuur>& figuren);

// A box and a cylinder to scale, as large as fits with the measures beside it, each written as a number with this
// behind it. All measures are in one unit.
void teken_doos(drawing& on, const vlak& binnen, int breedte, int diepte, int hoogte, std::string_view achter = "");
void teken_cilinder(drawing& on, const vlak& binnen, int middellijn, int hoogte, std::string_view achter = "");

} // namespace cijferwerf
