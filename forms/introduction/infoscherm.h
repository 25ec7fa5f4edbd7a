// The introduction to a booklet: a few sentences on its subject, and the way back to the practice screen.
// Looking at it changes nothing on the practice screen.
#pragma once

#include "forms/formulieren.h"

namespace cijferwerf {

class infoscherm : public form {
public:
    static constexpr int lines = 7;

    infoscherm(outside& with, formulieren& forms);

    // Puts the texts of booklet 1 to 12 on the screen; 7 and 8 share them. False, and nothing changes, for any other.
    bool kies(int boekje);

    void close_requested() override { forms_.vraag_of_stoppen(*this); }

    void sommen_maken_click();

    frame kopbalk, vlak;
    label opschriftbalk, titel;
    picture_box plaatje;
    control_array<label, 1, lines> regels;
    button sommen_maken;

protected:
    void load() override { focus = &sommen_maken; }

private:
    formulieren& forms_;
};

} // namespace cijferwerf
