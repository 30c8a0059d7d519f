// Feeds both page parsers any bytes, as a captured page holds them, and the marking pass the texts that they
// give.
#include "EtapesMethode.h"
#include "webimport/ErreurExecution.h"
#include "webimport/FichierTemporaire.h"
#include "webimport/Marquage.h"
#include "webimport/PageCommentee.h"
#include "webimport/PageDebutFin.h"
#include "webimport/Positions.h"

#include <QGuiApplication>
#include <QTextDocument>
#include <cstdint>
#include <cstdlib>

using namespace webimport;

namespace {

constexpr qsizetype kLongueurDAdresse = 40;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// The steps of a method collected with a new search and a copy of the rest for each; the short way must find
/// the same.
QString etapesParCopies(const QString &explication, const EtapesMethode::Regle &regle) {
    QString etapes;
    qsizetype posEtape = 1;
    while (Position(explication, regle.cherche, posEtape) > 0) {
        posEtape = Position(explication, regle.coupe, posEtape) + 1;
        const QString morceau = Extrait(explication, posEtape - 1).toString();
        QString etape;
        if (!morceau.contains(u"<BR>")) {
            etape = Extrait(morceau, 1 + regle.coupe.size()).toString();
        } else {
            LireSection(morceau, regle.coupe, u"<IMG", etape);
        }
        if (regle.soignee) {
            const qsizetype gras = Position(etape, u"</B>");
            if (gras > 0) {
                etape.insert(gras + 3, u"\r\n");
            }
            if (etape.isEmpty()) {
                continue;
            }
        }
        etapes += (etapes.isEmpty() ? u"- " : u"\r\n\r\n- ") + etape;
    }
    Remplacer(etapes, {u"<BR>", u""});
    return etapes;
}

void requireSameSteps(const QString &texte, const EtapesMethode::Regle &regle) {
    const QString majuscules = EnMajuscules(texte);
    EtapesMethode etapes;
    etapes.Collecter({texte, majuscules}, regle);
    require(etapes.Texte() == etapesParCopies(texte, regle));
}

void requireMarks(const QString &texte) {
    QTextDocument document;
    document.setPlainText(texte);
    const QString avant = document.toPlainText();
    MarquerTexte(document, kCouleursMethode);
    const QString apres = document.toPlainText();
    require(avant.contains(u"<B>") ? apres.size() < avant.size() || avant.contains(u"<B></B>")
                                   : apres == avant);
}

/// A field that no page can give: more rows than hyphens, or a step without its hyphen.
void requireSoundFields(const ChampsPage &champs, const QString &texte) {
    require(qsizetype(champs.Lignes.size()) <= 2 * texte.size());
    const QString &methode = champs.Saisie[SaisieMethode].texte;
    require(methode.isEmpty() || methode.startsWith(u"- "));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray octets(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString texte = TexteDuFichier(octets);
    require(EnregistrementDuTexte(texte).sliced(4) == octets);

    const PageCapturee page{texte,
                            texte.left(kLongueurDAdresse),
                            {u"http://www.latablededemain.example"_qs, u"latablededemain.example"_qs}};
    MemoireImport memoire{size % 2 == 1};
    try {
        requireSoundFields(ExtrairePageCommentee(page, [](const QString & /*ligne*/) {}), texte);
    } catch (const ErreurExecution &) {
        // A page may mean nothing that can be read.
    }
    try {
        requireSoundFields(ExtrairePageDebutFin(page, memoire), texte);
    } catch (const ErreurExecution &) {
        // As above.
    }
    requireSameSteps(texte, {u".gif\">", u"gif\">", true});
    requireSameSteps(texte, {u"border=0>", u"border=0>", false});
    requireMarks(texte);
    return 0;
}
