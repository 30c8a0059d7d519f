#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <functional>

namespace platform::controls {

/// The texts that a drop list offers, given by code or read from a source when they are first asked for.
class ChoiceRows : public QAbstractListModel {
public:
    using Source = std::function<QStringList()>;

    using QAbstractListModel::QAbstractListModel;

    /// What it throws comes out where a row, or the number of rows, is asked for; there are none then.
    void SetSource(const Source &source) { m_source = source; }

    /// Forgets the texts; the source, if there is one, gives them anew when they are next asked for.
    void Refresh();

    const QStringList &Texts() const;
    void SetTexts(const QStringList &texts);
    void InsertFirst(const QString &text);
    void RemoveFirst();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    Source m_source;
    mutable bool m_unread = false;
    mutable QStringList m_texts;
};

} // namespace platform::controls
