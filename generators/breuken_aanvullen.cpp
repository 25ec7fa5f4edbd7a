// Fractions as numbers: per cents, pieces of a segment, completing, between which decimals.
#include "generators/breuk.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::L_procenten_03_14_click() {}
void oefeningen::L_stukken_03_14_click() {}
void oefeningen::M_aanvullen_1_03_14_click() {}
void oefeningen::M_aanvullen_2_03_14_click() {}
void oefeningen::M_tussen_in_03_14_click() {}

} // namespace cijferwerf
