#pragma once

#include "store/Textes.h"

#include <QString>
#include <QStringView>

#include <span>

namespace webimport {

/// End of a line in the fields of a recipe.
inline constexpr QStringView kFinDeLigne = u"\r\n";

/// Position of the first occurrence from a position on, with regard to case. Positions count from 1; 0 is
/// none. The empty text is found where the search begins, in an empty text nowhere.
qsizetype Position(QStringView texte, QStringView cherche, qsizetype depuis = 1);

/// The text from a position (from 1) to its end.
QStringView Extrait(QStringView texte, qsizetype position);

/// So many characters from a position on, fewer where the text ends before.
/// @throws ArgumentIncorrect for a negative length
QStringView Extrait(QStringView texte, qsizetype position, qsizetype longueur);

using store::Rogner;

/// Upper case character by character, so that positions stay: ß remains one character.
QString EnMajuscules(QStringView texte);

struct Remplacement {
    QStringView cherche; ///< not empty
    QStringView par;
};

/// Replaces every occurrence, in time proportional to the text. True if there was one.
bool Remplacer(QString &texte, const Remplacement &remplacement);

/// Finds the occurrences of a text from positions that only grow. No character is searched twice, where a new
/// search each time would go to the end of the text again and again for what is not there.
class Occurrences {
public:
    /// Both texts must outlive the object.
    Occurrences(QStringView texte, QStringView cherche) : m_texte(texte), m_cherche(cherche) {}

    /// As Position().
    qsizetype Depuis(qsizetype position);

private:
    QStringView m_texte;
    QStringView m_cherche;
    qsizetype m_trouvee = -1; ///< -1 before the first search
};

/// Replacements that run on a field at every line of a page. Having found nothing they rest until the field
/// is filled again; so a long field costs the page's lines nothing.
class Repasses {
public:
    /// @param remplacements must outlive the object
    explicit Repasses(std::span<const Remplacement> remplacements) : m_remplacements(remplacements) {}

    /// One line's run.
    /// @param rempli the line has filled the field
    void Passer(QString &champ, bool rempli);

private:
    std::span<const Remplacement> m_remplacements;
    int m_restantes = 0;
};

} // namespace webimport
