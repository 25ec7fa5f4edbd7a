#include "desktop/form_page.h"

#include "desktop/accessible.h"
#include "desktop/theme.h"
#include "desktop/widgets.h"
#include "runtime/shown_state.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace cijferwerf {

namespace {

// The key as forms name it, or 0 where it is none of theirs.
char form_key(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0) return 0;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return keys::enter;
    case Qt::Key_Escape: return keys::escape;
    case Qt::Key_Delete: return keys::erase;
    case Qt::Key_Left: return keys::left;
    case Qt::Key_Right: return keys::right;
    case Qt::Key_Up: return keys::up;
    case Qt::Key_Down: return keys::down;
    case Qt::Key_Home: return keys::home;
    case Qt::Key_End: return keys::end;
    default: break;
    }
    if ((event.modifiers() & Qt::AltModifier) != 0 && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z)
        return static_cast<char>(event.key()); // whatever it may type with Alt
    const QString typed = event.text().toUpper();
    const char16_t character = typed.size() == 1 ? typed[0].unicode() : u'\0';
    return character >= ' ' && character < 0x7F ? static_cast<char>(character) : '\0';
}

} // namespace

// What a widget was given last; it is left alone as long as nothing of this changes.
struct form_page::placed_control {
    control& shown;
    QWidget* widget;
    std::optional<shown_state> copied;
};

form_page::form_page(form& of, event_runner run, QWidget* window) : QWidget(window), form_(of), run_(std::move(run)) {
    setObjectName(QString::fromStdString(of.name()));
    setAttribute(Qt::WA_OpaquePaintEvent, !of.overlay);
    for (control* shown : of.controls())
        if (shown->kind != control_kind::timer) make_widget(*shown);
}

// The form may be gone already: what its widgets still report goes nowhere.
form_page::~form_page() {
    for (const placed_control& going : std::exchange(placed_, {})) {
        going.widget->disconnect(this);
        delete going.widget;
    }
}

