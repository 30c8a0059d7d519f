#include "Files.h"
#include "OldBook.h"
#include "Rows.h"
#include "SmallFilesOnly.h"

#include "store/AncienLivre.h"
#include "store/Programme.h"

#include "platform/database/DatabaseError.h"
#include "platform/jet/JetReader.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace store;
using namespace Qt::StringLiterals;
using platform::database::Database;
using platform::database::DatabaseError;
using platform::database::Recordset;
using platform::jet::JetError;
using W = Jet4Writer;

namespace {

/// What oldBook() holds; %1 for the long text.
const char *const kJet4Rows = R"({"Cocktails": [
    {"Numero": 7, "Recette": "Œufs d'été à l'ail", "preparation": "Cuire.", "NCategorie": 200, "Nverre": -1,
     "Nreal": -1, "Cout": 5, "difficulte": 3, "Teneur": 4000000000, "Deco": null},
    {"Numero": 5, "Recette": "Œuf 🍳", "preparation": "Poêler.", "Nreal": 0, "Nverre": null},
    {"Numero": 6, "Recette": null, "preparation": "%1"},
    {"Numero": 2000000, "Recette": "", "preparation": "", "Cout": null, "Teneur": null}],
    "Ingre": [{"Numero": 7, "NIngre": 2}, {"Numero": 7, "NIngre": 1}, {"Numero": 5, "NIngre": null}]})";

const char *const kJet3Rows = R"({"Cocktails": [
    {"Numero": 3, "Recette": "Crème aux œufs, 5 €", "Photo": null, "preparation": "Mêler.", "Cout": -1},
    {"Numero": 1000000, "Recette": "", "Photo": " ", "preparation": null, "Cout": 32767}],
    "Ingre": [{"Numero": 3, "NIngre": 9}, {"Numero": 3, "NIngre": 2}, {"Numero": null, "NIngre": 5}]})";

} // namespace

class TestAncienLivre : public QObject {
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    void useReader(const QByteArray &script) const { writeScript(path(u"lecteur-jet"_s), script); }

    void convert(const ProgressionConversion &progress = {}) const {
        ConvertirAncienLivre(path(u"vieux.mdb"_s), CheminBase(), progress);
    }

    QStringList books() const { return QDir(m_folder->path()).entryList({u"db*"_s}, QDir::Files); }

    static QString keyOf(const QString &table) { return table == u"Cocktails" ? u"Numero"_s : u'N' + table; }

