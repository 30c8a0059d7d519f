#include "Jet3Book.h"

#include "store/AncienLivre.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include "platform/database/DatabaseError.h"
#include "platform/jet/JetReader.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <memory>

using namespace store;
using namespace Qt::StringLiterals;
using platform::database::Database;
using platform::database::DatabaseError;
using platform::database::Recordset;
using platform::jet::JetError;

namespace {

/// What a reader of old books would write: the records of a stream.
class Stream {
public:
    void table(const QByteArray &name, const QByteArrayList &columns) {
        m_content = text(name) + number(quint32(columns.size()));
        for (const QByteArray &column : columns) {
            m_content += text(column);
        }
        end('T');
    }

    Stream &row() {
        m_content.clear();
        return *this;
    }

    Stream &null() {
        m_content += '\0';
        return *this;
    }

    Stream &whole(qint64 value) {
        m_content += '\1' + number(value);
        return *this;
    }

    Stream &real(double value) {
        m_content += '\2' + number(value);
        return *this;
    }

    Stream &string(const QByteArray &value) {
        m_content += '\3' + text(value);
        return *this;
    }

    void end(char kind) {
        bytes += kind + number(quint32(m_content.size())) + m_content;
        m_content.clear();
    }

    QByteArray bytes;

private:
    template <typename Number>
    static QByteArray number(Number value) {
        return {reinterpret_cast<const char *>(&value), sizeof value};
    }

    static QByteArray text(const QByteArray &value) { return number(quint32(value.size())) + value; }

    QByteArray m_content;
};

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestAncienLivre : public QObject {
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    void useReader(const QByteArray &script) const {
        const QString program = path(u"lecteur-jet"_s);
        QFile::remove(program);
        QFile file(program);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + script) > 0);
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    void useStream(const Stream &stream) const {
        QFile file(path(u"flux"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(stream.bytes) >= 0);
        useReader("exec cat '" + file.fileName().toUtf8() + "'\n");
    }

    QStringList files() const { return QDir(m_folder->path()).entryList({u"nouveau*"_s}, QDir::Files); }

    /// All rows of a table of the new book; "-" is Null.
    QStringList rows(const QString &sql, int columns) const {
        Database book = OuvrirLivre(path(u"nouveau.mdb"_s));
        Recordset rows = book.OpenRecordset(sql);
        QStringList lines;
        for (; !rows.AtEnd(); rows.MoveNext()) {
            QStringList line;
            for (int i = 0; i < columns; ++i) {
                line.append(rows.Fields(i).IsNull() ? u"-"_s : rows.Fields(i).Text());
            }
            lines.append(line.join(u'|'));
        }
        return lines;
    }

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

    void rowByRow_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("count");
        QTest::newRow("with a password") << u"ancien-livre"_s << 522;
        QTest::newRow("moved and struck rows, long memos") << u"vieux-livre"_s << 2309;
    }

    void rowByRow() {
        QFETCH(QString, name);
        QFETCH(int, count);
        const QString source = QStringLiteral(OLD_BOOKS) + u'/' + name + u".mdb";
        if (!QFile::exists(source)) {
            QSKIP("no books of old in " OLD_BOOKS);
        }
        QVERIFY(EstAncienLivre(source));
        qint64 done = 0;
        qint64 total = 0;
        ConvertirAncienLivre(source, path(u"nouveau.mdb"_s), [&](qint64 rows, qint64 all) {
            QVERIFY(rows >= done);
            done = rows;
            total = all;
        });
        QCOMPARE(done, count);
        QCOMPARE(total, count);
        QCOMPARE(files(), QStringList{u"nouveau.mdb"_s});
        QVERIFY(!EstAncienLivre(path(u"nouveau.mdb"_s)));

        const QJsonObject tables =
            QJsonDocument::fromJson(contentOf(QStringLiteral(OLD_BOOKS) + u'/' + name + u".json")).object();
        QCOMPARE(tables.size(), 10);
        Database book = OuvrirLivre(path(u"nouveau.mdb"_s));
        for (auto table = tables.begin(); table != tables.end(); ++table) {
            QJsonArray expected = table->toArray();
            // A table with a key has its rows in its order, the lines of the recipes in that of the old book.
            if (table.key() != u"Ingre") {
                const QString key = expected.isEmpty() ? QString() : keyOf(table.key());
                QVariantList sorted = expected.toVariantList();
                std::ranges::sort(sorted, {},
                                  [&](const QVariant &row) { return row.toMap()[key].toLongLong(); });
                expected = QJsonArray::fromVariantList(sorted);
            }
            compare(book, table.key(), expected);
        }
    }

