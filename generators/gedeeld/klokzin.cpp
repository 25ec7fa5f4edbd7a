#include "generators/gedeeld/klokzin.h"

#include "generators/gedeeld/telwoord.h"

namespace cijferwerf {

namespace {

std::string minuten_woord(int minuten) { return minuten == 15 ? "kwart" : telwoord(minuten); }

// The hour that a dial shows so many hours further.
std::string uurwoord(kloktijd tijd, int later) { return telwoord((tijd.uur() + later + 11) % 12 + 1); }

} // namespace

std::string klokzin(kloktijd tijd) {
    const int minuut = tijd.minuut();
    const std::string dit_uur = uurwoord(tijd, 0), volgend_uur = uurwoord(tijd, 1);
    if (minuut == 0) return dit_uur + " uur";
    if (minuut <= 15) return minuten_woord(minuut) + " over " + dit_uur;
    if (minuut < 30) return minuten_woord(30 - minuut) + " voor half " + volgend_uur;
    if (minuut == 30) return "half " + volgend_uur;
    if (minuut < 45) return minuten_woord(minuut - 30) + " over half " + volgend_uur;
    return minuten_woord(60 - minuut) + " voor " + volgend_uur;
}

} // namespace cijferwerf
