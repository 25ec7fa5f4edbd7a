#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_snel_00_11_click() {}
void oefeningen::L_berekenen_00_11_click() {}
void oefeningen::L_in_woorden_00_11_click() {}
void oefeningen::L_korter_00_11_click() {}
void oefeningen::M_bacterie_00_11_click() {}
void oefeningen::L_volgorde_00_11_click() {}
void oefeningen::M_bloembollen_00_11_click() {}
void oefeningen::M_fabriekshal_00_11_click() {}
void oefeningen::M_stroopwafels_00_11_click() {}
void oefeningen::Z_spaargeld_00_11_click() {}

} // namespace cijferwerf
