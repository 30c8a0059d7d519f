#include "DropList.h"

#include "CutText.h"
#include "Fonts.h"
#include "LineInput.h"
#include "ProposalList.h"
#include "RowDelegate.h"
#include "SkinnedWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <array>
#include <numeric>

namespace platform::controls {

namespace {

constexpr int kMargin = 2;    // pixels that bring the text where a text box has it
constexpr int kMostRows = 10; // of an opened list that are seen at once
constexpr Twips kRowHeight{285};

/// The widths of single letters, in pixels. Kerning only brings letters closer, so no text is wider than their sum.
class LetterWidths {
public:
    explicit LetterWidths(const QFontMetrics &metrics) : m_widest(metrics.maxWidth()) {
        for (std::size_t letter = 0; letter < m_widths.size(); ++letter) {
            m_widths[letter] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter)));
        }
    }

    int sum(const QString &text) const {
        return std::accumulate(text.begin(), text.end(), 0, [this](int width, QChar letter) {
            return width + (letter.unicode() < m_widths.size() ? m_widths[letter.unicode()] : m_widest);
        });
    }

private:
    std::array<int, 256> m_widths{};
    int m_widest;
};

} // namespace

DropBox::DropBox(QWidget *parent) : QComboBox(parent), m_rows(this) {
    setModel(&m_rows);
    // setEditable would make the popup's list at once, only to frame it for a box without a field.
    setLineEdit(new QLineEdit(this));
    lineEdit()->setTextMargins(kMargin, 0, 0, 0);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(kMostRows);
    new LineInput(*lineEdit());
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
    m_proposals = new ProposalList(*this, m_rows);
    connect(lineEdit(), &QLineEdit::textEdited, m_proposals, &ProposalList::Propose);
    connect(m_proposals, &ProposalList::Chosen, this, &QComboBox::setEditText);
}

void DropBox::Open(QWidget *covered) {
    m_covered = covered;
    show();
    raise();
    setFocus();
    // The caret in front: a long text shows its beginning.
    const auto length = static_cast<int>(currentText().size());
    lineEdit()->setSelection(length, -length);
}

void DropBox::offerTyped(const QString &written) {
    if (m_typedOnTop) {
        m_rows.RemoveFirst();
        m_typedOnTop = false;
    }
    if (m_offersTyped && !written.trimmed().isEmpty() && !m_rows.Texts().contains(written)) {
        m_rows.InsertFirst(written);
        m_typedOnTop = true;
    }
}

/// The list opens at the row of the text, which may have been set or typed since a row was last chosen.
void DropBox::openAtText() {
    const QString written = currentText();
    const QSignalBlocker quiet(this);
    m_rows.SetTexts(m_rows.Texts()); // a list made before learns of rows that were read since
    offerTyped(written);
    setCurrentIndex(static_cast<int>(m_rows.Texts().indexOf(written)));
    setEditText(written);
}

void DropBox::showPopup() {
    openAtText();
    if (m_delegate == nullptr) {
        // The list of the drop list is made when it is first needed.
        m_delegate = new RowDelegate(kRowHeight, this);
        setItemDelegate(m_delegate);
        view()->installEventFilter(this);
        view()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        if (auto *rows = qobject_cast<QListView *>(view())) {
            rows->setUniformItemSizes(true);
        }
    }
    widenList();
    QComboBox::showPopup();
    keepListInPanel();
}

int DropBox::longestRow(int limit) const {
    const QFontMetrics metrics = view()->fontMetrics();
    const LetterWidths letters(metrics);
    int longest = 0;
    for (const QString &row : m_rows.Texts()) {
        // Setting a row is slow: of thousands only those are measured whose letters alone are wider.
        if (letters.sum(row) > longest && !isDotted(row)) {
            longest = std::max(longest, metrics.horizontalAdvance(row.left(limit)));
        }
        if (longest >= limit) {
            return limit;
        }
    }
    return longest;
}

void DropBox::widenList() {
    const QWidget &list = *view()->window();
    const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view()) + 1);
    const int frames = 2 * view()->frameWidth() + list.width() - list.contentsRect().width();
    const int bar = count() > maxVisibleItems() ? view()->verticalScrollBar()->sizeHint().width() : 0;
    const int panel = parentWidget()->width();
    const int wanted = std::min(longestRow(panel) + margins + bar + frames, panel);
    view()->setMinimumWidth(wanted > width() ? wanted - frames : 0);
}

void DropBox::keepListInPanel() {
    QWidget &list = *view()->window();
    const int left = parentWidget()->mapToGlobal(QPoint()).x();
    const int farthest = left + parentWidget()->width() - list.width();
    if (list.x() > farthest) {
        list.move(std::max(left, farthest), list.y());
    }
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
    m_rows.SetTexts({});
    m_typedOnTop = false;
    clearEditText();
}

void DropBox::Refresh() {
    const QSignalBlocker quiet(this);
    const QString written = currentText();
    m_rows.Refresh();
    m_typedOnTop = false;
    setEditText(written);
}

void DropBox::AddItems(const QStringList &texts) {
    const QSignalBlocker quiet(this);
    const QString written = currentText();
    m_rows.SetTexts(m_rows.Texts() + texts);
    // The toolkit would choose the first row of a list that was empty.
    setCurrentIndex(-1);
    setEditText(written);
}

void DropBox::paintEvent(QPaintEvent *event) {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    paintFocusRing(painter, *this);
}

/// Escape closes the proposals before it may leave the window.
bool DropBox::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride && m_proposals != nullptr && m_proposals->isVisible() &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QComboBox::event(event);
}

void DropBox::keyPressEvent(QKeyEvent *event) {
    if (m_proposals != nullptr && m_proposals->TakeKey(*event)) {
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
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        showPopup();
        QApplication::sendEvent(view(), event);
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
    if (m_proposals != nullptr) {
        m_proposals->hide();
    }
}

void DropBox::hideEvent(QHideEvent *event) {
    QComboBox::hideEvent(event);
    if (m_proposals != nullptr) {
        m_proposals->hide();
    }
}

bool DropBox::focusNextPrevChild(bool next) {
    if (m_covered != nullptr) {
        m_covered->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return QComboBox::focusNextPrevChild(next);
}

} // namespace platform::controls
