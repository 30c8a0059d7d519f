#include "CreerRecette.h"

#include "Facile.h"

#include "pictures/EnregistrerPhoto.h"
#include "platform/controls/WaitPointer.h"
#include "platform/dialogs/MessageBox.h"
#include "store/CreationRecette.h"
#include "store/Programme.h"
#include "store/Textes.h"

namespace webimport::facile {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;

void Annoncer(Facile &fenetre, const QString &texte, dialogs::Icon icone) {
    dialogs::Message(&fenetre, store::TitreProgramme.toString(), texte, icone);
}

/// False for a field without text, which is told and gets the keyboard.
bool EstRempli(Facile &fenetre, TextBox &champ, const QString &reproche) {
    if (!store::SansBlancs(champ.Text()).isEmpty()) {
        return true;
    }
    Annoncer(fenetre, reproche, dialogs::Icon::Exclamation);
    champ.setFocus();
    return false;
}

/// The title also names the picture's file, to which these characters would mean folders.
QString SansBarres(QString titre) {
    return titre.replace(u'/', u' ').replace(u'\\', u' ');
}

store::RecetteSaisie LireChamps(Facile &fenetre) {
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

void EnregistrerPhoto(const Facile &fenetre, const QString &nom) {
    if (!fenetre.Photo.Picture().isNull()) {
        pictures::EnregistrerPhoto(fenetre.Photo.Picture(), nom);
    }
}

void CreerRecette(Facile &fenetre) {
    if (!EstRempli(fenetre, fenetre.TitreRecette,
                   QStringLiteral("Veuillez d'abord saisir le nom de la recette !")) ||
        !EstRempli(fenetre, fenetre.Liste(3),
                   QStringLiteral("Veuillez d'abord saisir une durée de cuisson !"))) {
        return;
    }
    const WaitPointer sablier;
    fenetre.RecetteCreee = true;
    fenetre.TitreRecette.SetText(SansBarres(fenetre.TitreRecette.Text()));
    store::RecetteSaisie saisie = LireChamps(fenetre);
    const store::TextesNouveaux nouveaux = store::EnregistrerRecette(
        saisie, store::kImport, [&fenetre](const QString &nom) { EnregistrerPhoto(fenetre, nom); });
    fenetre.TitreRecette.SetText(saisie.titre);
    fenetre.LQte.AddItems(nouveaux.quantites);
    fenetre.LQte2.AddItems(nouveaux.mesures);
    fenetre.LIngre.AddItems(nouveaux.ingredients);
}

} // namespace

void PresserCreer(Facile &fenetre) {
    fenetre.RecetteCreee = false;
    CreerRecette(fenetre);
    fenetre.MontrerNavigation(true);
    if (fenetre.RecetteCreee) {
        Annoncer(fenetre, QStringLiteral("Création réussie ! "), dialogs::Icon::Information);
        fenetre.MontrerNavigateur();
        fenetre.MontrerAnalyse(true);
        fenetre.Creer.SetValue(false);
    }
}

} // namespace webimport::facile
