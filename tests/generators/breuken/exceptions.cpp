#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions fractions{
    {double_blanks_meant, L_prijzen_03_03_click, "the sum of the explanation is set wide"},
    {simplest_form_asked, M_snel_03_03_click, "what can still be simplified is wrong"},
    {simplest_form_asked, L_optellen_03_14_click, "what can still be simplified, or lose a whole, is wrong"},
    {simplest_form_asked, M_aftrekken_03_14_click, "what can still be simplified, or lose a whole, is wrong"},
    {rank_forced, L_optellen_03_14_click, "the mistakes forget to simplify, or to take out a whole"},
};

} // namespace
} // namespace cijferwerf
