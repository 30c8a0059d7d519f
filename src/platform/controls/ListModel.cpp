#include "ListModel.h"

#include <QFont>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace platform::controls {

void ListModel::beginLoading() {
    beginResetModel();
    m_rows.clear();
    m_words.clear();
    m_keys.clear();
}

void ListModel::endLoading() {
    endResetModel();
}

void ListModel::append(QAnyStringView key, QAnyStringView text, int picture) {
    requireNew(key);
    appendDistinct(key, text, picture);
}

void ListModel::requireNew(QAnyStringView key) {
    for (auto row = static_cast<int>(m_keys.size()); row < rowCount(); ++row) {
        m_keys.insert(this->key(row));
    }
    if (const QString wanted = key.toString(); m_keys.contains(wanted)) {
        throw DuplicateKeyError("La clé « " + wanted.toStdString() + " » n'est pas unique dans la liste.");
    }
}

void ListModel::appendDistinct(QAnyStringView key, QAnyStringView text, int picture) {
    m_rows.append({keep(key), keep(text), picture});
}

ListModel::Words ListModel::keep(QAnyStringView words) {
    const auto begin = static_cast<int>(m_words.size());
    words.visit([this](auto view) {
        if constexpr (std::is_same_v<decltype(view), QUtf8StringView>) {
            m_words.append(view.data(), view.size());
        } else {
            m_words.append(view.toString().toUtf8());
        }
    });
    if (m_words.size() > std::numeric_limits<int>::max()) {
        throw std::length_error("La liste est trop longue.");
    }
    return {begin, static_cast<int>(m_words.size()) - begin};
}

void ListModel::remove(int row) {
    beginRemoveRows({}, row, row);
    m_rows.remove(row);
    m_keys.clear();
    endRemoveRows();
}

void ListModel::setText(int row, const QString &text) {
    m_rows[row].text = keep(text);
    Q_EMIT dataChanged(index(row), index(row), {Qt::DisplayRole});
}

void ListModel::setHighlight(int row, bool highlighted) {
    m_rows[row].highlighted = highlighted;
    Q_EMIT dataChanged(index(row), index(row), {Qt::FontRole, Qt::ForegroundRole});
}

int ListModel::find(QStringView key) const {
    // A glance at each key costs less than an index, which would be looked into once or twice for each load.
    const QByteArray wanted = key.toUtf8();
    const auto row = std::find_if(m_rows.cbegin(), m_rows.cend(), [this, &wanted](const Row &candidate) {
        return words(candidate.key) == wanted;
    });
    return row == m_rows.cend() ? -1 : static_cast<int>(row - m_rows.cbegin());
}

int ListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(index.row());
    case Qt::UserRole:
        return key(index.row());
    case Qt::DecorationRole: {
        const auto number = static_cast<std::size_t>(row.picture);
        return number >= 1 && number <= m_pictures.size() ? QVariant(m_pictures[number - 1]) : QVariant();
    }
    case Qt::FontRole:
        if (row.highlighted) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::ForegroundRole:
        return row.highlighted ? QVariant(m_highlight) : QVariant();
    default:
        return {};
    }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isHeading = section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isHeading ? QVariant(m_heading) : QVariant();
}

bool ListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::EditRole || !index.isValid()) {
        return false;
    }
    Q_EMIT labelEdited(index.row(), value.toString());
    setText(index.row(), value.toString());
    return true;
}

Qt::ItemFlags ListModel::flags(const QModelIndex &index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
}

} // namespace platform::controls
