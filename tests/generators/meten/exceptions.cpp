#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions measures{
    {step_not_exact, L_optellen_1_07_09_click, "the sum on the picture adds measures of two units"},
    {step_not_exact, L_optellen_2_07_09_click, "the sum on the picture adds measures of two units"},
    {step_not_exact, L_optellen_08_17_click, "the sum on the picture adds measures of two units, and dag is no day"},
    {step_not_exact, L_snel_1_07_09_click, "the unit behind the equals sign is what is asked"},
    {step_not_exact, L_schilder_07_12_click, "a quotient with its rest"},
    {step_not_exact, M_behangen_07_09_click, "quotients with their rests"},
};

} // namespace
} // namespace cijferwerf
