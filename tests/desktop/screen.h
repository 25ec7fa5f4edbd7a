// Finds the widgets of a form that is shown, and answers message boxes, as a pupil's eyes and hands would.
#pragma once

#include "desktop/desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
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

// Presses the button with this caption of the message box that is open; the text of the box.
inline std::string answer_box(const desktop& outside, const std::string& caption) {
    if (outside.box_page() == nullptr) throw std::runtime_error("no message box is open");
    const std::string text = outside.box_page()->findChild<QLabel*>("tekst")->text().toStdString();
    const QString name = QString::fromStdString(caption).toLower();
    click(*outside.box_page()->findChild<QWidget*>(name));
    return text;
}

// Runs the program until it ends; its exit status, or 9 when it does not end within five seconds.
inline int run_program() {
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, [] { QCoreApplication::exit(9); });
    limit.start(5000);
    return QApplication::exec();
}

} // namespace cijferwerf
