// The paths a pupil takes over the practice screen, with real widgets, clicked and typed at.
#include "forms/practice/mama.h"
#include "tests/desktop/screen.h"

#include <QListWidget>

namespace cijferwerf {
namespace {

class practice_screen : public testing::Test {
protected:
    practice_screen() {
        outside.run([this] {
            forms.globalen.gekozen_pakket = booklet_set;
            forms.globalen.gekozen_onderdeel = "boekje01";
            screen.zet_opschrift("BOEKJE 1 - PROCENTEN", std::string(booklet_set), true);
            screen.open();
            screen.toeval.restart(1);
        });
        EXPECT_TRUE(QTest::qWaitForWindowActive(outside.page(screen)->window()));
    }

    template<class Widget = QWidget>
    Widget& widget(const std::string& name) {
        return find<Widget>(outside, screen, name.c_str());
    }
    QListWidget& list() { return widget<QListWidget>("presentatielijst"); }
    QString text(const std::string& name) { return widget<QLabel>(name).text(); }
    void press(Qt::Key key) { type(outside, screen, key); }
    int right() const { return screen.juiste_letter[0] - 'A' + 1; }
    QPoint row(int i) { return list().visualItemRect(list().item(i)).center(); }

    desktop outside;
    formulieren forms{outside};
    mama& screen = forms.get<mama>();
};

TEST_F(practice_screen, is_worked_with_the_keyboard_alone) {
    EXPECT_EQ(outside.page(screen)->focusWidget(), &list());
    EXPECT_EQ(screen.presentatielijst.selected, -1) << "the focus selects nothing";
    for (int i = 0; i < 7; ++i) press(Qt::Key_Down);
    EXPECT_TRUE(screen.kies_opgave.visible) << "arrow keys only move";
    press(Qt::Key_Return);
    EXPECT_EQ(forms.globalen.gekozen_oefening, "voetbal");
    EXPECT_EQ(text("vraag2"), "Bij een wedstrijd tussen");
    EXPECT_EQ(text("vraag1"), " ");
    EXPECT_FALSE(list().isEnabled());
    EXPECT_EQ(outside.page(screen)->focusWidget(), &widget("knop1"));

    const int wrong = right() == 2 ? 3 : 2;
    press(static_cast<Qt::Key>(Qt::Key_A + wrong - 1));
    EXPECT_EQ(screen.pogingen, 1);
    EXPECT_EQ(text("uitleg_bericht"), "BERICHT");
    EXPECT_FALSE(widget("knop" + std::to_string(wrong)).isEnabled());
    EXPECT_FALSE(widget("alternatief" + std::to_string(wrong)).isEnabled());
    press(static_cast<Qt::Key>(Qt::Key_A + wrong - 1));
    EXPECT_EQ(screen.pogingen, 1) << "an answer that was given is no answer any more";

    press(static_cast<Qt::Key>(Qt::Key_1 + right() - 1));
    EXPECT_EQ(text("uitleg_bericht"), "UITLEG");
    EXPECT_EQ(outside.page(screen)->focusWidget(), &widget("uitleggeven"));
    press(Qt::Key_Return);
    EXPECT_EQ(text("bericht1").toStdString(), screen.uitlegregels[0]);
    EXPECT_EQ(forms.globalen.goed_poging_2, 1);
    EXPECT_EQ(outside.page(screen)->focusWidget(), &list());
    press(Qt::Key_Return);
    EXPECT_EQ(screen.pogingen, 0) << "Enter presents the next one";
}

TEST_F(practice_screen, is_worked_with_the_mouse_alone) {
    click(*list().viewport(), row(6));
    EXPECT_EQ(forms.globalen.gekozen_oefening, "voetbal");
    click(widget("alternatief" + std::to_string(right())));
    EXPECT_EQ(screen.pogingen, 1);
    EXPECT_TRUE(list().isEnabled());
    click(widget("uitleggeven"));
    EXPECT_EQ(forms.globalen.goed_poging_1, 1);
    click(*list().viewport(), row(0));
    EXPECT_EQ(forms.globalen.gekozen_oefening, "alcohol");
}

TEST_F(practice_screen, focus_stays_among_the_answers_after_a_wrong_one) {
    click(*list().viewport(), row(0));
    for (int i = 4; i >= 1; --i) {
        if (i == right()) continue;
        widget("knop" + std::to_string(i)).setFocus();
        press(Qt::Key_Space);
        const QString name = outside.page(screen)->focusWidget()->objectName();
        EXPECT_TRUE(name.startsWith("knop")) << name.toStdString();
        EXPECT_TRUE(outside.page(screen)->focusWidget()->isEnabled());
    }
}

TEST_F(practice_screen, a_finger_on_enter_when_the_time_is_up_asks_for_nothing_and_tab_leads_on) {
    click(*list().viewport(), row(5));
    outside.run([this] {
        while (screen.Timer1.enabled) screen.Timer1_tick();
    });
    press(Qt::Key_Return);
    EXPECT_EQ(forms.globalen.aantalvragengedaan, 0);
    press(Qt::Key_Tab);
    EXPECT_EQ(outside.page(screen)->focusWidget(), &widget("uitleggeven"));
}

TEST_F(practice_screen, stopping_asks_first) {
    outside.page(screen)->window()->close();
    EXPECT_EQ(answer_box(outside, "Nee"), "Wil je echt stoppen?");
    EXPECT_TRUE(outside.page(screen)->window()->isVisible());

    click(widget("stopteken"));
    answer_box(outside, "Ja");
    EXPECT_EQ(run_program(), 0);
}

} // namespace
} // namespace cijferwerf
