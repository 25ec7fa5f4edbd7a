// All exercise generators, as methods that fill the record of the exercise they belong to, and their table.
// Each family is written in a source file of its own; which titles run them is the catalogue's.
#pragma once

#include "generators/oefening.h"

#include <optional>
#include <span>

namespace cijferwerf {

class oefeningen;

enum class oefening_id : std::uint8_t {
#define OEFENING(name) name,
#include "generators/oefeningen.def"
#undef OEFENING
};

class oefeningen : public oefening {
public:
    using oefening::oefening;

    // Makes a fresh exercise: blanks the record and the picture box, raises the variant, seeds the draws from the
    // clock, runs the generator (none: the record stays blank), and puts a blank in front of every answer that has
    // none.
    void maak(std::optional<oefening_id> generator);

#define OEFENING(name) void name();
#include "generators/oefeningen.def"
#undef OEFENING
};

struct oefening_soort {
    std::string_view name;
    void (oefeningen::*maak)();
};

// The table of generators, by id.
std::span<const oefening_soort> alle_oefeningen();
inline std::string_view naam(oefening_id id) { return alle_oefeningen()[static_cast<std::size_t>(id)].name; }
// The generator of this exact name.
std::optional<oefening_id> zoek_oefening(std::string_view name);

} // namespace cijferwerf
