#pragma once

#include <QCompleter>
#include <QListView>

namespace platform::controls {

/// The rows that begin with what is typed into a field, whatever the case, in a list below it, or above it where there
/// is more room. It is no window and takes no keyboard: a press elsewhere goes where it was meant, and the field hands
/// it the keys that move in it.
class ProposalList : public QListView {
    Q_OBJECT

public:
    /// @param rows the texts proposed, which must outlive the list
    ProposalList(QWidget &field, QAbstractItemModel &rows);

    /// Shows the rows that begin so; without any, or for an empty text, it hides.
    void Propose(const QString &beginning);

    /// Does what a key of the field asks for here; false for a key that is meant for the field.
    bool TakeKey(QKeyEvent &event);

Q_SIGNALS:
    /// The user chose a row. The list is hidden by then.
    void Chosen(const QString &text);

private:
    void choose(const QModelIndex &row);
    void place();

    QWidget &m_field;
    QCompleter m_matches;
};

} // namespace platform::controls
