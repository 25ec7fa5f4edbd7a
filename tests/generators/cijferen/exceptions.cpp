#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions columns{
    {double_blanks_meant, M_maal_12_02_click, "the product and what is remembered are set apart"},
};

} // namespace
} // namespace cijferwerf
