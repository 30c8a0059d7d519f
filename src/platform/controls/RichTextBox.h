#pragma once

#include "Placed.h"

#include <QLabel>
#include <QTextEdit>

namespace platform::controls {

/// A box of formatted text on a dark ground, edited in place: Ctrl+B, I and U set bold, italic and underline, and
/// what is pasted or dropped keeps only what the box can show. Positions count characters from 0. What the
/// program does to the content with the signals of the box blocked is none of the user's changes, and cannot be
/// undone. Of a text of more than a million characters it shows the beginning, read-only and with a notice, and keeps
/// the whole.
class RichTextEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit RichTextEdit(QWidget *parent);

    /// Colour of the writing that has no colour of its own.
    void SetDefaultColor(const QColor &colour);

    /// The plain text of the whole content.
    QString Text() const;

    /// The content in RTF form, or a text of which only the beginning is shown, as it was set; setting takes RTF or plain
    /// text, does not raise Change, and cannot be undone.
    QString TextRTF() const { return m_content; }

    void SetTextRTF(const QString &text);

    int SelStart() const { return textCursor().selectionStart(); }

    int SelLength() const { return textCursor().selectionEnd() - textCursor().selectionStart(); }

    /// Puts the caret at a position with so many characters selected behind it, as far as there are some.
    void Select(int start, int length);

    QColor SelColor() const { return textCursor().charFormat().foreground().color(); }

    /// Colour of the selection, or of what is typed next where nothing is selected. When the user has emptied the box,
    /// what is typed next has the colour that the text began with.
    void SetSelColor(const QColor &colour);

    void SetSelBold(bool bold);

Q_SIGNALS:
    /// The content has become another one by an act of the user: its characters or their formats.
    void Change();
    /// The user goes to the box. The return of the keyboard to its window or from a menu does not count.
    void Entered();
    /// A mouse button was let go.
    void Clicked();
    /// The right button was let go over the box. Neither its press nor its release moves the caret.
    void RightReleased();

protected:
    bool event(QEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    using KeyAction = void (RichTextEdit::*)();

    /// What a key does that the text box of Qt does otherwise; null for all others.
    static KeyAction actionOf(const QKeyEvent &event);

    void followContent();
    void keepColour();
    void showBeginning(bool only);
    void notice(const QString &text);
    void placeNotice();
    void format(const QTextCharFormat &changes);
    void toggleBold();
    void toggleItalic();
    void toggleUnderline();

    QString m_content; ///< in RTF form, but as it was set where only its beginning is shown
    QBrush m_colour;   ///< that the text begins or began with
    bool m_loading = false;
    bool m_onlyBeginning = false;
    bool m_wasReadOnly = false; ///< before only the beginning was shown
    QLabel m_notice{this};
};

using RichTextBox = Placed<RichTextEdit>;

} // namespace platform::controls
