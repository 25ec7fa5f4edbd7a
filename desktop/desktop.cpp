#include "desktop/desktop.h"

#include "desktop/accessible.h"
#include "desktop/report_printer.h"
#include "desktop/shipped.h"
#include "desktop/theme.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStackedWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace cijferwerf {

namespace {

constexpr double share_of_screen = 0.9; // of a large one
constexpr int small_screen = 1400;      // pixels wide; room for a title bar is left on it
constexpr int title_bar = 36;
constexpr double smallest_unit = 0.6 / 15; // pixels per twip

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

// Over a page while a message box is open: darkens it and keeps pointer and keyboard from it; closing its window closes
// the box. Where the box lies in another window, that one gets the keys again when the pupil points at this one.
class desktop::shade : public QWidget {
public:
    shade(form_page& over, const desktop& of) : QWidget(&over), of_(of), had_focus_(over.focusWidget()) {
        over.installEventFilter(this);
        over.window()->installEventFilter(this);
        setGeometry(over.rect());
        show();
        setFocus();
    }
    // Bears the box in its middle.
    void carry(form_page& box) {
        box_ = &box;
        place_box();
        box.show();
    }
    // The focus returns to where it was.
    void lift() {
        if (had_focus_ != nullptr) had_focus_->setFocus();
        hide();
        deleteLater(); // the button of the box that was pressed is on it
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (of_.box_page_ == nullptr) return false;
        if (event->type() == QEvent::Close) { // of the window, which means the box
            event->ignore();
            of_.box_page_->close();
            return true;
        }
        if (event->type() == QEvent::Resize) {
            setGeometry(parentWidget()->rect());
            place_box();
        }
        if (event->type() == QEvent::WindowActivate) of_.box_page_->activateWindow();
        return false;
    }
    void paintEvent(QPaintEvent*) override {
        QColor dark = theme::colour(look::ink);
        dark.setAlphaF(look::box_shade);
        QPainter(this).fillRect(rect(), dark);
    }
    void keyPressEvent(QKeyEvent*) override {}
    bool focusNextPrevChild(bool) override { return true; }

private:
    void place_box() {
        if (box_ == nullptr) return;
        const double unit = static_cast<form_page*>(parentWidget())->unit();
        const QSize size = (QSizeF(box_->shown().width, box_->shown().height) * unit).toSize();
        box_->setGeometry(QRect(rect().center() - QRect({}, size).center(), size));
    }

    const desktop& of_;
    QPointer<QWidget> had_focus_;
    form_page* box_ = nullptr;
};

desktop::desktop() : front_end(steady_now), window_(std::make_unique<main_window>(*this)) {
    wake_up_.setSingleShot(true);
    wake_up_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&wake_up_, &QTimer::timeout, [this] { tick(); });
}

desktop::~desktop() { close(); }

void desktop::close() {
    for (form_page* page : std::exchange(side_pages_, {})) delete page;
    pages_.clear();
    shades_.clear();
    box_page_ = nullptr;
    window_.reset();
}

// ---- events ----

void desktop::wake_in(std::optional<milliseconds> time) {
    if (time)
        wake_up_.start(*time);
    else
        wake_up_.stop();
}

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
    if (box_page_ != nullptr) box_page_->update_widgets();
    if (!pages_.empty()) window_->setWindowTitle(QString::fromStdString(pages_.back()->shown().caption));
}

void desktop::close_top() {
    if (!pages_.empty()) run([this] { pages_.back()->shown().close_requested(); });
}

// ---- forms ----

form* desktop::top() const {
    const auto& pages = pages_.empty() ? side_pages_ : pages_;
    return pages.empty() ? nullptr : &pages.back()->shown();
}

form_page* desktop::page(const form& of) const {
    for (const auto* pages : {&pages_, &side_pages_})
        for (form_page* shown : *pages)
            if (&shown->shown() == &of) return shown;
    return nullptr;
}

// The largest of the form's shape: on a small screen nothing is left free but the room of a title bar.
QRect desktop::comfortable_place(const form& of) const {
    const QRect screen = window_->screen()->availableGeometry();
    const bool small = screen.width() < small_screen;
    const QRect room = small ? screen.adjusted(0, title_bar, 0, 0) : screen;
    const QSizeF most = QSizeF(room.size()) * (small ? 1 : share_of_screen);
    const QSize size = QSizeF(of.width, of.height).scaled(most, Qt::KeepAspectRatio).toSize();
    return {room.center() - QRect({}, size).center(), size};
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
            made->setParent(window_.get(), Qt::Dialog); // stays above the main one and goes down with it
            made->setMinimumSize((QSizeF(shown.width, shown.height) * smallest_unit).toSize());
            made->setGeometry(comfortable_place(shown));
            if (!pages_.empty()) { // its frame where it is wanted, at the same scale
                const form_page& main = *pages_.back();
                made->resize((QSizeF(shown.width, shown.height) * main.unit()).toSize());
                const point wanted = shown.wanted_place.value_or(point{});
                made->move(main.mapToGlobal(main.place_of(wanted)));
            }
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
        window_->setGeometry(comfortable_place(shown));
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

// ---- message boxes ----

// The topmost window that is seen bears the box: one that lies over the asking form would hide it.
void desktop::open_box(berichtvenster& box, const form& over) {
    std::vector<form_page*> seen;
    if (!pages_.empty()) seen.push_back(pages_.back());
    std::ranges::copy_if(side_pages_, std::back_inserter(seen),
                         [](const form_page* each) { return !each->isMinimized(); });
    if (const form_page* asking = page(over)) asking_window_ = asking->window();
    for (form_page* each : seen) shades_.push_back(new shade(*each, *this));

    box_page_ = new form_page(
        box, [this](const auto& handler) { run_in_box(handler); }, shades_.back());
    shades_.back()->carry(*box_page_);
    box_page_->update_widgets();
    box_page_->window()->activateWindow();
}

void desktop::close_box() {
    box_page_ = nullptr;
    for (shade* each : std::exchange(shades_, {})) each->lift();
    if (asking_window_ != nullptr) asking_window_->activateWindow();
}

// ---- printer, clock ----

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
    install_accessibility();
    QFont font = face();
    font.setPixelSize(14);
    QApplication::setFont(font);
}

} // namespace cijferwerf
