#include "Listes.h"

#include "Manuelle.h"

#include "store/AccesBase.h"
#include "store/Vocabulaires.h"

#include <QSignalBlocker>
#include <array>

namespace entry {

namespace {

using namespace platform::controls;

/// A list that serves one field.
struct Paire {
    DropList *liste;
    TextBox *champ;
};

std::array<Paire, 7> Paires(Manuelle &fenetre) {
    return {{{&fenetre.LCout, &fenetre.Liste(0)},
             {&fenetre.LDiff, &fenetre.Liste(1)},
             {&fenetre.LVin, &fenetre.Liste(2)},
             {&fenetre.LDureeCuisson, &fenetre.Liste(3)},
             {&fenetre.LPers, &fenetre.Liste(4)},
             {&fenetre.LPlat, &fenetre.Liste(5)},
             {&fenetre.LDureeReal, &fenetre.DReal}}};
}

/// A list that serves a column of the ingredient lines.
struct ColonneSaisie {
    DropList *liste;
    ControlArray<TextBox> *champs;
};

std::array<ColonneSaisie, 3> Colonnes(Manuelle &fenetre) {
    return {
        {{&fenetre.LQte, &fenetre.Qte}, {&fenetre.LQte2, &fenetre.Qte2}, {&fenetre.LIngre, &fenetre.Ingre}}};
}

/// The field that a list serves at the moment; null for a list of the lines before its first use, and for any other
/// control.
TextBox *ChampServi(Manuelle &fenetre, const QWidget *liste) {
    for (const Paire &paire : Paires(fenetre)) {
        if (paire.liste == liste) {
            return paire.champ;
        }
    }
    for (const ColonneSaisie &colonne : Colonnes(fenetre)) {
        if (colonne.liste == liste && !colonne.liste->Tag().isEmpty()) {
            return &(*colonne.champs)(colonne.liste->Tag().toInt());
        }
    }
    return nullptr;
}

void Cacher(Manuelle &fenetre, DropList &liste) {
    if (liste.isHidden()) {
        return;
    }
    if (TextBox *champ = ChampServi(fenetre, &liste); champ != nullptr && liste.hasFocus()) {
        // In silence: the list would open again.
        const QSignalBlocker muet(champ);
        champ->setFocus();
    }
    liste.hide();
}

void Ouvrir(Manuelle &fenetre, DropList &liste, const TextBox &champ) {
    CacherListes(fenetre);
    liste.SetWidth(champ.Width());
    liste.SetLeft(champ.Left());
    liste.SetTop(champ.Top());
    liste.SetText(champ.Text());
    liste.Open();
}

void Recopier(Manuelle &fenetre, const DropList &liste) {
    if (TextBox *champ = ChampServi(fenetre, &liste); champ != nullptr && champ->Text() != liste.Text()) {
        champ->SetText(liste.Text());
    }
}

/// A field that is changed beneath its open list is never another than what the list shows.
void Suivre(Manuelle &fenetre, DropList &liste, const TextBox &champ) {
    if (!liste.isHidden() && ChampServi(fenetre, &liste) == &champ && liste.Text() != champ.Text()) {
        liste.SetText(champ.Text());
    }
}

void BrancherChamp(Manuelle &fenetre, DropList &liste, TextBox &champ) {
    QObject::connect(&champ, &TextBox::textChanged, &fenetre,
                     [&fenetre, &liste, &champ] { Suivre(fenetre, liste, champ); });
}

void BrancherListe(Manuelle &fenetre, DropList &liste) {
    liste.setFocusPolicy(Qt::ClickFocus);
    const auto recopier = [&fenetre, &liste] { Recopier(fenetre, liste); };
    QObject::connect(&liste, &DropList::Change, &fenetre, recopier);
    QObject::connect(&liste, &DropList::Click, &fenetre, recopier);
}

void BrancherColonne(Manuelle &fenetre, const ColonneSaisie &colonne) {
    DropList &liste = *colonne.liste;
    liste.SetProposes();
    for (int index = 0; index < colonne.champs->Count(); ++index) {
        TextBox &champ = (*colonne.champs)(index);
        BrancherChamp(fenetre, liste, champ);
        QObject::connect(&champ, &TextBox::Entered, &fenetre, [&fenetre, &liste, &champ, index] {
            CacherListes(fenetre); // while the list still serves its previous line
            liste.SetTag(QString::number(index));
            Ouvrir(fenetre, liste, champ);
        });
    }
}

} // namespace

void ChargerLesListesCombo(Manuelle &fenetre) {
    const auto charger = [](DropList &liste, const store::Table &table) {
        liste.Clear();
        liste.AddItems(store::ChargerCombo(table));
    };
    charger(fenetre.LDureeReal, store::kDureeReal);
    charger(fenetre.LDureeCuisson, store::kCategorie);
    charger(fenetre.LPers, store::kVerre);
    charger(fenetre.LPlat, store::kRealisation);
    // The sixth class of cost is empty and not offered.
    for (std::size_t code = 0; code + 1 < store::Cout.size(); ++code) {
        fenetre.LCout.AddItems({store::Cout[code].toString()});
    }
    for (const QStringView classe : store::Difficulte) {
        fenetre.LDiff.AddItems({classe.toString()});
    }
    charger(fenetre.LVin, store::kVin);
}

void ChargerListesDesLignes(Manuelle &fenetre) {
    fenetre.LQte.AddItems(store::ChargerListeSimple(store::kQuantite));
    fenetre.LQte2.AddItems(store::ChargerListeSimple(store::kMesure));
    fenetre.LIngre.AddItems(store::ChargerListeSimple(store::kIngredient));
}

void CacherListes(Manuelle &fenetre) {
    for (DropList *liste : fenetre.Listes()) {
        Cacher(fenetre, *liste);
    }
}

void CacherListesDesLignes(Manuelle &fenetre) {
    for (DropList *liste : {&fenetre.LQte2, &fenetre.LQte, &fenetre.LIngre}) {
        Cacher(fenetre, *liste);
    }
}

void BrancherListes(Manuelle &fenetre) {
    for (DropList *liste : fenetre.Listes()) {
        BrancherListe(fenetre, *liste);
    }
    for (const Paire &paire : Paires(fenetre)) {
        BrancherChamp(fenetre, *paire.liste, *paire.champ);
        QObject::connect(paire.champ, &TextBox::Entered, &fenetre,
                         [&fenetre, paire] { Ouvrir(fenetre, *paire.liste, *paire.champ); });
    }
    for (const ColonneSaisie &colonne : Colonnes(fenetre)) {
        BrancherColonne(fenetre, colonne);
    }
    fenetre.Saisie.ForEach([&fenetre](RichTextBox &saisie) {
        QObject::connect(&saisie, &RichTextBox::Entered, &fenetre,
                         [&fenetre] { CacherListesDesLignes(fenetre); });
    });
}

QWidget *ChampAuClavier(Manuelle &fenetre) {
    QWidget *actuel = fenetre.focusWidget();
    TextBox *champ = ChampServi(fenetre, actuel);
    return champ != nullptr ? champ : actuel;
}

} // namespace entry
