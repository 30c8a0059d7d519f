#include "ColourDialog.h"

#include <QColorDialog>

namespace platform::dialogs {

std::optional<QColor> ShowColor(QWidget *parent, const QColor &initial) {
    const QColor chosen = QColorDialog::getColor(initial, parent, QStringLiteral("Couleurs"));
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

} // namespace platform::dialogs
