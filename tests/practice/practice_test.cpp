// The practice screen as a pupil goes through it, on a front end without a screen.
#include "tests/support/operation_text.h"
#include "tests/support/practising.h"
#include "tests/support/seen.h"

#include <regex>
#include <set>

namespace cijferwerf {
namespace {

class practice : public practising {
protected:
    practice() { open(); }

    // What stands under the verdict.
    std::string messages() {
        std::string all;
        for (int i = 1; i <= 6; ++i)
            if (!kaal(screen.bericht[i].caption).empty()) all += screen.bericht[i].caption + ' ';
        return all;
    }
    std::string heard() { return std::exchange(screen.announcement, ""); }

    // What can be picked, what became of the answers (in capitals: it can be given), the band of the messages, and
    // where the focus was sent. Answers and messages are there together or not at all.
    std::string seen() {
        std::string answers;
        for (int i = 1; i <= 4; ++i) {
            const bool enabled = screen.knop[i].enabled && screen.alternatief[i].enabled;
            EXPECT_EQ(screen.knop[i].visible, screen.berichtvlak.visible);
            EXPECT_NE(screen.knop[i].visible, screen.kies_opgave.visible);
            answers += (enabled ? "OTRU" : "otru")[static_cast<int>(screen.knop[i].result)];
        }
        EXPECT_EQ(screen.berichtvlak.tone, screen.bericht[0].tone);
        const std::string_view tones[]{"", "+", "-"};
        const control* focus = std::exchange(screen.focus, nullptr);
        return regel(screen.presentatielijst.enabled ? "list " : "", screen.score.enabled ? "score " : "",
                     screen.info.enabled ? "info " : "", screen.berichtvlak.visible ? answers : "nothing yet", " ",
                     screen.uitleg_bericht.caption, tones[static_cast<int>(screen.berichtvlak.tone)],
                     screen.berichtvlak.quiet ? " quiet" : "", screen.uitleggeven.visible ? " explain" : "", " > ",
                     focus == nullptr ? "off" : focus->name);
    }
};

TEST_F(practice, what_can_be_done_and_what_is_told_follows_the_exercise_from_picking_to_explanation) {
    const std::pair<std::function<void()>, const char*> steps[]{
        {[] {}, "list score info nothing yet  quiet > presentatielijst"},
        {[&] { pupil.pick_by_enter(screen.presentatielijst, -1); }, "list score info nothing yet  quiet > off"},
        {[&] { pupil.pick_by_enter(screen.presentatielijst, 0); }, "OOOO UITLEG/BERICHT quiet > knop"},
        {[&] { present("rente"); }, "OOOO UITLEG/BERICHT quiet > off"}, // not before this one is answered
        {[&] { screen.juiste_letter = "B", answer(3); }, "OOtO BERICHT- > off"},
        {[&] { answer(3), answer(1); }, "tOtO BERICHT- > off"},
        {[&] { answer(2); }, "list trtu UITLEG+ explain > uitleggeven"},
        {[&] { explain(); }, "list score info trtu UITLEG+ explain > presentatielijst"},
        {[&] { present("snel!"), screen.juiste_letter = "D"; }, "OOOO UITLEG/BERICHT quiet > knop"},
        {[&] { pupil.wait(60'000); }, "list uuur UITLEG+ explain > uitleg_bericht"},
        {[&] { open(); }, "list score info nothing yet  quiet > presentatielijst"},
    };
    for (int step = 0; const auto& [act, expected] : steps) {
        act();
        EXPECT_EQ(seen(), expected) << step++;
    }
}

TEST_F(practice, nothing_of_the_exercise_before_is_left) {
    present("snel!");
    answer_right();
    screen.presentatielijst.items.emplace_back("onbekend"); // without a generator: a blank record
    ASSERT_TRUE(present("onbekend"));
    for (const control* each : screen.controls())
        EXPECT_TRUE(kaal(each->caption).empty() || (each->name != "vraag" && each->name != "alternatief"))
            << each->name;
    EXPECT_EQ(kaal(screen.bericht[0].caption + messages()), "");
    EXPECT_TRUE(screen.plaatje.operations().empty() && screen.plaatje.ground == wit);
    EXPECT_EQ(screen.variant, 2) << "counts on across titles";
    EXPECT_FALSE(screen.Timer1.enabled || screen.tijdlimiet != 0 || screen.pogingen != 0);
    open(task_set, "taak99"); // does not exist
    pupil.pick(screen.presentatielijst, 0);
    EXPECT_TRUE(screen.presentatielijst.items.empty() && screen.kies_opgave.visible);
}

// ---- answering ----

// The answers stand in one of four orders, or where their exercise puts them.
TEST_F(practice, each_button_says_whether_its_answer_is_right_and_comments_on_it_or_tips_by_the_attempt) {
    const std::regex no("niet|[Ff]out|verkeerd");
    std::set<std::string> orders, last_hints;
    std::set<std::pair<int, std::string>> verdicts;
    for (int n = 0; n < 200; ++n) {
        const bool fixed = n % 2 == 0, tips = fixed;
        ASSERT_TRUE(present(fixed ? "rente" : "examen"));
        std::string order;
        for (label& shown : screen.alternatief)
            for (int which = 1; which <= 4; ++which)
                if (shown.caption == screen.antwoord(which)) order += std::to_string(which);
        orders.insert(order);
        EXPECT_EQ(screen.juiste_positie, fixed ? right() : 0);
        EXPECT_EQ(order.find('1') + 1, fixed ? 1 : static_cast<std::size_t>(right()));
        EXPECT_EQ(screen.alternatief[4].font_size, 13) << "as large as short answers can be";
        for (int attempt = 1; attempt <= 3; ++attempt) {
            const int i = wrong(n % 4 < 2 ? attempt : 4 - attempt);
            ASSERT_TRUE(answer(i));
            EXPECT_FALSE(answer(i));
            verdicts.emplace(i, screen.bericht[0].caption);
            EXPECT_TRUE(std::regex_search(screen.bericht[0].caption, no));
            EXPECT_EQ(heard() + ' ', screen.bericht[0].caption + ' ' + messages());
            EXPECT_TRUE(screen.knop[i].accessible_name.ends_with(", fout"));
            if (!tips)
                EXPECT_EQ(messages(), joined(screen.foutregels(order[static_cast<std::size_t>(i - 1)] - '0')));
            else if (attempt == 3)
                last_hints.insert(messages());
            else
                EXPECT_EQ(messages(), joined(attempt == 1 ? screen.tipregels_1 : screen.tipregels_2));
            for (const label* told : {&screen.bericht[0], &screen.bericht[1], &screen.uitleg_bericht})
                EXPECT_TRUE(told->colour == rood && !told->subdued);
        }
        answer_right();
        verdicts.emplace(right(), screen.bericht[0].caption);
        EXPECT_FALSE(std::regex_search(screen.bericht[0].caption, no));
        EXPECT_TRUE(screen.knop[right()].accessible_name.ends_with(", goed"));
        EXPECT_TRUE(screen.bericht[0].colour == groen && screen.bericht[6].subdued);
        EXPECT_NE(messages(), "") << "they go on";
    }
    EXPECT_EQ(orders, (std::set<std::string>{"1234", "2143", "3412", "4321"}));
    EXPECT_EQ(verdicts.size(), 16U);
    EXPECT_EQ(last_hints.size(), 4U);
}

TEST_F(practice, the_explanation_shows_six_lines_draws_and_scores_each_time_it_is_asked) {
    present("hele procenten");
    screen.uitlegopdrachten = {"PRINT_10_20_1_8_x", " ", "PRINT_10_20_1_8_y", " ", " ", " ", " "};
    answer(wrong());
    answer_right();
    explain();
    EXPECT_EQ(messages(), joined(screen.uitlegregels));
    EXPECT_EQ(heard() + ' ', messages());
    EXPECT_TRUE(screen.bericht[3].colour == donkerblauw && !screen.bericht[3].subdued);
    EXPECT_EQ(as_texts(screen.plaatje).back(), "text 10,20 colour 1 size 8 \"x\"");
    explain();
    EXPECT_EQ(std::pair(forms.globalen.aantalvragengedaan, forms.globalen.goed_poging_2), std::pair(2, 2));
}

TEST_F(practice, the_list_marks_what_is_in_the_score_record_which_only_activation_blanks) {
    using enum list_box::item_mark;
    const auto mark = [this](int item) { return screen.presentatielijst.marks.at(static_cast<std::size_t>(item)); };
    const int rente = position("rente"), alcohol = position("alcohol");
    solve("rente", 1);
    EXPECT_EQ(mark(rente), later);
    solve("rente", 0);
    present("alcohol");
    answer_right();
    EXPECT_EQ(mark(alcohol), none) << "unexplained is not scored";
    explain();
    solve("rente", 1);
    screen.show();
    EXPECT_TRUE(mark(rente) == first && mark(alcohol) == first);
    screen.open();
    EXPECT_TRUE(mark(rente) == none && mark(alcohol) == none && forms.globalen.aantalvragengedaan == 0);
}

// ---- the clock ----

TEST_F(practice, the_clock_blackens_the_bar_and_counts_down_until_the_exercise_ends_at_the_fourth_attempt) {
    open(task_set, "taak11");
    const auto last_box = [this] { return std::get<box_op>(screen.plaatje.operations().back()); };
    for (const auto& [limit, expected] :
         {std::pair{5, "Nog 3 tellen. "}, {7, "Nog 3 tellen. "}, {9, "Nog 4 tellen. Nog 3 tellen. "}}) {
        present("snel!");
        ASSERT_EQ(screen.tijdlimiet, limit);
        const box_op bar = last_box();
        EXPECT_EQ(bar.pen.colour, geel);
        answer(wrong());
        heard();
        std::string all;
        for (int tick = 1; tick < limit; ++tick) {
            pupil.wait(1000);
            const box_op gone = last_box();
            EXPECT_EQ(std::tuple(gone.pen.colour, gone.x, gone.y, gone.width * (limit - 1)),
                      std::tuple(zwart, bar.x, bar.y, bar.width * tick));
            if (const std::string now = heard(); !now.empty()) all += now + ' ';
        }
        pupil.wait(60'000);
        EXPECT_EQ(all + heard(), expected + ("De tijd is om. Het goede antwoord was " + screen.juiste_letter) + ".");
        EXPECT_EQ(as_texts(screen.plaatje).back(), "text 1800,1500 colour 14 size 20 \"Jammer....!\"");
        EXPECT_EQ(std::tuple(screen.pogingen, screen.tijdteller, screen.bericht[0].caption), std::tuple(4, limit, ""));
    }
    explain();
    EXPECT_EQ(forms.globalen.goed_poging_4, 4) << "the explanation counts once more";
    EXPECT_EQ(forms.globalen.scoretabel[0], (std::array{0, 0, 0, 1}));
}

TEST_F(practice, a_right_answer_hushes_the_clock_and_the_explanation_stops_it) {
    present("snel!");
    EXPECT_TRUE(screen.knop[3].description.starts_with("Kijk hiernaast. Je hebt niet zo veel tijd! Hoeveel % is "));
    answer_right();
    EXPECT_EQ(heard(), screen.bericht[0].caption);
    pupil.wait(6000);
    EXPECT_EQ(heard(), "") << "who has answered is not hurried";
    explain();
    pupil.wait(60'000);
    EXPECT_EQ(std::pair(screen.tijdteller, forms.globalen.goed_poging_4), std::pair(6, 0));
    present("snel!");
    answer_right();
    pupil.wait(60'000);
    EXPECT_EQ(screen.focus, &screen.uitleggeven) << "it went while an answer was looked at";
    EXPECT_EQ(forms.globalen.goed_poging_4, 1);
}

} // namespace
} // namespace cijferwerf
