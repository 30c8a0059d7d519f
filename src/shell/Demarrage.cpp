#include "Demarrage.h"

#include "BarreOutils.h"
#include "Fenetres.h"
#include "FinDuProgramme.h"
#include "Modes.h"
#include "Patch.h"
#include "Reduction.h"
#include "Sauvegarde.h"

#include "browser/Vues.h"
#include "pictures/EnregistrerPhoto.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/Skin.h"
#include "platform/dialogs/French.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/FileError.h"
#include "platform/images/LoadPicture.h"
#include "platform/images/ResourcePicture.h"
#include "platform/settings/Conversion.h"
#include "store/CopieFichier.h"
#include "store/Livre.h"
#include "store/Programme.h"
#include "store/Reglages.h"
#include "store/Textes.h"
#include "webimport/facile/FichiersDePassage.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QProxyStyle>
#include <QScreen>
#include <QThreadPool>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace shell {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;
namespace settings = platform::settings;

QString Titre() {
    return store::TitreProgramme.toString();
}

[[noreturn]] void Refuser(const QString &raison) {
    dialogs::Message(nullptr, Titre(), raison, dialogs::Icon::Critical);
    throw FinDuProgramme{EXIT_FAILURE};
}

/// The screen in twips, at 15 to the pixel whatever the scale of the windows.
Extent Ecran() {
    const QSize taille = QGuiApplication::primaryScreen()->size();
    return {Twips(taille.width() * kTwipsPerPixel), Twips(taille.height() * kTwipsPerPixel)};
}

void VerifierEcran() {
    constexpr Twips kLargeurMinimum{12000};
    if (Ecran().width < kLargeurMinimum) {
        Refuser(
            QStringLiteral("La configuration minimum de 800*600 est nécessaire pour le fonctionnement de ") +
            Titre() + QStringLiteral(" !"));
    }
}

void VerifierInstance(const platform::desktop::SingleInstance &instance) {
    if (instance.IsRunningElsewhere()) {
        Refuser(QStringLiteral("  ") + Titre() +
                QStringLiteral(
                    " est en cours d'utilsation sur votre machine\r\rPour pouvoir l'utiliser de nouveau, "
                    "veuillez fermer la version ouverte !"));
    }
}

/// True where the whole window lies in the available area of a screen.
bool EstSurUnEcran(const QRect &fenetre) {
    const QList<QScreen *> ecrans = QGuiApplication::screens();
    return std::any_of(ecrans.begin(), ecrans.end(), [&fenetre](const QScreen *ecran) {
        return ecran->availableGeometry().contains(fenetre);
    });
}

struct Place {
    Twips gauche, haut;
};

Place PlaceCentree(const browser::Frmmain &frm) {
    return {IntegerHalf(Ecran().width - Twips(frm.width() * kTwipsPerPixel)),
            IntegerHalf(Ecran().height - Twips(frm.height() * kTwipsPerPixel))};
}

/// Centred, but beside a bar at the edge of the screen.
void Centrer(browser::Frmmain &frm) {
    const auto [gauche, haut] = PlaceCentree(frm);
    frm.Move(gauche, haut);
    frm.CenterOn(frm);
}

void Placer(browser::Frmmain &frm) {
    const auto [gaucheCentre, hautCentre] = PlaceCentree(frm);
    const Twips haut(
        settings::ToSingle(store::LireReglage(store::kMainTop, settings::ToText(hautCentre.value()))));
    const Twips gauche(
        settings::ToSingle(store::LireReglage(store::kMainLeft, settings::ToText(gaucheCentre.value()))));
    frm.Move(gauche, haut);
    // The screen that the place was stored for may be gone, or the window was left half outside it.
    if (!EstSurUnEcran(frm.geometry())) {
        Centrer(frm);
    }
}

// A background picture has no place in the window; one that is slow or cannot be read must not hold up the start.
void LireFondEcran() {
    const QString fichier = store::LireReglage(store::kFondScreen);
    const QString dossier =
        store::LireReglage(store::kRepFondScreen, store::DossierProgramme() + QStringLiteral("/Fond Ecran/"));
    if (fichier.isEmpty() || store::SansBlancs(fichier).endsWith(QDir::separator())) {
        return;
    }
    QThreadPool::globalInstance()->start([chemin = dossier + fichier] {
        try {
            platform::images::LoadPicture(chemin);
        } catch (const platform::images::PictureError &) {
        }
    });
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
    store::EnregistrerReglage(store::kMainTop, settings::ToText(frm.Top().value()));
    store::EnregistrerReglage(store::kMainLeft, settings::ToText(frm.Left().value()));
}

