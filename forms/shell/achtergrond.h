// The background form on which the program opens: the program's name, until its timer brings up the start form.
#pragma once

#include "forms/formulieren.h"

namespace cijferwerf {

class achtergrond : public form {
public:
    achtergrond(outside& with, formulieren& forms);

    void close_requested() override { buiten.end(); }

    void Timer1_tick();

    label merk, naam, ondertitel;
    timer Timer1;

protected:
    void load() override { Timer1.start(); }

private:
    formulieren& forms_;
};

} // namespace cijferwerf
