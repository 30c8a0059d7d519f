#include "Ingredients.h"

#include "Nombres.h"

#include <algorithm>

namespace webimport {

namespace {

/// Of the tags that are replaced, with the blank before them.
constexpr qsizetype kPlusLongueBalise = 5;

} // namespace

void DecouperIngredient(QStringView piece, LigneIngredient &ligne) {
    const auto *const phrase =
        std::find_if(PhrasesMesure.begin(), PhrasesMesure.end(),
                     [piece](QStringView candidate) { return piece.contains(candidate); });
    const bool trouvee = phrase != PhrasesMesure.end();
    const qsizetype fin = trouvee ? Position(piece, *phrase) + phrase->size() : 1;
    const QStringView tete = trouvee ? piece.left(fin - 1) : piece;
    const qsizetype blanc = Position(tete, u" ");
    const QStringView nombre = tete.left(blanc);
    const QStringView suite = Extrait(tete, blanc + 1);

    if (!trouvee) {
        const bool compte = blanc > 0 && EstNumerique(nombre);
        ligne = {compte ? nombre.toString() : QString(), {}, (compte ? suite : piece).toString()};
        return;
    }
    ligne.Ingredient = Extrait(piece, fin).toString();
    if (blanc == 0) {
        ligne.Mesure = tete.toString();
        ligne.Quantite.clear();
    } else if (EstNumerique(nombre)) {
        ligne.Mesure = suite.toString();
        ligne.Quantite = nombre.toString();
    } else {
        ligne.Mesure.clear();
        if (!EstNumerique(tete)) {
            ligne.Quantite = tete.toString();
        }
    }
}

void RemplirLignes(QStringView texte, std::vector<LigneIngredient> &lignes) {
    LigneIngredient lue;
    std::size_t n = 0;
    for (qsizetype p = Position(texte, u"-"); p > 0; ++n) {
        const qsizetype q = Position(texte, u"-", p + 1);
        QString piece = Rogner(q == 0 ? Extrait(texte, p + 1) : Extrait(texte, p + 1, q - p - 1)).toString();
        Remplacer(piece, {kFinDeLigne, u""});
        DecouperIngredient(piece, lue);
        lignes.resize(std::max(lignes.size(), n + 1));
        lignes[n] = lue;
        p = q;
    }
}

void TexteIngredients::Ajouter(QStringView texte) {
    m_texte += texte;
}

void TexteIngredients::RemplacerPar(const QString &texte) {
    m_lignes = Lignes();
    m_aDecouper = 0;
    m_texte = texte;
    m_traite = 0;
}

void TexteIngredients::Rogner() {
    const QStringView rogne = store::Rogner(m_texte);
    const qsizetype devant = rogne.data() - m_texte.constData();
    m_texte.truncate(devant + rogne.size());
    // A long text is moved only where there is something to take away, which its replaced part has no more.
    if (devant > 0) {
        m_texte.remove(0, devant);
    }
    m_traite = std::clamp(m_traite - devant, qsizetype(0), m_texte.size());
}

void TexteIngredients::Fermer(std::span<const Remplacement> remplacements) {
    const qsizetype debut = std::max(qsizetype(0), m_traite - kPlusLongueBalise);
    QString nouveau = m_texte.sliced(debut);
    for (const Remplacement &remplacement : remplacements) {
        Remplacer(nouveau, remplacement);
    }
    m_texte.truncate(debut);
    m_texte += nouveau;
    m_traite = m_texte.size();
    m_aDecouper = m_texte.size();
}

std::vector<LigneIngredient> TexteIngredients::Lignes() const {
    std::vector<LigneIngredient> lignes = m_lignes;
    RemplirLignes(QStringView(m_texte).left(m_aDecouper), lignes);
    return lignes;
}

} // namespace webimport
