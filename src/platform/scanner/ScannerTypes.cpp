#include "ScannerTypes.h"

#include <sane/sane.h>

namespace platform::scanner {

ScannerError::ScannerError(int status)
    : std::runtime_error(sane_strstatus(static_cast<SANE_Status>(status))), m_status(status) {}

QString ScannerError::sentence() const {
    switch (m_status) {
    case SANE_STATUS_DEVICE_BUSY:
        return QStringLiteral("Le scanner est occupé par un autre programme.");
    case SANE_STATUS_JAMMED:
        return QStringLiteral("Le papier est coincé dans le chargeur.");
    case SANE_STATUS_NO_DOCS:
        return QStringLiteral("Le chargeur est vide.");
    case SANE_STATUS_COVER_OPEN:
        return QStringLiteral("Le couvercle du scanner est ouvert.");
    case SANE_STATUS_NO_MEM:
        return QStringLiteral("Il n'y a pas assez de mémoire pour cette image.");
    case SANE_STATUS_ACCESS_DENIED:
        return QStringLiteral("L'accès au scanner est refusé.");
    case SANE_STATUS_IO_ERROR:
    case SANE_STATUS_INVAL:
        return QStringLiteral("Le scanner ne répond pas. Vérifiez qu'il est branché et allumé.");
    default:
        return QStringLiteral("Le scanner signale une erreur : ") + QString::fromUtf8(what());
    }
}

} // namespace platform::scanner
