#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_cirkel_1_00_13_click() {}
void oefeningen::L_cirkel_2_00_13_click() {}
void oefeningen::M_blikjes_00_13_click() {}
void oefeningen::M_huls_00_13_click() {}
void oefeningen::M_in_elkaar_00_13_click() {}
void oefeningen::M_pizza_00_13_click() {}
void oefeningen::M_skelterbaan_00_13_click() {}
void oefeningen::M_vijver_00_13_click() {}
void oefeningen::Z_fietswiel_00_13_click() {}
void oefeningen::Z_terras_00_13_click() {}
void oefeningen::M_cilinder_00_17_click() {}
void oefeningen::Z_dichtheid_00_17_click() {}
void oefeningen::Z_volumeprocent_00_17_click() {}

} // namespace cijferwerf
