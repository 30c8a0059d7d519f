#include "FichiersDePassage.h"

#include "store/Programme.h"

#include <QFile>

namespace webimport::facile {

QString CheminPage() {
    return store::DossierProgramme() + QStringLiteral("/temp.txt");
}

QString CheminPhotoRecue() {
    return store::DossierProgramme() + QStringLiteral("/photo.bmp");
}

void OterFichiersDePassage() {
    QFile::remove(CheminPage());
    QFile::remove(CheminPhotoRecue());
}

} // namespace webimport::facile
