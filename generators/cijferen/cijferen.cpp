#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_inwoners_1_12_01_click() {}
void oefeningen::B_inwoners_2_12_01_click() {}
void oefeningen::L_anders_12_02_click() {}
void oefeningen::L_door_elkaar_12_02_click() {}
void oefeningen::L_haakjes_12_02_click() {}
void oefeningen::L_na_elkaar_12_01_click() {}
void oefeningen::L_onder_elkaar_12_06_click() {}
void oefeningen::M_controle_12_02_click() {}
void oefeningen::M_flesjes_12_02_click() {}
void oefeningen::M_maal_12_02_click() {}
void oefeningen::M_snel_12_06_click() {}
void oefeningen::Z_BTW_12_08_click() {}
void oefeningen::Z_memory_12_02_click() {}
void oefeningen::Z_sponsorloop_12_07() {}
void oefeningen::Z_lenen_12_07_click() {}

} // namespace cijferwerf
