// Lets events through to the forms one at a time, and keeps the timers and the message boxes: while a box is open,
// nothing but its answer comes through. A tick that falls due meanwhile, or while a handler runs, waits; at most one
// tick of a timer does, so that no time goes by for a pupil who is asked something.
// Where events come from, what a box looks like and when to wake up for the next tick is left to the front end.
#pragma once

#include "runtime/form.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace cijferwerf {

class event_gate {
public:
    using milliseconds = std::chrono::milliseconds;

    // A steady clock; it never goes back.
    explicit event_gate(std::function<milliseconds()> clock) : clock_(std::move(clock)) {}

    // Runs the handler of an event. False, and nothing is run, while another handler runs or a box is open.
    template<class Handler>
    bool handle(Handler&& handler) {
        if (busy_ || open_box() != nullptr) return false;
        {
            const busy_guard guard(busy_);
            handler();
        }
        look_at_timers();
        return true;
    }

    // The timers of these forms tick from now on, or no longer. May be called by a handler.
    void watch(form& loaded) { forms_.insert(&loaded); }
    void forget(form& unloaded);

    // A message box and the form that asked.
    struct question {
        form* over;
        message_box box;
        std::function<void(box_answer)> then;
    };
    // Opens a box, or lines it up behind the one that is open.
    void ask(question asked) { questions_.push_back(std::move(asked)); }
    const question* open_box() const { return questions_.empty() ? nullptr : &questions_.front(); }
    // Closes the open box; what follows from this answer runs as an event.
    void answer(box_answer given);
    // Closes all of them; nothing follows.
    void drop_boxes() { questions_.clear(); }

    // Delivers the ticks that are due, in the order in which they fell due. Nothing while a handler runs or a box is
    // open.
    void deliver_ticks();
    // How long until the next tick is due (0 when one is overdue); nothing when no timer runs or a box is open.
    std::optional<milliseconds> until_next_tick() const;

private:
    struct busy_guard {
        explicit busy_guard(bool& flag) : busy(flag) { busy = true; }
        ~busy_guard() { busy = false; }
        busy_guard(const busy_guard&) = delete;
        busy_guard& operator=(const busy_guard&) = delete;
        bool& busy;
    };

    void look_at_timers();
    auto next_timer() const {
        return std::ranges::min_element(due_, {}, [](const auto& entry) { return entry.second; });
    }

    std::function<milliseconds()> clock_;
    std::unordered_set<form*> forms_;
    std::unordered_map<timer*, milliseconds> due_; // the running timers, each with the time of its next tick
    std::deque<question> questions_;
    bool busy_ = false;
};

} // namespace cijferwerf
