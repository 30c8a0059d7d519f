#include "ChoiceRows.h"

#include <utility>

namespace platform::controls {

void ChoiceRows::Refresh() {
    if (m_unread) {
        return;
    }
    // Those who hear of the reset ask for the number of rows at once, and would have them read.
    m_unread = false;
    SetTexts({});
    m_unread = m_source != nullptr;
}

const QStringList &ChoiceRows::Texts() const {
    if (std::exchange(m_unread, false)) {
        m_texts = m_source();
    }
    return m_texts;
}

void ChoiceRows::SetTexts(const QStringList &texts) {
    beginResetModel();
    m_unread = false;
    m_texts = texts;
    endResetModel();
}

void ChoiceRows::InsertFirst(const QString &text) {
    beginInsertRows({}, 0, 0);
    m_texts.prepend(text);
    endInsertRows();
}

void ChoiceRows::RemoveFirst() {
    beginRemoveRows({}, 0, 0);
    m_texts.removeFirst();
    endRemoveRows();
}

int ChoiceRows::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Texts().size());
}

QVariant ChoiceRows::data(const QModelIndex &index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText && checkIndex(index, CheckIndexOption::IndexIsValid) ? Texts().at(index.row()) : QVariant();
}

} // namespace platform::controls
