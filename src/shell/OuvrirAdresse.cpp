#include "OuvrirAdresse.h"

#include "platform/desktop/OpenShell.h"
#include "platform/dialogs/MessageBox.h"
#include "store/Configuration.h"
#include "store/Programme.h"

namespace shell {

void OuvrirAdresse(QWidget &fenetre, QStringView adresse) {
    const QString complete = store::AdresseComplete(adresse);
    if (!platform::desktop::OpenShell(complete)) {
        platform::dialogs::Message(&fenetre, store::TitreProgramme.toString(),
                                   QStringLiteral("Impossible d'ouvrir ") + complete,
                                   platform::dialogs::Icon::Exclamation);
    }
}

} // namespace shell
