#include "Placed.h"

namespace platform::controls {

namespace {

QString text(std::u16string_view view) {
    return QStringView(view).toString();
}

} // namespace

void applyRow(QWidget &control, const ControlRow &row) {
    control.setObjectName(QString::fromLatin1(row.name.data(), static_cast<qsizetype>(row.name.size())));
    control.setToolTip(text(row.toolTip));
    control.setAccessibleName(text(row.accessible.empty() ? row.toolTip : row.accessible));
}

} // namespace platform::controls
