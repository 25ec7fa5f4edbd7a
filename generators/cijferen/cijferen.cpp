#include "generators/oefeningen.h"

namespace cijferwerf {

// Not written yet: it leaves the record blank.
void oefeningen::M_snel_12_06_click() {}

} // namespace cijferwerf
