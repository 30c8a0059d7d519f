#include "Positions.h"

#include "ErreurExecution.h"

#include <algorithm>

namespace webimport {

namespace {

/// A removed tag can leave another one in its place, once for each tag around it. No page nests them so deep,
/// unless to keep the program busy.
constexpr int kPassesAuPlus = 100;

} // namespace

qsizetype Position(QStringView texte, QStringView cherche, qsizetype depuis) {
    if (depuis > texte.size()) {
        return 0;
    }
    return texte.indexOf(cherche, depuis - 1) + 1;
}

QStringView Extrait(QStringView texte, qsizetype position) {
    return position > texte.size() ? QStringView() : texte.sliced(position - 1);
}

QStringView Extrait(QStringView texte, qsizetype position, qsizetype longueur) {
    if (longueur < 0) {
        throw ArgumentIncorrect();
    }
    return Extrait(texte, position).left(longueur);
}

QString EnMajuscules(QStringView texte) {
    QString majuscules(texte.size(), Qt::Uninitialized);
    std::transform(texte.begin(), texte.end(), majuscules.begin(), [](QChar c) { return c.toUpper(); });
    return majuscules;
}

bool Remplacer(QString &texte, const Remplacement &remplacement) {
    const QStringView source = texte;
    qsizetype trouve = source.indexOf(remplacement.cherche);
    if (trouve < 0) {
        return false;
    }
    QString resultat;
    resultat.reserve(source.size());
    qsizetype suite = 0;
    for (; trouve >= 0; trouve = source.indexOf(remplacement.cherche, suite)) {
        resultat += source.sliced(suite, trouve - suite);
        resultat += remplacement.par;
        suite = trouve + remplacement.cherche.size();
    }
    resultat += source.sliced(suite);
    texte = std::move(resultat);
    return true;
}

qsizetype Occurrences::Depuis(qsizetype position) {
    if (m_trouvee != 0 && m_trouvee < position) {
        m_trouvee = Position(m_texte, m_cherche, position);
    }
    return m_trouvee;
}

void Repasses::Passer(QString &champ, bool rempli) {
    if (rempli) {
        m_restantes = kPassesAuPlus;
    }
    if (m_restantes == 0) {
        return;
    }
    --m_restantes;
    bool trouve = false;
    for (const Remplacement &remplacement : m_remplacements) {
        trouve |= Remplacer(champ, remplacement);
    }
    if (!trouve) {
        m_restantes = 0;
    }
}

} // namespace webimport
