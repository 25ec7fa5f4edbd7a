#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_inwoners_04_18_click() {}
void oefeningen::B_rusthuis_04_18_click() {}
void oefeningen::L_hardlopen_1_04_18_click() {}
void oefeningen::L_hardlopen_2_04_18_click() {}
void oefeningen::L_inkomen_04_18_click() {}
void oefeningen::L_regenval_04_18_click() {}
void oefeningen::L_vakanties_04_18_click() {}
void oefeningen::M_dollars_04_18_click() {}
void oefeningen::Z_roken_04_18_click() {}
void oefeningen::Z_verkiezingen_04_18_click() {}

} // namespace cijferwerf
