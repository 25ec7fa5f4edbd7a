#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::M_figuren_07_12_click() {}
void oefeningen::M_L_vorm_07_12_click() {}
void oefeningen::M_tuin_07_09_click() {}
void oefeningen::Z_vliegtuig_07_09_click() {}
void oefeningen::Z_tegels_07_12_click() {}
void oefeningen::M_opbrengst_08_12_click() {}

} // namespace cijferwerf
