#pragma once

#include "Placed.h"

#include <QTextEdit>

namespace platform::controls {

/// A box of formatted text on a dark ground. Positions count characters from 0.
class RichTextEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit RichTextEdit(QWidget *parent);

    /// Colour of the writing that has no colour of its own.
    void SetDefaultColor(const QColor &colour);

    QString Text() const { return toPlainText(); }

    /// The content in RTF form; setting takes RTF or plain text, and does not raise Change.
    QString TextRTF() const;
    void SetTextRTF(const QString &text);

    int SelStart() const { return textCursor().selectionStart(); }

    int SelLength() const { return textCursor().selectionEnd() - textCursor().selectionStart(); }

    /// Puts the caret at a position with so many characters selected behind it, as far as there are some.
    void Select(int start, int length);

    QColor SelColor() const { return textCursor().charFormat().foreground().color(); }

    /// Colour of the selection, or of what is typed next where nothing is selected.
    void SetSelColor(const QColor &colour);

    bool SelBold() const { return textCursor().charFormat().fontWeight() >= QFont::Bold; }

    void SetSelBold(bool bold);

Q_SIGNALS:
    /// The user changed the content.
    void Change();
    void Clicked();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

using RichTextBox = Placed<RichTextEdit>;

} // namespace platform::controls
