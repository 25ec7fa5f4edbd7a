#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::M_figuren_07_12_click() {}
void oefeningen::M_L_vorm_07_12_click() {}
void oefeningen::M_tuin_07_09_click() {}
void oefeningen::Z_vliegtuig_07_09_click() {}
void oefeningen::Z_tegels_07_12_click() {}
void oefeningen::B_inhoud_08_17_click() {}
void oefeningen::B_schatten_08_17_click() {}
void oefeningen::L_doos_08_17_click() {}
void oefeningen::L_gewichten_08_17_click() {}
void oefeningen::L_optellen_08_17_click() {}
void oefeningen::L_watertank_07_17_click() {}
void oefeningen::M_opbrengst_08_12_click() {}
void oefeningen::M_worst_08_17_click() {}

} // namespace cijferwerf
