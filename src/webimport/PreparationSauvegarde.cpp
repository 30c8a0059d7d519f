#include "PreparationSauvegarde.h"

namespace webimport {

QString TitreAStocker(QString titre) {
    return titre.replace(u'/', u' ').replace(u'\\', u' ');
}

QString VinAStocker(QString vin) {
    return vin.remove(u'\'');
}

} // namespace webimport
