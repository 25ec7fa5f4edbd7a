// Every line that any exercise makes has room where the practice screen shows it.
#include "desktop/theme.h"
#include "forms/practice/explanation.h"
#include "forms/practice/mama.h"
#include "tests/desktop/screen.h"

#include <QFontMetricsF>

namespace cijferwerf {
namespace {

// Text without the blanks at its end, line by line.
std::vector<std::string> lines_of(const std::string& caption) {
    std::vector<std::string> lines(1);
    for (const char c : caption)
        if (c == '\r')
            lines.emplace_back();
        else
            lines.back() += c;
    for (std::string& line : lines) line.erase(line.find_last_not_of(' ') + 1);
    return lines;
}

class room : public testing::TestWithParam<int> {
protected:
    void fits(const control& shown, const std::string& caption, const std::string& where) {
        const auto lines = lines_of(caption);
        EXPECT_LE(static_cast<double>(lines.size()) * text_height(shown.font_size), shown.height + 1)
            << where << ": too many lines in \"" << caption << "\"";
        for (const std::string& line : lines) {
            // Measured in the face itself only where it is close.
            if (text_width(line, shown.font_size, 1.0) < 0.85 * shown.width) continue;
            EXPECT_LE(QFontMetricsF(theme::font(shown)).horizontalAdvance(QString::fromStdString(line)), shown.width)
                << where << ": \"" << line << "\"";
        }
    }
    void in_box(const drawing& shown, const std::string& where) {
        for (const drawing_op& op : shown.operations()) {
            const auto* text = std::get_if<text_op>(&op);
            if (text == nullptr || kaal(std::string_view(text->text)).empty()) continue;
            const std::string said = lines_of(text->text)[0];
            const auto blanks = said.substr(0, said.find_first_not_of(' '));
            constexpr double baseline = 0.905 * 20; // twips below the top, per point
            EXPECT_GE(text->x + text_width(blanks, text->size), 0) << where << ": \"" << said << "\"";
            EXPECT_LE(text->x + text_width(said, text->size), drawing::inner_width) << where << ": \"" << said << "\"";
            EXPECT_GE(text->y + digit_top(text->size), 0) << where << ": \"" << said << "\"";
            EXPECT_LE(text->y + baseline * text->size, drawing::inner_height) << where << ": \"" << said << "\"";
        }
    }

    desktop outside;
    formulieren forms{outside};
    mama& screen = forms.get<mama>();
};

TEST_P(room, is_enough_for_every_line_of_this_exercise) {
    const auto id = static_cast<oefening_id>(GetParam());
    for (std::uint32_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        screen.toeval.restart(seed);
        screen.maak(id);
        const std::string where = regel(naam(id), " seed ", seed, " variant ", screen.variant);
        for (int i = 1; i <= 7; ++i) fits(screen.vraag[i], screen.vraagregels[static_cast<std::size_t>(i - 1)], where);
        for (int i = 1; i <= 4; ++i) fits(screen.alternatief[i], screen.antwoord(i), where);
        for (const tekstregels* lines : {&screen.tipregels_1, &screen.tipregels_2, &screen.foutregels_2,
                                         &screen.foutregels_3, &screen.foutregels_4, &screen.uitlegregels})
            for (const std::string& line : *lines) fits(screen.bericht[1], line, where);
        in_box(screen.plaatje, where + " as presented");
        teken_opdrachten(screen.plaatje, screen.uitlegopdrachten);
        in_box(screen.plaatje, where + " with its explanation");
    }
}

INSTANTIATE_TEST_SUITE_P(every, room, testing::Range(0, static_cast<int>(alle_oefeningen().size())),
                         [](const auto& of) { return std::string(naam(static_cast<oefening_id>(of.param))); });

TEST(labels, of_the_practice_screen_have_room_for_their_captions) {
    desktop outside;
    formulieren forms(outside);
    mama& screen = forms.get<mama>();
    screen.kies("BOEKJE 10 - MENGELING ALLERLEI", "", true);
    for (const control* shown : screen.controls()) {
        const int room = shown->width - 2 * theme::padding(*shown);
        EXPECT_LE(QFontMetricsF(theme::font(*shown)).horizontalAdvance(QString::fromStdString(shown->caption)), room)
            << shown->name;
    }
    for (const catalogue_list& list : catalogue())
        for (const catalogue_entry& entry : list.entries) {
            const control& shown = screen.presentatielijst;
            const QString title = QString::fromUtf8(entry.title.data(), static_cast<qsizetype>(entry.title.size()));
            EXPECT_LE(QFontMetricsF(theme::font(shown)).horizontalAdvance(title),
                      shown.width - 2 * theme::padding(shown) - 90)
                << entry.title;
        }
}

} // namespace
} // namespace cijferwerf
