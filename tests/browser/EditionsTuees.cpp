// Kills a program that is changing a recipe, again and again, and looks after each kill whether the book opens and
// holds every change whose button had changed. Usage: editions_tuees [number of changes, 500 by default]

#include "LivreEssai.h"

#include "browser/Fiche.h"
#include "platform/richtext/RichText.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace browser;
using namespace platform::controls;

namespace {

void choose(Ribbon &button, DropList &list, const QString &text) {
    button.SetValue(true);
    list.AddItems({text});
    list.setCurrentIndex(list.findText(text));
    Q_EMIT list.activated(list.currentIndex());
}

/// A kind of change: where the book holds it, and how it is done.
struct Kind {
    QString query;
    void (*change)(Frmmain &, const QString &);
};

const std::array kKinds{
    Kind{u"SELECT c.NCategorie, c.Categorie From Categorie c, Cocktails r"
         " where r.Numero = 1 and c.NCategorie = r.NCategorie"_qs,
         [](Frmmain &frm, const QString &value) {
             frm.Data(6).SetValue(true);
             frm.LCategorie.SetText(value);
             Q_EMIT frm.LCategorie.EnterPressed();
         }},
    Kind{u"SELECT Numero, preparation From Cocktails where Numero = 1"_qs,
         [](Frmmain &frm, const QString &value) {
             frm.Saisie(0).selectAll();
             frm.Saisie(0).insertPlainText(value);
         }},
    Kind{u"SELECT q.NQuantite, q.Quantite From Quantite q, Ingre l"
         " where l.Numero = 1 and l.NIngre = 1 and q.NQuantite = l.NQuantite order by q.NQuantite desc"_qs,
         [](Frmmain &frm, const QString &value) { choose(frm.Quantite(0), frm.LQuantite, value); }},
    Kind{u"SELECT Numero, Recette From Cocktails where Numero = 1"_qs,
         [](Frmmain &frm, const QString &value) { RenommerListe(frm, 1, value); }},
};

/// What the book holds now where a kind of change writes.
QString stored(const Kind &kind) {
    return platform::richtext::plainText(LivreEssai::text(kind.query));
}

void say(const char *word, std::size_t kind, const QString &value) {
    std::printf("%s %zu %s\n", word, kind, qPrintable(value));
    std::fflush(stdout);
}

/// The program that is killed: changes the book of a folder for ever.
[[noreturn]] void edit(const QString &folder, int firstTurn) {
    store::DefinirDossierProgramme(folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder + u"/reglages"_qs);
    Frmmain frm;
    openView(frm, 0);
    for (int turn = firstTurn;; ++turn) {
        const std::size_t kind = static_cast<std::size_t>(turn) % kKinds.size();
        const QString value = u"essai-%1"_qs.arg(turn);
        say("try", kind, value);
        kKinds.at(kind).change(frm, value);
        say("done", kind, value);
    }
}

/// What the killed program may leave of each kind of change: the text of the last one done, and of the one that it was at.
using Claims = std::array<QStringList, kKinds.size()>;

/// Lets the editor run for some time and kills it. Gives the number of changes done, -1 if it did not even try one.
int killOnce(const QString &folder, int firstTurn, Claims &claims) {
    QProcess editor;
    editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    editor.start(QCoreApplication::applicationFilePath(), {u"--edit"_qs, folder, QString::number(firstTurn)});
    editor.waitForReadyRead();
    editor.waitForFinished(QRandomGenerator::global()->bounded(10, 300));
    editor.kill();
    editor.waitForFinished();
    int done = -1;
    for (const QByteArray &line : editor.readAllStandardOutput().split('\n')) {
        const QStringList words = QString::fromUtf8(line).split(u' ');
        if (words.size() < 3) {
            continue;
        }
        QStringList &claim = claims.at(words[1].toUInt());
        claim = words[0] == u"done" ? QStringList{words[2]} : QStringList{claim[0], words[2]};
        done = std::max(done, 0) + int(words[0] == u"done");
    }
    return done;
}

bool holds(const Kind &kind, const QStringList &claim) {
    const QString value = stored(kind);
    if (!claim.contains(value)) {
        std::fprintf(stderr, "« %s » stored, « %s » shown\n", qPrintable(value), qPrintable(claim[0]));
    }
    return claim.contains(value);
}

} // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--edit") {
        edit(arguments.value(2), arguments.value(3).toInt());
    }
    const LivreEssai book;
    LivreEssai::addTarte();
    LivreEssai::execute({u"INSERT INTO Ingre VALUES (1, 1, 1, 1)"_qs});
    const int wanted = arguments.size() > 1 ? arguments[1].toInt() : 500;
    int done = 0;
    int kills = 0;
    while (done < wanted) {
        Claims claims;
        for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
            claims.at(kind) = {stored(kKinds.at(kind))};
        }
        const int round = killOnce(book.path({}), done + kills, claims);
        if (round < 0) {
            std::fputs("the editor did not start\n", stderr);
            return EXIT_FAILURE;
        }
        done += round;
        ++kills;
        if (!std::equal(kKinds.begin(), kKinds.end(), claims.begin(), holds)) {
            return EXIT_FAILURE;
        }
    }
    std::printf("%d changes, %d kills\n", done, kills);
    return EXIT_SUCCESS;
}
