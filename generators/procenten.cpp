#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::L_voetbal_01_08_click() {}
void oefeningen::L_examen_01_08_click() {}
void oefeningen::L_computer_01_08_click() {}
void oefeningen::L_snel_01_08_click() {}
void oefeningen::M_blessures_01_08_click() {}
void oefeningen::M_hele_procenten_01_08_click() {}
void oefeningen::M_rente_01_08_click() {}
void oefeningen::Z_kommaprocenten_01_08_click() {}
void oefeningen::B_alcohol_01_08_Click() {}
void oefeningen::L_bevolking_01_08_click() {}
void oefeningen::B_grasveld_01_08_click() {}

} // namespace cijferwerf
