#include "CreerRecette.h"

#include "Listes.h"
#include "Manuelle.h"

#include "pictures/EnregistrerPhoto.h"
#include "platform/dialogs/MessageBox.h"
#include "store/CreationRecette.h"
#include "store/Programme.h"
#include "store/Textes.h"

namespace entry {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;

void Annoncer(Manuelle &fenetre, const QString &texte, dialogs::Icon icone) {
    dialogs::Message(&fenetre, store::TitreProgramme.toString(), texte, icone);
}

/// False for a field without text, which is told and gets the keyboard.
bool EstRempli(Manuelle &fenetre, TextBox &champ, const QString &reproche) {
    if (!store::SansBlancs(champ.Text()).isEmpty()) {
        return true;
    }
    Annoncer(fenetre, reproche, dialogs::Icon::Exclamation);
    champ.setFocus();
    return false;
}

store::RecetteSaisie LireChamps(Manuelle &fenetre) {
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

} // namespace

void CreerRecette(Manuelle &fenetre) {
    if (!EstRempli(fenetre, fenetre.TitreRecette,
                   QStringLiteral("Veuillez d'abord saisir le nom de la recette !")) ||
        !EstRempli(fenetre, fenetre.Liste(3),
                   QStringLiteral("Veuillez d'abord saisir une durée de cuisson !"))) {
        return;
    }
    fenetre.creationFaite = true;
    store::RecetteSaisie saisie = LireChamps(fenetre);
    const store::TextesNouveaux nouveaux =
        store::EnregistrerRecette(saisie, store::kSaisieManuelle, [&fenetre](const QString &nom) {
            pictures::EnregistrerPhoto(fenetre.Photo.Picture(), nom);
        });
    fenetre.TitreRecette.SetText(saisie.titre);
    fenetre.DReal.SetText(saisie.dureeReal);
    fenetre.LQte.AddItems(nouveaux.quantites);
    fenetre.LQte2.AddItems(nouveaux.mesures);
    fenetre.LIngre.AddItems(nouveaux.ingredients);
}

void PresserCreer(Manuelle &fenetre) {
    fenetre.creationFaite = false;
    CreerRecette(fenetre);
    CacherListes(fenetre);
    fenetre.Creer.SetValue(false);
    if (fenetre.creationFaite) {
        ReinitChamps(fenetre);
        Annoncer(fenetre, QStringLiteral("Création réussie ! "), dialogs::Icon::Information);
        fenetre.TitreRecette.setFocus();
    }
}

void ReinitChamps(Manuelle &fenetre) {
    fenetre.TitreRecette.SetText({});
    fenetre.ViderSaisies();
    fenetre.Liste.ForEach([](TextBox &champ) { champ.SetText({}); });
    fenetre.Photo.SetTag({});
    fenetre.Photo.SetPicture({});
    fenetre.Photo.hide();
    fenetre.LegenderPhoto();
    for (ControlArray<TextBox> *colonne : {&fenetre.Qte, &fenetre.Qte2, &fenetre.Ingre}) {
        colonne->ForEach([](TextBox &champ) { champ.SetText({}); });
    }
}

} // namespace entry
