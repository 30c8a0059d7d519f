#include "Valeurs.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "TableDesValeurs.h"

#include "platform/dialogs/ColourDialog.h"
#include "store/AccesBase.h"
#include "store/Textes.h"

namespace browser {

namespace {

using namespace platform::controls;

void EcrireFiche(const Frmmain &frm, QVariant contenu, store::ChampRecette champ) {
    store::ModifierChamp(kTableRecettes, frm.Volet.Numero(), contenu, kCleRecette, store::Position(champ));
}

/// What the column holds for a text: its number in the lookup table, which gets a row for it if need be, or the text.
QVariant ContenuPour(const Valeur &valeur, const QString &texte) {
    const store::Table *table = valeur.Table();
    if (table == nullptr) {
        return texte;
    }
    qint64 numero = 0;
    store::RechercherNumero(texte, numero, table->nom.toString(), table->Cle().toString());
    return numero;
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

/// Stores a value that the button shows already; a failure keeps the list open and says nothing.
void StockerEnSilence(Frmmain &frm, const Valeur &valeur, const QVariant &contenu) {
    try {
        EcrireFiche(frm, contenu, valeur.champ);
        FermerListe(frm, valeur.Liste(frm), valeur.Bouton(frm));
    } catch (const std::exception &) {
        // The button shows what was chosen, until the recipe is shown again.
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
    const Ribbon &bouton = valeur.Bouton(frm);
    const bool aOuverture = valeur.texte != Texte::AAffichage;
    if (aOuverture && liste.Count() > 0) {
        liste.SetText(bouton.Caption());
    }
    // Over an empty table, a list whose text was set before keeps the place of its last use.
    if (aOuverture || liste.Count() > 0) {
        liste.SetLeft(bouton.Left());
    }
    liste.SetTop(bouton.Top());
    liste.Open();
}

void EnregistrerSaisie(Frmmain &frm, const TexteLong &texte) {
    try {
        EcrireFiche(frm, frm.Saisie(texte.saisie).TextRTF(), texte.champ);
    } catch (const std::exception &) {
        // The text stays in the box, and its next change tries again.
    }
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
    Ribbon &bouton = valeur.Bouton(frm);
    DropList &liste = valeur.Liste(frm);
    const auto choisir = [&frm, &valeur] { ChoisirValeur(frm, valeur); };
    BrancherPression(frm, bouton, [&frm, &valeur] { OuvrirValeur(frm, valeur); });
    QObject::connect(&liste, &DropList::Click, &frm, choisir);
    if (valeur.entree == Entree::Confirme) {
        QObject::connect(&liste, &DropList::EnterPressed, &frm, choisir);
    }
    QObject::connect(&liste, &DropList::Escaped, &frm,
                     [&frm, &liste, &bouton] { FermerListe(frm, liste, bouton); });
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

void BrancherPression(Frmmain &frm, Ribbon &bouton, const std::function<void()> &ouvrir) {
    QObject::connect(&bouton, &Ribbon::toggled, &frm, [&bouton, ouvrir](bool presse) {
        if (presse) {
            ouvrir();
            bouton.SetValue(false);
        }
    });
}

} // namespace browser
