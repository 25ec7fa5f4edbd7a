// Events on a form with real widgets: one at a time, in the right order, each where it belongs.
#include "tests/desktop/screen.h"
#include "tests/support/try_out.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace cijferwerf {
namespace {

class events : public testing::Test {
protected:
    events() {
        outside.run([this] { screen.show(); });
        EXPECT_EQ(screen.happened(), "laden ");
        EXPECT_TRUE(QTest::qWaitForWindowActive(outside.page(screen)->window()));
    }
    template<class Widget = QWidget>
    Widget& widget(const char* name) {
        return find<Widget>(outside, screen, name);
    }
    std::string focused() { return outside.page(screen)->focusWidget()->objectName().toStdString(); }

    desktop outside;
    try_out screen{outside};
};

TEST_F(events, a_message_box_lets_nothing_through_but_its_answer) {
    screen.on_knop = [this] {
        screen.ask_it({"even wachten", "", box_buttons::yes_no},
                      [this](box_answer given) { screen.log += given == box_answer::no ? "nee " : "ja "; });
    };
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> rows[]{
        {Qt::Key_Escape, {}, "nee "}, {Qt::Key_Return, {}, "nee "},        {Qt::Key_N, {}, "nee "},
        {Qt::Key_J, {}, "ja "},       {Qt::Key_J, Qt::AltModifier, "ja "}, {Qt::Key_Space, {}, "nee "},
        {Qt::Key_Close, {}, "nee "}};
    for (const auto& [key, with, follows] : rows) {
        screen.log.clear();
        screen.ticks_left = 2;
        outside.run([this] { screen.klok.start(); });
        widget("knop").setFocus();
        type(outside, screen, Qt::Key_Space);
        ASSERT_NE(outside.box_page(), nullptr);
        QTest::qWait(80);
        form_page* page = outside.page(screen);
        page->window()->resize(page->size() * 1.1);
        EXPECT_NEAR(outside.box_page()->unit(), page->unit(), 0.001);
        click(*page->childAt(widget("uitgang").geometry().center())); // beside the box
        widget<QPushButton>("uitgang").click();
        type(outside, screen, Qt::Key_K); // the button's, while no box is open
        for (int tabs = 0; tabs < 4; ++tabs) {
            EXPECT_TRUE(outside.box_page()->isAncestorOf(page->focusWidget()));
            type(outside, screen, Qt::Key_Tab);
        }
        if (key == Qt::Key_Close)
            page->window()->close();
        else
            type(outside, screen, key, with);
        EXPECT_EQ(outside.box_page(), nullptr);
        const std::string expected = std::string("knop ") + follows + "tik tik ";
        EXPECT_TRUE(QTest::qWaitFor([&] { return screen.log == expected; })) << key << ": " << screen.log;
        EXPECT_EQ(page->focusWidget(), &widget("knop"));
    }
}

TEST_F(events, keys_and_clicks_go_to_the_form_with_what_has_the_focus) {
    EXPECT_EQ(widget<QLabel>("tekst").text(), QString::fromUtf8("  één\ntwee & drie"));
    EXPECT_EQ(widget<QPushButton>("knop").text(), "R && &B");
    widget("lijst").setFocus();
    type(outside, screen, Qt::Key_Down);
    type(outside, screen, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(screen.lijst.selected, 0) << "the focus alone selects nothing";
    type(outside, screen, Qt::Key_K);
    widget("klik").setFocus();
    type(outside, screen, Qt::Key_Space);
    type(outside, screen, Qt::Key_Return); // the form lists Enter for the button
    EXPECT_EQ(screen.log, "toets13 knop klik knop ");
    std::string order;
    for (int i = 0; i < 4; ++i) {
        type(outside, screen, Qt::Key_Tab);
        order += focused() + " ";
    }
    EXPECT_EQ(order, "knop lijst links rechts ");

    screen.log = "";
    screen.links.click = [this] { screen.log += screen.rechts.selected ? "beide " : "links "; };
    for (const char* name : {"rechts", "links", "links"}) click(widget(name));
    EXPECT_EQ(screen.log, "rechts links links ");
    EXPECT_TRUE(widget<QRadioButton>("links").isChecked() && !widget<QRadioButton>("rechts").isChecked());
    EXPECT_EQ(focused(), "links");

    const int before = screen.hovers;
    QEnterEvent entered({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&widget("klik"), &entered);
    QFocusEvent tabbed(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&widget("klik"), &tabbed);
    EXPECT_EQ(screen.hovers, before + 2);
    outside.run([this] { screen.focus = &screen.klik; });
    EXPECT_EQ(screen.hovers, before + 2) << "a focus that is set is no hovering";
    EXPECT_TRUE(focused() == "klik" && screen.focus == nullptr);
}

TEST_F(events, a_key_that_is_held_presses_once) {
    const auto hold = [this](int key, Qt::KeyboardModifiers with) {
        for (const bool repeated : {false, true, true}) {
            QTest::simulateEvent(outside.page(screen)->focusWidget(), true, key, with, {}, repeated);
            QTest::qWait(150); // a mnemonic takes a tenth of a second
        }
    };
    widget("uitgang").setFocus();
    hold(Qt::Key_Return, {});
    for (int deliberate = 0; deliberate < 2; ++deliberate) hold(Qt::Key_B, Qt::AltModifier);
    // Released and pressed in the same millisecond, as the X server repeats a key.
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, Qt::Key_Return, {}, "\r");
        event.setTimestamp(5000);
        QApplication::sendEvent(&widget("uitgang"), &event);
    }
    EXPECT_EQ(screen.log, "uitgang knop knop ");
    widget("lijst").setFocus();
    hold(Qt::Key_Up, {});
    EXPECT_EQ(screen.lijst.selected, 0);
    hold(Qt::Key_Down, {});
    EXPECT_EQ(screen.lijst.selected, 2) << "what moves goes on";

    screen.on_knop = [this] { screen.ask_it({"even wachten"}, {}); };
    widget("knop").setFocus();
    hold(Qt::Key_Return, {});
    EXPECT_NE(outside.box_page(), nullptr) << "a finger closed the box that it opened";
    answer_box(outside, "OK");
}

TEST_F(events, the_second_half_of_a_double_click_is_not_for_the_screen_that_the_first_opened) {
    const auto second_half = [](QWidget& on, QPoint at) {
        for (const auto type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, on.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(&on, &event);
        }
    };
    auto& list = widget<QListWidget>("lijst");
    second_half(widget("knop"), {5, 5});
    second_half(*list.viewport(), list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(screen.log, "");
    click(widget("knop"));
    second_half(widget("knop"), {5, 5});
    EXPECT_EQ(screen.log, "knop knop ");
}

TEST_F(events, a_form_covers_another_or_stands_beside_it_and_scales_with_it) {
    try_out above(outside, "above"), side(outside, "side");
    outside.run([&] { above.show(); });
    EXPECT_TRUE(outside.page(above)->isVisible() && !outside.page(screen)->isVisible());
    outside.page(above)->window()->close();
    EXPECT_EQ(above.log + screen.log, "laden sluiten ");
    outside.run([&] { above.unload(); });
    EXPECT_EQ(outside.page(above), nullptr);

    side.side_window = true;
    side.caption = "ernaast";
    side.wanted_place = {3000, 750};
    outside.run([&] { side.show(); });
    QWidget& beside = *outside.page(side);
    const form_page& main = *outside.page(screen);
    ASSERT_NE(beside.window(), main.window());
    EXPECT_EQ(beside.windowTitle(), "ernaast");
    EXPECT_EQ(beside.frameGeometry().topLeft(), main.mapToGlobal(main.place_of({3000, 750})));
    EXPECT_EQ(outside.page(side)->unit(), main.unit());
    click(widget("knop"));
    EXPECT_EQ(screen.log, "knop ") << "the main window stays usable";
    outside.run([&] { outside.ask(screen, {"even wachten"}, {}); });
    EXPECT_EQ(outside.box_page()->window(), &beside) << "the window on top would hide the box";
    main.window()->activateWindow();
    QTest::qWait(50);
    EXPECT_TRUE(beside.isActiveWindow()) << "the box has the keys wherever the pupil points";
    answer_box(outside, "OK");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == main.window(); }));
    beside.close();
    EXPECT_EQ(side.log, "laden sluiten ");
    EXPECT_TRUE(beside.isVisible()) << "whether it closes is the form's to say";
    outside.run([&] { side.unload(); });

    for (const double scale : {1.0, 1.5, 2.0}) {
        main.window()->resize((QSizeF(832, 520) * scale).toSize());
        EXPECT_NEAR(widget("knop").x(), 200 / 15.0 * scale, 1);
        EXPECT_NEAR(widget("knop").width(), 3000 / 15.0 * scale, 1);
    }
    main.window()->resize(1664, 2000); // too tall: the form stands in the middle
    EXPECT_NEAR(widget("grond").y(), (2000 - 1040) / 2 + 100 / 15.0 * 2, 1);
    outside.run([this] { screen.grond.role = theme_role::heading_bar, screen.grond.top = 0; });
    EXPECT_EQ(widget("grond").y(), 0) << "a bar stays at the top";
}

TEST_F(events, an_exception_ends_the_program_with_a_message_and_status_1) {
    screen.on_knop = [this] {
        widget<QPushButton>("knop").click(); // while a handler runs nothing is let in
        throw checked_error("index 9 outside 1 to 4");
    };
    click(widget("knop"));
    EXPECT_EQ(screen.log, "knop ");
    EXPECT_NE(answer_box(outside, "OK").find("index 9 outside 1 to 4"), std::string::npos);
    EXPECT_EQ(run_program(), 1);
}

TEST_F(events, unloading_the_last_form_ends_the_program) {
    screen.on_knop = [this] { screen.unload(); };
    QTimer::singleShot(0, &widget<QPushButton>("knop"), &QPushButton::click);
    EXPECT_EQ(run_program(), 0);
}

} // namespace
} // namespace cijferwerf
