#include "ScannerTypes.h"

#include "Sane.h"

namespace platform::scanner {

ScannerError::ScannerError(int status)
    : ScannerError(status, sane().strstatus(static_cast<SANE_Status>(status))) {}

ScannerError::ScannerError(int status, const char *text) : std::runtime_error(text), m_status(status) {}

QString ScannerError::sentence() const {
    switch (m_status) {
    case kNotInstalled:
        return QStringLiteral("Les pilotes de scanner (SANE) ne sont pas installés.");
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
