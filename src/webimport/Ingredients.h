#pragma once

#include "Positions.h"

#include <QString>
#include <QStringView>

#include <array>
#include <span>
#include <vector>

namespace webimport {

/// The phrases of measure at which an ingredient's text is cut, in the order in which they are tried: a
/// longer form stands before the shorter one in it, and whether a blank ends it is part of the phrase.
inline constexpr std::array<QStringView, 39> PhrasesMesure{
    u"cuil. à soupe d' ",
    u"cuil. à soupe d'",
    u"petite boite de ",
    u"cuillérée à café ",
    u"cuil. à café ",
    u"cuillers à ",
    u"verres de ",
    u"pincée de ",
    u"quelques ",
    u"un peu d' ",
    u"un peu ",
    u"sachet de thé ",
    u"cube de ",
    u"kg. de ",
    u"verre à ",
    u"feuilles de ",
    u"feuille de ",
    u"cui. à soupe de ",
    u"cuil. à soupe de ",
    u"gousses d'",
    u"tranches de ",
    u"douzaines de ",
    u"cuil. à soupe",
    u"cl. de ",
    u"cl. d'",
    u"cl. ",
    u"cuil.à ",
    u"gr. de ",
    u"g d'",
    u"g de ",
    u"gr.de",
    u"gr. ",
    u"dl. de ",
    u"dl. d' ",
    u"dl. d'",
    u"bouquet de",
    u"dl. ",
    u"l. de",
    u"l. ",
};

/// A row of ingredients. The texts keep the blanks that the cutting leaves at their ends.
struct LigneIngredient {
    QString Quantite;
    QString Mesure;
    QString Ingredient;

    friend bool operator==(const LigneIngredient &, const LigneIngredient &) = default;
};

/// Cuts the text of one ingredient, such as "2 cuil. à soupe d'huile". The quantity keeps what it held where
/// the text up to the end of the phrase is one number.
void DecouperIngredient(QStringView piece, LigneIngredient &ligne);

/// Cuts a text with a hyphen before each ingredient into rows, over those that are there. Every hyphen cuts,
/// also one inside a word.
void RemplirLignes(QStringView texte, std::vector<LigneIngredient> &lignes);

/// The text of a page's ingredient section as it is assembled. A page may close the section several times,
/// each time over all that was collected; the work is done once for what is new, so that the time stays
/// proportional to the page's length.
class TexteIngredients {
public:
    void Ajouter(QStringView texte);
    /// Puts a text in the place of all that was collected.
    void RemplacerPar(const QString &texte);
    /// Takes away the blanks around all that was collected.
    void Rogner();
    /// Turns the tags into hyphens, and makes rows of the text.
    void Fermer(std::span<const Remplacement> remplacements);

    std::vector<LigneIngredient> Lignes() const;

private:
    QString m_texte;
    /// So much of the text has its tags replaced.
    qsizetype m_traite = 0;
    /// So much of the text was closed, and its rows are not among m_lignes.
    qsizetype m_aDecouper = 0;
    /// The rows of texts that were replaced.
    std::vector<LigneIngredient> m_lignes;
};

} // namespace webimport
