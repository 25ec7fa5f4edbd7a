#include "tests/support/fake_outside.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

class test_form : public form {
public:
    explicit test_form(outside& with) : form(with, "test") {
        add(first, "first", {0, 0, 100, 100}, theme_role::action, "first");
        add(second, "second", {0, 200, 100, 100}, theme_role::action, "second");
        add(words, "words", {0, 400, 100, 100}, theme_role::body, "words");
        add(list, "list", {0, 600, 100, 100}, theme_role::list);
        add(chosen, "chosen", {200, 0, 100, 100}, theme_role::choice, "chosen");
        add(other, "other", {200, 200, 100, 100}, theme_role::choice, "other");
        add(clock, "clock", 1000);
        first.keys = "A1";
        second.keys = "A2";
        first.click = [this] { events += "first "; };
        second.click = [this] { events += "second "; };
        words.click = [this] { events += "words "; };
        list.keypress = [this](int key) { events += "list" + std::to_string(key) + " "; };
        other.click = [this] { events += "other "; };
        clock.tick = [this] { events += "tick "; };
    }
    void load() override { events += "load "; }
    void activate() override { events += "activate "; }

    button first, second;
    label words;
    list_box list;
    option_button chosen, other;
    timer clock;
    std::string events;
};

TEST(form, is_loaded_again_only_after_it_was_unloaded_and_activated_only_when_opened) {
    fake_outside outside;
    test_form screen(outside);
    screen.open();
    screen.show();
    EXPECT_EQ(screen.events, "load activate ");
    screen.unload();
    screen.unload();
    EXPECT_EQ(outside.unloaded.size(), 1U);
    EXPECT_FALSE(screen.loaded());
    screen.show();
    EXPECT_EQ(screen.events, "load activate load ");
    EXPECT_EQ(outside.shown.size(), 3U);
}

// What a key does depends on what has the focus.
TEST(form, a_key_goes_to_the_list_the_button_that_keeps_it_or_the_control_that_lists_it) {
    fake_outside outside;
    test_form screen(outside);
    screen.show();
    screen.second.keys = "A2\r";
    screen.second.keeps_enter = false;
    screen.chosen.selected = true;
    const struct {
        char key;
        control* focused;
        const char* happens;
    } rows[]{
        {'A', nullptr, "first "},          {'2', &screen.list, "second "},  {'3', &screen.first, ""},
        {'\r', nullptr, "second "},        {'\r', &screen.first, "first "}, {'\r', &screen.list, "list13 "},
        {'\r', &screen.chosen, "second "}, {'\r', &screen.other, "other "}, {' ', &screen.words, "words "},
        {'\r', &screen.words, "second "},  {' ', &screen.list, ""},
    };
    for (const auto& row : rows) {
        screen.events.clear();
        EXPECT_EQ(screen.key(row.key, row.focused), *row.happens != '\0') << row.key;
        EXPECT_EQ(screen.events, row.happens) << row.key;
        screen.press(screen.chosen);
    }

    screen.events.clear();
    screen.second.mnemonic = 'b';
    EXPECT_TRUE(screen.key('B', &screen.first, true));
    EXPECT_FALSE(screen.key('A', nullptr, true)) << "with Alt only a mnemonic presses";
    EXPECT_EQ(screen.events, "second ");

    screen.events.clear();
    screen.first.enabled = screen.second.visible = false;
    EXPECT_FALSE(outside.press(screen, 'A'));
    EXPECT_FALSE(screen.key('\r', &screen.first));
    EXPECT_EQ(screen.events, "");
}

TEST(form, arrows_go_to_the_nearest_button_there_and_choose_among_options_and_tab_goes_round) {
    fake_outside outside;
    test_form screen(outside);
    screen.first.keys = screen.second.keys = "";
    const struct {
        char key;
        control &from, *to;
    } rows[]{{keys::down, screen.first, &screen.second},
             {keys::right, screen.first, &screen.chosen},
             {keys::left, screen.first, nullptr},
             {keys::up, screen.other, &screen.chosen},
             {keys::left, screen.other, nullptr}};
    for (const auto& row : rows) {
        screen.focus = nullptr;
        EXPECT_TRUE(screen.key(row.key, &row.from));
        EXPECT_EQ(screen.focus, row.to) << row.from.name;
    }
    EXPECT_TRUE(screen.chosen.selected && !screen.other.selected);
    screen.press(screen.other);
    EXPECT_TRUE(screen.other.selected && !screen.chosen.selected && screen.focus == &screen.other);
    EXPECT_FALSE(screen.key(keys::down, &screen.list)) << "a list moves by itself";

    screen.second.enabled = false;
    const std::tuple<control*, int, control*> tabs[]{{&screen.first, 1, &screen.list},
                                                     {&screen.words, -1, &screen.first},
                                                     {&screen.other, 1, &screen.first},
                                                     {nullptr, 1, &screen.first},
                                                     {nullptr, -1, &screen.other}};
    for (const auto& [from, step, to] : tabs) EXPECT_EQ(screen.tab(from, step), to);
}

TEST(form, a_control_array_ends_the_run_at_an_index_it_does_not_have) {
    control_array<label, 1, 4> labels;
    labels[1].caption = "a";
    labels[4].caption = "d";
    EXPECT_THROW(labels[0], checked_error);
    EXPECT_THROW(labels[5], checked_error);
}

class timers : public testing::Test {
protected:
    timers() {
        screen.show();
        screen.events.clear();
        screen.first.click = [this] { screen.clock.start(); };
        screen.second.click = [this] { screen.clock.stop(); };
    }
    fake_outside outside;
    test_form screen{outside};
};

TEST_F(timers, tick_every_interval_until_stopped_or_unloaded_and_start_over_when_started_while_they_run) {
    const struct {
        std::function<void()> act;
        int milliseconds;
        const char* ticked;
    } rows[]{{[] {}, 3000, ""},
             {[&] { outside.click(screen.first); }, 950, ""},
             {[] {}, 50, "tick "},
             {[] {}, 2900, "tick tick "},
             {[&] { outside.click(screen.first); }, 950, ""},
             {[] {}, 50, "tick "},
             {[&] { outside.click(screen.second); }, 3000, ""},
             {[&] { outside.click(screen.first), screen.unload(); }, 3000, ""}};
    for (const auto& row : rows) {
        row.act();
        outside.wait(row.milliseconds);
        EXPECT_EQ(std::exchange(screen.events, ""), row.ticked) << "row " << &row - rows;
    }
}

TEST_F(timers, wait_for_the_message_box_one_at_most) {
    outside.click(screen.first);
    screen.second.click = [this] { outside.ask(screen, {"?"}, [this](box_answer) { screen.events += "read "; }); };
    outside.while_box_is_open = [this] {
        outside.wait(3500);
        EXPECT_FALSE(outside.click(screen.first)) << "a click came through an open message box";
    };
    outside.click(screen.second);
    outside.wait(950);
    EXPECT_EQ(screen.events, "read tick ");
    outside.wait(100);
    EXPECT_EQ(screen.events, "read tick tick ");
}

TEST_F(timers, a_box_that_an_answer_opens_comes_before_those_in_line) {
    const auto box = [this](const char* text, std::function<void(box_answer)> then) {
        outside.ask(screen, {text}, std::move(then));
    };
    outside.run([&] {
        box("first", [&](box_answer) { box("follows from first", {}); });
        box("second", {});
    });
    std::string order;
    for (const message_box& each : outside.boxes) order += each.text + ", ";
    EXPECT_EQ(order, "first, follows from first, second, ");
}

} // namespace
} // namespace cijferwerf
