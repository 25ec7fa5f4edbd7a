#include "generators/gedeeld/tekening_tabel.h"

#include "runtime/stop_run.h"

#include <algorithm>

namespace cijferwerf {

tabel::tabel(drawing& on, int links, int boven, int breedte, int rijhoogte, std::vector<tabelkolom> kolommen)
    : on_(on),
      links_(links),
      breedte_(breedte),
      rijhoogte_(rijhoogte),
      y_(boven),
      kolommen_(std::move(kolommen)) {
    if (std::ranges::all_of(kolommen_, [](const tabelkolom& each) { return each.kop.empty(); })) return;
    const zelfde_stand bewaard(on);
    on.filled_box(links, boven, breedte, rijhoogte, on.fore_colour);
    on.fore_colour = letterkleur(on.fore_colour);
    for (std::size_t i = 0; i < kolommen_.size(); ++i) cel(i, kolommen_[i].kop);
    y_ += rijhoogte;
}

void tabel::cel(std::size_t column, std::string_view tekst) {
    if (column >= kolommen_.size()) stop_run("a row has more cells than the table has columns");
    const int top = y_ + rijhoogte_ / 2 - halve_regel(on_.text_size);
    while (tekst.starts_with(' ')) tekst.remove_prefix(1);
    if (kolommen_[column].rechts)
        on_.print_right(kolommen_[column].rand, top, kaal(tekst));
    else
        on_.print_at(kolommen_[column].rand, top, tekst);
}

void tabel::sluit_rij() {
    const zelfde_stand bewaard(on_);
    y_ += rijhoogte_;
    on_.line(links_, y_, links_ + breedte_, y_, letterkleur(on_.ground) == zwart ? lichtgrijs : grijs);
}

} // namespace cijferwerf
