// The score: its sheet, its report on paper, and the ways out of the practice screen beside it.
#include "forms/practice/score_report.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/menu.h"

#include "tests/support/practising.h"

#include <sstream>

namespace cijferwerf {
namespace {

// A line as "size| column:text column:text".
std::vector<std::string> as_lines(const report& page) {
    std::vector<std::string> lines;
    for (const report_line& line : page.lines) {
        std::ostringstream out;
        out << line.size << '|';
        for (const report_cell& cell : line.cells) out << ' ' << cell.column << ':' << cell.text;
        lines.push_back(out.str());
    }
    return lines;
}

using lines = std::vector<std::string>;

constexpr local_time new_year{2005, 1, 2, 3, 4};

TEST(score_report, with_nothing_done_has_its_totals_and_an_empty_analysis) {
    GLOBALEN score;
    score.gekozen_pakket = "SOMMENWERF";
    EXPECT_EQ(as_lines(score_report(score, "HERHALING TAAK 1 t/m 4", new_year)),
              (lines{
                  "20| 0:SOMMENWERF",
                  "20|",
                  "20|",
                  "9| 0:Datum: 02/01/05 03:04 u",
                  "15| 0:HERHALING TAAK 1 T/M 4",
                  "9|",
                  "9| 0:Aantal opgaven gedaan 30: 0",
                  "9| 0:bij eerste poging goed 30: 0",
                  "9| 4:tweede poging goed 30: 0",
                  "9| 4:derde poging goed 30: 0",
                  "9| 4:vierde poging goed 30: 0",
                  "9|",
                  "15| 0:Analyse",
                  "9|",
                  "9| 0:titel opgave    goed bij... 30:1e 35:2e 40:3e 45:4e",
              }));
}

TEST(score_report, has_a_row_for_every_title_that_ended_at_some_attempt_in_the_order_in_which_they_came) {
    GLOBALEN score;
    const auto ended = [&score](const char* title, int attempt) {
        score.gekozen_oefening = title;
        score.tel_uitslag(attempt);
    };
    ended("rente", 1);
    ended("snel!", 4);
    ended("rente", 3);
    ended("rente", 1);
    ++score.goed_poging_4;        // a time-out
    score.titellijst[2] = "leeg"; // a title without counts
    for (int i = 3; i < 99; ++i) ended(("t" + std::to_string(i)).c_str(), 2);

    const lines printed = as_lines(score_report(score, "", new_year));
    EXPECT_EQ(lines(printed.begin() + 6, printed.begin() + 11), (lines{
                                                                    "9| 0:Aantal opgaven gedaan 30: 100",
                                                                    "9| 0:bij eerste poging goed 30: 2",
                                                                    "9| 4:tweede poging goed 30: 96",
                                                                    "9| 4:derde poging goed 30: 1",
                                                                    "9| 4:vierde poging goed 30: 2",
                                                                }));
    ASSERT_EQ(printed.size(), 15U + 2 + 96);
    EXPECT_EQ(printed[15], "9| 0:rente 30:2 35:0 40:1 45:0");
    EXPECT_EQ(printed[16], "9| 0:snel! 30:0 35:0 40:0 45:1");
    EXPECT_EQ(printed.back(), "9| 0:t98 30:0 35:1 40:0 45:0");
}

class score : public practising {
protected:
    score() { open(); }
    lines values() const {
        return {sheet.aantal_label.caption, sheet.nulfout_label.caption, sheet.eenfout_label.caption,
                sheet.tweefout_label.caption};
    }

    // Goes past the time of the exercise that is open.
    void time_out() { pupil.wait(1000 * screen.tijdlimiet); }

