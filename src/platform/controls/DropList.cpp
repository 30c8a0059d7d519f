#include "DropList.h"

#include "Fonts.h"
#include "SkinnedWindow.h"

#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace platform::controls {

namespace {

constexpr int kMargin = 2;        // pixels that bring the text where a text box has it
constexpr int kMeasuredRows = 20; // longer lists keep the width of their field

/// A key that an opened list acts on.
bool isListKey(int key) {
    return key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Up ||
           key == Qt::Key_Down;
}

} // namespace

DropBox::DropBox(QWidget *parent) : QComboBox(parent), m_rows(this) {
    setModel(&m_rows);
    // setEditable would make the popup's list at once, only to frame it for a box without a field.
    setLineEdit(new QLineEdit(this));
    lineEdit()->setTextMargins(kMargin, 0, 0, 0);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFont(interfaceFont(Face::Verdana, 8.25));
    // The width is that of the field; measuring thousands of rows for a size hint would be wasted.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // The toolkit takes a typed text that happens to be a row for a choice, also when the box is merely left.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(this, &QComboBox::editTextChanged, this, &DropBox::Change);
    connect(this, &QComboBox::activated, this, &DropBox::Click);
}

void DropBox::SetText(const QString &text) {
    const QSignalBlocker quiet(this);
    setEditText(text);
}

void DropBox::SetListIndex(int index) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(index);
}

void DropBox::SetProposes() {
    auto *proposals = new QCompleter(&m_rows, this);
    proposals->setCompletionMode(QCompleter::PopupCompletion);
    proposals->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(proposals);
}

void DropBox::Open() {
    show();
    raise();
    setFocus();
    // The caret in front: a long text shows its beginning.
    const auto length = static_cast<int>(currentText().size());
    lineEdit()->setSelection(length, -length);
}

void DropBox::offerTyped(const QString &written) {
    if (m_typedOnTop) {
        m_rows.removeRows(0, 1);
        m_typedOnTop = false;
    }
    if (m_offersTyped && !written.trimmed().isEmpty() &&
        findText(written, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) {
        m_rows.insertRows(0, 1);
        m_rows.setData(m_rows.index(0), written);
        m_typedOnTop = true;
    }
}

void DropBox::showPopup() {
    // The list opens at the row of the text, which may have been set or typed since a row was last chosen.
    const QString written = currentText();
    {
        const QSignalBlocker quiet(this);
        offerTyped(written);
        setCurrentIndex(findText(written, Qt::MatchExactly | Qt::MatchCaseSensitive));
        setEditText(written);
    }
    view()->installEventFilter(this); // once: a filter that is installed again only moves to the front
    // The list of the drop list is made when it is first needed; thousands of rows of one height need no
    // measuring.
    if (auto *rows = qobject_cast<QListView *>(view())) {
        rows->setUniformItemSizes(true);
        if (count() <= kMeasuredRows) {
            rows->setMinimumWidth(rows->sizeHintForColumn(0) + rows->verticalScrollBar()->sizeHint().width());
        }
    }
    QComboBox::showPopup();
}

/// The opened list keeps Tab to itself, where it would do nothing.
bool DropBox::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            hidePopup();
            focusNextPrevChild(key == Qt::Key_Tab);
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void DropBox::Clear() {
    const QSignalBlocker quiet(this);
    m_rows.setStringList({});
    m_typedOnTop = false;
    clearEditText();
}

void DropBox::AddItems(const QStringList &texts) {
    const QSignalBlocker quiet(this);
    const QString written = currentText();
    m_rows.setStringList(m_rows.stringList() + texts);
    // The toolkit would choose the first row of a list that was empty.
    setCurrentIndex(-1);
    setEditText(written);
}

void DropBox::paintEvent(QPaintEvent *event) {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    paintFocusRing(painter, *this);
}

bool DropBox::isProposing() const {
    return completer() != nullptr && completer()->popup()->isVisible();
}

void DropBox::keyPressEvent(QKeyEvent *event) {
    if (isProposing() && isListKey(event->key())) {
        // The list of proposals hands its keys on to here first, and acts on those that are not taken.
        event->ignore();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT Escaped();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT EnterPressed();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        showPopup();
        break;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void DropBox::wheelEvent(QWheelEvent *event) {
    // Over a list in a page that scrolls, the wheel is meant for the page.
    event->ignore();
}

void DropBox::focusOutEvent(QFocusEvent *event) {
    QComboBox::focusOutEvent(event);
    // The opened list takes the keyboard for itself, and so does a menu.
    if (QApplication::activePopupWidget() == nullptr && event->reason() != Qt::ActiveWindowFocusReason) {
        Q_EMIT LostFocus();
    }
}

} // namespace platform::controls
