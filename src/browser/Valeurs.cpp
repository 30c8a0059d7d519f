#include "Valeurs.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "TableDesValeurs.h"

#include "platform/controls/WhenPressed.h"
#include "platform/database/DatabaseError.h"
#include "platform/dialogs/ColourDialog.h"
#include "store/AccesBase.h"
#include "store/Textes.h"

#include <stdexcept>

namespace browser {

namespace {

using namespace platform::controls;

void EcrireFiche(const Frmmain &frm, const QVariant &contenu, store::ChampRecette champ) {
    store::ModifierChamp(frm.Volet.Numero(), champ, contenu);
}

/// What the column holds for a text: its number in the lookup table, which gets a row for it if need be, or the text.
QVariant ContenuPour(const Valeur &valeur, const QString &texte) {
    const store::Table *table = valeur.Table();
    if (table == nullptr) {
        return texte;
    }
    return store::RechercherNumero(texte, *table).value_or(0);
}

void ChoisirRecherche(Frmmain &frm, const Valeur &valeur) {
    const QString texte = valeur.Liste(frm).Text();
    if (texte == valeur.Bouton(frm).Caption() || store::SansBlancs(texte).isEmpty()) {
        return;
    }
    EcrireFiche(frm, ContenuPour(valeur, texte), valeur.champ);
    MontrerValeur(valeur.Bouton(frm), texte);
    FermerListe(frm, valeur.Liste(frm), valeur.Bouton(frm));
}

/// Says nothing of a failure: false where the book cannot be written, or no recipe is shown.
bool EcrireEnSilence(const Frmmain &frm, const QVariant &contenu, store::ChampRecette champ) {
    try {
        EcrireFiche(frm, contenu, champ);
        return true;
    } catch (const platform::database::DatabaseError &) {
    } catch (const std::out_of_range &) { // of Volet::Numero
    }
    return false;
}

/// Stores a value that the button shows already. After a failure the list stays open, and the button shows what was
/// chosen until the recipe is shown again.
void StockerEnSilence(Frmmain &frm, const Valeur &valeur, const QVariant &contenu) {
    if (EcrireEnSilence(frm, contenu, valeur.champ)) {
        FermerListe(frm, valeur.Liste(frm), valeur.Bouton(frm));
    }
}

void ChoisirVin(Frmmain &frm, const Valeur &valeur) {
    const QString texte = valeur.Liste(frm).Text();
    if (texte == valeur.Bouton(frm).Caption()) {
        return;
    }
    const QVariant contenu = ContenuPour(valeur, texte);
    MontrerValeur(valeur.Bouton(frm), texte);
    StockerEnSilence(frm, valeur, contenu);
}

/// The place of the row in the list is the code. It is stored whether it differs or not.
void ChoisirCode(Frmmain &frm, const Valeur &valeur) {
    const DropList &liste = valeur.Liste(frm);
    Ribbon &bouton = valeur.Bouton(frm);
    MontrerValeur(bouton, liste.Text());
    bouton.SetTag(QString::number(liste.ListIndex()));
    StockerEnSilence(frm, valeur, bouton.Tag());
}

void OuvrirValeur(Frmmain &frm, const Valeur &valeur) {
    frm.Scroll(0).update();
    CacherListeModif(frm);
    DropList &liste = valeur.Liste(frm);
    Ribbon &bouton = valeur.Bouton(frm);
    if (valeur.Table() != nullptr) {
        liste.Refresh();
    }
    const bool aOuverture = valeur.texte != TexteDeListe::AAffichage;
    if (aOuverture && liste.Count() > 0) {
        liste.SetText(bouton.Caption());
    }
    // Over an empty table, a list whose text was set before keeps the place of its last use.
    if (aOuverture || liste.Count() > 0) {
        liste.SetLeft(bouton.Left());
    }
    liste.SetTop(bouton.Top());
    liste.Open(&bouton);
}

/// After a failure the text stays in the box, and its next change tries again.
void EnregistrerSaisie(Frmmain &frm, const TexteLong &texte) {
    EcrireEnSilence(frm, frm.Saisie(texte.saisie).TextRTF(), texte.champ);
}

/// Black leaves the selection as it is.
void ColorerSelection(Frmmain &frm, RichTextBox &saisie) {
    if (saisie.SelLength() == 0) {
        return;
    }
    const auto couleur = platform::dialogs::ShowColor(&frm, Qt::black);
    if (couleur && *couleur != QColor(Qt::black)) {
        saisie.SetSelColor(*couleur);
    }
}

void BrancherValeur(Frmmain &frm, const Valeur &valeur) {
    DropList &liste = valeur.Liste(frm);
    if (const store::Table *table = valeur.Table()) {
        liste.SetSource([table] { return store::ChargerCombo(*table); });
    }
    const auto choisir = [&frm, &valeur] { ChoisirValeur(frm, valeur); };
    whenPressed(valeur.Bouton(frm), [&frm, &valeur] { OuvrirValeur(frm, valeur); });
    QObject::connect(&liste, &DropList::Click, &frm, choisir);
    if (valeur.entree == Entree::Confirme) {
        QObject::connect(&liste, &DropList::EnterPressed, &frm, choisir);
    }
    QObject::connect(&liste, &DropList::Escaped, &frm,
                     [&frm, &valeur] { FermerListe(frm, valeur.Liste(frm), valeur.Bouton(frm)); });
}

void BrancherSaisie(Frmmain &frm, const TexteLong &texte) {
    RichTextBox &saisie = frm.Saisie(texte.saisie);
    QObject::connect(&saisie, &RichTextBox::Change, &frm, [&frm, &texte] { EnregistrerSaisie(frm, texte); });
    QObject::connect(&saisie, &RichTextBox::Clicked, &frm, [&frm] { frm.Scroll(0).update(); });
    QObject::connect(&saisie, &RichTextBox::RightReleased, &frm,
                     [&frm, &saisie] { ColorerSelection(frm, saisie); });
}

} // namespace

void BrancherValeurs(Frmmain &frm) {
    for (const Valeur &valeur : kValeurs) {
        BrancherValeur(frm, valeur);
    }
    for (const TexteLong &texte : kTextesLongs) {
        BrancherSaisie(frm, texte);
    }
}

void ChoisirValeur(Frmmain &frm, const Valeur &valeur) {
    switch (valeur.forme) {
    case Forme::Recherche:
        ChoisirRecherche(frm, valeur);
        break;
    case Forme::Code:
        ChoisirCode(frm, valeur);
        break;
    case Forme::Vin:
        ChoisirVin(frm, valeur);
        break;
    }
}

void FermerListe(Frmmain &frm, DropList &liste, Ribbon &bouton) {
    if (liste.hasFocus()) {
        bouton.setFocus();
    }
    liste.hide();
    frm.Scroll(0).update();
}

void MontrerValeur(Ribbon &bouton, const QString &texte) {
    bouton.SetCaption(texte);
    bouton.setToolTip(texte);
}

} // namespace browser
