// The captions of the practice screen and the titles in its list have room, in the faces that the theme gives them.
#include "desktop/theme.h"
#include "forms/practice/mama.h"
#include "tests/desktop/screen.h"

#include <QFontMetricsF>

namespace cijferwerf {
namespace {

double width_in_face(const control& shown, std::string_view text) {
    const QString in_face = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return QFontMetricsF(theme::font(shown)).horizontalAdvance(in_face);
}

TEST(labels, of_the_practice_screen_have_room_for_their_captions) {
    desktop outside;
    formulieren forms(outside);
    mama& screen = forms.get<mama>();
    screen.zet_opschrift("BOEKJE 10 - MENGELING ALLERLEI", "", true);
    for (const control* shown : screen.controls())
        EXPECT_LE(width_in_face(*shown, shown->caption), shown->width - 2 * theme::padding(*shown)) << shown->name;
    const control& shown = screen.presentatielijst;
    for (const catalogue_list& list : catalogue())
        for (const catalogue_entry& entry : list.entries)
            EXPECT_LE(width_in_face(shown, entry.title), shown.width - 2 * theme::padding(shown) - 90) << entry.title;
}

// The lines of all exercises are measured by text_width.
TEST(labels, of_an_exercise_are_as_wide_in_their_face_as_they_are_laid_out) {
    desktop outside;
    formulieren forms(outside);
    mama& screen = forms.get<mama>();
    constexpr std::string_view line = "Daarna trek je één kwart van 1.250,50 euro af.";
    for (const control* shown : {&screen.vraag[2], &screen.alternatief[1], &screen.bericht[6]})
        EXPECT_NEAR(width_in_face(*shown, line), text_width(line, shown->font_size, 1.0), 3) << shown->name;
}

} // namespace
} // namespace cijferwerf
