// The widgets of which a page is made: the toolkit's own, painted by the theme, the picture, and the list.
// Which widget a control gets, and what its events do, is the page's.
#pragma once

#include "desktop/form_page.h"
#include "desktop/theme.h"

#include <QAbstractButton>
#include <QListWidget>

namespace cijferwerf {

QString line_breaks(const std::string& caption);

// The caption as the toolkit takes it for a button: "&" in front of the mnemonic, any other "&" doubled.
QString with_mnemonic(const control& shown);

// A standard widget that the theme paints.
template<class Base>
class painted : public Base {
public:
    painted(const control& shown, form_page& page) : Base(&page), shown_(shown), page_(page) {}

protected:
    void paintEvent(QPaintEvent*) override {
        theme::state now{this->isEnabled(), this->underMouse(), false, this->hasFocus(), false};
        QString caption;
        if constexpr (std::derived_from<Base, QAbstractButton>) {
            now.pressed = this->isDown();
            now.selected = this->isChecked();
        }
        if constexpr (requires { this->text(); })
            caption = this->text();
        else
            caption = line_breaks(shown_.caption);
        QPainter on(this);
        theme::paint(on, shown_, caption, this->size(), page_.unit(), now);
    }
    bool hitButton(const QPoint& at) const requires std::derived_from<Base, QAbstractButton> {
        return this->rect().contains(at);
    }

private:
    const control& shown_;
    form_page& page_;
};

class picture_widget : public QWidget {
public:
    static constexpr int border = 1; // pixels around the picture

    picture_widget(const picture_box& shown, form_page& page) : QWidget(&page), shown_(shown) {}

protected:
    void paintEvent(QPaintEvent*) override;

private:
    const picture_box& shown_;
    picture_cache pictures_;
};

class list_widget : public QListWidget {
public:
    list_widget(const list_box& shown, form_page& page);

    // Fits the entries to the size of the page.
    void lay_out();

protected:
    bool event(QEvent* event) override;

private:
    class entry_painter;

    const list_box& shown_;
    form_page& page_;
};

} // namespace cijferwerf
