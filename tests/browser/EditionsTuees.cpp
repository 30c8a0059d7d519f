// Kills a program that is changing a recipe, again and again, and looks after each kill whether the book opens and
// holds every change whose button had changed. Usage: editions_tuees [number of changes, 500 by default]

#include "LivreEssai.h"

#include "browser/Fiche.h"
#include "platform/richtext/RichText.h"

#include <QApplication>
#include <QLineEdit>
#include <QProcess>
#include <QRandomGenerator>

#include <array>
#include <cstdio>
#include <map>

using namespace browser;
using namespace platform::controls;

namespace {

constexpr std::array<const char *, 5> kKinds{"duree", "cout", "texte", "quantite", "titre"};

/// What the book holds now where a kind of change writes.
QString stored(const QString &kind) {
    static const std::map<QString, QString> queries{
        {u"duree"_qs, u"SELECT c.NCategorie, c.Categorie From Categorie c, Cocktails r"
                      " where r.Numero = 1 and c.NCategorie = r.NCategorie"_qs},
        {u"cout"_qs, u"SELECT Numero, Cout From Cocktails where Numero = 1"_qs},
        {u"texte"_qs, u"SELECT Numero, preparation From Cocktails where Numero = 1"_qs},
        {u"quantite"_qs, u"SELECT q.NQuantite, q.Quantite From Quantite q, Ingre l"
                         " where l.Numero = 1 and l.NIngre = 1 and q.NQuantite = l.NQuantite"
                         " order by q.NQuantite desc"_qs},
        {u"titre"_qs, u"SELECT Numero, Recette From Cocktails where Numero = 1"_qs},
    };
    auto book = store::OuvrirLivre();
    auto row = book.OpenRecordset(queries.at(kind));
    const QString text = row.Fields(1).Text();
    return kind == u"texte" ? platform::richtext::plainText(text) : text;
}

void say(const char *word, const QString &kind, const QString &value) {
    std::printf("%s %s %s\n", word, qPrintable(kind), qPrintable(value));
    std::fflush(stdout);
}

void choose(Ribbon &button, DropList &list, const QString &text) {
    button.SetValue(true);
    list.AddItems({text});
    list.setCurrentIndex(list.findText(text));
    Q_EMIT list.activated(list.currentIndex());
}

void change(Frmmain &frm, const QString &kind, const QString &value) {
    if (kind == u"duree") {
        frm.Data(6).SetValue(true);
        frm.LCategorie.SetText(value);
        Q_EMIT frm.LCategorie.EnterPressed();
    } else if (kind == u"cout") {
        frm.Data(2).SetValue(true);
        frm.LCout.setCurrentIndex(value.toInt());
        Q_EMIT frm.LCout.activated(frm.LCout.currentIndex());
    } else if (kind == u"texte") {
        frm.Saisie(0).selectAll();
        frm.Saisie(0).insertPlainText(value);
    } else if (kind == u"quantite") {
        choose(frm.Quantite(0), frm.LQuantite, value);
    } else {
        RenommerListe(frm, 1, value);
    }
}

/// The program that is killed: changes the book of a folder for ever.
[[noreturn]] void edit(const QString &folder, int firstTurn) {
    store::DefinirDossierProgramme(folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder + u"/reglages"_qs);
    Frmmain frm;
    openView(frm, 0);
    for (int turn = firstTurn;; ++turn) {
        const QString kind = QLatin1String(kKinds.at(static_cast<std::size_t>(turn) % kKinds.size()));
        const int round = turn / static_cast<int>(kKinds.size());
        const QString value =
            kind == u"cout" ? QString::number(round % frm.LCout.Count()) : u"essai-%1"_qs.arg(turn);
        say("try", kind, value);
        change(frm, kind, value);
        say("done", kind, value);
    }
}

/// What the killed program has said of one kind of change: the last one done, and the one that it was at.
struct Claim {
    QString done, tried;
};

/// Lets the editor run for some time and kills it. Gives the number of changes done, -1 if it did not even try one.
int killOnce(const QString &folder, int firstTurn, std::map<QString, Claim> &claims) {
    QProcess editor;
    editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    editor.start(QCoreApplication::applicationFilePath(), {u"--edit"_qs, folder, QString::number(firstTurn)});
    editor.waitForReadyRead();
    editor.waitForFinished(QRandomGenerator::global()->bounded(10, 300));
    editor.kill();
    editor.waitForFinished();
    int done = -1;
    for (const QByteArray &line : editor.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() < 3) {
            continue;
        }
        done = std::max(done, 0);
        Claim &claim = claims[QString::fromUtf8(words[1])];
        claim.tried = QString::fromUtf8(words[2]);
        if (words[0] == "done") {
            claim.done = claim.tried;
            ++done;
        }
    }
    return done;
}

bool holds(const std::map<QString, Claim> &claims) {
    for (const auto &[kind, claim] : claims) {
        const QString value = stored(kind);
        const bool broken = claim.tried != claim.done;
        if (value != claim.done && !(broken && value == claim.tried)) {
            std::fprintf(stderr, "%s: « %s » stored, « %s » shown\n", qPrintable(kind), qPrintable(value),
                         qPrintable(claim.done));
            return false;
        }
    }
    return true;
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
        std::map<QString, Claim> claims;
        for (const char *kind : kKinds) {
            claims[QLatin1String(kind)] = {stored(QLatin1String(kind)), stored(QLatin1String(kind))};
        }
        const int round = killOnce(book.path({}), done + kills, claims);
        if (round < 0) {
            std::fputs("the editor did not start\n", stderr);
            return EXIT_FAILURE;
        }
        done += round;
        ++kills;
        if (!holds(claims)) {
            return EXIT_FAILURE;
        }
    }
    std::printf("%d changes, %d kills\n", done, kills);
    return EXIT_SUCCESS;
}
