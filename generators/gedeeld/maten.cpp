#include "generators/gedeeld/maten.h"

#include <cstdlib>

namespace cijferwerf {

std::string factor_tekst(int macht) {
    return regel(kaal(groepen(tien_tot_de(std::abs(macht)))), " keer zo ", macht < 0 ? "klein" : "groot");
}

} // namespace cijferwerf
