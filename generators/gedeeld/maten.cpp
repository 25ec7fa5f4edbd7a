#include "generators/gedeeld/maten.h"

#include <cstdlib>

namespace cijferwerf {

plakregel factor_tekst(int macht) {
    return plak_even({kaal(groepen(tien_tot_de(std::abs(macht)))), " keer zo ", macht < 0 ? "klein" : "groot"});
}

} // namespace cijferwerf
