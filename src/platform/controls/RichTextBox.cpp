#include "RichTextBox.h"

#include "Fonts.h"
#include "Skin.h"

#include "platform/richtext/PastedText.h"
#include "platform/richtext/RichText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextBlock>
#include <algorithm>
#include <array>

namespace platform::controls {

namespace {

constexpr Twips kMargin{120};
constexpr int kNoticeMargin = 4; // pixels
const QColor kDarkGround(30, 42, 68);
const QColor kDarkSelection(77, 108, 166);
const QColor kNoticeGround(243, 220, 174);
const QColor kNoticeInk(22, 33, 58);
constexpr qsizetype kLongest = 1'000'000; // characters; more could not be shown, nor edited, without a pause

bool isBold(const QTextCharFormat &format) {
    return format.fontWeight() >= QFont::DemiBold;
}

bool isItalic(const QTextCharFormat &format) {
    return format.fontItalic();
}

bool isUnderlined(const QTextCharFormat &format) {
    return format.fontUnderline();
}

/// True when all characters of the selection are so; without any, when what is typed next will be.
bool isAll(const QTextEdit &box, bool (*isSo)(const QTextCharFormat &format)) {
    const QTextCursor selection = box.textCursor();
    const int start = selection.selectionStart();
    const int end = selection.selectionEnd();
    bool any = false;
    for (QTextBlock block = box.document()->findBlock(start); block.isValid() && block.position() < end;
         block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment run = part.fragment();
            if (run.position() < end && run.position() + run.length() > start) {
                if (!isSo(run.charFormat())) {
                    return false;
                }
                any = true;
            }
        }
    }
    return any || isSo(box.currentCharFormat());
}

} // namespace

RichTextEdit::RichTextEdit(QWidget *parent) : QTextEdit(parent) {
    setFont(interfaceFont(Face::Verdana, 9));
    setTabChangesFocus(true);
    document()->setDocumentMargin(kMargin.pixels());
    colourScrollBar(*this, kDarkGround.lighter(150));
    SetDefaultColor(Qt::white);
    setContextMenuPolicy(Qt::PreventContextMenu);
    QPalette colours = m_notice.palette();
    colours.setColor(QPalette::Window, kNoticeGround);
    colours.setColor(QPalette::WindowText, kNoticeInk);
    m_notice.setPalette(colours);
    m_notice.setAutoFillBackground(true);
    m_notice.setWordWrap(true);
    m_notice.setMargin(kNoticeMargin);
    m_notice.setObjectName(QStringLiteral("Notice"));
    m_notice.hide();
    m_content = richtext::toRtf(*document());
    connect(document(), &QTextDocument::contentsChanged, this, &RichTextEdit::followContent);
}

void RichTextEdit::SetDefaultColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, kDarkGround);
    colours.setColor(QPalette::Text, colour);
    colours.setColor(QPalette::Highlight, kDarkSelection);
    colours.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colours);
    paintFocusFrame(*this, hasFocus());
}

void RichTextEdit::focusInEvent(QFocusEvent *event) {
    QTextEdit::focusInEvent(event);
    paintFocusFrame(*this, true);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        Q_EMIT Entered();
    }
}

void RichTextEdit::focusOutEvent(QFocusEvent *event) {
    QTextEdit::focusOutEvent(event);
    paintFocusFrame(*this, false);
}

void RichTextEdit::SetTextRTF(const QString &text) {
    const QSignalBlocker quiet(this);
    {
        const QScopedValueRollback loading(m_loading, true);
        showBeginning(!richtext::load(*document(), text, kLongest));
    }
    m_colour = {};
    if (m_onlyBeginning) {
        m_content = text;
    }
    followContent();
    moveCursor(QTextCursor::Start);
}

void RichTextEdit::showBeginning(bool only) {
    if (only && !m_onlyBeginning) {
        m_wasReadOnly = isReadOnly();
    }
    if (only || m_onlyBeginning) {
        setReadOnly(only || m_wasReadOnly);
    }
    m_onlyBeginning = only;
    notice(only ? QStringLiteral(
                      "Ce texte dépasse un million de caractères. Seul son début est montré ici, et il ne "
                      "peut pas être modifié ; le texte entier est conservé.")
                : QString());
}

void RichTextEdit::notice(const QString &text) {
    m_notice.setText(text);
    m_notice.setVisible(!text.isEmpty());
    placeNotice();
}

void RichTextEdit::placeNotice() {
    const QRect room = contentsRect();
    const int height = m_notice.isHidden() ? 0 : m_notice.heightForWidth(room.width());
    m_notice.setGeometry(room.left(), room.top(), room.width(), height);
    if (viewportMargins().top() != height) {
        setViewportMargins(0, height, 0, 0);
    }
}

void RichTextEdit::resizeEvent(QResizeEvent *event) {
    QTextEdit::resizeEvent(event);
    placeNotice();
}

