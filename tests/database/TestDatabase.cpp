#include "Files.h"

#include "platform/database/BulkInsert.h"
#include "platform/database/CreateDatabase.h"
#include "platform/database/Database.h"
#include "platform/database/DatabaseError.h"
#include "platform/database/Transaction.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>

using namespace platform::database;
using namespace Qt::StringLiterals;

namespace {

QString connectString() {
    return u";pwd =sésame"_s;
}

/// A collation by which every vowel is the same, so that its use shows.
std::string withoutVowels(std::string_view text) {
    std::string key(text);
    std::replace_if(
        key.begin(), key.end(),
        [](char c) { return std::string_view("aeiou").find(c) != std::string_view::npos; }, '*');
    return key;
}

constexpr Collation kVowelBlind{
    [](std::string_view left, std::string_view right) {
        return withoutVowels(left).compare(withoutVowels(right));
    },
    [](std::string_view text, QByteArray &keys) { keys += withoutVowels(text).c_str(); },
};

/// The end of a child process that runs a function.
template <class Function>
int exitCodeOf(Function function) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(function());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

class TestDatabase : public QObject {
    Q_OBJECT

private:
    QString path() const { return m_folder->filePath(u"livre.mdb"_s); }

    Database open(const Collation &collation = kBinaryCollation) const {
        return OpenDatabase(path(), true, false, connectString(), collation);
    }

    /// An open database with two rows.
    Database filled() const {
        Database database = open();
        database.Execute(u"INSERT INTO Plat VALUES (1, 'a', 'x', 0), (2, 'b', 'y', 0)"_s);
        return database;
    }

    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    static QString texts(Recordset rows, int column) {
        QStringList list;
        for (; !rows.AtEnd(); rows.MoveNext()) {
            list.append(rows.Fields(column).Text());
        }
        return list.join(u' ');
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        CreateDatabase(
            path(), connectString(),
            u"CREATE TABLE Plat (N INTEGER PRIMARY KEY, Nom TEXT COLLATE NOCASE, Note TEXT, Prix REAL);"
            "CREATE TABLE Ligne (Numero INTEGER, Quoi INTEGER)"_s);
    }

    void faultyFilesGiveTheEnginesTextAndStayAsTheyAre_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("damagedByte");
        QTest::addColumn<QString>("connect");
        QTest::addColumn<QString>("text");

        const QString foreign = u"Le fichier n'est pas un livre de recettes, ou il est endommagé. "
                                "(livre.mdb : file is encrypted or is not a database)"_s;
        QTest::newRow("wrong password") << 8192 << -1 << u";pwd =Sésame"_s << foreign;
        QTest::newRow("empty, taken for a new book") << 0 << -1 << connectString() << foreign;
        QTest::newRow("cut between pages")
            << 4096 << -1 << connectString()
            << u"Le livre est endommagé. (livre.mdb : database disk image is malformed)"_s;
        QTest::newRow("a damaged first page") << 8192 << 100 << connectString() << foreign;
    }

    void faultyFilesGiveTheEnginesTextAndStayAsTheyAre() {
        QFETCH(const int, size);
        QFETCH(const int, damagedByte);
        QFETCH(const QString, connect);
        QByteArray content = contentOf(path()).first(size);
        if (damagedByte >= 0) {
            content[damagedByte] = char(~content[damagedByte]);
        }
        writeFile(path(), content);
        try {
            OpenDatabase(path(), true, false, connect);
            QFAIL("opened");
        } catch (const DatabaseError &error) {
            QTEST(QString::fromUtf8(error.what()), "text");
        }
        QCOMPARE(contentOf(path()), content);
        QCOMPARE(files(), QStringList{u"livre.mdb"_s});
    }

