#include "desktop/form_page.h"

#include "desktop/theme.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace cijferwerf {

namespace {

QString line_breaks(const std::string& caption) { return QString::fromStdString(caption).replace('\r', '\n'); }

// The caption as Qt takes it for a button: "&" in front of the mnemonic, any other "&" doubled.
QString with_mnemonic(const control& shown) {
    QString caption = line_breaks(shown.caption);
    const qsizetype at = shown.mnemonic != 0 ? caption.indexOf(QChar(shown.mnemonic), 0, Qt::CaseInsensitive) : -1;
    const QString before = caption.left(at).replace('&', "&&");
    return at < 0 ? before : before + '&' + caption.mid(at).replace('&', "&&");
}

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
    void paintEvent(QPaintEvent*) override {
        QPainter on(this);
        on.fillRect(rect(), theme::edge);
        paint_drawing(on, shown_, QRectF(rect().adjusted(border, border, -border, -border)), pictures_);
    }

private:
    const picture_box& shown_;
    picture_cache pictures_;
};

class list_widget : public QListWidget {
public:
    list_widget(const list_box& shown, form_page& page) : QListWidget(&page), shown_(shown), page_(page) {
        setFrameShape(NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerPixel);
        setEditTriggers(NoEditTriggers);
        setMouseTracking(true);
        viewport()->setAutoFillBackground(false);
        setItemDelegate(new entry_painter(*this));
    }

    // Fits the entries to the size of the page.
    void lay_out() {
        const int room = static_cast<int>(std::ceil(45 * page_.unit()));
        setViewportMargins(room, room, room, room);
        doItemsLayout();
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Paint) return QListWidget::event(event);
        QPainter on(this);
        theme::paint_edge(on, rect(), page_.unit(), {.enabled = isEnabled(), .focused = hasFocus()});
        return true;
    }

private:
    class entry_painter : public QStyledItemDelegate {
    public:
        explicit entry_painter(list_widget& list) : QStyledItemDelegate(&list), list_(list) {}

        void paint(QPainter* on, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
            const theme::state now{.enabled = list_.isEnabled(),
                                   .hovered = (option.state & QStyle::State_MouseOver) != 0,
                                   .selected = index.row() == list_.currentRow()};
            on->save();
            theme::paint_entry(*on, list_.shown_, index.data().toString(), option.rect, list_.page_.unit(), now);
            on->restore();
        }
        // Few entries stand wider apart than many.
        QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
            const double line = text_height(list_.shown_.font_size);
            const double fair = (list_.shown_.height - 90.0) / std::max(1, list_.count());
            return {0, static_cast<int>(std::clamp(fair, 1.35 * line, 1.75 * line) * list_.page_.unit())};
        }

    private:
        list_widget& list_;
    };

    const list_box& shown_;
    form_page& page_;
};

// The key as forms name it, or 0 where it is none of theirs (a blank is the focused button's).
char form_key(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return 0;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return '\r';
    case Qt::Key_Escape: return '\x1b';
    case Qt::Key_Delete: return '\x7f';
    default: break;
    }
    const QString typed = event.text().toUpper();
    const char16_t character = typed.size() == 1 ? typed[0].unicode() : u'\0';
    return character > ' ' && character < 0x7F ? static_cast<char>(character) : '\0';
}

bool is_button(const control& shown) {
    return shown.kind == control_kind::button || shown.kind == control_kind::option_button;
}

// Enter on such a button presses it, or chooses it, also where the form lists Enter for another.
bool keeps_enter(const control& shown) {
    if (shown.kind == control_kind::option_button) return !static_cast<const option_button&>(shown).selected;
    return shown.role == theme_role::action || shown.role == theme_role::main_action;
}

bool usable(const control& shown) { return shown.visible && shown.enabled; }

} // namespace

// What a widget was given last; it is left alone as long as nothing of this changes.
struct form_page::placed_control {
    struct state {
        int left, top, width, height;
        std::string caption, accessible_name;
        char mnemonic;
        bool visible, enabled;
        std::optional<kleur> colour;
        double font_size;
        std::vector<std::string> items;
        int selected;
        bool operator==(const state&) const = default;
    };

    control& shown;
    QWidget* widget;
    std::optional<state> copied;

