#pragma once

#include "Placed.h"

#include <QLineEdit>

namespace platform::controls {

/// A box of one line of plain text, in which what the user brings stays on one line. textChanged(QString) reports every
/// change, by the user or by code.
class LineBox : public QLineEdit {
    Q_OBJECT

public:
    explicit LineBox(QWidget *parent);

    QString Text() const { return text(); }

    void SetText(const QString &text) { setText(text); }

Q_SIGNALS:
    /// The user goes to the box: it takes the keyboard, or it has it and is pressed or gets Up or Down. The return of
    /// the keyboard to its window or from a menu does not count.
    void Entered();

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

using TextBox = Placed<LineBox>;

} // namespace platform::controls
