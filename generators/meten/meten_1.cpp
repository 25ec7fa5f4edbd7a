#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_oppervlakte_07_12_click() {}
void oefeningen::B_rechthoek_07_12_click() {}
void oefeningen::L_doos_07_12_click() {}
void oefeningen::L_fietsen_07_09_click() {}
void oefeningen::L_optellen_1_07_09_click() {}
void oefeningen::L_optellen_2_07_09_click() {}
void oefeningen::L_schilder_07_12_click() {}
void oefeningen::L_snel_1_07_09_click() {}
void oefeningen::L_snel_2_07_09_click() {}
void oefeningen::L_vakantie_07_09_click() {}
void oefeningen::M_bedrijfsruimte_07_12_click() {}
void oefeningen::M_behangen_07_09_click() {}
void oefeningen::M_draad_07_12_click() {}

} // namespace cijferwerf
