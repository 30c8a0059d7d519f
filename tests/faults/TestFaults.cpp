// Every act of the store, on a disk that fails at each of its calls in each of some ways, or ended there. Afterwards the
// stock tool must find a sound book that holds what was in it, and what is reported as done.

#include "Faults.h"
#include "Files.h"
#include "OldBook.h"

#include "pictures/EnregistrerPhoto.h"
#include "store/AccesBase.h"
#include "store/AncienLivre.h"
#include "store/CopieFichier.h"
#include "store/CreationRecette.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <openssl/evp.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace store;
using faults::Kind;

namespace {

struct Way {
    const char *name;
    Kind kind;
    int error;
    int step; ///< every how many calls it is tried, unless at all
};

constexpr std::array kWays{
    Way{"no room from here on", Kind::AllFail, ENOSPC, 4},
    Way{"all calls fail from here on", Kind::AllFail, EIO, 50},
    Way{"no room once", Kind::OneFails, ENOSPC, 50},
    Way{"one call fails", Kind::OneFails, EIO, 20},
    Way{"half written, no room", Kind::ShortWrite, ENOSPC, 50},
    Way{"half written", Kind::ShortWrite, EIO, 50},
    Way{"killed before", Kind::KillBefore, 0, 20},
    Way{"killed after", Kind::KillAfter, 0, 50},
};

QString here(const QString &name) {
    return DossierProgramme() + u'/' + name;
}

void create(const ModeDeCreation &mode) {
    RecetteSaisie typed;
    typed.titre = u"Flan"_s;
    typed.plat = u"Dessert"_s;
    typed.vin = u"Cidre"_s;
    typed.preparation = QString(9000, u'x');
    typed.lignes = {{u"3"_s, u"g"_s, u"oeuf"_s}, {u"1"_s, u"l"_s, u"lait"_s}};
    EnregistrerRecette(typed, mode, [](const QString &name) {
        QImage picture(64, 64, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        return pictures::EnregistrerPhoto(picture, name);
    });
}

struct Operation {
    const char *name;
    void (*act)();
    bool goesOn = false; ///< passes over a statement that fails
};

const Operation kOperations[] = {
    {"rename", [] { ModifierLibelle(kCategorie, 1, u"5 mn"_s); }},
    {"text", [] { ModifierChamp(1, ChampRecette::preparation, QString(20'000, u'y')); }},
    {"value", [] { ModifierChamp(1, ChampRecette::Nreal, *RechercherNumero(u"Dessert"_s, kRealisation)); }},
    {"line",
     [] {
         RemplacerLigneIngre(1, {1, 1, 1}, {2, 2, 2});
     }},
    {"delete",
     [] {
         SupprimerFiches(kCocktails, 1);
         SupprimerFiches(kIngre, 1);
     }},
    {"manual save", [] { create(kSaisieManuelle); }, true},
    {"import save", [] { create(kImport); }},
    {"backup", [] { CopierLivre(here(u"copie.mdb"_s)); }},
    {"restore",
     [] {
         CopierFichier(here(u"copie.mdb"_s), CheminNouveauLivre());
         RemplacerLivre();
     }},
    {"conversion",
     [] {
         ConvertirAncienLivre(here(u"vieux.mdb"_s), CheminNouveauLivre());
         RemplacerLivre();
     }},
};

/// The key of a book as the stock tool takes it; the tool would derive it anew each time.
QByteArray keyOf(const QString &book) {
    static QHash<QByteArray, QByteArray> keys;
    const QByteArray salt = contentOf(book).left(16);
    QByteArray &key = keys[salt];
    if (key.isEmpty()) {
        key.resize(32);
        PKCS5_PBKDF2_HMAC_SHA1("PoivreEtSel4", -1, reinterpret_cast<const uchar *>(salt.constData()), 16,
                               64'000, 32, reinterpret_cast<uchar *>(key.data()));
    }
    return "x'" + key.toHex() + salt.toHex() + '\'';
}

using Rows = QSet<QByteArray>;

/// The rows of a book as the stock tool tells them, and a row more for what it does not find sound.
Rows rowsOf(const QString &book) {
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(QStringLiteral(SQLCIPHER_TOOL), {u"-batch"_s, book});
    tool.write("PRAGMA key = \"" + keyOf(book) +
               "\"; PRAGMA cipher_page_size = 4096; PRAGMA integrity_check;\n.dump\n");
    tool.closeWriteChannel();
    tool.waitForFinished();
    Rows rows;
    for (const QByteArray &line : tool.readAll().split('\n')) {
        if (!line.startsWith("CREATE") && line != "ok") {
            rows.insert(line);
        }
    }
    return rows;
}

/// Runs an operation in another process. The calls it made, and whether it reported success.
std::pair<int, bool> run(const Operation &operation, const Way &way, int at) {
    auto *calls = static_cast<int *>(
        mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const pid_t child = fork();
    if (child == 0) {
        faults::arm(way.kind, at, way.error);
        int result = 0;
        try {
            operation.act();
        } catch (const std::exception &) {
            result = 1;
        }
        *calls = faults::calls();
        _exit(result);
    }
    int status = -1;
    waitpid(child, &status, 0);
    const int count = *calls;
    munmap(calls, sizeof(int));
    return {count, status == 0};
}

} // namespace

class TestFaults : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_model;
    std::unique_ptr<QTemporaryDir> m_folder;

    void refresh() {
        m_folder = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_folder->path());
        QVERIFY(QDir(m_folder->path()).mkdir(u"photos"_s));
        for (const QString &name : QDir(m_model.path()).entryList(QDir::Files)) {
            QVERIFY(QFile::copy(m_model.filePath(name), here(name)));
        }
        QVERIFY(QFile::link(QStringLiteral(READING_PROGRAM), here(u"lecteur-jet"_s)));
    }

    /// What is wrong with the books after a fault; nothing where all is well.
    static QString judge(const Rows &before, const Rows &after, bool done, bool goesOn) {
        const Rows found = rowsOf(CheminBase());
        if (!(before & after).subtract(found).isEmpty()) {
            return u"rows lost: "_s +
                   QString::fromUtf8((before & after).subtract(found).values().join("; ").left(300));
        }
        if (!goesOn && !(found - before - after).isEmpty()) {
            return u"strange: "_s + QString::fromUtf8((found - before - after).values().join("; ").left(300));
        }
        if (!goesOn && done && found != after) {
            return u"done, but not there"_s;
        }
        return {};
    }

    QStringList files() const {
        QStringList all = QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
        return all + QDir(here(u"photos"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    /// Copies that are not whole, and what the next start does not remove.
    QString judgeFiles(const QStringList &expected) const {
        OuvrirLivre();
        OterRestes();
        pictures::OterBrouillonsDePhotos();
        QStringList wrong = files();
        wrong.removeIf([&](const QString &name) { return expected.contains(name); });
        const QByteArrayList whole{contentOf(m_model.filePath(u"db.mdb"_s)),
                                   contentOf(m_model.filePath(u"copie.mdb"_s))};
        for (const QString &copy : {here(u"copie.mdb"_s), CheminAvantRestauration()}) {
            if (QFile::exists(copy) && !whole.contains(contentOf(copy))) {
                wrong += copy;
            }
        }
        return wrong.join(u' ');
    }

private Q_SLOTS:

    void initTestCase() {
        DefinirDossierProgramme(m_model.path());
        CreerLivre(CheminBase());
        {
            auto book = OuvrirLivre();
            book.Execute(u"INSERT INTO Categorie VALUES (1, '10 mn'), (2, '1 heure')"_s);
            book.Execute(u"INSERT INTO Realisation VALUES (1, 'Plat')"_s);
            book.Execute(u"INSERT INTO Cocktails (Numero, Recette, preparation) "
                         "VALUES (1, 'Tarte', 'Cuire'), (2, 'Soupe', 'Mixer')"_s);
            book.Execute(u"INSERT INTO Ingre VALUES (1, 1, 1, 1), (1, 3, 3, 3), (2, 1, 1, 1)"_s);
        }
        QVERIFY(QFile::copy(CheminBase(), here(u"copie.mdb"_s)));
        OuvrirLivre(here(u"copie.mdb"_s))
            .Execute(u"UPDATE Cocktails SET Recette = 'Gratin' WHERE Numero = 1"_s);
        writeFile(here(u"vieux.mdb"_s), oldBook());
    }

    void operations_data() {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(kOperations)); ++i) {
            QTest::newRow(kOperations[i].name) << i;
        }
    }

    void operations() {
        QFETCH(int, index);
        const Operation &operation = kOperations[index];
        refresh();
        const Rows before = rowsOf(CheminBase());
        const auto [calls, done] = run(operation, {"", Kind::None, 0, 1}, 0);
        QVERIFY(done);
        const Rows after = rowsOf(CheminBase());
        const QStringList expected = files();
        QStringList failures;
        int points = 0;
        for (const Way &way : kWays) {
            for (int at = 1; at <= calls; at += kEveryCall ? 1 : way.step) {
                refresh();
                const bool succeeded = run(operation, way, at).second;
                ++points;
                const QString wrong =
                    judge(before, after, succeeded, operation.goesOn) + judgeFiles(expected);
                if (!wrong.isEmpty()) {
                    failures +=
                        QString::fromUtf8(way.name) + u" at "_s + QString::number(at) + u": "_s + wrong;
                }
            }
        }
        qInfo("%d calls, %d points, %d failures", calls, points, int(failures.size()));
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u'\n').left(5000)));
    }

private:
    static constexpr bool kEveryCall = EVERY_CALL;
};

QTEST_GUILESS_MAIN(TestFaults)
#include "TestFaults.moc"
