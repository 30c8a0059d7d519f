#pragma once

#include "platform/controls/TextBox.h"
#include "platform/dialogs/MessageBox.h"
#include "store/CreationRecette.h"

/// What the windows in which a recipe is created have in common. Their fields have the same names.
namespace entry {

/// A box over the window, under the program's title.
void Annoncer(QWidget &fenetre, const QString &texte, platform::dialogs::Icon icone);

/// False for an empty field: the user is told so, and the field gets the keyboard.
bool EstRempli(QWidget &fenetre, platform::controls::TextBox &champ, const QString &reproche);

/// False when a mandatory field is empty, which is reported as EstRempli does.
template <class Fenetre>
bool PeutEtreCreee(Fenetre &fenetre) {
    return EstRempli(fenetre, fenetre.TitreRecette,
                     QStringLiteral("Veuillez d'abord saisir le nom de la recette !")) &&
           EstRempli(fenetre, fenetre.Liste(3),
                     QStringLiteral("Veuillez d'abord saisir une durée de cuisson !"));
}

/// The recipe as the fields hold it, the two long texts in RTF.
template <class Fenetre>
store::RecetteSaisie LireChamps(Fenetre &fenetre) {
    store::RecetteSaisie saisie{.titre = fenetre.TitreRecette.Text(),
                                .cout = fenetre.Liste(0).Text(),
                                .difficulte = fenetre.Liste(1).Text(),
                                .vin = fenetre.Liste(2).Text(),
                                .dureeCuisson = fenetre.Liste(3).Text(),
                                .personnes = fenetre.Liste(4).Text(),
                                .plat = fenetre.Liste(5).Text(),
                                .dureeReal = fenetre.DReal.Text(),
                                .preparation = fenetre.Saisie(0).TextRTF(),
                                .complements = fenetre.Saisie(1).TextRTF(),
                                .lignes = {}};
    for (int index = 0; index < fenetre.Qte.Count(); ++index) {
        saisie.lignes.push_back(
            {fenetre.Qte(index).Text(), fenetre.Qte2(index).Text(), fenetre.Ingre(index).Text()});
    }
    return saisie;
}

/// Asks whether to leave a window with a recipe that is not created.
bool ConfirmerAbandon(QWidget &fenetre);

/// Adds to the lists of the lines what the save has added to the book.
template <class Fenetre>
void ProposerNouveaux(Fenetre &fenetre, const store::TextesNouveaux &nouveaux) {
    fenetre.LQte.AddItems(nouveaux.quantites);
    fenetre.LQte2.AddItems(nouveaux.mesures);
    fenetre.LIngre.AddItems(nouveaux.ingredients);
}

} // namespace entry
