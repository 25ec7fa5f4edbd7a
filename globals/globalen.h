// GLOBALEN: what is chosen before the practice screen opens, and the score record of the run.
// It scores nothing by itself; the explanation and the time-out do.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace cijferwerf {

inline constexpr std::string_view booklet_set = "TELMORA's CIJFERLOOP";
inline constexpr std::string_view task_set = "SOMMENWERF";

struct GLOBALEN {
    static constexpr int title_slots = 99;
    static constexpr int attempts = 4;

    std::string gekozen_pakket;    // title of the chosen course set
    std::string gekozen_onderdeel; // "boekje01" to "boekje12" or "taak01" to "taak20"
    std::string gekozen_oefening;  // title of the exercise last picked

    int aantalvragengedaan = 0; // exercises scored
    int goed_poging_1 = 0;      // ended at the first attempt, and so on
    int goed_poging_2 = 0;
    int goed_poging_3 = 0;
    int goed_poging_4 = 0; // at the fourth, and one more for every time-out
    std::array<std::string, title_slots> titellijst;
    std::array<std::array<int, attempts>, title_slots> scoretabel{};

    bool booklets() const { return gekozen_pakket == booklet_set; }

    void wis_score();

    // Counts an exercise with the chosen title that ended at this attempt, 1 to 4. Titles keep the order in which
    // they came. With every slot taken by another title, or an attempt outside 1 to 4, nothing is counted and a
    // checked_error is thrown.
    void tel_uitslag(int poging);

    // The earliest attempt at which this title ever ended, 1 to 4; 0 where none was counted.
    int beste_poging(std::string_view titel) const;
};

} // namespace cijferwerf
