#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_chocolade_03_03_click() {}
void oefeningen::B_helen_03_03_click() {}
void oefeningen::B_vlakjes_03_03_click() {}
void oefeningen::L_helen_maken_03_03_click() {}
void oefeningen::L_marathon_03_03_click() {}
void oefeningen::L_optellen_03_14_click() {}
void oefeningen::L_prijzen_03_03_click() {}
void oefeningen::L_procenten_03_14_click() {}
void oefeningen::L_stukken_03_14_click() {}
void oefeningen::M_aanvullen_1_03_14_click() {}
void oefeningen::M_aanvullen_2_03_14_click() {}
void oefeningen::M_aftrekken_03_14_click() {}
void oefeningen::M_getallenlijn_03_03_click() {}
void oefeningen::M_grootste_kleinste_03_03_click() {}
void oefeningen::M_olievat_03_06_click() {}
void oefeningen::M_snel_03_03_click() {}
void oefeningen::M_tussen_in_03_14_click() {}
void oefeningen::M_vereenvoudigen_03_14_click() {}
void oefeningen::Z_delen_03_14_click() {}
void oefeningen::Z_vermenigvuldigen_03_14_click() {}

} // namespace cijferwerf
