#include "Frmmain.h"
#include "TableDesVues.h"

#include "platform/database/DatabaseError.h"
#include "store/Livre.h"
#include "store/Textes.h"

namespace browser {

namespace {

using platform::controls::DuplicateKeyError;
using platform::controls::List;
using platform::database::DatabaseError;

// In LFilms every row is a recipe.
constexpr int kIconeRecette = 1;

// The key with its blank behind the letter goes into the query as it is.
QString NumeroChoisi(const Frmmain &frm) {
    return frm.Liste.Key(frm.Liste.SelectedIndex()).mid(1);
}

void AjouterRecette(List::Loading &lignes, platform::database::Recordset &recette) {
    lignes.Add(store::CleDeListe(recette.Fields(0).Number()), recette.Fields(1).Text(), kIconeRecette);
}

/// Adds the recipe of an ingredient line; a damaged line is passed over, and so is a recipe that has the ingredient
/// on two lines and is in the list already.
void AjouterSiLisible(List::Loading &lignes, platform::database::Database &base, const QString &numero) {
    try {
        auto recette = base.OpenRecordset(QStringLiteral("SELECT * From Cocktails where Numero = ") + numero +
                                          QStringLiteral(" order by Numero desc"));
        if (recette.RecordCount() > 0) {
            AjouterRecette(lignes, recette);
        }
    } catch (const DuplicateKeyError &) {
    } catch (const DatabaseError &) {
    }
}

} // namespace

void ChargerRecettesVue(Frmmain &frm, int vue) {
    const Vue *choisie = VueNumero(vue);
    if (vue == kVueIngredients) {
        ChargerRecettesIngredient(frm);
    } else if (choisie != nullptr && choisie->champ) {
        ChargerRecettesCritere(frm, *choisie->champ);
    }
}

void ChargerRecettesCritere(Frmmain &frm, store::ChampRecette champ) {
    List::Loading lignes(frm.LFilms);
    auto base = store::OuvrirLivre();
    const QStringView nom = store::Description(champ).nom;
    auto recettes = base.OpenRecordset(u"SELECT * From Cocktails where " + nom + u" = " + NumeroChoisi(frm) +
                                       u" order by " + nom + u" desc");
    for (; !recettes.AtEnd(); recettes.MoveNext()) {
        AjouterRecette(lignes, recettes);
    }
    if (lignes.Count() > 0) {
        frm.LFilms.SetTag(QStringLiteral("1"));
    }
}

void ChargerRecettesIngredient(Frmmain &frm) {
    List::Loading lignes(frm.LFilms);
    try {
        auto base = store::OuvrirLivre();
        auto ingre = base.OpenRecordset(QStringLiteral("SELECT * From Ingre where NIngre = ") +
                                        NumeroChoisi(frm) + QStringLiteral(" order by NIngre desc"));
        for (; !ingre.AtEnd(); ingre.MoveNext()) {
            AjouterSiLisible(lignes, base, ingre.Fields(0).Text());
        }
    } catch (const DatabaseError &) {
        // What could be read stays in the list.
    }
}

} // namespace browser
