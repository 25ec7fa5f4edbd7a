// What the program needs from outside: windows, message boxes, a printer, the clock, an end.
// A front end, a test and a tool each bring their own; no rule of the program lives behind it.
#pragma once

#include "runtime/report.h"

#include <functional>
#include <string>

namespace cijferwerf {

class form;

struct local_time {
    int year = 0;  // four digits
    int month = 1; // 1 to 12
    int day = 1;   // 1 to 31
    int hour = 0;
    int minute = 0;
};

// The program's name: the title of windows and boxes that have no other.
inline const std::string program_name = "Cijferwerf";

enum class box_buttons { ok, yes_no };
enum class box_answer { ok, yes, no };

struct message_box {
    std::string text;
    std::string title = program_name;
    box_buttons buttons = box_buttons::ok;
};

struct print_result {
    enum class outcome { printed, no_printer, failed } what = outcome::printed;
    std::string reason; // of a failure, as the system words it
};

class outside {
public:
    outside() = default;
    outside(const outside&) = delete;
    outside& operator=(const outside&) = delete;
    virtual ~outside() = default;

    // Brings a form to the front; it has been loaded.
    virtual void show(form& shown) = 0;
    // Takes a form off the screen; it lives on and may be shown again.
    virtual void unload(form& gone) = 0;
    // Opens a message box over the form that asks, once the handler that runs has returned; one at a time. What follows
    // from the answer, if anything, is an event of its own.
    virtual void ask(form& over, message_box box, std::function<void(box_answer)> then) = 0;
    // Prints on the default printer, without a dialogue.
    virtual print_result print(const report& printed) = 0;
    // Single precision, local time.
    virtual float seconds_since_midnight() const = 0;
    virtual local_time now() const = 0;
    // Ends the program once the handler that runs has returned.
    virtual void end() = 0;
};

} // namespace cijferwerf
