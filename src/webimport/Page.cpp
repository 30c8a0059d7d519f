#include "Page.h"

namespace webimport {

bool EstPageDeRecette(QStringView innerHTML) {
    return innerHTML.contains(u"<!-- TITRE RECETTE -->") ||
           innerHTML.contains(u"<!--DEBUT  TITRE DE LA RECETTE -->");
}

bool EstPageDebutFin(QStringView innerHTML) {
    return innerHTML.contains(u"DEBUT  TITRE DE LA RECETTE ");
}

} // namespace webimport
