#include "tests/support/fake_outside.h"
#include "tests/support/try_out.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

struct form_events : testing::Test {
    fake_outside outside;
    try_out screen{outside};
    form_events() {
        screen.klok.interval = 1000;
        screen.show();
    }
    void start_and_stop_by_click() {
        screen.knop.click = [this] { screen.klok.start(); };
        screen.uitgang.click = [this] { screen.klok.stop(); };
        screen.log.clear();
    }
};

// What a key does depends on what has the focus.
TEST_F(form_events, gives_a_key_to_the_list_the_button_that_keeps_it_or_the_control_that_lists_it) {
    screen.knop.keys = "A1";
    screen.uitgang.keys = "A2\r";
    screen.uitgang.keeps_enter = false;
    const std::tuple<char, control*, std::string> rows[]{
        {'A', nullptr, "knop "},           {'2', &screen.lijst, "uitgang "},  {'3', &screen.knop, ""},
        {'\r', nullptr, "uitgang "},       {'\r', &screen.knop, "knop "},     {'\r', &screen.lijst, "toets13 "},
        {'\r', &screen.links, "uitgang "}, {'\r', &screen.rechts, "rechts "}, {' ', &screen.klik, "klik "},
        {'\r', &screen.klik, "uitgang "},  {' ', &screen.lijst, ""},
    };
    for (const auto& [key, focused, happens] : rows) {
        screen.press(screen.links);
        screen.log.clear();
        EXPECT_EQ(screen.key(key, focused), !happens.empty()) << key;
        EXPECT_EQ(screen.happened(), happens) << key;
    }
    EXPECT_TRUE(screen.key('B', &screen.uitgang, true));
    EXPECT_FALSE(screen.key('A', nullptr, true)) << "with Alt only a mnemonic presses";
    EXPECT_EQ(screen.happened(), "knop ");
    screen.knop.enabled = screen.uitgang.visible = false;
    EXPECT_FALSE(outside.press(screen, 'A') || screen.key('\r', &screen.knop));
    EXPECT_EQ(screen.happened(), "");
}

TEST_F(form_events, takes_arrows_to_the_nearest_button_there_or_among_options_and_tab_round) {
    const std::tuple<char, control*, control*> arrows[]{{keys::right, &screen.knop, &screen.rechts},
                                                        {keys::left, &screen.uitgang, &screen.links},
                                                        {keys::left, &screen.knop, nullptr},
                                                        {keys::right, &screen.links, nullptr},
                                                        {keys::up, &screen.rechts, &screen.links}};
    for (const auto& [key, from, to] : arrows) {
        screen.focus = nullptr;
        EXPECT_TRUE(screen.key(key, from));
        EXPECT_EQ(screen.focus, to) << from->name;
    }
    EXPECT_TRUE(screen.links.selected && !screen.rechts.selected);
    screen.press(screen.rechts);
    EXPECT_TRUE(screen.rechts.selected && !screen.links.selected && screen.focus == &screen.rechts);
    EXPECT_FALSE(screen.key(keys::down, &screen.lijst)) << "a list moves by itself";

    screen.uitgang.enabled = false;
    const std::tuple<control*, int, control*> tabs[]{{&screen.knop, 1, &screen.lijst},
                                                     {&screen.klik, -1, &screen.rechts},
                                                     {&screen.rechts, 1, &screen.knop},
                                                     {nullptr, 1, &screen.knop},
                                                     {nullptr, -1, &screen.rechts}};
    for (const auto& [from, step, to] : tabs) EXPECT_EQ(screen.tab(from, step), to);

    // What can no longer have the focus gives it to the next of its array.
    for (control* each : std::initializer_list<control*>{&screen.klik, &screen.knop, &screen.uitgang})
        each->name = "array";
    screen.focus = nullptr;
    EXPECT_EQ(screen.next_focus(&screen.knop), nullptr);
    screen.knop.enabled = false;
    EXPECT_EQ(screen.next_focus(&screen.knop), &screen.klik);
    screen.uitgang.enabled = true;
    EXPECT_EQ(screen.next_focus(&screen.knop), &screen.uitgang);
    control_array<label, 1, 4> labels;
    for (const int missing : {0, 5}) EXPECT_THROW(labels[missing], checked_error);
}

TEST_F(form_events, has_timers_that_tick_until_stopped_or_unloaded_and_start_over_when_started_again) {
    start_and_stop_by_click();
    const std::function<void()> ends[]{[this] { outside.click(screen.uitgang); }, [this] { screen.unload(); }};
    for (const auto& end : ends) {
        outside.wait(3000);
        EXPECT_EQ(screen.happened(), "");
        outside.click(screen.knop);
        outside.wait(2900);
        EXPECT_EQ(screen.happened(), "tik tik ");
        outside.click(screen.knop);
        outside.wait(950);
        EXPECT_EQ(screen.happened(), "");
        outside.wait(50);
        EXPECT_EQ(screen.happened(), "tik ");
        end();
    }
    outside.wait(3000);
    EXPECT_EQ(screen.happened(), "");
}

TEST_F(form_events, lets_one_tick_at_most_wait_for_message_boxes_and_nothing_else_through) {
    start_and_stop_by_click();
    outside.click(screen.knop);
    const auto box = [this](const char* text, std::function<void(box_answer)> then) {
        outside.ask(screen, {text}, std::move(then));
    };
    outside.while_box_is_open = [this] {
        outside.wait(3500);
        EXPECT_FALSE(outside.click(screen.knop)) << "a click came through an open message box";
    };
    outside.run([&] {
        box("first", [&](box_answer) { box("follows from first", {}); });
        box("second", [this](box_answer) { screen.log += "read "; });
    });
    for (const message_box& each : outside.boxes) screen.log += each.text + ", ";
    EXPECT_EQ(screen.happened(), "read first, follows from first, second, ");
    outside.wait(950);
    EXPECT_EQ(screen.happened(), "tik ");
    outside.wait(100);
    EXPECT_EQ(screen.happened(), "tik ");
}

} // namespace
} // namespace cijferwerf
