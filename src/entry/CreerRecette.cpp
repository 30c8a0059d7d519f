#include "CreerRecette.h"

#include "ChampsDeCreation.h"
#include "Listes.h"
#include "Manuelle.h"

#include "pictures/EnregistrerPhoto.h"

namespace entry {

using namespace platform::controls;
namespace dialogs = platform::dialogs;

void CreerRecette(Manuelle &fenetre) {
    if (!PeutEtreCreee(fenetre)) {
        return;
    }
    fenetre.creationFaite = true;
    store::RecetteSaisie saisie = LireChamps(fenetre);
    const store::TextesNouveaux nouveaux =
        store::EnregistrerRecette(saisie, store::kSaisieManuelle, [&fenetre](const QString &nom) {
            return pictures::EnregistrerPhoto(fenetre.Photo.Picture(), nom);
        });
    fenetre.TitreRecette.SetText(saisie.titre);
    fenetre.DReal.SetText(saisie.dureeReal);
    ProposerNouveaux(fenetre, nouveaux);
}

void PresserCreer(Manuelle &fenetre) {
    fenetre.creationFaite = false;
    CreerRecette(fenetre);
    CacherListes(fenetre);
    fenetre.Creer.SetValue(false);
    if (fenetre.creationFaite) {
        ReinitChamps(fenetre);
        fenetre.NoterDepart();
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
