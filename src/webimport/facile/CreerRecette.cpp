#include "CreerRecette.h"

#include "Facile.h"

#include "entry/ChampsDeCreation.h"
#include "pictures/EnregistrerPhoto.h"
#include "platform/controls/WaitPointer.h"

namespace webimport::facile {

namespace {

/// The title also names the picture's file, to which these characters would mean folders.
QString SansBarres(QString titre) {
    return titre.replace(u'/', u' ').replace(u'\\', u' ');
}

QString EnregistrerPhoto(const Facile &fenetre, const QString &nom) {
    const QImage &photo = fenetre.Photo.Picture();
    return photo.isNull() ? nom : pictures::EnregistrerPhoto(photo, nom);
}

void CreerRecette(Facile &fenetre) {
    if (!entry::PeutEtreCreee(fenetre)) {
        return;
    }
    const platform::controls::WaitPointer sablier;
    fenetre.RecetteCreee = true;
    fenetre.TitreRecette.SetText(SansBarres(fenetre.TitreRecette.Text()));
    store::RecetteSaisie saisie = entry::LireChamps(fenetre);
    const store::TextesNouveaux nouveaux = store::EnregistrerRecette(
        saisie, store::kImport, [&fenetre](const QString &nom) { return EnregistrerPhoto(fenetre, nom); });
    fenetre.TitreRecette.SetText(saisie.titre);
    entry::ProposerNouveaux(fenetre, nouveaux);
}

} // namespace

void PresserCreer(Facile &fenetre) {
    fenetre.RecetteCreee = false;
    CreerRecette(fenetre);
    fenetre.MontrerNavigation(true);
    if (fenetre.RecetteCreee) {
        entry::Annoncer(fenetre, QStringLiteral("Création réussie ! "), platform::dialogs::Icon::Information);
        fenetre.MontrerNavigateur();
        fenetre.MontrerAnalyse(true);
        fenetre.Creer.SetValue(false);
    }
}

} // namespace webimport::facile
