#include "generators/oefeningen.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr oefening_soort soorten[]{
#define OEFENING(name) {#name, &oefeningen::name},
#include "generators/oefeningen.def"
#undef OEFENING
};

} // namespace

std::span<const oefening_soort> alle_oefeningen() { return soorten; }

std::optional<oefening_id> zoek_oefening(std::string_view name) {
    const auto found = std::ranges::find(soorten, name, &oefening_soort::name);
    if (found == std::end(soorten)) return std::nullopt;
    return static_cast<oefening_id>(found - std::begin(soorten));
}

void oefeningen::maak(std::optional<oefening_id> generator) {
    maak_leeg();
    plaatje.reset();
    ++variant;
    zaai();
    if (generator) (this->*soorten[static_cast<std::size_t>(*generator)].maak)();
    for (int i = 1; i <= 4; ++i)
        if (!std::string_view(antwoord(i)).starts_with(' ')) antwoord(i) = plak_even({leeg, antwoord(i)});
}

} // namespace cijferwerf
