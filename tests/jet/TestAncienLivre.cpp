#include "Files.h"
#include "Lignes.h"
#include "SmallFilesOnly.h"

#include "store/AncienLivre.h"
#include "store/Programme.h"

#include "platform/database/DatabaseError.h"
#include "platform/jet/JetReader.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
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

namespace {

template <typename Number>
QByteArray number(Number value) {
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

QByteArray text(const QByteArray &value) {
    return number(quint32(value.size())) + value;
}

/// One record of what a reader of old books writes.
QByteArray record(char kind, const QByteArray &content) {
    return kind + text(content);
}

const QByteArray kEnd = record('E', {});

QByteArray table(const QByteArray &name, const QByteArrayList &columns) {
    QByteArray content = text(name) + number(quint32(columns.size()));
    for (const QByteArray &column : columns) {
        content += text(column);
    }
    return record('T', content);
}

/// @param values each an int, a double, a QByteArray, or nothing for Null
QByteArray row(const QVariantList &values) {
    QByteArray content;
    for (const QVariant &value : values) {
        if (!value.isValid()) {
            content += '\0';
        } else if (value.typeId() == QMetaType::Int) {
            content += '\1' + number(value.toLongLong());
        } else {
            content += value.typeId() == QMetaType::Double ? QByteArray('\2' + number(value.toDouble()))
                                                           : QByteArray('\3' + text(value.toByteArray()));
        }
    }
    return record('R', content);
}

} // namespace

class TestAncienLivre : public QObject {
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    void useReader(const QByteArray &script) const { writeScript(path(u"lecteur-jet"_s), script); }

    void useStream(const QByteArray &stream) const {
        useReader("exec cat '" + writeFile(path(u"flux"_s), stream).toUtf8() + '\'');
    }

    void convert(const ProgressionConversion &progress = {}) const {
        ConvertirAncienLivre(path(u"vieux.mdb"_s), CheminBase(), progress);
    }

    QStringList books() const { return QDir(m_folder->path()).entryList({u"db*"_s}, QDir::Files); }

    static QString keyOf(const QString &table) { return table == u"Cocktails" ? u"Numero"_s : u'N' + table; }

