#include "Sauvegarde.h"

#include "Progression.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/database/DatabaseError.h"
#include "platform/dialogs/FileDialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/settings/Conversion.h"
#include "store/AncienLivre.h"
#include "store/CopieFichier.h"
#include "store/Programme.h"

#include <QDir>
#include <QFile>
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
void Convertir(const browser::Frmmain &frm, const QString &ancien, const QString &copie) {
    Progression progression(frm, QStringLiteral("Conversion de l'ancien livre ..."));
    store::ConvertirAncienLivre(
        ancien, store::CheminNouveauLivre(),
        [&progression](qint64 faites, qint64 total) { progression.Montrer(faites, total); });
    store::RemplacerLivre(copie);
}

/// Where an old book is kept whose place a new one takes: db-ancien.mdb, or db-ancien-2.mdb beside an earlier one.
QString CheminAncienLivre() {
    const QString debut = store::DossierProgramme() + QStringLiteral("/db-ancien");
    const QString fin = QStringLiteral(".mdb");
    QString chemin = debut + fin;
    for (int n = 2; QFile::exists(chemin); ++n) {
        chemin = debut + u'-' + QString::number(n) + fin;
    }
    return chemin;
}

void RestaurerAncienLivre(browser::Frmmain &frm, const QString &fichier) {
    try {
        Convertir(frm, fichier, store::CheminAvantRestauration());
    } catch (const std::runtime_error &echec) { // of the old file, of the new book or of its place
        dialogs::Message(&frm, store::TitreProgramme.toString(), QString::fromUtf8(echec.what()),
                         dialogs::Icon::Exclamation);
    }
}

void RestaurerCopie(const QString &fichier) {
    try {
        store::CopierFichier(fichier, store::CheminNouveauLivre());
        store::RemplacerLivre(store::CheminAvantRestauration());
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

void ReprendreAncienLivre(const browser::Frmmain &frm) {
    if (store::EstAncienLivre(store::CheminBase())) {
        Convertir(frm, store::CheminBase(), CheminAncienLivre());
    }
}

} // namespace shell
