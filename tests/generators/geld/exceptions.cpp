#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions money{
    {double_blanks_meant, B_spaarpot_05_07_click, "the sums of the explanation are joined by an \"en\" set apart"},
    {rank_forced, M_CDs_05_07_click, "mistakes: no discount, added to the price, for one CD alone; all cost more"},
    {step_not_exact, L_vreemd_geld_1_05_07_click, "a quotient that goes on is broken off, as its dots tell"},
};

} // namespace
} // namespace cijferwerf
