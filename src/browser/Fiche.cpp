#include "Fiche.h"

#include "Frmmain.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/CheminPhoto.h"
#include "platform/database/DatabaseError.h"
#include "platform/images/LoadPicture.h"
#include "store/AccesBase.h"
#include "store/Livre.h"
#include "store/Textes.h"
#include "store/Vocabulaires.h"

#include <QSignalBlocker>
#include <array>
#include <optional>
#include <stdexcept>

namespace browser {

namespace {

using namespace platform::controls;
using platform::database::Database;
using platform::database::DatabaseError;
using platform::database::Field;
using platform::database::Recordset;

/// A value of a recipe that stands in a lookup table: the query up to the number, its tail, the recipe's
/// column and the button.
struct Valeur {
    QStringView requete, fin, colonne;
    int data = 0;
};

constexpr std::array kValeurs{
    Valeur{u"SELECT * From Categorie where NCategorie = ", u" order by Categorie asc", u"NCategorie", 6},
    Valeur{u"SELECT * From DureeReal where NDureeReal= ", u" order by DureeReal asc", u"NDureeReal", 5},
    Valeur{u"SELECT * From Verre where NVerre = ", u" order by Verre asc", u"Nverre", 0},
    Valeur{u"SELECT * From Realisation where NRealisation = ", u" order by Realisation asc", u"Nreal", 1},
};
constexpr Valeur kVin{u"SELECT * From VIN where NVIN = ", u" order by VIN asc", u"Teneur", 4};

QString Pointilles() {
    return store::LignePointillee.toString();
}

/// The stored text of the row that a query and a reference give; nothing when there is no such row.
std::optional<QString> TexteDe(Database &base, QStringView requete, const Field &reference, QStringView fin) {
    if (reference.IsNull()) {
        return {};
    }
    auto fiche = base.OpenRecordset(requete + reference.Text() + fin);
    return fiche.RecordCount() > 0 ? std::optional(fiche.Fields(1).Text()) : std::nullopt;
}

QString OuPointilles(const QString &texte) {
    return store::SansBlancs(texte).isEmpty() ? Pointilles() : texte;
}

void AfficherValeur(Frmmain &frm, Database &base, Recordset &recette, const Valeur &valeur) {
    const auto texte = TexteDe(base, valeur.requete, recette.Fields(valeur.colonne), valeur.fin);
    frm.Data(valeur.data).SetCaption(OuPointilles(texte.value_or(QString())));
}

void AfficherClasse(Frmmain &frm, int data, std::span<const QStringView> vocabulaire, qint64 code) {
    if (code < 0 || code >= static_cast<qint64>(vocabulaire.size())) {
        throw std::out_of_range("L'indice n'appartient pas à la sélection.");
    }
    frm.Data(data).SetTag(QString::number(code));
    frm.Data(data).SetCaption(vocabulaire[static_cast<std::size_t>(code)].toString());
}

/// The picture in a file; a null one where the file holds none that can be shown, so that the recipe still
/// opens.
QImage PhotoLisible(const QString &chemin) {
    try {
        return chemin.isEmpty() ? QImage() : platform::images::LoadPicture(chemin);
    } catch (const platform::images::PictureError &) {
        return {};
    }
}

void AfficherPhoto(Frmmain &frm, const QString &valeur) {
    const QString chemin = pictures::CheminPhoto(valeur);
    const QImage photo = PhotoLisible(chemin);
    if (photo.isNull()) {
        frm.Photo.hide();
        frm.Photo.SetPicture({});
        frm.CadrePhoto.SetCaption(QStringLiteral("Pas de photo"));
        frm.CadrePhoto.SetTag({});
        return;
    }
    frm.CadrePhoto.SetCaption({});
    frm.CadrePhoto.SetTag(chemin);
    frm.ImageTemp.SetPicture(photo);
    pictures::MontrerPhoto({frm.CadrePhoto.Width(), frm.CadrePhoto.Height()}, frm.Photo, photo);
}

void AfficherTexte(RichTextBox &saisie, const QString &texte) {
    saisie.SetTextRTF(store::SansBlancs(texte));
    saisie.SetTag(store::SansBlancs(texte));
}

void AfficherComplements(Frmmain &frm, const QString &texte) {
    RichTextBox &saisie = frm.Saisie(1);
    AfficherTexte(saisie, texte);
    if (store::SansBlancs(saisie.Text()).isEmpty()) {
        // What the cook types into empty remarks comes out white. It is no change of the recipe.
        const QSignalBlocker silence(&saisie);
        saisie.Select(0, 1);
        saisie.SetSelColor(Qt::white);
    }
}

// The markup that an import leaves in the texts of ingredients.
QString SansGras(QString texte) {
    return texte.remove(QStringLiteral("<B>")).remove(QStringLiteral("</B>"));
}

void AfficherIngredient(Ribbon &bouton, const std::optional<QString> &texte) {
    const QString sansGras = SansGras(texte ? OuPointilles(*texte) : Pointilles());
    bouton.SetCaption(store::SansBlancs(sansGras));
    if (texte) {
        bouton.setToolTip(sansGras);
        bouton.SetUnderline(bouton.Caption().endsWith(QLatin1Char(':')));
    }
    bouton.show();
}

void AfficherPartie(Ribbon &bouton, const std::optional<QString> &texte) {
    bouton.SetCaption(OuPointilles(texte.value_or(QString())));
    bouton.setToolTip(texte.value_or(QString()));
    bouton.show();
}

/// Shows one column of a line. A damaged reference leaves a gap in its column only.
template <class Affichage>
void AfficherColonne(Database &base, Ribbon &bouton, QStringView requete, const Field &reference,
                     QStringView fin, Affichage afficher) {
    try {
        afficher(bouton, TexteDe(base, requete, reference, fin));
    } catch (const DatabaseError &) {
        bouton.show();
    }
}

void AfficherLigne(Frmmain &frm, Database &base, Recordset &lignes, int i) {
    AfficherColonne(base, frm.Ingre(i), u"SELECT * From Ingredient where NIngredient = ",
                    lignes.Fields(u"NIngre"), u" order by Ingredient desc", AfficherIngredient);
    AfficherColonne(base, frm.Quantite(i), u"SELECT * From Quantite where NQuantite = ",
                    lignes.Fields(u"NQuantite"), u" order by Quantite desc", AfficherPartie);
    AfficherColonne(base, frm.Mesure(i), u"SELECT * From Mesure where NMesure = ", lignes.Fields(u"NMesure"),
                    u" order by Mesure desc", AfficherPartie);
}

void ViderLignes(Frmmain &frm) {
    for (Frmmain::Array<Ribbon> *colonne : {&frm.Ingre, &frm.Mesure, &frm.Quantite}) {
        while (colonne->Count() > 1) {
            colonne->UnloadLast();
        }
        (*colonne)(0).SetCaption({});
        (*colonne)(0).setToolTip({});
        (*colonne)(0).SetUnderline(false);
    }
}

/// Reads the lines of a recipe into rows of buttons; gives their number.
int RemplirLignes(Frmmain &frm, qint64 numero) {
    auto base = store::OuvrirLivre();
    auto lignes = base.OpenRecordset(QStringLiteral("SELECT * From Ingre where Numero = ") +
                                     QString::number(numero) + QStringLiteral(" order by Numero desc"));
    int i = 0;
    for (; !lignes.AtEnd(); lignes.MoveNext(), ++i) {
        if (i > 0) {
            frm.ChargerLigne();
        }
        AfficherLigne(frm, base, lignes, i);
    }
    return i;
}

/// The dotted row behind the lines, which the cook presses to add one.
void AjouterLignePointillee(Frmmain &frm, int i) {
    frm.ChargerLigne();
    for (Ribbon *bouton : {&frm.Quantite(i), &frm.Mesure(i), &frm.Ingre(i)}) {
        bouton->SetCaption(Pointilles());
        bouton->show();
    }
}

} // namespace

void ChargerRecette(Frmmain &frm, qint64 numero) {
    AfficherIngredients(frm, numero);
    frm.Scroll(0).ScrollToTop();
    frm.Scroll(0).SetScrollableHeight(kMargeFiche);
    PlacerFiche(frm);
    auto base = store::OuvrirLivre();
    auto recette = base.OpenRecordset(QStringLiteral("SELECT * From Cocktails where Numero = ") +
                                      QString::number(numero) + QStringLiteral(" order by Recette asc"));
    if (recette.RecordCount() == 0) {
        return;
    }
    for (const Valeur &valeur : kValeurs) {
        AfficherValeur(frm, base, recette, valeur);
    }
    AfficherPhoto(frm, recette.Fields(u"Photo").Text());
    AfficherTexte(frm.Saisie(0), recette.Fields(u"preparation").Text());
    AfficherComplements(frm, recette.Fields(u"Deco").Text());
    AfficherClasse(frm, 2, store::Cout, recette.Fields(u"Cout").Number());
    AfficherClasse(frm, 3, store::Difficulte, recette.Fields(u"difficulte").Number());
    AfficherValeur(frm, base, recette, kVin);
    frm.Scroll(0).SetScrollableHeight(frm.Saisie(1).Bottom() + kMargeFiche);
}

void AfficherIngredients(Frmmain &frm, qint64 numero) {
    ViderLignes(frm);
    int lignes = 0;
    try {
        lignes = RemplirLignes(frm, numero);
    } catch (const DatabaseError &) {
        // The recipe is shown without its lines; what fails again, fails where the recipe itself is read.
    }
    if (lignes > 0) {
        AjouterLignePointillee(frm, lignes);
    }
    PlacerFiche(frm);
}

void ChargerLesListesCombo(Frmmain &frm) {
    store::ChargerCombo(frm.LCategorie, QStringLiteral("Categorie"), QStringLiteral("Categorie"));
    frm.LCategorie.SetText(frm.Data(6).Caption());
    store::ChargerCombo(frm.LVerre, QStringLiteral("Verre"), QStringLiteral("Verre"));
    frm.LVerre.SetText(frm.Data(0).Caption());
    store::ChargerCombo(frm.LMateriel, QStringLiteral("Realisation"), QStringLiteral("Realisation"));
    frm.LMateriel.SetText(frm.Data(1).Caption());
    store::ChargerCombo(frm.LMesure, QStringLiteral("Mesure"), QStringLiteral("Mesure"));
    store::ChargerCombo(frm.LQuantite, QStringLiteral("Quantite"), QStringLiteral("Quantite"));
    store::ChargerCombo(frm.LIngre, QStringLiteral("Ingredient"), QStringLiteral("Ingredient"));
    store::ChargerCombo(frm.LDureeReal, QStringLiteral("DureeReal"), QStringLiteral("DureeReal"));
    store::ChargerCombo(frm.LTeneur, QStringLiteral("Vin"), QStringLiteral("vin"));
}

void CacherListeModif(Frmmain &frm) {
    for (DropList *liste : frm.ListesModif()) {
        liste->hide();
    }
}

void QuitterFiche(Frmmain &frm) {
    CacherListeModif(frm);
    frm.Scroll(0).hide();
    frm.Outils(2).hide();
    frm.LBtn(2).hide();
}

} // namespace browser