    /// The version before: other sizes everywhere, and texts in the code page of their system.
    void jet3() {
        const Jet3Book::Table recipes{"COCKTAILS",
                                      {{"Numero", Jet3Book::kLong},
                                       {"Recette", Jet3Book::kText},
                                       {"Cout", Jet3Book::kInt},
                                       {"preparation", Jet3Book::kMemo},
                                       {"Photo", Jet3Book::kText}},
                                      {{3, "Cr\xe8me aux \x9cufs, 5 \x80"_ba, -1, "M\xealer."_ba, QVariant()},
                                       {1000000, ""_ba, 32767, QVariant(), " "_ba}}};
        const Jet3Book::Table lines{"Ingre",
                                    {{"Numero", Jet3Book::kLong}, {"NIngre", Jet3Book::kLong}},
                                    {{3, 9}, {3, 2}, {QVariant(), 5}}};
        QFile file(path(u"vieux.mdb"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(Jet3Book::file({recipes, lines})) > 0);
        file.close();
        QVERIFY(EstAncienLivre(file.fileName()));
        // A charset that somebody has set for the library's own tools does not matter.
        qputenv("MDB_JET3_CHARSET", "CP437");
        ConvertirAncienLivre(file.fileName(), path(u"nouveau.mdb"_s));
        qunsetenv("MDB_JET3_CHARSET");
        QCOMPARE(
            rows(u"SELECT * From Cocktails"_s, 9),
            QStringList({u"3|Crème aux œufs, 5 €|-|-|-|-|Mêler.|-|-1"_s, u"1000000||-|-| |-|-|-|32767"_s}));
        QCOMPARE(rows(u"SELECT * From Ingre"_s, 4), QStringList({u"3|9|-|-"_s, u"3|2|-|-"_s, u"-|5|-|-"_s}));
    }

    void oddColumnsAndRows() {
        Stream stream;
        stream.table("INGREDIENT", {"inconnue", "ingredient", "NIngredient"});
        stream.row().whole(1).string("sel").string(" 7 ").end('R');
        stream.row().whole(1).string("").null().end('R');
        stream.row().whole(1).string("poivre").whole(7).end('R');
        stream.row().whole(1).whole(12).real(8.0).end('R');
        stream.table("Cocktails", {"Numero", "Cout", "Teneur", "NDureeReal", "Nreal"});
        stream.row().whole(4).string("cher").real(2.6).real(1e300).whole(-1).end('R');
        stream.end('E');
        useStream(stream);
        ConvertirAncienLivre(path(u"vieux.mdb"_s), path(u"nouveau.mdb"_s));
        // Rows without a number of their own stand behind the others.
        QCOMPARE(rows(u"SELECT * From Ingredient"_s, 2),
                 QStringList({u"7|sel"_s, u"8|12"_s, u"9|"_s, u"10|poivre"_s}));
        QCOMPARE(rows(u"SELECT * From Cocktails"_s, 12), QStringList{u"4|-|-|-|-|-1|-|-|-|-|3|-"_s});
        QCOMPARE(rows(u"SELECT * From VIN"_s, 2), QStringList());
    }

    void noFileAfterAFailure() {
        Stream others;
        others.table("Mesure", {"NMesure", "Mesure"});
        others.row().whole(1).string("pincée").end('R');
        others.end('E');
        useStream(others);
        QVERIFY_EXCEPTION_THROWN(ConvertirAncienLivre(path(u"vieux.mdb"_s), path(u"nouveau.mdb"_s)),
                                 JetError);
        QCOMPARE(files(), QStringList());

        QVERIFY_EXCEPTION_THROWN(ConvertirAncienLivre(path(u"vieux.mdb"_s), u"/proc/nouveau.mdb"_s),
                                 DatabaseError);

        useReader("exec sleep 60\n");
        const auto stop = [](qint64, qint64) { throw std::runtime_error("assez"); };
        QVERIFY_EXCEPTION_THROWN(ConvertirAncienLivre(path(u"vieux.mdb"_s), path(u"nouveau.mdb"_s), stop),
                                 std::runtime_error);
        QCOMPARE(files(), QStringList());
    }

    void anExistingFileStays() {
        CreerLivre(path(u"nouveau.mdb"_s));
        const QByteArray before = contentOf(path(u"nouveau.mdb"_s));
        QVERIFY_EXCEPTION_THROWN(ConvertirAncienLivre(path(u"vieux.mdb"_s), path(u"nouveau.mdb"_s)),
                                 DatabaseError);
        QCOMPARE(contentOf(path(u"nouveau.mdb"_s)), before);
    }

    /// A limit on the size of files stands for a disk that is full.
    void fullDisk() {
        QFile source(path(u"vieux.mdb"_s));
        QVERIFY(source.open(QIODevice::WriteOnly) && source.resize(1'000'000));
        Stream stream;
        stream.table("Cocktails", {"Numero", "preparation"});
        for (int i = 1; i <= 20; ++i) {
            stream.row().whole(i).string(QByteArray(400'000, 'x')).end('R');
        }
        stream.end('E');
        useStream(stream);
        const auto previous = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limits{};
        getrlimit(RLIMIT_FSIZE, &limits);
        const rlimit small{2'000'000, limits.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        bool failed = false;
        try {
            ConvertirAncienLivre(path(u"vieux.mdb"_s), path(u"nouveau.mdb"_s));
        } catch (const DatabaseError &) {
            failed = true;
        }
        setrlimit(RLIMIT_FSIZE, &limits);
        std::signal(SIGXFSZ, previous);
        QVERIFY(failed);
        QCOMPARE(files(), QStringList());
    }

private:
    static QString keyOf(const QString &table) { return table == u"Cocktails" ? u"Numero"_s : u'N' + table; }
};

QTEST_GUILESS_MAIN(TestAncienLivre)
#include "TestAncienLivre.moc"
