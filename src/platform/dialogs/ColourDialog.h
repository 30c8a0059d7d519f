#pragma once

#include <QColor>
#include <optional>

class QWidget;

namespace platform::dialogs {

/// Asks for an opaque colour, starting from one; nothing on cancel. The parent may be null or hidden.
std::optional<QColor> ShowColor(QWidget *parent, const QColor &initial);

} // namespace platform::dialogs
