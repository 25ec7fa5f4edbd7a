// Fractions, the sums: adding, subtracting, simplifying, multiplying and dividing.
#include "generators/breuk.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::L_optellen_03_14_click() {}
void oefeningen::M_aftrekken_03_14_click() {}
void oefeningen::M_vereenvoudigen_03_14_click() {}
void oefeningen::Z_delen_03_14_click() {}
void oefeningen::Z_vermenigvuldigen_03_14_click() {}

} // namespace cijferwerf
