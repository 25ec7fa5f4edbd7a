// A monkey at the keyboard and the mouse: whatever it does, the program stays in one piece and always goes on.
#include "forms/practice/scoreblad.h"
#include "forms/shell/achtergrond.h"

#include "tests/support/practising.h"

#include <map>
#include <numeric>
#include <random>

namespace cijferwerf {
namespace {

class monkey : public practising {
protected:
    // ---- what it does ----

    int draw(std::size_t n) { return static_cast<int>(engine_() % n); }
    const auto& one_of(const auto& list) { return list[static_cast<std::size_t>(draw(list.size()))]; }

    // The form on top, as the window shows it; now and then the one beside it.
    form& front() {
        if (sheet.loaded() && draw(4) == 0) return sheet;
        for (auto shown = pupil.shown.rbegin(); shown != pupil.shown.rend(); ++shown)
            if ((*shown)->loaded() && !(*shown)->side_window) return **shown;
        throw std::runtime_error("no form is left on the screen");
    }

    void act() {
        pupil.answers = {draw(20) == 0 ? box_answer::yes : box_answer::no};
        form& on = front();
        const int what = draw(100);
        if (what < 20)
            pupil.press(on, one_of(std::string_view("ABCD1234567890,+-*/=\r\x1b\x7f ?")));
        else if (what < 40)
            pupil.wait(draw(10) == 0 ? 25'000 : draw(2500));
        else if (what < 42)
            pupil.close(on);
        else {
            std::vector<control*> choices;
            for (control* each : on.controls())
                if (each->usable() && (each->takes_clicks() || each->hover)) choices.push_back(each);
            if (choices.empty()) return;
            control& chosen = *one_of(choices);
            if (chosen.name == "terug" && draw(4) != 0) return; // on the practice screen most can go wrong
            if (draw(10) == 0) pupil.hover(chosen);
            screen.presentatielijst.selected = draw(screen.presentatielijst.items.size() + 1) - 1;
            pupil.click(chosen);
        }
    }

    // ---- what must hold ----

    void check_screen() {
        if (std::ranges::none_of(screen.knop, &button::enabled)) {
            EXPECT_TRUE(screen.presentatielijst.enabled) << "no title and no answer can be picked";
        } else {
            EXPECT_FALSE(screen.presentatielijst.enabled || screen.score.enabled || screen.info.enabled);
            EXPECT_TRUE(screen.knop[right()].enabled) << "the right answer went";
        }
        EXPECT_TRUE(!screen.uitleggeven.visible || screen.pogingen > 0);
        EXPECT_TRUE(!screen.Timer1.enabled || screen.tijdteller < screen.tijdlimiet);
    }

    void check_score() {
        const GLOBALEN& score = forms.globalen;
        std::array<int, 4> ended{};
        for (std::size_t slot = 0; slot < score.titellijst.size(); ++slot) {
            const auto& counts = score.scoretabel[slot];
            for (std::size_t attempt = 0; attempt < 4; ++attempt) ended.at(attempt) += counts[attempt];
            EXPECT_EQ(score.titellijst[slot].empty(), counts == (std::array{0, 0, 0, 0})) << "slot " << slot;
        }
        EXPECT_EQ((std::array{score.goed_poging_1, score.goed_poging_2, score.goed_poging_3}),
                  (std::array{ended[0], ended[1], ended[2]}));
        EXPECT_GE(score.goed_poging_4, ended[3]); // a time-out counts there alone
        EXPECT_EQ(score.aantalvragengedaan, std::accumulate(ended.begin(), ended.end(), 0));
    }

    void check_way_on() {
        form& on = front();
        EXPECT_TRUE(&on == &background
                        ? background.Timer1.enabled
                        : std::ranges::any_of(on.controls(), [](control* c) { return c->usable() && c->click; }))
            << on.name() << " is a dead end";
    }

    void restart() {
        for (form* each : pupil.shown) each->unload();
        pupil.ended = false;
        pupil.shown.clear();
        background.open();
    }

    achtergrond& background = forms.get<achtergrond>();
    scoreblad& sheet = forms.get<scoreblad>();

private:
    std::mt19937 engine_{20'240'309};
};

TEST_F(monkey, whatever_happens_the_program_stays_in_one_piece) {
    std::map<std::string, int> reached;
    screen.toeval.restart(1);
    restart();
    for (int event = 0; event < 100'000 && !HasFailure(); ++event) {
        SCOPED_TRACE("event " + std::to_string(event));
        act();
        reached["ended"] += pupil.ended;
        if (pupil.ended) restart();
        check_way_on();
        check_score();
        if (screen.loaded()) check_screen();

        ++reached[front().name()];
        reached["explained"] += forms.globalen.aantalvragengedaan > 0;
        reached["timed out"] += screen.tijdlimiet > 0 && screen.tijdteller == screen.tijdlimiet;
        reached["printed"] += !pupil.printed.empty();
        pupil.printed.clear();
        pupil.boxes.clear();
    }
    for (const char* what : {"ended", "explained", "timed out", "printed", "achtergrond", "codering", "colofoncl",
                             "colofonsw", "menucl", "menusw", "mama", "scoreblad", "info1_boekje1", "info3_boekje1"})
        EXPECT_GT(reached[what], 0) << what << " was never reached";
}

} // namespace
} // namespace cijferwerf
