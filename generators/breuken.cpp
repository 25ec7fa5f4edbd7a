// Fractions, the first half: parts of a whole, wholes, comparing and the number line.
#include "generators/breuk.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_chocolade_03_03_click() {}
void oefeningen::B_helen_03_03_click() {}
void oefeningen::B_vlakjes_03_03_click() {}
void oefeningen::L_helen_maken_03_03_click() {}
void oefeningen::L_marathon_03_03_click() {}
void oefeningen::L_prijzen_03_03_click() {}
void oefeningen::M_getallenlijn_03_03_click() {}
void oefeningen::M_grootste_kleinste_03_03_click() {}
void oefeningen::M_olievat_03_06_click() {}
void oefeningen::M_snel_03_03_click() {}

} // namespace cijferwerf
