#pragma once

#include "Placed.h"

#include <QComboBox>
#include <QStringListModel>

namespace platform::controls {

/// An edit box with a drop list. Texts set by code raise no event; a row chosen by the user does, also the
/// row that was chosen already.
class DropBox : public QComboBox {
    Q_OBJECT

public:
    explicit DropBox(QWidget *parent);

    void Clear();
    /// Appends rows; none of them is chosen by that.
    void AddItems(const QStringList &texts);

    int Count() const { return count(); }

    QString Text() const { return currentText(); }

    void SetText(const QString &text) { setEditText(text); }

    /// Row chosen, from 0; -1 if none.
    int ListIndex() const { return currentIndex(); }

    void SetListIndex(int index) { setCurrentIndex(index); }

    void showPopup() override;

Q_SIGNALS:
    /// The user chose a row.
    void Click();

private:
    QStringListModel m_rows;
};

using DropList = Placed<DropBox>;

} // namespace platform::controls
