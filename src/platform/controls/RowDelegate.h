#pragma once

#include "ControlTable.h"

#include <QStyledItemDelegate>

namespace platform::controls {

/// Rows of one height, so that a list of thousands needs no measuring. A text that is cut ends in an ellipsis and has
/// the whole text as tool tip; one that is edited stays on one line.
class RowDelegate : public QStyledItemDelegate {
public:
    RowDelegate(Twips height, QObject *parent) : QStyledItemDelegate(parent), m_height(height) {}

    /// Width of a row in pixels, where the view is not wider.
    void setWidth(int width) { m_width = width; }

    QSize sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const override {
        return {m_width, m_height.pixels()};
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    Twips m_height;
    int m_width = 0;
};

} // namespace platform::controls
