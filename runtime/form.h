// A form: a screen of controls with its life from loading to unloading.
// What its controls do is left to the form that derives from it, how they look to a front end.
#pragma once

#include "runtime/control.h"
#include "runtime/outside.h"
#include "runtime/place.h"

namespace cijferwerf {

// The keys that type nothing, and those that have a character of their own all the same.
namespace keys {
inline constexpr char enter = '\r', escape = '\x1b', erase = '\x7f', left = '\x1c', right = '\x1d', up = '\x1e',
                      down = '\x1f', home = '\x01', end = '\x02';
} // namespace keys

class form {
public:
    form(outside& with, std::string form_name) : caption(program_name), buiten(with), name_(std::move(form_name)) {}
    form(const form&) = delete;
    form& operator=(const form&) = delete;
    virtual ~form() = default;

    // Brings the form to the front, loading it first when it is not loaded.
    void show();
    // The same for a menu or the start: the form is then activated as well.
    void open();
    void unload();
    bool loaded() const { return loaded_; }

    // The window manager asks to close the form's window.
    virtual void close_requested() { unload(); }

    // What a click on a control does, or its mnemonic: an option is chosen, alone of all, and takes the focus; then its
    // handler is called. Nothing where it is hidden or disabled.
    void press(control& pressed);
    // What a key does while this control (or none, null) has the focus; false when nothing. Keys are the characters
    // that they type, upper case, and those named above. Enter in a list is the list's; a button may keep Enter, and an
    // option that is not chosen does; any other key, and Enter, presses the first usable control that lists it; Enter
    // that none lists presses what has the focus, and so does the blank. With Alt, a key presses the control whose
    // mnemonic it is. An arrow on a button goes to the nearest there, Home and End to the ends of its array; from
    // option to option it chooses.
    bool key(char pressed, control* focused, bool with_alt = false);
    // Where the focus goes when it is on this control (or none, null): where a handler wants it, or from a control that
    // can no longer have it to the next of its array; or, null, nowhere in particular. What was wanted is then done.
    control* next_focus(const control* focused);
    // Where the Tab key leads from there, one on or (-1) one back; null when nothing can have the focus.
    control* tab(const control* focused, int step) const;

    const std::string& name() const { return name_; }
    const std::vector<control*>& controls() const { return controls_; } // in tab order

    std::string caption;      // the title bar's
    int width = 12480;        // twips, as is the height
    int height = 7800;        //
    bool side_window = false; // true: a window of its own beside the main one, which stays usable
    bool overlay = false;     // true: lies in the middle of the form that asked, which cannot be reached meanwhile
    subject about = subject::none;
    std::optional<point> wanted_place; // of a side window on the main form, twips
    std::string announcement;          // what a screen reader says when this event is over; the front end empties it
    control* focus = nullptr; // where a handler wants the keyboard to go; the front end takes it and sets it back

protected:
    virtual void load() {}
    virtual void activate() {}

    // Opens a message box over this form (see outside::ask).
    void ask(message_box box, std::function<void(box_answer)> then = {});

    static void put(control& moved, place at);
    // Takes up a control of this form. Tab order is the order of the calls.
    void add(control& added, std::string control_name, place at, theme_role role, std::string control_caption = {});
    // The same for a control without a place on the screen.
    void add(timer& added, std::string control_name, int interval_ms);

    outside& buiten;

private:
    control* arrow(char pressed, const control& from) const;

    std::string name_;
    std::vector<control*> controls_;
    bool loaded_ = false;
};

} // namespace cijferwerf
