// Finds the widgets of a form that is shown, and answers message boxes, as a pupil's eyes and hands would.
#pragma once

#include "desktop/desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace cijferwerf {

template<class Widget = QWidget>
Widget& find(const desktop& outside, const form& on, const char* name) {
    form_page* page = outside.page(on);
    if (page == nullptr) throw std::runtime_error("the form is not shown");
    auto* widget = page->findChild<Widget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget is called ") + name);
    return *widget;
}

inline void click(QWidget& on, QPoint at = {}) {
    QTest::mouseClick(&on, Qt::LeftButton, {}, at.isNull() ? on.rect().center() : at);
}

inline void type(const desktop& outside, const form& on, Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QWidget* focused = outside.page(on)->focusWidget();
    QTest::keyClick(focused != nullptr ? focused : outside.page(on), key, with);
}

// Presses the button with this caption of the message box that will come up; meanwhile() runs before that, with the
// box up. The text of the box is written to seen.
inline void answer_box(
    const QString& caption, QString& seen, std::function<void()> meanwhile = [] {}) {
    auto* look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, [=, &seen] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        look->stop();
        look->deleteLater();
        seen = box->text();
        meanwhile();
        for (QAbstractButton* button : box->buttons())
            if (button->text() == caption) return button->click();
        box->reject();
    });
    look->start(1);
}

// Runs the program until it ends; its exit status, or 9 when it does not end within five seconds.
inline int run_program() {
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, [] { QCoreApplication::exit(9); });
    limit.start(5000);
    return QApplication::exec();
}

} // namespace cijferwerf
