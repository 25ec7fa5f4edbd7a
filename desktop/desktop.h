// The desktop as the program's outside: windows, the default printer, the clock and the timers.
// It shows any form and holds no rule of the program.
#pragma once

#include "desktop/form_page.h"
#include "forms/shell/berichtvenster.h"
#include "runtime/event_gate.h"

#include <QTimer>

#include <memory>

namespace cijferwerf {

class desktop : public outside {
public:
    // A QApplication must exist.
    desktop();
    ~desktop() override;

    // Runs this as an event. An exception out of it ends the program with a message and exit status 1.
    void run(const std::function<void()>& handler);
    // The page of a form that is shown, or null.
    form_page* page(const form& of) const;
    // The page of the message box that is open, or null.
    form_page* box_page() const { return box_page_; }
    const berichtvenster& box() const { return box_; }

    void show(form& shown) override;
    void unload(form& gone) override;
    void ask(form& over, message_box box, std::function<void(box_answer)> then) override;
    print_result print(const report& printed) override;
    float seconds_since_midnight() const override;
    local_time now() const override;
    void end() override { ended_ = true; }

private:
    class main_window;
    class shade;

    template<class Event>
    void guarded(Event event);
    void open_box();
    void close_box();
    void tick();
    void after_event();
    void stop(int status);
    void update_screen();
    void close_top();
    QRect comfortable_place(const form& of) const;

    std::unique_ptr<main_window> window_;
    std::vector<form_page*> pages_; // the ordinary ones in the window, the one on top last
    std::vector<form_page*> side_pages_;
    event_gate gate_;
    QTimer wake_up_;
    berichtvenster box_; // shown for every message box in turn
    form_page* box_page_ = nullptr;
    std::vector<shade*> shades_; // over every page while a message box is open
    bool ended_ = false;
    bool failed_ = false;
};

// What a program with this desktop calls before and after it makes its QApplication.
void prepare_application();
void dress_application();

} // namespace cijferwerf
