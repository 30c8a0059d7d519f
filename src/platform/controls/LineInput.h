#pragma once

#include <QString>
#include <QValidator>

class QLineEdit;

namespace platform::controls {

/// What the user brings into a box of one line, by whatever means, stays on one line: line ends become blanks, and
/// files are refused. Texts set by code stay as they are. Belongs to the box.
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
