// The practice screen as a pupil goes through it, on a front end without a screen.
#include "tests/support/operation_text.h"
#include "tests/support/practising.h"

#include <set>

namespace cijferwerf {
namespace {

using lines = std::vector<std::string>;

class practice : public practising {
protected:
    practice() { open(); }

    // A record whose texts tell where they come from.
    void write_feedback(bool tips) {
        const std::pair<tekstregels*, const char*> texts[]{
            {&screen.tipregels_1, "tip1."},   {&screen.tipregels_2, "tip2."},   {&screen.foutregels_2, "fout2."},
            {&screen.foutregels_3, "fout3."}, {&screen.foutregels_4, "fout4."}, {&screen.uitlegregels, "uitleg."}};
        for (const auto& [text, name] : texts)
            for (std::size_t i = 0; i < text->size(); ++i) (*text)[i] = name + std::to_string(i + 1);
        if (!tips) screen.tipregels_1[0] = " ";
    }
    static std::string six(const std::string& name) {
        std::string all = name + "1";
        for (const char* i : {"2", "3", "4", "5", "6"}) all += " " + name + i;
        return all;
    }
    // What these labels say, without those that are blank.
    static std::string said(auto& labels, int from) {
        std::string all;
        for (int i = from; i <= labels.last; ++i)
            if (labels[i].caption != " ") all += (all.empty() ? "" : " ") + labels[i].caption;
        return all;
    }
    std::string messages() { return said(screen.bericht, 1); } // what stands under the verdict
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
    lines marked() {
        lines titles;
        for (std::size_t i = 0; i < screen.presentatielijst.items.size(); ++i)
            if (const auto mark = screen.presentatielijst.marks.at(i); mark != list_box::item_mark::none)
                titles.push_back(screen.presentatielijst.items[i] +
                                 (mark == list_box::item_mark::first ? " first" : " later"));
        return titles;
    }
};

TEST_F(practice, what_can_be_done_and_what_is_told_follows_the_exercise_from_picking_to_explanation) {
    const struct {
        const char* what;
        std::function<void()> act;
        std::string expected;
    } steps[]{
        {"opened", [] {}, "list score info nothing yet  quiet > presentatielijst"},
        {"no title picked", [&] { pupil.pick_by_enter(screen.presentatielijst, -1); },
         "list score info nothing yet  quiet > off"},
        {"another key", [&] { screen.presentatielijst_keypress(' '); }, "list score info nothing yet  quiet > off"},
        {"Enter", [&] { pupil.pick_by_enter(screen.presentatielijst, 0); }, "OOOO UITLEG/BERICHT quiet > knop"},
        {"another title", [&] { present("rente"); }, "OOOO UITLEG/BERICHT quiet > off"},
        {"wrong", [&] { screen.juiste_letter = "B", answer(3); }, "OOtO BERICHT- > off"},
        {"wrong again", [&] { answer(3), answer(1); }, "tOtO BERICHT- > off"},
        {"right", [&] { answer(2); }, "list trtu UITLEG+ explain > uitleggeven"},
        {"explained", [&] { explain(); }, "list score info trtu UITLEG+ explain > presentatielijst"},
        {"quick", [&] { present("snel!"), screen.juiste_letter = "D"; }, "OOOO UITLEG/BERICHT quiet > knop"},
        {"time up", [&] { pupil.wait(60'000); }, "list uuur UITLEG+ explain > uitleg_bericht"},
        {"opened anew", [&] { open(); }, "list score info nothing yet  quiet > presentatielijst"},
    };
    for (const auto& [what, act, expected] : steps) {
        act();
        EXPECT_EQ(seen(), expected) << what;
    }
}

TEST_F(practice, answers_stand_in_one_of_four_orders_or_where_their_exercise_puts_them) {
    const std::string_view orders[]{"1234", "2143", "3412", "4321"};
    for (const char* title : {"hele procenten", "rente"}) {
        std::set<std::string> letters;
        for (int n = 0; n < 100; ++n) {
            ASSERT_TRUE(present(title));
            const int fixed = screen.juiste_positie;
            EXPECT_TRUE(fixed == 0 || fixed == right());
            for (int i = 1; i <= 4; ++i)
                EXPECT_EQ(screen.alternatief[i].caption,
                          screen.antwoord(orders[fixed != 0 ? 0 : right() - 1][static_cast<std::size_t>(i - 1)] - '0'));
            letters.insert(screen.juiste_letter);
            answer_right();
        }
        EXPECT_EQ(letters, (std::set<std::string>{"A", "B", "C", "D"}));
    }
}

TEST_F(practice, nothing_of_the_exercise_before_is_left) {
    present("snel!");
    answer_right();
    screen.presentatielijst.items.emplace_back("onbekend"); // without a generator: a blank record
    ASSERT_TRUE(present("onbekend"));
    EXPECT_EQ(said(screen.vraag, 1) + said(screen.bericht, 0) + said(screen.alternatief, 1), "");
    EXPECT_TRUE(screen.plaatje.operations().empty() && screen.plaatje.ground == wit);
    EXPECT_EQ(screen.variant, 2) << "counts on across titles";
    EXPECT_FALSE(screen.Timer1.enabled || screen.tijdlimiet != 0 || screen.pogingen != 0);
    open(task_set, "taak99");
    EXPECT_TRUE(screen.presentatielijst.items.empty());
    pupil.pick(screen.presentatielijst, 0);
    EXPECT_TRUE(screen.kies_opgave.visible) << "a task that does not exist presents nothing";
}

// ---- answering ----

TEST_F(practice, each_button_has_its_own_verdicts_and_either_comments_on_its_answer_or_tips_by_the_attempt) {
    const std::string_view words[4][4]{
        {"Dat is juist!", "Dat is niet goed...!", "Dat is niet het juiste antwoord...",
         "Dat antwoord is helaas niet goed..."},
        {"Helaas fout!", "Goed!", "Helaas is dat niet het juiste antwoord...", "Jammer, het is helaas fout..."},
        {"Je antwoord is helaas niet goed.", "Je koos het verkeerde antwoord.", "Dat is het goede antwoord!",
         "Je koos niet het goede antwoord..."},
        {"Fout...!", "Fout, helaas...!", "Je keuze is helaas niet goed.", "Dat is het juiste antwoord...!"},
    };
    const std::string one_left[]{"Nu blijft er nog maar één antwoord over.", "Nu is er nog maar één mogelijkheid.",
                                 "Nu vind je het juiste antwoord wel!", "Laatste kans..."};
    const char feedback[4][5]{"-234", "2-43", "34-2", "432-"};
    for (const bool tips : {false, true})
        for (const auto& order : {std::array{1, 2, 3, 4}, {4, 3, 2, 1}})
            for (int j = 1; j <= 4; ++j) {
                present("hele procenten");
                write_feedback(tips);
                screen.juiste_letter = "-ABCD"[j];
                for (const int i : order) {
                    if (i == j) continue;
                    ASSERT_TRUE(answer(i));
                    EXPECT_FALSE(answer(i));
                    const std::string by_attempt[]{six("tip1."), six("tip2."), one_left[i - 1]};
                    EXPECT_EQ(screen.bericht[0].caption, words[i - 1][j - 1]);
                    EXPECT_EQ(messages(), tips ? by_attempt[screen.pogingen - 1]
                                               : six(std::string("fout") + feedback[i - 1][j - 1] + "."));
                    for (const label* told : {&screen.bericht[0], &screen.bericht[1], &screen.uitleg_bericht})
                        EXPECT_TRUE(told->colour == rood && !told->subdued);
                }
                answer_right();
                EXPECT_EQ(screen.bericht[0].caption, words[j - 1][j - 1]);
                EXPECT_NE(messages(), "");
                EXPECT_TRUE(screen.bericht[0].colour == groen && screen.bericht[6].subdued && screen.pogingen == 4);
            }
}

TEST_F(practice, the_explanation_shows_six_lines_draws_and_scores_each_time_it_is_asked) {
    present("hele procenten");
    write_feedback(false);
    screen.uitlegopdrachten = {"PRINT_10_20_1_8_x", " ", "PRINT_10_20_1_8_y", " ", " ", " ", " "};
    answer(wrong());
    answer_right();
    explain();
    EXPECT_EQ(messages(), six("uitleg."));
    EXPECT_TRUE(screen.bericht[3].colour == donkerblauw && !screen.bericht[3].subdued);
    EXPECT_EQ(as_texts(screen.plaatje).back(), "text 10,20 colour 1 size 8 \"x\"");
    explain();
    EXPECT_EQ(std::pair(forms.globalen.aantalvragengedaan, forms.globalen.goed_poging_2), std::pair(2, 2));
    EXPECT_EQ(forms.globalen.scoretabel[0], (std::array{0, 2, 0, 0}));
}

TEST_F(practice, the_list_marks_what_is_in_the_score_record_which_only_activation_blanks) {
    solve("rente", 1);
    EXPECT_EQ(marked(), lines{"rente later"});
    solve("rente", 0);
    solve("rente", 1);
    solve("examen", 0);
    present("alcohol");
    answer_right();
    EXPECT_EQ(marked(), (lines{"examen first", "rente first"})) << "unexplained is not scored";
    explain();
    pupil.click(screen.score);
    screen.show();
    EXPECT_TRUE(screen.score_bekeken == "ja" && marked().size() == 3);
    screen.open();
    EXPECT_TRUE(screen.score_bekeken == "nee" && marked().empty() && forms.globalen.aantalvragengedaan == 0);
}

// ---- the clock ----

TEST_F(practice, the_bar_is_drawn_yellow_and_filled_black_tick_by_tick_until_a_fourth_attempt_ends_it) {
    present("snel!");
    EXPECT_EQ(screen.tijdlimiet, 12);
    EXPECT_EQ(as_texts(screen.plaatje).back(), "filled box 1500,1100 2200x300 colour 14 width 1 style 0");
    answer(wrong());
    answer(wrong(2));
    screen.tijdlimiet = 5;
    pupil.wait(4999);
    lines drawn = as_texts(screen.plaatje);
    drawn.erase(drawn.begin(), drawn.end() - 5);
    EXPECT_EQ(drawn, (lines{"filled box 2200,1100 200x350 colour 0 width 1 style 6",
                            "filled box 2200,1100 400x350 colour 0 width 1 style 6",
                            "filled box 2200,1100 600x350 colour 0 width 1 style 6",
                            "filled box 2200,1100 800x350 colour 0 width 1 style 6",
                            "text 1800,1500 colour 14 size 20 \"Jammer....!\""}));
    pupil.wait(60'000);
    EXPECT_EQ(std::tuple(screen.pogingen, screen.tijdteller, forms.globalen.goed_poging_4), std::tuple(4, 5, 1));
    EXPECT_EQ(screen.bericht[0].caption, "");
    explain();
    EXPECT_EQ(forms.globalen.goed_poging_4, 2) << "the explanation counts once more";
    EXPECT_EQ(forms.globalen.scoretabel[0], (std::array{0, 0, 0, 1}));
    EXPECT_EQ(forms.globalen.aantalvragengedaan, 1);
}

TEST_F(practice, a_right_answer_does_not_stop_the_clock_but_the_explanation_does) {
    present("snel!");
    answer_right();
    pupil.wait(2000);
    explain();
    pupil.wait(60'000);
    EXPECT_EQ(std::pair(screen.tijdteller, forms.globalen.goed_poging_4), std::pair(2, 0));
    present("snel!");
    answer_right();
    pupil.wait(60'000);
    EXPECT_EQ(screen.focus, &screen.uitleggeven) << "it went while an answer was looked at";
    EXPECT_EQ(forms.globalen.goed_poging_4, 1);
}

TEST_F(practice, a_screen_reader_hears_question_verdict_and_time) {
    present("snel!");
    write_feedback(false);
    EXPECT_TRUE(screen.knop[3].description.starts_with("Kijk hiernaast. Je hebt niet zo veel tijd! Hoeveel % is "));
    screen.juiste_letter = "B";
    answer(1);
    EXPECT_EQ(heard(), "Dat is niet goed...! " + six("fout2."));
    for (const auto& [limit, expected] :
         {std::pair{12, "Nog 6 tellen. Nog 3 tellen. "}, {7, "Nog 3 tellen. "}, {5, "Nog 3 tellen. "}}) {
        present("snel!");
        screen.juiste_letter = "C";
        screen.tijdlimiet = limit;
        std::string all;
        for (int tick = 1; tick <= limit; ++tick) {
            pupil.wait(1000);
            if (const std::string now = heard(); !now.empty()) all += now + ' ';
        }
        EXPECT_EQ(all, std::string(expected) + "De tijd is om. Het goede antwoord was C. ") << limit;
    }
    write_feedback(false);
    explain();
    EXPECT_EQ(heard(), six("uitleg."));
    present("snel!");
    answer_right();
    EXPECT_EQ(heard(), screen.bericht[0].caption);
    EXPECT_TRUE(screen.knop[right()].accessible_name.ends_with(", goed"));
    pupil.wait(1000 * screen.tijdlimiet / 2);
    EXPECT_EQ(heard(), "") << "who has answered is not hurried";
}

TEST_F(practice, the_hint_of_the_way_back_names_the_menu_and_goes_after_two_seconds) {
    for (const auto& [set, key, hint] :
         {std::tuple{booklet_set, "boekje01", "boekje kiezen"}, {task_set, "taak01", "taak kiezen"}}) {
        open(set, key);
        pupil.hover(screen.terug);
        pupil.wait(1950);
        EXPECT_TRUE(screen.taakkiezen_label.visible && screen.taakkiezen_label.caption == hint);
        pupil.wait(50);
        EXPECT_FALSE(screen.taakkiezen_label.visible);
    }
}

} // namespace
} // namespace cijferwerf
