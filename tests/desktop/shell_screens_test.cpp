// From the start to an exercise and back, with real widgets.
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

class shell_screens : public testing::Test {
protected:
    shell_screens() {
        outside.run([this] { forms.get<achtergrond>().open(); });
        EXPECT_TRUE(QTest::qWaitFor([this] { return start.loaded(); }, 3000));
        EXPECT_TRUE(QTest::qWaitForWindowActive(outside.page(start)->window()));
    }
    QString title(const form& of) { return outside.page(of)->window()->windowTitle(); }

    desktop outside;
    formulieren forms{outside};
    codering& start = forms.get<codering>();
    mama& screen = forms.get<mama>();
};

TEST_F(shell_screens, the_keyboard_alone_goes_from_the_start_to_an_exercise_and_the_score) {
    EXPECT_EQ(title(start), "Cijferwerf");
    type(outside, start, Qt::Key_1);
    EXPECT_TRUE(find<QAbstractButton>(outside, start, "CLgekozen").isChecked());
    type(outside, start, Qt::Key_Return);
    type(outside, forms.get<colofoncl>(), Qt::Key_Return);
    type(outside, forms.get<menucl>(), Qt::Key_Return); // on the first booklet
    ASSERT_TRUE(screen.loaded());
    EXPECT_EQ(title(screen), "TELMORA's CIJFERLOOP");

    type(outside, screen, Qt::Key_Down);
    type(outside, screen, Qt::Key_Return); // on the first title
    EXPECT_EQ(forms.globalen.gekozen_oefening, "alcohol");
    for (const Qt::Key answer : {Qt::Key_A, Qt::Key_B, Qt::Key_C, Qt::Key_D}) type(outside, screen, answer);
    type(outside, screen, Qt::Key_Return); // on the explanation

    auto& sheet = forms.get<scoreblad>();
    click(find(outside, screen, "score"));
    ASSERT_TRUE(sheet.loaded());
    EXPECT_EQ(find<QLabel>(outside, sheet, "aantal_label").text(), " 1");
    type(outside, sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet.loaded());
    EXPECT_TRUE(screen.loaded());
}

TEST_F(shell_screens, the_mouse_alone_goes_to_a_task_and_back_to_the_start) {
    click(find(outside, start, "SWgekozen"));
    click(find(outside, start, "verder"));
    auto& credits = forms.get<colofonsw>();
    form_page* page = outside.page(credits);
    ASSERT_NE(page, nullptr);
    const QWidget& text = find(outside, credits, "titel");
    QWidget* under = page->childAt(text.geometry().center());
    ASSERT_NE(under, nullptr);
    EXPECT_EQ(under->objectName(), "klik") << "a click on the words is a click on the screen";
    click(*under);

    auto& tasks = forms.get<menusw>();
    EXPECT_EQ(title(tasks), "DEEL 1 EN 2, SOMMENWERF");
    click(find(outside, tasks, "plaatje10"));
    EXPECT_EQ(find<QLabel>(outside, screen, "opschriftbalk").text(), "HERHALING TAAK 6 t/m 9");
    EXPECT_FALSE(find(outside, screen, "info").isVisible());
    click(find(outside, screen, "terug"));
    click(find(outside, tasks, "terug"));
    EXPECT_TRUE(start.loaded());
    EXPECT_FALSE(find<QAbstractButton>(outside, start, "SWgekozen").isChecked());
}

} // namespace
} // namespace cijferwerf
