#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions time_and_dates{
    {equal_answers_meant, B_datum_06_04_click, "day and month exchanged are the same date where both are one number"},
};

} // namespace
} // namespace cijferwerf
