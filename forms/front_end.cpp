#include "forms/front_end.h"

#include <cstdio>

namespace cijferwerf {

front_end::front_end(std::function<milliseconds()> steady_clock)
    : gate_(std::move(steady_clock)),
      box_(*this, [this](box_answer given) {
          box_open_ = false;
          close_box();
          guarded([&] { gate_.answer(given); });
      }) {}

void front_end::ask(form& over, message_box box, std::function<void(box_answer)> then) {
    gate_.ask({&over, std::move(box), std::move(then)});
}

void front_end::run(const std::function<void()>& handler) {
    if (failed_) return;
    bool let_in = false;
    guarded([&] { let_in = gate_.handle(handler); });
    if (let_in || failed_) after_event();
}

void front_end::run_in_box(const std::function<void()>& handler) {
    handler();
    after_event();
}

void front_end::tick() {
    guarded([&] { gate_.deliver_ticks(); });
    after_event();
}

void front_end::guarded(const std::function<void()>& event) {
    try {
        event();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        failed_ = true;
        gate_.drop_boxes();
        if (top() == nullptr)
            stop(1);
        else
            ask(*top(), {std::string("Het programma moet stoppen door een fout:\r\r") + error.what()},
                [this](box_answer) { stop(1); });
    }
}

// Ticks that fall due while a handler runs come when it has returned.
void front_end::after_event() {
    if (!failed_ && (ended_ || top() == nullptr)) return stop(0);
    update_screen();
    if (const auto* asked = gate_.open_box(); asked != nullptr && !box_open_) {
        box_open_ = true;
        box_.leg_voor(asked->box);
        open_box(box_, *asked->over);
    }
    wake_in(failed_ ? std::nullopt : gate_.until_next_tick());
}

} // namespace cijferwerf
