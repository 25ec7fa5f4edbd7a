#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions circles{
    {places_not_even, B_cirkel_1_00_13_click, "the place is drawn against 0,4, 0,41 and 0,7"},
    {crossing_line_meant, M_in_elkaar_00_13_click, "the point of the arrow stands on the end of the radius"},
    {rank_forced, Z_fietswiel_00_13_click,
     "mistakes: two wrong units (a hundredth, a thousandth), half the wheel (2 x)"},
};

} // namespace
} // namespace cijferwerf
