#pragma once

#include <QStringView>

class QWidget;

namespace shell {

/// Opens a configured address with the desktop's program for it; says so when there is none.
void OuvrirAdresse(QWidget &fenetre, QStringView adresse);

} // namespace shell
