// The book as delivered, read as the program reads it.
#include "platform/database/Database.h"
#include "platform/richtext/RichText.h"
#include "store/Livre.h"
#include "store/Programme.h"
#include "store/Vocabulaires.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace Qt::StringLiterals;
using platform::database::Database;
using platform::database::Recordset;

namespace {

const QString kDelivered = QStringLiteral(BOOK_FOLDER);

QSet<qint64> numbersOf(Database &book, const QString &table) {
    QSet<qint64> numbers;
    for (Recordset rows = book.OpenRecordset(u"SELECT * From "_s + table); !rows.AtEnd(); rows.MoveNext()) {
        numbers.insert(rows.Fields(0).Number());
    }
    return numbers;
}

const QString kMissing = u"missing"_s;

QString textOf(Database &book, const QString &table, qint64 number) {
    const QString sql = u"SELECT * From %1 where N%1 = %2 order by %1 desc"_s;
    Recordset row = book.OpenRecordset(sql.arg(table, QString::number(number)));
    return row.RecordCount() == 1 ? row.Fields(1).Text() : kMissing;
}

/// The lines of a recipe as quantity/measure/ingredient, in the order in which they are shown.
QStringList linesOf(Database &book, qint64 recipe) {
    QStringList texts;
    const QString sql = u"SELECT * From Ingre where Numero = %1 order by Numero desc"_s;
    for (Recordset lines = book.OpenRecordset(sql.arg(recipe)); !lines.AtEnd(); lines.MoveNext()) {
        texts.append(textOf(book, u"Quantite"_s, lines.Fields(u"NQuantite").Number()) + u'/' +
                     textOf(book, u"Mesure"_s, lines.Fields(u"NMesure").Number()) + u'/' +
                     textOf(book, u"Ingredient"_s, lines.Fields(u"NIngre").Number()));
    }
    return texts;
}

} // namespace

class TestLivre : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void vocabularies_data();
    void vocabularies();
    void recipesReferToWhatIsThere();
    void textsAreRichAndLongEnough();
    void photos();
    void ingredientLines();
    void aRecipeWithAnArticle();

private:
    QTemporaryDir m_folder; ///< a program folder with a copy, so that the build's own file stays as it is
};

void TestLivre::initTestCase() {
    QVERIFY(m_folder.isValid());
    store::DefinirDossierProgramme(m_folder.path());
    QVERIFY(QFile::copy(kDelivered + u"/db.mdb", store::CheminBase()));
}

void TestLivre::vocabularies_data() {
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("atLeast");
    QTest::addColumn<int>("atMost");
    QTest::newRow("cooking times") << u"Categorie"_s << 30 << 30;
    QTest::newRow("preparation times") << u"DureeReal"_s << 25 << 25;
    QTest::newRow("persons") << u"Verre"_s << 12 << 12;
    QTest::newRow("dish types") << u"Realisation"_s << 25 << 35;
    QTest::newRow("wines") << u"VIN"_s << 25 << 25;
    QTest::newRow("ingredients and headings") << u"Ingredient"_s << 401 << 420;
    QTest::newRow("quantities and no quantity") << u"Quantite"_s << 61 << 61;
    QTest::newRow("measures and no measure") << u"Mesure"_s << 41 << 41;
}

void TestLivre::vocabularies() {
    QFETCH(const QString, table);
    QFETCH(const int, atLeast);
    QFETCH(const int, atMost);

    Database book = store::OuvrirLivre();
    Recordset rows = book.OpenRecordset(u"SELECT * From "_s + table);
    QVERIFY2(rows.RecordCount() >= atLeast && rows.RecordCount() <= atMost,
             qPrintable(QString::number(rows.RecordCount())));
    QSet<QString> texts;
    for (int number = 1; !rows.AtEnd(); ++number, rows.MoveNext()) {
        const QString text = rows.Fields(1).Text();
        QCOMPARE(rows.Fields(0).Number(), number);
        QVERIFY2(text == u" " || (!text.isEmpty() && text == text.simplified()), qPrintable(text));
        QVERIFY2(!text.contains(u'<'), qPrintable(text));
        QVERIFY2(!texts.contains(text.toCaseFolded()), qPrintable(text));
        texts.insert(text.toCaseFolded());
    }
}

