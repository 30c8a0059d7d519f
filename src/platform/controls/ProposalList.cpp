#include "ProposalList.h"

#include "RowDelegate.h"

#include <QKeyEvent>
#include <algorithm>

namespace platform::controls {

namespace {

constexpr Twips kRowHeight{285};
constexpr int kMostRows = 7; // seen at once

bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

ProposalList::ProposalList(QWidget &field, QAbstractItemModel &rows)
    : QListView(field.window()), m_field(field), m_matches(&rows) {
    hide();
    setObjectName(QStringLiteral("Proposals"));
    setFocusPolicy(Qt::NoFocus);
    setFont(field.font());
    setItemDelegate(new RowDelegate(kRowHeight, this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_matches.setCaseSensitivity(Qt::CaseInsensitive);
    setModel(m_matches.completionModel());
    connect(this, &QListView::clicked, this, &ProposalList::choose);
}

void ProposalList::Propose(const QString &beginning) {
    m_matches.setCompletionPrefix(beginning);
    setCurrentIndex({});
    if (beginning.isEmpty() || model()->rowCount() == 0) {
        hide();
        return;
    }
    place();
    scrollToTop();
    show();
    raise();
}

void ProposalList::place() {
    const QWidget &window = *m_field.window();
    const int rows = std::min(model()->rowCount(), kMostRows);
    const int wanted = rows * kRowHeight.pixels() + 2 * frameWidth();
    const QPoint field = m_field.mapTo(&window, QPoint());
    const int below = window.height() - field.y() - m_field.height();
    const bool isBelow = wanted <= below || below >= field.y();
    const int height = std::min(wanted, isBelow ? below : field.y());
    setGeometry(field.x(), isBelow ? field.y() + m_field.height() : field.y() - height, m_field.width(),
                height);
}

bool ProposalList::TakeKey(QKeyEvent &event) {
    if (!isVisible()) {
        return false;
    }
    if (movesInList(event.key())) {
        keyPressEvent(&event);
        event.accept(); // also at the ends, where it moves nothing
        return true;
    }
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid()) {
        choose(currentIndex());
        return true;
    }
    if (enter || event.key() == Qt::Key_Escape) {
        hide();
    }
    return event.key() == Qt::Key_Escape;
}

void ProposalList::choose(const QModelIndex &row) {
    const QString text = row.data().toString();
    hide();
    Q_EMIT Chosen(text);
}

} // namespace platform::controls
