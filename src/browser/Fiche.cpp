#include "Fiche.h"

#include "Frmmain.h"
#include "TableDesValeurs.h"
#include "Valeurs.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/CheminPhoto.h"
#include "platform/database/DatabaseError.h"
#include "platform/images/LoadPicture.h"
#include "store/AccesBase.h"
#include "store/Livre.h"
#include "store/Textes.h"

#include <QSignalBlocker>
#include <optional>
#include <stdexcept>

namespace browser {

namespace {

using namespace platform::controls;
using platform::database::Database;
using platform::database::DatabaseError;
using platform::database::Field;
using platform::database::Recordset;

QString Pointilles() {
    return store::LignePointillee.toString();
}

/// The text of the row of a lookup table that a reference names; nothing when there is no such row.
std::optional<QString> TexteDe(Database &base, const store::Table &table, const Field &reference,
                               QStringView sens) {
    if (reference.IsNull()) {
        return {};
    }
    auto fiche = base.OpenRecordset(u"SELECT * From " + table.nom + u" where " + table.Cle() + u" = " +
                                    reference.Text() + u" order by " + table.Texte() + u' ' + sens);
    return fiche.RecordCount() > 0 ? std::optional(fiche.Fields(1).Text()) : std::nullopt;
}

QString OuPointilles(const QString &texte) {
    return store::SansBlancs(texte).isEmpty() ? Pointilles() : texte;
}

void AfficherTexteDe(Ribbon &bouton, const QString &texte) {
    bouton.SetCaption(OuPointilles(texte));
    bouton.setToolTip(store::SansBlancs(texte));
}

void AfficherClasse(Ribbon &bouton, std::span<const QStringView> vocabulaire, qint64 code) {
    if (code < 0 || code >= static_cast<qint64>(vocabulaire.size())) {
        throw std::out_of_range("L'indice n'appartient pas à la sélection.");
    }
    bouton.SetTag(QString::number(code));
    MontrerValeur(bouton, vocabulaire[static_cast<std::size_t>(code)].toString());
}

void AfficherValeur(Frmmain &frm, Database &base, Recordset &recette, const Valeur &valeur) {
    Ribbon &bouton = valeur.Bouton(frm);
    const Field champ = recette.Fields(store::Position(valeur.champ));
    if (valeur.forme == Forme::Code) {
        AfficherClasse(bouton, valeur.vocabulaire, champ.Number());
    } else if (const store::Table *table = valeur.Table()) {
        AfficherTexteDe(bouton, TexteDe(base, *table, champ, u"asc").value_or(QString()));
    } else {
        AfficherTexteDe(bouton, champ.Text());
    }
}

/// The frame without a picture, and what it says.
void MontrerCadreVide(Frmmain &frm, const QString &texte) {
    frm.Photo.hide();
    frm.Photo.SetPicture({});
    frm.CadrePhoto.SetCaption(texte);
    frm.CadrePhoto.SetTag({});
}

/// A null picture is one that cannot be shown; the recipe opens without it.
void MontrerPhoto(Frmmain &frm, const QString &chemin, const QImage &photo) {
    if (photo.isNull()) {
        MontrerCadreVide(frm, QStringLiteral("Pas de photo"));
        return;
    }
    frm.CadrePhoto.SetCaption({});
    frm.CadrePhoto.SetTag(chemin);
    frm.ImageTemp.SetPicture(photo);
    pictures::MontrerPhoto({frm.CadrePhoto.Width(), frm.CadrePhoto.Height()}, frm.Photo, photo);
}

void AfficherPhoto(Frmmain &frm, const QString &valeur) {
    frm.LecteurPhoto.Oublier();
    const QString chemin = pictures::CheminPhoto(valeur);
    if (chemin.isEmpty()) {
        MontrerPhoto(frm, {}, {});
    } else if (!frm.LecteurPhoto.Lire(
                   chemin, [&frm, chemin](const QImage &photo) { MontrerPhoto(frm, chemin, photo); })) {
        MontrerCadreVide(frm, QStringLiteral("Lecture de la photo ..."));
    }
}

void AfficherTexte(RichTextBox &saisie, const QString &texte) {
    saisie.SetTextRTF(store::SansBlancs(texte));
    saisie.SetTag(store::SansBlancs(texte));
}

void AfficherComplements(Frmmain &frm, const QString &texte) {
    RichTextBox &saisie = frm.Saisie(kComplements.saisie);
    AfficherTexte(saisie, texte);
    if (store::SansBlancs(saisie.toPlainText()).isEmpty()) {
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
void AfficherColonne(Database &base, Ribbon &bouton, const store::Table &table, const Field &reference,
                     Affichage afficher) {
    try {
        afficher(bouton, TexteDe(base, table, reference, u"desc"));
    } catch (const DatabaseError &) {
        bouton.show();
    }
}

void AfficherLigne(Frmmain &frm, Database &base, Recordset &lignes, int i) {
    AfficherColonne(base, frm.Ingre(i), store::kIngredient, lignes.Fields(u"NIngre"), AfficherIngredient);
    AfficherColonne(base, frm.Quantite(i), store::kQuantite, lignes.Fields(u"NQuantite"), AfficherPartie);
    AfficherColonne(base, frm.Mesure(i), store::kMesure, lignes.Fields(u"NMesure"), AfficherPartie);
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

bool ChargerRecette(Frmmain &frm, qint64 numero) {
    AfficherIngredients(frm, numero);
    frm.Scroll(0).ScrollToTop();
    frm.Scroll(0).SetScrollableHeight(kMargeFiche);
    PlacerFiche(frm);
    auto base = store::OuvrirLivre();
    auto recette = base.OpenRecordset(QStringLiteral("SELECT * From Cocktails where Numero = ") +
                                      QString::number(numero) + QStringLiteral(" order by Recette asc"));
    if (recette.RecordCount() == 0) {
        return false;
    }
    const auto texte = [&recette](store::ChampRecette champ) {
        return recette.Fields(store::Position(champ)).Text();
    };
    for (const Valeur &valeur : kValeurs) {
        AfficherValeur(frm, base, recette, valeur);
    }
    AfficherPhoto(frm, texte(store::ChampRecette::Photo));
    AfficherTexte(frm.Saisie(kPreparation.saisie), texte(kPreparation.champ));
    AfficherComplements(frm, texte(kComplements.champ));
    frm.Scroll(0).SetScrollableHeight(frm.Saisie(kComplements.saisie).Bottom() + kMargeFiche);
    return true;
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
    const auto rafraichir = [](DropList &liste) {
        liste.Refresh();
        liste.SetText({});
    };
    for (DropList *liste : {&frm.LMesure, &frm.LQuantite, &frm.LIngre}) {
        rafraichir(*liste);
    }
    for (const Valeur &valeur : kValeurs) {
        DropList &liste = valeur.Liste(frm);
        if (valeur.Table() != nullptr) {
            rafraichir(liste);
        }
        if (valeur.texte != TexteDeListe::AOuverture) {
            liste.SetText(valeur.Bouton(frm).Caption());
        }
    }
}

void CacherListeModif(Frmmain &frm) {
    for (DropList *liste : frm.ListesModif()) {
        liste->hide();
    }
}

} // namespace browser
