// Feeds both page parsers any bytes, as a captured page holds them, and the marking pass the texts that they
// give.
#include "webimport/ErreurExecution.h"
#include "webimport/FichierTemporaire.h"
#include "webimport/Marquage.h"
#include "webimport/PageCommentee.h"
#include "webimport/PageDebutFin.h"

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
    requireMarks(texte);
    return 0;
}