void ReduireTout(Fenetres &fenetres) {
    fenetres.Pop.FenetreOuverte = browser::Pop::kSeule;
    Reduire(fenetres, fenetres.Principale);
    fenetres.Principale.Btn_Min.Release();
}

void ChoisirMode(browser::Frmmain &frm) {
    Patch patch(frm);
    patch.CenterOn(frm);
    patch.ShowModal();
    frm.SetMode(ModeAffichage());
}

void Brancher(Fenetres &fenetres) {
    browser::Frmmain &frm = fenetres.Principale;
    QObject::connect(&frm, &browser::Frmmain::FermetureDemandee, &frm, [&frm] { Fermer(frm); });
    QObject::connect(&frm, &browser::Frmmain::ReductionDemandee, &frm,
                     [&fenetres] { ReduireTout(fenetres); });
    QObject::connect(&frm.LPatch, &Label::DoubleClicked, &frm, [&frm] { ChoisirMode(frm); });
    for (SkinnedWindow *fenetre :
         {static_cast<SkinnedWindow *>(&frm), static_cast<SkinnedWindow *>(&fenetres.Pop)}) {
        QObject::connect(fenetre, &SkinnedWindow::CloseRequested, &frm, [&frm] { Quitter(frm); });
    }
    // Not at once: a tool window that comes back runs the events of the program until it is closed.
    QObject::connect(
        &fenetres.Pop, &browser::Pop::EtatChange, &frm, [&fenetres] { SuivreEtat(fenetres); },
        Qt::QueuedConnection);
    BrancherBarreOutils(fenetres);
}

// The word must be the French one: a truth is stored in the words of the user's language, and only there does the screen
// open by itself.
void AccueillirSiVoulu(Fenetres &fenetres) {
    if (store::LireReglage(store::kSplashAuto) == QStringLiteral("Vrai")) {
        fenetres.Fenetre(browser::Outil::APropos).ShowModal();
    }
}

/// The look of what the toolkit draws. The buttons of its dialogs are words alone, as those of the message boxes.
class Style : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

} // namespace

void PreparerApplication() {
    store::PreparerCle();
    QApplication::setApplicationName(Titre());
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Style(QStringLiteral("Fusion"))); // the application owns it
    QApplication::setPalette(programPalette());
    QToolTip::setPalette(programPalette());
    QApplication::setWindowIcon(platform::images::programIcon());
    substituteFonts();
    QApplication::setFont(interfaceFont(Face::Verdana, 8.25));
    dialogs::SpeakFrench(store::DossierProgramme() + QStringLiteral("/translations"));
}

void ChargerFrmmain(Fenetres &fenetres, const platform::desktop::SingleInstance &instance) {
    browser::Frmmain &frm = fenetres.Principale;
    frm.SetHeading(Titre());
    Brancher(fenetres);
    // The opening screen stands over the window that is to come.
    Centrer(frm);
    AccueillirSiVoulu(fenetres);
    frm.SetMode(ModeAffichage());
    for (auto *groupe : {&frm.Outils, &frm.Bouton}) {
        groupe->ForEach([](Ribbon &bouton) { bouton.SetPressedPicture(bouton.Picture()); });
    }
    VerifierEcran();
    VerifierInstance(instance);
    webimport::facile::OterFichiersDePassage();
    store::OterRestes();
    pictures::OterBrouillonsDePhotos();
    frm.PreparerListes();
    frm.SetCouleurSelection(Qt::blue);
    LireFondEcran();
    fenetres.Pop.FenetreOuverte = browser::Pop::kSeule;
    Placer(frm);
    for (DropList *liste : {&frm.LCategorie, &frm.LMateriel, &frm.LVerre, &frm.LCout, &frm.LDiff}) {
        liste->setCursor(frm.CurseurMain());
    }
    frm.RemplirVocabulaires();
    frm.Scroll(0).SetBackColor(kListGround);
    frm.Liste.SetBackColor(kListGround);
    frm.LFilms.SetBackColor(kListGround);
    PreparerLivre(frm);
    ChargerPremiereListe(frm);
    frm.show();
    frm.Liste.setFocus();
}

void Quitter(browser::Frmmain &frm) {
    if (!dialogs::Ask(&frm, Titre(),
                      QStringLiteral("Voulez vous quitter ") + Titre() + QStringLiteral(" ?"))) {
        return;
    }
    const QString brouillon = store::DossierProgramme() + QStringLiteral("/temp.bmp");
    std::error_code echec;
    std::filesystem::remove(brouillon.toStdU16String(), echec);
    if (echec) {
        throw platform::files::FileError(brouillon, echec.value());
    }
    throw FinDuProgramme{};
}

} // namespace shell
