#include "generators/gedeeld/tekening_lijn.h"

#include "generators/gedeeld/telwoord.h"

namespace cijferwerf {

namespace {

constexpr int half_mark = 65, half_long_mark = 110;

} // namespace

getallenlijn::getallenlijn(drawing& on, int links, int rechts, int y, int delen)
    : on_(on),
      links_(links),
      rechts_(rechts),
      y_(y),
      delen_(delen) {
    vertel(on, "Een getallenlijn in ", telwoord(delen), " gelijke stukjes.");
    const zelfde_stand bewaard(on, 2);
    on.line(links, y, rechts, y, on.fore_colour);
    for (int i = 0; i <= delen; ++i) {
        const int half = i == 0 || i == delen ? half_long_mark : half_mark;
        on.line(x(i), y - half, x(i), y + half, on.fore_colour);
    }
}

int getallenlijn::x(int streepje) const { return links_ + (rechts_ - links_) * streepje / delen_; }

plakregel getallenlijn::woord(int streepje) const {
    return streepje == 0        ? "het begin"
           : streepje == delen_ ? "het eind"
                                : plak_even({"het ", rangtelwoord(streepje), " streepje"});
}

void getallenlijn::getal(int streepje, std::string_view tekst) {
    vertel(on_, "Bij ", woord(streepje), " staat ", tekst, ".");
    const verteld_als stil(on_);
    const zelfde_stand bewaard(on_, 2);
    on_.line(x(streepje), y_ - half_long_mark, x(streepje), y_ + half_long_mark, on_.fore_colour);
    on_.print_centred(x(streepje), y_ + half_long_mark + 20, tekst);
}

void getallenlijn::pijl(int streepje, kleur met, std::string_view naam, int lengte) {
    vertel(on_, "De ", bijvoeglijk(met), " pijl wijst naar ", woord(streepje), ".");
    const verteld_als stil(on_);
    const int tip = y_ - half_long_mark - 20;
    teken_pijl(on_, {x(streepje), tip - lengte}, {x(streepje), tip}, met);
    on_.print_centred(x(streepje), tip - lengte - text_height(on_.text_size), naam);
}

} // namespace cijferwerf
