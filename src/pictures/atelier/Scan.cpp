#include "Scan.h"

#include "Acquisition.h"

#include "pictures/AjusterPhoto.h"
#include "pictures/FichierBmp.h"
#include "pictures/Miroirs.h"
#include "pictures/Rotation.h"
#include "platform/controls/WaitPointer.h"
#include "platform/dialogs/FileDialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/images/LoadPicture.h"
#include "platform/scandialogs/ImageSource.h"
#include "store/Programme.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>

#include <new>

namespace pictures::atelier {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;
using platform::images::LoadPicture;
using platform::images::PictureError;
using platform::surface::Surface;

using Ajustement = Rectangle (*)(const Rectangle &, Extent);

bool EstVide(const Surface &surface) {
    return surface.picture().isNull();
}

Extent TailleNaturelle(const Surface &surface) {
    return {Twips(surface.width() * kTwipsPerPixel), Twips(surface.height() * kTwipsPerPixel)};
}

void Montrer(Acquisition &fenetre, Ajustement ajuster) {
    const Surface &image = fenetre.PhotoScan1;
    fenetre.PhotoScan.hide();
    fenetre.PhotoScan.SetPicture(image.picture());
    if (EstVide(image)) {
        fenetre.Cadre.SetCaption(QStringLiteral("Ouvrez ou numérisez une image,\n"
                                                "déposez un fichier ici\n"
                                                "ou collez l'image du presse-papiers (Ctrl+V)."));
    } else {
        fenetre.PhotoScan.SetPlace(ajuster(fenetre.Cadre.Place(), TailleNaturelle(image)));
        fenetre.Cadre.SetCaption({});
    }
    fenetre.PhotoScan.show();
}

/// What was drawn on PhotoScan2 becomes the picture. Nothing was drawn without a picture, or when one of the events
/// run by a turn has taken it away.
void ReprendreDessin(Acquisition &fenetre) {
    if (!EstVide(fenetre.PhotoScan2)) {
        PasserParTempBmp(fenetre.PhotoScan2, fenetre.PhotoScan1);
        fenetre.AEnregistrer = true;
        AjusterPhotoScan(fenetre);
    }
}

void Avancer(Acquisition &fenetre, double part) {
    const int avant = fenetre.Pb.width();
    fenetre.Pb.SetWidth(part * fenetre.PbCadre.Width());
    if (fenetre.Pb.width() != avant) {
        fenetre.Pb.repaint();
    }
}

void MontrerAvancement(Acquisition &fenetre, bool visible) {
    fenetre.Pb.SetWidth(Twips());
    fenetre.PbCadre.setVisible(visible);
    fenetre.Pb.setVisible(visible);
}

void Tourner(Acquisition &fenetre, float angle) {
    const WaitPointer attente;
    fenetre.PhotoScan1.setPicture(fenetre.PhotoScan.Picture());
    MontrerAvancement(fenetre, true);
    const bool finie = TournerUnQuart(fenetre.PhotoScan1, fenetre.PhotoScan2, angle,
                                      {[&fenetre](double part) { Avancer(fenetre, part); },
                                       [&fenetre] {
                                           QCoreApplication::processEvents();
                                           return !fenetre.Quittee;
                                       }});
    MontrerAvancement(fenetre, false);
    if (finie) {
        ReprendreDessin(fenetre);
    }
}

using Miroir = void (*)(const Surface &, Surface &);

void Refleter(Acquisition &fenetre, Miroir miroir) {
    const WaitPointer attente;
    fenetre.PhotoScan1.setPicture(fenetre.PhotoScan.Picture());
    miroir(fenetre.PhotoScan1, fenetre.PhotoScan2);
    ReprendreDessin(fenetre);
    QFile::remove(CheminTempBmp());
}

/// Where the file dialogs start: at the file last opened, at first in the folder of pictures.
dialogs::Start Depart(const Acquisition &fenetre) {
    const QString dernier = fenetre.PhotoScan.Tag();
    if (!dernier.trimmed().isEmpty()) {
        return dialogs::Start::at(dernier);
    }
    return {store::DossierProgramme() + QStringLiteral("/image")};
}

/// @throws PictureError when it can't
void Enregistrer(Acquisition &fenetre, const QString &nom) {
    const WaitPointer attente;
    fenetre.PhotoScan2.setPicture(fenetre.PhotoScan.Picture());
    EcrireBmp(fenetre.PhotoScan2, nom);
    fenetre.PhotoScan.SetPicture(LoadPicture(nom));
    fenetre.AEnregistrer = false;
}

/// The picture of the clipboard, or else the one before, as one that was scanned.
void PrendrePressePapiers(Acquisition &fenetre) {
    const QImage image = QGuiApplication::clipboard()->image();
    fenetre.PermettreOperations();
    if (!image.isNull()) {
        fenetre.PhotoScan1.setPicture(image);
        fenetre.AEnregistrer = true;
    }
    Montrer(fenetre, PlaceNumerisation);
}

} // namespace

