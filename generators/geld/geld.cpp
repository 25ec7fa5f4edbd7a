#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_spaarpot_05_07_click() {}
void oefeningen::B_wisselen_05_07_click() {}
void oefeningen::L_bijbetalen_05_07_click() {}
void oefeningen::L_krantenwijk_05_07_click() {}
void oefeningen::L_snel_05_07_click() {}
void oefeningen::L_terugbetalen_05_07_click() {}
void oefeningen::L_vreemd_geld_1_05_07_click() {}
void oefeningen::L_vreemd_geld_2_05_07_click() {}
void oefeningen::M_boodschap_05_07_click() {}
void oefeningen::M_brandstof_05_07_click() {}
void oefeningen::M_CDs_05_07_click() {}
void oefeningen::M_niet_gepast_05_07_click() {}
void oefeningen::Z_huren_05_07_click() {}

} // namespace cijferwerf
