#include "Modes.h"

#include "platform/settings/Conversion.h"
#include "store/Reglages.h"

namespace shell {

int ModeAffichage() {
    return platform::settings::ToInteger(store::LireReglage(store::kMode));
}

int ModeCreation() {
    return platform::settings::ToInteger(store::LireReglage(store::kModeCreation));
}

void EnregistrerMode(int mode) {
    store::EnregistrerReglage(store::kMode, QString::number(mode));
}

} // namespace shell
