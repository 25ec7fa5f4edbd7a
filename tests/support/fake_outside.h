// A front end without a screen: it delivers a test's clicks and keys as a pupil could give them, keeps the timers on a
// clock that the test moves, and remembers what the program showed, asked and printed.
#pragma once

#include "runtime/event_gate.h"

#include <deque>

namespace cijferwerf {

class fake_outside : public outside {
public:
    // ---- what a test looks at ----
    std::vector<form*> shown; // every showing, in order
    std::vector<form*> unloaded;
    std::vector<message_box> boxes;
    std::vector<report> printed;
    bool ended = false;

    // ---- what a test sets ----
    float seconds = 36'000;
    local_time date{2024, 3, 9, 14, 5};
    std::deque<box_answer> answers; // to the boxes that will open; without one: No, or OK
    print_result print_outcome;
    std::function<void()> while_box_is_open, when_clock_is_read;

    // ---- what a pupil does; false when the screen does not let it happen ----
    bool click(control& clicked) {
        return clicked.usable() && clicked.takes_clicks() && run([&] { press(clicked); });
    }
    bool hover(control& under_pointer) {
        return under_pointer.usable() && under_pointer.hover && run([&] { under_pointer.hover(); });
    }
    bool press(form& in, char key) {
        bool pressed = false;
        return run([&] { pressed = in.key(key, nullptr); }) && pressed;
    }
    bool pick(list_box& list, int item) {
        if (!list.usable()) return false;
        list.selected = item;
        return click(list);
    }
    bool pick_by_enter(list_box& list, int item) {
        if (!list.usable()) return false;
        list.selected = item;
        return run([&] { list.keypress(list_box::enter_key); });
    }
    void close(form& window) {
        run([&] { window.close_requested(); });
    }
    // Any event; the boxes that it opens are answered.
    bool run(const std::function<void()>& handler) {
        if (!gate_.handle(handler)) return false;
        while (gate_.open_box() != nullptr) {
            boxes.push_back(gate_.open_box()->box);
            if (while_box_is_open) while_box_is_open();
            const bool ok = boxes.back().buttons == box_buttons::ok;
            box_answer given = ok ? box_answer::ok : box_answer::no;
            if (!answers.empty()) {
                given = answers.front();
                answers.pop_front();
            }
            gate_.answer(given);
        }
        return true;
    }
    // Time goes by, a little at a time, with every tick as it falls due.
    void wait(int milliseconds) {
        for (int gone = 0; gone < milliseconds; gone += 50) {
            clock_ += event_gate::milliseconds(50);
            gate_.deliver_ticks();
        }
    }

    // ---- what the program asks of its front end ----
    void show(form& f) override {
        shown.push_back(&f);
        gate_.watch(f);
    }
    void unload(form& f) override {
        unloaded.push_back(&f);
        gate_.forget(f);
    }
    void ask(form& over, message_box box, std::function<void(box_answer)> then) override {
        gate_.ask({&over, std::move(box), std::move(then)});
    }
    print_result print(const report& page) override {
        printed.push_back(page);
        return print_outcome;
    }
    float seconds_since_midnight() const override {
        if (when_clock_is_read) when_clock_is_read();
        return seconds;
    }
    local_time now() const override { return date; }
    void end() override { ended = true; }

private:
    void press(control& pressed) {
        for (form* each : shown)
            if (std::ranges::find(each->controls(), &pressed) != each->controls().end()) return each->press(pressed);
        pressed.click();
    }

    event_gate::milliseconds clock_{0};
    event_gate gate_{[this] { return clock_; }};
};

} // namespace cijferwerf
