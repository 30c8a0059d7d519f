#pragma once

#include "ListModel.h"
#include "Placed.h"

#include <QElapsedTimer>
#include <QListView>
#include <QTimer>
#include <optional>

namespace platform::controls {

/// A list view of one column. Rows have a key, count from 1 as their Index, and can be highlighted; 0 stands
/// for no row. The user selects another row, never none. Adding happens inside a Loading.
class ListBox : public QListView {
    Q_OBJECT
    Q_PROPERTY(QString emptyText MEMBER m_emptyText WRITE SetEmptyText)

public:
    enum class LabelEditMode { Manual, Automatic };

    /// Empties the list and takes new rows while it lives; the list shows them when it ends.
    class Loading {
    public:
        explicit Loading(ListBox &list) : m_list(list) { m_list.m_model.beginLoading(); }

        ~Loading() { m_list.m_model.endLoading(); }

        Loading(const Loading &) = delete;
        Loading &operator=(const Loading &) = delete;

        /// Throws DuplicateKeyError for a key that is present.
        void Add(QAnyStringView key, QAnyStringView text, int picture) {
            m_list.m_model.append(key, text, picture);
        }

        /// As Add, for a key of which the caller knows that it is not present.
        void AddDistinct(QAnyStringView key, QAnyStringView text, int picture) {
            m_list.m_model.appendDistinct(key, text, picture);
        }

        int Count() const { return m_list.Count(); }

    private:
        ListBox &m_list;
    };

    explicit ListBox(QWidget *parent);

    /// Heading and width of the one column.
    void SetColumn(const QString &heading, Twips width);
    /// Pictures of the rows; a row's picture number 1 is the first.
    void SetImageList(const std::vector<QPixmap> &pictures);
    void SetBackColor(const QColor &colour);

    /// Colour of highlighted rows.
    void SetSelectionColour(const QColor &colour) { m_model.setHighlightColour(colour); }

    void Clear() { const Loading none(*this); }

    int Count() const { return m_model.rowCount(); }

    /// Index of the selected row, 0 if none.
    int SelectedIndex() const;

    /// Selects the row and makes it visible. Raises no event.
    void Select(int index);

    /// Index of the row of that key, 0 if there is none.
    int IndexOfKey(const QString &key) const { return m_model.find(key) + 1; }

    QString Key(int index) const { return m_model.key(checked(index)); }

    QString Text(int index) const { return m_model.text(checked(index)); }

    int SmallIcon(int index) const { return m_model.picture(checked(index)); }

    void Highlight(int index, bool highlighted) { m_model.setHighlight(checked(index), highlighted); }

    void Remove(int index) { m_model.remove(checked(index)); }

    /// What an empty list says in its empty space; nothing by default.
    void SetEmptyText(const QString &text);

    /// Goes to the next row that begins with what is typed without a long pause, whatever the case and the accents.
    void keyboardSearch(const QString &typed) override;

    /// Automatic: a click on the selected row edits its text in place, a moment later, unless anything is pressed or
    /// takes the keyboard meanwhile. Manual: only StartLabelEdit does.
    void SetLabelEdit(LabelEditMode mode);
    void StartLabelEdit();

Q_SIGNALS:
    /// The user clicked a row.
    void ItemClicked();
    /// The user clicked twice on a row, or pressed Enter on the selected row.
    void DblClick();
    /// The user chose a row by the keyboard; raised when the key is let go.
    void ArrowReleased();
    /// The user ended a label edit; the row still holds its former text and takes the new one afterwards.
    void AfterLabelEdit(int index, const QString &text);
    void Focused();
    /// The right button was let go, or the menu key pressed. A row that the press has just selected was clicked before.
    void RightClicked(const QPoint &globalPosition);

protected:
    using QListView::edit;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    int checked(int index) const;
    bool isBeingTyped() const;
    void dropLabelEdit();
    void sayWhetherEmpty();

    ListModel m_model;
    int m_indexAtPress = 0; // row selected when a key or a mouse button went down
    QString m_emptyText;
    QString m_typed; // of the row searched by typing
    QElapsedTimer m_sinceTyped;
    QTimer m_labelEdit; // runs from a click that is to edit the selected row
};

using List = Placed<ListBox>;

} // namespace platform::controls
