#include "Reglages.h"

#include "platform/desktop/OpenShell.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/settings/Conversion.h"
#include "platform/settings/Settings.h"
#include "store/Configuration.h"
#include "store/Programme.h"

namespace shell {

namespace {

const QString kPatch = QStringLiteral("Patch");
const QString kMode = QStringLiteral("Mode");
const QString kSplash = QStringLiteral("Splash");

} // namespace

QString Lire(const QString &section, const QString &cle, const QString &defaut) {
    return platform::settings::GetSetting(store::TitreProgramme.toString(), section, cle, defaut);
}

void Enregistrer(const QString &section, const QString &cle, const QString &texte) {
    platform::settings::SaveSetting(store::TitreProgramme.toString(), section, cle, texte);
}

int ModeAffichage() {
    return platform::settings::ToInteger(Lire(kPatch, kMode, QStringLiteral("0")));
}

int ModeCreation() {
    return platform::settings::ToInteger(Lire(kSplash, kSplash, QStringLiteral("0")));
}

void EnregistrerMode(int mode) {
    Enregistrer(kPatch, kMode, QString::number(mode));
}

void Ouvrir(QWidget &fenetre, QStringView adresse) {
    const QString complete = store::AdresseComplete(adresse);
    if (!platform::desktop::OpenShell(complete)) {
        platform::dialogs::Message(&fenetre, store::TitreProgramme.toString(),
                                   QStringLiteral("Impossible d'ouvrir ") + complete,
                                   platform::dialogs::Icon::Exclamation);
    }
}

} // namespace shell
