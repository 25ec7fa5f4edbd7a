#include "tests/support/exceptions.h"

namespace cijferwerf {
namespace {

using enum oefening_id;
using enum exception_kind;

const exceptions percentages{
    {double_blanks_meant, L_snel_01_08_click, "the last line of the explanation sets the percentage apart"},
    {equal_answers_meant, M_hele_procenten_01_08_click, "a percentage of 0 is 0 whatever the mistake"},
    {answer_not_in_last_line, M_blessures_01_08_click, "the line before names the sport, the last its percentage"},
    {rank_forced, L_voetbal_01_08_click,
     "the mistakes are its percentage, the other club's supporters, and more than all the spectators"},
    {rank_forced, Z_kommaprocenten_01_08_click, "the mistakes are 1 %, ten times that, and ten times the answer"},
};

} // namespace
} // namespace cijferwerf
