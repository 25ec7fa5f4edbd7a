// The score: its record, its report on paper, its sheet, and the ways out of the practice screen beside it.
#include "forms/practice/score_report.h"
#include "forms/practice/scoreblad.h"

#include "tests/support/practising.h"

namespace cijferwerf {
namespace {

using lines = std::vector<std::string>;

// The lines that say something, as "size| column:text column:text".
lines as_lines(const report& page) {
    lines all;
    for (const report_line& line : page.lines) {
        if (line.cells.empty()) continue;
        std::string& text = all.emplace_back(std::to_string(static_cast<int>(line.size)) + '|');
        for (const report_cell& cell : line.cells) text += ' ' + std::to_string(cell.column) + ':' + cell.text;
    }
    return all;
}

TEST(score_report, has_totals_and_a_row_for_every_title_that_ended_at_some_attempt_in_the_order_in_which_they_came) {
    GLOBALEN score;
    score.gekozen_pakket = "SOMMENWERF";
    EXPECT_EQ(as_lines(score_report(score, "", {})).size(), 10U) << "nothing done, nothing analysed";
    const auto ended = [&score](const std::string& title, int attempt) {
        score.gekozen_oefening = title;
        score.tel_uitslag(attempt);
    };
    for (const int attempt : {1, 3, 1}) ended("rente", attempt);
    ended("snel!", 4);
    for (const auto& [title, best] : {std::pair{"rente", 1}, {"snel!", 4}, {"datum", 0}})
        EXPECT_EQ(score.beste_poging(title), best) << title;
    ++score.goed_poging_4;        // a time-out
    score.titellijst[2] = "leeg"; // a title without counts
    for (int i = 3; i < 99; ++i) ended("t" + std::to_string(i), 2);
    EXPECT_THROW(ended("for which there is no room", 1), checked_error);

    lines expected{"20| 0:SOMMENWERF",
                   "9| 0:Datum: 02/01/05 03:04 u",
                   "15| 0:HERHALING TAAK 1 T/M 4",
                   "9| 0:Aantal opgaven gedaan 30: 100",
                   "9| 0:bij eerste poging goed 30: 2",
                   "9| 4:tweede poging goed 30: 96",
                   "9| 4:derde poging goed 30: 1",
                   "9| 4:vierde poging goed 30: 2",
                   "15| 0:Analyse",
                   "9| 0:titel opgave    goed bij... 30:1e 35:2e 40:3e 45:4e",
                   "9| 0:rente 30:2 35:0 40:1 45:0",
                   "9| 0:snel! 30:0 35:0 40:0 45:1"};
    for (int i = 3; i < 99; ++i) expected.push_back(regel("9| 0:t", kaal(i), " 30:0 35:1 40:0 45:0"));
    EXPECT_EQ(as_lines(score_report(score, "HERHALING TAAK 1 t/m 4", {2005, 1, 2, 3, 4})), expected);
}

class score : public practising {
protected:
    score() { open(); }
    std::string shown() {
        std::string all;
        for (label& text : sheet.omschrijving) all += text.caption + text.caption_of->caption + ", ";
        return all;
    }
    scoreblad& sheet = forms.get<scoreblad>();
};

TEST_F(score, the_sheet_shows_the_counts_of_the_moment_it_is_opened_and_leaves_the_exercise_as_it_is) {
    ASSERT_TRUE(pupil.click(screen.score));
    EXPECT_TRUE(sheet.side_window && screen.loaded() && screen.score_bekeken == "ja");
    EXPECT_LE(sheet.wanted_place->y + sheet.height, screen.berichtvlak.top) << "it hides the messages";
    EXPECT_EQ(shown(), "aantal opgaven gedaan 0, eerste poging goed 0, tweede poging goed 0, derde poging goed 0, ");
    EXPECT_EQ(sheet.aantal_label.share, 0);
    solve("rente", 1);
    EXPECT_FALSE(sheet.loaded()) << "it hides the picture of the next exercise";
    pupil.click(screen.score);
    explain();
    EXPECT_EQ(shown(), "aantal opgaven gedaan 1, eerste poging goed 0, tweede poging goed 1, derde poging goed 0, ");
    pupil.click(screen.score); // while it is open still
    EXPECT_EQ(shown(), "aantal opgaven gedaan 2, eerste poging goed 0, tweede poging goed 2, derde poging goed 0, ");
    EXPECT_TRUE(sheet.nulfout_label.share == 0 && sheet.eenfout_label.share == 1);
    pupil.close(sheet);
    EXPECT_TRUE(screen.loaded() && !sheet.loaded() && !pupil.ended);
}

TEST_F(score, printing_sends_the_report_of_this_practice_and_tells_how_it_went) {
    solve("snel!", 3);
    pupil.click(screen.score);
    using enum print_result::outcome;
    for (const auto& [outcome, told] :
         {std::pair<print_result, const char*>{{printed, ""}, "Het rapport is naar de printer gestuurd."},
          {{no_printer, ""}, "Er is geen printer gevonden. Het rapport is niet afgedrukt."},
          {{failed, "het papier is op"}, "Het afdrukken is niet gelukt: het papier is op"}}) {
        pupil.print_outcome = outcome;
        pupil.click(sheet.afdrukken);
        EXPECT_EQ(pupil.boxes.back().text, told);
    }
    EXPECT_EQ(pupil.boxes.size(), 3U);
    EXPECT_EQ(as_lines(pupil.printed.at(0)),
              as_lines(score_report(forms.globalen, "BOEKJE 1 - PROCENTEN", pupil.date)));
    pupil.click(sheet.Command1);
    EXPECT_EQ(pupil.boxes.back().text, "aantalvragengedaan = 1");
}

TEST_F(score, the_way_back_takes_clock_and_sheet_along_unasked_and_asking_to_stop_lets_both_go_on) {
    present("snel!");
    answer(wrong());
    ASSERT_TRUE(pupil.click(screen.stopteken));
    pupil.wait(1000);
    EXPECT_EQ(std::pair(screen.pogingen, screen.tijdteller), std::pair(1, 1));
    sheet.show();
    ASSERT_TRUE(pupil.click(screen.terug));
    EXPECT_EQ(pupil.boxes.size(), 1U);
    EXPECT_FALSE(pupil.ended || screen.loaded() || sheet.loaded());
    pupil.wait(60'000);
    EXPECT_EQ(forms.globalen.goed_poging_4, 0);
}

} // namespace
} // namespace cijferwerf