void RichTextEdit::keepColour() {
    QTextCursor beginning(document());
    if (!document()->isEmpty()) {
        beginning.setPosition(1);
        m_colour = beginning.charFormat().foreground();
    } else if (m_colour != QBrush()) {
        QTextCharFormat changes;
        changes.setForeground(m_colour);
        mergeCurrentCharFormat(changes);
    }
}

/// The document also reports acts that change nothing: the content itself decides.
void RichTextEdit::followContent() {
    if (m_loading || m_onlyBeginning) {
        return;
    }
    keepColour();
    QString content = richtext::toRtf(*document());
    if (content != m_content) {
        m_content = std::move(content);
        Q_EMIT Change();
    }
}

QString RichTextEdit::Text() const {
    return m_onlyBeginning ? richtext::plainText(m_content) : toPlainText();
}

void RichTextEdit::Select(int start, int length) {
    QTextCursor cursor(document());
    const int last = document()->characterCount() - 1;
    cursor.setPosition(qMin(start, last));
    cursor.setPosition(qMin(start + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void RichTextEdit::format(const QTextCharFormat &changes) {
    if (m_onlyBeginning) {
        return;
    }
    mergeCurrentCharFormat(changes);
    if (signalsBlocked()) {
        document()->clearUndoRedoStacks();
    }
}

void RichTextEdit::SetSelColor(const QColor &colour) {
    QTextCharFormat changes;
    changes.setForeground(colour);
    format(changes);
}

void RichTextEdit::SetSelBold(bool bold) {
    QTextCharFormat changes;
    changes.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    format(changes);
}

void RichTextEdit::toggleBold() {
    SetSelBold(!isAll(*this, isBold));
}

void RichTextEdit::toggleItalic() {
    QTextCharFormat changes;
    changes.setFontItalic(!isAll(*this, isItalic));
    format(changes);
}

void RichTextEdit::toggleUnderline() {
    QTextCharFormat changes;
    changes.setFontUnderline(!isAll(*this, isUnderlined));
    format(changes);
}

RichTextEdit::KeyAction RichTextEdit::actionOf(const QKeyEvent &event) {
    struct Key {
        QKeyCombination keys;
        KeyAction act = nullptr;
    };

    // Ctrl+U deletes the line on some platforms, and Ctrl+Y or Ctrl+Shift+Z does nothing on others.
    static constexpr std::array keys{
        Key{Qt::CTRL | Qt::Key_B, &RichTextEdit::toggleBold},
        Key{Qt::CTRL | Qt::Key_I, &RichTextEdit::toggleItalic},
        Key{Qt::CTRL | Qt::Key_U, &RichTextEdit::toggleUnderline},
        Key{Qt::CTRL | Qt::Key_Y, &RichTextEdit::redo},
        Key{Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &RichTextEdit::redo},
    };
    const auto *found = std::find_if(keys.begin(), keys.end(),
                                     [&event](const Key &key) { return key.keys == event.keyCombination(); });
    return found == keys.end() ? nullptr : found->act;
}

bool RichTextEdit::event(QEvent *event) {
    // A shortcut of the window must not take the keys of the box.
    if (event->type() == QEvent::ShortcutOverride && actionOf(static_cast<QKeyEvent &>(*event)) != nullptr) {
        event->accept();
        return true;
    }
    return QTextEdit::event(event);
}

void RichTextEdit::keyPressEvent(QKeyEvent *event) {
    if (const KeyAction act = actionOf(*event); act != nullptr && !isReadOnly()) {
        (this->*act)();
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData *source) const {
    return richtext::holdsText(*source);
}

void RichTextEdit::insertFromMimeData(const QMimeData *source) {
    if (source == nullptr || isReadOnly()) {
        return;
    }
    QTextCursor cursor = textCursor();
    const qsizetype left = document()->characterCount() - SelLength();
    const bool pasted = richtext::paste(cursor, *source, kDarkGround, kLongest - left);
    notice(pasted ? QString()
                  : QStringLiteral(
                        "Ce texte est trop long pour être collé ici : le tout dépasserait un million de "
                        "caractères."));
    setTextCursor(cursor);
    ensureCursorVisible();
}

void RichTextEdit::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::RightButton) {
        QTextEdit::mousePressEvent(event);
    }
}

void RichTextEdit::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::RightButton) {
        QTextEdit::mouseDoubleClickEvent(event);
    }
}

void RichTextEdit::mouseReleaseEvent(QMouseEvent *event) {
    const bool right = event->button() == Qt::RightButton;
    if (!right) {
        QTextEdit::mouseReleaseEvent(event);
    }
    Q_EMIT Clicked();
    if (right && viewport()->rect().contains(event->position().toPoint())) {
        Q_EMIT RightReleased();
    }
}

} // namespace platform::controls
