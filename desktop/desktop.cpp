#include "desktop/desktop.h"

#include "desktop/report_printer.h"
#include "desktop/shipped.h"
#include "desktop/theme.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QKeyEvent>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>

#include <cmath>

namespace cijferwerf {

namespace {

constexpr double share_of_screen = 0.9;
constexpr double smallest_unit = 0.6 / 15; // pixels per twip
constexpr double box_points = 10.5;

std::chrono::milliseconds steady_now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

// A key that is held presses once, a mnemonic too, and closes no message box that its first press opened. Only what
// moves about goes on.
class held_keys : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        const auto type = event->type();
        if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride) return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (type == QEvent::KeyRelease) {
            released_ = key.key();
            released_at_ = key.timestamp();
            return false;
        }
        if (!repeats(key) || moves(key.key())) return false;
        event->accept(); // as taken here, it is no shortcut any more
        return true;
    }

private:
    // The X server repeats a key by releasing and pressing it in the same millisecond, which the toolkit only sees when
    // it finds both at once.
    bool repeats(const QKeyEvent& key) const {
        const bool at_once = key.timestamp() != 0 && key.timestamp() == released_at_ && key.key() == released_;
        return key.isAutoRepeat() || at_once;
    }
    static bool moves(int key) {
        return key == Qt::Key_Tab || key == Qt::Key_Backtab || (key >= Qt::Key_Home && key <= Qt::Key_PageDown);
    }

    int released_ = 0;
    std::uint64_t released_at_ = 0; // ms
};

} // namespace

// The window of the ordinary forms: each is a page, and the one on top is seen.
class desktop::main_window : public QStackedWidget {
public:
    explicit main_window(desktop& of) : of_(of) { setPalette(QPalette(theme::ground)); }

protected:
    // Only the program itself ends the program.
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        of_.close_top();
    }

private:
    desktop& of_;
};

desktop::desktop() : window_(std::make_unique<main_window>(*this)), gate_(steady_now) {
    wake_up_.setSingleShot(true);
    wake_up_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&wake_up_, &QTimer::timeout, [this] { tick(); });
}

desktop::~desktop() {
    for (form_page* page : side_pages_) delete page;
}

// ---- events ----

template<class Event>
void desktop::guarded(Event event) {
    if (failed_) return;
    try {
        ++running_;
        event();
        --running_;
    } catch (const std::exception& error) {
        --running_;
        failed_ = true;
        wake_up_.stop();
        ask(std::string("Het programma moet stoppen door een fout:\n\n") + error.what(), program_name, box_buttons::ok);
        stop(1);
    }
}

void desktop::run(const std::function<void()>& handler) {
    guarded([&] { gate_.handle(handler); });
    after_event();
}

void desktop::tick() {
    guarded([&] { gate_.deliver_ticks(); });
    after_event();
}

// Ticks that fall due while a handler runs come when it has returned.
void desktop::after_event() {
    if (running_ > 0 || failed_) return;
    if (ended_ || (pages_.empty() && side_pages_.empty())) return stop(0);
    update_screen();
    if (const auto wait = gate_.until_next_tick())
        wake_up_.start(*wait);
    else
        wake_up_.stop();
}

