#include "Sauvegarde.h"

#include "Progression.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/database/DatabaseError.h"
#include "platform/dialogs/FileDialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/jet/JetReader.h"
#include "platform/settings/Conversion.h"
#include "store/AncienLivre.h"
#include "store/CopieFichier.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <stdexcept>

namespace shell {

namespace {

namespace dialogs = platform::dialogs;

const QString kFiltre = QStringLiteral("Tous les fichiers MDB (*.mdb)|*.mdb");

QString DossierPropose() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// Whether a copy would carry the name of the book, in any case, or be the book under another one.
bool NomDuLivre(const QString &chemin) {
    return QDir::cleanPath(chemin).toLower() == QDir::cleanPath(store::CheminBase()).toLower() ||
           store::EstLeLivre(chemin);
}

/// Makes a new book of an old one, in the place of the present book, of which a copy is kept.
void Convertir(const browser::Frmmain &frm, const QString &ancien) {
    Progression progression(frm, QStringLiteral("Conversion de l'ancien livre ..."));
    store::ConvertirAncienLivre(
        ancien, store::CheminNouveauLivre(),
        [&progression](qint64 faites, qint64 total) { progression.Montrer(faites, total); });
    store::RemplacerLivre();
}

/// Offers the newest copy in the place of a book that does not open.
/// @return whether the user took it
bool ReprendreCopie(const QString &raison) {
    const QString copie = store::CopieAReprendre();
    if (copie.isEmpty()) {
        return false;
    }
    const QFileInfo fichier(copie);
    const QString date =
        QLocale(QLocale::French).toString(fichier.lastModified(), QStringLiteral("d MMMM yyyy, HH:mm"));
    if (!dialogs::Ask(
            nullptr, store::TitreProgramme.toString(),
            QStringLiteral("Le livre de recettes ne s'ouvre pas.\r\r%1\r\rVoulez-vous reprendre la copie "
                           "« %2 » du %3 ? Le fichier qui ne s'ouvre pas sera gardé à côté.")
                .arg(raison, fichier.fileName(), date))) {
        return false;
    }
    store::CopierFichier(copie, store::CheminNouveauLivre());
    store::RemplacerLivre();
    return true;
}

/// Why the book does not open; empty where it does, or where another program holds it.
QString RaisonDuRefus() {
    try {
        store::OuvrirLivre(store::CheminBase());
        return {};
    } catch (const platform::database::DatabaseError &echec) {
        return echec.isInUse() ? QString() : QString::fromUtf8(echec.what());
    }
}

void RestaurerAncienLivre(browser::Frmmain &frm, const QString &fichier) {
    try {
        Convertir(frm, fichier);
    } catch (const std::runtime_error &echec) { // of the old file, of the new book or of its place
        dialogs::Message(&frm, store::TitreProgramme.toString(), QString::fromUtf8(echec.what()),
                         dialogs::Icon::Exclamation);
    }
}

void RestaurerCopie(const QString &fichier) {
    try {
        store::CopierFichier(fichier, store::CheminNouveauLivre());
        store::RemplacerLivre();
    } catch (const store::CopieError &) {
        // The book is the former one, as the lists show.
    }
}

void RechargerListes(browser::Frmmain &frm) {
    // A file that is no book of ours fails again, and loudly, at the next query.
    try {
        TrierListe(frm, browser::VueCourante());
    } catch (const platform::database::DatabaseError &) {
    } catch (const platform::settings::ConversionError &) {
    } catch (const std::out_of_range &) { // of a recipe whose class does not exist
    }
    frm.Chargement.hide();
}

} // namespace

void SauvegarderBase(browser::Frmmain &frm) {
    const QString fichier = dialogs::ShowSave(&frm, QStringLiteral("Sauvegarder la base de donnée"), kFiltre,
                                              {DossierPropose()}, QStringLiteral("mdb"));
    if (fichier.isEmpty()) {
        return;
    }
    if (NomDuLivre(fichier)) {
        dialogs::Message(&frm, store::TitreProgramme.toString(),
                         QStringLiteral("Vous ne devriez pas sauvegarder avec ce nom (db.mdb) !!!"),
                         dialogs::Icon::Information);
        return;
    }
    store::CopierLivre(fichier);
}

void RestaurerBase(browser::Frmmain &frm) {
    const QString fichier = dialogs::ShowOpen(&frm, QStringLiteral("Restaurer une ancienne base de donnée"),
                                              kFiltre, {DossierPropose()});
    if (!fichier.isEmpty()) {
        if (store::EstLeLivre(fichier)) {
            // Copied onto itself, the book would stay what it is.
        } else if (store::EstAncienLivre(fichier)) {
            RestaurerAncienLivre(frm, fichier);
        } else {
            RestaurerCopie(fichier);
        }
        RechargerListes(frm);
    }
    if (frm.Liste.Count() == 0) {
        frm.LTDroit.SetCaption({});
    }
}

void PreparerLivre(const browser::Frmmain &frm) {
    if (store::EstAncienLivre(store::CheminBase())) {
        try {
            Convertir(frm, store::CheminBase());
        } catch (const platform::jet::JetError &echec) {
            if (const QString raison = QString::fromUtf8(echec.what()); !ReprendreCopie(raison)) {
                throw platform::jet::JetError(raison + store::MentionDeLaCopie());
            }
        }
    } else if (const QString raison = RaisonDuRefus(); !raison.isEmpty()) {
        ReprendreCopie(raison); // otherwise the first list fails
    }
}

} // namespace shell
