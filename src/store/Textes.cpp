#include "Textes.h"

namespace store {

QString DoublerApostrophes(const QString &texte) {
    return QString(texte).replace(u'\'', QStringLiteral("''"));
}

QString CleDeListe(qint64 numero) {
    return QStringLiteral("N ") + QString::number(numero);
}

qint64 NumeroDeCle(QStringView cle) {
    return cle.isEmpty() ? 0 : cle.sliced(1).trimmed().toLongLong();
}

} // namespace store