void RotationGauche(Acquisition &fenetre) {
    Tourner(fenetre, kQuartGauche);
}

void RotationDroite(Acquisition &fenetre) {
    Tourner(fenetre, kQuartDroite);
}

void MiroirHorizontal(Acquisition &fenetre) {
    Refleter(fenetre, pictures::MiroirHorizontal);
}

void MiroirVertical(Acquisition &fenetre) {
    Refleter(fenetre, pictures::MiroirVertical);
}

void OuvrirImage(Acquisition &fenetre) {
    const QString motifs = platform::images::PicturePatterns();
    const QString nom =
        dialogs::ShowOpen(&fenetre, QStringLiteral("Ouvrir un fichier image"),
                          u"Tous les fichiers images (" + motifs + u")|" + motifs, Depart(fenetre));
    OuvrirFichier(fenetre, nom);
}

void OuvrirFichier(Acquisition &fenetre, const QString &nom) {
    const WaitPointer attente;
    fenetre.NomDeFichier = nom;
    fenetre.PhotoScan.SetTag(nom);
    try {
        fenetre.PhotoScan1.setPicture(nom.isEmpty() ? QImage() : LoadPicture(nom));
        fenetre.AEnregistrer = false;
    } catch (const PictureError &) {
        // The picture before is shown again.
    } catch (const std::bad_alloc &) { // a picture larger than the memory, likewise
    }
    fenetre.PhotoScan2 = fenetre.PhotoScan1;
    AjusterPhotoScan(fenetre);
}

bool SauverImage(Acquisition &fenetre) {
    QString filtre = QStringLiteral("Tous les fichiers images (*.bmp;*.wmf;*.ico)|*.bmp;*.wmf;*.ico");
    QString &propose = fenetre.NomDeFichier;
    // A picture that came as a JPEG file must not go back into it as a bitmap. Only this spelling counts.
    if (propose.endsWith(QLatin1String("jpg"))) {
        filtre = QStringLiteral("Format Bitmap (*.bmp)|*.bmp");
        propose.replace(propose.size() - 3, 3, QStringLiteral("bmp"));
    }
    const QString nom = dialogs::ShowSave(&fenetre, QStringLiteral("Enregistrer l'image"), filtre,
                                          propose.isEmpty() ? Depart(fenetre) : dialogs::Start::at(propose),
                                          QStringLiteral("bmp"));
    if (nom.isEmpty()) {
        return false;
    }
    propose = nom;
    try {
        Enregistrer(fenetre, nom);
    } catch (const PictureError &echec) {
        dialogs::Message(&fenetre, store::TitreProgramme.toString(), QString::fromUtf8(echec.what()),
                         dialogs::Icon::Exclamation);
        return false;
    }
    return true;
}

void AcquerirScanner(Acquisition &fenetre) {
    if (fenetre.Scanner.SelectImageSource(&fenetre) != 1) {
        dialogs::Message(
            &fenetre, store::TitreProgramme.toString(),
            QStringLiteral("                       Une erreur est survenue ...\r\rVeuillez vérifier "
                           "votre Scanner et recommencer l'opération plus tard !"),
            dialogs::Icon::Critical);
        return;
    }
    QGuiApplication::clipboard()->clear();
    if (fenetre.Scanner.AcquireToClipboard(&fenetre) != 0) {
        PrendrePressePapiers(fenetre);
    }
}

void CollerImage(Acquisition &fenetre) {
    if (!QGuiApplication::clipboard()->image().isNull()) {
        PrendrePressePapiers(fenetre);
    }
}

void AjusterPhotoScan(Acquisition &fenetre) {
    Montrer(fenetre, PlacePhotoScan);
}

} // namespace pictures::atelier
