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

        const QString gratin = u"recettes/gratin-dauphinois.txt"_s;
        const auto row = [](const char *name, const QString &file, const QString &before,
                            const QString &after, const QString &message) {
            QTest::newRow(name) << file << before << after << message;
        };
        row("unknown field", gratin, u"Personnes :"_s, u"Convives :"_s, u":4: unknown field \"Convives\""_s);
        row("field twice", gratin, u"Personnes : "_s, u"Vin : "_s,
            u":8: the field \"Vin\" is there already"_s);
        row("missing field", gratin, u"Personnes : 6 personnes\n"_s, u""_s,
            u": the field \"Personnes\" is missing"_s);
        row("value not in the vocabulary", gratin, u"cl de | lait"_s, u"bols de | lait"_s,
            u":13: \"bols de\" is not in the vocabulary Mesure"_s);
        row("cost class", gratin, u"Peu Cher"_s, u"Donné"_s, u":6: \"Donné\" is no class"_s);
        row("picture", gratin, u"Dessin : gratin-dauphinois"_s, u"Dessin : gratin"_s, u":9: no picture "_s);
        row("bold left open", gratin, u"**3 mm**"_s, u"**3 mm"_s,
            u":23: a * or ** of this paragraph is not closed"_s);
        row("step out of order", gratin, u"\n3. "_s, u"\n4. "_s, u":27: step 3 is expected here"_s);
        row("section", gratin, u"== Compléments =="_s, u"== Remarques =="_s,
            u":40: unknown section \"Remarques\""_s);
        row("text twice", u"vocabulaires/vin.txt"_s, u"Cidre brut"_s, u"chablis Minéral"_s,
            u":25: \"chablis Minéral\" is there already"_s);
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
