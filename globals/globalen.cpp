#include "globals/globalen.h"

#include "runtime/stop_run.h"

#include <algorithm>

namespace cijferwerf {

void GLOBALEN::wis_score() {
    aantalvragengedaan = goed_poging_1 = goed_poging_2 = goed_poging_3 = goed_poging_4 = 0;
    titellijst.fill({});
    scoretabel = {};
}

void GLOBALEN::tel_uitslag(int poging) {
    const auto slot = std::ranges::find_if(
        titellijst, [this](const std::string& title) { return title == gekozen_oefening || title.empty(); });
    if (slot == titellijst.end()) stop_run("De scorelijst is vol: er is geen plaats voor een nieuwe titel.");
    if (poging < 1 || poging > attempts) stop_run("De score kent geen poging nummer " + std::to_string(poging) + ".");

    *slot = gekozen_oefening;
    ++aantalvragengedaan;
    ++(poging == 1 ? goed_poging_1 : poging == 2 ? goed_poging_2 : poging == 3 ? goed_poging_3 : goed_poging_4);
    ++scoretabel[static_cast<std::size_t>(slot - titellijst.begin())][static_cast<std::size_t>(poging - 1)];
}

int GLOBALEN::beste_poging(std::string_view titel) const {
    const auto slot = std::ranges::find(titellijst, titel);
    if (slot == titellijst.end()) return 0;
    const auto& counts = scoretabel[static_cast<std::size_t>(slot - titellijst.begin())];
    const auto best = std::ranges::find_if(counts, [](int count) { return count != 0; });
    return best == counts.end() ? 0 : static_cast<int>(best - counts.begin()) + 1;
}

} // namespace cijferwerf
