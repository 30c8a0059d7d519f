#include "Files.h"
#include "SmallFilesOnly.h"

#include "platform/database/DatabaseError.h"
#include "store/CopieFichier.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

#include <memory>

using namespace store;

namespace {

/// Does something as a user to whom things can be forbidden, which the administrator is not.
template <class Act>
void asPlainUser(Act act) {
    constexpr uid_t kNobody = 65534;
    const bool administrator = geteuid() == 0;
    if (administrator && setresuid(kNobody, kNobody, 0) != 0) {
        qFatal("cannot become another user");
    }
    act();
    if (administrator && setresuid(0, 0, 0) != 0) {
        qFatal("cannot become the administrator again");
    }
}

void makeBook(const QString &path, const QString &recipe) {
    CreerLivre(path);
    auto book = OuvrirLivre(path);
    book.Execute(u"INSERT INTO Cocktails (Numero, Recette) VALUES (1, '%1')"_qs.arg(recipe));
}

QString recipeOf(const QString &path) {
    auto book = OuvrirLivre(path);
    return book.OpenRecordset(u"SELECT * From Cocktails"_qs).Fields(1).Text();
}

} // namespace

class TestCopieFichier : public QObject {
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::System); }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_folder->path());
        makeBook(CheminBase(), u"Tarte"_qs);
        makeBook(path(u"copie.mdb"_qs), u"Soupe"_qs);
    }

    void replacedBookIsKept() {
        CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre());
        writeFile(CheminBase() + u"-journal"_qs, "of a change that is done");
        RemplacerLivre();
        QCOMPARE(recipeOf(CheminBase()), u"Soupe"_qs);
        QCOMPARE(recipeOf(CheminAvantRestauration()), u"Tarte"_qs);
        QCOMPARE(files(), QStringList({u"copie.mdb"_qs, u"db-avant-restauration.mdb"_qs, u"db.mdb"_qs}));
        // What was kept goes back, and changes places with the book.
        CopierFichier(CheminAvantRestauration(), CheminNouveauLivre());
        RemplacerLivre();
        QCOMPARE(recipeOf(CheminBase()), u"Tarte"_qs);
        QCOMPARE(recipeOf(CheminAvantRestauration()), u"Soupe"_qs);
    }

    void aLinkedBookStaysALink() {
        const QTemporaryDir elsewhere;
        const QString real = elsewhere.filePath(u"livre.mdb"_qs);
        QVERIFY(QFile::rename(CheminBase(), real));
        QVERIFY(QFile::link(real, CheminBase()));
        QVERIFY(EstLeLivre(real));
        QVERIFY(!EstLeLivre(path(u"copie.mdb"_qs)));
        QVERIFY_THROWS_EXCEPTION(CopieError, CopierLivre(real));
        CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre());
        RemplacerLivre();
        QVERIFY(QFileInfo(CheminBase()).isSymLink());
        QCOMPARE(recipeOf(real), u"Soupe"_qs);
    }

    void fullDiskChangesNothing() {
        const QByteArray before = contentOf(CheminBase());
        writeFile(path(u"petit.mdb"_qs), "small");
        const QStringList present = files();
        {
            const SmallFilesOnly full(10'000);
            QVERIFY_THROWS_EXCEPTION(CopieError, CopierLivre(path(u"copie.mdb"_qs)));
            QVERIFY_THROWS_EXCEPTION(CopieError, CopierLivre(path(u"absente.mdb"_qs)));
            // The new book still has its place, the copy of the former one no more.
            CopierFichier(path(u"petit.mdb"_qs), CheminNouveauLivre());
            QVERIFY_THROWS_EXCEPTION(CopieError, RemplacerLivre());
        }
        QCOMPARE(contentOf(CheminBase()), before);
        QCOMPARE(recipeOf(path(u"copie.mdb"_qs)), u"Soupe"_qs);
        QCOMPARE(files(), present);
    }

    void whatMustNotBeWrittenStays() {
        const QByteArray before = contentOf(CheminBase());
        CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre());
        QVERIFY(QFile::setPermissions(CheminBase(), QFile::ReadOwner | QFile::ReadOther));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
        asPlainUser([] { QVERIFY_THROWS_EXCEPTION(CopieError, RemplacerLivre()); });
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555)));
        asPlainUser([this] {
            QVERIFY_THROWS_EXCEPTION(CopieError, CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre()));
        });
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
        QCOMPARE(contentOf(CheminBase()), before);
        QCOMPARE(files(), QStringList({u"copie.mdb"_qs, u"db.mdb"_qs}));
    }

    void wrongFilesNeverTakeThePlaceOfTheKeptBook() {
        const auto restore = [this](const QString &name) {
            CopierFichier(path(name), CheminNouveauLivre());
            RemplacerLivre();
        };
        writeFile(path(u"facture.mdb"_qs), "Monsieur,");
        writeFile(path(u"lettre.mdb"_qs), "Madame,");
        for (const char *name : {"facture.mdb", "lettre.mdb", "facture.mdb", "copie.mdb"}) {
            restore(QString::fromLatin1(name));
            QCOMPARE(recipeOf(CheminAvantRestauration()), u"Tarte"_qs);
            QCOMPARE(CopieAReprendre(), CheminAvantRestauration());
        }
        QCOMPARE(contentOf(path(u"db-illisible.mdb"_qs)), QByteArray("Monsieur,"));
        QCOMPARE(contentOf(path(u"db-illisible-2.mdb"_qs)), QByteArray("Madame,"));
        QVERIFY(!QFile::exists(path(u"db-illisible-3.mdb"_qs)));
        // A book that another program holds is neither.
        const auto held = OuvrirLivre();
        QVERIFY_THROWS_EXCEPTION(CopieError, restore(u"copie.mdb"_qs));
        writeFile(CheminAvantRestauration(), "Monsieur,");
        QCOMPARE(CopieAReprendre(), QString());
    }

    void rightsAreThoseOfTheBook() {
        constexpr auto kShared = 0660U;
        constexpr auto kOwn = 0600U;
        platform::files::setRights(CheminBase(), kShared);
        platform::files::setRights(path(u"copie.mdb"_qs), 0666);
        writeFile(path(u"mienne.mdb"_qs), {});
        platform::files::setRights(path(u"mienne.mdb"_qs), kOwn);
        CopierLivre(path(u"neuve.mdb"_qs));
        CopierLivre(path(u"mienne.mdb"_qs));
        CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre());
        RemplacerLivre();
        for (const QString &name : {u"neuve.mdb"_qs, u"db.mdb"_qs, u"db-avant-restauration.mdb"_qs}) {
            QCOMPARE(platform::files::rightsOf(path(name)), kShared);
        }
        QCOMPARE(platform::files::rightsOf(path(u"mienne.mdb"_qs)), kOwn);
    }

    void killedAtAnyMomentLeavesAWholeBook() {
        constexpr int kRounds = 25;
        const QByteArray whole = contentOf(CheminBase());
        const QByteArray other = contentOf(path(u"copie.mdb"_qs));
        for (int round = 0; round < kRounds; ++round) {
            const pid_t child = fork();
            QVERIFY(child >= 0);
            if (child == 0) {
                for (;;) {
                    CopierFichier(path(u"copie.mdb"_qs), CheminNouveauLivre());
                    RemplacerLivre();
                }
            }
            QTest::qSleep(3 + 2 * round);
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            for (const QString &book : {CheminBase(), CheminAvantRestauration()}) {
                const QByteArray found = contentOf(book);
                QVERIFY(found == whole || found == other || !QFile::exists(book));
            }
            QVERIFY(!recipeOf(CheminBase()).isEmpty());
        }
        QCOMPARE(recipeOf(CheminBase()), u"Soupe"_qs);
    }

    void errorNamesTheCopyThatIsKept() {
        writeFile(path(u"mauvais.mdb"_qs), contentOf(CheminBase()).left(20'000));
        CopierFichier(path(u"mauvais.mdb"_qs), CheminNouveauLivre());
        RemplacerLivre();
        try {
            OuvrirLivre();
            QFAIL("a damaged book was opened");
        } catch (const platform::database::DatabaseError &failure) {
            QVERIFY(QString::fromUtf8(failure.what()).contains(CheminAvantRestauration()));
        }
        QCOMPARE(recipeOf(CheminAvantRestauration()), u"Tarte"_qs);
    }
};

QTEST_GUILESS_MAIN(TestCopieFichier)
#include "TestCopieFichier.moc"
