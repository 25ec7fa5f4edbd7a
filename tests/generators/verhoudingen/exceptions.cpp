#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions ratios{
    {rank_forced, L_museum_02_16_click, "mistakes: divided by one more (less), the others and the product (more)"},
    {rank_forced, M_fietspad_2_02_16_click, "mistakes: a tenth and a hundredth of the scale, and ten times as much"},
    {rank_forced, Z_tuinman_02_16_click, "mistakes: the potting soil and the wrong divisor (less), the product (more)"},
};

} // namespace
} // namespace cijferwerf