    /// Compares the rows of a table with those of the JSON text, value by value.
    static void compare(Database &book, const QString &table, const QVariantList &expected) {
        Recordset rows = book.OpenRecordset(u"SELECT * From "_s + table);
        QCOMPARE(rows.RecordCount(), expected.size());
        for (const QVariant &row : expected) {
            const QVariantMap columns = row.toMap();
            for (const auto &[column, wanted] : columns.asKeyValueRange()) {
                const QVariant value = rows.Fields(column).Value();
                const bool same = wanted.isNull() ? !value.isValid() : value == wanted;
                QVERIFY2(same, qPrintable(table + u'.' + column + u": " + value.toString().left(99)));
            }
            rows.MoveNext();
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        DefinirDossierProgramme(m_folder->path());
        QVERIFY(QFile::link(QStringLiteral(READING_PROGRAM), path(u"lecteur-jet"_s)));
    }

    void rowByRow_data() {
        QTest::addColumn<QByteArray>("old");
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("Jet 4") << oldBook() << QByteArray(kJet4Rows).replace("%1", longText().toUtf8());
        // Other sizes everywhere, and texts in the code page of the system that made the file.
        QTest::newRow("Jet 3") << contentOf(QStringLiteral(JET3_BOOK)) << QByteArray(kJet3Rows);
        // Larger ones, where they are present: with a password, and with long memos.
        const QDir outside(QStringLiteral(OLD_BOOKS));
        const QStringList names = outside.entryList({u"*.mdb"_s});
        for (const QString &name : names) {
            QTest::newRow(qPrintable(name))
                << contentOf(outside.filePath(name))
                << contentOf(outside.filePath(QString(name).replace(u".mdb"_s, u".json"_s)));
        }
        if (names.isEmpty()) {
            qInfo("No further Jet books in " OLD_BOOKS);
        }
    }

    void rowByRow() {
        QFETCH(const QByteArray, old);
        QFETCH(const QByteArray, json);
        const QVariantMap tables = QJsonDocument::fromJson(json).object().toVariantMap();
        writeFile(path(u"vieux.mdb"_s), old);
        QVERIFY(EstAncienLivre(path(u"vieux.mdb"_s)));
        if (QTest::currentDataTag() == "Jet 3"_ba) { // a book of two tables: the others come from another one
            W others;
            others.rest({});
            const QByteArray reader = READING_PROGRAM;
            const QByteArray rest = writeFile(path(u"tables.mdb"_s), others.file()).toUtf8();
            useReader(reader + " \"$@\" | head -c -5; shift; " + reader + ' ' + rest +
                      " \"$@\" | tail -c +14");
        }
        // A charset that somebody has set for the library's own tools does not matter.
        qputenv("MDB_JET3_CHARSET", "CP437");
        qint64 done = 0;
        qint64 total = 0;
        convert([&](qint64 rows, qint64 all) {
            QVERIFY(rows >= done);
            done = rows;
            total = all;
        });
        qunsetenv("MDB_JET3_CHARSET");
        QCOMPARE(books(), QStringList{u"db.mdb"_s});
        QVERIFY(!EstAncienLivre(CheminBase()));

        Database book = OuvrirLivre();
        qint64 count = 0;
        for (const auto &[table, content] : tables.asKeyValueRange()) {
            QVariantList expected = content.toList();
            count += expected.size();
            // A table with a key has its rows in its order, the lines of the recipes in that of the file they come from.
            if (table != u"Ingre") {
                std::ranges::sort(expected, {}, [key = keyOf(table)](const QVariant &row) {
                    return row.toMap()[key].toLongLong();
                });
            }
            compare(book, table, expected);
        }
        QVERIFY(count > 0);
        QCOMPARE(done, count);
        QCOMPARE(total, count);
    }

    void oddColumnsAndRows() {
        W old;
        const auto text = W::wide;
        old.table(u"INGREDIENT"_s,
                  {{u"inconnue"_s, W::Bool}, {u"ingredient"_s, W::Text}, {u"NIngredient"_s, W::Text}},
                  {{{{}, text(u"sel"_s), text(u" 7 "_s)}},
                   {{{}, "", {}}},
                   {{{}, text(u"poivre"_s), text(u"7"_s)}},
                   {{{}, text(u"ail"_s), text(u"8.0"_s)}}});
        old.table(u"Cocktails"_s,
                  {{u"Numero"_s, W::Int},
                   {u"Recette"_s, W::Int},
                   {u"Cout"_s, W::Text},
                   {u"Teneur"_s, W::Double},
                   {u"NDureeReal"_s, W::Double}},
                  {{{W::number(qint16(4)), W::number(qint16(12)), text(u"cher"_s), W::number(2.6),
                     W::number(1e300)}}});
        old.rest({u"INGREDIENT"_s, u"Cocktails"_s});
        writeFile(path(u"vieux.mdb"_s), old.file());
        convert();
        // Rows without a number of their own stand behind the others.
        QCOMPARE(tableOf(u"Ingredient"_s), u"7|sel, 8|ail, 9|, 10|poivre"_s);
        QCOMPARE(rowsOf(u"SELECT Numero, Recette, Cout, Teneur, NDureeReal, Nreal From Cocktails"_s, 6),
                 QStringList{u"4|12|-|3|-|-"_s});
        QCOMPARE(tableOf(u"VIN"_s), QString());
    }

    void noFileAfterAFailure() {
        W old;
        old.table(u"Mesure"_s, {{u"NMesure"_s, W::Int}}, {{{W::number(qint16(1))}}});
        writeFile(path(u"vieux.mdb"_s), old.file());
        QVERIFY_THROWS_EXCEPTION(JetError, convert()); // no recipes
        QCOMPARE(books(), QStringList());
        // A bit has turned in its name, in the catalogue.
        writeFile(path(u"vieux.mdb"_s), oldBook().replace(W::wide(u"Ingre"_s), W::wide(u"Ingse"_s)));
        QVERIFY_THROWS_EXCEPTION(JetError, convert());
        QCOMPARE(books(), QStringList());
        useReader("exec sleep 60");
        const auto stop = [](qint64, qint64) { throw std::runtime_error("assez"); };
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, convert(stop));
        QVERIFY2(timer.elapsed() < 5000, "the reader was waited for");
        QCOMPARE(books(), QStringList());
    }

    void fullDisk() {
        W old;
        const QByteArray memo = old.memo(QByteArray(1'000'000, 'x'), 4000);
        const W::Row row{{memo}};
        old.table(u"Cocktails"_s, {{u"preparation"_s, W::Memo}}, {row, row, row, row});
        old.rest({u"Cocktails"_s});
        writeFile(path(u"vieux.mdb"_s), old.file());
        {
            const SmallFilesOnly full(2'000'000);
            QVERIFY_THROWS_EXCEPTION(DatabaseError, convert());
        }
        QCOMPARE(books(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestAncienLivre)
#include "TestAncienLivre.moc"