// Also before the event loop has begun.
void desktop::stop(int status) {
    QMetaObject::invokeMethod(
        qApp, [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

void desktop::update_screen() {
    for (form_page* page : pages_) page->update_widgets();
    for (form_page* page : side_pages_) {
        page->update_widgets();
        page->setWindowTitle(QString::fromStdString(page->shown().caption));
    }
    if (!pages_.empty()) window_->setWindowTitle(QString::fromStdString(pages_.back()->shown().caption));
}

void desktop::close_top() {
    if (!pages_.empty()) run([this] { pages_.back()->shown().close_requested(); });
}

// ---- forms ----

form_page* desktop::page(const form& of) const {
    for (const auto* pages : {&pages_, &side_pages_})
        for (form_page* shown : *pages)
            if (&shown->shown() == &of) return shown;
    return nullptr;
}

// The largest size of this shape that leaves some of the screen free.
QSize desktop::comfortable_size(const form& of) const {
    const QSizeF most = window_->screen()->availableSize() * share_of_screen;
    return QSizeF(of.width, of.height).scaled(most, Qt::KeepAspectRatio).toSize();
}

void desktop::show(form& shown) {
    gate_.watch(shown);
    form_page* made = page(shown);
    const bool fresh = made == nullptr;
    if (fresh) {
        made = new form_page(
            shown, [this](const auto& handler) { run(handler); }, shown.side_window ? nullptr : window_.get());
        made->setWindowTitle(QString::fromStdString(shown.caption));
    }
    if (shown.side_window) {
        if (fresh) {
            side_pages_.push_back(made);
            const form_page* beside = pages_.empty() ? nullptr : pages_.back();
            const double unit = beside != nullptr ? beside->unit() : 0;
            made->resize(unit > 0 ? (QSizeF(shown.width, shown.height) * unit).toSize() : comfortable_size(shown));
            made->setMinimumSize((QSizeF(shown.width, shown.height) * smallest_unit).toSize());
            made->setParent(window_.get(), Qt::Dialog); // stays above the main one and goes down with it
            if (beside != nullptr) made->move(window_->geometry().center() - made->rect().center());
        }
        made->show();
        made->raise();
        made->activateWindow();
        return;
    }
    std::erase(pages_, made);
    pages_.push_back(made);
    if (fresh) window_->addWidget(made);
    window_->setCurrentWidget(made);
    if (!window_->isVisible()) {
        window_->setMinimumSize((QSizeF(shown.width, shown.height) * smallest_unit).toSize());
        const QSize size = comfortable_size(shown);
        const QRect screen = window_->screen()->availableGeometry();
        window_->setGeometry(QRect(screen.center() - QPoint(size.width(), size.height()) / 2, size));
        window_->show();
        window_->activateWindow();
    }
}

void desktop::unload(form& gone) {
    gate_.forget(gone);
    form_page* left = page(gone);
    if (left == nullptr) return;
    std::erase(pages_, left);
    std::erase(side_pages_, left);
    if (!pages_.empty()) window_->setCurrentWidget(pages_.back());
    if (window_->indexOf(left) >= 0) window_->removeWidget(left);
    left->hide();
    left->deleteLater(); // its widget may be the one whose event runs
}

// ---- message boxes, printer, clock ----

box_answer desktop::ask(const std::string& text, const std::string& title, box_buttons buttons) {
    update_screen();
    QWidget* const over = QApplication::activeWindow() != nullptr ? QApplication::activeWindow() : window_.get();
    QMessageBox box(over);
    box.setWindowTitle(QString::fromStdString(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    const QAbstractButton* const yes = box.addButton(buttons == box_buttons::ok ? "OK" : "Ja", QMessageBox::YesRole);
    if (buttons == box_buttons::yes_no) {
        QPushButton* const no = box.addButton("Nee", QMessageBox::NoRole);
        box.setEscapeButton(no);
        box.setDefaultButton(no); // a stray Enter ends nothing
    }

    // As large as the screens are.
    const double unit = pages_.empty() ? 1.0 / 15 : pages_.back()->unit();
    const auto pixels = [unit](double twips) { return static_cast<int>(std::lround(twips * unit)); };
    QFont font = box.font();
    font.setPixelSize(std::max(12, pixels(box_points * 20)));
    box.setFont(font);
    box.layout()->setContentsMargins(pixels(300), pixels(300), pixels(300), pixels(240));
    for (QAbstractButton* button : box.buttons()) {
        button->setFont(font);
        button->setMinimumSize(pixels(1200), pixels(420));
    }

    box.exec();
    over->activateWindow(); // where no window manager gives it back
    return buttons == box_buttons::ok ? box_answer::ok : box.clickedButton() == yes ? box_answer::yes : box_answer::no;
}

print_result desktop::print(const report& printed) { return print_report(printed); }

float desktop::seconds_since_midnight() const {
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000;
}

local_time desktop::now() const {
    const QDateTime time = QDateTime::currentDateTime();
    return {time.date().year(), time.date().month(), time.date().day(), time.time().hour(), time.time().minute()};
}

// ---- the application ----

void prepare_application() {
    // The screens bring their own colours and fonts; a desktop's settings would only cost time and memory.
    QGuiApplication::setDesktopSettingsAware(false);
}

void dress_application() {
    QApplication::setApplicationName(QString::fromStdString(program_name));
    QApplication::setDesktopFileName("cijferwerf");
    QApplication::setWindowIcon(program_icon());
    QApplication::setQuitOnLastWindowClosed(false);
    load_shipped_face();
    qApp->installEventFilter(new held_keys(qApp));
    QApplication::setPalette(theme::palette());
    QFont font = twip_font(box_points);
    font.setPixelSize(14);
    QApplication::setFont(font);
}

} // namespace cijferwerf
