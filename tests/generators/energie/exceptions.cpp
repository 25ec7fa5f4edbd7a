#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions energy{
    {rank_forced, M_elektriciteit_1_00_19_click, "mistakes: 100 minutes (less), 100 watts and both (more)"},
    {double_blanks_meant, M_elektriciteit_2_00_19_click, "the third step is set apart"},
};

} // namespace
} // namespace cijferwerf
