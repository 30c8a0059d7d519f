#include "Lignes.h"

#include "platform/database/DatabaseError.h"
#include "store/Programme.h"
#include "store/Schema.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>

using namespace store;
using platform::database::DatabaseError;

namespace {

const QString kRecettes = u"SELECT Numero, Recette, Photo From Cocktails"_qs;

/// The book as it stands, whatever its version.
platform::database::Database Brut() {
    return platform::database::OpenDatabase(CheminBase(), true, false, u";pwd =PoivreEtSel4"_qs);
}

/// Takes from the book what a version before this one may lack, and its version.
void vieillir() {
    auto livre = OuvrirLivre();
    for (const auto &instruction :
         {u"DROP TABLE Cocktails"_qs, u"DROP TABLE Mesure"_qs, u"DROP INDEX IngreRecette"_qs,
          u"CREATE TABLE Cocktails (Numero INTEGER PRIMARY KEY, recette TEXT COLLATE NOCASE)"_qs,
          u"CREATE INDEX CocktailsListe ON Cocktails (Numero)"_qs,
          u"INSERT INTO Cocktails VALUES (3, 'Tarte'), (9, NULL)"_qs}) {
        livre.Execute(instruction);
    }
    livre.SetUserVersion(0);
}

/// Opens the book in a process that is killed when it writes behind the middle of the file. True when it was killed.
bool tueEnPleineMiseAJour() {
    const auto limite = static_cast<rlim_t>(QFile(CheminBase()).size() / 2);
    const pid_t enfant = fork();
    if (enfant == 0) {
        const rlimit fichiers{limite, limite};
        setrlimit(RLIMIT_FSIZE, &fichiers);
        std::signal(SIGXFSZ, SIG_DFL);
        try {
            OuvrirLivre();
        } catch (const DatabaseError &echec) {
            qCritical("%s", echec.what());
        }
        _exit(0);
    }
    int fin = 0;
    waitpid(enfant, &fin, 0);
    return WIFSIGNALED(fin);
}

} // namespace

class TestMiseAJour : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dossier;

private Q_SLOTS:

    void init() {
        m_dossier = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_dossier->path());
        CreerLivre(CheminBase());
    }

    void olderBookGetsWhatItLacks() {
        vieillir();
        QVERIFY(tueEnPleineMiseAJour());
        QCOMPARE(Brut().UserVersion(), 0);

        QCOMPARE(rowsOf(kRecettes, 3), (QStringList{u"3|Tarte|-"_qs, u"9|-|-"_qs}));
        QCOMPARE(Brut().UserVersion(), kVersionDuLivre);
        auto livre = OuvrirLivre();
        for (const Table *table : kTables) {
            auto ligne = livre.OpenRecordset(u"SELECT * From "_qs + table->nom);
            ligne.AddNew();
            for (const Champ &champ : table->champs) {
                ligne.Fields(champ.nom) = 99;
            }
            ligne.Update();
        }
        for (const Index &index : kIndex) {
            livre.Execute(u"DROP INDEX "_qs + index.nom);
        }
    }

    void otherBooksAreLeftAlone_data() {
        QTest::addColumn<QString>("instruction");
        QTest::addColumn<int>("version");
        QTest::newRow("of a newer program") << u"DELETE FROM Mesure"_qs << kVersionDuLivre + 1;
        QTest::newRow("without recipes") << u"DROP TABLE Cocktails"_qs << 0;
        QTest::newRow("with another column in the place of ours") << u"DROP TABLE Verre"_qs << 0;
    }

    void otherBooksAreLeftAlone() {
        QFETCH(const QString, instruction);
        QFETCH(const int, version);
        {
            auto livre = OuvrirLivre();
            livre.Execute(instruction);
            livre.Execute(u"DROP TABLE Quantite"_qs);
            livre.Execute(u"CREATE TABLE Quantite (NQuantite INTEGER PRIMARY KEY, Autre TEXT)"_qs);
            livre.SetUserVersion(version);
        }
        QVERIFY_THROWS_EXCEPTION(DatabaseError, OuvrirLivre());
        auto livre = Brut();
        QCOMPARE(livre.UserVersion(), version);
        QCOMPARE(livre.OpenRecordset(u"SELECT name FROM sqlite_master WHERE name = 'Verre'"_qs).RecordCount(),
                 instruction.contains(u"Verre") ? 0 : 1);
    }
};

QTEST_GUILESS_MAIN(TestMiseAJour)
#include "TestMiseAJour.moc"
