#include "tests/support/fake_outside.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

class test_form : public form {
public:
    explicit test_form(outside& with) : form(with, "test") {
        using enum theme_role;
        add(first, "first", {0, 0, 100, 100}, action, "first");
        add(second, "second", {0, 200, 100, 100}, action, "second");
        add(words, "words", {0, 400, 100, 100}, body, "words");
        add(titles, "titles", {0, 600, 100, 100}, list);
        add(chosen, "chosen", {200, 0, 100, 100}, choice, "chosen");
        add(other, "other", {200, 200, 100, 100}, choice, "other");
        add(clock, "clock", 1000);
        for (control* each : std::initializer_list<control*>{&first, &second, &words, &other})
            each->click = [this, each] { events += each->name + ' '; };
        titles.keypress = [this](int key) { events += "list" + std::to_string(key) + " "; };
        clock.tick = [this] { events += "tick "; };
    }
    void load() override { events += "load "; }
    void activate() override { events += "activate "; }
    std::string happened() { return std::exchange(events, ""); }

    button first, second;
    label words;
    list_box titles;
    option_button chosen, other;
    timer clock;
    std::string events;
};

struct form_of_all_kinds : testing::Test {
    fake_outside outside;
    test_form screen{outside};
    form_of_all_kinds() {
        screen.show();
        screen.events.clear();
    }
    void start_and_stop_by_click() {
        screen.first.click = [this] { screen.clock.start(); };
        screen.second.click = [this] { screen.clock.stop(); };
    }
};

TEST_F(form_of_all_kinds, is_loaded_again_only_after_it_was_unloaded_and_activated_only_when_opened) {
    screen.open();
    screen.show();
    EXPECT_EQ(screen.happened(), "activate ");
    screen.unload();
    screen.unload();
    EXPECT_EQ(outside.unloaded.size(), 1U);
    EXPECT_FALSE(screen.loaded());
    screen.show();
    EXPECT_EQ(screen.happened(), "load ");
    EXPECT_EQ(outside.shown.size(), 4U);
}

// What a key does depends on what has the focus.
TEST_F(form_of_all_kinds, gives_a_key_to_the_list_the_button_that_keeps_it_or_the_control_that_lists_it) {
    screen.first.keys = "A1";
    screen.second.keys = "A2\r";
    screen.second.keeps_enter = false;
    const struct {
        char key;
        control* focused;
        std::string happens;
    } rows[]{
        {'A', nullptr, "first "},          {'2', &screen.titles, "second "}, {'3', &screen.first, ""},
        {'\r', nullptr, "second "},        {'\r', &screen.first, "first "},  {'\r', &screen.titles, "list13 "},
        {'\r', &screen.chosen, "second "}, {'\r', &screen.other, "other "},  {' ', &screen.words, "words "},
        {'\r', &screen.words, "second "},  {' ', &screen.titles, ""},
    };
    for (const auto& [key, focused, happens] : rows) {
        screen.press(screen.chosen);
        EXPECT_EQ(screen.key(key, focused), !happens.empty()) << key;
        EXPECT_EQ(screen.happened(), happens) << key;
    }
    screen.second.mnemonic = 'b';
    EXPECT_TRUE(screen.key('B', &screen.first, true));
    EXPECT_FALSE(screen.key('A', nullptr, true)) << "with Alt only a mnemonic presses";
    EXPECT_EQ(screen.happened(), "second ");
    screen.first.enabled = screen.second.visible = false;
    EXPECT_FALSE(outside.press(screen, 'A') || screen.key('\r', &screen.first));
    EXPECT_EQ(screen.happened(), "");
}

TEST_F(form_of_all_kinds, takes_arrows_to_the_nearest_button_there_or_among_options_and_tab_round) {
    const std::tuple<char, control*, control*> arrows[]{{keys::down, &screen.first, &screen.second},
                                                        {keys::right, &screen.first, &screen.chosen},
                                                        {keys::left, &screen.first, nullptr},
                                                        {keys::up, &screen.other, &screen.chosen},
                                                        {keys::left, &screen.other, nullptr}};
    for (const auto& [key, from, to] : arrows) {
        screen.focus = nullptr;
        EXPECT_TRUE(screen.key(key, from));
        EXPECT_EQ(screen.focus, to) << from->name;
    }
    EXPECT_TRUE(screen.chosen.selected && !screen.other.selected);
    screen.press(screen.other);
    EXPECT_TRUE(screen.other.selected && !screen.chosen.selected && screen.focus == &screen.other);
    EXPECT_FALSE(screen.key(keys::down, &screen.titles)) << "a list moves by itself";

    screen.second.enabled = false;
    const std::tuple<control*, int, control*> tabs[]{{&screen.first, 1, &screen.titles},
                                                     {&screen.words, -1, &screen.first},
                                                     {&screen.other, 1, &screen.first},
                                                     {nullptr, 1, &screen.first},
                                                     {nullptr, -1, &screen.other}};
    for (const auto& [from, step, to] : tabs) EXPECT_EQ(screen.tab(from, step), to);
    control_array<label, 1, 4> labels;
    for (const int missing : {0, 5}) EXPECT_THROW(labels[missing], checked_error);
}

TEST_F(form_of_all_kinds, has_timers_that_tick_until_stopped_or_unloaded_and_start_over_when_started_again) {
    start_and_stop_by_click();
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
    for (const auto& [act, milliseconds, ticked] : rows) {
        act();
        outside.wait(milliseconds);
        EXPECT_EQ(screen.happened(), ticked) << milliseconds;
    }
}

TEST_F(form_of_all_kinds, lets_one_tick_at_most_wait_for_message_boxes_and_nothing_else_through) {
    start_and_stop_by_click();
    outside.click(screen.first);
    const auto box = [this](const char* text, std::function<void(box_answer)> then) {
        outside.ask(screen, {text}, std::move(then));
    };
    outside.while_box_is_open = [this] {
        outside.wait(3500);
        EXPECT_FALSE(outside.click(screen.first)) << "a click came through an open message box";
    };
    outside.run([&] {
        box("first", [&](box_answer) { box("follows from first", {}); });
        box("second", [this](box_answer) { screen.events += "read "; });
    });
    for (const message_box& each : outside.boxes) screen.events += each.text + ", ";
    EXPECT_EQ(screen.happened(), "read first, follows from first, second, ");
    outside.wait(950);
    EXPECT_EQ(screen.happened(), "tick ");
    outside.wait(100);
    EXPECT_EQ(screen.happened(), "tick ");
}

} // namespace
} // namespace cijferwerf
