#include "Reglages.h"

#include "Programme.h"

#include "platform/settings/Settings.h"

namespace store {

namespace settings = platform::settings;

QString LireReglage(const Reglage &reglage) {
    return LireReglage(reglage, reglage.defaut.toString());
}

QString LireReglage(const Reglage &reglage, const QString &defaut) {
    return settings::GetSetting(TitreProgramme.toString(), reglage.section.toString(), reglage.cle.toString(),
                                defaut);
}

void EnregistrerReglage(const Reglage &reglage, const QString &texte) {
    settings::SaveSetting(TitreProgramme.toString(), reglage.section.toString(), reglage.cle.toString(),
                          texte);
}

} // namespace store
