#include "LineInput.h"

#include "platform/richtext/PastedText.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QRegularExpression>
#include <algorithm>

namespace platform::controls {

namespace {

/// Where two texts, one of them reversed perhaps, begin to differ.
template <class Iterator>
qsizetype common(Iterator one, Iterator oneEnd, Iterator other, Iterator otherEnd) {
    return std::mismatch(one, oneEnd, other, otherEnd).first - one;
}

bool pastesFiles(const QEvent &event) {
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent &>(event).matches(QKeySequence::Paste) &&
           richtext::holdsFiles(*QGuiApplication::clipboard()->mimeData());
}

bool dragsFiles(const QEvent &event) {
    return event.type() == QEvent::DragEnter &&
           richtext::holdsFiles(*static_cast<const QDragEnterEvent &>(event).mimeData());
}

} // namespace

LineInput::LineInput(QLineEdit &box) : QValidator(&box), m_box(box), m_before(box.text()) {
    box.setValidator(this);
    box.installEventFilter(this);
    if (QWidget *holder = box.focusProxy()) {
        holder->installEventFilter(this); // a drop list hands the keys to its box itself
    }
}

/// The toolkit asks at each change. A box counts as modified from an act of the user on until code sets its text.
QValidator::State LineInput::validate(QString &text, int &caret) const {
    static const QRegularExpression lineEnd(QStringLiteral("\\r\\n|[\\n\\r\\x{2028}\\x{2029}]"));
    static const QRegularExpression lastEnds(QStringLiteral("[\\n\\r\\x{2028}\\x{2029}]+$"));
    if (m_box.isModified() && text.contains(lineEnd)) {
        const qsizetype start = common(text.cbegin(), text.cend(), m_before.cbegin(), m_before.cend());
        const qsizetype most = std::min(text.size(), m_before.size()) - start;
        const qsizetype behind =
            std::min(most, common(text.crbegin(), text.crend(), m_before.crbegin(), m_before.crend()));
        QString brought = text.sliced(start, text.size() - start - behind);
        const qsizetype length = brought.size();
        if (behind == 0) {
            brought.remove(lastEnds);
        }
        brought.replace(lineEnd, QStringLiteral(" "));
        text.replace(start, length, brought);
        caret -= static_cast<int>(length - brought.size());
    }
    m_before = text;
    return Acceptable;
}

bool LineInput::eventFilter(QObject *watched, QEvent *event) {
    if (pastesFiles(*event)) {
        return true;
    }
    if (dragsFiles(*event)) {
        event->ignore(); // what the box stands in may take them
        return true;
    }
    return QValidator::eventFilter(watched, event);
}

} // namespace platform::controls
