// The paths a pupil takes from the start to an exercise and back, with real widgets, clicked and typed at.
#include "forms/practice/mama.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/achtergrond.h"
#include "forms/shell/codering.h"
#include "forms/shell/colofon.h"
#include "forms/shell/menu.h"
#include "tests/desktop/screen.h"

#include <QListWidget>

namespace cijferwerf {
namespace {

class walks : public testing::Test {
protected:
    walks() {
        outside.run([this] { forms.get<achtergrond>().open(); });
        EXPECT_TRUE(QTest::qWaitFor([this] { return start.loaded(); }, 3000));
        EXPECT_TRUE(QTest::qWaitForWindowActive(outside.page(start)->window()));
    }
    template<class Widget = QWidget>
    Widget& widget(const std::string& name) {
        return find<Widget>(outside, screen, name.c_str());
    }
    std::string text(const std::string& name) { return widget<QLabel>(name).text().toStdString(); }
    std::string focused() { return outside.page(screen)->focusWidget()->objectName().toStdString(); }
    void press(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) type(outside, screen, key);
    }
    void pick(int row) {
        auto& list = widget<QListWidget>("presentatielijst");
        click(*list.viewport(), list.visualItemRect(list.item(row)).center());
    }
    std::string right() const { return std::to_string(screen.juiste_letter[0] - 'A' + 1); }

    desktop outside;
    formulieren forms{outside};
    codering& start = forms.get<codering>();
    mama& screen = forms.get<mama>();
};

TEST_F(walks, with_the_keyboard_alone) {
    type(outside, start, Qt::Key_1);
    EXPECT_TRUE(find<QAbstractButton>(outside, start, "CLgekozen").isChecked());
    type(outside, start, Qt::Key_Return);
    type(outside, forms.get<colofoncl>(), Qt::Key_Return);
    type(outside, forms.get<menucl>(), Qt::Key_Return); // on the first booklet
    ASSERT_TRUE(screen.loaded());
    EXPECT_EQ(outside.page(screen)->window()->windowTitle(), "TELMORA's CIJFERLOOP");

    screen.toeval.restart(1);
    EXPECT_EQ(focused(), "presentatielijst");
    EXPECT_EQ(screen.presentatielijst.selected, -1) << "the focus selects nothing";
    press({Qt::Key_End, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up});
    EXPECT_TRUE(screen.kies_opgave.visible) << "arrow keys only move";
    press({Qt::Key_Return});
    EXPECT_EQ(forms.globalen.gekozen_oefening, "voetbal");
    EXPECT_EQ(text("vraag1") + text("vraag2"), " Bij een wedstrijd tussen");
    EXPECT_FALSE(widget("presentatielijst").isEnabled());
    EXPECT_EQ(focused(), "knop1");
    for (const std::string i : {"4", "3", "2", "1"}) {
        if (i == right()) continue;
        const std::string name = "knop" + i;
        widget(name).setFocus();
        press({Qt::Key_Space});
        EXPECT_EQ(text("uitleg_bericht"), "BERICHT");
        EXPECT_FALSE(widget(name).isEnabled() || widget("alternatief" + i).isEnabled());
        EXPECT_TRUE(focused().starts_with("knop") && focused() != name) << focused() << " after " << name;
    }
    press({static_cast<Qt::Key>(right()[0])});
    EXPECT_EQ(text("uitleg_bericht"), "UITLEG");
    EXPECT_EQ(focused(), "uitleggeven");
    press({Qt::Key_Return});
    EXPECT_EQ(text("bericht1"), screen.uitlegregels[0]);
    EXPECT_EQ(forms.globalen.goed_poging_4, 1);
    EXPECT_EQ(focused(), "presentatielijst");
    press({Qt::Key_Return});
    EXPECT_EQ(screen.pogingen, 0) << "Enter presents the next one";
}

TEST_F(walks, with_the_mouse_alone) {
    click(find(outside, start, "SWgekozen"));
    click(find(outside, start, "verder"));
    auto& credits = forms.get<colofonsw>();
    QWidget* under = outside.page(credits)->childAt(find(outside, credits, "titel").geometry().center());
    ASSERT_EQ(under->objectName(), "klik") << "a click on the words is a click on the screen";
    click(*under);
    auto& tasks = forms.get<menusw>();
    click(find(outside, tasks, "plaatje10"));
    EXPECT_EQ(text("opschriftbalk"), "HERHALING TAAK 6 t/m 9");
    outside.page(screen)->window()->resize(1664, 2000);
    EXPECT_EQ(widget("terug").y(), 20) << "the bar is at the top of a window that is too high";

    pick(6);
    EXPECT_EQ(forms.globalen.gekozen_oefening, screen.presentatielijst.items[6]);
    click(widget("alternatief" + right()));
    click(widget("uitleggeven"));
    EXPECT_EQ(forms.globalen.goed_poging_1, 1);
    click(widget("score"));
    auto& sheet = forms.get<scoreblad>();
    EXPECT_EQ(find<QLabel>(outside, sheet, "aantal_label").text(), " 1");
    type(outside, sheet, Qt::Key_Escape);
    EXPECT_TRUE(!sheet.loaded() && screen.loaded());

    click(widget("terug"));
    click(find(outside, tasks, "plaatje8"));
    pick(5); // with a clock
    outside.run([this] {
        while (screen.Timer1.enabled) screen.Timer1_tick();
    });
    press({Qt::Key_Return});
    EXPECT_EQ(forms.globalen.aantalvragengedaan, 0) << "a finger on Enter when the time is up asks for nothing";
    press({Qt::Key_Tab});
    EXPECT_EQ(focused(), "uitleggeven");
    click(widget("terug"));
    click(find(outside, tasks, "terug"));
    EXPECT_TRUE(start.loaded());
}

} // namespace
} // namespace cijferwerf
