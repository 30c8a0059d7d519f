#include "TexteImprime.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace sheets {

namespace {

/// Characters that are laid out at once, more than a line can hold. Wrapping takes a time that grows with the square of a
/// word, and memory that grows with the text.
constexpr qsizetype kPortion = 4000;

QString SansBlancsFinaux(const QString &texte) {
    const auto dernier =
        std::find_if_not(texte.rbegin(), texte.rend(), [](QChar signe) { return signe.isSpace(); });
    return texte.left(std::distance(dernier, texte.rend()));
}

} // namespace

TexteImprime::TexteImprime(const QString &texte, const QFont &fonte, QPaintDevice &papier)
    : m_texte(SansBlancsFinaux(texte)), m_fonte(fonte), m_papier(papier) {}

/// Lays out line by line from a character on, until the visitor says false. It takes the line, its top from that of the
/// first one, and the character behind it.
template <class Visite>
void TexteImprime::ParcourirLignes(double points, qsizetype debut, int largeur, Visite visite) const {
    QFont fonte = m_fonte;
    fonte.setPointSizeF(points);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    double haut = 0;
    while (debut < m_texte.size()) {
        const QStringView portion = QStringView(m_texte).mid(debut, kPortion);
        const qsizetype finDeLigne = portion.indexOf(QLatin1Char('\n'));
        const QStringView alinea = finDeLigne < 0 ? portion : portion.left(finDeLigne);
        QTextLayout disposition(alinea.toString(), fonte, &m_papier);
        disposition.setTextOption(option);
        disposition.beginLayout();
        for (QTextLine ligne = disposition.createLine(); ligne.isValid(); ligne = disposition.createLine()) {
            ligne.setLineWidth(largeur);
        }
        disposition.endLayout();
        // The last line of a portion that ends inside a paragraph is not whole: the next portion begins with it.
        const bool entier = finDeLigne >= 0 || debut + alinea.size() == m_texte.size();
        const int nombre = entier ? disposition.lineCount() : std::max(disposition.lineCount() - 1, 1);
        qsizetype fin = debut;
        for (int i = 0; i < nombre; ++i) {
            const QTextLine ligne = disposition.lineAt(i);
            const bool saut = finDeLigne >= 0 && i == nombre - 1;
            fin = debut + ligne.textStart() + ligne.textLength() + (saut ? 1 : 0);
            if (!visite(ligne, haut, fin)) {
                return;
            }
            haut += ligne.height();
        }
        debut = fin;
    }
}

Morceau TexteImprime::Couper(double points, qsizetype debut, int largeur, int hauteur) const {
    Morceau morceau{.debut = debut, .fin = debut, .points = points};
    ParcourirLignes(points, debut, largeur, [&](const QTextLine &ligne, double haut, qsizetype fin) {
        const auto bas = static_cast<qint32>(std::ceil(haut + ligne.height()));
        if (bas > hauteur && morceau.fin > debut) {
            return false;
        }
        morceau.fin = fin;
        morceau.hauteur = bas;
        return true;
    });
    morceau.dernier = morceau.fin >= m_texte.size();
    return morceau;
}

void TexteImprime::Dessiner(QPainter &feuille, const Morceau &morceau, const Rect &place) const {
    ParcourirLignes(morceau.points, morceau.debut, place.right - place.left,
                    [&](const QTextLine &ligne, double haut, qsizetype fin) {
                        if (fin > morceau.fin) {
                            return false;
                        }
                        ligne.draw(&feuille, QPointF(place.left, place.top + haut));
                        return true;
                    });
}

} // namespace sheets
