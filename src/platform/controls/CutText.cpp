#include "CutText.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>
#include <algorithm>

namespace platform::controls {

namespace {

constexpr qsizetype kLongestTip = 4000; // characters; more would not fit on a screen

} // namespace

bool isDotted(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character == u'.'; });
}

bool isCut(const QString &text, const QFontMetrics &metrics, int width) {
    // No letter is narrower than a pixel, and a text of millions must not be measured.
    return !isDotted(text) && (text.size() > width || metrics.horizontalAdvance(text) > width);
}

QString fitted(const QString &text, const QFontMetrics &metrics, int width) {
    const QString beginning = text.left(std::max(width, 0) + 1);
    return isDotted(text) ? beginning : metrics.elidedText(beginning, Qt::ElideRight, width);
}

void showPlainTip(const QHelpEvent &event, QWidget &control, const QString &text) {
    QToolTip::showText(event.globalPos(),
                       QStringLiteral("<qt>%1</qt>").arg(text.left(kLongestTip).toHtmlEscaped()), &control);
}

bool showsPlainTip(const QEvent &event, QWidget &control) {
    if (event.type() != QEvent::ToolTip || control.toolTip().isEmpty()) {
        return false;
    }
    showPlainTip(static_cast<const QHelpEvent &>(event), control, control.toolTip());
    return true;
}

} // namespace platform::controls
