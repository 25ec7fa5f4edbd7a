#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions powers{
    {step_not_exact, M_fabriekshal_00_11_click, "three of the four people write or work out the cost wrongly"},
    {step_not_exact, M_stroopwafels_00_11_click, "three of the four pupils write or work out the number wrongly"},
};

} // namespace
} // namespace cijferwerf
