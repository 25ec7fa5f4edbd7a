#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_huis_02_16_click() {}
void oefeningen::B_maatbeker_02_16_click() {}
void oefeningen::B_vakantie_02_16_click() {}
void oefeningen::L_cirkels_02_16_click() {}
void oefeningen::L_fietspad_1_02_16_click() {}
void oefeningen::L_museum_02_16_click() {}
void oefeningen::M_fietspad_2_02_16_click() {}
void oefeningen::M_tandwielen_02_16_click() {}
void oefeningen::Z_brandstofverbruik_02_16_click() {}
void oefeningen::Z_tuinman_02_16_click() {}
void oefeningen::Z_uitgaven_02_16_click() {}

} // namespace cijferwerf
