// The credits screens, one for each course set: a click or a key leads on to the menu of the set.
#pragma once

#include "forms/formulieren.h"

#include <array>
#include <string_view>

namespace cijferwerf {

class colofon : public form {
public:
    static constexpr int lines = 4;
    using credit_lines = std::array<std::string_view, lines>;

    void close_requested() override { forms_.vraag_of_stoppen(*this); }

    void klik_click();

    frame klik; // the whole screen
    frame kaart, streep;
    label merk, titel, versie;
    control_array<label, 1, lines> regels;
    button verder; // does the same where no pointer is at hand

protected:
    colofon(outside& with, formulieren& forms, std::string form_name, std::string_view set,
            const credit_lines& credits);

    void load() override { focus = &verder; }

private:
    formulieren& forms_;
};

class colofoncl : public colofon {
public:
    colofoncl(outside& with, formulieren& forms);
};

class colofonsw : public colofon {
public:
    colofonsw(outside& with, formulieren& forms);
};

} // namespace cijferwerf
