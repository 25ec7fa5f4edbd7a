// The start form, on which the pupil chooses one of the two course sets.
// What a set offers is left to its menu.
#pragma once

#include "forms/formulieren.h"

namespace cijferwerf {

class codering : public form {
public:
    codering(outside& with, formulieren& forms);

    void close_requested() override { forms_.vraag_of_stoppen(*this); }

    void verder_click();
    void stoppen_click() { forms_.vraag_of_stoppen(*this); }

    frame kopbalk;
    label opschriftbalk, welkom, kies_label;
    option_button CLgekozen, SWgekozen;
    button verder, stoppen;

protected:
    void load() override;

private:
    formulieren& forms_;
};

} // namespace cijferwerf
