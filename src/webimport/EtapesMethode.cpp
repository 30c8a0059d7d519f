#include "EtapesMethode.h"

#include "Positions.h"

namespace webimport {

namespace {

constexpr QStringView kFinDeGras = u"</B>";
constexpr QStringView kEntreEtapes = u"\r\n\r\n";
constexpr QStringView kTiret = u"- ";

} // namespace

qsizetype EtapesMethode::Collecter(const LigneLue &explication, const Regle &regle) {
    Occurrences cherche(explication.texte, regle.cherche);
    Occurrences coupe(explication.texte, regle.coupe);
    Occurrences saut(explication.texte, u"<BR>");
    Occurrences image(explication.majuscules, u"<IMG");
    Occurrences cellule(explication.majuscules, u"</TD>");
    qsizetype posEtape = 1;
    while (m_reste > 0 && cherche.Depuis(posEtape) > 0) {
        const qsizetype debut = coupe.Depuis(posEtape);
        const qsizetype contenu = debut + regle.coupe.size();
        posEtape = debut + 1;
        QStringView etape = Extrait(explication.texte, contenu);
        // A section that begins with the cutting text and ends at the next picture, but for its last step at
        // the table cell; without any line break it is left as it is.
        if (saut.Depuis(debut) > 0) {
            const qsizetype finImage = image.Depuis(posEtape);
            const qsizetype fin = finImage > 0 ? finImage : cellule.Depuis(posEtape);
            etape = Rogner(fin > 0 ? Extrait(explication.texte, contenu, fin - contenu) : etape);
        }
        if (regle.soignee && etape.isEmpty()) {
            continue;
        }
        QString texte = etape.toString();
        const qsizetype gras = Position(texte, kFinDeGras);
        if (regle.soignee && gras > 0) {
            texte.insert(gras - 1 + kFinDeGras.size(), kFinDeLigne);
        }
        Ajouter(std::move(texte));
    }
    return posEtape;
}

void EtapesMethode::Ajouter(QString etape) {
    m_reste -= etape.size() + kEntreEtapes.size() + kTiret.size();
    Remplacer(etape, {u"<BR>", u""});
    if (!m_texte.isEmpty()) {
        m_texte += kEntreEtapes;
    }
    m_texte += kTiret;
    m_texte += etape;
}

} // namespace webimport
