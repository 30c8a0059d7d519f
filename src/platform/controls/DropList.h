#pragma once

#include "ChoiceRows.h"
#include "Placed.h"

#include <QComboBox>
#include <QPointer>

namespace platform::controls {

class ProposalList;
class RowDelegate;

/// An edit box with a drop list. Texts set by code raise no event; a row chosen by the user does, also the
/// row that was chosen already. The wheel chooses nothing; Up, Down, Page Up and Page Down open the list, in which they
/// and Home and End move. The list is as wide as the box, or as its longest row up to what the box stands in.
class DropBox : public QComboBox {
    Q_OBJECT

public:
    explicit DropBox(QWidget *parent);

    void Clear();
    /// Appends rows; none of them is chosen by that.
    void AddItems(const QStringList &texts);

    /// Has the rows read from a source at each Refresh, but not before they are asked for.
    void SetSource(const ChoiceRows::Source &source) { m_rows.SetSource(source); }

    /// Takes the rows anew from the source; the text stays.
    void Refresh();

    int Count() const { return count(); }

    QString Text() const { return currentText(); }

    void SetText(const QString &text);

    /// Row chosen, from 0; -1 if none.
    int ListIndex() const { return currentIndex(); }

    void SetListIndex(int index);

    /// Offers a text that was typed and is no row as the first row of the opened list, so that it can be chosen.
    void SetOffersTyped(bool offers) { m_offersTyped = offers; }

    /// Proposes the rows that begin with what is typed, whatever the case, in a list below the box.
    void SetProposes();

    /// Shows the box over its neighbours, takes the keyboard and selects the text. Tab then goes on from the control
    /// that the box covers, if one is given.
    void Open(QWidget *covered = nullptr);

    void showPopup() override;

Q_SIGNALS:
    /// The user chose a row.
    void Click();
    /// The user changed the text: by typing, by a row or by a proposal.
    void Change();
    void EnterPressed();
    void Escaped();
    /// The keyboard went to another control of the window; the opened list and menus do not count as such.
    void LostFocus();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void offerTyped(const QString &written);
    void openAtText();
    void widenList();
    void keepListInPanel();
    int longestRow(int limit) const;

    ChoiceRows m_rows;
    RowDelegate *m_delegate = nullptr;  // once the list was opened
    QPointer<ProposalList> m_proposals; // belongs to the window
    QPointer<QWidget> m_covered;
    bool m_offersTyped = false;
    bool m_typedOnTop = false; // the first row is a text that was typed
};

using DropList = Placed<DropBox>;

} // namespace platform::controls
