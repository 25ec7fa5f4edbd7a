#include "desktop/widgets.h"

#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace cijferwerf {

QString line_breaks(const std::string& caption) { return QString::fromStdString(caption).replace('\r', '\n'); }

QString with_mnemonic(const control& shown) {
    QString caption = line_breaks(shown.caption);
    const qsizetype at = shown.mnemonic != 0 ? caption.indexOf(QChar(shown.mnemonic), 0, Qt::CaseInsensitive) : -1;
    const QString before = caption.left(at).replace('&', "&&");
    return at < 0 ? before : before + '&' + caption.mid(at).replace('&', "&&");
}

void picture_widget::paintEvent(QPaintEvent*) {
    QPainter on(this);
    on.fillRect(rect(), theme::edge);
    paint_drawing(on, shown_, QRectF(rect().adjusted(border, border, -border, -border)), pictures_);
}

class list_widget::entry_painter : public QStyledItemDelegate {
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

list_widget::list_widget(const list_box& shown, form_page& page) : QListWidget(&page), shown_(shown), page_(page) {
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(new entry_painter(*this));
}

void list_widget::lay_out() {
    const int room = static_cast<int>(std::ceil(45 * page_.unit()));
    setViewportMargins(room, room, room, room);
    doItemsLayout();
}

bool list_widget::event(QEvent* event) {
    if (event->type() != QEvent::Paint) return QListWidget::event(event);
    QPainter on(this);
    theme::paint_edge(on, rect(), page_.unit(), {.enabled = isEnabled(), .focused = hasFocus()});
    return true;
}

} // namespace cijferwerf
