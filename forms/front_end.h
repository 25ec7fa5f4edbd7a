// What every front end does alike: lets events through one at a time, opens the message boxes that they ask for, and
// ends the program, also over an error of its own.
// How forms and boxes are shown, and when time is up, is left to the front end that derives from it.
#pragma once

#include "forms/shell/berichtvenster.h"
#include "runtime/event_gate.h"

namespace cijferwerf {

class front_end : public outside {
public:
    // Runs this as an event. An exception out of it ends the program with a message and status 1.
    void run(const std::function<void()>& handler);

    void ask(form& over, message_box box, std::function<void(box_answer)> then) override;
    void end() override { ended_ = true; }

protected:
    using milliseconds = event_gate::milliseconds;

    explicit front_end(std::function<milliseconds()> steady_clock);

    // The form on top, or null when none is shown.
    virtual form* top() const = 0;
    // Shows what events have changed.
    virtual void update_screen() = 0;
    // Shows a box in the middle of a form; nothing but the box can be reached until it is closed.
    virtual void open_box(berichtvenster& box, const form& over) = 0;
    virtual void close_box() = 0;
    // Calls tick() after this time, or not at all.
    virtual void wake_in(std::optional<milliseconds> time) = 0;
    // Ends the program with this status, also before it waits for events.
    virtual void stop(int status) = 0;

    // Runs this as an event of the box that is open.
    void run_in_box(const std::function<void()>& handler);
    void tick();

    event_gate gate_;

private:
    void guarded(const std::function<void()>& event);
    void after_event();

    berichtvenster box_; // shown for every message box in turn
    bool box_open_ = false;
    bool ended_ = false;
    bool failed_ = false;
};

} // namespace cijferwerf
