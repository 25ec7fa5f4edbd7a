// A table: a coloured bar with headings, rows of texts and numbers with a thin line under each.
// What stands in it, and in what form its numbers are written, is the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// A column: its heading, and the edge to which it is set - its left end, or its right end for numbers.
struct tabelkolom {
    std::string_view kop;
    int rand = 0; // twips, from the left of the picture
    bool rechts = false;
};

// Rows are printed in the drawing's own colour and text size at the time; the bar has the colour of the text, and its
// headings are set in the colour that is read on it.
class tabel {
public:
    // Draws the bar with the headings; without any heading there is no bar. A row is so many twips high: at least
    // text_height of the text size, and 30 more look well.
    tabel(drawing& on, int links, int boven, int breedte, int rijhoogte, std::vector<tabelkolom> kolommen);

    // The next row, a cell for each column: texts as they stand, numbers in any form without their blank in front.
    template<line_part... Cellen>
    void rij(const Cellen&... cellen) {
        std::size_t column = 0;
        (cel(column++, plak_even({cellen})), ...);
        sluit_rij();
    }
    // The y below the last row.
    int onder() const { return y_; }

private:
    void cel(std::size_t column, std::string_view tekst);
    void sluit_rij();

    drawing& on_;
    int links_, breedte_, rijhoogte_, y_;
    std::vector<tabelkolom> kolommen_;
};

} // namespace cijferwerf
