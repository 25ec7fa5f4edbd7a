// The desktop as the program's outside: windows, the default printer, the clock and the timers.
// It shows any form and holds no rule of the program.
#pragma once

#include "desktop/form_page.h"
#include "forms/front_end.h"

#include <QPointer>
#include <QTimer>

#include <memory>

namespace cijferwerf {

class desktop : public front_end {
public:
    // A QApplication must exist.
    desktop();
    ~desktop() override;

    // Takes everything off the screen for good, while the forms are there: a screen reader asks until the last moment.
    void close();

    // The page of a form that is shown, or null.
    form_page* page(const form& of) const;
    // The page of the message box that is open, or null.
    form_page* box_page() const { return box_page_; }

    void show(form& shown) override;
    void unload(form& gone) override;
    print_result print(const report& printed) override;
    float seconds_since_midnight() const override;
    local_time now() const override;

protected:
    form* top() const override;
    void update_screen() override;
    void open_box(berichtvenster& box, const form& over) override;
    void close_box() override;
    void wake_in(std::optional<milliseconds> time) override;
    void stop(int status) override;

private:
    class main_window;
    class shade;

    void close_top();
    QRect comfortable_place(const form& of) const;

    std::unique_ptr<main_window> window_;
    std::vector<form_page*> pages_; // the ordinary ones in the window, the one on top last
    std::vector<form_page*> side_pages_;
    QTimer wake_up_;
    form_page* box_page_ = nullptr;
    QPointer<QWidget> asking_window_; // gets the keys again when the box closes
    std::vector<shade*> shades_;      // over every page while a message box is open
};

// What a program with this desktop calls before and after it makes its QApplication.
void prepare_application();
void dress_application();

} // namespace cijferwerf
