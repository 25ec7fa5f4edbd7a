// The controls of a form as plain data: what a front end needs to make a widget of each, and the handlers to call.
// They paint nothing and decide nothing; the form that owns them does.
#pragma once

#include "runtime/picture_box.h"
#include "runtime/stop_run.h"
#include "runtime/subject.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace cijferwerf {

enum class control_kind : std::uint8_t { label, button, option_button, list_box, frame, picture_box, timer };

// What a control is for, so that a theme can dress it; the theme belongs to the front end.
enum class theme_role : std::uint8_t {
    body,            // plain text
    title,           // the large words of a start screen; subdued, the smaller ones under them
    heading,         // text on the bar across the top
    heading_bar,     // that bar itself (a frame)
    panel,           // a white panel on the calm ground (a frame)
    prompt,          // says what to do
    hint,            // small text that comes and goes
    question,        // a line of the question
    answer,          // an answer text, clicked like its button
    answer_button,   // A to D
    message_heading, // the word above the messages
    verdict,         // right or wrong, in a sentence
    message,         // a line of tips, comments or explanation
    action,          // a button that leads elsewhere
    main_action,     // the button that goes on
    choice,          // a large choice: an option button, or an entry of a menu
    key,             // a digit key of the calculator
    operator_key,    // its other keys
    readout,         // its display
    value,           // a number on the score sheet
    list,            // a list box
    picture,         // a picture box
    lesson,          // a panel of an introduction, on the tint of its subject (a frame)
    lesson_title,    // what an introduction is about
    lesson_text,     // a line of it
    lesson_word,     // a name or a heading on such a panel: bold, in the dark of its subject
    lesson_value,    // a number on it: bold, in the middle
    illustration,    // a picture box on it, without an edge
    stepper,         // a round button with a sign that lowers or raises a number
    cell,            // a part of a picture that can be pressed: nothing is seen of it but a ring, hovered or focused
    toggle,          // one of a row of small options
};

// What a text or a panel has to say of an answer.
enum class tone : std::uint8_t { neutral, right, wrong };

struct control {
    explicit control(control_kind of_kind) : kind(of_kind) {}
    control(const control&) = delete;
    control& operator=(const control&) = delete;

    const control_kind kind;
    std::string name;
    std::optional<int> index; // the element of a control array that this is
    int left = 0, top = 0;    // twips from the form's top-left corner
    int width = 0, height = 0;
    std::string caption; // UTF-8; a carriage return starts a second line
    bool visible = true;
    bool enabled = true;
    std::optional<kleur> colour; // of the text, where the theme's own will not do
    double font_size = 9.75;     // points
    theme_role role = theme_role::body;
    std::string accessible_name; // for a screen reader, where the caption does not say enough
    std::string description;     // more for a screen reader, after the name; of a choice it is shown too
    std::string keys;            // each of these keys presses it, wherever the focus is (see form::press)
    char mnemonic = 0;           // with Alt, presses it; a letter of the caption

    std::function<void()> click;
    std::function<void()> hover; // the pointer, or the keyboard focus, came upon it

    bool usable() const { return visible && enabled; }
    bool takes_clicks() const { return click || kind == control_kind::option_button; }
    bool is_button() const { return kind == control_kind::button || kind == control_kind::option_button; }
};

struct label : control {
    label() : control(control_kind::label) {}
    bool right_aligned = false;
    cijferwerf::tone tone = tone::neutral;
    bool subdued = false;                // said before, still worth reading
    std::optional<double> share;         // 0 to 1: a value is shown with a bar filled so far
    std::optional<drawing> mark;         // at the left of the text
    control* card = nullptr;             // the button that this text belongs to: one card for pointer, focus and reader
    const control* caption_of = nullptr; // the value that this text names
};

// What became of an answer.
enum class answer_result : std::uint8_t { open, tried, right, unused };

struct button : control {
    button() : control(control_kind::button) {}
    bool keeps_enter = true;     // Enter on it presses it, also where the form lists Enter for another
    std::optional<drawing> mark; // a small drawing, fitted by what is drawn on it (see drawn_bounds)
    // Where a caption is shown as a small line over a large one; the caption stays the whole, for a screen reader.
    std::string overline, headline;
    subject about = subject::none;
    answer_result result = answer_result::open;
    bool quiet = false; // of use to few: shown as plain text
    // A sign in the place of the caption, which stays what is spoken.
    enum class sign : std::uint8_t { none, plus, minus } face = sign::none;
};

struct option_button : control {
    option_button() : control(control_kind::option_button) {}
    bool selected = false; // at most one of a form is (see form::press)
    std::optional<drawing> mark;
    subject about = subject::none;
};

struct list_box : control {
    list_box() : control(control_kind::list_box) {}
    std::vector<std::string> items;
    enum class item_mark : std::uint8_t { none, first, later }; // solved at the first attempt, or later
    std::vector<item_mark> marks;                               // as long as items, or empty
    int row_height = 0;                                         // twips; 0 leaves it to the look
    int selected = -1;                 // position in items, or -1; the front end sets it before it calls a handler
    std::function<void(int)> keypress; // a key code: 13 is Enter

    static constexpr int enter_key = 13;
};

struct frame : control {
    frame() : control(control_kind::frame) {}
    bool quiet = false;    // waits for something to show
    int header_height = 0; // twips, of a band at its top in the colour of its tone
    cijferwerf::tone tone = tone::neutral;
};

// The picture box is a control and a drawing at once.
struct picture_box : control, drawing {
    picture_box() : control(control_kind::picture_box) {
        width = inner_width;
        height = inner_height;
    }
};

struct timer : control {
    timer() : control(control_kind::timer) { enabled = false; }

    int interval = 1000; // ms
    std::function<void()> tick;

    // The first tick comes one interval from now, also where the timer was running already.
    void start() {
        enabled = true;
        started = true;
    }
    void stop() { enabled = false; }

    bool started = false; // since the event gate looked last; the gate's own
};

// A control array with its own first and last index. An index outside ends the run with a message.
template<class Control, int First, int Last>
class control_array {
public:
    Control& operator[](int index) {
        if (index < First || index > Last)
            stop_run("control array index " + std::to_string(index) + " outside " + std::to_string(First) + " to " +
                     std::to_string(Last));
        return elements_[static_cast<std::size_t>(index - First)];
    }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

    static constexpr int first = First;
    static constexpr int last = Last;

private:
    std::array<Control, static_cast<std::size_t>(Last - First + 1)> elements_;
};

} // namespace cijferwerf
