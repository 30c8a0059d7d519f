#include "Textes.h"

#include <charconv>

namespace store {

QString DoublerApostrophes(const QString &texte) {
    return QString(texte).replace(u'\'', QStringLiteral("''"));
}

QStringView Rogner(QStringView texte) {
    while (texte.startsWith(u' ')) {
        texte = texte.sliced(1);
    }
    while (texte.endsWith(u' ')) {
        texte.chop(1);
    }
    return texte;
}

QString SansBlancs(QStringView texte) {
    return Rogner(texte).toString();
}

CleEcrite::CleEcrite(qint64 numero)
    : m_taille(std::to_chars(m_lettres.data() + 2, m_lettres.data() + m_lettres.size(), numero).ptr -
               m_lettres.data()) {}

QString CleDeListe(qint64 numero) {
    return CleEcrite(numero).Texte().toString();
}

qint64 NumeroDeCle(QStringView cle) {
    return cle.isEmpty() ? 0 : cle.sliced(1).trimmed().toLongLong();
}

} // namespace store
