#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: each leaves the record blank.
void oefeningen::B_getallenlijn_11_01_click() {}
void oefeningen::B_letters_11_01_click() {}
void oefeningen::B_onder_elkaar_11_01_click() {}
void oefeningen::B_pijl_1_11_06_click() {}
void oefeningen::B_pijl_2_11_06_click() {}
void oefeningen::B_schatten_11_01_click() {}
void oefeningen::B_waarde_11_01_click() {}
void oefeningen::L_na_de_komma_11_06_click() {}
void oefeningen::L_optellen_11_01_click() {}
void oefeningen::L_pijlverwijzing_11_06_click() {}
void oefeningen::L_samenstellen_11_06_click() {}
void oefeningen::L_schoolbord_11_06_click() {}
void oefeningen::M_dichtst_bij_11_06_click() {}
void oefeningen::M_grootste_kleinste_11_01_click() {}
void oefeningen::M_tabel_11_01_click() {}

} // namespace cijferwerf
