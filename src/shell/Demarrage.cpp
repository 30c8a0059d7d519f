#include "Demarrage.h"

#include "FinDuProgramme.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/controls/Fonts.h"
#include "platform/dialogs/French.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/settings/Conversion.h"
#include "platform/settings/Settings.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QScreen>
#include <cstdlib>

namespace shell {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;
namespace settings = platform::settings;

const QString kReglages = QStringLiteral("Settings");

QString titre() {
    return store::TitreProgramme.toString();
}

QString lire(const QString &section, const QString &cle, const QString &defaut) {
    return settings::GetSetting(titre(), section, cle, defaut);
}

[[noreturn]] void refuser(const QString &raison) {
    dialogs::Message(nullptr, titre(), raison, dialogs::Icon::Critical);
    throw FinDuProgramme{EXIT_FAILURE};
}

/// The screen in twips, at 15 to the pixel whatever the scale of the windows.
Extent ecran() {
    const QSize taille = QGuiApplication::primaryScreen()->size();
    return {Twips(taille.width() * kTwipsPerPixel), Twips(taille.height() * kTwipsPerPixel)};
}

void VerifierEcran() {
    constexpr Twips kLargeurMinimum{12000};
    if (ecran().width < kLargeurMinimum) {
        refuser(
            QStringLiteral("La configuration minimum de 800*600 est nécessaire pour le fonctionnement de ") +
            titre() + QStringLiteral(" !"));
    }
}

void VerifierInstance(const platform::desktop::SingleInstance &instance) {
    if (instance.IsRunningElsewhere()) {
        refuser(QStringLiteral("  ") + titre() +
                QStringLiteral(
                    " est en cours d'utilsation sur votre machine\r\rPour pouvoir l'utiliser de nouveau, "
                    "veuillez fermer la version ouverte !"));
    }
}

void Placer(browser::Frmmain &frm) {
    const Twips hauteur(frm.height() * kTwipsPerPixel);
    const Twips largeur(frm.width() * kTwipsPerPixel);
    const QString haut = settings::ToText(IntegerHalf(ecran().height - hauteur).value());
    const QString gauche = settings::ToText(IntegerHalf(ecran().width - largeur).value());
    const Twips top(settings::ToSingle(lire(kReglages, QStringLiteral("MainTop"), haut)));
    const Twips left(settings::ToSingle(lire(kReglages, QStringLiteral("MainLeft"), gauche)));
    frm.Move(left, top);
}

// Storing that no view is loaded is what makes the press take effect: a sort button ignores a press of the
// view that the settings already name.
void ChargerPremiereListe(browser::Frmmain &frm) {
    const int vue = browser::VueCourante();
    browser::EnregistrerVue(browser::kVueAucune);
    if (vue != browser::kVueAucune) {
        frm.Bouton(vue).SetValue(true);
    }
}

void Fermer(browser::Frmmain &frm) {
    Quitter(frm);
    frm.Btn_Quit.Release();
    settings::SaveSetting(titre(), kReglages, QStringLiteral("MainTop"), settings::ToText(frm.Top().value()));
    settings::SaveSetting(titre(), kReglages, QStringLiteral("MainLeft"),
                          settings::ToText(frm.Left().value()));
}

void Reduire(browser::Frmmain &frm) {
    frm.Btn_Min.Release();
    frm.showMinimized();
}

void Brancher(browser::Frmmain &frm) {
    QObject::connect(&frm, &browser::Frmmain::FermetureDemandee, &frm, [&frm] { Fermer(frm); });
    QObject::connect(&frm, &browser::Frmmain::CloseRequested, &frm, [&frm] { Quitter(frm); });
    QObject::connect(&frm, &browser::Frmmain::ReductionDemandee, &frm, [&frm] { Reduire(frm); });
    // A tool is enabled by the window that it opens.
    for (int index = 0; index < frm.Outils.Count(); ++index) {
        frm.Outils(index).setEnabled(false);
        frm.LBtn(index).setEnabled(false);
    }
}

} // namespace

void PreparerApplication() {
    store::PreparerLivre();
    QApplication::setApplicationName(titre());
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setWindowIcon(resourcePicture(QStringLiteral(":/icones/savorel.png")));
    substituteFonts();
    QApplication::setFont(interfaceFont(Face::Verdana, 8.25));
    dialogs::SpeakFrench(store::DossierProgramme() + QStringLiteral("/translations"));
}

void ChargerFrmmain(browser::Frmmain &frm, const platform::desktop::SingleInstance &instance) {
    frm.setWindowTitle(titre());
    frm.SetMode(
        settings::ToInteger(lire(QStringLiteral("Patch"), QStringLiteral("Mode"), QStringLiteral("0"))));
    for (auto *groupe : {&frm.Outils, &frm.Bouton}) {
        groupe->ForEach([](Ribbon &bouton) { bouton.SetPressedPicture(bouton.Picture()); });
    }
    VerifierEcran();
    VerifierInstance(instance);
    frm.PreparerListes();
    frm.SetCouleurSelection(Qt::blue);
    Placer(frm);
    for (DropList *liste : {&frm.LCategorie, &frm.LMateriel, &frm.LVerre, &frm.LCout, &frm.LDiff}) {
        liste->setCursor(frm.CurseurMain());
    }
    frm.RemplirVocabulaires();
    frm.Scroll(0).SetBackColor(QColor(kListGround));
    frm.Liste.SetBackColor(QColor(kListGround));
    frm.LFilms.SetBackColor(QColor(kListGround));
    Brancher(frm);
    ChargerPremiereListe(frm);
    frm.show();
    frm.Liste.setFocus();
}

void Quitter(browser::Frmmain &frm) {
    if (!dialogs::Ask(&frm, titre(),
                      QStringLiteral("Voulez vous quitter ") + titre() + QStringLiteral(" ?"))) {
        return;
    }
    const QString brouillon = store::DossierProgramme() + QStringLiteral("/temp.bmp");
    if (QFile::exists(brouillon)) {
        QFile::remove(brouillon);
    }
    throw FinDuProgramme{};
}

} // namespace shell
