#include "globals/globalen.h"

#include "runtime/checked_error.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(score_record, counts_a_title_in_one_slot_by_attempt) {
    GLOBALEN globalen;
    globalen.gekozen_oefening = "rente";
    globalen.tel_uitslag(2);
    globalen.gekozen_oefening = "alcohol";
    globalen.tel_uitslag(4);
    globalen.gekozen_oefening = "rente";
    globalen.tel_uitslag(1);
    globalen.tel_uitslag(3);

    EXPECT_EQ(globalen.titellijst[0], "rente");
    EXPECT_EQ(globalen.titellijst[1], "alcohol");
    EXPECT_EQ(globalen.titellijst[2], "");
    EXPECT_EQ(globalen.scoretabel[0], (std::array{1, 1, 1, 0}));
    EXPECT_EQ(globalen.scoretabel[1], (std::array{0, 0, 0, 1}));
    EXPECT_EQ(globalen.aantalvragengedaan, 4);
    EXPECT_EQ(globalen.goed_poging_1, 1);
    EXPECT_EQ(globalen.goed_poging_2, 1);
    EXPECT_EQ(globalen.goed_poging_3, 1);
    EXPECT_EQ(globalen.goed_poging_4, 1);

    globalen.wis_score();
    EXPECT_EQ(globalen.aantalvragengedaan + globalen.goed_poging_1 + globalen.goed_poging_4, 0);
    EXPECT_EQ(globalen.titellijst[0], "");
    EXPECT_EQ(globalen.scoretabel[0], (std::array{0, 0, 0, 0}));
    EXPECT_EQ(globalen.gekozen_oefening, "rente");
}

TEST(score_record, refuses_a_hundredth_title_and_an_attempt_that_cannot_be) {
    GLOBALEN globalen;
    for (int i = 1; i <= GLOBALEN::title_slots; ++i) {
        globalen.gekozen_oefening = "titel " + std::to_string(i);
        globalen.tel_uitslag(1);
    }
    globalen.gekozen_oefening = "nog een";
    EXPECT_THROW(globalen.tel_uitslag(1), checked_error);
    globalen.gekozen_oefening = "titel 99";
    EXPECT_THROW(globalen.tel_uitslag(0), checked_error);
    EXPECT_THROW(globalen.tel_uitslag(5), checked_error);
    EXPECT_EQ(globalen.aantalvragengedaan, 99);
    globalen.tel_uitslag(2);
    EXPECT_EQ(globalen.scoretabel[98], (std::array{1, 1, 0, 0}));
}

} // namespace
} // namespace cijferwerf
