// What an introduction screen says and shows: one idea in at most fifty words, and its example.
// A set is three of them, in a source of its own; a booklet has one set, and booklets 7 and 8 have one together.
#pragma once

#include "forms/introduction/voorbeeld.h"

#include <memory>

namespace cijferwerf {

// The frame under the text: "Probeer het zelf" says what can be done, "Onthoud" what to remember. Two lines at most.
struct leskader {
    std::string_view kop, tekst;
};
inline constexpr std::string_view probeer = "Probeer het zelf", onthoud = "Onthoud";

struct les {
    std::string_view titel;
    std::array<std::string_view, 4> alineas; // broken into lines by the screen; "" where there are fewer
    leskader kader;
    std::unique_ptr<voorbeeld> (*voorbeeld_ervan)();
};

// For the table of a set: `nieuw<honderdveld>`.
template<class Voorbeeld>
std::unique_ptr<voorbeeld> nieuw() {
    return std::make_unique<Voorbeeld>();
}

using lesreeks = std::array<les, 3>;

extern const lesreeks les_procenten, les_verhoudingen, les_breuken, les_grafieken, les_geld, les_tijd, les_meten,
    les_hoofdrekenen, les_schatten, les_getallen, les_cijferen;

// The set of booklet 1 to 12, or null for any other; and its first booklet, after which its screens are named.
struct inleiding {
    int boekje;
    const lesreeks* lessen;
};
const inleiding* zoek_inleiding(int boekje);

} // namespace cijferwerf
