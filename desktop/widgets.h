// The widgets of which a page is made: the toolkit's own, painted as the look says, and the list.
// Which widget a control gets, and what its events do, is the page's.
#pragma once

#include "desktop/form_page.h"

#include <QAbstractButton>
#include <QListWidget>

namespace cijferwerf {

QString line_breaks(const std::string& caption);

// The caption as the toolkit takes it for a button: "&" in front of the mnemonic, any other "&" doubled.
QString with_mnemonic(const control& shown);

// A standard widget with the look of its control.
template<class Base>
class painted : public Base {
public:
    painted(const control& shown, form_page& page) : Base(&page), shown_(shown), page_(page) {}

protected:
    void paintEvent(QPaintEvent*) override {
        control_state now{this->underMouse(), false, this->hasFocus()};
        if constexpr (std::derived_from<Base, QAbstractButton>) now.pressed = this->isDown();
        page_.paint(*this, face_of(page_.shown(), shown_, now, page_.settings()), shown_, pictures_);
    }
    bool hitButton(const QPoint& at) const requires std::derived_from<Base, QAbstractButton> {
        return this->rect().contains(at);
    }

private:
    const control& shown_;
    form_page& page_;
    picture_cache pictures_;
};

class list_widget : public QListWidget {
public:
    list_widget(const list_box& shown, form_page& page);

    // Fits the entries to the size of the page.
    void lay_out();

protected:
    bool event(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers with) override;

private:
    class entry_painter;

    const list_box& shown_;
    form_page& page_;
    picture_cache pictures_; // none are shown
};

} // namespace cijferwerf
