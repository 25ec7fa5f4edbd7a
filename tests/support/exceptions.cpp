#include "tests/support/exceptions.h"

#include <set>
#include <utility>

namespace cijferwerf {

namespace {

std::set<std::pair<exception_kind, oefening_id>>& all_exceptions() {
    static std::set<std::pair<exception_kind, oefening_id>> all;
    return all;
}

} // namespace

exceptions::exceptions(std::initializer_list<row> rows) {
    for (const row& each : rows) all_exceptions().insert({each.kind, each.generator});
}

bool excepted(exception_kind kind, oefening_id generator) { return all_exceptions().contains({kind, generator}); }

} // namespace cijferwerf
