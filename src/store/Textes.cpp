#include "Textes.h"

#include <array>
#include <charconv>

namespace store {

QString DoublerApostrophes(const QString &texte) {
    return QString(texte).replace(u'\'', QStringLiteral("''"));
}

QString SansBlancs(QStringView texte) {
    while (texte.startsWith(u' ')) {
        texte = texte.sliced(1);
    }
    while (texte.endsWith(u' ')) {
        texte.chop(1);
    }
    return texte.toString();
}

QString CleDeListe(qint64 numero) {
    // Made for each row of a list of thousands, so without any text in between.
    std::array<char, 24> cle{'N', ' '};
    const auto fin = std::to_chars(cle.data() + 2, cle.data() + cle.size(), numero).ptr;
    return QString::fromLatin1(cle.data(), fin - cle.data());
}

qint64 NumeroDeCle(QStringView cle) {
    return cle.isEmpty() ? 0 : cle.sliced(1).trimmed().toLongLong();
}

} // namespace store
