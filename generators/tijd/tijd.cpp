#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_datum_06_04_click() {}
void oefeningen::B_wedstrijd_06_04_click() {}
void oefeningen::L_boeken_06_04_click() {}
void oefeningen::L_wachten_06_04_click() {}
void oefeningen::M_kilometers_06_04_click() {}
void oefeningen::M_naar_school_06_04_click() {}
void oefeningen::M_snel_06_04_click() {}
void oefeningen::M_trein_06_04_click() {}
void oefeningen::Z_wereldtijden_06_04_click() {}

} // namespace cijferwerf
