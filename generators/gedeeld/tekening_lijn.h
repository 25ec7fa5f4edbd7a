// A number line: marks at equal distances, numbers below them, arrows from above.
// What the marks are worth, and which of them get a number or an arrow, is the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// Marks are counted from 0, at the left end, to the number of parts. Numbers and names are printed in the drawing's
// own colour and text size.
class getallenlijn {
public:
    // Draws the line with its marks; those at both ends are longer.
    getallenlijn(drawing& on, int links, int rechts, int y, int delen);

    int x(int streepje) const;
    // "het begin", "het derde streepje"
    plakregel woord(int streepje) const;
    // A number below a mark, which is made longer.
    void getal(int streepje, std::string_view tekst);
    // An arrow from above that points at a mark, with a name over it or none.
    void pijl(int streepje, kleur met, std::string_view naam = "", int lengte = 480);

private:
    drawing& on_;
    int links_, rechts_, y_, delen_;
};

} // namespace cijferwerf
