#include "RowDelegate.h"

#include "CutText.h"
#include "LineInput.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>

namespace platform::controls {

QWidget *RowDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const {
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        new LineInput(*line);
    }
    return editor;
}

bool RowDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                            const QModelIndex &index) {
    if (event->type() != QEvent::ToolTip) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle &style = *view->style();
    // The style keeps this margin on both sides of the text.
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &row, view) + 1;
    const int room = style.subElementRect(QStyle::SE_ItemViewItemText, &row, view).width() - 2 * margin;
    const QString whole = index.data(Qt::DisplayRole).toString();
    if (isCut(whole, row.fontMetrics, room)) {
        showPlainTip(*event, *view->viewport(), whole);
    }
    return true;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = isDotted(option->text) ? Qt::ElideNone : Qt::ElideRight;
    // No letter is narrower than a pixel, and a text of millions must not be shaped whole.
    option->text = option->text.left(option->rect.width() + 1);
}

} // namespace platform::controls
