#include "desktop/accessible.h"

#include "runtime/spoken.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QListWidget>
#include <QStackedWidget>

namespace cijferwerf {

namespace {

// Shows nothing. Readers speak the name of a notification when it begins to show.
class notice : public QWidget {
public:
    explicit notice(QWidget& page) : QWidget(&page) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        resize(0, 0);
    }
};

QAccessible::Role role_of(const control& shown) {
    switch (shown.kind) {
    case control_kind::button: return QAccessible::Button;
    case control_kind::option_button: return QAccessible::RadioButton;
    case control_kind::frame: return QAccessible::Pane;
    case control_kind::picture_box: return QAccessible::Graphic;
    default: return shown.role == theme_role::heading ? QAccessible::Heading : QAccessible::StaticText;
    }
}

class told_control : public QAccessibleWidget {
public:
    using relation = QPair<QAccessibleInterface*, QAccessible::Relation>;

    told_control(QWidget* widget, const control& shown, const form_page& page)
        : QAccessibleWidget(widget, role_of(shown)),
          page_(page) {}

    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        const control* const told = shown();
        now.invisible = now.invisible || told == nullptr || silent(*told);
        if (told != nullptr && told->kind == control_kind::option_button) {
            now.checkable = true;
            now.checked = static_cast<const option_button&>(*told).selected;
        }
        return now;
    }
    // A text and the value that it names belong together.
    QList<relation> relations(QAccessible::Relation match) const override {
        QList<relation> found;
        const control* const told = shown();
        if (told == nullptr) return found;
        const auto add = [&](const control* other, QAccessible::Relation as) {
            if (QWidget* found_at = page_.widget(other); found_at != nullptr && (match & as))
                found.append({QAccessible::queryAccessibleInterface(found_at), as});
        };
        if (told->kind == control_kind::label) add(static_cast<const label&>(*told).caption_of, QAccessible::Labelled);
        for (const control* other : page_.shown().controls())
            if (other->kind == control_kind::label && static_cast<const label*>(other)->caption_of == told)
                add(other, QAccessible::Label);
        return found;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button()) names.prepend(pressAction());
        return names;
    }
    // When the reader has its answer: a press may open a box that waits.
    void doAction(const QString& name) override {
        if (name == pressAction() && button())
            QMetaObject::invokeMethod(widget(), "click", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

private:
    // Null when the page is going: its form may have gone before it.
    const control* shown() const { return page_.control_of(widget()); }
    bool button() const { return qobject_cast<QAbstractButton*>(widget()) != nullptr; }

    const form_page& page_;
};

class told_page : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;
    QAccessible::Role role() const override {
        const form* of = shown();
        return widget()->isWindow() || (of != nullptr && of->overlay) ? QAccessible::Dialog : QAccessible::Pane;
    }
    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.modal = shown() != nullptr && shown()->overlay;
        return now;
    }
    QString text(QAccessible::Text of) const override {
        const form* named = of == QAccessible::Name ? shown() : nullptr;
        return named != nullptr ? QString::fromStdString(named->caption) : QAccessibleWidget::text(of);
    }

private:
    const form* shown() const {
        const auto* page = dynamic_cast<const form_page*>(widget());
        return page == nullptr ? nullptr : &page->shown();
    }
};

// The toolkit knows what to say of a list, and of what is none of ours.
QAccessibleInterface* told(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (dynamic_cast<form_page*>(widget) != nullptr) return new told_page(widget);
    if (dynamic_cast<notice*>(widget) != nullptr) return new QAccessibleWidget(widget, QAccessible::Notification);
    if (widget->isWindow() && qobject_cast<QStackedWidget*>(widget) != nullptr)
        return new QAccessibleWidget(widget, QAccessible::Window);
    const auto* page = dynamic_cast<const form_page*>(widget->parentWidget());
    const control* shown = page == nullptr ? nullptr : page->control_of(widget);
    if (shown == nullptr || shown->kind == control_kind::list_box) return nullptr;
    return new told_control(widget, *shown, *page);
}

} // namespace

void install_accessibility() { QAccessible::installFactory(told); }

void tell(QWidget& widget, const control& shown) {
    if (const QString name = QString::fromStdString(spoken_name(shown)); widget.accessibleName() != name) {
        widget.setAccessibleName(name);
        if (shown.kind == control_kind::label && widget.isVisible() && QAccessible::isActive()) {
            QAccessibleEvent now(&widget, silent(shown) ? QAccessible::ObjectHide : QAccessible::ObjectShow);
            QAccessible::updateAccessibility(&now);
        }
    }
    const QString description = QString::fromStdString(spoken_description(shown));
    if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
    if (auto* list = qobject_cast<QListWidget*>(&widget)) {
        const QSignalBlocker quiet(list);
        const auto& titles = static_cast<const list_box&>(shown);
        for (std::size_t i = 0; i < titles.items.size(); ++i) {
            QListWidgetItem* item = list->item(static_cast<int>(i));
            const QString title = QString::fromStdString(spoken_item(titles, i));
            if (item->data(Qt::AccessibleTextRole) != title) item->setData(Qt::AccessibleTextRole, title);
        }
    }
}

void announce(QWidget& page, const std::string& text) {
    if (text.empty() || !QAccessible::isActive()) return;
    const QString words = QString::fromStdString(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&page, words);
    QAccessible::updateAccessibility(&event);
#else
    notice* said = nullptr;
    for (QObject* child : page.children())
        if (auto* before = dynamic_cast<notice*>(child)) said = before;
    if (said == nullptr) said = new notice(page);
    said->hide();
    said->setAccessibleName(words);
    said->show();
#endif
}

} // namespace cijferwerf