    /// Compares the rows of a table with those of the JSON file, value by value.
    static void compare(Database &book, const QString &table, const QJsonArray &expected) {
        Recordset rows = book.OpenRecordset(u"SELECT * From "_s + table);
        QCOMPARE(rows.RecordCount(), expected.size());
        for (const auto &row : expected) {
            const QJsonObject columns = row.toObject();
            for (auto column = columns.begin(); column != columns.end(); ++column) {
                const QVariant value = rows.Fields(column.key()).Value();
                QCOMPARE(value.isValid(), !column->isNull());
                QCOMPARE(value.typeId() == QMetaType::QString, column->isString());
                QVERIFY2(value.toString() == column->toVariant().toString(),
                         qPrintable(table + u'.' + column.key()));
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

    void rowByRow() {
        // With a password; with moved and struck rows and long memos.
        for (const auto &[name, count] :
             {std::pair(u"ancien-livre"_s, 522), std::pair(u"vieux-livre"_s, 2309)}) {
            init();
            const QString source = QStringLiteral(OLD_BOOKS) + u'/' + name;
            if (!QFile::copy(source + u".mdb", path(u"vieux.mdb"_s))) {
                QSKIP("no books of old in " OLD_BOOKS);
            }
            QVERIFY(EstAncienLivre(path(u"vieux.mdb"_s)));
            qint64 done = 0;
            qint64 total = 0;
            convert([&](qint64 rows, qint64 all) {
                QVERIFY(rows >= done);
                done = rows;
                total = all;
            });
            QCOMPARE(done, count);
            QCOMPARE(total, count);
            QCOMPARE(books(), QStringList{u"db.mdb"_s});
            QVERIFY(!EstAncienLivre(CheminBase()));

            const QJsonObject tables = QJsonDocument::fromJson(contentOf(source + u".json")).object();
            QCOMPARE(tables.size(), 10);
            Database book = OuvrirLivre();
            for (auto table = tables.begin(); table != tables.end(); ++table) {
                QVariantList expected = table->toArray().toVariantList();
                // A table with a key has its rows in its order, the lines of the recipes in that of the old book.
                if (table.key() != u"Ingre") {
                    std::ranges::sort(expected, {}, [key = keyOf(table.key())](const QVariant &row) {
                        return row.toMap()[key].toLongLong();
                    });
                }
                compare(book, table.key(), QJsonArray::fromVariantList(expected));
            }
        }
    }

    /// The version before: other sizes everywhere, and texts in the code page of their system. The book is a small
    /// file in that format with made-up rows, written by a generator of our own.
    void jet3() {
        QVERIFY(QFile::copy(QStringLiteral(JET3_BOOK), path(u"vieux.mdb"_s)));
        QVERIFY(EstAncienLivre(path(u"vieux.mdb"_s)));
        // A charset that somebody has set for the library's own tools does not matter.
        qputenv("MDB_JET3_CHARSET", "CP437");
        convert();
        qunsetenv("MDB_JET3_CHARSET");
        QCOMPARE(
            rowsOf(u"SELECT * From Cocktails"_s, 9),
            QStringList({u"3|Crème aux œufs, 5 €|-|-|-|-|Mêler.|-|-1"_s, u"1000000||-|-| |-|-|-|32767"_s}));
        QCOMPARE(rowsOf(u"SELECT * From Ingre"_s, 4),
                 QStringList({u"3|9|-|-"_s, u"3|2|-|-"_s, u"-|5|-|-"_s}));
    }

    void oddColumnsAndRows() {
        useStream(table("INGREDIENT", {"inconnue", "ingredient", "NIngredient"}) +
                  row({1, "sel"_ba, " 7 "_ba}) + row({1, ""_ba, {}}) + row({1, "poivre"_ba, 7}) +
                  row({1, 12, 8.0}) +
                  table("Cocktails", {"Numero", "Cout", "Teneur", "NDureeReal", "Nreal"}) +
                  row({4, "cher"_ba, 2.6, 1e300, -1}) + kEnd);
        convert();
        // Rows without a number of their own stand behind the others.
        QCOMPARE(tableOf(u"Ingredient"_s), u"7|sel, 8|12, 9|, 10|poivre"_s);
        QCOMPARE(rowsOf(u"SELECT * From Cocktails"_s, 12), QStringList{u"4|-|-|-|-|-1|-|-|-|-|3|-"_s});
        QCOMPARE(tableOf(u"VIN"_s), QString());
    }

    void noFileAfterAFailure() {
        useStream(table("Mesure", {"NMesure", "Mesure"}) + row({1, "pincée"_ba}) + kEnd);
        QVERIFY_THROWS_EXCEPTION(JetError, convert()); // no recipes
        QCOMPARE(books(), QStringList());
        QVERIFY_THROWS_EXCEPTION(DatabaseError,
                                 ConvertirAncienLivre(path(u"vieux.mdb"_s), u"/proc/nouveau.mdb"_s));

        useReader("exec sleep 60");
        const auto stop = [](qint64, qint64) { throw std::runtime_error("assez"); };
        QElapsedTimer timer;
        timer.start();
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, convert(stop));
        QVERIFY2(timer.elapsed() < 5000, "the reader was waited for");
        QCOMPARE(books(), QStringList());
    }

    void anExistingFileStays() {
        CreerLivre(CheminBase());
        const QByteArray before = contentOf(CheminBase());
        QVERIFY_THROWS_EXCEPTION(DatabaseError, convert());
        QCOMPARE(contentOf(CheminBase()), before);
    }

    void fullDisk() {
        writeFile(path(u"vieux.mdb"_s), QByteArray(1'000'000, '\0'));
        QByteArray stream = table("Cocktails", {"Numero", "preparation"});
        for (int i = 1; i <= 20; ++i) {
            stream += row({i, QByteArray(400'000, 'x')});
        }
        useStream(stream + kEnd);
        {
            const SmallFilesOnly full(2'000'000);
            QVERIFY_THROWS_EXCEPTION(DatabaseError, convert());
        }
        QCOMPARE(books(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestAncienLivre)
#include "TestAncienLivre.moc"
