#pragma once

#include <QString>
#include <QValidator>

class QLineEdit;

namespace platform::controls {

/// What the user brings into a box of one line, by whatever means, stays on one line: line ends become blanks, those that
/// would end the text go, and files are refused. A copied line brings its end along, and a blank there would make another
/// value of it. Texts set by code stay as they are. Belongs to the box.
class LineInput : public QValidator {
public:
    explicit LineInput(QLineEdit &box);

    State validate(QString &text, int &caret) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit &m_box;
    mutable QString m_before; // the text at the last change
};

} // namespace platform::controls
