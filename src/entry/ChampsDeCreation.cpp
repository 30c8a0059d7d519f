#include "ChampsDeCreation.h"

#include "store/Programme.h"
#include "store/Textes.h"

namespace entry {

namespace dialogs = platform::dialogs;

void Annoncer(QWidget &fenetre, const QString &texte, dialogs::Icon icone) {
    dialogs::Message(&fenetre, store::TitreProgramme.toString(), texte, icone);
}

bool EstRempli(QWidget &fenetre, platform::controls::TextBox &champ, const QString &reproche) {
    if (!store::SansBlancs(champ.Text()).isEmpty()) {
        return true;
    }
    Annoncer(fenetre, reproche, dialogs::Icon::Exclamation);
    champ.setFocus();
    return false;
}

bool ConfirmerAbandon(QWidget &fenetre) {
    return dialogs::Ask(&fenetre, store::TitreProgramme.toString(),
                        QStringLiteral("Cette recette n'est pas créée.\r\r"
                                       "Voulez-vous revenir au menu principal sans la créer ?"));
}

} // namespace entry
