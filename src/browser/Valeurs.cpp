#include "Valeurs.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "Vues.h"

#include "platform/controls/WhenPressed.h"
#include "platform/database/DatabaseError.h"
#include "platform/dialogs/ColourDialog.h"
#include "store/AccesBase.h"
#include "store/Textes.h"

#include <array>
#include <stdexcept>

namespace browser {

namespace {

using namespace platform::controls;

/// How a choice is stored: as the number of a row of a lookup table, as the row's place in a fixed vocabulary, or as
/// the number of a wine advice, which is shown before it is stored.
enum class Forme { Recherche, Code, Vin };

/// When the list takes the text of its button: when it opens, or when the recipe is shown.
enum class Texte { AOuverture, AAffichage };

/// What Enter in the edit box does.
enum class Entree { Confirme, SansEffet };

/// The list of a value button: its table and key, the position in Cocktails that it writes.
struct ListeDeValeur {
    DropList Frmmain::*liste = nullptr;
    QStringView table, cle;
    int position = 0;
    Forme forme = Forme::Recherche;
    Texte texte = Texte::AOuverture;
    Entree entree = Entree::Confirme;
};

/// In the order of Data.
constexpr std::array kValeurs{
    ListeDeValeur{&Frmmain::LVerre, u"Verre", u"NVerre", 3, Forme::Recherche, Texte::AAffichage,
                  Entree::Confirme},
    ListeDeValeur{&Frmmain::LMateriel, u"Realisation", u"NRealisation", 5, Forme::Recherche,
                  Texte::AAffichage, Entree::Confirme},
    ListeDeValeur{&Frmmain::LCout, u"", u"", 8, Forme::Code, Texte::AOuverture, Entree::SansEffet},
    ListeDeValeur{&Frmmain::LDiff, u"", u"", 9, Forme::Code, Texte::AOuverture, Entree::SansEffet},
    ListeDeValeur{&Frmmain::LTeneur, u"Vin", u"NVin", 10, Forme::Vin, Texte::AOuverture, Entree::Confirme},
    ListeDeValeur{&Frmmain::LDureeReal, u"DureeReal", u"NDureeReal", 11, Forme::Recherche, Texte::AOuverture,
                  Entree::Confirme},
    ListeDeValeur{&Frmmain::LCategorie, u"Categorie", u"NCategorie", 2, Forme::Recherche, Texte::AOuverture,
                  Entree::Confirme},
};

/// Positions of the two texts in Cocktails: the method, the remarks.
constexpr std::array kPositionsSaisie{6, 7};

const ListeDeValeur &ValeurDe(int index) {
    return kValeurs.at(static_cast<std::size_t>(index));
}

void EcrireFiche(const Frmmain &frm, QVariant valeur, int position) {
    store::ModifierChamp(kTableRecettes, NumeroDeLaFiche(frm), valeur, kCleRecette, position);
}

/// Number of the text in the table of the value, which gets a row for it if need be.
qint64 Rechercher(const ListeDeValeur &valeur, const QString &texte) {
    qint64 numero = 0;
    store::RechercherNumero(texte, numero, valeur.table.toString(), valeur.cle.toString());
    return numero;
}

void ChoisirRecherche(Frmmain &frm, const ListeDeValeur &valeur, Ribbon &bouton) {
    DropList &liste = frm.*valeur.liste;
    const QString texte = liste.Text();
    if (texte == bouton.Caption() || store::SansBlancs(texte).isEmpty()) {
        return;
    }
    EcrireFiche(frm, Rechercher(valeur, texte), valeur.position);
    MontrerValeur(bouton, texte);
    FermerListe(frm, liste, bouton);
}

/// Says nothing of a failure: false where the book cannot be written, or no recipe is selected.
bool EcrireEnSilence(const Frmmain &frm, const QVariant &valeur, int position) {
    try {
        EcrireFiche(frm, valeur, position);
        return true;
    } catch (const platform::database::DatabaseError &) {
    } catch (const std::out_of_range &) { // of NumeroDeLaFiche
    }
    return false;
}

/// Stores a value that the button shows already. After a failure the list stays open, and the button shows what was
/// chosen until the recipe is shown again.
void StockerEnSilence(Frmmain &frm, const ListeDeValeur &valeur, Ribbon &bouton, const QVariant &choix) {
    if (EcrireEnSilence(frm, choix, valeur.position)) {
        FermerListe(frm, frm.*valeur.liste, bouton);
    }
}

void ChoisirVin(Frmmain &frm, const ListeDeValeur &valeur, Ribbon &bouton) {
    const QString texte = (frm.*valeur.liste).Text();
    if (texte == bouton.Caption()) {
        return;
    }
    const qint64 numero = Rechercher(valeur, texte);
    MontrerValeur(bouton, texte);
    StockerEnSilence(frm, valeur, bouton, numero);
}

/// The place of the row in the list is the code. It is stored whether it differs or not.
void ChoisirCode(Frmmain &frm, const ListeDeValeur &valeur, Ribbon &bouton) {
    const DropList &liste = frm.*valeur.liste;
    MontrerValeur(bouton, liste.Text());
    bouton.SetTag(QString::number(liste.ListIndex()));
    StockerEnSilence(frm, valeur, bouton, bouton.Tag());
}

void OuvrirValeur(Frmmain &frm, int index) {
    frm.Scroll(0).update();
    CacherListeModif(frm);
    const ListeDeValeur &valeur = ValeurDe(index);
    DropList &liste = frm.*valeur.liste;
    const Ribbon &bouton = frm.Data(index);
    if (valeur.texte == Texte::AOuverture) {
        if (liste.Count() > 0) {
            liste.SetText(bouton.Caption());
        }
        liste.SetLeft(bouton.Left());
    } else if (liste.Count() > 0) {
        // Over an empty table these two keep the place of their last use.
        liste.SetLeft(bouton.Left());
    }
    liste.SetTop(bouton.Top());
    liste.Open();
}

/// After a failure the text stays in the box, and its next change tries again.
void EnregistrerSaisie(Frmmain &frm, int index) {
    EcrireEnSilence(frm, frm.Saisie(index).TextRTF(), kPositionsSaisie.at(static_cast<std::size_t>(index)));
}

/// Black leaves the selection as it is.
void ColorerSelection(Frmmain &frm, int index) {
    RichTextBox &saisie = frm.Saisie(index);
    if (saisie.SelLength() == 0) {
        return;
    }
    const auto couleur = platform::dialogs::ShowColor(&frm, Qt::black);
    if (couleur && *couleur != QColor(Qt::black)) {
        saisie.SetSelColor(*couleur);
    }
}

void BrancherValeur(Frmmain &frm, int index) {
    Ribbon &bouton = frm.Data(index);
    DropList &liste = frm.*ValeurDe(index).liste;
    const auto choisir = [&frm, index] { ChoisirValeur(frm, index); };
    whenPressed(bouton, [&frm, index] { OuvrirValeur(frm, index); });
    QObject::connect(&liste, &DropList::Click, &frm, choisir);
    if (ValeurDe(index).entree == Entree::Confirme) {
        QObject::connect(&liste, &DropList::EnterPressed, &frm, choisir);
    }
    QObject::connect(&liste, &DropList::Escaped, &frm,
                     [&frm, &liste, &bouton] { FermerListe(frm, liste, bouton); });
}

void BrancherSaisie(Frmmain &frm, int index) {
    RichTextBox &saisie = frm.Saisie(index);
    QObject::connect(&saisie, &RichTextBox::Change, &frm, [&frm, index] { EnregistrerSaisie(frm, index); });
    QObject::connect(&saisie, &RichTextBox::Clicked, &frm, [&frm] { frm.Scroll(0).update(); });
    QObject::connect(&saisie, &RichTextBox::RightReleased, &frm,
                     [&frm, index] { ColorerSelection(frm, index); });
}

} // namespace

qint64 NumeroDeLaFiche(const Frmmain &frm) {
    const List &liste = ListeDeLaFiche(frm);
    return store::NumeroDeCle(liste.Key(liste.SelectedIndex()));
}

void BrancherValeurs(Frmmain &frm) {
    for (int index = 0; index < frm.Data.Count(); ++index) {
        BrancherValeur(frm, index);
    }
    for (int index = 0; index < frm.Saisie.Count(); ++index) {
        BrancherSaisie(frm, index);
    }
}

void ChoisirValeur(Frmmain &frm, int index) {
    const ListeDeValeur &valeur = ValeurDe(index);
    Ribbon &bouton = frm.Data(index);
    switch (valeur.forme) {
    case Forme::Recherche:
        ChoisirRecherche(frm, valeur, bouton);
        break;
    case Forme::Code:
        ChoisirCode(frm, valeur, bouton);
        break;
    case Forme::Vin:
        ChoisirVin(frm, valeur, bouton);
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
