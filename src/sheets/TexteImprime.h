#pragma once

#include "Composition.h"

#include <QFont>
#include <QString>

class QPaintDevice;
class QPainter;

namespace sheets {

/// A long text on paper, wrapped at blanks, and inside a word that is longer than a line. However long the text is, a
/// page of it is laid out without looking further.
class TexteImprime {
public:
    /// The size of the font has no say. The paper outlives this. Blanks at the end of the text are left out: nothing is
    /// printed for them, and they take no page.
    TexteImprime(const QString &texte, const QFont &fonte, QPaintDevice &papier);

    /// The part that begins at a character and fits; see Metrique.
    Morceau Couper(double points, qsizetype debut, int largeur, int hauteur) const;

    /// Draws a part that was cut for the width of the rectangle, from its upper edge on.
    void Dessiner(QPainter &feuille, const Morceau &morceau, const Rect &place) const;

private:
    template <class Visite>
    void ParcourirLignes(double points, qsizetype debut, int largeur, Visite visite) const;

    QString m_texte;
    QFont m_fonte;
    QPaintDevice &m_papier;
};

} // namespace sheets
