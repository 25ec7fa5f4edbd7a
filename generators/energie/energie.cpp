#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::L_energie_00_19_click() {}
void oefeningen::L_gas_1_00_19_click() {}
void oefeningen::M_elektriciteit_1_00_19_click() {}
void oefeningen::M_elektriciteit_2_00_19_click() {}
void oefeningen::M_voeding_1_00_19_click() {}
void oefeningen::M_voeding_2_00_19_click() {}
void oefeningen::M_water_1_00_19_click() {}
void oefeningen::M_water_2_00_19_click() {}
void oefeningen::Z_elektriciteit_3_00_19_click() {}
void oefeningen::Z_gas_2_00_19_click() {}

} // namespace cijferwerf
