#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_gestreept_10_03_click() {}
void oefeningen::B_schatten_1_10_09_click() {}
void oefeningen::L_betegelen_10_12_click() {}
void oefeningen::L_bezoekers_10_00_click() {}
void oefeningen::L_schaal_10_16_click() {}
void oefeningen::L_schatten_2_10_09_click() {}
void oefeningen::M_erfenis_10_07_click() {}
void oefeningen::M_seconden_10_06_click() {}

} // namespace cijferwerf