    scoreblad& sheet = forms.get<scoreblad>();
};

TEST_F(score, the_sheet_shows_the_counts_of_the_moment_it_is_opened) {
    ASSERT_TRUE(pupil.click(screen.score));
    EXPECT_EQ(screen.score_bekeken, "ja");
    EXPECT_TRUE(sheet.loaded() && screen.loaded());
    EXPECT_TRUE(sheet.side_window);
    EXPECT_EQ(sheet.caption, "SCORE");
    EXPECT_EQ(values(), (lines{" 0", " 0", " 0", " 0"}));

    present("rente");
    answer(wrong());
    answer_right();
    explain();
    EXPECT_EQ(values(), (lines{" 0", " 0", " 0", " 0"}));
    pupil.click(screen.score); // while it is open still
    EXPECT_EQ(values(), (lines{" 1", " 0", " 1", " 0"}));
    EXPECT_TRUE(sheet.loaded());
    pupil.click(sheet.sluiten);
    EXPECT_FALSE(sheet.loaded());
}

TEST_F(score, the_sheet_beside_an_exercise_leaves_it_as_it_is) {
    pupil.click(screen.score);
    present("snel!");
    pupil.wait(2000);
    answer(wrong());
    pupil.close(sheet);
    EXPECT_FALSE(sheet.loaded());
    pupil.wait(1000);
    EXPECT_EQ(screen.pogingen, 1);
    EXPECT_EQ(screen.tijdteller, 3);
    EXPECT_FALSE(pupil.ended);
}

TEST_F(score, a_time_out_that_is_explained_counts_twice_in_the_fourth_total_and_once_for_its_title) {
    present("snel!");
    time_out();
    explain();
    pupil.click(screen.score);
    EXPECT_EQ(values(), (lines{" 1", " 0", " 0", " 0"}));
    pupil.click(sheet.afdrukken);
    ASSERT_EQ(pupil.printed.size(), 1U);
    const lines printed = as_lines(pupil.printed[0]);
    EXPECT_EQ(printed.at(0), "20| 0:TELMORA's CIJFERLOOP");
    EXPECT_EQ(printed.at(3), "9| 0:Datum: 09/03/24 14:05 u");
    EXPECT_EQ(printed.at(4), "15| 0:BOEKJE 1 - PROCENTEN");
    EXPECT_EQ(printed.at(10), "9| 4:vierde poging goed 30: 2");
    EXPECT_EQ(printed.back(), "9| 0:snel! 30:0 35:0 40:0 45:1");
}

TEST_F(score, printing_tells_how_it_went) {
    using enum print_result::outcome;
    const std::pair<print_result, const char*> rows[]{
        {{printed, ""}, "Het rapport is naar de printer gestuurd."},
        {{no_printer, ""}, "Er is geen printer gevonden. Het rapport is niet afgedrukt."},
        {{failed, "het papier is op"}, "Het afdrukken is niet gelukt: het papier is op"},
    };
    pupil.click(screen.score);
    for (const auto& [outcome, told] : rows) {
        pupil.print_outcome = outcome;
        pupil.click(sheet.afdrukken);
        EXPECT_EQ(pupil.boxes.back().text, told);
    }
    EXPECT_EQ(pupil.boxes.size(), std::size(rows));
}

TEST_F(score, the_diagnostics_of_sheet_and_screen_tell_the_count) {
    present("rente");
    answer_right();
    explain();
    explain();
    pupil.click(screen.score);
    pupil.click(sheet.Command1);
    pupil.run([this] { screen.toon_aantalvragengedaan(); });
    EXPECT_EQ(pupil.boxes.at(0).text, "aantalvragengedaan = 2");
    EXPECT_EQ(pupil.boxes.at(1).text, "aantalvragengedaan = 2");
}

// ---- leaving, whatever stands on the screen ----

class leaving : public score {
protected:
    // Runs the check at every moment of an exercise, each on a screen of its own.
    template<class Check>
    void at_every_moment(Check check) {
        const auto asked = [this] { present("snel!"); };
        const auto wronged = [=, this] { asked(), answer(wrong()); };
        const auto righted = [=, this] { asked(), answer_right(); };
        const auto explained = [=, this] { righted(), explain(); };
        const auto timed_out = [=, this] { asked(), time_out(); };
        const std::pair<const char*, std::function<void()>> moments[]{
            {"nothing presented", [] {}},     {"before an answer", asked},     {"after a wrong one", wronged},
            {"after the right one", righted}, {"after a time-out", timed_out}, {"after the explanation", explained},
        };
        for (const auto& [name, reach] : moments) {
            SCOPED_TRACE(name);
            pupil.boxes.clear();
            open();
            reach();
            check();
        }
    }
};

TEST_F(leaving, back_goes_to_the_menu_unasked_and_takes_clock_and_sheet_along) {
    at_every_moment([this] {
        sheet.show();
        const int ended = forms.globalen.goed_poging_4;
        ASSERT_TRUE(pupil.click(screen.terug));
        EXPECT_TRUE(pupil.boxes.empty());
        EXPECT_TRUE(forms.get<menucl>().loaded());
        EXPECT_FALSE(screen.loaded());
        EXPECT_FALSE(sheet.loaded());
        pupil.wait(60'000);
        EXPECT_EQ(forms.globalen.goed_poging_4, ended);
        forms.get<menucl>().unload();
    });
    open(task_set, "taak01");
    pupil.click(screen.terug);
    EXPECT_TRUE(forms.get<menusw>().loaded());
}

TEST_F(leaving, asking_to_stop_and_staying_changes_nothing) {
    at_every_moment([this] {
        const auto seen = [this] {
            lines all{std::to_string(screen.pogingen), std::to_string(screen.tijdteller)};
            for (const control* each : screen.controls())
                all.push_back(regel(each->name, each->caption, int{each->enabled}, int{each->visible}));
            return all;
        };
        const auto before = seen();
        ASSERT_TRUE(pupil.click(screen.stopteken));
        EXPECT_EQ(pupil.boxes.size(), 1U);
        EXPECT_EQ(seen(), before);
        EXPECT_FALSE(pupil.ended);
    });
}

} // namespace
} // namespace cijferwerf