    void missingFileIsNotCreatedNorAPresentOneReplaced() {
        const QByteArray before = contentOf(path());
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 CreateDatabase(path(), connectString(), u"CREATE TABLE X (N)"_s));
        QCOMPARE(contentOf(path()), before);
        QVERIFY(QFile::remove(path()));
        PrepareKey(path(), connectString());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, open());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, CreateDatabase(path(), connectString(), u"CREATE X"_s));
        QVERIFY(files().isEmpty());
    }

    void exclusiveFromOpenToClose() {
        const auto openFails = [this] {
            try {
                open();
                return 0;
            } catch (const DatabaseError &error) {
                return error.isInUse() ? 1 : 2;
            }
        };
        Database database = open();
        QCOMPARE(exitCodeOf(openFails), 1);
        QCOMPARE(openFails(), 1);
        // The failed attempts must not have dropped the lock.
        database.Execute(u"INSERT INTO Plat (Nom) VALUES ('a')"_s);
        QCOMPARE(exitCodeOf(openFails), 1);
        database.Close();
        QCOMPARE(openFails(), 0);
    }

    void preparedKeyServesItsFileOnly() {
        // Made by other processes, so that this one knows none of their keys.
        const QString other = m_folder->filePath(u"autre.mdb"_s);
        QVERIFY(QFile::remove(path()));
        for (const QString &name : {path(), other}) {
            QCOMPARE(exitCodeOf([&] {
                         CreateDatabase(name, connectString(), u"CREATE TABLE Plat (N)"_s);
                         return 0;
                     }),
                     0);
        }
        PrepareKey(other, connectString());
        writeFile(other, contentOf(path()));
        OpenDatabase(other, true, false, connectString());
    }

    void rowsLeftEqualByTheOrder() {
        Database database = open(kVowelBlind);
        database.Execute(
            u"INSERT INTO Plat VALUES (1, 'sal', 'z', 1), (2, 'ton', 'a', 1), (3, 'tin', 'b', 1),"
            "(4, 'sel', 'c', 2), (5, NULL, 'd', 2), (6, '', 'e', 1.5)"_s);
        const auto orders = std::to_array<std::pair<QString, QString>>({
            {u""_s, u"1 2 3 4 5 6"_s},
            {u"order by Nom asc"_s, u"5 6 1 4 2 3"_s}, // Null first
            {u"ORDER BY [nom] DESC"_s, u"3 2 4 1 6 5"_s},
            {u"order by Note"_s, u"2 3 4 5 6 1"_s},
            {u"order by Prix asc"_s, u"1 2 3 6 4 5"_s},
            {u"where N > 1 order by Prix desc"_s, u"5 4 6 3 2"_s},
            {u"where Nom <> 'x'' order by y' order by N desc"_s, u"6 4 3 2 1"_s},
            {u"where N in (select N from Plat order by N limit 2) order by N desc"_s, u"2 1"_s},
            {u"where nom = 'sol'"_s, u"1 4"_s},
        });
        for (const auto &[tail, order] : orders) {
            const QString found = texts(database.OpenRecordset(u"select * from PLAT "_s + tail), 0);
            QVERIFY2(found == order, qPrintable(tail + u": " + found));
        }
    }

    void valuesComeBackAsTheyWent() {
        const QString odd =
            u"l'été 🍓 \"[order by]\" "_s + QChar(u'\0') + u"fin\r\n"_s + QString(1 << 20, u'é');
        Database database = open();
        Recordset rows = database.OpenRecordset(u"SELECT * From Plat"_s);
        rows.AddNew();
        rows.Fields(u"nom") = odd;
        rows.Fields(u"NOTE") = QString();
        rows.Update();
        rows.AddNew();
        rows.Fields(u"Prix") = 2.5;
        rows.Update();

        Recordset again = database.OpenRecordset(u"SELECT * From Plat order by N asc"_s);
        QCOMPARE(again.Fields(1).Text(), odd);
        QCOMPARE(again.Fields(2).Value(), QVariant(QString()));
        QVERIFY(again.Fields(3).IsNull());
        again.MoveNext();
        QVERIFY(again.Fields(2).IsNull());
        QCOMPARE(again.Fields(3).Value().toDouble(), 2.5);
    }

    void changedKeysAndRowsGoneOrNewKeepTheirPlace() {
        Database database = filled();
        database.Execute(u"INSERT INTO Plat VALUES (3, 'c', 'z', 0)"_s);
        Recordset rows = database.OpenRecordset(u"SELECT * From Plat order by N asc"_s);
        database.Execute(u"UPDATE Plat SET Note = 'Y' WHERE N = 2"_s);
        rows.MoveNext();
        QCOMPARE(rows.Fields(2).Text(), u"Y"_s);
        rows.Edit();
        rows.Fields(0) = 20;
        rows.Update();
        QCOMPARE(rows.Fields(2).Text(), u"Y"_s);

        rows.Delete();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Fields(1).Text());
        rows.MoveNext();
        QCOMPARE(rows.Fields(1).Text(), u"c"_s);

        rows.AddNew();
        rows.Fields(u"Nom") = u"d"_s;
        rows.Update();
        QCOMPARE(rows.Fields(1).Text(), u"c"_s);
        rows.SetBookmark(rows.LastModified());
        QCOMPARE(rows.Fields(1).Text(), u"d"_s);
        QCOMPARE(rows.RecordCount(), 3);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.SetBookmark(RowMark{99}));
        QCOMPARE(rows.Fields(1).Text(), u"d"_s);
    }

    void changesWithoutUpdateAreGivenUp() {
        Database database = filled();
        Recordset rows = database.OpenRecordset(u"SELECT * From Plat order by N asc"_s);
        rows.Edit();
        rows.Fields(1) = u"A"_s;
        rows.MoveNext();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Update());
        rows.AddNew();
        rows.Fields(1) = u"c"_s;
        rows.Close();
        QCOMPARE(texts(database.OpenRecordset(u"SELECT * From Plat order by N asc"_s), 1), u"a b"_s);
    }

    void misuseThrows() {
        Database database = filled();
        // The engine takes the name that no column has for a text.
        for (const QString &sql : {u"SELECT * From Rien"_s, u"SELECT * From Plat order by Rien"_s,
                                   u"SELECT max(N) From Plat; DELETE FROM Plat"_s}) {
            QVERIFY_THROWS_EXCEPTION(DatabaseError, database.OpenRecordset(sql));
        }
        Recordset rows = database.OpenRecordset(u"SELECT * From Plat"_s);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Fields(1) = u"no edit"_s);
        QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.Fields(u"Rien").Text());
        rows.Close();
        QCOMPARE(texts(database.OpenRecordset(u"SELECT * From Plat"_s), 1), u"a b"_s);

        database.Close();
        Database readOnly = OpenDatabase(path(), false, true, connectString());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, readOnly.Execute(u"DELETE * FROM Plat"_s));
        OpenDatabase(path(), false, false, connectString());
    }

    void transactionTakesEffectAsAWhole() {
        const auto update = [](Database &database) {
            database.Execute(u"ALTER TABLE Plat ADD COLUMN Source TEXT"_s);
            database.SetUserVersion(3);
        };
        {
            Database database = open();
            const Transaction givenUp(database);
            update(database);
            QVERIFY_THROWS_EXCEPTION(DatabaseError, Transaction{database});
        }
        {
            Database database = open();
            const Transaction closedOver(database);
            update(database);
            database.Close();
        }
        QCOMPARE(open().UserVersion(), 0);
        {
            Database database = open();
            Transaction transaction(database);
            update(database); // which the column that is there already would make fail
            transaction.commit();
            QVERIFY_THROWS_EXCEPTION(DatabaseError, transaction.commit());
        }
        QCOMPARE(open().UserVersion(), 3);
    }

    void bulkInsertWritesAllOrNothing() {
        for (const bool committed : {false, true}) {
            const Database database = open();
            BulkInsert rows(database);
            QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.row({1}));
            rows.into(u"Plat"_s, {u"Nom"_s, u"N"_s});
            rows.row({QString(), 2});
            rows.row({QVariant(), 1});
            QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.row({u"clef prise"_s, 1}));
            if (committed) {
                rows.commit();
                QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.row({u"encore"_s, 8}));
            }
        }
        QCOMPARE(files(), QStringList{u"livre.mdb"_s});
        Database database = open();
        Recordset plats = database.OpenRecordset(u"SELECT * From Plat"_s);
        QCOMPARE(plats.RecordCount(), 2);
        QVERIFY(plats.Fields(1).IsNull());
        plats.MoveNext();
        QVERIFY(!plats.Fields(1).IsNull());
    }
};

QTEST_APPLESS_MAIN(TestDatabase)
#include "TestDatabase.moc"
