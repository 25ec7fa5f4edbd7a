#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions mental_arithmetic{
    {double_blanks_meant, B_tafels_09_02_click, "blanks keep the columns of the table straight"},
    {double_blanks_meant, L_keer_09_02_click, "the first step has two behind its sign, as in the pupils' book"},
    {step_not_exact, B_tafels_09_02_click, "the table of 9 has 54 for 5 x 9, as in the pupils' book"},
};

} // namespace
} // namespace cijferwerf
