// The score sheet: shows the totals of this practice beside the practice screen and prints the report.
// It counts nothing; what the report says is composed in score_report.
#pragma once

#include "forms/formulieren.h"

namespace cijferwerf {

class scoreblad : public form {
public:
    scoreblad(outside& with, formulieren& forms);

    void afdrukken_click();
    void Command1_click();
    void sluiten_click() { unload(); }

    frame kopbalk, vlak;
    label opschriftbalk;
    control_array<label, 1, 4> omschrijving;
    label aantal_label, nulfout_label, eenfout_label, tweefout_label;
    button afdrukken, Command1, sluiten;

protected:
    void load() override;

private:
    formulieren& forms_;
};

} // namespace cijferwerf
