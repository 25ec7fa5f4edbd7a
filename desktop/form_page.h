// A form on the screen: a widget for each control, scaled with the page as a whole.
// Hands what the user does to the form's handlers; what the handlers change is copied to the widgets by
// update_widgets().
#pragma once

#include "desktop/appearance.h"
#include "desktop/picture_painter.h"

#include <QWidget>

#include <algorithm>
#include <functional>
#include <vector>

namespace cijferwerf {

class form_page : public QWidget {
public:
    // Runs a handler as an event: one at a time, and the widgets follow.
    using event_runner = std::function<void(const std::function<void()>&)>;

    // The widgets take their state at the first update. Without a window the page is one itself.
    form_page(form& of, event_runner run, QWidget* window = nullptr);
    ~form_page() override;

    form& shown() const { return form_; }
    // The control of one of the page's widgets and the widget of one of the form's controls, or null.
    const control* control_of(const QWidget* widget) const;
    QWidget* widget(const control* shown) const;
    // Pixels per twip.
    double unit() const { return std::min(1.0 * width() / form_.width, 1.0 * height() / form_.height); }
    QPoint place_of(point on_form) const { return (corner_ + QPointF(on_form.x, on_form.y) * unit()).toPoint(); }
    look_settings settings() const { return desktop_settings(); }
    // Where a control begins, to the fraction of a pixel, on a widget whose corner is here on the page.
    QPointF origin_of(const control& shown, QPoint corner) const {
        return corner_ + QPointF(shown.left, shown.top) * unit() - corner;
    }
    // Paints the face of a control on its widget.
    void paint(QWidget& widget, const scene& face, const control& shown, picture_cache& pictures) const;
    // Copies what has changed in the controls since the last time, and moves the focus where the form wants it.
    void update_widgets();

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override { fit(); }
    void keyPressEvent(QKeyEvent*) override;
    void closeEvent(QCloseEvent*) override;
    bool eventFilter(QObject*, QEvent*) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct placed_control; // a control, its widget, and what was copied to it last

    void make_widget(control& shown);
    void copy(placed_control& placed);
    const placed_control* placed(const QObject* widget) const;
    void lay_out(placed_control& placed);
    void fit();
    void clicked(control& on);
    bool key_pressed(control* focused, const QKeyEvent& event);
    bool stray_click(QObject* on, const QEvent& event);

    form& form_;
    event_runner run_;
    std::vector<placed_control> placed_;
    backdrop behind_{};
    QPointF corner_;             // the top-left corner of the form on the page
    QObject* pressed_ = nullptr; // what the pointer pressed last; only compared
    bool updating_ = false;
};

} // namespace cijferwerf
