#pragma once

#include <QFontMetrics>
#include <QString>

class QEvent;
class QHelpEvent;
class QWidget;

namespace platform::controls {

/// True for a text of nothing but full stops: it stands for no value, and runs on to the edge of its control.
bool isDotted(QStringView text);

/// True for a text that does not fit into so many pixels. A dotted one is never cut.
bool isCut(const QString &text, const QFontMetrics &metrics, int width);

/// The text as it fits into so many pixels; a cut one ends in an ellipsis.
QString fitted(const QString &text, const QFontMetrics &metrics, int width);

/// Shows a text as a tool tip, as it stands, also where it looks like markup.
void showPlainTip(const QHelpEvent &event, QWidget &control, const QString &text);

/// Shows a control's tool tip as showPlainTip() does; false for any other event.
bool showsPlainTip(const QEvent &event, QWidget &control);

} // namespace platform::controls