    state current() const {
        state now{shown.left,
                  shown.top,
                  shown.width,
                  shown.height,
                  shown.caption,
                  shown.accessible_name,
                  shown.mnemonic,
                  shown.visible,
                  shown.enabled,
                  shown.colour,
                  shown.font_size,
                  {},
                  -1};
        if (shown.kind == control_kind::list_box) {
            now.items = static_cast<const list_box&>(shown).items;
            now.selected = static_cast<const list_box&>(shown).selected;
        }
        if (shown.kind == control_kind::option_button) now.selected = static_cast<const option_button&>(shown).selected;
        return now;
    }
};

form_page::form_page(form& of, event_runner run, QWidget* window) : QWidget(window), form_(of), run_(std::move(run)) {
    setObjectName(QString::fromStdString(of.name()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (control* shown : of.controls())
        if (shown->kind != control_kind::timer) make_widget(*shown);
}

// The form may be gone already: what its widgets still report goes nowhere.
form_page::~form_page() {
    for (const placed_control& placed : placed_) placed.widget->disconnect(this);
}

void form_page::make_widget(control& shown) {
    QWidget* widget = nullptr;
    switch (shown.kind) {
    case control_kind::label: widget = new painted<QLabel>(shown, *this); break;
    case control_kind::frame: widget = new painted<QFrame>(shown, *this); break;
    case control_kind::picture_box: widget = new picture_widget(static_cast<picture_box&>(shown), *this); break;
    case control_kind::button: {
        auto* made = new painted<QPushButton>(shown, *this);
        connect(made, &QPushButton::clicked, this, [this, &shown] { clicked(shown); });
        widget = made;
        break;
    }
    case control_kind::option_button: {
        auto* made = new painted<QRadioButton>(shown, *this);
        made->setAutoExclusive(false); // the form's options are kept apart by select()
        connect(made, &QRadioButton::clicked, this, [this, &shown] { select(static_cast<option_button&>(shown)); });
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
    if (!is_button(shown) && shown.kind != control_kind::list_box) {
        // What is no button is clicked with the pointer only: for the keyboard there is a button.
        if (shown.click) widget->setAttribute(Qt::WA_Hover);
        if (!shown.click && !shown.hover) widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    if (shown.click && shown.kind != control_kind::list_box) widget->setCursor(Qt::PointingHandCursor);
    placed_.push_back({shown, widget, {}});
}

// ---- from the controls to the widgets ----

void form_page::update_widgets() {
    updating_ = true;
    for (placed_control& placed : placed_) copy(placed);

    // The focus goes first and what is disabled or hidden follows, or Qt would send the focus somewhere of its own.
    if (QWidget* next = next_focus()) next->setFocus(Qt::OtherFocusReason);
    form_.focus = nullptr;
    for (const placed_control& placed : placed_) {
        placed.widget->setEnabled(placed.shown.enabled);
        placed.widget->setVisible(placed.shown.visible);
    }
    updating_ = false;
}

void form_page::copy(placed_control& placed) {
    const control& shown = placed.shown;
    if (auto* picture = dynamic_cast<picture_widget*>(placed.widget)) {
        picture->setAccessibleDescription(reading_of(static_cast<const picture_box&>(shown)));
        picture->update();
    }
    const auto now = placed.current();
    // A click changes the widget by itself, whatever the form makes of it.
    if (auto* option = qobject_cast<QRadioButton*>(placed.widget)) option->setChecked(now.selected != 0);
    if (placed.copied == now) return;
    const bool new_items = !placed.copied || placed.copied->items != now.items;
    placed.copied = now;

    lay_out(placed);
    if (shown.enabled) placed.widget->setEnabled(true);
    if (shown.visible) placed.widget->setVisible(true);
    placed.widget->setAccessibleName(shown.accessible_name.empty() ? line_breaks(shown.caption)
                                                                   : QString::fromStdString(shown.accessible_name));
    if (auto* text = qobject_cast<QLabel*>(placed.widget)) text->setText(line_breaks(shown.caption));
    if (auto* pressed = qobject_cast<QAbstractButton*>(placed.widget)) pressed->setText(with_mnemonic(shown));
    if (auto* list = qobject_cast<QListWidget*>(placed.widget)) {
        const QSignalBlocker quiet(list);
        if (new_items) {
            list->clear();
            for (const std::string& item : now.items) list->addItem(QString::fromStdString(item));
        }
        list->setCurrentRow(now.selected);
    }
    placed.widget->update();
}

// Where the focus must go: where the form wants it; or, from a control that can no longer have it, to the next of its
// control array; or, null, nowhere in particular.
QWidget* form_page::next_focus() {
    if (form_.focus != nullptr)
        for (const placed_control& placed : placed_)
            if (&placed.shown == form_.focus) return placed.widget;
    const auto lost = std::ranges::find(placed_, focusWidget(), &placed_control::widget);
    if (lost == placed_.end() || usable(lost->shown)) return nullptr;
    const auto fits = [&](const placed_control& placed) {
        return placed.shown.name == lost->shown.name && usable(placed.shown);
    };
    auto next = std::find_if(lost, placed_.end(), fits);
    if (next == placed_.end()) next = std::find_if(placed_.begin(), lost, fits);
    return next == placed_.end() || !fits(*next) ? nullptr : next->widget;
}

void form_page::lay_out(placed_control& placed) {
    const control& shown = placed.shown;
    const auto corner = [this](int x, int y) { return (corner_ + QPointF(x, y) * unit_).toPoint(); };
    const QRect box(corner(shown.left, shown.top),
                    corner(shown.left + shown.width, shown.top + shown.height) - QPoint(1, 1));
    constexpr int border = picture_widget::border;
    placed.widget->setGeometry(shown.kind == control_kind::picture_box ? box.adjusted(-border, -border, border, border)
                                                                       : box);
    if (auto* list = dynamic_cast<list_widget*>(placed.widget)) list->lay_out();
}

void form_page::resizeEvent(QResizeEvent*) {
    unit_ = std::min(1.0 * width() / form_.width, 1.0 * height() / form_.height);
    corner_ = QPointF(width() - form_.width * unit_, height() - form_.height * unit_) / 2;
    for (placed_control& placed : placed_) lay_out(placed);
}

void form_page::paintEvent(QPaintEvent* event) { QPainter(this).fillRect(event->rect(), theme::ground); }

// ---- from the widgets to the handlers ----

void form_page::clicked(control& on) {
    if (usable(on) && on.click) run_(on.click);
}

void form_page::select(option_button& selected) {
    run_([this, &selected] {
        for (control* other : form_.controls())
            if (other->kind == control_kind::option_button) static_cast<option_button*>(other)->selected = false;
        selected.selected = true;
        if (selected.click) selected.click();
    });
}

// True when the key is dealt with. A list box, an action button and an option not yet chosen keep Enter; a key that a
// control of the form lists presses that one wherever the focus is; Enter then presses what has the focus, as the blank
// does.
bool form_page::key_pressed(control* focused, const QKeyEvent& event) {
    const char key = form_key(event);
    const bool chosen = key == '\r' || (event.key() == Qt::Key_Space && focused != nullptr && !is_button(*focused));
    if (key == 0 && !chosen) return false;
    if (event.isAutoRepeat()) return true; // a key that is held presses once

    if (key == '\r' && focused != nullptr && focused->kind == control_kind::list_box) {
        const auto& list = static_cast<const list_box&>(*focused);
        if (usable(list) && list.keypress) run_([&list] { list.keypress(list_box::enter_key); });
        return true;
    }
    bool pressed = false;
    const bool kept = key == '\r' && focused != nullptr && keeps_enter(*focused);
    if (key != 0 && !kept) run_([&] { pressed = form_.press(key); });
    if (pressed) return true;
    if (!chosen || focused == nullptr || !usable(*focused) || focused->kind == control_kind::list_box) return false;
    if (focused->kind == control_kind::option_button)
        select(static_cast<option_button&>(*focused));
    else
        clicked(*focused);
    return true;
}

// The second press of a double click whose first opened this page: meant for what stood there before.
bool form_page::stray_click(QObject* on, const QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) pressed_ = on;
    return event.type() == QEvent::MouseButtonDblClick && pressed_ != on;
}

bool form_page::eventFilter(QObject* watched, QEvent* event) {
    if (stray_click(watched, *event)) return true;
    const auto placed = std::ranges::find(placed_, watched, &placed_control::widget);
    if (placed == placed_.end() || updating_) return false;
    control& on = placed->shown;
    const auto hover = [this, &on] {
        if (on.hover && usable(on)) run_(on.hover);
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
        if (!is_button(on) && pressed_ == watched && mouse.button() == Qt::LeftButton &&
            placed->widget->rect().contains(mouse.pos()))
            clicked(on);
        break;
    }
    default: break;
    }
    return false;
}

void form_page::keyPressEvent(QKeyEvent* event) {
    if (!key_pressed(nullptr, *event)) QWidget::keyPressEvent(event);
}

void form_page::closeEvent(QCloseEvent* event) {
    event->ignore();
    run_([this] { form_.close_requested(); });
}

} // namespace cijferwerf