void TestLivre::recipesReferToWhatIsThere() {
    Database book = store::OuvrirLivre();
    const std::map<int, QString> tables{
        {2, u"Categorie"_s}, {3, u"Verre"_s}, {5, u"Realisation"_s}, {10, u"VIN"_s}, {11, u"DureeReal"_s}};
    QSet<qint64> withLines;
    for (Recordset lines = book.OpenRecordset(u"SELECT * From Ingre"_s); !lines.AtEnd(); lines.MoveNext()) {
        withLines.insert(lines.Fields(0).Number());
    }

    Recordset recipes = book.OpenRecordset(u"SELECT * From Cocktails order by Numero asc"_s);
    QCOMPARE(recipes.RecordCount(), 12);
    for (int number = 1; !recipes.AtEnd(); ++number, recipes.MoveNext()) {
        QCOMPARE(recipes.Fields(0).Number(), number);
        for (const auto &[position, table] : tables) {
            QVERIFY2(numbersOf(book, table).contains(recipes.Fields(position).Number()),
                     qPrintable(recipes.Fields(1).Text() + u": " + table));
        }
        QVERIFY(!store::Cout.at(recipes.Fields(8).Number()).isEmpty());
        QVERIFY(!store::Difficulte.at(recipes.Fields(9).Number()).isEmpty());
        QVERIFY(withLines.remove(number));
    }
    QVERIFY(withLines.isEmpty());
}

void TestLivre::textsAreRichAndLongEnough() {
    Database book = store::OuvrirLivre();
    Recordset recipes = book.OpenRecordset(u"SELECT * From Cocktails"_s);
    for (; !recipes.AtEnd(); recipes.MoveNext()) {
        for (const auto &[column, length] : {std::pair(u"preparation"_s, 900), std::pair(u"Deco"_s, 400)}) {
            const QString stored = recipes.Fields(column).Text();
            const QString text = platform::richtext::plainText(stored);
            const QString where = recipes.Fields(1).Text() + u", " + column + u": " + text;
            QVERIFY2(platform::richtext::isRtf(stored), qPrintable(where));
            QVERIFY2(text.size() >= length, qPrintable(where));
            // Marks that were left in, and apostrophes of a typewriter.
            QVERIFY2(!text.contains(u'*') && !text.contains(u'\''), qPrintable(where));
            // The boxes choose the colours, light on dark.
            QVERIFY2(!stored.contains(u"\\cf"), qPrintable(where));
        }
    }
}

void TestLivre::photos() {
    Database book = store::OuvrirLivre();
    Recordset recipes = book.OpenRecordset(u"SELECT * From Cocktails"_s);
    QSet<QString> names;
    for (; !recipes.AtEnd(); recipes.MoveNext()) {
        const QString name = recipes.Fields(u"Photo").Text();
        QImageReader picture(kDelivered + u"/photos/" + name);
        QCOMPARE(picture.size(), QSize(1000, 600));
        QVERIFY2(!picture.read().isNull(), qPrintable(name));
        names.insert(name);
    }
    const QStringList files = QDir(kDelivered + u"/photos").entryList(QDir::Files);
    QCOMPARE(QSet<QString>(files.begin(), files.end()), names);
}

void TestLivre::ingredientLines() {
    Database book = store::OuvrirLivre();
    for (const qint64 number : numbersOf(book, u"Cocktails"_s)) {
        const QStringList lines = linesOf(book, number);
        QVERIFY2(lines.size() >= 8 && lines.size() <= 16, qPrintable(QString::number(number)));
        QVERIFY2(!lines.join(u'\n').contains(kMissing), qPrintable(lines.join(u'\n')));
        QCOMPARE(QSet<QString>(lines.begin(), lines.end()).size(), lines.size());
    }
}

void TestLivre::aRecipeWithAnArticle() {
    Database book = store::OuvrirLivre();
    Recordset gratin =
        book.OpenRecordset(u"SELECT * From Cocktails where Recette = 'gratin dauphinois (le)'"_s);
    QCOMPARE(gratin.RecordCount(), 1);
    QCOMPARE(gratin.Fields(u"Photo").Text(), u"Le Gratin dauphinois.jpg"_s);
    const QStringList lines = linesOf(book, gratin.Fields(0).Number());
    QCOMPARE(lines.first(), u"1,2/kg de/pommes de terre à chair fondante"_s);
    QCOMPARE(lines.last(), u" / /poivre du moulin"_s);
}

QTEST_GUILESS_MAIN(TestLivre)
#include "TestLivre.moc"
