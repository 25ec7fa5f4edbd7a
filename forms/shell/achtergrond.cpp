#include "forms/shell/achtergrond.h"

#include "forms/marks.h"
#include "forms/shell/codering.h"

namespace cijferwerf {

achtergrond::achtergrond(outside& with, formulieren& forms) : form(with, "achtergrond"), forms_(forms) {
    add(merk, "merk", {5340, 1800, 1800, 1800}, theme_role::heading);
    merk.mark = programmateken();
    add(naam, "naam", {1240, 3900, 10000, 1100}, theme_role::title, program_name);
    naam.font_size = 36;
    add(ondertitel, "ondertitel", {1240, 5000, 10000, 500}, theme_role::title, "oefenen met rekenen");
    ondertitel.font_size = 15;
    ondertitel.subdued = true;
    add(Timer1, "Timer1", 1000);
    Timer1.tick = [this] { Timer1_tick(); };
}

void achtergrond::Timer1_tick() {
    forms_.get<codering>().show();
    Timer1.stop();
}

} // namespace cijferwerf
