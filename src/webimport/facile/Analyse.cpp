#include "Analyse.h"

#include "ChargerPhoto.h"
#include "Facile.h"
#include "FichiersDePassage.h"
#include "LirePage.h"
#include "SansSaisie.h"

#include "entry/ChampsDeCreation.h"
#include "platform/controls/WaitPointer.h"
#include "platform/webview/Engine.h"
#include "store/Configuration.h"
#include "webimport/FichierTemporaire.h"
#include "webimport/Marquage.h"
#include "webimport/Page.h"
#include "webimport/PageCommentee.h"
#include "webimport/PageDebutFin.h"

#include <QSignalBlocker>
#include <QUrl>

namespace webimport::facile {

namespace {

using namespace platform::controls;

constexpr Twips kEcartLignes{50};
constexpr Twips kHauteurDepart{1000}; // over which the rows scroll at first
// A display server ends a program that gives a window too long a title.
constexpr qsizetype kTitreLePlusLong = 200;

/// Tool tips would take tags of the page for their own.
QString EnInfobulle(const QString &texte) {
    return Qt::mightBeRichText(texte) ? texte.toHtmlEscaped() : texte;
}

void Montrer(TextBox &champ, const ChampPage &valeur) {
    champ.SetText(valeur.texte);
    champ.setCursorPosition(0);
    if (valeur.infobulle) {
        champ.setToolTip(EnInfobulle(*valeur.infobulle));
    }
}

void Montrer(Label &etiquette, const ChampPage &valeur) {
    etiquette.SetCaption(valeur.texte);
    if (valeur.infobulle) {
        etiquette.setToolTip(EnInfobulle(*valeur.infobulle));
    }
}

void Montrer(RichTextBox &saisie, const ChampPage &valeur, const CouleursTexte &couleurs) {
    const QSignalBlocker parLeProgramme(&saisie);
    saisie.setPlainText(valeur.texte);
    if (valeur.infobulle) {
        saisie.setToolTip(EnInfobulle(*valeur.infobulle));
    }
    MarquerTexte(*saisie.document(), couleurs);
    saisie.moveCursor(QTextCursor::End);
}

void MontrerLignes(Facile &fenetre, const std::vector<LigneIngredient> &lignes) {
    ScrollPanel &cadre = fenetre.Scroll(1);
    cadre.SetScrollableHeight(kHauteurDepart);
    for (int n = 0; n < static_cast<int>(lignes.size()); ++n) {
        if (n > 0) {
            fenetre.ChargerLigne(fenetre.Ingre(n - 1).Bottom() + kEcartLignes);
        }
        const Twips bas = fenetre.Qte2(n).Bottom();
        if (cadre.Height() < bas + Twips(300)) {
            cadre.SetScrollableHeight(bas + Twips(100));
        }
        const LigneIngredient &ligne = lignes[static_cast<std::size_t>(n)];
        fenetre.Qte(n).SetText(ligne.Quantite);
        fenetre.Qte2(n).SetText(ligne.Mesure);
        fenetre.Ingre(n).SetText(ligne.Ingredient);
    }
    cadre.ScrollToTop();
}

void Montrer(Facile &fenetre, const ChampsPage &champs) {
    Montrer(fenetre.TitreRecette, champs.TitreRecette);
    Montrer(fenetre.calorie, champs.calorie);
    Montrer(fenetre.DReal, champs.DReal);
    for (int index = 0; index < fenetre.Liste.Count(); ++index) {
        Montrer(fenetre.Liste(index), champs.Liste.at(static_cast<std::size_t>(index)));
    }
    fenetre.NomPhoto.SetText(champs.NomPhoto);
    fenetre.NomPhoto.setCursorPosition(0);
    MontrerLignes(fenetre, champs.Lignes);
    Montrer(fenetre.Saisie(0), champs.Saisie[SaisieMethode], kCouleursMethode);
    Montrer(fenetre.Saisie(1), champs.Saisie[SaisieComplements], kCouleursComplements);
}

/// The page as it comes back from the temporary file, in whose characters the site is written.
PageCapturee PasserParLeFichier(const Facile &fenetre, const QString &texte) {
    EcrireTexte(CheminPage(), texte);
    return {.texte = LireTexte(CheminPage()),
            .adresse = fenetre.Navigateur->address().toString(QUrl::FullyEncoded),
            .site = {.accueil = store::AdresseComplete(store::PartnerSiteHome),
                     .hote = store::PartnerSiteHost.toString()}};
}

/// @param texte the page before it went through the file, which decides its layout
ChampsPage Extraire(Facile &fenetre, const PageCapturee &page, const QString &texte) {
    if (EstPageDebutFin(texte)) {
        return ExtrairePageDebutFin(page, fenetre.Memoire);
    }
    return ExtrairePageCommentee(
        page, [&fenetre](const QString &ligne) { fenetre.setWindowTitle(ligne.left(kTitreLePlusLong)); });
}

void CapturerPage(Facile &fenetre, const QString &texte) {
    ViderChamps(fenetre);
    for (const double part : {5.0, 50.0}) {
        fenetre.Pb.SetFloodPercent(part);
    }
    const PageCapturee page = PasserParLeFichier(fenetre, texte);
    fenetre.Pb.SetFloodPercent(55);
    Montrer(fenetre, Extraire(fenetre, page, texte));
    ChargerPhoto(fenetre);
    fenetre.Pb.SetFloodPercent(100);
    fenetre.Pb.hide();
    fenetre.setWindowTitle(QStringLiteral("terminé ..."));
}

void AnalyserPage(Facile &fenetre, const QString &texte) {
    fenetre.MontrerPhoto({});
    fenetre.TitreRecette.SetText({});
    fenetre.NomPhoto.SetText({});
    CapturerPage(fenetre, texte);
}

/// Reads the page while the user's input is shut out. False when it does not answer; nothing is changed then.
bool LireEtAnalyser(Facile &fenetre) {
    const SansSaisie sansSaisie;
    const WaitPointer sablier;
    const std::optional<QString> texte = LirePage(*fenetre.Navigateur);
    if (texte) {
        AnalyserPage(fenetre, *texte);
    }
    return texte.has_value();
}

} // namespace

void ViderChamps(Facile &fenetre) {
    fenetre.ViderTextes();
    while (fenetre.Ingre.Count() > 1) {
        for (Facile::Array<TextBox> *colonne : {&fenetre.Ingre, &fenetre.Qte, &fenetre.Qte2}) {
            colonne->UnloadLast();
        }
    }
    fenetre.calorie.SetCaption({});
    fenetre.DReal.SetText({});
}

void PresserAnalyse(Facile &fenetre) {
    fenetre.MontrerNavigation(false);
    const bool lue = LireEtAnalyser(fenetre);
    fenetre.Analyse.SetValue(false);
    if (!lue) {
        fenetre.MontrerNavigation(true);
        entry::Annoncer(fenetre, QStringLiteral("La page affichée ne répond pas."),
                        platform::dialogs::Icon::Exclamation);
        return;
    }
    fenetre.MontrerFiche();
    fenetre.MontrerAnalyse(false);
    OterFichiersDePassage();
}

} // namespace webimport::facile