void form_page::make_widget(control& shown) {
    QWidget* widget = nullptr;
    switch (shown.kind) {
    case control_kind::label: widget = new painted<QLabel>(shown, *this); break;
    case control_kind::frame: widget = new painted<QFrame>(shown, *this); break;
    case control_kind::picture_box: widget = new painted<QWidget>(shown, *this); break;
    case control_kind::button: {
        auto* made = new painted<QPushButton>(shown, *this);
        connect(made, &QPushButton::clicked, this, [this, &shown] { clicked(shown); });
        widget = made;
        break;
    }
    case control_kind::option_button: {
        auto* made = new painted<QRadioButton>(shown, *this);
        made->setAutoExclusive(false); // the form keeps its options apart
        connect(made, &QRadioButton::clicked, this, [this, &shown] { clicked(shown); });
        widget = made;
        break;
    }
    case control_kind::list_box: {
        auto& list = static_cast<list_box&>(shown);
        auto* made = new list_widget(list, *this);
        made->viewport()->installEventFilter(this);
        connect(made, &QListWidget::currentRowChanged, this, [&list](int row) { list.selected = row; });
        connect(made, &QListWidget::itemClicked, this, [this, made, &list](QListWidgetItem* item) {
            list.selected = made->row(item);
            clicked(list);
        });
        widget = made;
        break;
    }
    case control_kind::timer: return;
    }

    const QString index = shown.index ? QString::number(*shown.index) : QString();
    widget->setObjectName(QString::fromStdString(shown.name) + index);
    widget->installEventFilter(this);
    if (!shown.is_button() && shown.kind != control_kind::list_box) {
        // What is no button is clicked with the pointer only: for the keyboard there is a button.
        if (shown.click) widget->setAttribute(Qt::WA_Hover);
        const bool on_card = shown.kind == control_kind::label && static_cast<label&>(shown).card != nullptr;
        if (on_card || (!shown.click && !shown.hover)) widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    if (shown.click && shown.kind != control_kind::list_box) widget->setCursor(Qt::PointingHandCursor);
    placed_.push_back({shown, widget, {}});
}

// ---- from the controls to the widgets ----

void form_page::update_widgets() {
    updating_ = true;
    if (const backdrop behind = backdrop_of(form_, settings()); behind != behind_) {
        behind_ = behind;
        fit();
        update();
    }
    for (placed_control& placed : placed_) {
        copy(placed);
        tell(*placed.widget, placed.shown);
    }

    // The focus goes first and what is disabled or hidden follows, or Qt would send the focus somewhere of its own.
    const placed_control* had = placed(focusWidget());
    if (QWidget* next = widget(form_.next_focus(had != nullptr ? &had->shown : nullptr)))
        next->setFocus(Qt::OtherFocusReason);
    for (const placed_control& placed : placed_) {
        placed.widget->setEnabled(placed.shown.enabled);
        placed.widget->setVisible(placed.shown.visible);
    }
    updating_ = false;
    announce(*this, form_.announcement);
    form_.announcement.clear();
}

const control* form_page::control_of(const QWidget* widget) const {
    const placed_control* found = placed(widget);
    return found == nullptr ? nullptr : &found->shown;
}

void form_page::copy(placed_control& placed) {
    const control& shown = placed.shown;
    if (shown.kind == control_kind::picture_box) placed.widget->update();
    const shown_state now = state_of(form_, shown, settings());
    // A click changes the widget by itself, whatever the form makes of it.
    if (auto* option = qobject_cast<QRadioButton*>(placed.widget)) option->setChecked(now.selected != 0);
    if (placed.copied == now) return;
    const bool new_items = !placed.copied || placed.copied->items != now.items;
    placed.copied = now;

    lay_out(placed);
    if (shown.enabled) placed.widget->setEnabled(true);
    if (shown.visible) placed.widget->setVisible(true);
    if (auto* text = qobject_cast<QLabel*>(placed.widget)) text->setText(line_breaks(shown.caption));
    if (auto* pressed = qobject_cast<QAbstractButton*>(placed.widget)) {
        pressed->setText(with_mnemonic(shown));
        pressed->setShortcut({}); // mnemonics are the form's
    }
    if (auto* list = qobject_cast<QListWidget*>(placed.widget)) {
        const QSignalBlocker quiet(list);
        if (new_items) {
            list->clear();
            for (const std::string& item : now.items) list->addItem(QString::fromStdString(item));
        }
        list->setCurrentIndex(list->model()->index(now.selected, 0)); // none is a choice too: the focus selects nothing
    }
    placed.widget->update();
}

const form_page::placed_control* form_page::placed(const QObject* widget) const {
    const auto found = std::ranges::find(placed_, widget, &placed_control::widget);
    return found == placed_.end() ? nullptr : &*found;
}

QWidget* form_page::widget(const control* shown) const {
    const auto found = std::ranges::find(placed_, shown, [](const placed_control& each) { return &each.shown; });
    return found == placed_.end() ? nullptr : found->widget;
}

void form_page::lay_out(placed_control& placed) {
    const control& shown = placed.shown;
    const auto corner = [this](int x, int y) { return (corner_ + QPointF(x, y) * unit()).toPoint(); };
    placed.widget->setGeometry(QRect(corner(shown.left, shown.top),
                                     corner(shown.left + shown.width, shown.top + shown.height) - QPoint(1, 1)));
    if (auto* list = dynamic_cast<list_widget*>(placed.widget)) list->lay_out();
}

void form_page::fit() {
    corner_ = QPointF(width() - form_.width * unit(), height() - form_.height * unit()) / 2;
    if (behind_.bar_height > 0) corner_.setY(0); // a bar stays at the top
    for (placed_control& placed : placed_) lay_out(placed);
}

// The bar goes on to the edges of the window, where that is wider than the form.
void form_page::paintEvent(QPaintEvent*) {
    if (form_.overlay) return;
    QPainter on(this);
    QRegion seen(rect()); // without what panels cover
    const int corners = static_cast<int>(std::ceil(look::largest_corner * unit())) + 1;
    for (const placed_control& placed : placed_)
        if (placed.shown.visible &&
            (placed.shown.role == theme_role::panel || placed.shown.kind == control_kind::list_box))
            seen -= placed.widget->geometry().adjusted(corners, corners, -corners, -corners);
    for (const QRect& part : seen) on.fillRect(part, theme::colour(behind_.ground));
    if (behind_.bar_height > 0)
        on.fillRect(0, 0, width(), static_cast<int>(std::lround(behind_.bar_height * unit())),
                    theme::colour(behind_.bar));
}

void form_page::paint(QWidget& widget, const scene& face, const control& shown, picture_cache& pictures) const {
    QPainter on(&widget);
    theme::paint(on, face, origin_of(shown, widget.pos()), unit(), pictures);
}

// ---- from the widgets to the handlers ----

void form_page::clicked(control& on) {
    if (on.usable()) run_([this, &on] { form_.press(on); });
}

// True when the key is dealt with. The blank on a button is left to the widget.
bool form_page::key_pressed(control* focused, const QKeyEvent& event) {
    const bool with_alt = (event.modifiers() & Qt::AltModifier) != 0;
    const char key = form_key(event);
    bool pressed = false;
    if (key != 0 && !(key == ' ' && focused != nullptr && focused->is_button()))
        run_([&] { pressed = form_.key(key, focused, with_alt); });
    return pressed;
}

// The second press of a double click whose first opened this page: meant for what stood there before.
bool form_page::stray_click(QObject* on, const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) pressed_ = on;
    return event.type() == QEvent::MouseButtonDblClick && pressed_ != on;
}

bool form_page::eventFilter(QObject* watched, QEvent* event) {
    if (stray_click(watched, *event)) return true;
    const placed_control* const found = placed(watched);
    if (found == nullptr || updating_) return false;
    control& on = found->shown;
    const auto hover = [this, &on] {
        if (on.hover && on.usable()) run_(on.hover);
    };
    switch (event->type()) {
    case QEvent::KeyPress: return key_pressed(&on, static_cast<QKeyEvent&>(*event));
    case QEvent::Enter: hover(); break;
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent&>(*event).reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) hover();
        break;
    }
    case QEvent::MouseButtonRelease: {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        if (!on.is_button() && pressed_ == watched && mouse.button() == Qt::LeftButton &&
            found->widget->rect().contains(mouse.pos()))
            clicked(on);
        break;
    }
    default: break;
    }
    return false;
}

bool form_page::focusNextPrevChild(bool next) {
    const placed_control* had = placed(focusWidget());
    QWidget* to = widget(form_.tab(had != nullptr ? &had->shown : nullptr, next ? 1 : -1));
    if (to != nullptr) to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void form_page::keyPressEvent(QKeyEvent* event) {
    if (!key_pressed(nullptr, *event)) QWidget::keyPressEvent(event);
}

void form_page::closeEvent(QCloseEvent* event) {
    event->ignore();
    run_([this] { form_.close_requested(); });
}

} // namespace cijferwerf
