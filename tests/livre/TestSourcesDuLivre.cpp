// A mistake in the source texts of the book stops the build and names its place.
#include "Files.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void replaceInFile(const QString &path, const QString &before, const QString &after) {
    const QString text = QString::fromUtf8(contentOf(path));
    QCOMPARE(text.count(before), 1);
    writeFile(path, QString(text).replace(before, after).toUtf8());
}

} // namespace

class TestSourcesDuLivre : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void aMistakeStopsTheBuild_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("message"); // behind the name of the file
        const auto row = [](const char *before, const char *after, const char *message,
                            const QString &file = u"recettes/gratin-dauphinois.txt"_s) {
            QTest::newRow(message) << file << QString::fromUtf8(before) << QString::fromUtf8(after)
                                   << QString::fromUtf8(message);
        };
        row("Personnes :", "Convives :", ":4: unknown field \"Convives\"");
        row("Personnes : ", "Vin : ", ":8: the field \"Vin\" is there already");
        row("Personnes : 6 personnes\n", "", ": the field \"Personnes\" is missing");
        row("cl de | lait", "bols de | lait", ":13: \"bols de\" is not in the vocabulary Mesure");
        row("Peu Cher", "Donné", ":6: \"Donné\" is no class");
        row("Dessin : gratin-dauphinois", "Dessin : gratin", ":9: no picture ");
        row("**3 mm**", "**3 mm", ":23: a * or ** of this paragraph is not closed");
        row("\n3. ", "\n4. ", ":27: step 3 is expected here");
        row("== Compléments ==", "== Remarques ==", ":40: unknown section \"Remarques\"");
        row("Cidre brut", "chablis Minéral", ":25: \"chablis Minéral\" is there already",
            u"vocabulaires/vin.txt"_s);
    }

    void aMistakeStopsTheBuild() {
        QFETCH(const QString, file);
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        QFETCH(const QString, message);
        const QTemporaryDir folder;
        const QString sources = folder.filePath(u"livre"_s);
        const QString output = folder.filePath(u"livraison"_s);
        QCOMPARE(QProcess::execute(u"cp"_s, {u"-r"_s, QStringLiteral(BOOK_SOURCES), sources}), 0);
        QVERIFY(QDir().mkpath(output));
        const QString wrong = sources + u'/' + file;
        replaceInFile(wrong, before, after);

        QProcess tool;
        tool.start(QStringLiteral(BOOK_TOOL), {sources, QStringLiteral(BOOK_PICTURES), output});
        QVERIFY(tool.waitForFinished());
        const QString errors = QString::fromUtf8(tool.readAllStandardError());
        QCOMPARE(tool.exitCode(), 1);
        QVERIFY2(errors.contains(wrong) && errors.contains(message), qPrintable(errors));
        QVERIFY(QDir(output).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSourcesDuLivre)
#include "TestSourcesDuLivre.moc"
