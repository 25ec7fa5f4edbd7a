// The desktop as the program's outside: windows, message boxes, the default printer, the clock and the timers.
// It shows any form and holds no rule of the program.
#pragma once

#include "desktop/form_page.h"
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

    void show(form& shown) override;
    void unload(form& gone) override;
    box_answer ask(const std::string& text, const std::string& title, box_buttons buttons) override;
    print_result print(const report& printed) override;
    float seconds_since_midnight() const override;
    local_time now() const override;
    void end() override { ended_ = true; }

private:
    class main_window;

    template<class Event>
    void guarded(Event event);
    void tick();
    void after_event();
    void stop(int status);
    void update_screen();
    void close_top();
    QSize comfortable_size(const form& of) const;

    std::unique_ptr<main_window> window_;
    std::vector<form_page*> pages_; // the ordinary ones in the window, the one on top last
    std::vector<form_page*> side_pages_;
    event_gate gate_;
    QTimer wake_up_;
    int running_ = 0; // handlers under way; more than one only while a message box is up
    bool ended_ = false;
    bool failed_ = false;
};

// What a program with this desktop calls before and after it makes its QApplication.
void prepare_application();
void dress_application();

} // namespace cijferwerf
