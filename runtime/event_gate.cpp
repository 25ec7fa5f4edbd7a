#include "runtime/event_gate.h"

namespace cijferwerf {

void event_gate::forget(form& unloaded) {
    forms_.erase(&unloaded);
    for (control* gone : unloaded.controls())
        if (gone->kind == control_kind::timer) due_.erase(static_cast<timer*>(gone));
}

// After every handler: timers that it started get their first due time, those that it stopped are dropped.
void event_gate::look_at_timers() {
    for (const form* watched : forms_)
        for (control* seen : watched->controls()) {
            if (seen->kind != control_kind::timer) continue;
            auto& clock = static_cast<timer&>(*seen);
            if (!clock.enabled)
                due_.erase(&clock);
            else if (clock.started || !due_.contains(&clock))
                due_[&clock] = clock_() + milliseconds(clock.interval);
            clock.started = false;
        }
}

void event_gate::answer(box_answer given) {
    const auto then = std::move(questions_.front().then);
    questions_.pop_front();
    // A box that is next in line opens after what follows from this one.
    const auto waiting = std::exchange(questions_, {});
    handle([&] {
        if (then) then(given);
    });
    questions_.insert(questions_.end(), waiting.begin(), waiting.end());
}

void event_gate::deliver_ticks() {
    if (busy_) return;
    look_at_timers();
    for (auto next = next_timer(); open_box() == nullptr && next != due_.end() && next->second <= clock_();
         next = next_timer()) {
        timer& ticking = *next->first;
        milliseconds& due = due_[&ticking];
        due += milliseconds(ticking.interval);
        if (due <= clock_()) due = clock_() + milliseconds(ticking.interval); // what else fell due meanwhile is dropped
        handle([&ticking] {
            if (ticking.tick) ticking.tick();
        });
    }
}

std::optional<event_gate::milliseconds> event_gate::until_next_tick() const {
    const auto next = next_timer();
    if (next == due_.end() || open_box() != nullptr) return std::nullopt;
    return std::max(milliseconds(0), next->second - clock_());
}

} // namespace cijferwerf
