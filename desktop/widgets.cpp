#include "desktop/widgets.h"

#include "desktop/theme.h"

#include <QEvent>
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

// A row is where the list has room for it, to the pixel: its rectangle tells only which one it is.
class list_widget::entry_painter : public QStyledItemDelegate {
public:
    explicit entry_painter(list_widget& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* on, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const place row = row_place(list_.shown_, index.row());
        const bool hovered = (option.state & QStyle::State_MouseOver) != 0;
        const double unit = list_.page_.unit();
        const double left = list_.page_.origin_of(list_.shown_, list_.pos() + list_.viewport()->pos()).x();
        on->save();
        theme::paint(*on, row_of(list_.page_.shown(), list_.shown_, index.row(), hovered, list_.page_.settings()),
                     QPointF(left, option.rect.top() - row.top * unit), unit, list_.pictures_);
        on->restore();
    }
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const place row = row_place(list_.shown_, index.row());
        const double unit = list_.page_.unit();
        return {0, static_cast<int>(std::lround(row.bottom() * unit) - std::lround(row.top * unit))};
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
    const place first = row_place(shown_, 0);
    const int aside =
        std::max(0, static_cast<int>(first.left * page_.unit()) - 1); // a row has room where it is rounded
    setViewportMargins(aside, static_cast<int>(std::lround(first.top * page_.unit())), aside, 0);
    doItemsLayout();
}

bool list_widget::event(QEvent* event) {
    if (event->type() != QEvent::Paint) return QListWidget::event(event);
    const control_state now{.focused = hasFocus()};
    page_.paint(*this, face_of(page_.shown(), shown_, now, page_.settings()), shown_, pictures_);
    return true;
}

// While nothing is chosen the toolkit takes every key for the first row.
QModelIndex list_widget::moveCursor(CursorAction action, Qt::KeyboardModifiers with) {
    if (action == MoveEnd) return model()->index(count() - 1, 0);
    return QListWidget::moveCursor(action, with);
}

} // namespace cijferwerf
